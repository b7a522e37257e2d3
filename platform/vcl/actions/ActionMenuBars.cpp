#include "platform/vcl/actions/ActionMenuBars.h"

#include <algorithm>

#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/actions/ActionMenuItems.h"
#include "platform/vcl/actions/ActionMenuLoop.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/ScopedValue.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/menus/Hotkeys.h"

namespace vcl {

std::span<const wchar_t* const> TEnumNames<TActionMenuStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"amsXPStyle", L"amsThemed"};
    return names;
}

const TMetaClass& TActionMainMenuBar::StaticClass() {
    using C = TActionMainMenuBar;
    static const TMetaClass meta = DefineClass<C>(L"TActionMainMenuBar", TCustomActionBar::StaticClass())
                                       .Property(L"ActionManager", &C::GetActionManager, &C::SetActionManager)
                                       .Property(L"Align", &C::GetAlign, &C::SetAlign, alTop)
                                       .With(AnchorsRow)
                                       .With(ParentColorRows)
                                       .With(FontRows)
                                       .Property(L"HorzMargin", &C::GetHorzMargin, &C::SetHorzMargin, 0)
                                       .Property(L"Spacing", &C::GetSpacing, &C::SetSpacing, 0)
                                       .Property(L"Style", &C::GetStyle, &C::SetStyle, amsXPStyle)
                                       .Property(L"VertMargin", &C::GetVertMargin, &C::SetVertMargin, 0)
                                       .With(StateRows)
                                       .Event(L"OnExitMenuLoop", &C::OnExitMenuLoop)
                                       .Event(L"OnGetControlClass", &C::OnGetControlClass)
                                       .Event(L"OnPopup", &C::OnPopup);
    return meta;
}

TActionMainMenuBar::TActionMainMenuBar(TComponent* AOwner)
    : TCustomActionBar(AOwner), FLoop(std::make_unique<TActionMenuLoop>(*this)) {
    SetBounds(0, 0, 150, 24);
    SetAlign(alTop);
}

TActionMainMenuBar::~TActionMainMenuBar() {
    Destroying();
    FLoop.reset();
}

void TActionMainMenuBar::SetStyle(TActionMenuStyle value) {
    if (value == FStyle) return;
    FStyle = value;
    RecreateControls();
}

const TMetaClass& TActionMainMenuBar::DefaultControlClass(const TActionClientItem&) const {
    return FStyle == amsThemed ? TThemedMenuButton::StaticClass() : TXPStyleMenuButton::StaticClass();
}

bool TActionMainMenuBar::GetInMenuLoop() const {
    return FLoop && FLoop->IsActive();
}

std::vector<TActionPopupMenu*> TActionMainMenuBar::OpenMenus() const {
    return FLoop ? FLoop->OpenMenus() : std::vector<TActionPopupMenu*>();
}

void TActionMainMenuBar::EnterMenuLoop(int index, bool open) {
    const auto& controls = ActionControls();
    if (index < 0 || index >= static_cast<int>(controls.size()) || !CanBeWorked()) return;
    FLoop->Enter(controls[static_cast<std::size_t>(index)], open, true);
}

void TActionMainMenuBar::CloseMenu() {
    if (FLoop) FLoop->Leave(nullptr);
}

void TActionMainMenuBar::ControlsGoing() {
    if (FLoop) FLoop->ControlsGoing(*this);
}

void TActionMainMenuBar::ClientGoing() {
    CloseMenu();
    TCustomActionBar::ClientGoing();
}

bool TActionMainMenuBar::CanBeWorked() const {
    return CanFocus() && GetShowing() && !IsInState(csDesigning);
}

// --- layout and painting

