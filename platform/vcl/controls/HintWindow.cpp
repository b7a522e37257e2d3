#include "platform/vcl/controls/HintWindow.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"

namespace vcl {
namespace {

/// Space between the text and the window's edges, both sides together.
constexpr int PaddingAcross = 6;
constexpr int PaddingDown = 4;
constexpr UINT TextFlags = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX;

LOGFONTW SystemHintFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics.lfStatusFont;
}

TRect WorkAreaAt(TPoint point) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcMonitor;
}

}  // namespace

const TMetaClass& THintWindow::StaticClass() {
    static const TMetaClass meta = DefineClass<THintWindow>(L"THintWindow", TCustomControl::StaticClass());
    return meta;
}

THintWindow::THintWindow(TComponent* AOwner) : TCustomControl(AOwner) {
    SetColor(clInfoBk);
    GetFont().SetLogFont(SystemHintFont());
    GetFont().SetColor(clInfoText);
    GetBrush().SetStyle(bsSolid);
}

void THintWindow::CreateParams(TCreateParams& params) {
    TCustomControl::CreateParams(params);
    params.Style = WS_POPUP | WS_BORDER;
    params.ExStyle |= WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
    params.WindowClass.style |= CS_SAVEBITS | CS_DROPSHADOW;
}

void THintWindow::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_NCHITTEST:
            message.Result = HTTRANSPARENT;
            return;
        case WM_MOUSEACTIVATE:
            message.Result = MA_NOACTIVATE;
            return;
        default:
            TCustomControl::Dispatch(message);
    }
}

void THintWindow::Paint() {
    TCanvas& canvas = GetCanvas();
    TRect area = GetClientRect();
    area.Left += 2;
    area.Top += 2;
    canvas.SetFont(GetFont());
    canvas.GetBrush().SetStyle(bsClear);
    canvas.TextRect(area, GetText(), TextFlags);
}

TRect THintWindow::CalcHintRect(int maxWidth, const String& hint) {
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    TRect area{0, 0, std::max(maxWidth, 1), 0};
    canvas.TextRect(area, hint, TextFlags | DT_CALCRECT);
    area.Right += PaddingAcross;
    area.Bottom += PaddingDown;
    return area;
}

void THintWindow::ActivateHint(TRect rect, const String& hint) {
    SetText(hint);
    const TRect screen = WorkAreaAt(rect.TopLeft());
    rect.Offset(std::min(screen.Right - rect.Right, 0), std::min(screen.Bottom - rect.Bottom, 0));
    rect.Offset(std::max(screen.Left - rect.Left, 0), std::max(screen.Top - rect.Top, 0));
    ::SetWindowPos(GetHandle(), HWND_TOPMOST, rect.Left, rect.Top, rect.Width(), rect.Height(),
                   SWP_SHOWWINDOW | SWP_NOACTIVATE);
    ::InvalidateRect(GetHandle(), nullptr, TRUE);
}

bool THintWindow::IsHintMsg(const MSG& message) const {
    const UINT msg = message.message;
    return (msg >= WM_KEYFIRST && msg <= WM_KEYLAST) || (msg > WM_MOUSEMOVE && msg <= WM_MOUSELAST) ||
           msg == CM_ACTIVATE || msg == CM_DEACTIVATE || msg == CM_APPKEYDOWN || msg == CM_APPSYSCOMMAND ||
           msg == WM_COMMAND || msg == WM_NCMOUSEMOVE;
}

void THintWindow::ReleaseHandle() {
    DestroyHandle();
}

String GetShortHint(const String& hint) {
    return hint.substr(0, hint.find(L'|'));
}

String GetLongHint(const String& hint) {
    const std::size_t bar = hint.find(L'|');
    return bar == String::npos ? hint : hint.substr(bar + 1);
}

}  // namespace vcl
