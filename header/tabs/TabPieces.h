#pragma once

#include <array>
#include <memory>

#include "header/items/HeaderItemTab.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/UnitQV7SkinConsts.h"

namespace qv7skin {

/// The pieces of a tab's background: eight bitmaps for each of the states default, hovered and pressed.
class TTabPieces {
public:
    /// Loads the three sets of the look.
    explicit TTabPieces(TQV7SkinTabBackground Look);
    ~TTabPieces();

    [[nodiscard]] const TBitmap& GetPiece(int State, TFramePosition Position) const;
    /// Draws the pieces of the state along the edges of the whole bitmap, the centre pieces stretched between
    /// the corners. What they leave free in the middle stays as it is.
    void Draw(TBitmap& Bitmap, int State) const;

private:
    using TSet = std::array<std::unique_ptr<TBitmap>, AllFramePositions.size()>;

    [[nodiscard]] static TSet LoadSet(const wchar_t* Prefix);

    std::array<TSet, HeaderItemStateCount> FSets;
};

}  // namespace qv7skin
