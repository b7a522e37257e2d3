#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace designer {

/// What turns one text into another: the bytes at one place, before and after.
struct TTextChange {
    std::size_t Position = 0;
    std::string Before;
    std::string After;

    /// The shortest one that leaves what both texts have in common at their beginning and at their end.
    [[nodiscard]] static TTextChange Between(std::string_view from, std::string_view to);
    [[nodiscard]] bool IsEmpty() const { return Before.empty() && After.empty(); }
    /// The text with the change made. `text` must be the one that it was computed from.
    [[nodiscard]] std::string Apply(std::string_view text) const;
    /// The text with the change taken back. `text` must be the one that `Apply` gave.
    [[nodiscard]] std::string Revert(std::string_view text) const;
};

}  // namespace designer
