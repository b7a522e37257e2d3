#pragma once

#include <vector>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Graphic.h"

namespace vcl {

/// A picture in a compressed format that a decoder of the system reads: decoded when loaded, encoded when
/// saved. The bytes that were loaded are kept and saved again as they were.
class TEncodedImage : public TGraphic {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Takes over a picture of the same format, or what another one draws; null empties.
    void Assign(const TPersistent* source) override;
    void Draw(TCanvas& canvas, const TRect& rect) const override;
    [[nodiscard]] bool GetEmpty() const override { return FBitmap.GetEmpty(); }
    [[nodiscard]] int GetWidth() const override { return FBitmap.GetWidth(); }
    [[nodiscard]] int GetHeight() const override { return FBitmap.GetHeight(); }
    /// The size is fixed: both raise EInvalidGraphicOperation.
    void SetWidth(int value) override;
    void SetHeight(int value) override;
    /// The decoded pixels.
    [[nodiscard]] const TBitmap& GetBitmap() const { return FBitmap; }

    void LoadFromBytes(std::span<const std::byte> bytes) override;
    [[nodiscard]] std::vector<std::byte> SaveToBytes() const override;

protected:
    /// The format, by the system's identifier of its container.
    [[nodiscard]] virtual const GUID& ContainerFormat() const = 0;
    /// True when the bytes start as files of this format do.
    [[nodiscard]] virtual bool HasSignature(std::span<const std::byte> bytes) const = 0;
    /// False when the end of the file is missing; some decoders make up what is not there.
    [[nodiscard]] virtual bool IsComplete(std::span<const std::byte> bytes) const = 0;
    /// Raises EInvalidGraphic with the format's own text for the decoder's or encoder's error.
    [[noreturn]] virtual void RaiseInvalid(HRESULT error) const = 0;
    /// The quality to encode with, 1 to 100; 0 for formats that have none.
    [[nodiscard]] virtual int EncoderQuality() const { return 0; }
    /// Whether pixels carry an alpha channel (32 bits) or not (24 bits).
    [[nodiscard]] virtual bool HasAlpha() const { return false; }
    /// Called when the pixels came from another kind of picture, to make them fit the format.
    virtual void AdaptPixels(TBitmap&) const {}
    void AssignTo(TPersistent* dest) const override;
    /// Drops the loaded bytes, so that saving encodes anew.
    void ForgetBytes() { FBytes.clear(); }

private:
    TBitmap FBitmap;
    std::vector<std::byte> FBytes;
};

}  // namespace vcl
