#pragma once

#include <memory>

#include "platform/vcl/core/Object.h"
#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TImage;
}  // namespace vcl

namespace qv7skin {

/// A picture that is widened to an image control by repeating its middle column, so that its ends stay as
/// they are.
class TStretchedBitmap : public TObject {
public:
    TStretchedBitmap();
    ~TStretchedBitmap() override;

    /// The picture, owned. One that is filled in place gives its middle column with the first display;
    /// changed again after that, it needs `Init`.
    [[nodiscard]] TBitmap& GetBitmap() const { return *FBitmap; }
    /// Takes over a copy of the picture; null empties it.
    void SetBitmap(const TBitmap* Source);
    /// A copy of the column at `SplitX`, one pixel wide.
    [[nodiscard]] const TBitmap& GetCenterColumn() const { return *FCenterColumn; }
    /// Half of the picture's width.
    [[nodiscard]] int GetSplitX() const { return FSplitX; }
    /// True once the middle column was taken.
    [[nodiscard]] bool GetInitialized() const { return FInitialized; }
    /// Takes the middle column from the picture.
    void Init();
    /// Shows the widened picture in the control, which becomes transparent; nothing for an empty picture or a
    /// null control.
    void DisplayInImage(TImage* Image);

    /// The colour that the shown picture leaves out, 0 (black) at first.
    TColor TransparentColor = 0;

private:
    std::unique_ptr<TBitmap> FBitmap;
    std::unique_ptr<TBitmap> FCenterColumn;
    int FSplitX = 0;
    bool FInitialized = false;
};

/// Shows the bitmap in the image control as `TStretchedBitmap` does - it is widened, whatever the name says.
/// The colour left out is that of the result at the right edge in the middle of its height. Null does
/// nothing.
void DisplayVerticallyStretchedBitmapInImage(const TBitmap* Bitmap, TImage* Image);

}  // namespace qv7skin
