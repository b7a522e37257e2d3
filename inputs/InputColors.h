#pragma once

#include "inputs/Namespace.h"
#include "platform/vcl/graphics/Color.h"

namespace qv7skin {

/// What framed inputs have in common.
inline constexpr int InputRounding = 4;
/// The least height of an input that has its inner control, in pixels.
inline constexpr int InputMinHeight = 25;

inline constexpr TColor InputGround = 0x00FFFFFF;
inline constexpr TColor InputText = 0x00000000;
/// Light blue-grey: disabled text, separator lines, borders.
inline constexpr TColor InputLight = 0x00F0EAE7;
/// The arrow of a disabled drop button, and the light edge that engraves it.
inline constexpr TColor InputArrowDisabled = 0x00808080;
inline constexpr TColor InputArrowHighlight = 0x00FFFFFF;

/// The colour of an input's text.
[[nodiscard]] constexpr TColor InputTextColor(bool enabled) {
    return enabled ? InputText : InputLight;
}

}  // namespace qv7skin
