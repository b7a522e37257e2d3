#pragma once

#include <memory>
#include <optional>

#include "platform/vcl/controls/DragObject.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/LifeGuard.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TTimer;
}  // namespace vcl

namespace qv7skin {

class TQV7SkinHeaderControl;
class TQV7SkinHeaderItemCustom;

/// Carries the drag of an item along the row of a header control: knows between which items it would be
/// dropped, marks the place, and scrolls the row while the pointer is near one of its ends.
///
/// The control owns it, from the start of the drag to its end. Control and item may be freed meanwhile.
class TQV7SkinHeaderDragObjectBase : public TBaseDragControlObject {
public:
    /// Milliseconds between two steps of scrolling.
    static constexpr unsigned ScrollInterval = 500;

    /// Without an item (null) nothing will be moved.
    TQV7SkinHeaderDragObjectBase(TQV7SkinHeaderControl* AControl, TQV7SkinHeaderItemCustom* AItem);
    ~TQV7SkinHeaderDragObjectBase() override;

    /// The dragged item, or null once it was freed.
    [[nodiscard]] TQV7SkinHeaderItemCustom* GetItem() const;
    [[nodiscard]] TQV7SkinHeaderControl* GetHeaderControl() const { return FHeaderControl; }
    /// The dragged item's present index, or -1 when it is not in the row any more.
    [[nodiscard]] int GetItemIndex() const;
    /// Whether the pointer is over an item of the control; the control sets it on every drag-over. The
    /// marker, the drop and the scrolling act only while it is on.
    [[nodiscard]] bool GetOverItem() const { return FOverItem; }
    void SetOverItem(bool Value) { FOverItem = Value; }
    /// The control's `AllowItemUndock` when the drag began.
    [[nodiscard]] bool GetUndock() const { return FUndock; }
    /// Scrolls while the drag is under way.
    [[nodiscard]] const TTimer& GetScrollTimer() const { return *FTimer; }
    /// The indices of the items left and right of the marker; -1 and the count of items where there is none.
    [[nodiscard]] int GetLeftIndex() const { return FLeftIndex; }
    [[nodiscard]] int GetRightIndex() const { return FRightIndex; }

    /// Finds the place of the drop and paints the marker there.
    virtual void DrawDropPreview(TBitmap& Bitmap);
    /// The index that the item would be moved to, or -1 when it would stay.
    [[nodiscard]] virtual int GetTargetDropTabIndex();

protected:
    /// Where the marker stands.
    struct TMarker {
        int X = 0;                ///< Pixels of the row.
        bool BeforeItem = false;  ///< In front of the item under the mouse, not behind it.
    };
    /// Takes the left and right index from the item under the mouse and the half of it that the pointer is
    /// on. False, and no indices, when no item is under the mouse.
    bool FindPlace(TMarker& Marker);
    /// A white bar over the full height of the row, `HalfWidth` pixels to either side of the marker.
    void DrawBar(TBitmap& Bitmap, const TMarker& Marker, int HalfWidth) const;
    /// A step of scrolling, when the pointer is near an end of the row.
    void DoTimer(TObject* Sender);
    [[nodiscard]] TCursor GetDragCursor(bool accepted, int x, int y) override;
    /// The pointer in client pixels of the control.
    [[nodiscard]] TPoint PointerInControl() const;

private:
    void Scroll(int Delta);

    TQV7SkinHeaderItemCustom* FItem;
    std::optional<TLifeGuard> FItemAlive;
    TQV7SkinHeaderControl* FHeaderControl;
    bool FOverItem = false;
    std::unique_ptr<TTimer> FTimer;
    bool FUndock;
    int FLeftIndex = -1;
    int FRightIndex = -1;
};

}  // namespace qv7skin
