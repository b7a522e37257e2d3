#pragma once

#include "header/drag/HeaderDragObject.h"
#include "platform/vcl/controls/DragImageList.h"

namespace qv7skin {

/// Lets the picture of the item follow the pointer, with a cursor of its own. A header control uses it when
/// its `CreateDragDropObject` makes one.
class TQV7SkinHeaderDragObject : public TQV7SkinHeaderDragObjectBase {
public:
    /// The cursor while the drop is accepted. The first such object registers one with the screen, unless the
    /// program did.
    static constexpr TCursor AcceptCursor = 4711;

    TQV7SkinHeaderDragObject(TQV7SkinHeaderControl* AControl, TQV7SkinHeaderItemCustom* AItem);
    ~TQV7SkinHeaderDragObject() override;

protected:
    [[nodiscard]] TCursor GetDragCursor(bool accepted, int x, int y) override;
    [[nodiscard]] TDragImageList* GetDragImages() override;
    /// Makes the picture when the drag begins.
    virtual void PrepareDragIcon();
    /// Draws the item over the whole bitmap, which is as large as the item and magenta (0x00FF00FF); what
    /// stays magenta is not part of the picture.
    virtual void DrawDragIcon(TBitmap& Bitmap);

private:
    std::unique_ptr<TDragImageList> FImages;
};

}  // namespace qv7skin
