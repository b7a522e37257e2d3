#include "menus/MenuGradient.h"

#include <algorithm>
#include <array>

namespace qv7skin {
namespace {

/// value / divisor to the nearest whole number, halves to the even one.
constexpr int DivideRounded(std::int64_t value, int divisor) {
    const std::int64_t magnitude = value < 0 ? -value : value;
    std::int64_t result = magnitude / divisor;
    const std::int64_t twice = 2 * (magnitude % divisor);
    if (twice > divisor || (twice == divisor && result % 2 != 0)) ++result;
    return static_cast<int>(value < 0 ? -result : result);
}
static_assert(DivideRounded(1, 2) == 0 && DivideRounded(3, 2) == 2 && DivideRounded(-3, 2) == -2);

/// The menus' number of steps, for which the compiler divides fast.
constexpr int UsualSteps = 256;

int DividedBySteps(std::int64_t value, int steps) {
    return steps == UsualSteps ? DivideRounded(value, UsualSteps) : DivideRounded(value, steps);
}

int BandChannel(int start, int end, int band, int steps) {
    return (start + DividedBySteps(std::int64_t{band} * (end - start), steps)) & 0xFF;
}

TColor BandColor(TColor start, TColor end, int band, int steps) {
    return RGBToColor(static_cast<std::uint8_t>(BandChannel(RedOf(start), RedOf(end), band, steps)),
                      static_cast<std::uint8_t>(BandChannel(GreenOf(start), GreenOf(end), band, steps)),
                      static_cast<std::uint8_t>(BandChannel(BlueOf(start), BlueOf(end), band, steps)));
}

/// Whether a gradient of the system shows a colour as it is; on surfaces of few colours it mixes them.
bool ShowsExactColors(HDC dc) {
    constexpr COLORREF anyColor = 0x00123457;
    return ::GetNearestColor(dc, anyColor) == anyColor;
}

/// Fills rectangles by a solid brush, one after the other.
class TBrushBands {
public:
    explicit TBrushBands(HDC dc) : FDC(dc), FFormer(::GetDCBrushColor(dc)) {}
    TBrushBands(const TBrushBands&) = delete;
    TBrushBands& operator=(const TBrushBands&) = delete;
    ~TBrushBands() { ::SetDCBrushColor(FDC, FFormer); }
    void Add(const TRect& r, TColor color) const {
        ::SetDCBrushColor(FDC, color);
        ::FillRect(FDC, r.AsRect(), static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
    }

private:
    HDC FDC;
    COLORREF FFormer;
};

/// Fills many rectangles by one call: gradients from a colour to itself.
class TMeshBands {
public:
    explicit TMeshBands(HDC dc) : FDC(dc) {}
    TMeshBands(const TMeshBands&) = delete;
    TMeshBands& operator=(const TMeshBands&) = delete;
    ~TMeshBands() { Flush(); }
    void Add(const TRect& r, TColor color) {
        if (FCount == Room) Flush();
        const auto channel = [](std::uint8_t value) { return static_cast<COLOR16>(value << 8); };
        const COLOR16 red = channel(RedOf(color));
        const COLOR16 green = channel(GreenOf(color));
        const COLOR16 blue = channel(BlueOf(color));
        const ULONG corner = 2 * FCount;
        FCorners[corner] = {r.Left, r.Top, red, green, blue, 0};
        FCorners[corner + 1] = {r.Right, r.Bottom, red, green, blue, 0};
        FRects[FCount++] = {corner, corner + 1};
    }

private:
    static constexpr ULONG Room = 64;
    void Flush() {
        if (FCount > 0)
            ::GradientFill(FDC, FCorners.data(), 2 * FCount, FRects.data(), FCount, GRADIENT_FILL_RECT_V);
        FCount = 0;
    }

