#include "explorerbar/groups/FrameTimer.h"

#include "platform/vcl/stdctrls/Timer.h"

namespace qv7skin {
namespace {

constexpr unsigned FrameMilliseconds = 30;

}  // namespace

TFrameTimer::TFrameTimer() = default;

TFrameTimer::~TFrameTimer() = default;

void TFrameTimer::Start(const TNotifyEvent& OnFrame) {
    if (!FTimer) {
        FTimer = std::make_unique<TTimer>(nullptr);
        FTimer->SetEnabled(false);
        FTimer->SetInterval(FrameMilliseconds);
    }
    FTimer->OnTimer = OnFrame;
    FTimer->SetEnabled(true);
}

void TFrameTimer::Stop() {
    if (FTimer) FTimer->SetEnabled(false);
}

}  // namespace qv7skin
