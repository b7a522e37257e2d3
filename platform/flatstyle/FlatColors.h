#pragma once

#include <array>
#include <cstddef>

#include "platform/flatstyle/Namespace.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Color.h"

namespace flatstyle {

/// The colours of a flat control by index; each control says what its indices mean.
template <std::size_t Count>
class TFlatColors {
public:
    explicit TFlatColors(const std::array<TColor, Count>& colors) : FColors(colors) {}

    /// Raises EListError for an index that the control does not have.
    [[nodiscard]] TColor Get(int index) const { return FColors[Checked(index)]; }
    /// True when the colour is another one than before. Raises EListError.
    bool Set(int index, TColor value) {
        TColor& color = FColors[Checked(index)];
        if (color == value) return false;
        color = value;
        return true;
    }

private:
    static std::size_t Checked(int index) {
        const auto place = static_cast<std::size_t>(index);
        if (index < 0 || place >= Count) throw EListError(Format(L"List index out of bounds (%d)", index));
        return place;
    }
    std::array<TColor, Count> FColors;
};

}  // namespace flatstyle
