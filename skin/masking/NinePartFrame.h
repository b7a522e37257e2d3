#pragma once

#include <array>
#include <memory>

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"
#include "skin/UnitQV7SkinConsts.h"

namespace qv7skin {

/// The eight pieces of a frame by position, not owned. Made anew when a piece changes.
class TNinePartPieces {
public:
    using Graphics = std::array<const TGraphic*, AllFramePositions.size()>;

    /// None of the graphics is null.
    explicit TNinePartPieces(const Graphics& graphics);
    [[nodiscard]] const TGraphic& operator[](TFramePosition position) const {
        return *FGraphics[static_cast<std::size_t>(position)];
    }
    /// The memory of a piece, when all of them are opaque bitmaps of 24 or 32 bits (`HasBits`).
    [[nodiscard]] const TConstBitmapBits& BitsOf(TFramePosition position) const {
        return FBits[static_cast<std::size_t>(position)];
    }
    [[nodiscard]] bool HasBits() const { return FHasBits; }

private:
    Graphics FGraphics;
    std::array<TConstBitmapBits, AllFramePositions.size()> FBits;
    bool FHasBits = false;
};

/// The eight pieces of a frame as bitmaps loaded from a module. Whoever draws frames keeps one, so that the
/// resources are read once.
class TNinePartBitmaps {
public:
    /// Loads the bitmaps whose names are the prefix (with its state word, if any) and a position word. Raises
    /// EResNotFound with the first name that the module lacks.
    explicit TNinePartBitmaps(StringView prefix, HINSTANCE module = QV7SkinModule());
    ~TNinePartBitmaps();

    [[nodiscard]] const TBitmap& operator[](TFramePosition position) const {
        return (*FBitmaps)[static_cast<std::size_t>(position)];
    }
    [[nodiscard]] const TNinePartPieces& Pieces() const { return FPieces; }

private:
    using Bitmaps = std::array<TBitmap, AllFramePositions.size()>;
    static std::unique_ptr<const Bitmaps> Load(StringView prefix, HINSTANCE module);

    std::unique_ptr<const Bitmaps> FBitmaps;
    TNinePartPieces FPieces;
};

/// Fills the bitmap with the colour and draws the frame along its edges: corners at their own size, top and
/// bottom edges stretched between the corners, side edges stretched between them where there is room. Pieces
/// may overlap in a bitmap that is too small for them; they are drawn in the order top row, bottom row,
/// sides.
void ComposeNinePartFrame(TBitmap& Bitmap, const TNinePartPieces& Pieces, TColor FillColor);

}  // namespace qv7skin
