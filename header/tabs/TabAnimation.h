#pragma once

#include <array>
#include <memory>

#include "header/items/HeaderItemHost.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The frames of the running marker of extended tabs, and which of them is shown.
class TTabAnimation {
public:
    static constexpr int FrameCount = 3;

    TTabAnimation();
    ~TTabAnimation();

    /// Loads the frames for default, hovered and pressed tabs.
    void Load();
    /// The frame shown: 0, 1, 2, 1, 0, 1 ...
    [[nodiscard]] int GetFrame() const { return FFrame; }
    /// Goes on to the next frame.
    void Step();
    /// Draws the frame for the state at (X, 3); nothing before `Load`.
    void Draw(TCanvas& Canvas, int State, int X) const;

private:
    using TFrames = std::array<std::unique_ptr<TBitmap>, FrameCount>;

    std::array<TFrames, HeaderItemStateCount> FSets;
    int FFrame = 0;
    bool FForward = true;
};

}  // namespace qv7skin
