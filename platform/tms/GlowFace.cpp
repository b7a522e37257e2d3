#include "platform/tms/GlowFace.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/tms/CornerCoverage.h"

namespace tms {
namespace {

constexpr int MaxGlow = 160;
constexpr int Grid = 4;  ///< Points of a pixel of a corner, across and down.

/// The mixture of a and b, b weighing part / whole; rounded to the nearest.
TColor Mix(TColor a, TColor b, int part, int whole) {
    const auto channel = [&](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>((from * (whole - part) + to * part + whole / 2) / whole);
    };
    return RGBToColor(channel(RedOf(a), RedOf(b)), channel(GreenOf(a), GreenOf(b)),
                      channel(BlueOf(a), BlueOf(b)));
}

/// One half of a face: where it lies, and its gradient.
struct THalf {
    TRect Rect;
    TGDIPGradient Gradient;
    TColor From;
    TColor To;
};

void PaintHalf(const TBitmapBits& bits, const THalf& half) {
    const TSize area{half.Rect.Width(), half.Rect.Height()};
    const bool variesInRow = half.Gradient != gdpPlain && half.Gradient != gdpVertical;
    for (int y = 0; y < area.Height; ++y) {
        TColor color = GradientColor(half.Gradient, half.From, half.To, {0, y}, area);
        for (int x = 0; x < area.Width; ++x) {
            if (variesInRow) color = GradientColor(half.Gradient, half.From, half.To, {x, y}, area);
            bits.SetColor(half.Rect.Left + x, half.Rect.Top + y, color);
        }
    }
}

void PaintGlow(const TBitmapBits& bits, const TRect& area, TColor color) {
    for (int y = area.Top; y < area.Bottom; ++y) {
        for (int x = area.Left; x < area.Right; ++x) {
            const int strength = GlowStrength({x, y}, {bits.Width, bits.Height});
            if (strength > 0) bits.SetColor(x, y, Mix(bits.GetColor(x, y), color, strength, 255));
        }
    }
}

void PaintInside(const TBitmapBits& bits, const TGlowColors& colors) {
    const int middle = 1 + (bits.Height - 1) / 2;
    PaintHalf(bits, {{1, 1, bits.Width - 1, middle},
                     colors.Gradient,
                     ColorToRGB(colors.Color),
                     ColorToRGB(colors.ColorTo)});
    PaintHalf(bits, {{1, middle, bits.Width - 1, bits.Height - 1},
                     colors.GradientMirror,
                     ColorToRGB(colors.ColorMirror),
                     ColorToRGB(colors.ColorMirrorTo)});
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

/// The pixels of the four corners before the face was painted over them; rounds the face off afterwards.
class TCorners {
public:
    explicit TCorners(const TBitmapBits& bits)
        : FBits(bits), FRadius(std::min({GlowCornerRadius, bits.Width / 2, bits.Height / 2})) {
        ForEach(
            [this](int, int, TPoint pixel, TColor& before) { before = FBits.GetColor(pixel.X, pixel.Y); });
    }
    void Round(TColor border) {
        ForEach([&](int x, int y, TPoint pixel, TColor& before) {
            const int outer = CoveredPoints(x, y, FRadius, Grid);
            const int inner = x > 0 && y > 0 ? CoveredPoints(x - 1, y - 1, FRadius - 1, Grid) : 0;
            const TColor edge = Mix(border, FBits.GetColor(pixel.X, pixel.Y), inner, Grid * Grid);
            FBits.SetColor(pixel.X, pixel.Y, Mix(before, edge, outer, Grid * Grid));
        });
    }

private:
    /// Calls `visit` with the distances from the corner, the pixel and its place in the store.
    template <class Visit>
    void ForEach(Visit visit) {
        TColor* before = FBefore.data();
        for (int y = 0; y < FRadius; ++y)
            for (int x = 0; x < FRadius; ++x)
                for (const int px : {x, FBits.Width - 1 - x})
                    for (const int py : {y, FBits.Height - 1 - y})
                        visit(x, y, TPoint{px, py}, *before++);
    }

    TBitmapBits FBits;
    int FRadius;
    std::array<TColor, 4 * GlowCornerRadius * GlowCornerRadius> FBefore{};
};

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

void PaintGlowFace(const TBitmapBits& bits, const TGlowColors& colors, bool rounded, bool glow) {
    if (bits.IsEmpty()) return;
    TCorners corners(bits);
    const TColor border = ColorToRGB(colors.Border);
    PaintInside(bits, colors);
    if (glow) {
        const TColor light = Mix(ColorToRGB(colors.ColorMirror), clWhite, 1, 2);
        PaintGlow(bits, {1, 1, bits.Width - 1, bits.Height - 1}, light);
    }
    PaintBorder(bits, border);
    if (rounded) corners.Round(border);
}

}  // namespace tms
