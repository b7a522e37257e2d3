#pragma once

#include <compare>
#include <cstdint>

namespace skinart {

/// An opaque colour, eight bits a channel.
struct Rgb {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;

    friend constexpr auto operator<=>(const Rgb&, const Rgb&) = default;
};

/// The grey whose three channels are `level`.
constexpr Rgb Grey(std::uint8_t level) {
    return {level, level, level};
}

/// The colour `numerator / denominator` of the way from `from` to `to`, each channel rounded to nearest.
constexpr Rgb Mix(Rgb from, Rgb to, int numerator, int denominator) {
    const auto channel = [=](int a, int b) {
        return static_cast<std::uint8_t>((a * (denominator - numerator) + b * numerator + denominator / 2) /
                                         denominator);
    };
    return {channel(from.Red, to.Red), channel(from.Green, to.Green), channel(from.Blue, to.Blue)};
}

/// The colours that the skin is drawn in. Where a control fills behind or between the pieces, the value is
/// the control's own, so that the pieces meet that fill without a seam.
namespace palette {

inline constexpr Rgb kTransparent{255, 0, 255};  ///< marks pixels that are not part of the picture
inline constexpr Rgb kPage{231, 234, 240};       ///< what the controls lie on
inline constexpr Rgb kWhite = Grey(255);
inline constexpr Rgb kBlack = Grey(0);
inline constexpr Rgb kAccent{18, 129, 215};    ///< the skin's one blue
inline constexpr Rgb kPressed{33, 96, 198};    ///< interior of a pressed button
inline constexpr Rgb kDisabled = Grey(0x93);   ///< interior of a disabled button
inline constexpr Rgb kTab{218, 219, 224};      ///< interior of a resting or hovered tab
inline constexpr Rgb kHeader = Grey(0x51);     ///< between the two column header bands
inline constexpr Rgb kFrameLine = Grey(0x55);  ///< frame of the chevron strip, base line of white tabs

}  // namespace palette

}  // namespace skinart
