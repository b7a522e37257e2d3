#pragma once

#include <concepts>

#include "explorerbar/items/ExplorerItem.h"

namespace qv7skin {

/// A caption on the left and a value on the right of one row. Of both texts the value is shown whole, the
/// caption is cut.
class TQV7SkinExplorerItemCaptionValuePair : public TQV7SkinExplorerItemCustom {
public:
    TQV7SkinExplorerItemCaptionValuePair() = default;
    TQV7SkinExplorerItemCaptionValuePair(const String& Caption, const String& Value, const String& Hint);
    TQV7SkinExplorerItemCaptionValuePair(const String& Caption, bool Clickable, const String& Value,
                                         const String& Hint);

    [[nodiscard]] const String& GetCaption() const { return FCaption; }
    void SetCaption(const String& Value) { Change(FCaption, Value); }
    [[nodiscard]] const String& GetValue() const { return FValue; }
    void SetValue(const String& Value) { Change(FValue, Value); }
    /// Whether the item looks like a link under the mouse and takes the focus; false at first.
    [[nodiscard]] bool GetClickable() const { return FClickable; }
    void SetClickable(bool Value) { Change(FClickable, Value); }

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;
    [[nodiscard]] bool GetCanFocus() const override { return FVisible && FClickable; }
    void DoEnter(TCursor& Cursor) override;

    /// The rectangles of both texts at (Left, Top) in a group of that width. The caption's may be empty.
    void CalcTextRects(TBitmap& Bitmap, int Left, int Top, int Width, TRect& CaptionRect,
                       TRect& ValueRect) const;

private:
    void PlaceAt(TCanvas& Canvas, int Left, int Top, int Width);

    String FCaption;
    String FValue;
    bool FClickable = false;
};

/// A caption, and a text in a column that all such pairs of the group share.
class TQV7SkinExplorerItemCaptionBlockPair : public TQV7SkinExplorerItemCustom {
public:
    TQV7SkinExplorerItemCaptionBlockPair() = default;
    TQV7SkinExplorerItemCaptionBlockPair(const String& Caption, const String& Blocktext);
    TQV7SkinExplorerItemCaptionBlockPair(const String& Caption, const String& Blocktext, const String& Hint);
    TQV7SkinExplorerItemCaptionBlockPair(const String& Caption, bool Clickable, const String& Blocktext,
                                         const String& Hint);
    /// Takes nothing but a bool as second argument, so that a literal text there is a text.
    TQV7SkinExplorerItemCaptionBlockPair(const String& Caption, std::same_as<bool> auto Clickable,
                                         const String& Blocktext)
        : TQV7SkinExplorerItemCaptionBlockPair(Caption, Clickable, Blocktext, String()) {}

    [[nodiscard]] const String& GetCaption() const { return FCaption; }
    void SetCaption(const String& Value) { Change(FCaption, Value); }
    [[nodiscard]] const String& GetBlocktext() const { return FBlocktext; }
    void SetBlocktext(const String& Value) { Change(FBlocktext, Value); }
    /// Whether the item looks like a link under the mouse and takes the focus; false at first.
    [[nodiscard]] bool GetClickable() const { return FClickable; }
    void SetClickable(bool Value) { Change(FClickable, Value); }

    /// Raises Exception: the column of the text is missing, call `DrawWithOffset`.
    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;
    [[nodiscard]] bool GetCanFocus() const override { return FVisible && FClickable; }
    void DoEnter(TCursor& Cursor) override;

    /// As `Draw` of other items. `BlockOffset` is the widest caption of the group, see `CalcTextRects`.
    virtual void DrawWithOffset(TBitmap& Bitmap, int BlockOffset, int& Left, int& Top, int& Width);
    /// How wide and high both texts are drawn in a group of that width; the rectangles start at (0, 0). With
    /// a block offset of 0 the right edge of the caption is what the group takes the widest of.
    void CalcTextRects(TBitmap& Bitmap, int Width, TRect& BlockRect, TRect& CaptionRect,
                       int BlockOffset) const;

private:
    void PlaceAt(TCanvas& Canvas, int Left, int Top, int Width);

    String FCaption = L"Caption";
    String FBlocktext = L"Blocktext";
    bool FClickable = false;
};

}  // namespace qv7skin
