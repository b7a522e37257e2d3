#pragma once

#include <cstdint>
#include <span>

#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

/// A colour: 0x00BBGGRR (low byte red), a system colour 0xFF0000nn by its index, or one of the marks `clNone`
/// and `clDefault`.
using TColor = std::uint32_t;

inline constexpr TColor clBlack = 0x00000000;
inline constexpr TColor clMaroon = 0x00000080;
inline constexpr TColor clGreen = 0x00008000;
inline constexpr TColor clOlive = 0x00008080;
inline constexpr TColor clNavy = 0x00800000;
inline constexpr TColor clPurple = 0x00800080;
inline constexpr TColor clTeal = 0x00808000;
inline constexpr TColor clGray = 0x00808080;
inline constexpr TColor clSilver = 0x00C0C0C0;
inline constexpr TColor clRed = 0x000000FF;
inline constexpr TColor clLime = 0x0000FF00;
inline constexpr TColor clYellow = 0x0000FFFF;
inline constexpr TColor clBlue = 0x00FF0000;
inline constexpr TColor clFuchsia = 0x00FF00FF;
inline constexpr TColor clAqua = 0x00FFFF00;
inline constexpr TColor clLtGray = clSilver;
inline constexpr TColor clDkGray = clGray;
inline constexpr TColor clWhite = 0x00FFFFFF;
inline constexpr TColor clMoneyGreen = 0x00C0DCC0;
inline constexpr TColor clSkyBlue = 0x00F0CAA6;
inline constexpr TColor clCream = 0x00F0FBFF;
inline constexpr TColor clMedGray = 0x00A4A0A0;

/// No colour at all.
inline constexpr TColor clNone = 0x1FFFFFFF;
/// The colour that the surroundings choose.
inline constexpr TColor clDefault = 0x20000000;
/// What reading a pixel outside of a canvas yields.
inline constexpr TColor clInvalid = 0xFFFFFFFF;

/// The colour that the user chose for part `index` of the desktop (COLOR_... of the Windows API).
[[nodiscard]] constexpr TColor SystemColor(unsigned index) {
    return 0xFF000000U | index;
}

inline constexpr TColor clScrollBar = SystemColor(0);
inline constexpr TColor clBackground = SystemColor(1);
inline constexpr TColor clActiveCaption = SystemColor(2);
inline constexpr TColor clInactiveCaption = SystemColor(3);
inline constexpr TColor clMenu = SystemColor(4);
inline constexpr TColor clWindow = SystemColor(5);
inline constexpr TColor clWindowFrame = SystemColor(6);
inline constexpr TColor clMenuText = SystemColor(7);
inline constexpr TColor clWindowText = SystemColor(8);
inline constexpr TColor clCaptionText = SystemColor(9);
inline constexpr TColor clActiveBorder = SystemColor(10);
inline constexpr TColor clInactiveBorder = SystemColor(11);
inline constexpr TColor clAppWorkSpace = SystemColor(12);
inline constexpr TColor clHighlight = SystemColor(13);
inline constexpr TColor clHighlightText = SystemColor(14);
inline constexpr TColor clBtnFace = SystemColor(15);
inline constexpr TColor clBtnShadow = SystemColor(16);
inline constexpr TColor clGrayText = SystemColor(17);
inline constexpr TColor clBtnText = SystemColor(18);
inline constexpr TColor clInactiveCaptionText = SystemColor(19);
inline constexpr TColor clBtnHighlight = SystemColor(20);
inline constexpr TColor cl3DDkShadow = SystemColor(21);
inline constexpr TColor cl3DLight = SystemColor(22);
inline constexpr TColor clInfoText = SystemColor(23);
inline constexpr TColor clInfoBk = SystemColor(24);
inline constexpr TColor clHotLight = SystemColor(26);
inline constexpr TColor clGradientActiveCaption = SystemColor(27);
inline constexpr TColor clGradientInactiveCaption = SystemColor(28);
inline constexpr TColor clMenuHighlight = SystemColor(29);
inline constexpr TColor clMenuBar = SystemColor(30);

[[nodiscard]] constexpr TColor RGBToColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return static_cast<TColor>(red) | static_cast<TColor>(green) << 8 | static_cast<TColor>(blue) << 16;
}
[[nodiscard]] constexpr std::uint8_t RedOf(TColor rgb) {
    return static_cast<std::uint8_t>(rgb);
}
[[nodiscard]] constexpr std::uint8_t GreenOf(TColor rgb) {
    return static_cast<std::uint8_t>(rgb >> 8);
}
[[nodiscard]] constexpr std::uint8_t BlueOf(TColor rgb) {
    return static_cast<std::uint8_t>(rgb >> 16);
}

/// The colour as 0x00BBGGRR: system colours are looked up, the top byte of all others is cleared.
[[nodiscard]] TColor ColorToRGB(TColor color);

/// The mixture of two colours: all `a` at 0, all `b` at 255. System colours are looked up.
[[nodiscard]] TColor BlendColors(TColor a, TColor b, int weightOfB);

/// The names of all colour constants, for form files and lists of colours; the first name of a value is the
/// one that is written.
[[nodiscard]] std::span<const TIdentifier> ColorIdentifiers();

/// The name of the colour, or `$` and eight hexadecimal digits.
[[nodiscard]] String ColorToString(TColor color);

}  // namespace vcl
