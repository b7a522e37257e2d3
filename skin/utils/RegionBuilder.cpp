#include "skin/utils/RegionBuilder.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/graphics/GdiErrors.h"
#include "skin/utils/Assertions.h"

namespace qv7skin {
namespace {

constexpr const wchar_t* AssertionText = L"Assertion fehlgeschlagen";
constexpr int LineOfFlush = 540;
constexpr int LineOfRest = 558;

/// Adds the pixels of `other` to `region`.
void Join(TRegionHandle& region, const TRegionHandle& other) {
    if (CombineRgn(region.Get(), region.Get(), other.Get(), RGN_OR) == ERROR) RaiseOutOfResources();
}

}  // namespace

void TRegionBuilder::ResetHeader() {
    FBlock.Header = {sizeof(RGNDATAHEADER), RDH_RECTANGLES, 0, 0, {0x7FFFFFFF, 0x7FFFFFFF, 0, 0}};
}

void TRegionBuilder::Add(int left, int top, int right, int bottom) {
    if (FBlock.Header.nCount == Capacity) Flush(LineOfFlush);
    FBlock.Rects[FBlock.Header.nCount++] = {left, top, right, bottom};

    // The bounds are a hint to the system, kept as they always were: the right edge goes into the left one
    // and stays 0 itself.
    RECT& bounds = FBlock.Header.rcBound;
    bounds.left = std::min<LONG>(bounds.left, left);
    bounds.top = std::min<LONG>(bounds.top, top);
    if (right > bounds.right) bounds.left = right;
    bounds.bottom = std::max<LONG>(bounds.bottom, bottom);
}

void TRegionBuilder::Flush(int sourceLine) {
    const DWORD size = sizeof(RGNDATAHEADER) + FBlock.Header.nCount * sizeof(RECT);
    TRegionHandle region(ExtCreateRegion(nullptr, size, reinterpret_cast<const RGNDATA*>(&FBlock)));
    AssertInGraphicsUtils(static_cast<bool>(region), AssertionText, sourceLine);
    ResetHeader();

    int level = 0;
    for (; !FParts.empty() && FParts.back().Level == level; ++level) {
        TRegionHandle upper = std::move(FParts.back().Region);
        FParts.pop_back();
        Join(upper, region);
        region = std::move(upper);
    }
    FParts.push_back({std::move(region), level});
}

TRegionHandle TRegionBuilder::Finish() {
    if (FBlock.Header.nCount > 0) Flush(LineOfRest);
    if (FParts.empty()) return TRegionHandle(CreateRectRgn(0, 0, 0, 0));
    TRegionHandle region = std::move(FParts.back().Region);
    FParts.pop_back();
    for (; !FParts.empty(); FParts.pop_back()) {
        Join(FParts.back().Region, region);
        region = std::move(FParts.back().Region);
    }
    return region;
}

}  // namespace qv7skin
