#include "header/tabs/TabAnimation.h"

#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Loaders.h"
#include "skin/utils/OneShotDrawing.h"

namespace qv7skin {
namespace {

constexpr int Top = 3;
constexpr TColor Transparent = 0x00FF00FF;

}  // namespace

TTabAnimation::TTabAnimation() = default;

TTabAnimation::~TTabAnimation() = default;

void TTabAnimation::Load() {
    for (int state = hisDefault; state <= hisPressed; ++state) {
        const wchar_t* suffix = state == hisPressed ? L"PRESSED" : L"DEFAULT";
        TFrames& frames = FSets[static_cast<std::size_t>(state)];
        for (int frame = 0; frame < FrameCount; ++frame)
            frames[static_cast<std::size_t>(frame)] =
                CreateBmp(L"TABANIMATION" + std::to_wstring(frame) + suffix);
    }
}

void TTabAnimation::Step() {
    if (FFrame == FrameCount - 1) FForward = false;
    if (FFrame == 0) FForward = true;
    FFrame += FForward ? 1 : -1;
}

void TTabAnimation::Draw(TCanvas& Canvas, int State, int X) const {
    TBitmap* frame = FSets[static_cast<std::size_t>(State)][static_cast<std::size_t>(FFrame)].get();
    if (frame) DrawTransparentBitmap(Canvas, frame, X, Top, Transparent);
}

}  // namespace qv7skin
