#pragma once

#include <algorithm>
#include <vector>

namespace vcl {

/// Takes the element at `from` out and puts it in again so that it then stands at `to`; those between move
/// up or down by one. Both are indices of existing elements; they are not checked.
template <class T>
void MoveElement(std::vector<T>& elements, int from, int to) {
    const auto source = elements.begin() + from;
    const auto target = elements.begin() + to;
    if (source < target)
        std::rotate(source, source + 1, target + 1);
    else
        std::rotate(target, source, source + 1);
}

}  // namespace vcl
