#pragma once

#include <memory>

#include "explorerbar/groups/FrameTimer.h"
#include "platform/vcl/controls/ScrollingWinControl.h"
#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TCustomImageList;
}  // namespace vcl

namespace qv7skin {

class TQV7SkinExplorerBarFocus;
class TQV7SkinExplorerGroup;
class TQV7SkinExplorerGroups;
class TQV7SkinExplorerItemCustom;
class TScrolledPaintBox;

/// Sender, the control to be docked, the rectangle in which it may dock, the mouse, and whether it may.
using TGetSiteInfoEvent = TEvent<void(TObject*, TControl*, TRect&, TPoint, bool&)>;

/// A scrolling side bar of collapsible groups with painted items, for mouse, wheel and keyboard.
///
/// The host fills it by code: `Bar->GetGroups().Add(L"Aufgaben", false)->GetItems().Add(new ...)`, between
/// `BeginUpdate` and `EndUpdate` when there is much to change. Groups and items paint into the bitmap of a
/// paint box that is as high as the whole content; their positions are pixels of that bitmap.
class TQV7SkinExplorerBar : public TScrollingWinControl {
public:
    explicit TQV7SkinExplorerBar(TComponent* AOwner);
    ~TQV7SkinExplorerBar() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    // --- colours, set by `SetSkin`
    /// The background, which sliding bodies fade towards.
    TColor FadeColor = clWhite;
    /// The line below each body but the last, and that of a closed group.
    TColor LineColor = 0x00F0EAE7;
    TColor BodyColor = clWhite;
    /// Header and title of a group, and under the mouse.
    TColor HeaderColor = clWhite;
    TColor HeaderHotColor = clWhite;
    TColor SpecialHeaderColor = clBlack;
    TColor SpecialHeaderHotColor = clBlack;
    /// Texts of clickable pairs and check boxes, and under the mouse.
    TColor ItemTextColor = clBlack;
    TColor ItemHotTextColor = clBlack;

    /// The group (header) or item under the mouse, or null. Not owned; items clear it when they go.
    TObject* HotObject = nullptr;
    /// Whether the next repaint measures first.
    bool NeedsMeasure = true;
    /// Raised after the bar has handled that the mouse left it.
    TNotifyEvent OnLeave;
    /// Kept for forms that name a handler; nothing docks on the bar, so it is not raised.
    TGetSiteInfoEvent OnGetSiteInfo;

    [[nodiscard]] TQV7SkinExplorerGroups& GetGroups() const { return *FGroups; }
    /// The surface of groups and items: as high as the content, its buffer holds the rows that are seen.
    [[nodiscard]] TScrolledPaintBox& GetPaintBox() const { return *FPaintBox; }
    [[nodiscard]] TQV7SkinExplorerBarFocus& GetFocus() const { return *FFocus; }
    /// Whether bodies slide and `ShowAnimate` animates.
    [[nodiscard]] bool GetAnimate() const { return FAnimate; }
    void SetAnimate(bool Value) { FAnimate = Value; }
    /// Whether the bar is a tab stop exactly while it has groups.
    [[nodiscard]] bool GetAutoTabStop() const { return FAutoTabStop; }
    void SetAutoTabStop(bool Value);
    /// The icons of group headers and of links; not owned, may be null. A change is seen with the next
    /// repaint.
    [[nodiscard]] TCustomImageList* GetGroupIcons() const { return FGroupIcons; }
    void SetGroupIcons(TCustomImageList* Value);
    [[nodiscard]] TCustomImageList* GetItemIcons() const { return FItemIcons; }
    void SetItemIcons(TCustomImageList* Value);
    /// The height that the last measuring found, in pixels.
    [[nodiscard]] int GetContentHeight() const { return FContentHeight; }

    /// Between the two nothing is measured or painted; the last `EndUpdate` does both. A bar that comes into
    /// sight meanwhile is shown by `EndUpdate` too.
    void BeginUpdate();
    void EndUpdate();
    [[nodiscard]] bool IsUpdating() const { return FUpdating; }
    /// Measures if need be and paints anew; nothing while updating.
    void Repaint() override;
    /// Lays out all groups and gives the paint box the height of the content.
    void Measure();
    /// Unfolds the content in ten steps; nothing while updating and without `Animate`.
    void ShowAnimate();
    /// The colours of the skin.
    void SetSkin();

