#pragma once

#include "header/drag/HeaderDragObject.h"

namespace qv7skin {

/// Marks the place of the drop with a thin bar and an arrow that points at it. The object that header
/// controls use.
class TQV7SkinHeaderDragObjectWithDragArrows : public TQV7SkinHeaderDragObjectBase {
public:
    TQV7SkinHeaderDragObjectWithDragArrows(TQV7SkinHeaderControl* AControl, TQV7SkinHeaderItemCustom* AItem);
    ~TQV7SkinHeaderDragObjectWithDragArrows() override;

    void DrawDropPreview(TBitmap& Bitmap) override;

private:
    std::unique_ptr<TBitmap> FLeftArrow;
    std::unique_ptr<TBitmap> FRightArrow;
};

}  // namespace qv7skin
