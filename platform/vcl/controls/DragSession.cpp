#include "platform/vcl/controls/DragSession.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/controls/DragCapture.h"
#include "platform/vcl/controls/DragImageList.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {
namespace {

std::shared_ptr<TDragSession>& Slot() {
    static std::shared_ptr<TDragSession> session;
    return session;
}

/// The message that ends the press with which a drag begins; WM_NULL when no button is down.
UINT ReleaseOfPressedButton() {
    if (::GetKeyState(VK_LBUTTON) < 0) return WM_LBUTTONUP;
    return ::GetKeyState(VK_RBUTTON) < 0 ? WM_RBUTTONUP : WM_NULL;
}

/// The drag of a control that supplied no object: targets get the control as source.
class TPlainDrag : public TDragControlObjectEx {
public:
    using TDragControlObjectEx::TDragControlObjectEx;
    [[nodiscard]] TObject* GetSource() override { return GetControl(); }
};

}  // namespace

TDragSession::TDragSession(TControl& control, int threshold) : FControl(&control), FThreshold(threshold) {}

TDragSession::~TDragSession() = default;

std::shared_ptr<TDragSession> TDragSession::Current() {
    return Slot();
}

// --- beginning

void TDragSession::Begin(TControl& control, bool immediate, int threshold) {
    if (Slot()) return;
    TDragCapture::StopHolding();
    const std::shared_ptr<TDragSession> session(new TDragSession(control, threshold));
    Slot() = session;
    try {
        session->ReleasePress(immediate);
        session->ChooseObject();
        session->Start(immediate);
    } catch (...) {
        session->LetGo();
        session->FPhase = TPhase::Finishing;
        session->Finish(false);
        throw;
    }
}

void TDragSession::ReleasePress(bool immediate) {
    if (!FControl->IsControlState(csLButtonDown)) return;
    // What was a press becomes a drag; one that may still turn out to be a click is one now.
    if (immediate) FControl->CancelPress();
    const TPoint pos = FControl->ScreenToClient(Mouse().GetCursorPos());
    FControl->Perform(WM_LBUTTONUP, 0, TMessage::PackPoint(pos));
}

void TDragSession::ChooseObject() {
    if (FPhase != TPhase::Starting) return;
    TDragObject* object = nullptr;
    FControl->DoStartDrag(object);
    if (FPhase != TPhase::Starting) {
        if (object && object->GetAutoFree()) delete object;
        return;
    }
    FObject = object ? object : new TPlainDrag(FControl);
}

void TDragSession::Start(bool immediate) {
    if (FPhase != TPhase::Starting) return;
    FStart = Mouse().GetCursorPos();
    FPos = FStart;
    FFormerCursor = ::GetCursor();
    FRelease = ReleaseOfPressedButton();
    AppServices().CancelHint();
    FCapture = std::make_unique<TDragCapture>(*this);
    FPhase = TPhase::Waiting;
    const std::shared_ptr<TDragSession> self = shared_from_this();
    // From here on drag-over tells the controls where the pointer is.
    SetMouseControl(nullptr);
    if (immediate && Goes()) {
        Activate();
        Follow(FStart);
    }
}

void TDragSession::Activate() {
    FPhase = TPhase::Active;
    TDragImageList* images = FObject->GetDragImages();
    FHasImage = images && images->BeginDrag(FStart);
}

// --- following the pointer

void TDragSession::MouseMessage(const TMessage& message) {
    switch (message.Msg) {
        case WM_MOUSEMOVE:
            return Follow(Mouse().GetCursorPos());
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
            if (message.Msg == FRelease || FRelease == WM_NULL) End(true);
            return;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
            // The other button takes it back.
            if (FRelease != WM_NULL) End(false);
            return;
        case WM_CAPTURECHANGED:
            return End(false);
        default:
            return;
    }
}

bool TDragSession::KeyMessage(const MSG& message) {
    if (!Goes()) return false;
    const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (message.wParam == VK_ESCAPE && down) {
        End(false);
        return true;
    }
    // The drag object may show another cursor while they are held.
    if (message.wParam == VK_CONTROL || message.wParam == VK_SHIFT || message.wParam == VK_MENU) Repeat();
    return false;
}

void TDragSession::Repeat() {
    if (IsActive()) Follow(FPos);
}

void TDragSession::Follow(TPoint pos) {
    if (!Goes()) return;
    if (FPhase == TPhase::Waiting) {
        if (std::abs(pos.X - FStart.X) < FThreshold && std::abs(pos.Y - FStart.Y) < FThreshold) return;
        Activate();
    }
    const std::shared_ptr<TDragSession> self = shared_from_this();
    FPos = pos;
    HWND window = nullptr;
    TControl* target = FindTarget(pos, window);
    if (!Goes()) return;
    if (target == FTarget)
        FTargetWindow = window;
    else
        ChangeTarget(target, window);
    if (!Goes()) return;
    const bool accepted = FTarget && Ask(dmDragMove);
    if (!Goes()) return;
    ShowCursor(accepted);
    if (Goes()) MoveImage();
}

TControl* TDragSession::FindTarget(TPoint pos, HWND& window) {
    const TWinControl* control = FindVCLWindow(pos);
    window = control ? control->WindowHandle() : nullptr;
    if (!window) return nullptr;
    TDragRec rec{pos, nullptr, nullptr};
    const LRESULT found =
        ::SendMessageW(window, CM_DRAG, static_cast<WPARAM>(dmFindTarget), reinterpret_cast<LPARAM>(&rec));
    auto* target = reinterpret_cast<TControl*>(found);
    return target && !target->IsInState(csDesigning) ? target : nullptr;
}

