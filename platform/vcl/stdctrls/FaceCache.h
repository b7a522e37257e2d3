#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include <array>
#include <cstdint>
#include <functional>

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/graphics/BitmapBits.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// Keeps the finished pictures of a control, one for each of its looks (pressed, hovered, with focus ...), so
/// that going from one look to another costs a single copy to the screen. A picture is painted when it is
/// first shown and stays until `Clear`.
///
/// All pictures stand one below the other in one bitmap of the screen's depth, so that a control has one
/// bitmap and one memory device context whatever it shows. Memory is bounded: when the looks do not all fit
/// into a megabyte, the picture that was painted first makes room.
class TFaceCache {
public:
    /// Looks are numbered from 0 to `Looks` - 1.
    static constexpr int Looks = 12;
    /// Paints a face with its top left corner at the origin of the device context, which reaches no further
    /// than the face.
    using TPainter = std::function<void(HDC)>;

    TFaceCache() { Clear(); }

    /// Copies the picture of the look to (0, 0) of `dc`, having it painted first when there is none yet. An
    /// empty size shows nothing. What `paint` raises goes on to the caller and leaves no picture. Not to be
    /// called while a picture is being painted.
    void Show(HDC dc, TSize size, int look, const TPainter& paint);
    /// Forgets all pictures; the one that is being painted is shown, but not kept.
    void Clear();
    /// Gives the bitmap and its device context back, unless a picture is being painted in it.
    void Release();
    /// True while a picture is being painted.
    [[nodiscard]] bool IsPainting() const { return FPainting; }
    /// The memory of the picture that is being painted, of 32 bits per pixel; empty at other times.
    [[nodiscard]] TBitmapBits Bits() const;

private:
    static constexpr signed char NoPlace = -1;

    void MakeBitmap(TSize size);
    void Paint(int look, const TPainter& paint);

    TBitmapHandle FBitmap;
    TMemoryDC FDC;  ///< Holds the bitmap; declared after it, and so deleted before it.
    std::uint8_t* FBits = nullptr;
    TSize FSize;
    int FPaintTop = 0;
    int FPlaces = 0;
    int FNextPlace = 0;
    std::array<signed char, Looks> FPlaceOfLook{};
    unsigned FGeneration = 0;
    bool FPainting = false;
};

}  // namespace vcl
