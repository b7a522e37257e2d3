#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <span>
#include <vector>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

class TBitmapImage;
using TSharedImage = std::shared_ptr<TBitmapImage>;

/// The pixels of a bitmap: a device-independent section of the system, bottom row first in memory, and the
/// device context that it is selected in while anyone draws on it or copies from it. Bitmaps that were
/// assigned to each other share one image.
class TBitmapImage {
public:
    /// An image of at least one pixel, all bytes 0. `format` is neither pfDevice nor pfCustom; `colors` is
    /// the colour table of formats with one, the standard one when empty. Raises EOutOfResources.
    TBitmapImage(int width, int height, TPixelFormat format, std::span<const RGBQUAD> colors = {});
    ~TBitmapImage();
    TBitmapImage(const TBitmapImage&) = delete;
    TBitmapImage& operator=(const TBitmapImage&) = delete;

    [[nodiscard]] static TSharedImage Create(int width, int height, TPixelFormat format,
                                             std::span<const RGBQUAD> colors = {}) {
        return std::make_shared<TBitmapImage>(width, height, format, colors);
    }
    /// A copy of a bitmap of the system; sections keep their format, others get 1 or 32 bits. Raises
    /// EInvalidGraphic for what is no bitmap.
    [[nodiscard]] static TSharedImage CopyOf(HBITMAP bitmap, bool& isSection);
    /// A copy of size and format of its own; the part that both have is copied, the rest is of `fill`.
    [[nodiscard]] TSharedImage Converted(int width, int height, TPixelFormat format, TColor fill) const;

    [[nodiscard]] int Width() const { return FWidth; }
    [[nodiscard]] int Height() const { return FHeight; }
    [[nodiscard]] TPixelFormat Format() const { return FFormat; }
    [[nodiscard]] int BitCount() const { return BitCountOf(FFormat); }
    [[nodiscard]] std::span<const RGBQUAD> Colors() const { return FColors; }
    [[nodiscard]] HBITMAP Handle() const { return FHandle.Get(); }
    /// Bytes from one row to the next below it: negative, since the bottom row comes first.
    [[nodiscard]] std::ptrdiff_t Stride() const { return -RowBytes(FWidth, BitCount()); }
    /// The first byte of a row, top row 0; drawing that the system still holds back is done first.
    [[nodiscard]] std::uint8_t* Row(int y) const;
    /// The colour of a pixel, 0x00BBGGRR.
    [[nodiscard]] TColor Pixel(int x, int y) const;
    void Fill(TColor color);

    /// The device context with the image selected, opened on first use. Only a limited number is open in the
    /// process; the one not asked for longest is closed when there are too many.
    [[nodiscard]] HDC OpenDC();
    /// The row, in coordinates of the device context, at which the top row stands; 0 at first. A context that
    /// is open moves along.
    [[nodiscard]] int FirstRow() const { return FFirstRow; }
    void SetFirstRow(int value);
    /// Ends drawing and closes the device context.
    void CloseDC();
    /// The canvas that draws with the device context, or null. It is detached before the context closes.
    void SetSurface(TCanvas* canvas) { FSurface = canvas; }
    [[nodiscard]] TCanvas* Surface() const { return FSurface; }
    /// Takes the device context from the canvas that draws, so that the next drawing has to ask again.
    void DetachSurface();
    /// Gives the handle up; the image is then of no more use.
    [[nodiscard]] TBitmapHandle ReleaseHandle();

    /// What drawing without the pixels of one colour takes: a mask, white where the colour is, and a copy
    /// with those pixels black.
    struct TMaskPair {
        TColor Transparent;
        TSharedImage Mask;
        TSharedImage Picture;
    };
    /// The pair for a colour, kept until the image changes.
    [[nodiscard]] const TMaskPair& MaskFor(TColor transparent);
    /// Drops what was derived from the pixels.
    void ForgetMask() { FMask.reset(); }
    /// A black and white image, white where this one has the colour.
    [[nodiscard]] TSharedImage MakeMask(TColor transparent) const;

    [[nodiscard]] static int BitCountOf(TPixelFormat format);
    /// Bytes of a row, which are a multiple of 4.
    [[nodiscard]] static std::ptrdiff_t RowBytes(int width, int bitCount) {
        return (static_cast<std::ptrdiff_t>(width) * bitCount + 31) / 32 * 4;
    }

private:
    int FWidth;
    int FHeight;
    TPixelFormat FFormat;
    std::vector<RGBQUAD> FColors;
    TBitmapHandle FHandle;
    std::uint8_t* FBottomRow = nullptr;
    TMemoryDC FDC;
    HGDIOBJ FOldBitmap = nullptr;
    int FFirstRow = 0;
    std::list<TBitmapImage*>::iterator FOpenPlace;
    TCanvas* FSurface = nullptr;
    std::unique_ptr<TMaskPair> FMask;
};

}  // namespace vcl
