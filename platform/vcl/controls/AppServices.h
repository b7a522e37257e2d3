#pragma once

#include <exception>
#include <vector>

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/controls/Messages.h"

namespace vcl {

class TBasicAction;
class TControl;
class TObject;
class TWinControl;

/// What controls need of the application above them. This base answers sensibly without one; `forms/`
/// installs its own with `SetAppServices`.
class TAppServices {
public:
    virtual ~TAppServices() = default;

    /// Takes what escaped from a handler in a window procedure. The base shows the message of an Exception in
    /// a message box; EAbort is silent.
    virtual void HandleException(std::exception_ptr error);
    /// A mouse message reached the control: hints start, move or end.
    virtual void HintMouseMessage(TControl*, TMessage&) {}
    /// Hides the hint that is shown.
    virtual void CancelHint() {}
    /// Shows the text where the program shows what is under the pointer, such as a status bar.
    virtual void SetHint(const String&) {}
    /// The handle of a cursor number; unknown numbers give the arrow. Not owned by the caller.
    [[nodiscard]] virtual HCURSOR CursorHandle(TCursor cursor);
    /// The cursor that overrides those of all controls; crDefault when none does.
    [[nodiscard]] virtual TCursor ScreenCursor() const { return crDefault; }
    /// A control got the focus (null: none of ours has it).
    virtual void ActiveControlChanged(TWinControl*) {}
    /// A key message that no control wanted as a short cut; true when the program used it.
    virtual bool IsShortCut(TMessage&) { return false; }
    /// An action that its own handlers left alone; true when the program handled it.
    virtual bool ExecuteAction(TBasicAction*) { return false; }
    virtual bool UpdateAction(TBasicAction*) { return false; }
    /// What an action may act on, in the order in which it asks: the control with the focus, the controls
    /// around it and their form, the main form, the program.
    [[nodiscard]] virtual std::vector<TObject*> ActionTargets() { return {}; }
    /// True while one of the program's windows is the active one.
    [[nodiscard]] virtual bool IsActive() const { return true; }
    /// Before and after a modal loop of the system or of a form (menus, dialogs, drags).
    virtual void ModalStarted() {}
    virtual void ModalFinished() {}
    /// Handles the messages in the queue; false when there was none.
    virtual bool ProcessMessages();
    /// The font that controls have when nothing else is said: name and height in pixels.
    [[nodiscard]] virtual HINSTANCE Instance() const;
};

/// The services in force; never fails.
[[nodiscard]] TAppServices& AppServices();
/// Installs others (not owned; null restores the built-in ones) and returns the former.
TAppServices* SetAppServices(TAppServices* services);

/// Offers a key message of the queue to the control it is for, as CN_KEYDOWN, CN_CHAR ...: dialog keys,
/// short cuts and accelerators. True when it was used, so that the message loop must not dispatch it.
[[nodiscard]] bool OfferKeyMessage(const MSG& message);

}  // namespace vcl
