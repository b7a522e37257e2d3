#pragma once

#include <memory>

#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The bitmaps of caption headers: a grey and a dark pair of bands. One that could not be loaded is
/// null.
class THeaderBands {
public:
    THeaderBands();
    ~THeaderBands();
    /// The set that all caption headers of the process share, loaded when the first needs it and freed with
    /// the last.
    [[nodiscard]] static std::shared_ptr<const THeaderBands> Shared();

    [[nodiscard]] const TBitmap* Top(bool Grey) const { return (Grey ? FGreyTop : FDarkTop).get(); }
    [[nodiscard]] const TBitmap* Bottom(bool Grey) const { return (Grey ? FGreyBottom : FDarkBottom).get(); }

private:
    std::unique_ptr<TBitmap> FGreyTop;
    std::unique_ptr<TBitmap> FGreyBottom;
    std::unique_ptr<TBitmap> FDarkTop;
    std::unique_ptr<TBitmap> FDarkBottom;
};

}  // namespace qv7skin
