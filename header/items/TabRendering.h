#pragma once

#include <array>
#include <memory>

#include "header/items/HeaderItem.h"
#include "header/items/ItemShape.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Font.h"

namespace qv7skin {

/// Remembers a picture of the host's, to see later whether it is the same with the same pixels.
class TPictureWitness {
public:
    void Take(const TBitmap* picture);
    [[nodiscard]] bool Saw(const TBitmap* picture) const;

private:
    const TBitmap* FPicture = nullptr;  ///< Only compared.
    TBitmap FPixels;  ///< Shares the picture's pixels as long as the host does not change them.
};

/// What a tab shows in one of its states: its background, the shape of that, and its face, which is the
/// background with picture and caption.
class TTabRendering {
public:
    /// What the background was painted for: the control's number for its look.
    int Look = 0;
    TBitmap Background;
    TItemShape Shape;

    /// What the face was drawn for. The font is null while there is no face.
    TSharedFont Font;
    String Caption;
    TPictureWitness Image;
    TBitmap Face;

    void DropFace() { Font.reset(); }
    [[nodiscard]] bool HasSize(int width, int height) const {
        return Background.GetWidth() == width && Background.GetHeight() == height;
    }
};

/// The renderings of a tab, one per state.
class TTabRenderings : public THeaderItemPictures {
public:
    std::array<std::unique_ptr<TTabRendering>, HeaderItemStateCount> States;
    int Shown = -1;  ///< The state that the tab shows, -1 before the first.

    [[nodiscard]] TTabRendering* ShownRendering() const {
        return Shown < 0 ? nullptr : States[static_cast<std::size_t>(Shown)].get();
    }
};

}  // namespace qv7skin
