#pragma once

#include <windows.h>

#include "tests/support/Pixels.h"

namespace test {

/// The part of a device context inside the rectangle (logical coordinates).
[[nodiscard]] Pixels ReadDC(HDC dc, const RECT& rect);
/// A whole window as it stands on the screen: frame and child windows included. The window must be visible.
[[nodiscard]] Pixels ReadWindow(HWND window);
/// The client area of a window as it stands on the screen. Waiting paint messages are handled first.
[[nodiscard]] Pixels ReadClient(HWND window);
/// A whole bitmap of any depth.
[[nodiscard]] Pixels ReadBitmap(HBITMAP bitmap);
/// What `draw` leaves on a fresh 32-bit bitmap of that size filled with the colour.
[[nodiscard]] Pixels Drawn(int width, int height, COLORREF background, const std::function<void(HDC)>& draw);

}  // namespace test
