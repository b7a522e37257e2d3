#pragma once

#include <span>

#include "menus/Namespace.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/Sets.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/menus/MenuItem.h"

namespace qv7skin {

/// What of a menu item can be left out.
enum class TQV7SkinMenuItemPainterPart {
    mipSeparatorText,  ///< The hint of a separator as a heading.
    mipDescription,    ///< The hint of an item as a second text below its caption.
    mipShortCut,
    mipGutter  ///< The column for pictures and marks, for items without an image list.
};
using TQV7SkinMenuItemPainterParts = TSet<TQV7SkinMenuItemPainterPart>;
using enum TQV7SkinMenuItemPainterPart;

/// Measures and draws the items of all menus of the skin: near white, with a column for pictures and marks, a
/// highlight of two gradients in a round frame, descriptions below captions and headings in separators.
///
/// The literal characters "#13#10" in a description begin a new line. Sizes are pixels; items are measured in
/// the painter's own fonts on the canvas given.
class TQV7SkinMenuItemPainter : public TObject {
public:
    TQV7SkinMenuItemPainter();

    // --- the drawing, in the order in which descendants of the skin know it
    /// The tick or the dot of an item that is checked.
    virtual void DrawCheckMark(TMenuItem& Item, TCanvas& ACanvas, const TRect& ARect, bool Selected);
    virtual void MeasureSeparator(TMenuItem& Item, TCanvas& ACanvas, int& Width, int& Height);
    virtual void MeasureMenuItem(TMenuItem& Item, TCanvas& ACanvas, int& Width, int& Height);
    /// The same whether selected or not.
    virtual void DrawSeparator(TMenuItem& Item, TCanvas& ACanvas, const TRect& ARect, bool Selected);
    /// `iPaintArrow`: also the arrow of an item with a submenu, which menus of the system draw themselves.
    virtual void DrawMenuItem(TMenuItem& Item, TCanvas& ACanvas, const TRect& ARect, bool Selected,
                              bool iPaintArrow);
    /// A separator or an item.
    virtual void MeasureItem(TMenuItem& Sender, TCanvas& ACanvas, int& Width, int& Height);
    virtual void DrawItem(TMenuItem& Sender, TCanvas& ACanvas, const TRect& ARect, bool Selected,
                          bool iPaintArrow);
    virtual void SetIncludeDescription(bool Value);

    /// A caption in the bar of a main menu.
    void DrawMainMenuRootItem(const String& iCaption, TCanvas& ACanvas, const TRect& ARect, bool iSelected,
                              bool iEnabled);

    /// False: the menus draw as the system does.
    [[nodiscard]] bool GetActive() const { return FActive; }
    void SetActive(bool Value) { FActive = Value; }
    /// All parts at first.
    [[nodiscard]] TQV7SkinMenuItemPainterParts GetDrawingParts() const { return FDrawingParts; }
    void SetDrawingParts(TQV7SkinMenuItemPainterParts Value) { FDrawingParts = Value; }
    [[nodiscard]] bool GetIncludeSeparatorText() const { return FDrawingParts.Contains(mipSeparatorText); }
    void SetIncludeSeparatorText(bool Value) { FDrawingParts.Put(mipSeparatorText, Value); }
    [[nodiscard]] bool GetIncludeDescription() const { return FDrawingParts.Contains(mipDescription); }
    [[nodiscard]] bool GetIncludeShortCut() const { return FDrawingParts.Contains(mipShortCut); }
    void SetIncludeShortCut(bool Value) { FDrawingParts.Put(mipShortCut, Value); }
    [[nodiscard]] bool GetIncludeGutter() const { return FDrawingParts.Contains(mipGutter); }
    void SetIncludeGutter(bool Value) { FDrawingParts.Put(mipGutter, Value); }
    /// The font of captions, separators and the bar: Tahoma, bold at first.
    [[nodiscard]] TFont& GetTitleFont() const { return FTitleFont; }
    /// The font of descriptions: Tahoma.
    [[nodiscard]] TFont& GetDescriptionFont() const { return FDescriptionFont; }

private:
    [[nodiscard]] bool HasGutter(const TMenuItem& Item) const;
    void DrawGutter(TCanvas& ACanvas, const TRect& R) const;
    void DrawHighlight(TCanvas& ACanvas, const TRect& R, bool HasDescription, int CaptionHeight) const;
    void DrawTexts(TMenuItem& Item, TCanvas& ACanvas, const TRect& R, const String& Description,
                   int CaptionHeight) const;

    bool FActive = true;
    TQV7SkinMenuItemPainterParts FDrawingParts{mipSeparatorText, mipDescription, mipShortCut, mipGutter};
    mutable TFont FTitleFont;
    mutable TFont FDescriptionFont;
};

/// The painter that is installed at first: smaller descriptions, and captions that are bold only beside
/// descriptions.
class TQV7SkinMenuItemPainterNice : public TQV7SkinMenuItemPainter {
public:
    /// Without a font descriptions are Tahoma, 7 points. With one, captions are in it and bold, descriptions
    /// in its face, a point smaller.
    explicit TQV7SkinMenuItemPainterNice(const TFont* AFont = nullptr);
    void SetIncludeDescription(bool Value) override;
};

/// The painter of all menus of the skin; null after it was taken away. A TQV7SkinMenuItemPainterNice is
/// installed when the package is loaded.
[[nodiscard]] TQV7SkinMenuItemPainter* QV7SkinMenuItemPainter();
/// Frees the painter installed and installs another one, which then belongs to the package. Null makes the
/// menus draw as the system does.
void SetQV7SkinMenuItemPainter(TQV7SkinMenuItemPainter* Painter);

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::TQV7SkinMenuItemPainterPart> {
    static std::span<const wchar_t* const> Names();
};