void TActionMainMenuBar::ArrangeControls() {
    // Without a window there is nothing to measure texts on; the new window's first size comes here again.
    if (FArranging || IsInState(csLoading) || !HandleAllocated()) return;
    const TScopedValue arranging(FArranging, true);
    const int width = GetClientWidth();
    int x = GetHorzMargin();
    int y = GetVertMargin();
    int rowHeight = 0;
    for (TCustomActionControl* control : ActionControls()) {
        control->CalcBounds();
        if (x > GetHorzMargin() && x + control->GetWidth() > width - GetHorzMargin()) {
            x = GetHorzMargin();
            y += rowHeight;
            rowHeight = 0;
        }
        control->SetBounds(x, y, control->GetWidth(), control->GetHeight());
        x += control->GetWidth() + GetSpacing();
        rowHeight = std::max(rowHeight, control->GetHeight());
    }
    if (rowHeight > 0) SetHeight(y + rowHeight + GetVertMargin());
}

void TActionMainMenuBar::Resize() {
    TCustomActionBar::Resize();
    ArrangeControls();
}

void TActionMainMenuBar::Paint() {
    GetCanvas().GetBrush().SetColor(FStyle == amsThemed ? clMenuBar : GetColor());
    GetCanvas().FillRect(GetClientRect());
}

// --- mouse and keyboard

void TActionMainMenuBar::ShowHot(TCustomActionControl* hot) {
    for (TCustomActionControl* control : ActionControls())
        control->SetSelected(control == hot && !control->IsSeparator());
}

void TActionMainMenuBar::WndProc(TMessage& message) {
    // The controls have no mouse of their own.
    if (!IsInState(csDesigning) && !GetInMenuLoop()) {
        if (message.Msg == WM_LBUTTONDOWN || message.Msg == WM_LBUTTONDBLCLK) {
            if (TCustomActionControl* control = ControlAt(message.Pos())) {
                FLoop->Enter(control, false, false);
                MSG press{WindowHandle(), WM_LBUTTONDOWN, message.WParam, message.LParam, 0, {}};
                press.pt = ClientToScreen(message.Pos());
                FLoop->FilterMessage(press);
                message.Result = 0;
                return;
            }
        }
        if (message.Msg == WM_MOUSEMOVE) ShowHot(ControlAt(message.Pos()));
        if (message.Msg == CM_MOUSELEAVE && message.LParam == 0) ShowHot(nullptr);
    }
    TCustomActionBar::WndProc(message);
}

void TActionMainMenuBar::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_CAPTURECHANGED:
        case WM_CANCELMODE: {
            const TLifeGuard guard(*this);
            TCustomActionBar::Dispatch(message);
            if (guard.IsAlive()) CloseMenu();
            return;
        }
        case WM_TIMER:
            if (!FLoop || !FLoop->HandleTimer(message.WParam)) TCustomActionBar::Dispatch(message);
            return;
        case CM_DIALOGCHAR:
            return CmDialogChar(message);
        case CM_APPSYSCOMMAND:
            return CmAppSysCommand(message);
        default:
            TCustomActionBar::Dispatch(message);
    }
}

void TActionMainMenuBar::CmDialogChar(TMessage& message) {
    const bool withAlt = KeyDataToShiftState(message.KeyData()).Contains(ssAlt);
    const auto& controls = ActionControls();
    for (std::size_t i = 0; withAlt && CanBeWorked() && i < controls.size(); ++i) {
        if (!IsAccel(static_cast<wchar_t>(message.CharCode()), controls[i]->ItemCaption())) continue;
        if (!controls[i]->IsItemEnabled()) continue;
        message.Result = 1;
        TCustomActionControl* control = controls[i];
        if (control->HasSubmenu()) return FLoop->Enter(control, true, true);
        FLoop->Enter(control, false, true);
        return FLoop->Leave(control);
    }
    TCustomActionBar::Dispatch(message);
}

void TActionMainMenuBar::CmAppSysCommand(TMessage& message) {
    // Alt and F10 alone; Alt with a letter came as a character before.
    if (message.LParam != 0 || ActionControls().empty() || !CanBeWorked())
        return TCustomActionBar::Dispatch(message);
    message.Result = 1;
    EnterMenuLoop(0, false);
}

}  // namespace vcl
