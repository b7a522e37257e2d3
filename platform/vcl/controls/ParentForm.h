#pragma once

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/controls/Messages.h"

namespace vcl {

class TWinControl;

/// A designer's hook into the messages of a form that is being designed.
class TDesignHook {
public:
    /// Sees every message to a control of the form first; true: the designer took it.
    virtual bool IsDesignMsg(TControl* sender, TMessage& message) = 0;
    /// A control of the form was changed by the user.
    virtual void Modified() = 0;
    /// Paints the designer's dots on the form's surface.
    virtual void PaintGrid() {}

protected:
    ~TDesignHook() = default;
};

/// What a control needs of the form above it. TCustomForm implements it; `TWinControl::AsParentForm` and
/// `GetParentForm` find it.
class TParentForm {
public:
    /// The form's own control.
    [[nodiscard]] virtual TWinControl& FormControl() = 0;

    /// The control that has the focus while the form is the active one.
    [[nodiscard]] virtual TWinControl* GetActiveControl() const = 0;
    virtual void SetActiveControl(TWinControl* control) = 0;
    /// Gives the focus to a control of the form, activating the form's window. Raises EInvalidOperation
    /// "Cannot focus a disabled or invisible window".
    virtual void FocusControl(TWinControl* control) = 0;
    /// The control can't keep the focus: it is hidden, disabled or (`removing`) leaves the form.
    virtual void DefocusControl(TWinControl* control, bool removing) = 0;
    /// A window of the form got WM_SETFOCUS: moves CM_EXIT and CM_ENTER along the tree and announces
    /// CM_FOCUSCHANGED; false when a handler moved the focus elsewhere.
    virtual bool SetFocusedControl(TWinControl* control) = 0;

    /// True when the form's own key events come before those of the focused control.
    [[nodiscard]] virtual bool GetKeyPreview() const = 0;
    /// Runs the form's own key handling; used with key preview. `message` is WM_KEYDOWN, WM_CHAR ...
    virtual bool PreviewKey(TMessage& message) = 0;
    /// True when the form takes a key of a child before dialog keys are considered.
    virtual bool WantChildKey(TWinControl* child, TMessage& message) = 0;
    /// Runs the menu item or action whose short cut the key message is.
    virtual bool IsShortCut(TMessage& message) = 0;

    virtual void SetModalResult(TModalResult value) = 0;
    [[nodiscard]] virtual TModalResult GetModalResult() const = 0;

    /// The designer that works on the form, or null.
    [[nodiscard]] virtual TDesignHook* GetDesignHook() const { return nullptr; }
    /// True while the form's window is the active one.
    [[nodiscard]] virtual bool GetActive() const = 0;

protected:
    ~TParentForm() = default;
};

}  // namespace vcl
