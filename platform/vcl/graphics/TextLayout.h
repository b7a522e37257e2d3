#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Canvas.h"

namespace vcl {

/// The space that text needs when it is drawn with these DT_... flags in the canvas' font. With DT_WORDBREAK
/// lines are broken at `width` pixels.
[[nodiscard]] TSize MeasureText(TCanvas& canvas, StringView text, UINT flags, int width = 0);

/// Draws text of one or more lines inside the rectangle, centred from top to bottom as a whole. `flags` are
/// DT_... flags, DT_SINGLELINE or DT_WORDBREAK and the horizontal ones among them.
void DrawTextCentered(TCanvas& canvas, const TRect& rect, StringView text, UINT flags);

/// The text without the marks of its access key: `&x` becomes `x`, `&&` becomes `&`.
[[nodiscard]] String StripHotkey(StringView text);

}  // namespace vcl
