#pragma once

#include "platform/vcl/graphics/EncodedImage.h"

namespace vcl {

/// A PNG picture; its pixels have 32 bits with alpha premultiplied, and drawing blends them. Damaged data
/// raise EInvalidGraphic "PNG error #%d" with the decoder's error code.
class TPngImage : public TEncodedImage {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    void Draw(TCanvas& canvas, const TRect& rect) const override;
    [[nodiscard]] bool GetTransparent() const override { return true; }
    [[nodiscard]] std::unique_ptr<TGraphic> NewOfKind() const override;

protected:
    [[nodiscard]] const GUID& ContainerFormat() const override;
    [[nodiscard]] bool HasSignature(std::span<const std::byte> bytes) const override;
    [[nodiscard]] bool IsComplete(std::span<const std::byte> bytes) const override;
    [[noreturn]] void RaiseInvalid(HRESULT error) const override;
    [[nodiscard]] bool HasAlpha() const override { return true; }
    /// Makes pictures opaque whose pixels have no alpha at all.
    void AdaptPixels(TBitmap& bitmap) const override;
};

}  // namespace vcl
