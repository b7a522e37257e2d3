#pragma once

#include "platform/vcl/graphics/EncodedImage.h"

namespace vcl {

/// A JPEG picture; its pixels have 24 bits. Damaged data raise EInvalidGraphic "JPEG error #%d" with the
/// decoder's error code.
class TJPEGImage : public TEncodedImage {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// 1 (smallest) to 100 (best), 90 at first; used when a picture that was not loaded is saved.
    [[nodiscard]] int GetCompressionQuality() const { return FCompressionQuality; }
    void SetCompressionQuality(int value);
    [[nodiscard]] std::unique_ptr<TGraphic> NewOfKind() const override;

protected:
    [[nodiscard]] bool HasLengthInForms() const override { return true; }
    [[nodiscard]] const GUID& ContainerFormat() const override;
    [[nodiscard]] bool HasSignature(std::span<const std::byte> bytes) const override;
    [[nodiscard]] bool IsComplete(std::span<const std::byte> bytes) const override;
    [[noreturn]] void RaiseInvalid(HRESULT error) const override;
    [[nodiscard]] int EncoderQuality() const override { return FCompressionQuality; }

private:
    int FCompressionQuality = 90;
};

}  // namespace vcl
