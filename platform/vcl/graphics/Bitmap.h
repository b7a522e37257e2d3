#pragma once

#include <memory>

#include "platform/vcl/core/Sets.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/BitmapBits.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Graphic.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

class TBitmapCanvas;
class TBitmapImage;

/// How pixels are stored. `pfDevice` is the screen's format, 32 bits here; `pfCustom` can only be read.
enum class TPixelFormat { pfDevice, pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit, pfCustom };
/// Where the transparent colour comes from: the bottom left pixel, or a fixed value.
enum class TTransparentMode { tmAuto, tmFixed };
using enum TPixelFormat;
using enum TTransparentMode;

/// A raster picture in memory, with a canvas to draw on.
///
/// Pixels always stand in memory that `ScanLine` and the views reach directly. Assigning shares the pixels
/// until one of the sharers changes them. A bitmap keeps a memory device context of its own once it was drawn
/// on or copied from, so that later copies cost the copy alone; the process holds a limited number of them
/// open. Not for several threads at once.
class TBitmap : public TGraphic {
public:
    TBitmap();
    /// An area of that size and format, filled with white.
    TBitmap(int width, int height, TPixelFormat format = pfDevice);
    ~TBitmap() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Takes over another bitmap (sharing its pixels), or what another picture draws; null empties the
    /// bitmap. A transparent mode and colour come along from bitmaps.
    void Assign(const TPersistent* source) override;

    // --- Size and format. A change keeps the pixels that have a place, new ones get the colour of the
    // canvas' brush (white at first). Negative sizes raise EInvalidGraphicOperation, too large ones
    // EOutOfResources; the bitmap then stays as it was.
    [[nodiscard]] int GetWidth() const override { return FWidth; }
    [[nodiscard]] int GetHeight() const override { return FHeight; }
    void SetWidth(int value) override { SetSize(value, FHeight); }
    void SetHeight(int value) override { SetSize(FWidth, value); }
    void SetSize(int width, int height);
    [[nodiscard]] bool GetEmpty() const override { return FImage == nullptr; }
    [[nodiscard]] TPixelFormat GetPixelFormat() const;
    /// Converts the pixels. Few colours: those of the standard palette that are nearest.
    void SetPixelFormat(TPixelFormat value);
    [[nodiscard]] bool GetMonochrome() const { return GetPixelFormat() == pf1bit; }
    /// Makes the bitmap black and white, or gives a black and white one the screen's format.
    void SetMonochrome(bool value);

    // --- Memory
    /// The first byte of a row, top row 0. Writing there is a change: tell it with `Changed` when someone
    /// listens. Raises EInvalidGraphicOperation "Scan line index out of range".
    [[nodiscard]] void* ScanLine(int row);
    [[nodiscard]] const void* ScanLine(int row) const;
    /// Bytes from one row to the next below it (mostly negative); 0 when empty.
    [[nodiscard]] int GetStride() const;
    /// A view of all pixels for writing, empty for an empty bitmap; raises EInvalidGraphicOperation unless
    /// the format has 24 or 32 bits. Tell changes with `Changed` when someone listens.
    [[nodiscard]] TBitmapBits WriteBits();
    /// The same for reading; leaves shared pixels shared.
    [[nodiscard]] TConstBitmapBits ReadBits() const;
    /// True for formats that the views can show.
    [[nodiscard]] bool HasByteBits() const;

    // --- Drawing
    /// The surface of the bitmap; drawing on an empty bitmap does nothing.
    [[nodiscard]] TCanvas& GetCanvas();
    /// Draws by the canvas' copy mode, or transparently when `Transparent` is set.
    void Draw(TCanvas& canvas, const TRect& rect) const override;
    /// A device context that holds the pixels, for reading; null when empty. Valid until the bitmap changes.
    [[nodiscard]] HDC GetSourceDC() const;

    // --- Transparency
    /// The colour left out when drawing: the fixed one, or that of the bottom left pixel. `clNone` for an
    /// empty bitmap in `tmAuto`.
    [[nodiscard]] TColor GetTransparentColor() const;
    /// Sets a fixed colour; `clDefault` takes the bottom left pixel again.
    void SetTransparentColor(TColor value);
    [[nodiscard]] TTransparentMode GetTransparentMode() const { return FTransparentMode; }
    void SetTransparentMode(TTransparentMode value);
    /// Turns the bitmap into the mask of a colour: black and white, white where the colour was.
    void Mask(TColor transparent);
    /// The mask of the transparent colour as a black and white bitmap of the system; stays the bitmap's.
    [[nodiscard]] HBITMAP GetMaskHandle() const;

    // --- The system's handle
    /// The device-independent section with the pixels, null when empty; stays the bitmap's. While others use
    /// it the bitmap holds it selected in no device context, until it is drawn on or copied from again.
    [[nodiscard]] HBITMAP GetHandle();
    /// Takes the system bitmap over: copies its pixels, a section's in their format, and deletes it; null
    /// empties.
    void SetHandle(HBITMAP value);
    /// Gives the system bitmap up to the caller; the bitmap is then empty.
    [[nodiscard]] TBitmapHandle ReleaseHandle();

    // --- Files and resources
    /// Raises EResNotFound with the name when the module has no such bitmap.
    void LoadFromResourceName(HINSTANCE module, const String& name);
    void LoadFromResourceID(HINSTANCE module, int id);
    /// Reads a Windows bitmap file of any usual depth, run-length encoded or top-down ones too. Raises
    /// EInvalidGraphic "Bitmap image is not valid".
    void LoadFromBytes(std::span<const std::byte> bytes) override;
    [[nodiscard]] std::vector<std::byte> SaveToBytes() const override;
    [[nodiscard]] std::unique_ptr<TGraphic> NewOfKind() const override;

    /// The row of a larger picture that the bitmap's top row stands for, 0 in most bitmaps. Drawing,
    /// `ScanLine` and copies from it count rows from there, the views do not. Bitmaps that are assigned from
    /// it get the rows alone.
    [[nodiscard]] int GetFirstRow() const;
    /// How many rows there are in memory.
    [[nodiscard]] int GetRowCount() const { return FHeight; }

protected:
    void SetFirstRow(int value);
    [[nodiscard]] bool HasLengthInForms() const override { return true; }

private:
    friend class TBitmapCanvas;

    void Unshare();
    void TakeImage(std::shared_ptr<TBitmapImage> image, TPixelFormat format);
    void DrawTransparent(TCanvas& canvas, const TRect& rect) const;

    std::shared_ptr<TBitmapImage> FImage;
    std::unique_ptr<TBitmapCanvas> FCanvas;
    int FWidth = 0;
    int FHeight = 0;
    TPixelFormat FFormat = pfDevice;  ///< Of an empty bitmap, and `pfDevice` against `pf32bit`.
    TTransparentMode FTransparentMode = tmAuto;
    TColor FTransparentColor = clDefault;
};

}  // namespace vcl
