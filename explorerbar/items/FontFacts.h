#pragma once

#include "platform/vcl/core/Strings.h"
#include "skin/Namespace.h"

namespace vcl {
class TCanvas;
}

namespace qv7skin {

/// The height of a row of text in the canvas' font: that of "A".
[[nodiscard]] int LineHeight(TCanvas& Canvas);

/// A number for how wide letters are in the canvas' font: fonts that differ by nothing but lines under or
/// through the letters share it, no others do. It may change as fonts come and go; never 0.
[[nodiscard]] int WidthClass(TCanvas& Canvas);

/// True when it is clear, without asking the system to measure it, that the text is narrower than `MaxWidth`
/// and breaks no line. False says nothing.
[[nodiscard]] bool IsSurelyNarrower(TCanvas& Canvas, StringView Text, int MaxWidth);

}  // namespace qv7skin
