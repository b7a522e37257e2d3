#include "tests/support/PixelProbe.h"

#include <cstdint>

namespace test {
namespace {

/// A 32-bit memory bitmap with its device context.
class Surface {
public:
    Surface(int width, int height) : FWidth(width), FHeight(height) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        FBitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &FBits, nullptr, 0);
        FDC = CreateCompatibleDC(nullptr);
        FOld = SelectObject(FDC, FBitmap);
    }
    ~Surface() {
        SelectObject(FDC, FOld);
        DeleteDC(FDC);
        DeleteObject(FBitmap);
    }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    [[nodiscard]] HDC DC() const { return FDC; }
    [[nodiscard]] Pixels Contents() const {
        GdiFlush();
        const auto* bits = static_cast<const std::uint32_t*>(FBits);
        return {FWidth, FHeight, [&](int x, int y) {
                    const std::uint32_t bgr = bits[static_cast<std::size_t>(y) * FWidth + x];
                    return RGB((bgr >> 16) & 0xFF, (bgr >> 8) & 0xFF, bgr & 0xFF);
                }};
    }

private:
    int FWidth;
    int FHeight;
    void* FBits = nullptr;
    HBITMAP FBitmap;
    HDC FDC;
    HGDIOBJ FOld;
};

class WindowDC {
public:
    explicit WindowDC(HWND window) : FWindow(window), FDC(GetWindowDC(window)) {}
    ~WindowDC() { ReleaseDC(FWindow, FDC); }
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
    operator HDC() const { return FDC; }

private:
    HWND FWindow;
    HDC FDC;
};

}  // namespace

Pixels ReadDC(HDC dc, const RECT& rect) {
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    if (width <= 0 || height <= 0) return {};
    const Surface surface(width, height);
    BitBlt(surface.DC(), 0, 0, width, height, dc, rect.left, rect.top, SRCCOPY);
    return surface.Contents();
}

Pixels ReadWindow(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    // A child has no complete picture of its own: what lies over it belongs to the top-level window.
    const HWND top = GetAncestor(window, GA_ROOT);
    RECT bounds, topBounds;
    GetWindowRect(window, &bounds);
    GetWindowRect(top, &topBounds);
    OffsetRect(&bounds, -topBounds.left, -topBounds.top);
    const WindowDC dc(top);
    return ReadDC(dc, bounds);
}

Pixels ReadClient(HWND window) {
    RECT bounds, client;
    GetWindowRect(window, &bounds);
    GetClientRect(window, &client);
    POINT origin{};
    ClientToScreen(window, &origin);
    OffsetRect(&client, origin.x - bounds.left, origin.y - bounds.top);
    return ReadWindow(window).Part(client);
}

Pixels ReadBitmap(HBITMAP bitmap) {
    BITMAP info{};
    if (!GetObjectW(bitmap, sizeof info, &info) || info.bmWidth <= 0 || info.bmHeight <= 0) return {};
    const int width = info.bmWidth;
    const int height = info.bmHeight;
    BITMAPINFO wanted{};
    wanted.bmiHeader = {sizeof wanted.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<std::uint32_t> bits(static_cast<std::size_t>(width) * height);
    // GetDIBits reads the bitmap also while it is selected in a device context.
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, static_cast<UINT>(height), bits.data(), &wanted, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    return {width, height, [&](int x, int y) {
                const std::uint32_t bgr = bits[static_cast<std::size_t>(y) * width + x];
                return RGB((bgr >> 16) & 0xFF, (bgr >> 8) & 0xFF, bgr & 0xFF);
            }};
}

Pixels Drawn(int width, int height, COLORREF background, const std::function<void(HDC)>& draw) {
    const Surface surface(width, height);
    const RECT all{0, 0, width, height};
    const HBRUSH brush = CreateSolidBrush(background);
    FillRect(surface.DC(), &all, brush);
    DeleteObject(brush);
    draw(surface.DC());
    return surface.Contents();
}

}  // namespace test
