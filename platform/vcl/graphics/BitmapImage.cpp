#include "platform/vcl/graphics/BitmapImage.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/GdiErrors.h"
#include "platform/vcl/graphics/PixelRows.h"

namespace vcl {
namespace {

/// A process may have some ten thousand handles of the system's drawing objects; images leave most to others.
constexpr std::size_t MaxOpenDCs = 512;

/// The images whose device context is open, the one asked for last in front.
std::list<TBitmapImage*>& OpenImages() {
    static auto& images = *new std::list<TBitmapImage*>;
    return images;
}

/// A BITMAPINFO with room for colours or channel masks.
struct TSectionInfo {
    BITMAPINFOHEADER Header;
    RGBQUAD Colors[256];
};

TSectionInfo MakeSectionInfo(int width, int height, TPixelFormat format, std::span<const RGBQUAD> colors) {
    TSectionInfo info{};
    info.Header.biSize = sizeof info.Header;
    info.Header.biWidth = width;
    info.Header.biHeight = height;
    info.Header.biPlanes = 1;
    info.Header.biBitCount = static_cast<WORD>(TBitmapImage::BitCountOf(format));
    info.Header.biClrUsed = static_cast<DWORD>(colors.size());
    std::copy(colors.begin(), colors.end(), info.Colors);
    if (format == pf16bit) {
        constexpr DWORD masks[] = {0xF800, 0x07E0, 0x001F};
        info.Header.biCompression = BI_BITFIELDS;
        std::memcpy(info.Colors, masks, sizeof masks);
    }
    return info;
}

/// The format of which a section of the system is.
TPixelFormat FormatOfSection(const DIBSECTION& section) {
    switch (section.dsBmih.biBitCount) {
        case 1:
            return pf1bit;
        case 4:
            return pf4bit;
        case 8:
            return pf8bit;
        case 16:
            return section.dsBitfields[1] == 0x07E0 ? pf16bit : pf15bit;
        case 24:
            return pf24bit;
        default:
            return pf32bit;
    }
}

/// The colours given, filled up with black to the size of the format's table, or the standard ones.
std::vector<RGBQUAD> CompleteColors(TPixelFormat format, std::span<const RGBQUAD> colors) {
    const std::span<const RGBQUAD> standard = StandardColors(format);
    if (colors.empty() || standard.empty()) return {standard.begin(), standard.end()};
    std::vector<RGBQUAD> table(colors.begin(), colors.begin() + std::min(colors.size(), standard.size()));
    table.resize(standard.size());
    return table;
}

}  // namespace

int TBitmapImage::BitCountOf(TPixelFormat format) {
    static constexpr int bits[] = {32, 1, 4, 8, 16, 16, 24, 32, 32};
    return bits[static_cast<int>(format)];
}

TBitmapImage::TBitmapImage(int width, int height, TPixelFormat format, std::span<const RGBQUAD> colors)
    : FWidth(width), FHeight(height), FFormat(format), FColors(CompleteColors(format, colors)) {
    // The system reckons sizes in 32 bits; a larger one would come out small.
    if (RowBytes(width, BitCount()) > std::numeric_limits<LONG>::max() / height)
        RaiseOutOfResources(ERROR_NOT_ENOUGH_MEMORY);
    const TSectionInfo info = MakeSectionInfo(width, height, format, FColors);
    void* bits = nullptr;
    ::SetLastError(ERROR_SUCCESS);
    FHandle = TBitmapHandle(CheckHandle(::CreateDIBSection(
        nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0)));
    FBottomRow = static_cast<std::uint8_t*>(bits);
}

TBitmapImage::~TBitmapImage() {
    CloseDC();
}

TSharedImage TBitmapImage::CopyOf(HBITMAP bitmap, bool& isSection) {
    DIBSECTION section{};
    const int size = ::GetObjectW(bitmap, sizeof section, &section);
    const BITMAP& looks = section.dsBm;
    if (size < static_cast<int>(sizeof looks) || looks.bmWidth < 1 || looks.bmHeight < 1)
        throw EInvalidGraphic(L"Bitmap image is not valid");
    isSection = size == sizeof section;
    const TPixelFormat format = isSection                ? FormatOfSection(section)
                                : looks.bmBitsPixel == 1 ? pf1bit
                                                         : pf32bit;
    TSectionInfo info = MakeSectionInfo(looks.bmWidth, looks.bmHeight, format, StandardColors(format));
    const auto rowBytes = RowBytes(looks.bmWidth, info.Header.biBitCount);
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(rowBytes * looks.bmHeight));
    const TMemoryDC dc = CreateMemoryDC();
    if (!::GetDIBits(dc.Get(), bitmap, 0, static_cast<UINT>(looks.bmHeight), bits.data(),
                     reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS))
        RaiseOutOfResources();
    TSharedImage image = Create(looks.bmWidth, looks.bmHeight, format, info.Colors);
    std::copy(bits.begin(), bits.end(), image->FBottomRow);
    return image;
}

