#include "platform/vcl/graphics/Jpeg.h"

#include <wincodec.h>

#include <algorithm>
#include <array>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

// Markers of JPEG files: ITU-T T.81, table B.1.
constexpr std::array Start = {std::byte{0xFF}, std::byte{0xD8}, std::byte{0xFF}};
constexpr std::array StartOfScan = {std::byte{0xFF}, std::byte{0xDA}};
constexpr std::array EndOfImage = {std::byte{0xFF}, std::byte{0xD9}};

}  // namespace

const TMetaClass& TJPEGImage::StaticClass() {
    static const TMetaClass meta = DefineClass<TJPEGImage>(L"TJPEGImage", TEncodedImage::StaticClass());
    return meta;
}

void TJPEGImage::SetCompressionQuality(int value) {
    value = std::clamp(value, 1, 100);
    if (FCompressionQuality == value) return;
    FCompressionQuality = value;
    ForgetBytes();
    Changed();
}

std::unique_ptr<TGraphic> TJPEGImage::NewOfKind() const {
    return std::make_unique<TJPEGImage>();
}

const GUID& TJPEGImage::ContainerFormat() const {
    return GUID_ContainerFormatJpeg;
}

bool TJPEGImage::HasSignature(std::span<const std::byte> bytes) const {
    return bytes.size() > Start.size() && std::equal(Start.begin(), Start.end(), bytes.begin());
}

bool TJPEGImage::IsComplete(std::span<const std::byte> bytes) const {
    const auto scan = std::find_end(bytes.begin(), bytes.end(), StartOfScan.begin(), StartOfScan.end());
    return std::search(scan, bytes.end(), EndOfImage.begin(), EndOfImage.end()) != bytes.end();
}

void TJPEGImage::RaiseInvalid(HRESULT error) const {
    throw EInvalidGraphic(Format(L"JPEG error #%d", HRESULT_CODE(error)));
}

}  // namespace vcl
