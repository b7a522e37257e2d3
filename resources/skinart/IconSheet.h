#pragma once

#include <string_view>
#include <vector>

#include "resources/skinart/Picture.h"

namespace skinart {

/// A palette icon in the making: 24 x 24 pixels, addressed by column and row, in VGA colours. What stays
/// untouched keeps the transparent colour; the lower left pixel always does, since the designer takes the
/// transparent colour from there.
class IconSheet {
public:
    static constexpr int kSize = 24;

    IconSheet();

    IconSheet& Fill(int left, int top, int width, int height, Rgb color);
    IconSheet& Frame(int left, int top, int width, int height, Rgb color);

    /// As `Frame` over `Fill`, with the four corner pixels left out.
    IconSheet& RoundFrame(int left, int top, int width, int height, Rgb frame, Rgb inside);

    /// Rows of letters: K black, D dark grey, L light grey, W white, N navy, B blue, T teal, A aqua, G green,
    /// O olive, Y yellow, R red, M maroon; '.' leaves the pixel alone.
    IconSheet& Pattern(int left, int top, const std::vector<std::string_view>& rows);

    /// The finished icon; throws std::logic_error when the lower left pixel is not free.
    Picture Finish() const;

private:
    Picture FPicture;
};

namespace vga {

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kMaroon{128, 0, 0};
inline constexpr Rgb kGreen{0, 128, 0};
inline constexpr Rgb kOlive{128, 128, 0};
inline constexpr Rgb kNavy{0, 0, 128};
inline constexpr Rgb kTeal{0, 128, 128};
inline constexpr Rgb kGrey{128, 128, 128};
inline constexpr Rgb kSilver{192, 192, 192};
inline constexpr Rgb kRed{255, 0, 0};
inline constexpr Rgb kYellow{255, 255, 0};
inline constexpr Rgb kBlue{0, 0, 255};
inline constexpr Rgb kAqua{0, 255, 255};
inline constexpr Rgb kWhite{255, 255, 255};

}  // namespace vga

}  // namespace skinart
