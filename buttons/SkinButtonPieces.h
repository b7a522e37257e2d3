#pragma once

#include <array>
#include <memory>

#include "platform/velmora/ButtonEx.h"
#include "skin/masking/NinePartFrame.h"

namespace qv7skin {

/// How the skin shows one state of a button.
struct TSkinButtonLook {
    TSkinState Frame;  ///< The frame "SKINBUTTON" + its state word.
    TColor Interior;   ///< What the frame surrounds.
};
[[nodiscard]] const TSkinButtonLook& SkinButtonLook(velmora::TButtonExState State);

/// The bitmaps of the button frames, read from the package once for all buttons that live.
class TSkinButtonPieces {
public:
    /// The pieces in use, or fresh ones; they live as long as somebody holds them.
    [[nodiscard]] static std::shared_ptr<const TSkinButtonPieces> Shared();

    TSkinButtonPieces();
    [[nodiscard]] const TNinePartPieces& OfState(TSkinState state) const {
        return FFrames[static_cast<std::size_t>(state)].Pieces();
    }

private:
    std::array<TNinePartBitmaps, 4> FFrames;
};

}  // namespace qv7skin
