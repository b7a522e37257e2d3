#pragma once

#include "platform/vcl/controls/BasicAction.h"

namespace vcl {

class TControl;

/// Ties a control to its action: caption, hint, enabled, visible and the click event follow the action as
/// long as the control still has the action's value.
class TControlActionLink : public TBasicActionLink {
public:
    explicit TControlActionLink(TControl& client) : FClient(client) {}

    [[nodiscard]] virtual bool IsCaptionLinked() const;
    [[nodiscard]] virtual bool IsHintLinked() const;
    [[nodiscard]] virtual bool IsEnabledLinked() const;
    [[nodiscard]] virtual bool IsVisibleLinked() const;
    [[nodiscard]] virtual bool IsOnExecuteLinked() const;

    void SetCaption(const String& value) override;
    void SetHint(const String& value) override;
    void SetEnabled(bool value) override;
    void SetVisible(bool value) override;
    void SetOnExecute(const TNotifyEvent& value) override;

protected:
    [[nodiscard]] TControl& Client() const { return FClient; }
    /// What the action shows; null when it shows nothing.
    [[nodiscard]] const TActionValues* Shown() const;

private:
    TControl& FClient;
};

}  // namespace vcl
