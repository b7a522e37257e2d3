#pragma once

#include <memory>
#include <utility>

#include "header/items/HeaderItemHost.h"
#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/graphics/Font.h"

namespace qv7skin {

/// Tells which item it is about.
using THeaderItemEvent = TEvent<void(TQV7SkinHeaderItemCustom*)>;
/// Item, button, keys, and the point: X from the item's left edge, Y from the row's top, in pixels.
using THeaderItemClickEvent = TEvent<void(TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int)>;
/// Item, canvas, the row's height, and the left edge of the item.
using THeaderItemDrawEvent = TEvent<void(TQV7SkinHeaderItemCustom*, TCanvas&, int, int&)>;
/// Item, canvas, and the width to which the handler adds that of the item.
using THeaderItemMeasureEvent = TEvent<void(TQV7SkinHeaderItemCustom*, TCanvas&, int&)>;

/// What an item rendered and keeps, to be copied whenever it is painted.
class THeaderItemPictures {
public:
    THeaderItemPictures() = default;
    virtual ~THeaderItemPictures() = default;
    THeaderItemPictures(const THeaderItemPictures&) = delete;
    THeaderItemPictures& operator=(const THeaderItemPictures&) = delete;
};

/// An item of a header control: no control of its own, but it measures and paints itself in the row, tells
/// whether a point is on it, and reacts to clicks. This plain one is a framed rectangle with a caption.
///
/// The list of the control owns its items. A handler may free the item that raised the event: an item that
/// is deleted takes itself out of its row.
class TQV7SkinHeaderItemCustom : public TObject, public TGuarded {
public:
    TQV7SkinHeaderItemCustom() = default;
    explicit TQV7SkinHeaderItemCustom(const String& ACaption) : FCaption(ACaption) {}
    ~TQV7SkinHeaderItemCustom() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Invisible items take no room, are not painted and never hit. True at first.
    [[nodiscard]] bool GetVisible() const { return FVisible; }
    void SetVisible(bool Value);
    /// The control whose row the item stands in, or null; not owned.
    [[nodiscard]] THeaderItemHost* GetOwner() const { return FOwner; }
    /// The control as one that paints backgrounds of items, or null.
    [[nodiscard]] THeaderBackgroundPainter* GetBackgroundPainter() const { return FPainter; }
    [[nodiscard]] bool GetSelected() const { return FSelected; }
    [[nodiscard]] const String& GetCaption() const { return FCaption; }

    /// The mouse came to, or went off the item.
    THeaderItemEvent OnEnter;
    THeaderItemEvent OnLeave;
    THeaderItemClickEvent OnClick;
    /// Paints the item instead of itself.
    THeaderItemDrawEvent OnDraw;
    /// Measures the item instead of itself.
    THeaderItemMeasureEvent OnMeasure;
    /// A drag of the item ended, in a control with `AllowItemUndock`.
    THeaderItemEvent OnUndock;

    // --- what kinds of items do differently
    virtual void SetCaption(const String& Value);
    /// Asks the control to select the item alone, or, when it is the selected one, none.
    virtual void SetSelected(bool Value);
    /// Selects the item, paints the row and raises `OnClick`. X counts from the item's left edge.
    virtual void Click(TMouseButton Button, TShiftState Shift, int X, int Y);
    /// Asks the control to measure and paint the row.
    virtual void Invalidate();
    /// Paints the row now.
    virtual void Refresh();
    /// True when the point is on the item that takes up the rectangle. May change `Cursor` to the one that
    /// fits the point.
    virtual bool PtInValidRect(const TRect& Rect, const TPoint& Point, TCursor& Cursor);
    /// Paints the item from X, `Height` pixels high, and moves X past it.
    virtual void Draw(TCanvas& Canvas, int& X, int Height);
    /// Adds the item's width to `Width`. Changes the font style of the canvas.
    virtual void Measure(TCanvas& Canvas, int& Width);

    /// True when the item shows the same each time until it is invalidated or the mouse comes or goes, so
    /// that the control need not paint it with each of its neighbours. Never true of an item that the host
    /// draws or measures.
    [[nodiscard]] bool KeepsPicture() const { return FKeepsPicture && !OnDraw && !OnMeasure; }
    /// Frees what the item rendered; it renders that anew when it is painted next. The control asks items to
    /// that are far from the part of the row that shows.
    void ForgetPictures() { FPictures.reset(); }
    /// True when the last `Draw` covered the same pixels as the one before, so that it hid all of that.
    [[nodiscard]] bool KeptShape() const { return FKeptShape; }

    /// Raise `OnEnter` and `OnLeave`.
    void DoEnter() { OnEnter(this); }
    void DoLeave() { OnLeave(this); }

protected:
    /// Gives the canvas' font the style and returns the width of the caption with `suffix` in it. Measures
    /// again only when caption or font changed; an item passes the same suffix each time.
    [[nodiscard]] int CaptionWidth(TCanvas& Canvas, TFontStyles Style, StringView Suffix = {});
    /// Classes whose `Draw` depends on nothing but the item switch it on.
    void SetKeepsPicture(bool Value) { FKeepsPicture = Value; }
    void SetKeptShape(bool Value) { FKeptShape = Value; }
    /// What the item rendered, null when there is nothing; the item owns it.
    [[nodiscard]] THeaderItemPictures* GetPictures() const { return FPictures.get(); }
    void SetPictures(std::unique_ptr<THeaderItemPictures> Value) { FPictures = std::move(Value); }

private:
    friend class TQV7SkinHeaderItems;    // sets the owner
    friend class TQV7SkinHeaderControl;  // owns the selection

    void SetOwner(THeaderItemHost* Value);

    bool FVisible = true;
    THeaderItemHost* FOwner = nullptr;
    bool FSelected = false;
    String FCaption;

    std::unique_ptr<THeaderItemPictures> FPictures;
    bool FKeepsPicture = false;
    bool FKeptShape = false;
    THeaderBackgroundPainter* FPainter = nullptr;  ///< The owner, looked up once.
    String FMeasuredCaption;
    TSharedFont FMeasuredFont;
    int FMeasuredWidth = 0;
};

}  // namespace qv7skin