void TDragSession::ChangeTarget(TControl* target, HWND window) {
    std::unique_ptr<TLifeGuard> alive;
    if (target) alive = std::make_unique<TLifeGuard>(*target);
    if (FTarget) Ask(dmDragLeave);
    if (!Goes()) return;
    if (alive && !alive->IsAlive()) target = nullptr;
    FTarget = target;
    FTargetWindow = window;
    FObject->FTarget = target;
    if (target) Ask(dmDragEnter);
}

bool TDragSession::Ask(TDragMessage message) {
    if (!FObject) return false;
    const std::shared_ptr<TDragSession> self = shared_from_this();
    PlaceTargetPos();
    TDragRec rec{FPos, FObject, FTarget};
    const LRESULT answer =
        ::SendMessageW(FTargetWindow, CM_DRAG, static_cast<WPARAM>(message), reinterpret_cast<LPARAM>(&rec));
    return answer != 0 && FTarget != nullptr;
}

void TDragSession::PlaceTargetPos() {
    FObject->FPos = FPos;
    if (!FTarget || !FTarget->HasParent()) {
        FObject->FTargetPos = FPos;
        return;
    }
    FObject->FTargetPos = FTarget->ScreenToClient(FPos);
    FObject->FDeltaX = static_cast<double>(FObject->FTargetPos.X) / std::max(1, FTarget->GetWidth());
    FObject->FDeltaY = static_cast<double>(FObject->FTargetPos.Y) / std::max(1, FTarget->GetHeight());
}

void TDragSession::ShowCursor(bool accepted) {
    const TCursor cursor = FObject->GetDragCursor(accepted, FPos.X, FPos.Y);
    const HCURSOR handle = AppServices().CursorHandle(cursor);
    if (::GetCursor() != handle) ::SetCursor(handle);
}

void TDragSession::MoveImage() {
    TDragImageList* images = FHasImage ? FObject->GetDragImages() : nullptr;
    if (!images) return;
    images->DragMove(FPos);
    const bool shows = FTarget && FTarget->ControlStyle.Contains(csDisplayDragImage);
    if (shows || FObject->AlwaysShowDragImages)
        FObject->ShowDragImage();
    else
        FObject->HideDragImage();
}

// --- the end

void TDragSession::End(bool drop) {
    if (FPhase == TPhase::Starting) {
        FPhase = TPhase::Over;
        Slot().reset();
        return;
    }
    if (!Goes()) return;
    const std::shared_ptr<TDragSession> self = shared_from_this();
    const bool active = FPhase == TPhase::Active;
    FPhase = TPhase::Finishing;
    if (FObject) FObject->FCancelling = !drop;
    if (!drop && FCapture) TDragCapture::HoldUntilRelease(std::move(FCapture));
    LetGo();
    const bool accepted = active && FTarget && Ask(dmDragLeave) && drop;
    if (FObject) {
        FObject->FCancelling = !accepted;
        FObject->FDropped = accepted;
    }
    if (accepted) Ask(dmDragDrop);
    Finish(accepted);
}

void TDragSession::LetGo() {
    if (FObject && std::exchange(FHasImage, false)) {
        if (TDragImageList* images = FObject->GetDragImages()) images->EndDrag();
    }
    FCapture.reset();
    if (FFormerCursor) ::SetCursor(FFormerCursor);
}

void TDragSession::Finish(bool accepted) {
    /// Leaves nothing behind, whatever the handlers do.
    struct TCleanUp {
        explicit TCleanUp(TDragSession& session) : Session(session) {}
        TCleanUp(const TCleanUp&) = delete;
        TCleanUp& operator=(const TCleanUp&) = delete;
        ~TCleanUp() {
            TDragObject* object = std::exchange(Session.FObject, nullptr);
            if (object && object->GetAutoFree()) delete object;
            Session.FPhase = TPhase::Over;
            if (Slot().get() == &Session) Slot().reset();
        }
        TDragSession& Session;
    };
    const std::shared_ptr<TDragSession> self = shared_from_this();
    const TCleanUp cleanUp(*this);
    if (!FObject) return;
    TControl* target = accepted ? FTarget : nullptr;
    const TPoint pos = target ? FObject->FTargetPos : FPos;
    FObject->Finished(target, pos.X, pos.Y, accepted);
}

void TDragSession::ForgetControl(const TControl& control) {
    if (FTarget == &control) {
        FTarget = nullptr;
        if (FObject) FObject->FTarget = nullptr;
    }
    if (FControl != &control) return;
    FControl = nullptr;
    End(false);
}

void TDragSession::ForgetObject(const TDragObject& object) {
    if (FObject != &object) return;
    FObject = nullptr;
    End(false);
}

// --- what the rest of the framework asks and reports

void ForgetDragObject(const TDragObject& object) {
    if (const std::shared_ptr<TDragSession> session = Slot()) session->ForgetObject(object);
}

void ForgetDraggedControl(const TControl& control) {
    if (const std::shared_ptr<TDragSession> session = Slot()) session->ForgetControl(control);
}

bool OfferKeyToDrag(const MSG& message) {
    const std::shared_ptr<TDragSession> session = Slot();
    return session && session->KeyMessage(message);
}

TControl* GetDragControl() {
    const std::shared_ptr<TDragSession> session = Slot();
    return session ? session->GetControl() : nullptr;
}

TDragObject* GetDragObject() {
    const std::shared_ptr<TDragSession> session = Slot();
    return session ? session->GetObject() : nullptr;
}

void CancelDrag() {
    if (const std::shared_ptr<TDragSession> session = Slot()) session->End(false);
}

void RepeatDragOver() {
    if (const std::shared_ptr<TDragSession> session = Slot()) session->Repeat();
}

}  // namespace vcl
