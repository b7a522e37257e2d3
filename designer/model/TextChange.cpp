#include "designer/model/TextChange.h"

#include <algorithm>

namespace designer {
namespace {

std::string Replaced(std::string_view text, std::size_t position, std::size_t length,
                     std::string_view replacement) {
    std::string result;
    result.reserve(text.size() - length + replacement.size());
    result.append(text.substr(0, position));
    result.append(replacement);
    result.append(text.substr(position + length));
    return result;
}

}  // namespace

TTextChange TTextChange::Between(std::string_view from, std::string_view to) {
    const auto start = static_cast<std::size_t>(std::ranges::mismatch(from, to).in1 - from.begin());
    from.remove_prefix(start);
    to.remove_prefix(start);
    const auto end = std::mismatch(from.rbegin(), from.rend(), to.rbegin(), to.rend()).first;
    const auto common = static_cast<std::size_t>(end - from.rbegin());
    from.remove_suffix(common);
    to.remove_suffix(common);
    return {start, std::string(from), std::string(to)};
}

std::string TTextChange::Apply(std::string_view text) const {
    return Replaced(text, Position, Before.size(), After);
}

std::string TTextChange::Revert(std::string_view text) const {
    return Replaced(text, Position, After.size(), Before);
}

}  // namespace designer
