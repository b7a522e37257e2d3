#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/controls/MessageFilter.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/ApplicationHints.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/Screen.h"

// The message loop, idle time, errors.

namespace vcl {

void TApplication::Run() {
    FTerminated = false;
    if (!FMainForm) return;
    ++FRunLevel;
    try {
        if (FShowMainForm) FMainForm->SetVisible(true);
    } catch (...) {
        HandleException(this);
    }
    while (!FTerminated)
        HandleMessage();
    --FRunLevel;
    DestroyComponents();
    FTerminated = false;
}

void TApplication::Terminate() {
    ::PostQuitMessage(0);
}

bool TApplication::ProcessMessage() {
    MSG message;
    if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
    HandleMessage(message);
    return true;
}

void TApplication::HandleMessage(MSG& message) {
    if (message.message == WM_QUIT) {
        FTerminated = true;
        return;
    }
    try {
        if (OfferToMessageFilters(message)) return;
        if (RaiseMessage(message)) return;
    } catch (...) {
        HandleException(this);
    }
    FHints->QueueMessage(message);
    if (OfferKeyMessage(message)) return;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

void TApplication::HandleMessage() {
    if (!ProcessMessage()) Idle();
}

bool TApplication::ProcessMessages() {
    bool any = false;
    while (ProcessMessage()) {
        any = true;
        // Loops further out must see the end, too.
        if (FTerminated) break;
    }
    return any;
}

void TApplication::Idle() {
    if (DoIdle()) ::WaitMessage();
}

bool TApplication::DoIdle() {
    bool done = true;
    try {
        FHints->Idle();
        RaiseIdle(done);
        const std::vector<TCustomForm*> forms = Screen().Forms();
        for (TCustomForm* form : forms) {
            if (Screen().HasForm(form) && form->GetShowing() && form->GetEnabled())
                form->Perform(CM_UPDATEACTIONS);
        }
    } catch (...) {
        HandleException(this);
    }
    return done;
}

// --- errors

void TApplication::HandleException(TObject* sender) {
    HandleException(sender, std::current_exception());
}

void TApplication::HandleException(TObject* sender, const std::exception_ptr& error) {
    // The mouse must not stay with a control that never saw the end of its press.
    if (const HWND holder = ::GetCapture()) ::SendMessageW(holder, WM_CANCELMODE, 0, 0);
    try {
        std::rethrow_exception(error);
    } catch (const EAbort&) {
    } catch (const std::exception& e) {
        if (!RaiseException(sender, e)) ShowException(e);
    } catch (...) {
        const Exception unknown(L"Unknown error");
        if (!RaiseException(sender, unknown)) ShowException(unknown);
    }
}

void TApplication::ShowException(const std::exception& error) {
    const auto* own = dynamic_cast<const Exception*>(&error);
    String text = own ? own->Message() : FromUtf8(error.what());
    if (!text.empty() && text.back() != L'.') text += L'.';
    MessageBox(text, FTitle, MB_OK | MB_ICONSTOP);
}

// --- short cuts and actions

bool TApplication::IsShortCut(TMessage& message) {
    if (RaiseShortCut(message)) return true;
    return FMainForm && FMainForm->HandleAllocated() && FMainForm->GetEnabled() &&
           ::IsWindowEnabled(FMainForm->WindowHandle()) && FMainForm->IsShortCut(message);
}

}  // namespace vcl
