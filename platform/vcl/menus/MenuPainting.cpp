#include <algorithm>

#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/menus/Menu.h"

// WM_MEASUREITEM and WM_DRAWITEM.

namespace vcl {
namespace {

TOwnerDrawState StateOf(UINT state) {
    constexpr std::pair<UINT, TOwnerDrawStateFlag> flags[] = {
        {ODS_SELECTED, odSelected}, {ODS_GRAYED, odGrayed},     {ODS_DISABLED, odDisabled},
        {ODS_CHECKED, odChecked},   {ODS_FOCUS, odFocused},     {ODS_DEFAULT, odDefault},
        {ODS_HOTLIGHT, odHotLight}, {ODS_INACTIVE, odInactive}, {ODS_NOACCEL, odNoAccel}};
    TOwnerDrawState result;
    for (const auto& [bit, flag] : flags)
        result.Put(flag, (state & bit) != 0);
    // A menu has no items that are disabled and do not look so.
    if (result.Contains(odDisabled)) result.Include(odGrayed);
    return result;
}

/// A canvas on a device context of the system's, which is as before afterwards.
class TLentCanvas : public TCanvas {
public:
    TLentCanvas(HDC dc, const TFont& font) : FState(dc) {
        SetHandle(dc);
        SetFont(font);
    }
    ~TLentCanvas() override { SetHandle(nullptr); }

private:
    TSaveDC FState;
};

}  // namespace

TFont& TMenu::MenuFont() {
    if (!FFont) {
        FFont = std::make_unique<TFont>();
        NONCLIENTMETRICSW metrics{};
        metrics.cbSize = sizeof metrics;
        if (::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0))
            FFont->SetLogFont(metrics.lfMenuFont);
        FFont->SetColor(clMenuText);
    }
    return *FFont;
}

int TMenu::WidestItem(HWND window) {
    if (FWidestItem < 0) {
        MONITORINFO info{};
        info.cbSize = sizeof info;
        if (!::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info)) return INT_MAX;
        const int frame = 2 * (::GetSystemMetrics(SM_CXEDGE) + ::GetSystemMetrics(SM_CXMENUCHECK));
        FWidestItem = std::max(static_cast<int>(info.rcWork.right - info.rcWork.left) - frame, 0);
    }
    return FWidestItem;
}

bool TMenu::WmMeasureItem(HWND window, TMessage& message) {
    auto& info = *message.As<MEASUREITEMSTRUCT>();
    // The number of an item with a submenu is cut off; the data are what counts.
    TMenuItem* item = info.CtlType == ODT_MENU ? FindItem(info.itemData, fkCommand) : nullptr;
    if (!item) return false;
    const TWindowDC dc(window);
    TLentCanvas canvas(dc.Get(), MenuFont());
    int width = 0;
    int height = 0;
    item->Measure(canvas, width, height);
    info.itemWidth = static_cast<UINT>(std::clamp(width, 0, WidestItem(window)));
    info.itemHeight = static_cast<UINT>(std::max(height, 0));
    message.Result = 1;
    return true;
}

bool TMenu::WmDrawItem(TMessage& message) {
    const auto& info = *message.As<DRAWITEMSTRUCT>();
    TMenuItem* item = info.CtlType == ODT_MENU ? FindItem(info.itemData, fkCommand) : nullptr;
    if (!item) return false;
    message.Result = 1;
    // A menu that is longer than the screen asks for all of its items each time.
    if (!::RectVisible(info.hDC, &info.rcItem)) return true;
    TLentCanvas canvas(info.hDC, MenuFont());
    TOwnerDrawState state = StateOf(info.itemState);
    // Not every system tells these.
    state.Put(odChecked, item->GetChecked());
    state.Put(odDefault, item->GetDefault());
    item->Draw(canvas, info.rcItem, state);
    return true;
}

}  // namespace vcl
