#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/vcl/core/WindowsApi.h"

namespace vcl::probes {

/// A Windows bitmap file that a test writes field by field.
class BmpFile {
public:
    /// A file of the newer header with these sizes; the height is negative for top-down rows.
    BmpFile(int width, int height, int bitCount, DWORD compression = BI_RGB);

    BITMAPINFOHEADER Header{};
    /// Header fields behind those of BITMAPINFOHEADER, channel masks or none.
    std::vector<DWORD> More;
    std::vector<RGBQUAD> Colors;
    /// The pixels as they stand in the file.
    std::vector<std::uint8_t> Data;

    /// Appends a row and fills it up to a multiple of four bytes.
    void AddRow(std::span<const std::uint8_t> row);
    /// The bytes of the file. With `headerSize` the fields of `More` count as part of the header.
    [[nodiscard]] std::vector<std::byte> Bytes(DWORD headerSize = 0) const;

    template <class T>
    static void Append(std::vector<std::byte>& bytes, const T& value) {
        const auto* from = reinterpret_cast<const std::byte*>(&value);
        bytes.insert(bytes.end(), from, from + sizeof value);
    }
};

}  // namespace vcl::probes
