#pragma once

#include <memory>
#include <unordered_set>
#include <vector>

#include "explorerbar/groups/FrameTimer.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/Strings.h"
#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TCanvas;
}  // namespace vcl

namespace qv7skin {

class TExplorerSkin;
class TQV7SkinExplorerBar;
class TQV7SkinExplorerItemCustom;
class TQV7SkinExplorerItems;

/// How far a group's body is open. An opening group counts as open, a closing one as closed.
enum class TExplorerGroupState { egsOpen, egsClosed, egsOpening, egsClosing };
using enum TExplorerGroupState;

/// A section of an explorer bar: a header of 19 pixels with a title and a button, and below it a body with
/// items. A click on the header opens or closes the body, step by step when the bar animates.
///
/// Groups have no window. They measure and paint themselves into the bar's bitmap, one below the other;
/// positions are pixels of that bitmap, 218 wide by default and as high as the whole content.
class TQV7SkinExplorerGroup : public TObject, public TGuarded {
public:
    /// The bar may be null until the group comes into a bar's list.
    explicit TQV7SkinExplorerGroup(TQV7SkinExplorerBar* ExBar);
    ~TQV7SkinExplorerGroup() override;

    // --- what the host sets
    [[nodiscard]] const String& GetTitle() const { return FTitle; }
    void SetTitle(const String& Value);
    /// The image of the bar's `GroupIcons` in the header; -1, as at first, is none.
    [[nodiscard]] int GetGroupIconIndex() const { return FGroupIconIndex; }
    void SetGroupIconIndex(int Value);
    /// Whether the header shows the second pair of colours.
    [[nodiscard]] bool GetSpecialGroup() const { return FSpecialGroup; }
    void SetSpecialGroup(bool Value);
    [[nodiscard]] bool GetVisible() const { return FVisible; }
    void SetVisible(bool Value);
    /// The picture in the bottom right corner of the body, or null. A new one is copied and seen with the
    /// next repaint; null takes it away.
    [[nodiscard]] const TBitmap* GetBgImage() const { return FBgImage.get(); }
    void SetBgImage(const TBitmap* Value);
    /// The items, to be added to and taken from.
    [[nodiscard]] TQV7SkinExplorerItems& GetItems() const { return *FItems; }
    /// The bar that shows the group, or null.
    [[nodiscard]] TQV7SkinExplorerBar* GetExBar() const { return FExBar; }
    void SetExBar(TQV7SkinExplorerBar* Value) { FExBar = Value; }
    /// The width in pixels; the bar sets it.
    [[nodiscard]] int GetWidth() const { return FWidth; }
    void SetWidth(int Value) { FWidth = Value; }
    /// The same as the bar's.
    void BeginUpdate();
    void EndUpdate();

    // --- opening and closing
    /// Opens a closed group and closes an open one, turns a running slide round; nothing for a group without
    /// shown items.
    void OpenClose();
    [[nodiscard]] TExplorerGroupState GetState() const { return FState; }
    /// True when nothing of the body is to be seen, or soon nothing: closed, closing, no items, none shown.
    [[nodiscard]] bool IsClosed() const;
    /// Pixels of the body that are seen now, that show all items, and that the running slide ends at.
    [[nodiscard]] int GetBodyHeight() const { return FBodyHeight; }
    [[nodiscard]] int GetFullHeight() const { return FFullHeight; }
    [[nodiscard]] int GetTargetHeight() const { return FTargetHeight; }
    /// Pixels of the next step of the slide, and the step that is its last.
    [[nodiscard]] int GetStep() const { return FStep; }
    [[nodiscard]] int GetMaxStep() const { return FMaxStep; }

    // --- laying out and painting
    /// Decides which items show, finds how high the body is, and moves `Top` below the group. Nothing while
    /// the bar is being updated.
    void Measure(TBitmap& Bitmap, int& Top);
    /// Measures with the bar's bitmap.
    void Measure();
    /// Paints header, body and items and moves `Top` below the group. Nothing while the bar is being updated.
    void Draw(TBitmap& Bitmap, int& Left, int& Top);
    /// Paints the header without its title, in a width of its own.
    void DrawHead(TBitmap& Bitmap, int Left, int Top, int Width, bool SpecialGroup, bool Closed,
                  TColor HeaderColor);
    /// A dotted frame in white.
    void DrawFocusRect(TCanvas& Canvas, const TRect& Rect) const;
    /// The column where the texts of caption and block pairs start, less 10 pixels.
    [[nodiscard]] int CalcBlockOffset(TBitmap& Bitmap, int Width, int Top) const;
    /// How many items the last measuring found to be shown.
    [[nodiscard]] int MeasuredItems() const;
    /// Where header and body were last painted.
    [[nodiscard]] const TRect& HeaderRect() const { return FHeaderRect; }
    [[nodiscard]] const TRect& BodyRect() const { return FBodyRect; }

