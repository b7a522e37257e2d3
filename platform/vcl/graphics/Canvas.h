#pragma once

#include <optional>
#include <span>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/Persistent.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/BitmapBits.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Pen.h"

namespace vcl {

class TBitmap;
class TGraphic;

/// How copied pixels meet those that lie there: a ternary raster operation of the Windows API.
using TCopyMode = std::uint32_t;
inline constexpr TCopyMode cmBlackness = BLACKNESS;
inline constexpr TCopyMode cmDstInvert = DSTINVERT;
inline constexpr TCopyMode cmMergeCopy = MERGECOPY;
inline constexpr TCopyMode cmMergePaint = MERGEPAINT;
inline constexpr TCopyMode cmNotSrcCopy = NOTSRCCOPY;
inline constexpr TCopyMode cmNotSrcErase = NOTSRCERASE;
inline constexpr TCopyMode cmPatCopy = PATCOPY;
inline constexpr TCopyMode cmPatInvert = PATINVERT;
inline constexpr TCopyMode cmPatPaint = PATPAINT;
inline constexpr TCopyMode cmSrcAnd = SRCAND;
inline constexpr TCopyMode cmSrcCopy = SRCCOPY;
inline constexpr TCopyMode cmSrcErase = SRCERASE;
inline constexpr TCopyMode cmSrcInvert = SRCINVERT;
inline constexpr TCopyMode cmSrcPaint = SRCPAINT;
inline constexpr TCopyMode cmWhiteness = WHITENESS;

/// How far a flood fill reaches: over the colour given, or up to it as a border.
enum class TFillStyle { fsSurface, fsBorder };
using enum TFillStyle;

/// Memory of a bitmap that may be written to instead of drawing on its canvas.
struct TDirectBits {
    TBitmapBits Bits;  ///< Counted as the canvas counts; only what lies in `Clip` may be touched.
    TRect Clip;        ///< Where drawing shows.
};

/// A surface to draw on with font, pen and brush. Coordinates are pixels of the surface's device context;
/// right and bottom edges are exclusive.
///
/// A canvas gets its device context when it first needs it: one that its owner lends by `SetHandle`, or one
/// that a descendant provides in `CreateHandle`. The tools are selected when drawing first needs them and
/// stay selected; whoever draws with the handle itself and changes its state calls `Refresh` afterwards or
/// works inside a `TCanvasStateScope`. Without any device context drawing raises EInvalidOperation "Canvas
/// does not allow drawing".
class TCanvas : public TPersistent {
public:
    TCanvas();
    ~TCanvas() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised before and after each drawing.
    TNotifyEvent OnChanging;
    TNotifyEvent OnChange;

    /// The device context, made or fetched when there is none yet.
    [[nodiscard]] HDC GetHandle();
    /// Takes a device context on loan; null gives it back. The objects that the canvas had selected into the
    /// former one are replaced by those that it had before.
    void SetHandle(HDC value);
    [[nodiscard]] bool HandleAllocated() const { return FHandle != nullptr; }
    /// A device context to copy from: as the handle, but without announcing a change.
    [[nodiscard]] virtual HDC GetSourceHandle() { return GetHandle(); }
    /// Puts the device context back to its former objects; the next drawing selects the tools anew.
    void Refresh();

    [[nodiscard]] TFont& GetFont() const { return FFont; }
    void SetFont(const TFont& value) { FFont.Assign(&value); }
    [[nodiscard]] TPen& GetPen() const { return FPen; }
    void SetPen(const TPen& value) { FPen.Assign(&value); }
    [[nodiscard]] TBrush& GetBrush() const { return FBrush; }
    void SetBrush(const TBrush& value) { FBrush.Assign(&value); }
    /// How `CopyRect`, `Draw` and `StretchDraw` of opaque bitmaps combine pixels; `cmSrcCopy` at first.
    [[nodiscard]] TCopyMode GetCopyMode() const { return FCopyMode; }
    void SetCopyMode(TCopyMode value) { FCopyMode = value; }

    /// Draws with functions of the system: announces, calls `draw` with the device context, announces.
    template <class Draw>
    void DrawDirectly(Draw draw) {
        Changing();
        draw(GetHandle());
        Changed();
    }

    // --- Pixels and lines
    /// The colour of a pixel, 0x00BBGGRR; `clInvalid` outside of the surface.
    [[nodiscard]] TColor GetPixel(int x, int y);
    /// Sets a pixel; outside of the surface and of the clip region nothing happens.
    void SetPixel(int x, int y, TColor color);
    [[nodiscard]] TPoint GetPenPos();
    void SetPenPos(TPoint value) { MoveTo(value.X, value.Y); }
    void MoveTo(int x, int y);
    /// A line from the pen's position to, but without, the end, where the position then is.
    void LineTo(int x, int y);
    void Polyline(std::span<const TPoint> points);

    // --- Figures: outline by the pen, inside by the brush
    void Rectangle(const TRect& r);
    void Rectangle(int left, int top, int right, int bottom) { Rectangle({left, top, right, bottom}); }
    void RoundRect(const TRect& r, int ellipseWidth, int ellipseHeight);
    void Ellipse(const TRect& r);
    void Ellipse(int left, int top, int right, int bottom) { Ellipse({left, top, right, bottom}); }
    void Polygon(std::span<const TPoint> points);
    void Pie(const TRect& r, TPoint start, TPoint end);
    void Chord(const TRect& r, TPoint start, TPoint end);
    /// Part of the ellipse in `r`, counter-clockwise between the rays through the two points; pen only.
    void Arc(const TRect& r, TPoint start, TPoint end);

