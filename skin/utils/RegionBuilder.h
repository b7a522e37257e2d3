#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include <array>
#include <vector>

#include "platform/vcl/graphics/Handles.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// Collects rectangles, row by row from the top and in a row from the left, into one region.
///
/// The system adds rectangles one after the other to a region that grows, which takes the square of the time.
/// So only few at a time become a region of their own, and these are joined pairwise, halves with halves.
class TRegionBuilder {
public:
    TRegionBuilder() { ResetHeader(); }
    void Add(int left, int top, int right, int bottom);
    /// The union of all rectangles, an empty region without any; the builder starts anew. Raises
    /// EAssertionFailed "Assertion fehlgeschlagen" when the system makes no region.
    [[nodiscard]] TRegionHandle Finish();

private:
    static constexpr int Capacity = 16;  // measured: 8 to 32 are alike, less and more are slower

    /// What ExtCreateRegion reads: header and rectangles in one block.
    struct TBlock {
        RGNDATAHEADER Header;
        std::array<RECT, Capacity> Rects;
    };
    /// The union of 2^Level blocks.
    struct TPart {
        TRegionHandle Region;
        int Level;
    };

    void ResetHeader();
    void Flush(int sourceLine);

    TBlock FBlock;
    std::vector<TPart> FParts;  // levels fall from front to back
};

}  // namespace qv7skin
