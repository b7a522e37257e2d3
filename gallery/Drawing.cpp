#include "gallery/Drawing.h"

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/BitmapBits.h"
#include "platform/vcl/graphics/Font.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {

void UseFont(TCanvas& canvas, int size, bool bold, TColor color) {
    TFont& font = canvas.GetFont();
    font.SetName(L"Tahoma");
    font.SetSize(size);
    font.SetStyle(bold ? TFontStyles{fsBold} : TFontStyles{});
    font.SetColor(color);
}

void DrawTitle(TCanvas& canvas, int left, int top, StringView text) {
    UseFont(canvas, 9, true, GetQV7SkinColorColumnHeaderBG());
    canvas.GetBrush().SetStyle(bsClear);
    canvas.TextOut(left, top, text);
}

int DrawHeading(TCanvas& canvas, int left, int top, int right, StringView text) {
    DrawTitle(canvas, left, top, text);
    const int line = top + 18;
    Fill(canvas, {left, line, right, line + 1}, GetQV7SkinColorBackground());
    return line + 11;
}

void DrawNote(TCanvas& canvas, TRect rect, StringView text, UINT flags) {
    UseFont(canvas, 8, false, 0x00606060);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.TextRect(rect, text, flags | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void Fill(TCanvas& canvas, const TRect& rect, TColor color) {
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(color);
    canvas.FillRect(rect);
}

void Outline(TCanvas& canvas, const TRect& rect, TColor color) {
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(color);
    canvas.FrameRect(rect);
}

void DrawChecker(TCanvas& canvas, const TRect& rect) {
    constexpr int cell = 6;
    const TClipScope clip(canvas, rect);
    Fill(canvas, rect, clWhite);
    for (int y = rect.Top; y < rect.Bottom; y += cell) {
        const int shift = ((y - rect.Top) / cell) % 2 * cell;
        for (int x = rect.Left + shift; x < rect.Right; x += 2 * cell)
            Fill(canvas, TRect::OfSize(x, y, cell, cell), 0x00EBEBEB);
    }
}

void DrawMagnified(TCanvas& canvas, int left, int top, const TBitmap& bitmap, int factor,
                   TColor transparent) {
    TBitmap source;
    source.Assign(&bitmap);
    source.SetPixelFormat(pf32bit);
    TBitmap large(source.GetWidth() * factor, source.GetHeight() * factor, pf32bit);
    const auto from = std::as_const(source).ReadBits();
    const auto to = large.WriteBits();
    for (int y = 0; y < large.GetHeight(); ++y) {
        const auto* in = reinterpret_cast<const std::uint32_t*>(from.Row(y / factor));
        auto* out = reinterpret_cast<std::uint32_t*>(to.Row(y));
        for (int x = 0; x < large.GetWidth(); ++x)
            out[x] = in[x / factor];
    }
    if (transparent == clNone)
        canvas.Draw(left, top, &large);
    else
        DrawTransparentBitmap(canvas, &large, left, top, transparent);
}

String ColorCode(TColor color) {
    return Format(L"0x%08X", color);
}

}  // namespace gallery
