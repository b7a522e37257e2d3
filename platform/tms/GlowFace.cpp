#include "platform/tms/GlowFace.h"

#include <algorithm>
#include <cmath>

#include "platform/vcl/graphics/Bitmap.h"

namespace tms {
namespace {

constexpr int MaxGlow = 96;

/// The mixture of a and b, b weighing part / whole; rounded to the nearest.
TColor Mix(TColor a, TColor b, int part, int whole) {
    const auto channel = [&](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>((from * (whole - part) + to * part + whole / 2) / whole);
    };
    return RGBToColor(channel(RedOf(a), RedOf(b)), channel(GreenOf(a), GreenOf(b)),
                      channel(BlueOf(a), BlueOf(b)));
}

/// How much of a pixel lies inside the quarter circle of that radius around (radius, radius), of 16.
int CornerCoverage(int x, int y, int radius) {
    int inside = 0;
    for (int i = 0; i < 16; ++i) {
        // Sample points in eighths of a pixel from the circle's centre.
        const int dx = 8 * (radius - x) - (2 * (i % 4) + 1);
        const int dy = 8 * (radius - y) - (2 * (i / 4) + 1);
        if (dx * dx + dy * dy <= 64 * radius * radius) ++inside;
    }
    return inside;
}

/// Paints the gradients, and the glow over them.
void PaintInside(const TBitmapBits& bits, const TRect& inside, const TGlowColors& colors, bool glow) {
    const TColor from = ColorToRGB(colors.Color), to = ColorToRGB(colors.ColorTo);
    const TColor mirrorFrom = ColorToRGB(colors.ColorMirror), mirrorTo = ColorToRGB(colors.ColorMirrorTo);
    const int upper = (inside.Height() + 1) / 2;
    const TSize upperArea{inside.Width(), upper}, lowerArea{inside.Width(), inside.Height() - upper};
    for (int y = 0; y < inside.Height(); ++y) {
        for (int x = 0; x < inside.Width(); ++x) {
            TColor color = y < upper ? GradientColor(colors.Gradient, from, to, {x, y}, upperArea)
                                     : GradientColor(colors.GradientMirror, mirrorFrom, mirrorTo,
                                                     {x, y - upper}, lowerArea);
            const TPoint pixel{inside.Left + x, inside.Top + y};
            if (glow) color = Mix(color, clWhite, GlowStrength(pixel, {bits.Width, bits.Height}), 255);
            bits.SetColor(pixel.X, pixel.Y, color);
        }
    }
}

void PaintBorder(const TBitmapBits& bits, TColor border) {
    for (int x = 0; x < bits.Width; ++x) {
        bits.SetColor(x, 0, border);
        bits.SetColor(x, bits.Height - 1, border);
    }
    for (int y = 0; y < bits.Height; ++y) {
        bits.SetColor(0, y, border);
        bits.SetColor(bits.Width - 1, y, border);
    }
}

/// Draws the corners of a finished rectangular face round, over the former background.
void RoundCorners(const TBitmapBits& bits, const TConstBitmapBits& background, TColor border) {
    const int radius = std::min({GlowCornerRadius, bits.Width / 2, bits.Height / 2});
    for (int y = 0; y < radius; ++y) {
        for (int x = 0; x < radius; ++x) {
            const int outer = CornerCoverage(x, y, radius);
            const int inner = x > 0 && y > 0 ? CornerCoverage(x - 1, y - 1, radius - 1) : 0;
            for (const int px : {x, bits.Width - 1 - x}) {
                for (const int py : {y, bits.Height - 1 - y}) {
                    const TColor edge = Mix(border, bits.GetColor(px, py), inner, 16);
                    bits.SetColor(px, py, Mix(background.GetColor(px, py), edge, outer, 16));
                }
            }
        }
    }
}

}  // namespace

TColor GradientColor(TGDIPGradient kind, TColor from, TColor to, TPoint pixel, TSize area) {
    const int width = std::max(area.Width - 1, 1), height = std::max(area.Height - 1, 1);
    switch (kind) {
        case gdpVertical:
            return Mix(from, to, pixel.Y, height);
        case gdpHorizontal:
            return Mix(from, to, pixel.X, width);
        case gdpDiagonal:
            return Mix(from, to, pixel.X * height + pixel.Y * width, 2 * width * height);
        default:
            return from;
    }
}

int GlowStrength(TPoint pixel, TSize face) {
    const double dx = (2.0 * pixel.X + 1 - face.Width) / face.Width;
    const double dy = (face.Height - 1.0 - pixel.Y) / face.Height;
    const double nearness = 1 - std::sqrt(dx * dx + dy * dy);
    return nearness <= 0 ? 0 : static_cast<int>(std::lround(MaxGlow * nearness * nearness));
}

void PaintGlowFace(TBitmap& bitmap, const TGlowColors& colors, bool rounded, bool glow) {
    if (bitmap.GetEmpty()) return;
    TBitmap background;
    if (rounded) background.Assign(&bitmap);
    const TBitmapBits bits = bitmap.WriteBits();
    const TColor border = ColorToRGB(colors.Border);
    PaintInside(bits, {1, 1, bits.Width - 1, bits.Height - 1}, colors, glow);
    PaintBorder(bits, border);
    if (rounded) RoundCorners(bits, background.ReadBits(), border);
}

}  // namespace tms
