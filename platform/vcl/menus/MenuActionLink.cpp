#include "platform/vcl/menus/MenuActionLink.h"

#include "platform/vcl/menus/MenuItem.h"

namespace vcl {

const TActionValues* TMenuActionLink::Shown() const {
    return GetAction() ? GetAction()->Values() : nullptr;
}

bool TMenuActionLink::IsCaptionLinked() const {
    // The item may have got another mnemonic.
    return Shown() && SameCaption(FClient.GetCaption(), Shown()->Caption);
}

bool TMenuActionLink::IsCheckedLinked() const {
    return Shown() && FClient.GetChecked() == Shown()->Checked;
}

bool TMenuActionLink::IsAutoCheckLinked() const {
    return Shown() && FClient.GetAutoCheck() == Shown()->AutoCheck;
}

bool TMenuActionLink::IsEnabledLinked() const {
    return Shown() && FClient.GetEnabled() == Shown()->Enabled;
}

bool TMenuActionLink::IsVisibleLinked() const {
    return Shown() && FClient.GetOwnVisible() == Shown()->Visible;
}

bool TMenuActionLink::IsHintLinked() const {
    return Shown() && FClient.GetHint() == Shown()->Hint;
}

bool TMenuActionLink::IsImageIndexLinked() const {
    return Shown() && FClient.GetImageIndex() == Shown()->ImageIndex;
}

bool TMenuActionLink::IsShortCutLinked() const {
    return Shown() && FClient.GetShortCut() == Shown()->ShortCut;
}

bool TMenuActionLink::IsGroupIndexLinked() const {
    return Shown() && FClient.GetGroupIndex() == Shown()->GroupIndex;
}

bool TMenuActionLink::IsHelpContextLinked() const {
    return Shown() && FClient.GetHelpContext() == Shown()->HelpContext;
}

bool TMenuActionLink::IsOnExecuteLinked() const {
    return GetAction() && FClient.OnClick == GetAction()->GetOnExecute();
}

void TMenuActionLink::SetCaption(const String& value) {
    if (IsCaptionLinked()) FClient.SetCaption(value);
}

void TMenuActionLink::SetChecked(bool value) {
    if (IsCheckedLinked()) FClient.SetChecked(value);
}

void TMenuActionLink::SetAutoCheck(bool value) {
    if (IsAutoCheckLinked()) FClient.SetAutoCheck(value);
}

void TMenuActionLink::SetEnabled(bool value) {
    if (IsEnabledLinked()) FClient.SetEnabled(value);
}

void TMenuActionLink::SetVisible(bool value) {
    if (IsVisibleLinked()) FClient.SetVisible(value);
}

void TMenuActionLink::SetHint(const String& value) {
    if (IsHintLinked()) FClient.SetHint(value);
}

void TMenuActionLink::SetImageIndex(int value) {
    if (IsImageIndexLinked()) FClient.SetImageIndex(value);
}

void TMenuActionLink::SetShortCut(WORD value) {
    if (IsShortCutLinked()) FClient.SetShortCut(value);
}

void TMenuActionLink::SetGroupIndex(int value) {
    if (IsGroupIndexLinked()) FClient.SetGroupIndex(value);
}

void TMenuActionLink::SetHelpContext(int value) {
    if (IsHelpContextLinked()) FClient.SetHelpContext(value);
}

void TMenuActionLink::SetOnExecute(const TNotifyEvent& value) {
    if (IsOnExecuteLinked()) FClient.OnClick = value;
}

}  // namespace vcl
