#pragma once

#include <memory>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Graphic.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// An icon of the system, in one size.
class TIcon : public TGraphic {
public:
    TIcon();
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Takes over another icon, sharing it; null empties.
    void Assign(const TPersistent* source) override;

    void Draw(TCanvas& canvas, const TRect& rect) const override;
    [[nodiscard]] bool GetEmpty() const override { return FHandle == nullptr; }
    [[nodiscard]] int GetWidth() const override { return FSize.Width; }
    [[nodiscard]] int GetHeight() const override { return FSize.Height; }
    void SetWidth(int value) override;
    void SetHeight(int value) override;
    [[nodiscard]] bool GetTransparent() const override { return true; }
    [[nodiscard]] std::unique_ptr<TGraphic> NewOfKind() const override;

    /// The system's handle, shared by all copies of this icon; null when empty.
    [[nodiscard]] HICON GetHandle() const { return FHandle ? FHandle->Get() : nullptr; }
    /// Takes an icon over; null empties.
    void SetHandle(HICON value);
    /// Raises EResNotFound with the name when the module has no such icon.
    void LoadFromResourceName(HINSTANCE module, const String& name);
    /// Reads an icon file and takes its picture of the system's icon size, or the one nearest to it.
    void LoadFromBytes(std::span<const std::byte> bytes) override;
    /// An icon file of one picture of 32 bits.
    [[nodiscard]] std::vector<std::byte> SaveToBytes() const override;

protected:
    void AssignTo(TPersistent* dest) const override;

private:
    std::shared_ptr<const TIconHandle> FHandle;
    TSize FSize;
};

}  // namespace vcl
