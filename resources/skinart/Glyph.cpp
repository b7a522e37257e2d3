#include "resources/skinart/Glyph.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace skinart {

namespace {

Rgb InkOf(char letter, const std::vector<Ink>& inks) {
    if (letter == '.') return palette::kTransparent;
    const auto found = std::ranges::find(inks, letter, &Ink::Letter);
    if (found == inks.end()) throw std::invalid_argument("a letter without ink");
    return found->Color;
}

}  // namespace

Picture FromPattern(const std::vector<std::string_view>& rows, const std::vector<Ink>& inks) {
    const std::size_t width = rows.front().size();
    Picture picture(static_cast<int>(width), static_cast<int>(rows.size()));
    for (int y = 0; y < picture.Height(); ++y) {
        const std::string_view row = rows[static_cast<std::size_t>(y)];
        if (row.size() != width) throw std::invalid_argument("rows of different lengths");
        for (int x = 0; x < picture.Width(); ++x)
            picture.Set(x, y, InkOf(row[static_cast<std::size_t>(x)], inks));
    }
    return picture;
}

}  // namespace skinart