TSharedImage TBitmapImage::Converted(int width, int height, TPixelFormat format, TColor fill) const {
    const bool sameFormat = format == FFormat;
    TSharedImage made = Create(width, height, format, sameFormat ? Colors() : std::span<const RGBQUAD>());
    if (width > FWidth || height > FHeight) made->Fill(fill);
    const int columns = std::min(width, FWidth);
    const int rows = std::min(height, FHeight);
    if (sameFormat && (columns == width || BitCount() >= 8)) {
        const auto bytes = static_cast<std::size_t>(columns == width ? RowBytes(columns, BitCount())
                                                                     : columns * (BitCount() / 8));
        for (int y = 0; y < rows; ++y)
            std::memcpy(made->Row(y), Row(y), bytes);
        return made;
    }
    std::vector<TPixel> pixels(static_cast<std::size_t>(columns));
    TRowPacker packer(format, made->Colors());
    for (int y = 0; y < rows; ++y) {
        ExpandRow(Row(y), FFormat, FColors, 0, pixels);
        packer.Pack(pixels, made->Row(y));
    }
    return made;
}

std::uint8_t* TBitmapImage::Row(int y) const {
    if (FDC) ::GdiFlush();
    return FBottomRow + (FHeight - 1 - y) * RowBytes(FWidth, BitCount());
}

TColor TBitmapImage::Pixel(int x, int y) const {
    TPixel pixel = 0;
    ExpandRow(Row(y), FFormat, FColors, x, {&pixel, 1});
    return ColorOfPixel(pixel);
}

void TBitmapImage::Fill(TColor color) {
    const std::vector<TPixel> pixels(static_cast<std::size_t>(FWidth), PixelOfColor(ColorToRGB(color)));
    TRowPacker(FFormat, FColors).Pack(pixels, Row(0));
    for (int y = 1; y < FHeight; ++y)
        std::memcpy(Row(y), Row(0), static_cast<std::size_t>(RowBytes(FWidth, BitCount())));
}

HDC TBitmapImage::OpenDC() {
    auto& open = OpenImages();
    if (FDC) {
        open.splice(open.begin(), open, FOpenPlace);
        return FDC.Get();
    }
    TMemoryDC dc = CreateMemoryDC();
    if (open.size() >= MaxOpenDCs) open.back()->CloseDC();
    open.push_front(this);
    FOpenPlace = open.begin();
    FDC = std::move(dc);
    FOldBitmap = ::SelectObject(FDC.Get(), FHandle.Get());
    if (FFirstRow) ::SetViewportOrgEx(FDC.Get(), 0, -FFirstRow, nullptr);
    return FDC.Get();
}

void TBitmapImage::SetFirstRow(int value) {
    if (value == FFirstRow) return;
    FFirstRow = value;
    if (FDC) ::SetViewportOrgEx(FDC.Get(), 0, -FFirstRow, nullptr);
}

void TBitmapImage::CloseDC() {
    if (!FDC) return;
    DetachSurface();
    ::SelectObject(FDC.Get(), FOldBitmap);
    FDC.Reset();
    OpenImages().erase(FOpenPlace);
}

void TBitmapImage::DetachSurface() {
    if (TCanvas* canvas = std::exchange(FSurface, nullptr)) canvas->SetHandle(nullptr);
}

TBitmapHandle TBitmapImage::ReleaseHandle() {
    CloseDC();
    FBottomRow = nullptr;
    return std::move(FHandle);
}

TSharedImage TBitmapImage::MakeMask(TColor transparent) const {
    const TPixel key = PixelOfColor(ColorToRGB(transparent));
    TSharedImage mask = Create(FWidth, FHeight, pf1bit);
    std::vector<TPixel> pixels(static_cast<std::size_t>(FWidth));
    TRowPacker packer(pf1bit, mask->Colors());
    for (int y = 0; y < FHeight; ++y) {
        ExpandRow(Row(y), FFormat, FColors, 0, pixels);
        for (TPixel& pixel : pixels)
            pixel = (pixel & 0x00FFFFFF) == key ? 0x00FFFFFF : 0;
        packer.Pack(pixels, mask->Row(y));
    }
    return mask;
}

const TBitmapImage::TMaskPair& TBitmapImage::MaskFor(TColor transparent) {
    const TColor color = ColorToRGB(transparent);
    if (FMask && FMask->Transparent == color) return *FMask;
    // Whoever draws next has to ask for the context again, which forgets the pair.
    DetachSurface();
    const TPixel key = PixelOfColor(color);
    auto pair = std::make_unique<TMaskPair>();
    pair->Transparent = color;
    pair->Mask = MakeMask(color);
    pair->Picture = Create(FWidth, FHeight, pf32bit);
    for (int y = 0; y < FHeight; ++y) {
        const std::span pixels(reinterpret_cast<TPixel*>(pair->Picture->Row(y)),
                               static_cast<std::size_t>(FWidth));
        ExpandRow(Row(y), FFormat, FColors, 0, pixels);
        for (TPixel& pixel : pixels)
            if ((pixel & 0x00FFFFFF) == key) pixel = 0;
    }
    FMask = std::move(pair);
    return *FMask;
}

}  // namespace vcl
