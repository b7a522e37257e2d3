#include "resources/skinart/BmpFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace skinart {

const std::array<Rgb, 16> kVgaColors{{{0, 0, 0},
                                      {128, 0, 0},
                                      {0, 128, 0},
                                      {128, 128, 0},
                                      {0, 0, 128},
                                      {128, 0, 128},
                                      {0, 128, 128},
                                      {128, 128, 128},
                                      {192, 192, 192},
                                      {255, 0, 0},
                                      {0, 255, 0},
                                      {255, 255, 0},
                                      {0, 0, 255},
                                      {255, 0, 255},
                                      {0, 255, 255},
                                      {255, 255, 255}}};

namespace {

// Sizes of BITMAPFILEHEADER and BITMAPINFOHEADER.
constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;

void Append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
}

std::uint32_t Stride(int width, int bitsPerPixel) {
    return (static_cast<std::uint32_t>(width) * static_cast<std::uint32_t>(bitsPerPixel) + 31) / 32 * 4;
}

std::string Headers(const Picture& picture, int bitsPerPixel, std::uint32_t colors) {
    const std::uint32_t pixelsAt = kFileHeaderSize + kInfoHeaderSize + 4 * colors;
    const std::uint32_t imageSize =
        Stride(picture.Width(), bitsPerPixel) * static_cast<std::uint32_t>(picture.Height());
    std::string bytes = "BM";
    Append(bytes, pixelsAt + imageSize, 4);
    Append(bytes, 0, 4);
    Append(bytes, pixelsAt, 4);
    Append(bytes, kInfoHeaderSize, 4);
    Append(bytes, static_cast<std::uint32_t>(picture.Width()), 4);
    Append(bytes, static_cast<std::uint32_t>(picture.Height()), 4);
    Append(bytes, 1, 2);
    Append(bytes, static_cast<std::uint32_t>(bitsPerPixel), 2);
    Append(bytes, 0, 4);  // not compressed
    Append(bytes, imageSize, 4);
    Append(bytes, 0, 4);
    Append(bytes, 0, 4);
    Append(bytes, colors, 4);
    Append(bytes, 0, 4);
    return bytes;
}

void PadRow(std::string& bytes, std::size_t rowStart, std::uint32_t stride) {
    bytes.resize(rowStart + stride, '\0');
}

std::uint32_t VgaIndex(Rgb color) {
    const auto found = std::find(kVgaColors.begin(), kVgaColors.end(), color);
    if (found == kVgaColors.end()) throw std::invalid_argument("not a VGA colour");
    return static_cast<std::uint32_t>(found - kVgaColors.begin());
}

}  // namespace

std::string EncodeBmp24(const Picture& picture) {
    std::string bytes = Headers(picture, 24, 0);
    for (int y = picture.Height() - 1; y >= 0; --y) {
        const std::size_t rowStart = bytes.size();
        for (int x = 0; x < picture.Width(); ++x) {
            const Rgb color = picture.At(x, y);
            Append(bytes, color.Blue, 1);
            Append(bytes, color.Green, 1);
            Append(bytes, color.Red, 1);
        }
        PadRow(bytes, rowStart, Stride(picture.Width(), 24));
    }
    return bytes;
}

std::string EncodeBmp4(const Picture& picture) {
    std::string bytes = Headers(picture, 4, static_cast<std::uint32_t>(kVgaColors.size()));
    for (const Rgb color : kVgaColors) {
        Append(bytes, color.Blue, 1);
        Append(bytes, color.Green, 1);
        Append(bytes, color.Red, 1);
        Append(bytes, 0, 1);
    }
    for (int y = picture.Height() - 1; y >= 0; --y) {
        const std::size_t rowStart = bytes.size();
        for (int x = 0; x < picture.Width(); x += 2) {
            const std::uint32_t left = VgaIndex(picture.At(x, y));
            const std::uint32_t right = x + 1 < picture.Width() ? VgaIndex(picture.At(x + 1, y)) : 0;
            Append(bytes, left << 4 | right, 1);
        }
        PadRow(bytes, rowStart, Stride(picture.Width(), 4));
    }
    return bytes;
}

}  // namespace skinart
