#include "platform/vcl/controls/ControlActionLink.h"

#include "platform/vcl/controls/Control.h"

namespace vcl {

const TActionValues* TControlActionLink::Shown() const {
    return GetAction() ? GetAction()->Values() : nullptr;
}

bool TControlActionLink::IsCaptionLinked() const {
    return Shown() && FClient.GetText() == Shown()->Caption;
}

bool TControlActionLink::IsHintLinked() const {
    return Shown() && FClient.GetHint() == Shown()->Hint;
}

bool TControlActionLink::IsEnabledLinked() const {
    return Shown() && FClient.GetEnabled() == Shown()->Enabled;
}

bool TControlActionLink::IsVisibleLinked() const {
    return Shown() && FClient.GetVisible() == Shown()->Visible;
}

bool TControlActionLink::IsOnExecuteLinked() const {
    return GetAction() && FClient.OnClick == GetAction()->GetOnExecute();
}

void TControlActionLink::SetCaption(const String& value) {
    if (IsCaptionLinked()) FClient.SetText(value);
}

void TControlActionLink::SetHint(const String& value) {
    if (IsHintLinked()) FClient.SetHint(value);
}

void TControlActionLink::SetEnabled(bool value) {
    if (IsEnabledLinked()) FClient.SetEnabled(value);
}

void TControlActionLink::SetVisible(bool value) {
    if (IsVisibleLinked()) FClient.SetVisible(value);
}

void TControlActionLink::SetOnExecute(const TNotifyEvent& value) {
    if (IsOnExecuteLinked()) FClient.OnClick = value;
}

}  // namespace vcl
