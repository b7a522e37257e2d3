#pragma once

#include "platform/vcl/controls/ControlActionLink.h"

namespace vcl {

/// Ties a control that can be checked to its action: `Checked` follows the action like caption and state.
class TCheckedActionLink : public TControlActionLink {
public:
    using TControlActionLink::TControlActionLink;

    /// True while the control is checked as its action is.
    [[nodiscard]] bool IsCheckedLinked() const { return Shown() && Shown()->Checked == IsClientChecked(); }
    void SetChecked(bool value) override {
        if (IsCheckedLinked()) CheckClient(value);
    }

protected:
    [[nodiscard]] virtual bool IsClientChecked() const = 0;
    /// Checks the control or not, without a click.
    virtual void CheckClient(bool value) = 0;
};

}  // namespace vcl
