#pragma once

#include "platform/vcl/controls/BasicAction.h"

namespace vcl {

class TMenuItem;

/// Ties a menu item to its action: each value follows the action as long as the item still has it.
class TMenuActionLink : public TBasicActionLink {
public:
    explicit TMenuActionLink(TMenuItem& client) : FClient(client) {}

    [[nodiscard]] bool IsCaptionLinked() const;
    [[nodiscard]] bool IsCheckedLinked() const;
    [[nodiscard]] bool IsAutoCheckLinked() const;
    [[nodiscard]] bool IsEnabledLinked() const;
    [[nodiscard]] bool IsVisibleLinked() const;
    [[nodiscard]] bool IsHintLinked() const;
    [[nodiscard]] bool IsImageIndexLinked() const;
    [[nodiscard]] bool IsShortCutLinked() const;
    [[nodiscard]] bool IsGroupIndexLinked() const;
    [[nodiscard]] bool IsHelpContextLinked() const;
    [[nodiscard]] bool IsOnExecuteLinked() const;

    void SetCaption(const String& value) override;
    void SetChecked(bool value) override;
    void SetAutoCheck(bool value) override;
    void SetEnabled(bool value) override;
    void SetVisible(bool value) override;
    void SetHint(const String& value) override;
    void SetImageIndex(int value) override;
    void SetShortCut(WORD value) override;
    void SetGroupIndex(int value) override;
    void SetHelpContext(int value) override;
    void SetOnExecute(const TNotifyEvent& value) override;

private:
    /// What the action shows; null when it shows nothing.
    [[nodiscard]] const TActionValues* Shown() const;
    TMenuItem& FClient;
};

}  // namespace vcl
