#pragma once

#include <array>
#include <string>

#include "resources/skinart/Picture.h"

namespace skinart {

/// The sixteen colours of the standard VGA palette, in the order of a 4 bit bitmap file.
extern const std::array<Rgb, 16> kVgaColors;

/// The bytes of an uncompressed bitmap file, bottom row first, 24 bits per pixel.
std::string EncodeBmp24(const Picture& picture);

/// The same with 4 bits per pixel and the VGA palette; throws std::invalid_argument for any other colour.
std::string EncodeBmp4(const Picture& picture);

}  // namespace skinart
