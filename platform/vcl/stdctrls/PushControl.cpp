#include "platform/vcl/stdctrls/PushControl.h"

#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/stdctrls/CheckedActionLink.h"

namespace vcl {
namespace {

bool IsModified(TShiftState shift) {
    return !(shift * TShiftState{ssShift, ssAlt, ssCtrl}).IsEmpty();
}

}  // namespace

class TPushControl::TActionLink final : public TCheckedActionLink {
public:
    explicit TActionLink(TPushControl& client) : TCheckedActionLink(client), FPushControl(client) {}

protected:
    [[nodiscard]] bool IsClientChecked() const override { return FPushControl.IsChecked(); }
    void CheckClient(bool value) override {
        if (FPushControl.CanBeChecked()) FPushControl.Check(value);
    }

private:
    TPushControl& FPushControl;
};

const TMetaClass& TPushControl::StaticClass() {
    static const TMetaClass meta = DefineClass<TPushControl>(L"TPushControl", TCustomControl::StaticClass());
    return meta;
}

TPushControl::TPushControl(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle = {csCaptureMouse, csClickEvents, csSetCaption, csOpaque, csDoubleClicks};
    SetTabStop(true);
}

void TPushControl::Loaded() {
    TCustomControl::Loaded();
    UpdateState();
}

void TPushControl::CreateParams(TCreateParams& params) {
    TCustomControl::CreateParams(params);
    // Pictures are copied at every change of state, and fetching a device context for it would cost more than
    // the copy.
    params.WindowClass.style |= CS_OWNDC;
}

void TPushControl::DestroyWnd() {
    FFaces.Release();
    FWindowDC.reset();
    FHasFocus = FMousePress = FSpacePress = false;
    FState = StateNow();
    TCustomControl::DestroyWnd();
}

// --- state

TPushState TPushControl::StateNow() const {
    if (!GetEnabled()) return pshDisabled;
    if (FMousePress ? FPressIsOn : FSpacePress) return pshPressed;
    const bool hot = (FMouseOn && !FMousePress) || (FHasFocus && IsHotWhenFocused());
    if (FDown) return hot ? pshDownHot : pshDown;
    return hot ? pshHot : pshNormal;
}

bool TPushControl::UpdateState() {
    const TPushState now = StateNow();
    if (now == FState || IsInState(csDestroying)) return true;
    FState = now;
    ShowFace();
    if (IsInState(csLoading)) return true;
    const TLifeGuard guard(*this);
    StateChanged();
    return guard.IsAlive();
}

void TPushControl::SetDown(bool value) {
    if (FDown == value) return;
    FDown = value;
    UpdateState();
}

void TPushControl::ActionChange(TObject* sender, bool checkDefaults) {
    const TLifeGuard guard(*this);
    TCustomControl::ActionChange(sender, checkDefaults);
    if (!guard.IsAlive()) return;
    const auto* action = dynamic_cast<const TBasicAction*>(sender);
    const TActionValues* values = action ? action->Values() : nullptr;
    if (values && CanBeChecked() && (!checkDefaults || !IsChecked())) Check(values->Checked);
}

bool TPushControl::IsCheckedStored() const {
    const auto* link = dynamic_cast<const TActionLink*>(GetActionLink());
    return !link || !link->IsCheckedLinked();
}

std::unique_ptr<TBasicActionLink> TPushControl::CreateActionLink() {
    return std::make_unique<TActionLink>(*this);
}

void TPushControl::Click() {
    const TLifeGuard guard(*this);
    if (Toggles()) SetDown(!FDown);
    if (!guard.IsAlive()) return;
    if (TParentForm* form = GetParentForm(this)) form->SetModalResult(FModalResult);
    TCustomControl::Click();
}

// --- painting

int TPushControl::LookNow() const {
    return static_cast<int>(FState) * 2 + (IsFocusShown() ? 1 : 0);
}

void TPushControl::EraseFace(HDC dc) {
    if (TWinControl* parent = GetParentBackground() ? GetParent() : nullptr) {
        const TSaveDC state(dc);
        ::OffsetViewportOrgEx(dc, -GetLeft(), -GetTop(), nullptr);
        parent->Perform(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc));
        parent->Perform(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), LPARAM{PRF_CLIENT});
        return;
    }
    const TRect client = GetClientRect();
    ::FillRect(dc, client.AsRect(), GetBrush().GetHandle());
}

void TPushControl::PaintWindow(HDC dc) {
    if (FFaces.IsPainting()) {
        Invalidate();
        return;
    }
    const TRect client = GetClientRect();
    FFaces.Show(dc, {client.Right, client.Bottom}, LookNow(), [this](HDC face) {
        EraseFace(face);
        TCustomControl::PaintWindow(face);
    });
}

void TPushControl::WmPaint(TMessage& message) {
    const TRect client = GetClientRect();
    const bool isAllFace =
        client.Width() == GetWidth() && client.Height() == GetHeight() && GetControlCount() == 0;
    if (message.WParam != 0 || !isAllFace || GetDoubleBuffered()) return TCustomControl::Dispatch(message);
    // A whole face covers everything there is to paint: neither the area that needs it matters nor a frame,
    // and asking the system for them would take most of the time.
    ::ValidateRect(WindowHandle(), nullptr);
    PaintWindow(WindowDC());
}

/// Fetched when it is needed: shape and place of a new window may change until then.
HDC TPushControl::WindowDC() {
    if (!FWindowDC) FWindowDC.emplace(WindowHandle());
    return FWindowDC->Get();
}

void TPushControl::ShowFace() {
    // A window that is being destroyed loses the focus, and with it the look of the focus, for the last time.
    const bool hasWindow = HandleAllocated() && !IsControlState(csDestroyingHandle);
    if (hasWindow && GetShowing()) PaintWindow(WindowDC());
}

