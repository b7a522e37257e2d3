#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// A picture in memory to paint a window into before it is shown in one piece. The memory is kept for the
/// next one, since making it costs more than many a painting.
class TPaintBuffer {
public:
    /// At least `size` pixels in the format of `target`, drawing clipped to `clip`.
    TPaintBuffer(HDC target, TSize size, const TRect& clip);
    ~TPaintBuffer();
    TPaintBuffer(const TPaintBuffer&) = delete;
    TPaintBuffer& operator=(const TPaintBuffer&) = delete;

    [[nodiscard]] HDC DC() const { return FDC.Get(); }
    /// Copies the clipped part to the target.
    void Show() const;

private:
    HDC FTarget;
    TRect FClip;
    TSize FSize;
    TMemoryDC FDC;
    TBitmapHandle FBitmap;
    HGDIOBJ FOldBitmap = nullptr;
    int FSavedState = 0;
};

/// Frees the memory that is kept for the next buffer.
void FreePaintBuffers();

}  // namespace vcl