    /// Scrolls just so far that the item is seen; null is ignored.
    void ScrollIntoView(TQV7SkinExplorerItemCustom* Item);
    /// The place where the item was painted, or the rectangle, moved down by the scroll position.
    [[nodiscard]] TRect ClipRectToClient(const TQV7SkinExplorerItemCustom& Item) const;
    [[nodiscard]] TRect ClipRectToClient(const TRect& Rect) const;
    /// The group (header) or item at the point of the content, or null; without a point that of the cursor.
    [[nodiscard]] TObject* GetHotArea(int X, int Y);
    [[nodiscard]] TObject* GetHotArea();
    /// The list of groups changed: sees to the tab stop.
    void GroupCountChanged();

    // --- called by groups and their list
    /// Groups came, went or moved.
    void GroupsChanged();
    /// The body of a group is open further, or less far: lays out with the heights that are known, and
    /// repaints.
    void GroupSlid();
    /// True while groups need not measure again what has not changed since they did.
    [[nodiscard]] bool KeepsHeights() const { return FKeepsHeights; }
    /// The colour that lies under the groups while they are painted into the bar's bitmap; else `clNone`.
    [[nodiscard]] TColor GetGround() const { return FGround; }
    /// The group is no longer one of the bar's: neither it nor its items are under the mouse.
    void ForgetGroup(const TQV7SkinExplorerGroup& Group);
    /// Whether the mouse is inside the rectangle of the content.
    [[nodiscard]] bool IsCursorIn(const TRect& Rect) const;

protected:
    void Dispatch(TMessage& message) override;
    void Notification(TComponent* component, TOperation operation) override;
    void Resize() override;
    void DoEnter() override;
    void DoExit() override;
    void KeyDown(WORD& key, TShiftState shift) override;
    void ScrollContent(int dx, int dy) override;
    [[nodiscard]] bool HoldsScrollBar(TScrollBarKind kind) const override;

private:
    // layout
    [[nodiscard]] int MeasureGroups(int Width, int Limit);
    [[nodiscard]] bool MeasureContent();
    [[nodiscard]] bool HasRightScrollBar() const;
    [[nodiscard]] bool IsAnyClosing() const;
    [[nodiscard]] bool IsCovered() const;
    // showing
    [[nodiscard]] bool ShowsLater();
    void ShowWindowNow();
    // painting
    void PaintBuffer(TObject* Sender, TBitmap* Buffer);
    void DrawGroups(TBitmap& Buffer);
    void Timer(TObject* Sender);
    // mouse
    void PbMouseMove(TObject* Sender, TShiftState Shift, int X, int Y);
    void PbMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    void MouseLeft(const TMessage& message);
    [[nodiscard]] TCursor EnterHotObject();
    void ShowHintOf(const TObject* Hot, int X, int Y);
    class TPlace;
    void RepaintPlace(const TPlace& Place);

    int FUpdateCount = 0;
    bool FUpdating = false;
    bool FShowsLater = false;
    bool FAnimate = true;
    std::unique_ptr<TQV7SkinExplorerGroups> FGroups;
    TCustomImageList* FGroupIcons = nullptr;
    TCustomImageList* FItemIcons = nullptr;
    TScrolledPaintBox* FPaintBox = nullptr;
    TFrameTimer FAnimTimer;
    int FAnimFrame = 0;
    std::unique_ptr<TQV7SkinExplorerBarFocus> FFocus;
    int FLastWidth = 218;
    int FContentHeight = 0;
    bool FAutoTabStop = true;
    bool FMeasuring = false;
    bool FKeepsHeights = false;
    TColor FGround = clNone;
    TQV7SkinExplorerGroup* FPaintedAlone = nullptr;  ///< The only group that is to be painted now.
};

}  // namespace qv7skin
