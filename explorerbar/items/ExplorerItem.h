#pragma once

#include "explorerbar/items/SpareEvent.h"
#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/Strings.h"
#include "platform/vcl/graphics/Color.h"
#include "skin/Namespace.h"

namespace vcl {
class TBitmap;
class TCanvas;
class TCustomImageList;
}  // namespace vcl

namespace qv7skin {

class TQV7SkinExplorerBar;
class TQV7SkinExplorerGroup;

/// Columns of pixels from `Left` up to, without, `Right`.
struct TColumns {
    int Left = 0;
    int Right = 0;
};

/// What a group of an explorer bar holds: an object that has no window, paints itself at a running position
/// and hears of mouse and keyboard through the bar. The item list of its group owns it.
///
/// Positions are pixels of the bar's bitmap. Whatever an item raises comes last in what it does, so that a
/// handler may free the item.
class TQV7SkinExplorerItemCustom : public TObject {
public:
    TQV7SkinExplorerItemCustom() = default;
    /// The bar forgets the item when it was under the mouse.
    ~TQV7SkinExplorerItemCustom() override;

    /// Whether the host wishes to see the item; true at first.
    [[nodiscard]] bool GetVisible() const { return FVisible; }
    /// The group that shows the item; null while it is in no list.
    [[nodiscard]] TQV7SkinExplorerGroup* GetOwner() const { return FOwner; }
    /// The hint that the bar shows while the mouse is over the item; none when empty.
    [[nodiscard]] const String& GetHint() const { return FHint; }
    /// Where the item was last painted; empty before.
    [[nodiscard]] const TRect& ClipRect() const { return FClipRect; }
    /// The group's verdict when it last measured: visible, and no separator that would separate nothing. It
    /// decides about painting; mouse and focus go by `GetVisible`.
    [[nodiscard]] bool GetShown() const { return FShown; }
    void SetShown(bool Value) { FShown = Value; }

protected:
    bool FVisible = true;
    TQV7SkinExplorerGroup* FOwner = nullptr;
    String FHint;
    TRect FClipRect;
    bool FShown = false;

public:
    /// Raised with the item as sender: by a click with the mouse or Return; when the mouse comes and goes.
    TNotifyEvent OnClick;
    TSpareEvent<void(TObject*)> OnEnter;
    TSpareEvent<void(TObject*)> OnLeave;

    /// Paints the item at (Left, Top) for a group of that width, keeps where, and moves `Top` below it.
    virtual void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width);
    /// Moves `Top` as `Draw` does, without painting. Texts are measured in the font of the bitmap's canvas.
    virtual void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width);
    /// Called by the item list. An item that leaves its group is no longer the one under the mouse.
    virtual void SetOwner(TQV7SkinExplorerGroup* Group);
    virtual void SetVisible(bool Value);
    /// True while the mouse is over the item.
    [[nodiscard]] virtual bool IsHotArea() const;
    /// True when nothing but hidden items and separators follows in the group; false without a group.
    [[nodiscard]] virtual bool IsLastVisibleItem() const;
    /// Whether the keyboard focus may rest on the item.
    [[nodiscard]] virtual bool GetCanFocus() const { return false; }
    virtual void DoClick();
    /// The mouse came. Items that can be clicked set the cursor to the pointing hand.
    virtual void DoEnter(TCursor& Cursor);
    /// The mouse went.
    virtual void DoLeave(TCursor& Cursor);
    /// Has the bar repaint, and measure before when `Remeasure` is set. Within the bar's `BeginUpdate` and
    /// `EndUpdate` it is repainted at their end.
    virtual void Refresh(bool Remeasure);
    /// Scrolls the bar just so far that the item is seen.
    virtual void ScrollIntoView();

    /// Keeps the hint; kinds whose hint concerns the layout refresh.
    virtual void SetHint(const String& Value) { FHint = Value; }
    /// Keeps where `Draw` at this position would paint, without painting: for rows out of sight.
    virtual void Place(TBitmap& Bitmap, int Left, int Top, int Width);
    /// Whether `Draw` moves `Top` exactly as `Measure` does. A kind that answers false has `Place` leave a
    /// `ClipRect` whose bottom is where `Draw` would end.
    [[nodiscard]] virtual bool PaintsAsMeasured() const { return true; }
    /// The columns in which `Draw` paints something else while the mouse is over the item, out of a group of
    /// that width: all of them, unless a kind knows better. The bar repaints no others when the mouse comes
    /// or goes.
    [[nodiscard]] virtual TColumns HotColumns(int Width) const { return {0, Width}; }
    /// What Return does on the item: it clicks it.
    virtual void ReturnPressed() { Click(); }
    /// True for the kind that a group leaves out where it would separate nothing.
    [[nodiscard]] virtual bool IsSeparator() const { return false; }

    void Click() { DoClick(); }
    /// True while the item has the keyboard focus.
    [[nodiscard]] bool IsFocused() const;
    /// A dotted frame in the bar's default focus colour.
    void DrawFocusRect(TCanvas& Canvas, const TRect& Rect) const;

protected:
    /// The bar of the item's group; null without one.
    [[nodiscard]] TQV7SkinExplorerBar* GetBar() const;
    /// The width of the group; `Width` for an item without a group.
    [[nodiscard]] int GroupWidth(int Width) const;
    /// The images for links; null without a bar, or when it has none.
    [[nodiscard]] const TCustomImageList* ItemIcons() const;
    /// The colour of texts that change it under the mouse; black without a bar.
    [[nodiscard]] TColor TextColor(bool Hot) const;
    /// Stores a value and refreshes, when it is another one.
    template <class V>
    void Change(V& Field, const V& Value, bool Remeasure = false) {
        if (Field == Value) return;
        Field = Value;
        Refresh(Remeasure);
    }
};

}  // namespace qv7skin