    // --- mouse and keyboard
    /// True while the mouse is over the header.
    [[nodiscard]] bool IsHotArea() const;
    /// True while the header has the keyboard focus.
    [[nodiscard]] bool IsFocused() const;
    [[nodiscard]] bool IsLastVisibleGroup() const;
    /// Scrolls the bar just so far that the header, or the whole group, is seen.
    void ScrollIntoView(bool Header);

    /// The visible item painted at the point, or null.
    [[nodiscard]] TQV7SkinExplorerItemCustom* ItemAt(int X, int Y);
    /// Brings the item's `ClipRect` up to where painting would put it, for items that are out of sight.
    void PlaceItem(TQV7SkinExplorerItemCustom& Item);
    /// The rows of the bar's bitmap that the item takes, first and behind the last.
    [[nodiscard]] std::pair<int, int> RowsOf(const TQV7SkinExplorerItemCustom& Item);

    /// One step of the running slide; the timer calls it every 30 milliseconds.
    void Timer(TObject* Sender);

    // --- called by items and their list
    /// The list got, lost or moved items.
    void ItemsChanged();
    /// The item is about to leave: the bar forgets it where it was the one under the mouse.
    void ItemLeaves(const TQV7SkinExplorerItemCustom& Item);
    /// The item looks different and may be painted with another height than before.
    void ItemLooksChanged(const TQV7SkinExplorerItemCustom& Item);

private:
    void Refresh(bool Remeasure);
    [[nodiscard]] bool IsUpdating() const;
    [[nodiscard]] bool IsSliding() const { return FState == egsOpening || FState == egsClosing; }
    // layout
    void DecideWhatShows();
    void MeasureItems(TBitmap& Bitmap, int Top);
    [[nodiscard]] int IndexOf(const TQV7SkinExplorerItemCustom& Item) const;
    [[nodiscard]] int ItemTop(int Index) const;
    void EnsurePlaces(TBitmap& Bitmap);
    [[nodiscard]] int PaintedHeight(TBitmap& Bitmap, int Index, int Top);
    void PlaceAt(int Index);
    // painting
    void DrawHeader(TBitmap& Bitmap, int Left, int Top);
    void DrawTitle(TCanvas& Canvas, int Left, int Top);
    void DrawButton(TCanvas& Canvas, int Top, int Width, bool Closed);
    void DrawBody(TBitmap& Bitmap, int Left, int& Top, const TRect& Reach);
    void DrawGround(TCanvas& Canvas, const TRect& Body, const TRect& Area);
    void DrawItems(TBitmap& Bitmap, int Left, const TRect& Area);
    void DrawItem(TBitmap& Bitmap, int Index, int& Left, int& Top);
    // sliding
    void StartSlide(bool Opening);
    void StopSlide(TExplorerGroupState State);
    [[nodiscard]] int StepChange() const { return FFullHeight / 150 + 1; }

    std::shared_ptr<const TExplorerSkin> FSkin;
    TQV7SkinExplorerBar* FExBar = nullptr;
    int FStep = 0;
    int FMaxStep = 0;
    int FTargetHeight = 25;
    int FBodyHeight = 25;
    std::unique_ptr<TBitmap> FBgImage;
    int FGroupIconIndex = -1;
    std::unique_ptr<TQV7SkinExplorerItems> FItems;
    bool FSpecialGroup = false;
    TExplorerGroupState FState = egsOpen;
    TFrameTimer FTimer;
    String FTitle;
    TRect FHeaderRect;
    TRect FBodyRect;
    bool FVisible = true;
    int FFullHeight = 25;
    int FWidth = 0;

    // What is known of the items' places, so that those out of sight can be left out. Bottoms count from
    // where the first item starts: at first as measured, then as painted.
    std::vector<int> FBottoms;
    std::unordered_set<const TQV7SkinExplorerItemCustom*> FTouched;  ///< Changed since they were measured.
    bool FPlacesKnown = false;
    int FMeasuredWidth = -1;  ///< The width that all items were measured for; -1: not all were.
    int FBlockOffset = -1;    ///< -1: not known.
    int FItemsTop = 0;        ///< Where the first item started when the group was last painted.
    mutable int FShownCount = -1;
};

}  // namespace qv7skin
