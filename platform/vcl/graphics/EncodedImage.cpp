#include "platform/vcl/graphics/EncodedImage.h"

#include <wincodec.h>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/WicCodec.h"

namespace vcl {

const TMetaClass& TEncodedImage::StaticClass() {
    static const TMetaClass meta = DefineClass<TEncodedImage>(L"TEncodedImage", TGraphic::StaticClass());
    return meta;
}

void TEncodedImage::Assign(const TPersistent* source) {
    if (source == this) return;
    const auto* image = dynamic_cast<const TEncodedImage*>(source);
    if (image && image->ContainerFormat() == ContainerFormat()) {
        FBitmap.Assign(&image->FBitmap);
        FBytes = image->FBytes;
    } else {
        FBitmap.Assign(source);
        AdaptPixels(FBitmap);
        FBytes.clear();
    }
    Changed();
}

void TEncodedImage::AssignTo(TPersistent* dest) const {
    if (auto* bitmap = dynamic_cast<TBitmap*>(dest))
        bitmap->Assign(&FBitmap);
    else
        TGraphic::AssignTo(dest);
}

void TEncodedImage::Draw(TCanvas& canvas, const TRect& rect) const {
    FBitmap.Draw(canvas, rect);
}

void TEncodedImage::SetWidth(int) {
    throw EInvalidGraphicOperation(L"Cannot change the size of a " + ClassName());
}

void TEncodedImage::SetHeight(int value) {
    SetWidth(value);
}

void TEncodedImage::LoadFromBytes(std::span<const std::byte> bytes) {
    if (!HasSignature(bytes)) RaiseInvalid(WINCODEC_ERR_UNKNOWNIMAGEFORMAT);
    if (!IsComplete(bytes)) RaiseInvalid(WINCODEC_ERR_STREAMREAD);
    std::vector<std::byte> kept(bytes.begin(), bytes.end());
    const HRESULT result = DecodePicture(bytes, ContainerFormat(), HasAlpha(), FBitmap);
    if (FAILED(result)) RaiseInvalid(result);
    FBytes = std::move(kept);
    Changed();
}

std::vector<std::byte> TEncodedImage::SaveToBytes() const {
    if (!FBytes.empty() || GetEmpty()) return FBytes;
    std::vector<std::byte> bytes;
    const HRESULT result = EncodePicture(FBitmap, ContainerFormat(), HasAlpha(), EncoderQuality(), bytes);
    if (FAILED(result)) RaiseInvalid(result);
    return bytes;
}

}  // namespace vcl
