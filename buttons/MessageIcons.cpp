#include "buttons/MessageIcons.h"

#include <array>
#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Gradients.h"
#include "platform/vcl/graphics/Handles.h"
#include "platform/vcl/graphics/ImageList.h"
#include "skin/UnitQV7SkinColors.h"

// The icons are drawn eight times as large and then scaled down, so that their edges become smooth.

namespace qv7skin {
namespace {

constexpr TColor Magenta = 0x00FF00FF;
constexpr int Scale = 8;

/// Light at the top, dark at the bottom.
struct TTone {
    TColor Upper;
    TColor Lower;
};

TTone ToneOf(TQV7SkinMessageIcon icon) {
    switch (icon) {
        case msgiWarning:
            return {0x0042C6FF, 0x000098F0};
        case msgiError:
            return {0x005A5AE8, 0x002424C0};
        default:
            return {0x00F0A850, GetQV7SkinColorLinkText()};
    }
}

void Fill(TCanvas& canvas, const TRect& rect, TColor color) {
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(color);
    canvas.FillRect(rect);
}

/// Fills a region, which is deleted, with a gradient from top to bottom of the rectangle.
void FillRegion(TCanvas& canvas, HRGN handle, const TRect& rect, const TTone& tone) {
    const TRegionHandle region(handle);
    const TCanvasStateScope state(canvas);
    ::SelectClipRgn(canvas.GetHandle(), region.Get());
    FillGradient(canvas, rect, tone.Upper, tone.Lower, gdVertical);
}

void DrawDisc(TCanvas& canvas, int size, const TTone& tone) {
    const TRect disc{Scale, Scale, size - Scale, size - Scale};
    FillRegion(canvas, ::CreateEllipticRgn(disc.Left, disc.Top, disc.Right, disc.Bottom), disc, tone);
}

/// A triangle with round corners: thick round lines around a filled one.
void DrawTriangle(TCanvas& canvas, int size, const TTone& tone) {
    constexpr int radius = 2 * Scale;
    const POINT corners[] = {{size / 2, Scale + radius},
                             {size - Scale - radius, size - 2 * Scale - radius},
                             {Scale + radius, size - 2 * Scale - radius}};
    TRegionHandle all(::CreatePolygonRgn(corners, 3, WINDING));
    const auto add = [&](HRGN handle) {
        const TRegionHandle piece(handle);
        ::CombineRgn(all.Get(), all.Get(), piece.Get(), RGN_OR);
    };
    for (int i = 0; i < 3; ++i) {
        const POINT &a = corners[i], &b = corners[(i + 1) % 3];
        constexpr int steps = 4 * MessageIconSize;
        for (int step = 0; step < steps; ++step) {
            const int x = a.x + (b.x - a.x) * step / steps;
            const int y = a.y + (b.y - a.y) * step / steps;
            add(::CreateEllipticRgn(x - radius, y - radius, x + radius + 1, y + radius + 1));
        }
    }
    FillRegion(canvas, all.Release(), {0, 0, size, size}, tone);
}

/// A round stroke through the points, which are eighths of pixels.
void DrawStroke(TCanvas& canvas, std::span<const TPoint> points, int width, TColor color) {
    canvas.GetPen().SetColor(color);
    canvas.GetPen().SetWidth(width);
    canvas.Polyline(points);
}

void DrawDot(TCanvas& canvas, TPoint middle, int width, TColor color) {
    DrawStroke(canvas, std::array{middle, TPoint{middle.X, middle.Y + 1}}, width, color);
}

constexpr int Middle = MessageIconSize * Scale / 2;

void DrawLetterI(TCanvas& canvas) {
    DrawDot(canvas, {Middle, 9 * Scale + 4}, 4 * Scale + 2, clWhite);
    DrawStroke(canvas, std::array{TPoint{Middle, 15 * Scale}, TPoint{Middle, 23 * Scale}}, 4 * Scale,
               clWhite);
}

void DrawExclamationMark(TCanvas& canvas) {
    constexpr TColor ink = 0x00202020;
    DrawStroke(canvas, std::array{TPoint{Middle, 12 * Scale}, TPoint{Middle, 19 * Scale}}, 3 * Scale + 4,
               ink);
    DrawDot(canvas, {Middle, 24 * Scale + 4}, 3 * Scale + 6, ink);
}

/// Three eighths more than half a circle, a bend to the middle, and a dot.
void DrawQuestionMark(TCanvas& canvas) {
    constexpr double radius = 4.4 * Scale;
    constexpr int top = 12 * Scale + 2;
    std::vector<TPoint> points;
    for (int degrees = 180; degrees <= 405; degrees += 9) {
        const double angle = degrees * std::numbers::pi / 180;
        points.push_back({Middle + static_cast<int>(std::lround(radius * std::cos(angle))),
                          top + static_cast<int>(std::lround(radius * std::sin(angle)))});
    }
    points.push_back({Middle, 18 * Scale});
    points.push_back({Middle, 19 * Scale});
    DrawStroke(canvas, points, 3 * Scale + 4, clWhite);
    DrawDot(canvas, {Middle, 24 * Scale}, 4 * Scale, clWhite);
}

void DrawCross(TCanvas& canvas) {
    constexpr int first = 11 * Scale, last = MessageIconSize * Scale - first;
    DrawStroke(canvas, std::array{TPoint{first, first}, TPoint{last, last}}, 3 * Scale + 4, clWhite);
    DrawStroke(canvas, std::array{TPoint{last, first}, TPoint{first, last}}, 3 * Scale + 4, clWhite);
}

/// The mean colour of a square of `Scale` pixels.
TColor MeanOf(const TConstBitmapBits& bits, int left, int top) {
    constexpr int count = Scale * Scale;
    int red = count / 2, green = count / 2, blue = count / 2;
    for (int y = top; y < top + Scale; ++y) {
        for (int x = left; x < left + Scale; ++x) {
            const TColor color = bits.GetColor(x, y);
            red += RedOf(color);
            green += GreenOf(color);
            blue += BlueOf(color);
        }
    }
    return RGBToColor(red / count, green / count, blue / count);
}

/// Scales a drawing down by averaging. Where nothing but `ground` was drawn the pixel becomes `outside`.
void ScaleDown(const TBitmap& from, TBitmap& to, TColor ground, TColor outside) {
    const int width = from.GetWidth() / Scale, height = from.GetHeight() / Scale;
    to.SetPixelFormat(pf32bit);
    to.SetSize(width, height);
    const TConstBitmapBits in = from.ReadBits();
    const TBitmapBits out = to.WriteBits();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const TColor mean = MeanOf(in, x * Scale, y * Scale);
            out.SetColor(x, y, mean == ground ? outside : mean);
        }
    }
    to.Changed();
}

