#include "platform/vcl/controls/WinControl.h"

#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/streaming/SkippedProperties.h"

namespace vcl {

const TMetaClass& TWinControl::StaticClass() {
    static const TMetaClass meta = DefineClass<TWinControl>(L"TWinControl", TControl::StaticClass());
    return meta;
}

TWinControl::TWinControl(TComponent* AOwner) : TControl(AOwner), FBrush(std::make_unique<TBrush>()) {
    FBrush->SetColor(GetColor());
}

TWinControl::~TWinControl() {
    Destroying();
    ForgetControl(*this);
    if (GetParent()) RemoveFocus(true);
    // One call takes the windows of the whole subtree away, before the children go one by one.
    // No canvas of it keeps a device context of a window that is gone.
    if (FHandle) {
        FreeControlDeviceContexts();
        TWinControl::DestroyWindowHandle();
    }
    while (GetControlCount() > 0) {
        TControl* child = GetControl(GetControlCount() - 1);
        TakeOut(child);
        child->Free();
    }
    if (GetParent()) GetParent()->RemoveControl(this);
}

void TWinControl::BeforeDestruction() {
    TControl::BeforeDestruction();
    for (int i = 0; i < GetControlCount(); ++i)
        GetControl(i)->Destroying();
}

void TWinControl::Notification(TComponent* component, TOperation operation) {
    TControl::Notification(component, operation);
}

void TWinControl::DefineProperties(TFiler& filer) {
    TControl::DefineProperties(filer);
    // The client size at design time; anchors go by the size that the parent has when it is loaded.
    SkipProperties(filer, {L"DesignSize"});
}

void TWinControl::Loaded() {
    TControl::Loaded();
    ApplyLoadedTabOrders();
    if (FLoadedTabOrder >= 0 && GetParent() && !GetParent()->IsInState(csLoading))
        SetTabOrder(std::exchange(FLoadedTabOrder, -1));
    if (IsControlState(csAlignmentNeeded) && FAlignLevel == 0) Realign();
    if (GetParent()) UpdateControlState();
}

TParentForm* GetParentForm(TControl* control) {
    TWinControl* top = control->AsWinControl() ? control->AsWinControl() : control->GetParent();
    while (top && top->GetParent())
        top = top->GetParent();
    return top ? top->AsParentForm() : nullptr;
}

TParentForm& ValidParentForm(TControl* control) {
    TParentForm* form = GetParentForm(control);
    if (!form) throw EInvalidOperation(Format(L"Control '%s' has no parent window", control->GetName()));
    return *form;
}

}  // namespace vcl
