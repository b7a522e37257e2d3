#pragma once

#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// The canvas of a bitmap. It draws with the device context of the bitmap's image, and has one of its own
/// without pixels while the bitmap is empty, so that texts can be measured.
class TBitmapCanvas final : public TCanvas, private TGuarded {
public:
    explicit TBitmapCanvas(TBitmap& bitmap) : FBitmap(bitmap) {}
    ~TBitmapCanvas() override { Detach(); }

    [[nodiscard]] HDC GetSourceHandle() override;
    [[nodiscard]] std::optional<TDirectBits> DirectBits() override;
    /// Gives the device context back; the next drawing asks for it again.
    void Detach();

protected:
    void CreateHandle() override;
    void Changed() override;

private:
    TBitmap& FBitmap;
    TMemoryDC FEmptyDC;
};

}  // namespace vcl
