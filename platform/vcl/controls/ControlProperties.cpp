#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/Control.h"
#include "platform/vcl/controls/ControlActionLink.h"
#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/graphics/Font.h"

namespace vcl {

void TControl::SetVisible(bool value) {
    if (value == FVisible) return;
    const TLifeGuard guard(*this);
    VisibleChanging();
    FVisible = value;
    if (!value) PointerLosesControl(*this);
    if (guard.IsAlive()) Perform(CM_VISIBLECHANGED, value);
    if (guard.IsAlive()) RequestAlign();
}

void TControl::Show() {
    const TLifeGuard guard(*this);
    if (FParent) FParent->ShowControl(this);
    if (!guard.IsAlive()) return;
    if (!IsInState(csDesigning) || !ControlStyle.Contains(csNoDesignVisible)) SetVisible(true);
}

void TControl::SetEnabled(bool value) {
    if (value == FEnabled) return;
    const TLifeGuard guard(*this);
    FEnabled = value;
    if (!value) PointerLosesControl(*this);
    if (guard.IsAlive()) Perform(CM_ENABLEDCHANGED);
}

void TControl::SetColor(TColor value) {
    if (value == FColor) return;
    FColor = value;
    FParentColor = false;
    Perform(CM_COLORCHANGED);
}

void TControl::SetParentColor(bool value) {
    if (value == FParentColor) return;
    FParentColor = value;
    if (FParent) Perform(CM_PARENTCOLORCHANGED);
}

void TControl::ParentColorChanged() {
    if (!FParentColor || !FParent) return;
    const TLifeGuard guard(*this);
    SetColor(FParent->FColor);
    if (guard.IsAlive()) FParentColor = true;
}

void TControl::SetFont(const TFont& value) {
    FFont->Assign(&value);
}

void TControl::FontChanged(TObject*) {
    FParentFont = FTakingParentFont;
    Perform(CM_FONTCHANGED);
}

void TControl::SetParentFont(bool value) {
    if (value == FParentFont) return;
    FParentFont = value;
    if (FParent) Perform(CM_PARENTFONTCHANGED);
}

void TControl::ParentFontChanged() {
    if (!FParentFont || !FParent || FFont->Equals(FParent->GetFont())) return;
    const TLifeGuard guard(*this);
    FTakingParentFont = true;
    FFont->Assign(&FParent->GetFont());
    if (guard.IsAlive()) FTakingParentFont = false;
}

String TControl::GetText() const {
    return GetTextBuf();
}

void TControl::SetText(const String& value) {
    if (GetTextBuf() == value) return;
    const TLifeGuard guard(*this);
    SetTextBuf(value);
    if (guard.IsAlive()) Perform(CM_TEXTCHANGED);
}

void TControl::SetCursor(TCursor value) {
    if (value == FCursor) return;
    FCursor = value;
    Perform(CM_CURSORCHANGED);
}

void TControl::SetHint(const String& value) {
    FHint = value;
}

void TControl::SetShowHint(bool value) {
    if (value == FShowHint) return;
    FShowHint = value;
    FParentShowHint = false;
    Perform(CM_SHOWHINTCHANGED);
}

void TControl::SetParentShowHint(bool value) {
    if (value == FParentShowHint) return;
    FParentShowHint = value;
    if (FParent) Perform(CM_PARENTSHOWHINTCHANGED);
}

void TControl::ParentShowHintChanged() {
    if (!FParentShowHint || !FParent) return;
    const TLifeGuard guard(*this);
    SetShowHint(FParent->FShowHint);
    if (guard.IsAlive()) FParentShowHint = true;
}

void TControl::SetPopupMenu(TContextMenu* value) {
    FPopupMenu = value;
    if (value) value->FreeNotification(this);
}

void TControl::SetName(const String& name) {
    const TComponent* owner = GetOwner();
    const bool captionFollows = ControlStyle.Contains(csSetCaption) && !IsInState(csLoading) &&
                                GetName() == GetText() && !(owner && owner->IsInState(csLoading));
    TComponent::SetName(name);
    if (captionFollows) SetText(name);
}

TBasicAction* TControl::GetAction() const {
    return FActionLink ? FActionLink->GetAction() : nullptr;
}

void TControl::SetAction(TBasicAction* value) {
    if (!value) {
        FActionLink.reset();
        ControlStyle.Exclude(csActionClient);
        return;
    }
    ControlStyle.Include(csActionClient);
    if (!FActionLink) FActionLink = CreateActionLink();
    FActionLink->SetAction(value);
    value->FreeNotification(this);
    ActionChange(value, value->IsInState(csLoading));
}

std::unique_ptr<TBasicActionLink> TControl::CreateActionLink() {
    return std::make_unique<TControlActionLink>(*this);
}

void TControl::ActionChange(TObject* sender, bool checkDefaults) {
    auto* action = dynamic_cast<TBasicAction*>(sender);
    if (!action) return;
    const TLifeGuard guard(*this);
    // A handler that a designer knows by its name counts too.
    const bool hasHandler = OnClick || OnClick.MethodName();
    if (!checkDefaults || !hasHandler) OnClick = action->GetOnExecute();
    const TActionValues* shown = action->Values();
    if (!shown) return;
    const TActionValues values = *shown;
    if (!checkDefaults || GetText().empty() || GetText() == GetName()) SetText(values.Caption);
    if (guard.IsAlive() && (!checkDefaults || FEnabled)) SetEnabled(values.Enabled);
    if (guard.IsAlive() && (!checkDefaults || FHint.empty())) SetHint(values.Hint);
    if (guard.IsAlive() && (!checkDefaults || FVisible)) SetVisible(values.Visible);
}

bool TControl::IsCaptionStored() const {
    const auto* link = dynamic_cast<const TControlActionLink*>(FActionLink.get());
    return !link || !link->IsCaptionLinked();
}

bool TControl::IsEnabledStored() const {
    const auto* link = dynamic_cast<const TControlActionLink*>(FActionLink.get());
    return !link || !link->IsEnabledLinked();
}

bool TControl::IsVisibleStored() const {
    const auto* link = dynamic_cast<const TControlActionLink*>(FActionLink.get());
    return !link || !link->IsVisibleLinked();
}

bool TControl::IsHintStored() const {
    const auto* link = dynamic_cast<const TControlActionLink*>(FActionLink.get());
    return !link || !link->IsHintLinked();
}

bool TControl::IsOnClickStored() const {
    const auto* link = dynamic_cast<const TControlActionLink*>(FActionLink.get());
    return !link || !link->IsOnExecuteLinked();
}

}  // namespace vcl