void TPushControl::Repaint() {
    FFaces.Clear();
    TCustomControl::Repaint();
}

// --- mouse

void TPushControl::WmLButtonDown(TMessage& message) {
    if (!IsInState(csDesigning)) {
        const TLifeGuard guard(*this);
        if (!FHasFocus && CanFocus()) SetFocus();
        if (!guard.IsAlive() || !GetEnabled()) return;
        FMousePress = FPressIsOn = true;
        if (!UpdateState()) return;
    }
    TCustomControl::Dispatch(message);
}

void TPushControl::WmMouseMove(TMessage& message) {
    if (FMousePress) {
        // The release went elsewhere when a handler of the press ran a message loop of its own.
        const bool isHeld = (message.Keys() & MK_LBUTTON) != 0;
        FPressIsOn = GetClientRect().Contains(message.Pos());
        if (!(isHeld ? UpdateState() : EndPress())) return;
    }
    TCustomControl::Dispatch(message);
}

void TPushControl::WmLButtonUp(TMessage& message) {
    if (FMousePress) {
        FMousePress = false;
        FMouseOn = GetClientRect().Contains(message.Pos());
        if (!UpdateState()) return;
    }
    TCustomControl::Dispatch(message);
}

bool TPushControl::EndPress() {
    if (!FMousePress) return true;
    FMousePress = false;
    CancelPress();
    return UpdateState();
}

void TPushControl::MouseEnter() {
    FMouseOn = true;
    if (UpdateState()) TCustomControl::MouseEnter();
}

void TPushControl::MouseLeave() {
    FMouseOn = false;
    if (UpdateState()) TCustomControl::MouseLeave();
}

void TPushControl::CmEnabledChanged(TMessage& message) {
    const TLifeGuard guard(*this);
    TCustomControl::Dispatch(message);
    if (!guard.IsAlive()) return;
    const bool enabled = GetEnabled();
    FMouseOn = enabled && GetMouseInClient();
    if (!enabled) {
        FSpacePress = false;
        if (FMousePress) SetMouseCapture(false);
        if (!guard.IsAlive() || !EndPress()) return;
    }
    UpdateState();
}

// --- keyboard

bool TPushControl::FocusChanged(bool focused) {
    FHasFocus = focused;
    if (!focused) FSpacePress = false;
    const TPushState before = FState;
    if (!UpdateState()) return false;
    if (FState == before && ShowsFocus()) ShowFace();
    return true;
}

void TPushControl::KeyDown(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TCustomControl::KeyDown(key, shift);
    if (!guard.IsAlive() || key != VK_SPACE || !WantsSpace() || IsModified(shift)) return;
    FSpacePress = true;
    UpdateState();
}

void TPushControl::KeyUp(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TCustomControl::KeyUp(key, shift);
    if (!guard.IsAlive() || key != VK_SPACE || !FSpacePress) return;
    FSpacePress = false;
    if (UpdateState()) Click();
}

bool TPushControl::TakesDialogKey(WORD key) {
    if (key == VK_ESCAPE) return FCancel;
    if (key != VK_RETURN || !FDefault) return false;
    // Enter belongs to a push button that has the focus, whatever its class.
    const TParentForm* form = GetParentForm(this);
    TWinControl* active = form ? form->GetActiveControl() : nullptr;
    return !active || !(active->Perform(WM_GETDLGCODE) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON));
}

void TPushControl::CmChildKey(TMessage& message) {
    const bool isMine = message.LParam == reinterpret_cast<LPARAM>(static_cast<TWinControl*>(this));
    if (isMine && message.CharCode() == VK_RETURN && !IsModified(KeyboardShiftState()) && CanFocus()) {
        message.Result = 1;
        Click();
    } else {
        TCustomControl::Dispatch(message);
    }
}

void TPushControl::CmDialogKey(TMessage& message) {
    if (TakesDialogKey(message.CharCode()) && !IsModified(KeyDataToShiftState(message.KeyData())) &&
        CanFocus()) {
        message.Result = 1;
        Click();
    } else {
        TCustomControl::Dispatch(message);
    }
}

void TPushControl::CmDialogChar(TMessage& message) {
    if (IsAccel(static_cast<wchar_t>(message.CharCode()), GetCaption()) && CanFocus()) {
        message.Result = 1;
        Click();
    } else {
        TCustomControl::Dispatch(message);
    }
}

// --- messages

void TPushControl::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_LBUTTONDBLCLK:
            if (!WantsDoubleClicks()) message.Msg = WM_LBUTTONDOWN;
            [[fallthrough]];
        case WM_LBUTTONDOWN:
            return WmLButtonDown(message);
        case WM_LBUTTONUP:
            return WmLButtonUp(message);
        case WM_MOUSEMOVE:
            return WmMouseMove(message);
        case WM_CAPTURECHANGED:
        case WM_CANCELMODE:
            if (!EndPress()) return;
            break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            if (!FocusChanged(message.Msg == WM_SETFOCUS)) return;
            break;
        case WM_PAINT:
            return WmPaint(message);
        case WM_ERASEBKGND:
            message.Result = 1;
            return;
        case WM_GETDLGCODE:
            TCustomControl::Dispatch(message);
            message.Result |= DLGC_BUTTON | (FDefault ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
            return;
        case CM_INVALIDATE:
            FFaces.Clear();
            break;
        case CM_ENABLEDCHANGED:
            return CmEnabledChanged(message);
        case CM_CHILDKEY:
            return CmChildKey(message);
        case CM_DIALOGKEY:
            return CmDialogKey(message);
        case CM_DIALOGCHAR:
            return CmDialogChar(message);
        default:
            break;
    }
    TCustomControl::Dispatch(message);
}

}  // namespace vcl
