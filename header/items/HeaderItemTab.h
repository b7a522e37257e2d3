#pragma once

#include "header/items/HeaderItem.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/graphics/Color.h"

namespace qv7skin {

class TTabRendering;

/// The two looks of tabs: a dark selected tab among light ones with white and grey captions, or white ones
/// with wide margins.
enum class TQV7SkinTabBackground { bckgrndStandard, bckgrndWhite };
using enum TQV7SkinTabBackground;

/// A tab: caption and picture on a background that the tab control paints for the tab's state. The
/// background's pixels that are not magenta are the tab's shape; only they are drawn, and hit.
///
/// What a tab shows is rendered once for each of its states (default, hovered, pressed) and copied from then
/// on, until something that it shows changes: size, caption, font, pictures, the control's look. In a control
/// that paints no backgrounds a tab is a rectangle in the row's colour.
class TQV7SkinHeaderItemTab : public TQV7SkinHeaderItemCustom {
public:
    /// The bitmaps are not owned and may be null; they must live as long as the tab shows them.
    explicit TQV7SkinHeaderItemTab(TQV7SkinTabBackground ATabBackground, const String& ACaption = {},
                                   TBitmap* AImage = nullptr, TBitmap* AImageSelected = nullptr);
    ~TQV7SkinHeaderItemTab() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The picture before the caption, drawn without its magenta pixels.
    [[nodiscard]] TBitmap* GetImage() const { return FImage; }
    void SetImage(TBitmap* Value);
    /// Stands in for the picture while the tab is selected.
    [[nodiscard]] TBitmap* GetImageSelected() const { return FImageSelected; }
    void SetImageSelected(TBitmap* Value);
    /// The tab's margins, font style and text colours; what lies behind them follows the control's property
    /// of the same name.
    [[nodiscard]] TQV7SkinTabBackground GetTabBackground() const { return FTabBackground; }
    void SetTabBackground(TQV7SkinTabBackground Value);

    /// The margin left and right of the content in pixels: 5, or 25 in the white look.
    [[nodiscard]] int GetHorzOffset() const;
    /// Bold, or regular in the white look.
    [[nodiscard]] TFontStyles GetFontStyle() const;
    /// The caption's colour while the tab is selected, and while it is not.
    [[nodiscard]] TColor GetTextColorActive() const;
    [[nodiscard]] TColor GetTextColorInactive() const;

    /// The background as last rendered, as large as the tab; null before the tab was painted or hit-tested.
    [[nodiscard]] const TBitmap* GetBackground() const;
    /// The tab's shape at (0, 0), or null before there is a background; stays the tab's.
    [[nodiscard]] HRGN GetRegion() const;
    /// 2 on the selected tab, else 1 under the mouse, else 0.
    [[nodiscard]] int GetBackgroundState() const;
    /// True when the tab is to show another state before it is painted next.
    [[nodiscard]] bool GetNeedsRender() const { return FNeedsRender; }
    /// Lets the tab show the state that it is in when it is painted next; without it, hovering changes
    /// nothing. The state is rendered unless it was before.
    void SetNeedsRender() { FNeedsRender = true; }
    /// Forgets what was rendered: what the tab shows changed in a way that it can't see for itself. It sees
    /// its size, caption, font, pictures and selection, and the control's look.
    void DropRenderings();

    void SetSelected(bool Value) override;
    bool PtInValidRect(const TRect& Rect, const TPoint& Point, TCursor& Cursor) override;
    void Draw(TCanvas& Canvas, int& X, int Height) override;
    void Measure(TCanvas& Canvas, int& Width) override;
    /// The width that the tab needs besides caption and margins.
    [[nodiscard]] virtual int GetAdditionalWidth(TCanvas& Canvas);
    /// Draws the picture into the tab's rectangle and moves the rectangle's left edge to where the caption
    /// begins.
    virtual void DrawImage(TCanvas& Canvas, TRect& Rect);

private:
    /// The rendering that the tab shows, or null.
    [[nodiscard]] TTabRendering* CurrentRendering() const;
    /// The rendering of the tab's present state, in that size.
    TTabRendering& NeedBackground(int Width, int Height);
    void RefreshBackground(TTabRendering& Rendering, int State) const;
    void NeedFace(TTabRendering& Rendering, const TFont& Font);
    void DrawContent(TCanvas& Canvas, TRect Rect);
    /// Draws background and what the host draws over it; false when the tab is gone afterwards.
    bool DrawByHost(TCanvas& Canvas, const TTabRendering& Rendering, int& X, int Height);
    void PrepareText(TCanvas& Canvas) const;
    [[nodiscard]] TBitmap* ShownImage() const;

    TBitmap* FImage;
    TBitmap* FImageSelected;
    bool FNeedsRender = true;
    TQV7SkinTabBackground FTabBackground;
};

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::TQV7SkinTabBackground> {
    static std::span<const wchar_t* const> Names();
};
