#include "resources/skinart/IconSheet.h"

#include <stdexcept>

#include "resources/skinart/Glyph.h"

namespace skinart {

IconSheet::IconSheet() : FPicture(kSize, kSize) {}

IconSheet& IconSheet::Fill(int left, int top, int width, int height, Rgb color) {
    for (int y = top; y < top + height; ++y) {
        for (int x = left; x < left + width; ++x)
            FPicture.Set(x, y, color);
    }
    return *this;
}

IconSheet& IconSheet::Frame(int left, int top, int width, int height, Rgb color) {
    Fill(left, top, width, 1, color);
    Fill(left, top + height - 1, width, 1, color);
    Fill(left, top, 1, height, color);
    return Fill(left + width - 1, top, 1, height, color);
}

IconSheet& IconSheet::RoundFrame(int left, int top, int width, int height, Rgb frame, Rgb inside) {
    Fill(left + 1, top, width - 2, 1, frame);
    Fill(left + 1, top + height - 1, width - 2, 1, frame);
    Fill(left, top + 1, 1, height - 2, frame);
    Fill(left + width - 1, top + 1, 1, height - 2, frame);
    return Fill(left + 1, top + 1, width - 2, height - 2, inside);
}

IconSheet& IconSheet::Pattern(int left, int top, const std::vector<std::string_view>& rows) {
    static const std::vector<Ink> inks{
        {'K', vga::kBlack},  {'D', vga::kGrey}, {'L', vga::kSilver}, {'W', vga::kWhite}, {'N', vga::kNavy},
        {'B', vga::kBlue},   {'T', vga::kTeal}, {'A', vga::kAqua},   {'G', vga::kGreen}, {'O', vga::kOlive},
        {'Y', vga::kYellow}, {'R', vga::kRed},  {'M', vga::kMaroon}};
    FPicture.DrawTransparent(FromPattern(rows, inks), left, top);
    return *this;
}

Picture IconSheet::Finish() const {
    if (FPicture.At(0, kSize - 1) != palette::kTransparent) throw std::logic_error("lower left pixel taken");
    return FPicture;
}

}  // namespace skinart
