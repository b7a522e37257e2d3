#include "tests/vcl/graphics/BmpFile.h"

namespace vcl::probes {

BmpFile::BmpFile(int width, int height, int bitCount, DWORD compression) {
    Header.biSize = sizeof Header;
    Header.biWidth = width;
    Header.biHeight = height;
    Header.biPlanes = 1;
    Header.biBitCount = static_cast<WORD>(bitCount);
    Header.biCompression = compression;
}

void BmpFile::AddRow(std::span<const std::uint8_t> row) {
    Data.insert(Data.end(), row.begin(), row.end());
    Data.resize((Data.size() + 3) / 4 * 4);
}

std::vector<std::byte> BmpFile::Bytes(DWORD headerSize) const {
    BITMAPINFOHEADER header = Header;
    if (headerSize) header.biSize = headerSize;
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = static_cast<DWORD>(sizeof file + sizeof header + More.size() * sizeof(DWORD) +
                                        Colors.size() * sizeof(RGBQUAD));
    file.bfSize = file.bfOffBits + static_cast<DWORD>(Data.size());
    std::vector<std::byte> bytes;
    Append(bytes, file);
    Append(bytes, header);
    for (const DWORD value : More)
        Append(bytes, value);
    for (const RGBQUAD& color : Colors)
        Append(bytes, color);
    const auto data = std::as_bytes(std::span(Data));
    bytes.insert(bytes.end(), data.begin(), data.end());
    return bytes;
}

}  // namespace vcl::probes