    HDC FDC;
    ULONG FCount = 0;
    std::array<TRIVERTEX, 2 * Room> FCorners;
    std::array<GRADIENT_RECT, Room> FRects;
};

/// The first band that ends at `edge` or beyond; the bands before it end above and show nothing more.
int FirstBandTo(int edge, int length, int steps) {
    const std::int64_t twiceEdge = (2 * std::int64_t{edge} - 1) * steps;
    const std::int64_t twiceLength = 2 * std::int64_t{length};
    const auto band = static_cast<int>((twiceEdge + twiceLength - 1) / twiceLength);
    // Right between two rows it ends at the even one.
    const bool isBetween = band * twiceLength == twiceEdge;
    return isBetween && edge % 2 != 0 ? band + 1 : band;
}

template <class Bands>
void AddBands(Bands& bands, const TRect& r, int steps, TColor start, TColor end, bool isVertical) {
    const int length = isVertical ? r.Height() : r.Width();
    TRect band = r;
    for (int from = 0; from < length;) {
        const int i = FirstBandTo(from + 1, length, steps);
        const int to = DividedBySteps(std::int64_t{i} * length, steps);
        if (isVertical) {
            band.Top = r.Top + from;
            band.Bottom = r.Top + to;
        } else {
            band.Left = r.Left + from;
            band.Right = r.Left + to;
        }
        bands.Add(band, BandColor(start, end, i, steps));
        from = to;
    }
}

/// Rows of gradients that were drawn lately, ready to be copied: items of a menu are highlighted in one size.
class TKeptGradients {
public:
    static constexpr int MostRows = 48;

    /// Fills the area, which has at most `MostRows` rows, with a vertical gradient in the usual steps.
    void Draw(HDC dc, const TRect& r, TColor start, TColor end) {
        const TStrip& strip = Find(r.Height(), start, end);
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = StripWidth;
        info.bmiHeader.biHeight = -strip.Rows;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        const auto rows = static_cast<DWORD>(strip.Rows);
        for (int x = r.Left; x < r.Right; x += StripWidth) {
            const auto width = static_cast<DWORD>(std::min(StripWidth, r.Right - x));
            ::SetDIBitsToDevice(dc, x, r.Top, width, rows, 0, 0, 0, rows, strip.Pixels.data(), &info,
                                DIB_RGB_COLORS);
        }
    }

private:
    static constexpr int StripWidth = 512;
    struct TStrip {
        int Rows = 0;
        TColor Start{};
        TColor End{};
        std::array<std::uint32_t, std::size_t{StripWidth} * MostRows> Pixels{};

        void Add(const TRect& r, TColor color) {
            const std::uint32_t pixel = static_cast<std::uint32_t>(RedOf(color)) << 16 |
                                        static_cast<std::uint32_t>(GreenOf(color)) << 8 | BlueOf(color);
            std::fill_n(Pixels.begin() + std::ptrdiff_t{r.Top} * StripWidth, r.Height() * StripWidth, pixel);
        }
    };

    const TStrip& Find(int rows, TColor start, TColor end) {
        for (const TStrip& strip : FStrips)
            if (strip.Rows == rows && strip.Start == start && strip.End == end) return strip;
        TStrip& strip = FStrips[FNext];
        FNext = (FNext + 1) % FStrips.size();
        strip.Rows = rows;
        strip.Start = start;
        strip.End = end;
        AddBands(strip, {0, 0, StripWidth, rows}, UsualSteps, start, end, true);
        return strip;
    }

    std::array<TStrip, 4> FStrips;
    std::size_t FNext = 0;
};

TKeptGradients& KeptGradients() {
    static TKeptGradients kept;
    return kept;
}

}  // namespace

void DrawGradientBands(HDC DC, const TRect& R, int Steps, TColor StartColor, TColor EndColor,
                       TGradientDirection Direction) {
    if (Steps < 1 || R.IsEmpty()) return;
    const TColor start = ColorToRGB(StartColor);
    const TColor end = ColorToRGB(EndColor);
    const bool isVertical = Direction == gdVertical;
    const bool isExact = ShowsExactColors(DC);
    const bool isScaled = ::GetMapMode(DC) != MM_TEXT || ::GetGraphicsMode(DC) != GM_COMPATIBLE;
    if (isExact && !isScaled && isVertical && Steps == UsualSteps && R.Height() <= TKeptGradients::MostRows)
        return KeptGradients().Draw(DC, R, start, end);
    const auto add = [&](auto&& bands) { AddBands(bands, R, Steps, start, end, isVertical); };
    if (isExact)
        add(TMeshBands(DC));
    else
        add(TBrushBands(DC));
}

}  // namespace qv7skin
