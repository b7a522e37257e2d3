#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include <oleacc.h>

#include "platform/vcl/controls/WinControl.h"

namespace vcl {

/// What screen readers are told of a control that paints itself.
struct TAccessibleFacts {
    String Name;
    String Value;
    String Action;                  ///< What `DoAccessibleAction` does; empty for nothing.
    int Role = ROLE_SYSTEM_CLIENT;  ///< ROLE_SYSTEM_...
    int State = 0;                  ///< STATE_SYSTEM_..., besides what every window tells of itself.
};

/// A control that tells screen readers what it is. Its `Dispatch` begins with `AnswerGetObject`; changes are
/// announced with `NotifyAccessible`.
class TAccessibleControl {
public:
    [[nodiscard]] virtual TAccessibleFacts GetAccessibleFacts() const = 0;
    virtual void DoAccessibleAction() = 0;

protected:
    ~TAccessibleControl() = default;
};

/// Answers WM_GETOBJECT for the client area of the control; false for every other message.
bool AnswerGetObject(TWinControl& control, TAccessibleControl& accessible, TMessage& message);
/// Announces a change of the control: EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_VALUECHANGE ...
void NotifyAccessible(const TWinControl& control, DWORD event);

}  // namespace vcl
