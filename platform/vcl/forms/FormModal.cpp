#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/forms/TaskWindows.h"

namespace vcl {
namespace {

/// What a modal loop changes around it and puts back, also when an error ends it.
class TModalSurroundings {
public:
    TModalSurroundings()
        : FActiveWindow(::GetActiveWindow()), FCursor(Screen().GetCursor()), FDisabled(nullptr) {
        Application().ModalStarted();
        Screen().SetCursor(crDefault);
    }
    ~TModalSurroundings() {
        Screen().SetCursor(FCursor);
        EnableOthers();
        if (FActiveWindow && ::IsWindow(FActiveWindow)) ::SetActiveWindow(FActiveWindow);
        try {
            Application().ModalFinished();
        } catch (...) {
            Application().HandleException(nullptr);
        }
    }
    TModalSurroundings(const TModalSurroundings&) = delete;
    TModalSurroundings& operator=(const TModalSurroundings&) = delete;
    /// To be called before the modal window goes, so that the activation finds a window of this program.
    void EnableOthers() { FDisabled.Enable(); }
    /// The user went to another window meanwhile: the activation stays there.
    void KeepActivation() { FActiveWindow = nullptr; }

private:
    HWND FActiveWindow;
    TCursor FCursor;
    TTaskWindowsDisabled FDisabled;
};

}  // namespace

int TCustomForm::ShowModal() {
    if (GetVisible() || !GetEnabled() || GetParent() || FFormState.Contains(fsModal))
        throw EInvalidOperation(L"Cannot make a visible window modal");
    SetCaptureControl(nullptr);
    Application().CancelHint();
    const TLifeGuard guard(*this);
    TModalResult result = mrCancel;
    {
        FFormState.Include(fsModal);
        TModalSurroundings surroundings;
        const auto end = [&] {
            surroundings.EnableOthers();
            if (!guard.IsAlive()) return;
            if (::GetActiveWindow() != WindowHandle()) surroundings.KeepActivation();
            Hide();
            if (guard.IsAlive()) FFormState.Exclude(fsModal);
        };
        try {
            FModalResult = mrNone;
            UpdateOwnerWindow();
            Show();
            while (guard.IsAlive() && FModalResult == mrNone) {
                Application().HandleMessage();
                if (!guard.IsAlive()) break;
                if (Application().GetTerminated())
                    FModalResult = mrCancel;
                else if (FModalResult != mrNone)
                    CloseModal();
            }
            if (guard.IsAlive()) result = FModalResult;
        } catch (...) {
            end();
            throw;
        }
        end();
    }
    if (guard.IsAlive()) Perform(CM_DEACTIVATE);
    return result;
}

/// A modal result was set: asks whether the form may close. A refusal takes the result back.
void TCustomForm::CloseModal() {
    const TLifeGuard guard(*this);
    try {
        TCloseAction action = CloseQuery() ? caHide : caNone;
        if (guard.IsAlive() && action != caNone) DoClose(action);
        if (!guard.IsAlive()) return;
        if (action == caNone) FModalResult = mrNone;
        if (action == caFree) Release();
    } catch (...) {
        if (guard.IsAlive()) FModalResult = mrNone;
        Application().HandleException(this);
    }
}

}  // namespace vcl
