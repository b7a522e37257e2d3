#pragma once

#include <memory>

#include "header/items/HeaderItem.h"
#include "platform/vcl/controls/CustomControl.h"

namespace vcl {
class TDragObject;
enum class TDragState;
}  // namespace vcl

namespace qv7skin {

class TFlickerFreePaintBox;
class TQV7SkinHeaderChevronBase;
class TQV7SkinHeaderDragObjectBase;
class TQV7SkinHeaderItems;

/// Sender, and the item's former and new index.
using THeaderItemMovedEvent = TEvent<void(TObject*, int, int)>;

/// A strip that shows a row of items, scrolls it by whole items, shows a chevron when the items do not fit,
/// hands the mouse to the items and lets the user drag them to another place.
///
/// The items are painted into the buffer of a paint box that covers the strip, and all mouse and drag events
/// come through it. Widths are those that the items measure on the buffer's canvas.
///
/// Each of the `DoPaintbox...` operations handles the paint box's event of that name.
class TQV7SkinHeaderControl : public TCustomControl, public THeaderItemHost {
public:
    /// 200 x 21 pixels.
    explicit TQV7SkinHeaderControl(TComponent* AOwner);
    ~TQV7SkinHeaderControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// An item was moved to another place.
    THeaderItemMovedEvent OnItemMoved;

    [[nodiscard]] TQV7SkinHeaderItems& GetItems() const { return *FItems; }
    [[nodiscard]] TFlickerFreePaintBox& GetPaintBox() const { return *FPaintBox; }
    /// The chevron; made when it is first asked for.
    [[nodiscard]] TQV7SkinHeaderChevronBase& GetChevron();
    /// True while the chevron shows.
    [[nodiscard]] bool GetChevronVisible() const;

    /// Whether items may be dragged to another place; false at first.
    [[nodiscard]] bool GetAllowItemDrag() const { return FAllowItemDrag; }
    /// Whether the items' `OnUndock` is raised at the end of each drag; false at first.
    [[nodiscard]] bool GetAllowItemUndock() const { return FAllowItemUndock; }
    /// Whether an item that does not fit wholly is left out; false at first.
    [[nodiscard]] bool GetHideClippedItems() const { return FHideClippedItems; }
    /// The margin left and right of the row in pixels; 0 at first.
    [[nodiscard]] int GetHorzOffset() const { return FHorzOffset; }
    /// The menu that the chevron opens; not owned.
    [[nodiscard]] TContextMenu* GetChevronDropDown() const { return FChevronDropDown; }
    void SetChevronDropDown(TContextMenu* Value);
    /// The index of the item that the row begins with.
    [[nodiscard]] int GetFirstVisibleIndex() const { return FFirstVisibleIndex; }
    /// The index of the item under the mouse, or -1.
    [[nodiscard]] int GetIndexOfItemMouseOver() const { return FIndexOfItemMouseOver; }
    /// True between `BeginUpdate` and the `EndUpdate` that ends it.
    [[nodiscard]] bool GetUpdating() const { return FUpdating; }

    /// The item at the point (client pixels), or null.
    [[nodiscard]] TQV7SkinHeaderItemCustom* GetItemAt(int X, int Y);
    /// Its index, or -1. The row counts from x = 0 here, whatever `HorzOffset` is.
    [[nodiscard]] int GetItemIndexAt(int X, int Y);

