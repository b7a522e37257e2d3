#include "platform/vcl/graphics/Png.h"

#include <wincodec.h>

#include <algorithm>
#include <array>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

constexpr std::array Signature = {std::byte{0x89}, std::byte{'P'},  std::byte{'N'},  std::byte{'G'},
                                  std::byte{'\r'}, std::byte{'\n'}, std::byte{0x1A}, std::byte{'\n'}};
// The last chunk: its type and its checksum.
constexpr std::array End = {std::byte{'I'},  std::byte{'E'},  std::byte{'N'},  std::byte{'D'},
                            std::byte{0xAE}, std::byte{0x42}, std::byte{0x60}, std::byte{0x82}};

}  // namespace

const TMetaClass& TPngImage::StaticClass() {
    static const TMetaClass meta = DefineClass<TPngImage>(L"TPngImage", TEncodedImage::StaticClass());
    return meta;
}

void TPngImage::Draw(TCanvas& canvas, const TRect& rect) const {
    if (GetEmpty()) return;
    const HDC source = GetBitmap().GetSourceDC();
    constexpr BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(canvas.GetHandle(), rect.Left, rect.Top, rect.Width(), rect.Height(), source, 0, 0,
                    GetWidth(), GetHeight(), blend);
}

void TPngImage::AdaptPixels(TBitmap& bitmap) const {
    if (bitmap.GetEmpty()) return;
    bitmap.SetPixelFormat(pf32bit);
    const TBitmapBits bits = bitmap.WriteBits();
    unsigned alpha = 0;
    for (int y = 0; y < bits.Height; ++y)
        for (int x = 0; x < bits.Width; ++x)
            alpha |= bits.Pixel(x, y)[3];
    for (int y = 0; alpha == 0 && y < bits.Height; ++y)
        for (int x = 0; x < bits.Width; ++x)
            bits.Pixel(x, y)[3] = 0xFF;
}

std::unique_ptr<TGraphic> TPngImage::NewOfKind() const {
    return std::make_unique<TPngImage>();
}

const GUID& TPngImage::ContainerFormat() const {
    return GUID_ContainerFormatPng;
}

bool TPngImage::HasSignature(std::span<const std::byte> bytes) const {
    return bytes.size() > Signature.size() && std::equal(Signature.begin(), Signature.end(), bytes.begin());
}

bool TPngImage::IsComplete(std::span<const std::byte> bytes) const {
    return std::search(bytes.begin(), bytes.end(), End.begin(), End.end()) != bytes.end();
}

void TPngImage::RaiseInvalid(HRESULT error) const {
    throw EInvalidGraphic(Format(L"PNG error #%d", HRESULT_CODE(error)));
}

}  // namespace vcl
