#include "platform/vcl/graphics/BitmapFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/PixelRows.h"

namespace vcl {
namespace {

constexpr WORD FileMark = 0x4D42;  // "BM"
constexpr DWORD AlphaBitFields = 6;
constexpr std::size_t FileHeaderSize = sizeof(BITMAPFILEHEADER);

using TMasks = std::array<DWORD, 4>;  // red, green, blue, alpha
constexpr TMasks Masks555 = {0x7C00, 0x03E0, 0x001F, 0};
constexpr TMasks Masks565 = {0xF800, 0x07E0, 0x001F, 0};
constexpr TMasks Masks888 = {0xFF0000, 0x00FF00, 0x0000FF, 0};
constexpr TMasks Masks8888 = {0xFF0000, 0x00FF00, 0x0000FF, 0xFF000000};

void Require(bool condition) {
    if (!condition) throw EInvalidGraphic(L"Bitmap image is not valid");
}

/// Reads a value at an offset; the file must reach so far.
template <class T>
T ReadAt(std::span<const std::byte> bytes, std::size_t offset) {
    Require(offset <= bytes.size() && sizeof(T) <= bytes.size() - offset);
    T value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

/// What the header says, and where pixels begin.
struct TDib {
    int Width = 0;
    int Height = 0;
    bool TopDown = false;
    int BitCount = 0;
    DWORD Compression = BI_RGB;
    TMasks Masks{};
    std::vector<RGBQUAD> Colors;
    std::size_t TableEnd = 0;  ///< Where the colour table ends.
};

/// The old header with 16-bit sizes and colours of three bytes.
std::size_t ReadCoreHeader(std::span<const std::byte> bytes, TDib& dib) {
    const auto header = ReadAt<BITMAPCOREHEADER>(bytes, 0);
    Require(header.bcPlanes == 1);
    dib.Width = header.bcWidth;
    dib.Height = header.bcHeight;
    dib.BitCount = header.bcBitCount;
    return sizeof header;
}

void ReadMasks(std::span<const std::byte> bytes, std::size_t offset, bool withAlpha, TMasks& masks) {
    for (std::size_t i = 0; i < (withAlpha ? 4U : 3U); ++i)
        masks[i] = ReadAt<DWORD>(bytes, offset + i * sizeof(DWORD));
}

/// Reads any of the later headers; returns where the colour table begins.
std::size_t ReadInfoHeader(std::span<const std::byte> bytes, TDib& dib, DWORD& colorsUsed) {
    const auto header = ReadAt<BITMAPINFOHEADER>(bytes, 0);
    Require(header.biSize >= sizeof header && header.biSize <= bytes.size() && header.biPlanes == 1);
    Require(header.biHeight != std::numeric_limits<LONG>::min());
    dib.Width = header.biWidth;
    dib.Height = std::abs(header.biHeight);
    dib.TopDown = header.biHeight < 0;
    dib.BitCount = header.biBitCount;
    dib.Compression = header.biCompression;
    colorsUsed = header.biClrUsed;
    if (dib.Compression != BI_BITFIELDS && dib.Compression != AlphaBitFields) return header.biSize;
    const bool behindHeader = header.biSize == sizeof header;
    const bool withAlpha = behindHeader ? dib.Compression == AlphaBitFields : header.biSize >= 56;
    ReadMasks(bytes, sizeof header, withAlpha, dib.Masks);
    return header.biSize + (behindHeader ? (withAlpha ? 16 : 12) : 0);
}

void ReadColors(std::span<const std::byte> bytes, std::size_t offset, DWORD used, bool triples, TDib& dib) {
    const std::size_t entrySize = triples ? sizeof(RGBTRIPLE) : sizeof(RGBQUAD);
    const std::size_t tableSize = dib.BitCount <= 8 ? std::size_t{1} << dib.BitCount : 0;
    const std::size_t count = used ? used : tableSize;
    Require(count <= (bytes.size() - offset) / entrySize);
    dib.TableEnd = offset + count * entrySize;
    for (std::size_t i = 0; i < std::min(count, tableSize); ++i) {
        const auto triple = ReadAt<RGBTRIPLE>(bytes, offset + i * entrySize);
        dib.Colors.push_back({triple.rgbtBlue, triple.rgbtGreen, triple.rgbtRed, 0});
    }
}

bool IsKnownDepth(const TDib& dib) {
    static constexpr int depths[] = {1, 4, 8, 16, 24, 32};
    if (std::find(std::begin(depths), std::end(depths), dib.BitCount) == std::end(depths)) return false;
    switch (dib.Compression) {
        case BI_RGB:
            return true;
        case BI_RLE8:
            return dib.BitCount == 8 && !dib.TopDown;
        case BI_RLE4:
            return dib.BitCount == 4 && !dib.TopDown;
        case BI_BITFIELDS:
        case AlphaBitFields:
            return dib.BitCount == 16 || dib.BitCount == 32;
        default:
            return false;
    }
}

TDib ReadHeader(std::span<const std::byte> bytes) {
    TDib dib;
    const bool core = ReadAt<DWORD>(bytes, 0) == sizeof(BITMAPCOREHEADER);
    DWORD colorsUsed = 0;
    const std::size_t table = core ? ReadCoreHeader(bytes, dib) : ReadInfoHeader(bytes, dib, colorsUsed);
    Require(dib.Width > 0 && dib.Height > 0 && table <= bytes.size() && IsKnownDepth(dib));
    ReadColors(bytes, table, colorsUsed, core, dib);
    return dib;
}

/// One channel of a pixel with unusual masks, widened or narrowed to 8 bits.
TPixel Channel(DWORD value, DWORD mask) {
    if (!mask) return 0;
    const DWORD most = mask >> std::countr_zero(mask);
    const DWORD part = (value & mask) >> std::countr_zero(mask);
    return static_cast<TPixel>((std::uint64_t{part} * 255 + most / 2) / most);
}

/// The format that holds the pixels as they are; pfCustom when they have to be taken apart.
TPixelFormat FormatOf(const TDib& dib) {
    const bool plain = dib.Compression != BI_BITFIELDS && dib.Compression != AlphaBitFields;
    switch (dib.BitCount) {
        case 1:
            return pf1bit;
        case 4:
            return pf4bit;
        case 8:
            return pf8bit;
        case 16:
            return plain || dib.Masks == Masks555 ? pf15bit : dib.Masks == Masks565 ? pf16bit : pfCustom;
        case 24:
            return pf24bit;
        default:
            return plain || dib.Masks == Masks888 || dib.Masks == Masks8888 ? pf32bit : pfCustom;
    }
}

void TakeApart(const std::byte* row, const TDib& dib, std::uint8_t* to) {
    const std::size_t pixelBytes = static_cast<std::size_t>(dib.BitCount) / 8;
    for (int x = 0; x < dib.Width; ++x, row += pixelBytes, to += sizeof(TPixel)) {
        DWORD value = 0;
        std::memcpy(&value, row, pixelBytes);
        const TPixel pixel = Channel(value, dib.Masks[3]) << 24 | Channel(value, dib.Masks[0]) << 16 |
                             Channel(value, dib.Masks[1]) << 8 | Channel(value, dib.Masks[2]);
        std::memcpy(to, &pixel, sizeof pixel);
    }
}

TSharedImage ReadRows(const TDib& dib, std::span<const std::byte> data) {
    const auto rowBytes = static_cast<std::size_t>(TBitmapImage::RowBytes(dib.Width, dib.BitCount));
    Require(rowBytes <= data.size() / static_cast<std::size_t>(dib.Height));
    const TPixelFormat format = FormatOf(dib);
    TSharedImage image =
        TBitmapImage::Create(dib.Width, dib.Height, format == pfCustom ? pf32bit : format, dib.Colors);
    for (int i = 0; i < dib.Height; ++i) {
        const std::byte* row = data.data() + static_cast<std::size_t>(i) * rowBytes;
        std::uint8_t* to = image->Row(dib.TopDown ? i : dib.Height - 1 - i);
        if (format == pfCustom)
            TakeApart(row, dib, to);
        else
            std::memcpy(to, row, rowBytes);
    }
    return image;
}

/// Decodes run-length encoded pixels of 4 or 8 bits; what the code skips keeps index 0.
class TRunDecoder {
public:
    TRunDecoder(const TDib& dib, std::span<const std::byte> data)
        : FDib(dib),
          FData(data),
          FImage(TBitmapImage::Create(dib.Width, dib.Height, FormatOf(dib), dib.Colors)) {}

    TSharedImage Decode() {
        for (;;) {
            const unsigned count = Next();
            const unsigned value = Next();
            if (count > 0) {
                for (unsigned i = 0; i < count; ++i)
                    Put(FDib.BitCount == 8 ? value : Nibble(value, i));
            } else if (value == EndOfLine) {
                FX = 0;
                ++FY;
            } else if (value == EndOfBitmap) {
                return FImage;
            } else if (value == Delta) {
                FX += static_cast<int>(Next());
                FY += static_cast<int>(Next());
            } else {
                PutLiterally(value);
            }
        }
    }

private:
    static constexpr unsigned EndOfLine = 0;
    static constexpr unsigned EndOfBitmap = 1;
    static constexpr unsigned Delta = 2;

    unsigned Next() {
        Require(FPosition < FData.size());
        return std::to_integer<unsigned>(FData[FPosition++]);
    }
    static unsigned Nibble(unsigned byte, unsigned index) { return index % 2 ? byte & 0x0F : byte >> 4; }

    /// Pixels one by one; their bytes fill up to an even number.
    void PutLiterally(unsigned count) {
        const std::size_t start = FPosition;
        unsigned byte = 0;
        for (unsigned i = 0; i < count; ++i) {
            if (FDib.BitCount == 8 || i % 2 == 0) byte = Next();
            Put(FDib.BitCount == 8 ? byte : Nibble(byte, i));
        }
        if ((FPosition - start) % 2) (void)Next();
    }
    void Put(unsigned index) {
        Require(FY < FDib.Height);
        // Some encoders let the last run of a line reach beyond it.
        if (FX < FDib.Width) {
            std::uint8_t* row = FImage->Row(FDib.Height - 1 - FY);
            if (FDib.BitCount == 8)
                row[FX] = static_cast<std::uint8_t>(index);
            else
                row[FX / 2] = static_cast<std::uint8_t>(FX % 2 ? (row[FX / 2] & 0xF0U) | index
                                                               : (row[FX / 2] & 0x0FU) | index << 4);
        }
        ++FX;
    }

    const TDib& FDib;
    std::span<const std::byte> FData;
    std::size_t FPosition = 0;
    TSharedImage FImage;
    int FX = 0;
    int FY = 0;
};

TSharedImage ReadPixels(const TDib& dib, std::span<const std::byte> data) {
    if (dib.Compression == BI_RLE4 || dib.Compression == BI_RLE8) return TRunDecoder(dib, data).Decode();
    return ReadRows(dib, data);
}

template <class T>
void Append(std::vector<std::byte>& bytes, const T& value) {
    const auto* from = reinterpret_cast<const std::byte*>(&value);
    bytes.insert(bytes.end(), from, from + sizeof value);
}

}  // namespace

TSharedImage DecodeBitmapFile(std::span<const std::byte> bytes) {
    const auto file = ReadAt<BITMAPFILEHEADER>(bytes, 0);
    Require(file.bfType == FileMark);
    const std::span<const std::byte> rest = bytes.subspan(FileHeaderSize);
    const TDib dib = ReadHeader(rest);
    // Files of some writers leave the place of the pixels open.
    const std::size_t pixels = file.bfOffBits ? file.bfOffBits - FileHeaderSize : dib.TableEnd;
    Require(pixels >= dib.TableEnd && pixels <= rest.size());
    return ReadPixels(dib, rest.subspan(pixels));
}

TSharedImage DecodeDib(std::span<const std::byte> bytes) {
    const TDib dib = ReadHeader(bytes);
    return ReadPixels(dib, bytes.subspan(dib.TableEnd));
}

std::vector<std::byte> EncodeBitmapFile(const TBitmapImage& image) {
    const std::span<const RGBQUAD> colors = image.Colors();
    const bool masked = image.Format() == pf16bit;
    const std::size_t tableSize = colors.size_bytes() + (masked ? 3 * sizeof(DWORD) : 0);
    const auto rowBytes = static_cast<std::size_t>(TBitmapImage::RowBytes(image.Width(), image.BitCount()));
    const std::size_t dataSize = rowBytes * static_cast<std::size_t>(image.Height());

    BITMAPFILEHEADER file{};
    file.bfType = FileMark;
    file.bfOffBits = static_cast<DWORD>(FileHeaderSize + sizeof(BITMAPINFOHEADER) + tableSize);
    file.bfSize = file.bfOffBits + static_cast<DWORD>(dataSize);
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = image.Width();
    header.biHeight = image.Height();
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(image.BitCount());
    header.biCompression = masked ? BI_BITFIELDS : BI_RGB;
    header.biSizeImage = static_cast<DWORD>(dataSize);
    header.biClrUsed = static_cast<DWORD>(colors.size());

    std::vector<std::byte> bytes;
    bytes.reserve(file.bfSize);
    Append(bytes, file);
    Append(bytes, header);
    for (const RGBQUAD& color : colors)
        Append(bytes, color);
    for (std::size_t i = 0; masked && i < 3; ++i)
        Append(bytes, Masks565[i]);
    for (int y = image.Height() - 1; y >= 0; --y) {
        const auto* row = reinterpret_cast<const std::byte*>(image.Row(y));
        bytes.insert(bytes.end(), row, row + rowBytes);
    }
    return bytes;
}

}  // namespace vcl
