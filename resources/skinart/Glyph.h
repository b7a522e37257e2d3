#pragma once

#include <string_view>
#include <vector>

#include "resources/skinart/Picture.h"

namespace skinart {

/// A letter of a pattern and its colour.
struct Ink {
    char Letter;
    Rgb Color;
};

/// A picture from rows of letters, one letter a pixel; '.' is transparent. Throws std::invalid_argument for a
/// letter without ink and for rows of different lengths.
Picture FromPattern(const std::vector<std::string_view>& rows, const std::vector<Ink>& inks);

}  // namespace skinart
