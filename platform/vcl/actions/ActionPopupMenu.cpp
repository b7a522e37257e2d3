#include <algorithm>

#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/actions/ActionMenuBars.h"
#include "platform/vcl/actions/ActionMenuItems.h"
#include "platform/vcl/actions/ActionMenuLoop.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/menus/Hotkeys.h"

// Menus that drop down from a bar of actions.

namespace vcl {
namespace {

constexpr int Border = 2;

TRect WorkAreaAt(TPoint point) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

void GiveHotkeys(TActionClients& items) {
    String taken;
    for (int i = 0; i < items.GetCount(); ++i) {
        TActionClientItem* item = items.GetItem(i);
        if (item->GetVisible() && !item->IsSeparator())
            item->SetCaption(WithFreeHotkey(item->GetCaption(), taken));
    }
}

}  // namespace

const TMetaClass& TActionPopupMenu::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TActionPopupMenu>(L"TActionPopupMenu", TCustomActionBar::StaticClass());
    return meta;
}

TActionPopupMenu::TActionPopupMenu(TActionMainMenuBar& root, TActionClientItem& client)
    : TCustomActionBar(nullptr), FRoot(root) {
    SetFont(root.GetFont());
    if (client.GetItems().GetAutoHotKeys()) GiveHotkeys(client.GetItems());
    SetActionManager(root.GetActionManager());
    SetActionClient(&client);
}

const TMetaClass& TActionPopupMenu::DefaultControlClass(const TActionClientItem&) const {
    return FRoot.GetStyle() == amsThemed ? TThemedMenuItem::StaticClass() : TXPStyleMenuItem::StaticClass();
}

const TMetaClass& TActionPopupMenu::GetControlClass(TActionClientItem& item) {
    // The bar decides for all of its menus.
    const TMetaClass& standard = DefaultControlClass(item);
    const TMetaClass* chosen = &standard;
    FRoot.OnGetControlClass(&FRoot, &item, chosen);
    const bool fits = chosen && chosen->InheritsFrom(TCustomActionControl::StaticClass());
    return fits && chosen->CanCreate() ? *chosen : standard;
}

TCustomActionControl* TActionPopupMenu::GetParentControl() const {
    const auto* client = dynamic_cast<const TActionClientItem*>(GetActionClient());
    return client ? client->GetControl() : nullptr;
}

void TActionPopupMenu::ControlsGoing() {
    if (FRoot.FLoop) FRoot.FLoop->ControlsGoing(*this);
}

void TActionPopupMenu::ClientGoing() {
    TCustomActionBar::ClientGoing();
    if (FRoot.FLoop) FRoot.FLoop->MenuGone(*this);
}

void TActionPopupMenu::CreateParams(TCreateParams& params) {
    TCustomActionBar::CreateParams(params);
    params.Style = WS_POPUP | WS_CLIPCHILDREN;
    params.ExStyle |= WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
    params.WindowClass.style |= CS_SAVEBITS | CS_DROPSHADOW;
    params.WndParent = ::GetAncestor(FRoot.GetHandle(), GA_ROOT);
}

void TActionPopupMenu::Dispatch(TMessage& message) {
    if (message.Msg == WM_MOUSEACTIVATE) {
        message.Result = MA_NOACTIVATE;
        return;
    }
    TCustomActionBar::Dispatch(message);
}

void TActionPopupMenu::ArrangeControls() {
    int width = 0;
    for (TCustomActionControl* control : ActionControls()) {
        control->CalcBounds();
        width = std::max(width, control->GetWidth());
    }
    int y = Border - FScrolled;
    for (TCustomActionControl* control : ActionControls()) {
        control->SetBounds(Border, y, width, control->GetHeight());
        y += control->GetHeight();
    }
    FContentHeight = y + FScrolled - Border;
    if (!FPlaced) SetBounds(GetLeft(), GetTop(), width + 2 * Border, FContentHeight + 2 * Border);
}

void TActionPopupMenu::ShowBeside(const TRect& place, bool below) {
    const TRect area = WorkAreaAt(place.TopLeft());
    const int width = std::min(GetWidth(), area.Width());
    const int height = std::min(GetHeight(), area.Height());
    FPlaced = true;
    int left = below ? place.Left : place.Right;
    int top = below ? place.Bottom : place.Top - Border;
    if (below && top + height > area.Bottom && place.Top - height >= area.Top) top = place.Top - height;
    if (!below && left + width > area.Right) left = place.Left - width;
    left = std::max(std::min(left, area.Right - width), area.Left);
    top = std::max(std::min(top, area.Bottom - height), area.Top);
    SetBounds(left, top, width, height);
    ::SetWindowPos(GetHandle(), HWND_TOPMOST, left, top, width, height, SWP_SHOWWINDOW | SWP_NOACTIVATE);
    ::UpdateWindow(GetHandle());
}

void TActionPopupMenu::Reveal(const TCustomActionControl& control) {
    const int room = GetHeight() - 2 * Border;
    if (FContentHeight <= room) return;
    const int top = control.GetTop() + FScrolled - Border;
    int scrolled = std::min(FScrolled, top);
    scrolled = std::max(scrolled, top + control.GetHeight() - room);
    if (scrolled == FScrolled) return;
    FScrolled = scrolled;
    ArrangeControls();
    Invalidate();
}

void TActionPopupMenu::Paint() {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(FRoot.GetStyle() == amsThemed ? clMenu : clWhite);
    canvas.FillRect(GetClientRect());
    canvas.GetBrush().SetColor(clBtnShadow);
    canvas.FrameRect(GetClientRect());
}

}  // namespace vcl
