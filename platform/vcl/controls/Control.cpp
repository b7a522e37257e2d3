#include "platform/vcl/controls/Control.h"

#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/DragSession.h"
#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/streaming/SkippedProperties.h"

namespace vcl {
namespace {

bool HasLimits(const TSizeConstraints& constraints) {
    return constraints.GetMinWidth() > 0 || constraints.GetMinHeight() > 0 || constraints.GetMaxWidth() > 0 ||
           constraints.GetMaxHeight() > 0;
}

}  // namespace

const TMetaClass& TControl::StaticClass() {
    using C = TControl;
    static const TMetaClass meta = DefineClass<C>(L"TControl", TComponent::StaticClass())
                                       .Property(L"Left", &C::GetLeft, &C::SetLeft)
                                       .Property(L"Top", &C::GetTop, &C::SetTop)
                                       .Property(L"Width", &C::GetWidth, &C::SetWidth)
                                       .Property(L"Height", &C::GetHeight, &C::SetHeight)
                                       .Property(L"Cursor", &C::GetCursor, &C::SetCursor, crDefault)
                                       .Identifiers(CursorIdentifiers())
                                       .Property(L"Hint", &C::GetHint, &C::SetHint, String())
                                       .Stored(&C::IsHintStored);
    return meta;
}

TControl::TControl(TComponent* AOwner)
    : TComponent(AOwner),
      FFont(std::make_unique<TFont>()),
      FConstraints(std::make_unique<TSizeConstraints>()) {
    FFont->OnChange = {this, &TControl::FontChanged};
    FConstraints->OnChange = {this, &TControl::ConstraintsChanged};
}

TControl::~TControl() {
    Destroying();
    ForgetControl(*this);
    ForgetDraggedControl(*this);
    if (FParent) FParent->RemoveControl(this);
}

void TControl::BeforeDestruction() {
    TComponent::BeforeDestruction();
    ForgetControl(*this);
    ForgetDraggedControl(*this);
}

void TControl::SetParent(TWinControl* value) {
    if (FParent == value) return;
    for (TControl* c = value; c; c = c->FParent) {
        if (c == this) throw EInvalidOperation(L"A control cannot have itself as its parent");
    }
    const TLifeGuard guard(*this);
    if (FParent) FParent->RemoveControl(this);
    if (value && guard.IsAlive()) value->InsertControl(this);
}

TComponent* TControl::GetParentComponent() const {
    return FParent;
}

void TControl::SetParentComponent(TComponent* value) {
    if (FParent == value) return;
    if (auto* parent = dynamic_cast<TWinControl*>(value)) SetParent(parent);
}

void TControl::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation != opRemove) return;
    if (component == FPopupMenu) FPopupMenu = nullptr;
    if (FActionLink && component == FActionLink->GetAction()) FActionLink.reset();
}

void TControl::DefineProperties(TFiler& filer) {
    TComponent::DefineProperties(filer);
    // Bounds before alignment changed them, for designers that undo it.
    SkipProperties(filer, {L"ExplicitLeft", L"ExplicitTop", L"ExplicitWidth", L"ExplicitHeight"});
}

void TControl::Loaded() {
    TComponent::Loaded();
    FAnchorsRead = false;
    // While it was being read its limits did not count.
    if (HasLimits(*FConstraints)) SetBounds(FLeft, FTop, FWidth, FHeight);
    if (FActionLink) ActionChange(FActionLink->GetAction(), true);
}

bool TControl::Raise(const TNotifyEvent& event) {
    if (!event) return true;
    const TLifeGuard guard(*this);
    event(this);
    return guard.IsAlive();
}

}  // namespace vcl