    // --- what kinds of header controls do differently
    virtual void SetAllowItemUndock(bool Value);
    virtual void SetAllowItemDrag(bool Value);
    /// The item under the mouse, or null.
    [[nodiscard]] virtual TQV7SkinHeaderItemCustom* GetHotItem();
    /// The width between the margins in pixels.
    [[nodiscard]] virtual int GetClippedWidth();
    /// Lets each visible item measure itself, but for those that know for themselves when to.
    virtual void Measure();
    /// Whether the row can be scrolled back, and on.
    [[nodiscard]] virtual bool CanScrollPrior();
    [[nodiscard]] virtual bool CanScrollNext();
    virtual void SetHorzOffset(int Value);
    /// The first selected item, or null.
    [[nodiscard]] TQV7SkinHeaderItemCustom* GetSelectedItem() const override;
    void SetSelectedItem(TQV7SkinHeaderItemCustom* Item) override;
    /// Tells the item that the mouse leaves and the one that it comes to (-1: none), and paints the row.
    virtual void SetIndexOfItemMouseOver(int Index);
    virtual void SetHideClippedItems(bool Value);
    /// The item's rectangle, the row counted from x = 0; empty for an item that is not in the row, invisible
    /// or scrolled away to the left.
    [[nodiscard]] virtual TRect GetItemRect(int Index);
    [[nodiscard]] virtual TRect GetItemRect(const TQV7SkinHeaderItemCustom* Item);
    [[nodiscard]] virtual TRect GetHotItemRect();
    /// The index of the last item that fits into the row (with `HideClippedItems`) or is cut off by its end;
    /// -1 when all items fit.
    [[nodiscard]] virtual int GetIndexOfLastItemToDraw();
    /// Shows the chevron at the right edge, or hides it.
    virtual void DrawChevron();
    virtual void DrawItems(TBitmap& Bitmap);
    virtual void PaintBackground(TBitmap& Bitmap);
    /// Makes the chevron; its owner is the control.
    [[nodiscard]] virtual TQV7SkinHeaderChevronBase* CreateChevron();
    /// Makes the object that carries the drag of the item under the mouse.
    [[nodiscard]] virtual std::shared_ptr<TQV7SkinHeaderDragObjectBase> CreateDragDropObject();
    virtual void DoPaintboxStartDrag(TObject* Sender, TDragObject*& DragObject);
    virtual void DoPaintboxEndDrag(TObject* Sender, TObject* Target, int X, int Y);
    virtual void DoPaintboxDragOver(TObject* Sender, TObject* Source, int X, int Y, TDragState State,
                                    bool& Accept);
    virtual void DoPaintBoxDragDrop(TObject* Sender, TObject* Source, int X, int Y);
    virtual void DoPaintboxPaint(TObject* Sender, TBitmap* Bitmap);
    virtual void DoPaintboxMouseEnter(TObject* Sender);
    virtual void DoPaintboxMouseLeave(TObject* Sender);
    virtual void DoPaintboxMouseMove(TObject* Sender, TShiftState Shift, int X, int Y);
    virtual void DoPaintboxMouseDown(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void DoPaintboxMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    /// Scrolls by items; a step that would leave the row is no step at all.
    virtual void ScrollBy(int Delta);
    virtual void ScrollFirst();
    /// Scrolls so far that the last items fill the strip; not at all when all items fit.
    virtual void ScrollLast();
    /// Scrolls no farther than needed to show the item.
    virtual void ScrollInView(const TQV7SkinHeaderItemCustom* Item);
    virtual void ScrollInView(int Index);
    /// Until the last `EndUpdate` nothing is painted.
    virtual void BeginUpdate();
    virtual void EndUpdate();
    /// Moves an item to another place and raises `OnItemMoved`.
    virtual void Move(int FromIndex, int ToIndex);

    /// Marks the row for being measured and painted.
    void Invalidate() override;
    /// Paints the row now, unless updating.
    void Repaint() override;

    // --- for items
    [[nodiscard]] bool IsUnderMouse(const TQV7SkinHeaderItemCustom& Item) const override;
    void ReleaseItem(TQV7SkinHeaderItemCustom& Item) override;
    [[nodiscard]] TLifeGuard HostGuard() const override { return TLifeGuard(*this); }

protected:
    void Dispatch(TMessage& message) override;
    void Resize() override;
    void Notification(TComponent* component, TOperation operation) override;

    /// The object of the drag under way, or null.
    [[nodiscard]] const std::shared_ptr<TQV7SkinHeaderDragObjectBase>& GetDragObject() const {
        return FDragObject;
    }

private:
    /// The item at a point, -1 for none, and its left edge.
    struct THit {
        int Index = -1;
        int Left = 0;
    };

    void ConnectPaintBox();
    void PaintRow(TObject* Sender, TBitmap* Bitmap);
    [[nodiscard]] TCanvas& MeasuringCanvas() const;
    [[nodiscard]] int WidthOf(int Index) const;
    [[nodiscard]] int VisibleWidthOf(int Index) const;
    [[nodiscard]] bool AreWiderThan(int Limit, int FromIndex) const;
    [[nodiscard]] bool IsIndex(int Index) const;
    [[nodiscard]] THit HitAt(TPoint Point) const;
    [[nodiscard]] TRect PaintedPlaceOf(int Index);
    [[nodiscard]] bool DoAllKeepPictures() const;
    [[nodiscard]] bool DrawOver(int Index, const TRect& Place);
    void RepaintHovered(int Former);
    void ForgetFarPictures();
    void DrawClipped(TCanvas& Canvas, const TRect& Clip, int Index, int& X);
    // dragging
    void ConnectDragging();
    void StartDragFarFrom(TPoint Point);
    void DrawDropMarker(TBitmap& Bitmap);

    std::unique_ptr<TFlickerFreePaintBox> FPaintBox;
    TQV7SkinHeaderChevronBase* FChevron = nullptr;  ///< The control owns it as a component.
    std::unique_ptr<TQV7SkinHeaderItems> FItems;
    bool FHideClippedItems = false;
    TContextMenu* FChevronDropDown = nullptr;
    int FFirstVisibleIndex = 0;
    bool FNeedsMeasuring = true;
    int FHorzOffset = 0;
    int FIndexOfItemMouseOver = -1;
    int FUpdateCount = 0;
    bool FUpdating = false;
    bool FAllowItemDrag = false;
    bool FAllowItemUndock = false;
    TPoint FDragStart{-1, -1};  ///< Where a press may become a drag; (-1, -1) for none.
    bool FDragStarting = false;
    std::shared_ptr<TQV7SkinHeaderDragObjectBase> FDragObject;

    int FPaintedEnd = 0;  ///< The index after the last item that was painted.
    int FKeptFrom = 0;    ///< From here ...
    int FKeptEnd = 0;     ///< ... up to here, but without, items may keep pictures.
};

}  // namespace qv7skin
