#pragma once

#include "explorerbar/items/ExplorerItem.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Font.h"

namespace qv7skin {

/// A text to read; the mouse passes through it.
class TQV7SkinExplorerItemStaticText : public TQV7SkinExplorerItemCustom {
public:
    TQV7SkinExplorerItemStaticText() = default;
    explicit TQV7SkinExplorerItemStaticText(const String& Caption) : FCaption(Caption) {}
    TQV7SkinExplorerItemStaticText(const String& Caption, TColor FontColor, TFontStyles FontStyle,
                                   bool WordWrap)
        : FCaption(Caption), FFontColor(FontColor), FFontStyle(FontStyle), FWordWrap(WordWrap) {}

    [[nodiscard]] const String& GetCaption() const { return FCaption; }
    void SetCaption(const String& Value) { Change(FCaption, Value); }
    [[nodiscard]] TColor GetFontColor() const { return FFontColor; }
    void SetFontColor(TColor Value) { Change(FFontColor, Value); }
    [[nodiscard]] TFontStyles GetFontStyle() const { return FFontStyle; }
    void SetFontStyle(TFontStyles Value) { Change(FFontStyle, Value); }
    /// Whether a caption that is too long goes on in further rows or is cut (as at first).
    [[nodiscard]] bool GetWordWrap() const { return FWordWrap; }
    void SetWordWrap(bool Value) { Change(FWordWrap, Value); }

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;

private:
    void Run(TCanvas& Canvas, int Left, int& Top, int Width, bool Painting) const;

    String FCaption = L"a line";
    TColor FFontColor = clBlack;
    TFontStyles FFontStyle;
    bool FWordWrap = false;
};

}  // namespace qv7skin