    // --- Areas: the brush alone
    void FillRect(const TRect& r);
    /// A border of one pixel inside the rectangle.
    void FrameRect(const TRect& r);
    void FloodFill(int x, int y, TColor color, TFillStyle style);
    /// The dotted focus frame, an XOR: drawing it again removes it.
    void DrawFocusRect(const TRect& r);

    // --- Pictures
    /// Draws the picture in its own size; null and empty ones draw nothing.
    void Draw(int x, int y, const TGraphic* graphic);
    /// Draws the picture into the rectangle, scaled to it.
    void StretchDraw(const TRect& r, const TGraphic* graphic);
    /// Copies a part of another canvas (or of this one) by the copy mode, scaled when the sizes differ:
    /// scaling repeats and leaves out pixels, it mixes none.
    void CopyRect(const TRect& dest, TCanvas& source, const TRect& sourceRect);
    /// Copies a part of a bitmap by the copy mode as `CopyRect` does.
    void CopyRect(const TRect& dest, const TBitmap& source, const TRect& sourceRect);
    /// Copies from a device context by a raster operation and announces nothing: for pictures that draw
    /// themselves.
    void CopyFrom(const TRect& dest, HDC source, const TRect& sourceRect, TCopyMode mode);
    /// Fills with the brush, and copies the part of the bitmap but its pixels of the colour.
    void BrushCopy(const TRect& dest, const TBitmap& bitmap, const TRect& sourceRect, TColor transparent);

    // --- Text, in the font, on the brush's ground (on none with `bsClear`)
    void TextOut(int x, int y, StringView text);
    /// Text from (x, y), cut at the rectangle, which the brush fills first.
    void TextRect(const TRect& r, int x, int y, StringView text);
    /// Text laid out in the rectangle by flags of the Windows DrawText function (DT_...). With DT_CALCRECT
    /// nothing is drawn and `r` becomes the space needed. Returns the height of the text.
    int TextRect(TRect& r, StringView text, UINT flags);
    [[nodiscard]] TSize TextExtent(StringView text);
    [[nodiscard]] int TextWidth(StringView text) { return TextExtent(text).Width; }
    [[nodiscard]] int TextHeight(StringView text) { return TextExtent(text).Height; }
    /// The measures of the font on this surface.
    [[nodiscard]] TEXTMETRICW TextMetrics();

    // --- Clipping
    /// The rectangle around all that drawing can reach.
    [[nodiscard]] TRect GetClipRect();
    /// The memory under the canvas, where writing to it does the same as drawing: on a bitmap of 24 or 32
    /// bits without a complex clip region or scaled coordinates. None elsewhere. Write inside of
    /// `DrawDirectly`, which announces the change.
    [[nodiscard]] virtual std::optional<TDirectBits> DirectBits() { return std::nullopt; }

protected:
    friend class TCanvasStateScope;

    /// Provides a device context by `SetHandle`; the default has none.
    virtual void CreateHandle() {}
    /// Announce a drawing: raise the events.
    virtual void Changing() { OnChanging(this); }
    virtual void Changed() { OnChange(this); }

private:
    void NeedFont();
    void NeedPen();
    void NeedBrush();
    void NeedGround();
    void NeedText();
    void Select(HGDIOBJ object, HGDIOBJ& old);
    void SetGround(TColor color, int mode);
    void SetTextColor(TColor color);
    void RestoreObjects();

    /// What the canvas knows of the state of its device context.
    struct TSelected {
        TSharedFont Font;
        TSharedPen Pen;
        TSharedBrush Brush;
        bool HasBrush = false;
        int PenMode = 0;
        TColor TextColor = clInvalid;
        TColor GroundColor = clInvalid;
        int GroundMode = 0;
        int StretchMode = 0;
        HGDIOBJ OldFont = nullptr;
        HGDIOBJ OldPen = nullptr;
        HGDIOBJ OldBrush = nullptr;
    };

    HDC FHandle = nullptr;
    TCopyMode FCopyMode = cmSrcCopy;
    mutable TFont FFont;
    mutable TPen FPen;
    mutable TBrush FBrush;
    TSelected FSelected;
};

/// Saves the state of a canvas' device context (clip region, mapping, selected objects) and restores it at
/// the end of the scope.
class [[nodiscard]] TCanvasStateScope {
public:
    explicit TCanvasStateScope(TCanvas& canvas);
    TCanvasStateScope(const TCanvasStateScope&) = delete;
    TCanvasStateScope& operator=(const TCanvasStateScope&) = delete;
    ~TCanvasStateScope();

private:
    TCanvas& FCanvas;
    HDC FHandle;
    int FLevel;
    TCanvas::TSelected FSelected;
};

/// Narrows the clip region of a canvas to a rectangle for the length of a scope.
class [[nodiscard]] TClipScope : public TCanvasStateScope {
public:
    TClipScope(TCanvas& canvas, const TRect& clip) : TCanvasStateScope(canvas) {
        ::IntersectClipRect(canvas.GetHandle(), clip.Left, clip.Top, clip.Right, clip.Bottom);
    }
};

}  // namespace vcl