/// An arrow to the right: a shaft and a head of two strokes.
void DrawArrow(TCanvas& canvas, TColor color) {
    constexpr int middle = ChoiceArrowHeight * Scale / 2, half = 6 * Scale, wing = 5 * Scale;
    constexpr int left = Middle - half, right = Middle + half, width = 2 * Scale + 4;
    DrawStroke(canvas, std::array{TPoint{left, middle}, TPoint{right, middle}}, width, color);
    DrawStroke(canvas,
               std::array{TPoint{right - wing, middle - wing}, TPoint{right, middle},
                          TPoint{right - wing, middle + wing}},
               width, color);
}

}  // namespace

void DrawMessageIcon(TBitmap& Bitmap, TQV7SkinMessageIcon Icon, TColor Ground) {
    const TColor ground = ColorToRGB(Ground);
    constexpr int size = MessageIconSize * Scale;
    TBitmap large(size, size, pf32bit);
    TCanvas& canvas = large.GetCanvas();
    Fill(canvas, {0, 0, size, size}, ground);
    switch (Icon) {
        case msgiInformation:
            DrawDisc(canvas, size, ToneOf(Icon));
            DrawLetterI(canvas);
            break;
        case msgiQuestion:
            DrawDisc(canvas, size, ToneOf(Icon));
            DrawQuestionMark(canvas);
            break;
        case msgiWarning:
            DrawTriangle(canvas, size, ToneOf(Icon));
            DrawExclamationMark(canvas);
            break;
        case msgiError:
            DrawDisc(canvas, size, ToneOf(Icon));
            DrawCross(canvas);
            break;
        default:
            break;
    }
    ScaleDown(large, Bitmap, ground, ground);
}

void MakeChoiceArrows(TImageList& Images, TColor Ground, TColor LitGround) {
    constexpr TSize size{MessageIconSize * Scale, ChoiceArrowHeight * Scale};
    const struct {
        TColor Arrow;
        TColor Ground;
    } states[] = {{GetQV7SkinColorLinkText(), Ground},
                  {0x00F09A28, LitGround},
                  {0x00A85C00, LitGround},
                  {clSilver, Ground}};
    Images.Clear();
    Images.SetSize(MessageIconSize, ChoiceArrowHeight);
    for (const auto& state : states) {
        const TColor ground = ColorToRGB(state.Ground);
        TBitmap large(size.Width, size.Height, pf32bit);
        Fill(large.GetCanvas(), {0, 0, size.Width, size.Height}, ground);
        DrawArrow(large.GetCanvas(), state.Arrow);
        TBitmap arrow;
        ScaleDown(large, arrow, ground, Magenta);
        Images.Add(&arrow, nullptr);
    }
}

}  // namespace qv7skin
