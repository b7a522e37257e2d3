#include "platform/vcl/graphics/Regions.h"

#include <cstddef>
#include <cstring>

#include "platform/vcl/graphics/GdiErrors.h"

namespace vcl {
namespace {

/// Making a region grows with the square of its rectangles, joining two with their sum: groups stay small.
constexpr std::size_t GroupSize = 32;

TRegionHandle RegionOfGroup(std::span<const RECT> rects) {
    std::byte buffer[sizeof(RGNDATAHEADER) + GroupSize * sizeof(RECT)];
    RGNDATAHEADER header{};
    header.dwSize = sizeof header;
    header.iType = RDH_RECTANGLES;
    header.nCount = static_cast<DWORD>(rects.size());
    header.nRgnSize = static_cast<DWORD>(rects.size_bytes());
    header.rcBound = rects.front();
    for (const RECT& r : rects)
        ::UnionRect(&header.rcBound, &header.rcBound, &r);
    std::memcpy(buffer, &header, sizeof header);
    std::memcpy(buffer + sizeof header, rects.data(), rects.size_bytes());
    const auto size = static_cast<DWORD>(sizeof header + rects.size_bytes());
    return TRegionHandle(
        CheckHandle(::ExtCreateRegion(nullptr, size, reinterpret_cast<const RGNDATA*>(buffer))));
}

}  // namespace

TRegionHandle RectRegion(const TRect& rect) {
    return TRegionHandle(CheckHandle(::CreateRectRgnIndirect(rect.AsRect())));
}

TRegionHandle UnionOfRects(std::span<const RECT> rects) {
    if (rects.empty()) return RectRegion({});
    if (rects.size() <= GroupSize) return RegionOfGroup(rects);
    const std::size_t half = rects.size() / 2;
    TRegionHandle first = UnionOfRects(rects.first(half));
    const TRegionHandle second = UnionOfRects(rects.subspan(half));
    if (::CombineRgn(first.Get(), first.Get(), second.Get(), RGN_OR) == ERROR) RaiseOutOfResources();
    return first;
}

std::vector<RECT> RectsOfRegion(HRGN region) {
    const DWORD size = region ? ::GetRegionData(region, 0, nullptr) : 0;
    if (size == 0) return {};
    std::vector<std::byte> buffer(size);
    auto* data = reinterpret_cast<RGNDATA*>(buffer.data());
    if (!::GetRegionData(region, size, data)) RaiseOutOfResources();
    const auto* first = reinterpret_cast<const RECT*>(data->Buffer);
    return {first, first + data->rdh.nCount};
}

TRegionHandle CopyRegion(HRGN region) {
    TRegionHandle copy = RectRegion({});
    if (::CombineRgn(copy.Get(), region, nullptr, RGN_COPY) == ERROR) RaiseOutOfResources();
    return copy;
}

}  // namespace vcl
