#pragma once

#include <memory>

#include "explorerbar/items/ExplorerItem.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Font.h"

namespace qv7skin {

/// A text to click on, with an icon if need be: a bitmap of its own or an image of the bar's `ItemIcons`.
class TQV7SkinExplorerItemLink : public TQV7SkinExplorerItemCustom {
public:
    TQV7SkinExplorerItemLink();
    TQV7SkinExplorerItemLink(const String& Caption, const String& Hint);
    TQV7SkinExplorerItemLink(const String& Caption, const String& Hint, int IconIndex);
    /// The icon is copied; null is none.
    TQV7SkinExplorerItemLink(const String& Caption, const String& Hint, const TBitmap* Icon);
    TQV7SkinExplorerItemLink(const String& Caption, const String& Hint, const TBitmap* Icon,
                             TColor TransparentColor);
    ~TQV7SkinExplorerItemLink() override;

    [[nodiscard]] const String& GetCaption() const { return FCaption; }
    void SetCaption(const String& Value);
    void SetHint(const String& Value) override { Change(FHint, Value, true); }
    /// The item's own icon, or null. It comes before `IconIndex`.
    [[nodiscard]] const TBitmap* GetIcon() const { return FIcon.get(); }
    /// Copies the bitmap; null takes the icon away.
    void SetIcon(const TBitmap* Value);
    /// The image of the bar's `ItemIcons`; -1, as at first, is none.
    [[nodiscard]] int GetIconIndex() const { return FIconIndex; }
    void SetIconIndex(int Value) { Change(FIconIndex, Value, true); }
    /// Whether a caption that is too long goes on in further rows (as at first) or is cut.
    [[nodiscard]] bool GetWordWrap() const { return FWordWrap; }
    [[nodiscard]] TFontStyles GetFontStyle() const { return FFontStyle; }
    /// The colour of `Icon` that is left out; `clNone`, as at first, is none.
    [[nodiscard]] TColor GetTransparentColor() const { return FTransparentColor; }
    void SetTransparentColor(TColor Value);

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;
    /// Those of icon and caption.
    [[nodiscard]] TColumns HotColumns(int Width) const override;
    /// Has the bar measure anew.
    void SetOwner(TQV7SkinExplorerGroup* Group) override;
    [[nodiscard]] bool GetCanFocus() const override { return FVisible; }
    void DoEnter(TCursor& Cursor) override;

    virtual void SetWordWrap(bool Value) { Change(FWordWrap, Value, true); }
    virtual void SetFontStyle(TFontStyles Value) { Change(FFontStyle, Value); }

private:
    enum class TPass { Paint, Place, Measure };
    void Run(TBitmap& Bitmap, int Left, int& Top, int Width, TPass Pass);
    [[nodiscard]] TSize IconSize() const;
    [[nodiscard]] int CaptionWidth(TCanvas& Canvas);
    [[nodiscard]] bool IsOneRow(TCanvas& Canvas, int Limit);
    void DrawIcon(TCanvas& Canvas, int x, int y) const;
    void PrepareIcon();

    String FCaption;
    std::unique_ptr<TBitmap> FIcon;
    int FIconIndex = -1;
    int FCaptionWidth = 0;
    int FCaptionWidthClass = 0;  ///< The class of fonts that the width is known for; 0: it is not.
    bool FWordWrap = true;
    TFontStyles FFontStyle;
    TColor FTransparentColor = clNone;
};

}  // namespace qv7skin
