#include "platform/vcl/controls/DragImageWindow.h"

#include <cstdint>
#include <memory>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/ImageList.h"

namespace vcl {
namespace {

constexpr const wchar_t* WindowClassName = L"TDragImageWindow";
/// Of 255: what lies below stays readable.
constexpr BYTE Opacity = 180;

HINSTANCE ThisModule() {
    return ModuleOfAddress(reinterpret_cast<const void*>(&WindowClassName));
}

std::unique_ptr<TBitmap> ImageOn(TColor background, const TCustomImageList& images, int index) {
    auto bitmap = std::make_unique<TBitmap>(images.GetWidth(), images.GetHeight(), pf32bit);
    TCanvas& canvas = bitmap->GetCanvas();
    canvas.GetBrush().SetColor(background);
    canvas.FillRect(TRect(0, 0, images.GetWidth(), images.GetHeight()));
    images.Draw(canvas, 0, 0, index, dsTransparent);
    return bitmap;
}

/// The image with its opacity in each pixel, which is what black and white behind it make the same.
std::unique_ptr<TBitmap> WithAlpha(const TCustomImageList& images, int index) {
    std::unique_ptr<TBitmap> result = ImageOn(clBlack, images, index);
    const std::unique_ptr<TBitmap> onWhite = ImageOn(clWhite, images, index);
    for (int y = 0; y < result->GetHeight(); ++y) {
        auto* dark = static_cast<std::uint32_t*>(result->ScanLine(y));
        const auto* light = static_cast<const std::uint32_t*>(onWhite->ScanLine(y));
        for (int x = 0; x < result->GetWidth(); ++x) {
            const std::uint32_t through = ((light[x] >> 8) & 0xFF) - ((dark[x] >> 8) & 0xFF);
            dark[x] = (dark[x] & 0x00FFFFFF) | ((255 - through) << 24);
        }
    }
    return result;
}

}  // namespace

TDragImageWindow::TDragImageWindow(const TCustomImageList& images, int index) {
    WNDCLASSW description{};
    description.lpfnWndProc = ::DefWindowProcW;
    description.hInstance = ThisModule();
    description.lpszClassName = WindowClassName;
    ::RegisterClassW(&description);
    constexpr DWORD style =
        WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
    FHandle = ::CreateWindowExW(style, WindowClassName, L"", WS_POPUP, 0, 0, images.GetWidth(),
                                images.GetHeight(), nullptr, nullptr, ThisModule(), nullptr);
    if (!FHandle) throw EOSError(L"The drag image can't be shown");
    TLedger::Count("window", +1);
    SetPixels(images, index);
}

TDragImageWindow::~TDragImageWindow() {
    ::DestroyWindow(FHandle);
    ::UnregisterClassW(WindowClassName, ThisModule());
    TLedger::Count("window", -1);
}

void TDragImageWindow::SetPixels(const TCustomImageList& images, int index) const {
    const std::unique_ptr<TBitmap> pixels = WithAlpha(images, index);
    const TMemoryDC source = CreateMemoryDC();
    const TSelectObject selected(source.Get(), pixels->GetHandle());
    POINT origin{0, 0};
    SIZE size{images.GetWidth(), images.GetHeight()};
    BLENDFUNCTION blend{AC_SRC_OVER, 0, Opacity, AC_SRC_ALPHA};
    ::UpdateLayeredWindow(FHandle, nullptr, nullptr, &size, source.Get(), &origin, 0, &blend, ULW_ALPHA);
}

void TDragImageWindow::MoveTo(TPoint pos) const {
    ::SetWindowPos(FHandle, HWND_TOPMOST, pos.X, pos.Y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
}

void TDragImageWindow::Show(bool value) const {
    ::ShowWindow(FHandle, value ? SW_SHOWNOACTIVATE : SW_HIDE);
}

}  // namespace vcl
