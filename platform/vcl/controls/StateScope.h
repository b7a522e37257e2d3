#pragma once

#include "platform/vcl/controls/Control.h"
#include "platform/vcl/core/LifeGuard.h"

namespace vcl {

/// Sets a state for the length of a scope, as long as the control lives.
class [[nodiscard]] TStateScope {
public:
    TStateScope(TControl& control, TControlStateFlag flag) : FControl(control), FGuard(control), FFlag(flag) {
        control.SetControlState(flag, true);
    }
    ~TStateScope() {
        if (FGuard.IsAlive()) FControl.SetControlState(FFlag, false);
    }
    TStateScope(const TStateScope&) = delete;
    TStateScope& operator=(const TStateScope&) = delete;

private:
    TControl& FControl;
    TLifeGuard FGuard;
    TControlStateFlag FFlag;
};

}  // namespace vcl
