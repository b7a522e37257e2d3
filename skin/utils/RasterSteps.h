#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include "skin/Namespace.h"

namespace qv7skin {

/// BitBlt, or what stands in for it.
using TBlitFunction = BOOL(WINAPI*)(HDC to, int x, int y, int width, int height, HDC from, int fromX,
                                    int fromY, DWORD rasterOperation);

/// The raster operations behind `DrawTransparentBitmap`: draws the bitmap on `canvas`, leaving out pixels of
/// the colour `transparent` (0x00BBGGRR). A width or height of 0 means the bitmap's own; nothing is scaled.
/// The bitmap must not be selected in a device context; its pixels change meanwhile and are as before
/// afterwards. Raises EAssertionFailed with the step's message when `blit` fails, which leaves the rest
/// undone.
void DrawTransparentSteps(HDC canvas, HBITMAP bitmap, int x, int y, int width, int height,
                          COLORREF transparent, TBlitFunction blit = &BitBlt);

}  // namespace qv7skin
