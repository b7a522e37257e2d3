#include "platform/vcl/actions/ActionMenuLoop.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/actions/ActionControl.h"
#include "platform/vcl/actions/ActionMenuBars.h"
#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/HintWindow.h"

namespace vcl {

TActionMenuLoop::TActionMenuLoop(TActionMainMenuBar& bar) : FBar(bar) {}

TActionMenuLoop::~TActionMenuLoop() = default;

std::vector<TActionPopupMenu*> TActionMenuLoop::OpenMenus() const {
    std::vector<TActionPopupMenu*> menus;
    for (const auto& menu : FMenus)
        menus.push_back(menu.get());
    return menus;
}

TCustomActionBar& TActionMenuLoop::Deepest() const {
    if (FMenus.empty()) return FBar;
    return *FMenus.back();
}

TCustomActionControl* TActionMenuLoop::SelectedIn(const TCustomActionBar& bar) {
    for (TCustomActionControl* control : bar.ActionControls())
        if (control->GetSelected()) return control;
    return nullptr;
}

void TActionMenuLoop::Select(TCustomActionBar& bar, TCustomActionControl* control) {
    for (TCustomActionControl* other : bar.ActionControls())
        other->SetSelected(other == control);
    if (auto* menu = dynamic_cast<TActionPopupMenu*>(&bar); menu && control) menu->Reveal(*control);
    const TActionClientItem* item = control ? control->GetActionClient() : nullptr;
    AppServices().SetHint(item ? GetLongHint(item->GetHint()) : String());
}

// --- entering and leaving

void TActionMenuLoop::Enter(TCustomActionControl* control, bool open, bool byKeyboard) {
    if (!IsActive()) {
        AppServices().CancelHint();
        Install();
        ::SetCapture(FBar.GetHandle());
        FLastMouse = {-1, -1};
        POINT pointer{};
        if (byKeyboard && ::GetCursorPos(&pointer)) FLastMouse = pointer;
    }
    Select(FBar, control);
    if (open && control) Open(FBar, *control, byKeyboard);
}

void TActionMenuLoop::CloseFrom(std::size_t level) {
    while (FMenus.size() > level) {
        // Out of the list first: its end must not be taken for a change of an open menu.
        const std::unique_ptr<TActionPopupMenu> menu = std::move(FMenus.back());
        FMenus.pop_back();
    }
}

void TActionMenuLoop::Leave(TCustomActionControl* chosen) {
    if (!IsActive()) return;
    const TLifeGuard bar(FBar);
    FUnsettled = false;
    TBasicAction* action = nullptr;
    if (chosen && chosen->GetActionClient()) action = chosen->GetActionClient()->GetAction();
    Remove();
    CloseFrom(0);
    Select(FBar, nullptr);
    if (::GetCapture() == FBar.WindowHandle()) ::ReleaseCapture();
    FBar.Update();
    if (!bar.IsAlive()) return;
    const bool isCancelled = chosen == nullptr;
    try {
        if (action) Execute(*action);
    } catch (...) {
        // The loop has ended all the same.
        if (bar.IsAlive()) FBar.OnExitMenuLoop(&FBar, isCancelled);
        throw;
    }
    if (bar.IsAlive()) FBar.OnExitMenuLoop(&FBar, isCancelled);
}

void TActionMenuLoop::Execute(TBasicAction& action) {
    const TLifeGuard guard(action);
    const auto end = [&] {
        if (guard.IsAlive()) action.SetActionComponent(nullptr);
    };
    action.SetActionComponent(&FBar);
    try {
        action.Execute();
    } catch (...) {
        end();
        throw;
    }
    end();
}

void TActionMenuLoop::ControlsGoing(const TCustomActionBar& bar) {
    if (&bar == &FBar) {
        CloseFrom(0);
        return;
    }
    for (std::size_t i = 0; i < FMenus.size(); ++i)
        if (FMenus[i].get() == &bar) return CloseFrom(i + 1);
}

void TActionMenuLoop::MenuGone(const TActionPopupMenu& menu) {
    for (std::size_t i = 0; i < FMenus.size(); ++i)
        if (FMenus[i].get() == &menu) return CloseFrom(i);
}

bool TActionMenuLoop::Open(TCustomActionBar& bar, TCustomActionControl& control, bool selectFirst) {
    TActionClientItem* client = control.GetActionClient();
    const auto level = static_cast<std::size_t>(
        std::find_if(FMenus.begin(), FMenus.end(), [&](const auto& menu) { return menu.get() == &bar; }) -
        FMenus.begin());
    CloseFrom(&bar == &FBar ? 0 : level + 1);
    Select(bar, &control);
    if (!client || !client->HasItems() || !client->IsEnabled()) return false;
    const TLifeGuard barGuard(FBar);
    const TLifeGuard clientGuard(*client);
    FBar.OnPopup(&FBar, &control);
    if (!barGuard.IsAlive() || !IsActive()) return false;
    if (!clientGuard.IsAlive() || !client->GetControl() || !client->HasItems()) return false;
    for (int i = 0; clientGuard.IsAlive() && i < client->GetItems().GetCount(); ++i)
        if (TBasicAction* action = client->GetItems().GetItem(i)->GetAction()) action->Update();
    if (!barGuard.IsAlive() || !IsActive() || !clientGuard.IsAlive() || !client->GetControl()) return false;
    TCustomActionControl& owner = *client->GetControl();
    auto menu = std::make_unique<TActionPopupMenu>(FBar, *client);
    if (menu->ActionControls().empty()) return false;
    const TPoint corner = owner.ClientToScreen({0, 0});
    menu->ShowBeside(TRect::OfSize(corner.X, corner.Y, owner.GetWidth(), owner.GetHeight()), &bar == &FBar);
    FMenus.push_back(std::move(menu));
    if (selectFirst) MoveInMenu(1);
    return true;
}

void TActionMenuLoop::Choose(TCustomActionControl& control) {
    if (!control.IsItemEnabled() || control.IsSeparator()) return;
    Leave(&control);
}

// --- mouse

TCustomActionControl* TActionMenuLoop::ControlAt(TPoint screen, TCustomActionBar*& bar) const {
    bar = nullptr;
    const auto look = [&](TCustomActionBar& at) -> bool {
        if (!::IsWindowVisible(at.WindowHandle())) return false;
        const TPoint client = at.ScreenToClient(screen);
        if (!at.GetClientRect().Contains(client)) return false;
        bar = &at;
        return true;
    };
    for (auto menu = FMenus.rbegin(); menu != FMenus.rend(); ++menu)
        if (look(**menu)) return bar->ControlAt(bar->ScreenToClient(screen));
    return look(FBar) ? FBar.ControlAt(FBar.ScreenToClient(screen)) : nullptr;
}

void TActionMenuLoop::MouseMove(TPoint screen) {
    // A menu that opens under a pointer at rest must not take the highlight from the keyboard.
    if (screen == FLastMouse) return;
    FLastMouse = screen;
    TCustomActionBar* bar = nullptr;
    TCustomActionControl* control = ControlAt(screen, bar);
    if (!bar) {
        if (!FMenus.empty()) Select(*FMenus.back(), nullptr);
        return;
    }
    if (bar != &FBar) {
        const auto menu = std::find_if(FMenus.begin(), FMenus.end(),
                                       [&](const auto& candidate) { return candidate.get() == bar; });
        if (control && !control->IsSeparator())
            MoveInto(static_cast<std::size_t>(menu - FMenus.begin()), *control);
        return;
    }
    if (!control || control == SelectedIn(*bar)) return;
    if (FMenus.empty())
        Select(FBar, control);
    else if (!Open(FBar, *control, false) && IsActive())
        Select(FBar, control);
}

void TActionMenuLoop::MoveInto(std::size_t level, TCustomActionControl& control) {
    // On its way into a submenu the mouse may have crossed other items of the menus above.
    for (std::size_t above = 0; above < level; ++above)
        if (TCustomActionControl* parent = FMenus[above + 1]->GetParentControl())
            if (parent != SelectedIn(*FMenus[above])) Select(*FMenus[above], parent);
    if (&control == SelectedIn(*FMenus[level])) {
        if (FUnsettledLevel != level) FUnsettled = false;
        return;
    }
    if (level + 1 < FMenus.size()) Select(*FMenus[level + 1], nullptr);
    Select(*FMenus[level], &control);
    SettleLater(level);
}

void TActionMenuLoop::SettleLater(std::size_t level) {
    FUnsettled = true;
    FUnsettledLevel = level;
    UINT delay = 400;
    ::SystemParametersInfoW(SPI_GETMENUSHOWDELAY, 0, &delay, 0);
    if (delay == 0 || !::SetTimer(FBar.GetHandle(), reinterpret_cast<UINT_PTR>(this), delay, nullptr))
        Settle();
}

bool TActionMenuLoop::HandleTimer(UINT_PTR id) {
    if (id != reinterpret_cast<UINT_PTR>(this)) return false;
    ::KillTimer(FBar.WindowHandle(), id);
    Settle();
    return true;
}

void TActionMenuLoop::Settle() {
    if (!FUnsettled) return;
    CloseUnsettled();
    if (!IsActive() || FUnsettledLevel + 1 != FMenus.size()) return;
    TActionPopupMenu& menu = *FMenus[FUnsettledLevel];
    TCustomActionControl* control = SelectedIn(menu);
    if (control && control->HasSubmenu()) Open(menu, *control, false);
}

void TActionMenuLoop::CloseUnsettled() {
    const std::size_t below = FUnsettledLevel + 1;
    if (!std::exchange(FUnsettled, false) || below >= FMenus.size()) return;
    const TCustomActionControl* selected = SelectedIn(*FMenus[FUnsettledLevel]);
    if (!selected || FMenus[below]->GetParentControl() != selected) CloseFrom(below);
}

bool TActionMenuLoop::MouseDown(MSG& message, TPoint screen) {
    const TLifeGuard guard(FBar);
    Settle();
    if (!guard.IsAlive() || !IsActive()) return true;
    TCustomActionBar* bar = nullptr;
    TCustomActionControl* control = ControlAt(screen, bar);
    FPressOnOpen = false;
    if (bar == &FBar && control) {
        if (!FMenus.empty() && FMenus.front()->GetParentControl() == control) {
            Leave(nullptr);
        } else if (Open(FBar, *control, false)) {
            FPressOnOpen = true;
        }
        return true;
    }
    if (bar && bar != &FBar) return true;
    Leave(nullptr);
    // What lies there gets the press.
    const HWND window = ::WindowFromPoint(screen);
    POINT client = screen;
    RECT inside{};
    if (!window || ::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId()) return true;
    ::ScreenToClient(window, &client);
    ::GetClientRect(window, &inside);
    if (!::PtInRect(&inside, client) || !::IsWindowEnabled(window)) return true;
    message.hwnd = window;
    message.lParam = MAKELPARAM(client.x, client.y);
    return false;
}

void TActionMenuLoop::MouseUp(TPoint screen) {
    TCustomActionBar* bar = nullptr;
    TCustomActionControl* control = ControlAt(screen, bar);
    if (!control || FPressOnOpen) {
        FPressOnOpen = false;
        if (bar == &FBar || !control) return;
    }
    if (!control->HasSubmenu()) Choose(*control);
}

// --- keyboard

TCustomActionControl* TActionMenuLoop::Beside(const TCustomActionBar& bar, int step) {
    const auto& controls = bar.ActionControls();
    const auto count = static_cast<int>(controls.size());
    const auto present = std::find(controls.begin(), controls.end(), SelectedIn(bar));
    int index =
        present == controls.end() ? (step > 0 ? -1 : count) : static_cast<int>(present - controls.begin());
    for (int tries = 0; tries < count; ++tries) {
        index = (index + step + count) % count;
        TCustomActionControl* next = controls[static_cast<std::size_t>(index)];
        if (!next->IsSeparator()) return next;
    }
    return nullptr;
}

void TActionMenuLoop::MoveAlongBar(int step, bool open) {
    TCustomActionControl* next = Beside(FBar, step);
    if (!next || (open && Open(FBar, *next, true)) || !IsActive()) return;
    CloseFrom(0);
    Select(FBar, next);
}

void TActionMenuLoop::MoveInMenu(int step) {
    TCustomActionBar& menu = Deepest();
    if (TCustomActionControl* next = Beside(menu, step)) Select(menu, next);
}

void TActionMenuLoop::SelectEdge(bool last) {
    Select(Deepest(), nullptr);
    MoveInMenu(last ? -1 : 1);
}

void TActionMenuLoop::StepRight() {
    TCustomActionControl* selected = FMenus.empty() ? nullptr : SelectedIn(Deepest());
    if (selected && selected->HasSubmenu() && selected->IsItemEnabled()) {
        Open(Deepest(), *selected, true);
        return;
    }
    MoveAlongBar(1, !FMenus.empty());
}

void TActionMenuLoop::StepLeft() {
    if (FMenus.size() > 1) return CloseFrom(FMenus.size() - 1);
    MoveAlongBar(-1, !FMenus.empty());
}

void TActionMenuLoop::StepBack() {
    if (FMenus.empty()) return Leave(nullptr);
    CloseFrom(FMenus.size() - 1);
}

void TActionMenuLoop::OpenOrChoose() {
    TCustomActionBar& bar = Deepest();
    TCustomActionControl* selected = SelectedIn(bar);
    if (!selected) return;
    if (selected->HasSubmenu())
        Open(bar, *selected, true);
    else
        Choose(*selected);
}

void TActionMenuLoop::Letter(wchar_t letter) {
    TCustomActionBar& bar = Deepest();
    std::vector<TCustomActionControl*> fitting;
    for (TCustomActionControl* control : bar.ActionControls())
        if (!control->IsSeparator() && IsAccel(letter, control->ItemCaption())) fitting.push_back(control);
    if (fitting.empty()) {
        ::MessageBeep(0);
        return;
    }
    if (fitting.size() == 1) {
        Select(bar, fitting.front());
        return OpenOrChoose();
    }
    // Several share the letter: it goes round among them.
    const auto present = std::find(fitting.begin(), fitting.end(), SelectedIn(bar));
    const bool isLast = present == fitting.end() || present + 1 == fitting.end();
    Select(bar, isLast ? fitting.front() : *(present + 1));
}

bool TActionMenuLoop::KeyDown(MSG& message) {
    // Keys go on from what is highlighted, not from the submenu of an item that the mouse has left.
    CloseUnsettled();
    switch (message.wParam) {
        case VK_ESCAPE:
            StepBack();
            return true;
        case VK_MENU:
        case VK_F10:
            Leave(nullptr);
            return true;
        case VK_LEFT:
            StepLeft();
            return true;
        case VK_RIGHT:
            StepRight();
            return true;
        case VK_UP:
        case VK_DOWN:
            if (FMenus.empty())
                OpenOrChoose();
            else
                MoveInMenu(message.wParam == VK_DOWN ? 1 : -1);
            return true;
        case VK_HOME:
        case VK_END:
            SelectEdge(message.wParam == VK_END);
            return true;
        case VK_RETURN:
            OpenOrChoose();
            return true;
        default:
            // Letters come as characters.
            ::TranslateMessage(&message);
            return true;
    }
}

bool TActionMenuLoop::FilterMessage(MSG& message) {
    const TPoint screen = message.pt;
    switch (message.message) {
        case WM_MOUSEMOVE:
        case WM_NCMOUSEMOVE:
            MouseMove(screen);
            return true;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_NCLBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_NCRBUTTONDOWN:
            return MouseDown(message, screen);
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
            MouseUp(screen);
            return true;
        case WM_MOUSEWHEEL:
            return true;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return KeyDown(message);
        case WM_KEYUP:
        case WM_SYSKEYUP:
            return true;
        case WM_CHAR:
        case WM_SYSCHAR:
            if (message.wParam != VK_RETURN && message.wParam != VK_ESCAPE)
                Letter(static_cast<wchar_t>(message.wParam));
            return true;
        default:
            return false;
    }
}

}  // namespace vcl
