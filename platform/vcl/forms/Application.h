#pragma once

#include <concepts>
#include <exception>
#include <memory>
#include <vector>

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/forms/FormTypes.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {

class TApplicationEvents;
class TApplicationHints;
class TApplicationServices;
class TApplicationWindow;
class TBasicAction;
class TCustomForm;
class TIcon;
struct THintInfo;

/// Sender and the error that escaped a handler.
using TExceptionEvent = TEvent<void(TObject*, const std::exception&)>;
/// The handler sets false when it has more to do; the loop then comes back without waiting for a message.
using TIdleEvent = TEvent<void(TObject*, bool&)>;
/// A message from the queue before anything else sees it; true: it was used.
using TMessageEvent = TEvent<void(MSG&, bool&)>;
/// The text to show, whether to show it, and all that is known about the hint; all may be changed.
using TShowHintEvent = TEvent<void(String&, bool&, THintInfo&)>;
/// An action that its own handlers left alone; true: it was used.
using TActionEvent = TEvent<void(TBasicAction*, bool&)>;

/// The events of the program, which the application has, and each `TApplicationEvents` that hears them
/// beside it.
class TApplicationEventSet {
public:
    TExceptionEvent OnException;
    TIdleEvent OnIdle;
    TMessageEvent OnMessage;
    TNotifyEvent OnActivate;
    TNotifyEvent OnDeactivate;
    TNotifyEvent OnMinimize;
    TNotifyEvent OnRestore;
    TNotifyEvent OnHint;
    TNotifyEvent OnModalBegin;
    TNotifyEvent OnModalEnd;
    TNotifyEvent OnSettingChange;
    TShowHintEvent OnShowHint;
    TShortCutEvent OnShortCut;
    TActionEvent OnActionExecute;
    TActionEvent OnActionUpdate;

protected:
    TApplicationEventSet() = default;
    ~TApplicationEventSet() = default;
};

/// The program: its message loop, its main form, what happens to errors, hints, idle time. Obtained with
/// `Application()`; it belongs to the thread that asked first, as all controls do.
class TApplication : public TComponent, public TApplicationEventSet, public TGuarded {
public:
    ~TApplication() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    // --- the program
    /// Makes a form that the application owns, stores it in `reference` before `OnCreate` is raised, and
    /// returns it. The first one becomes the main form.
    template <std::derived_from<TCustomForm> Form>
    Form* CreateForm(Form*& reference) {
        reference = new Form(this);
        FormCreated(reference);
        return reference;
    }
    template <std::derived_from<TCustomForm> Form>
    Form* CreateForm() {
        Form* form = nullptr;
        return CreateForm(form);
    }
    /// Shows the main form and handles messages until the program is terminated, then frees all forms that
    /// the application owns.
    void Run();
    /// Ends all message loops once the message under way has been handled.
    void Terminate();
    /// True from there until `Run` returns.
    [[nodiscard]] bool GetTerminated() const { return FTerminated; }
    [[nodiscard]] TCustomForm* GetMainForm() const { return FMainForm; }
    /// Makes another form the main one (null: none).
    void SetMainForm(TCustomForm* value);
    [[nodiscard]] bool GetShowMainForm() const { return FShowMainForm; }
    /// Whether `Run` shows the main form.
    void SetShowMainForm(bool value) { FShowMainForm = value; }
    [[nodiscard]] String GetTitle() const { return FTitle; }
    /// The name of the program in message boxes and task lists; the program file's name at first.
    void SetTitle(const String& value);
    [[nodiscard]] String GetExeName() const;
    /// The program's icon, from its resource "MAINICON" at first; forms without an icon of their own show it.
    [[nodiscard]] TIcon& GetIcon() const { return *FIcon; }
    /// The hidden window that stands for the program; forms without another owner belong to it.
    [[nodiscard]] HWND GetHandle();
    void Minimize();
    void Restore();
    void BringToFront();

    // --- message loop
    /// Handles all messages in the queue and returns without waiting; false when there was none.
    bool ProcessMessages();
    /// Handles one message, or runs the idle work and waits for the next.
    void HandleMessage();
    /// Runs one message of a loop of the caller's own through the same steps: `OnMessage`, hints, keys,
    /// dispatch.
    void HandleMessage(MSG& message);
    /// Runs `OnIdle` and brings the actions of the visible forms up to date; false when there is more to do.
    bool DoIdle();

    // --- errors
    /// Takes the error that is being handled: raises `OnException`, or shows it when there is no handler.
    /// EAbort is silent. Called from message handlers' catch blocks.
    void HandleException(TObject* sender);
    void HandleException(TObject* sender, const std::exception_ptr& error);
    /// Shows the error's text in a message box.
    void ShowException(const std::exception& error);
    /// A message box of the system above the active form; returns the button's code (ID...). `flags` as of
    /// the system's call (MB_...).
    int MessageBox(const String& text, const String& caption, unsigned flags = MB_OK);

    // --- state
    /// True while one of the program's windows is the active one.
    [[nodiscard]] bool GetActive() const { return FActive; }
    /// Brackets modal loops of any kind: `OnModalBegin` and `OnModalEnd` are raised by the outermost pair.
    void ModalStarted();
    void ModalFinished();
    [[nodiscard]] int GetModalLevel() const { return FModalLevel; }

    // --- hints
    /// The long text of the control under the pointer.
    [[nodiscard]] const String& GetHint() const { return FHint; }
    /// Raises `OnHint` on change.
    void SetHint(const String& value);
    [[nodiscard]] bool GetShowHint() const { return FShowHint; }
    void SetShowHint(bool value);
    [[nodiscard]] TColor GetHintColor() const { return FHintColor; }
    void SetHintColor(TColor value) { FHintColor = value; }
    /// Milliseconds: rest of the pointer before a hint (500), before the next one while one is shown (50),
    /// and how long it stays (2500).
    [[nodiscard]] int GetHintPause() const { return FHintPause; }
    void SetHintPause(int value) { FHintPause = value; }
    [[nodiscard]] int GetHintShortPause() const { return FHintShortPause; }
    void SetHintShortPause(int value) { FHintShortPause = value; }
    [[nodiscard]] int GetHintHidePause() const { return FHintHidePause; }
    void SetHintHidePause(int value) { FHintHidePause = value; }
    /// Hides the hint that is shown and forgets the one that waits.
    void CancelHint();
    /// Shows the hint of what lies under the point (screen pixels) at once.
    void ActivateHint(TPoint cursorPos);

    /// Runs a key message as short cut of the main form's menu or of a handler.
    bool IsShortCut(TMessage& message);
    bool ExecuteAction(TBasicAction* action);
    bool UpdateAction(TBasicAction* action);

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    friend TApplication& Application();
    friend void DoneApplication();
    friend class TApplicationEvents;
    friend class TApplicationHints;
    friend class TApplicationServices;
    friend class TApplicationWindow;
    friend class TCustomForm;

    TApplication();
    void FormCreated(TCustomForm* form);
    void ReleaseLater(TCustomForm* form);
    void FreeReleasedForms();
    bool ProcessMessage();
    void Idle();
    void IconChanged(TObject* sender);
    /// The program became, or stopped being, the one with the active window.
    void ActiveChanged(bool active);

    // ApplicationEvents.cpp: each event goes to the registered hearers, then to the application's own
    // handler. Those that answer return whether one of them handled it.
    template <class Raise>
    bool RaiseAll(Raise raise);
    void Notify(TNotifyEvent TApplicationEventSet::*event);
    void RaiseActive(bool active);
    void RaiseMinimized(bool minimized);
    void RaiseModal(bool begins);
    void RaiseHint();
    void RaiseSettingChange();
    [[nodiscard]] bool RaiseException(TObject* sender, const std::exception& error);
    void RaiseIdle(bool& done);
    [[nodiscard]] bool RaiseMessage(MSG& message);
    void RaiseShowHint(String& text, bool& canShow, THintInfo& info);
    [[nodiscard]] bool RaiseShortCut(TMessage& message);

    std::unique_ptr<TApplicationServices> FServices;
    std::unique_ptr<TApplicationWindow> FWindow;
    std::unique_ptr<TApplicationHints> FHints;
    std::unique_ptr<TIcon> FIcon;
    std::vector<TApplicationEvents*> FHearers;
    std::vector<TCustomForm*> FReleasedForms;
    TCustomForm* FMainForm = nullptr;
    String FTitle;
    String FHint;
    TColor FHintColor = clInfoBk;
    int FHintPause = 500;
    int FHintShortPause = 50;
    int FHintHidePause = 2500;
    int FModalLevel = 0;
    int FRunLevel = 0;
    bool FTerminated = false;
    bool FActive = false;
    bool FShowHint = true;
    bool FShowMainForm = true;
};

/// The application of the process, made on first use.
[[nodiscard]] TApplication& Application();
/// Frees the application with all that it owns, and the screen. For the end of programs that count what is
/// left; others leave it to the system. A later call of `Application` makes a new one.
void DoneApplication();

}  // namespace vcl
