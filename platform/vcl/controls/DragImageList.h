#pragma once

#include <memory>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/ImageList.h"

namespace vcl {

class TDragImageWindow;

/// An image list that shows one of its images, half transparent, beside the pointer while something is
/// dragged. The image lies in a window of its own above all others which the mouse does not see, so nothing
/// below it needs painting.
///
/// A drag object returns one from `GetDragImages` after `SetDragImage`; the framework then calls the rest.
class TDragImageList : public TCustomImageList {
public:
    explicit TDragImageList(TComponent* AOwner);
    ~TDragImageList() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Chooses the image, and the point of it that lies under the pointer (pixels of the image). False, and
    /// nothing changes, when there is no such image.
    bool SetDragImage(int index, int hotSpotX, int hotSpotY);
    /// Begins to show it with the pointer at `pointer` (screen pixels); false without an image.
    bool BeginDrag(TPoint pointer);
    /// Lets it follow the pointer (screen pixels); false when none is shown.
    bool DragMove(TPoint pointer);
    /// Takes it away for the time being and shows it again; nothing happens outside of a drag.
    void HideDragImage();
    void ShowDragImage();
    /// Ends the showing; false when nothing was shown.
    bool EndDrag();
    /// True between BeginDrag and EndDrag.
    [[nodiscard]] bool GetDragging() const { return FWindow != nullptr; }
    /// The window that shows the image, or 0.
    [[nodiscard]] HWND GetDragWindow() const;

private:
    int FIndex = -1;
    TPoint FHotSpot;
    std::unique_ptr<TDragImageWindow> FWindow;
};

}  // namespace vcl
