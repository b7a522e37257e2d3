#pragma once

#include <memory>

#include "platform/vcl/core/Events.h"
#include "skin/Namespace.h"

namespace vcl {
class TTimer;
}

namespace qv7skin {

/// The timer of an animation, 30 milliseconds a frame. It is made with the first start: the system takes
/// longer to hear of a timer than a group takes to be built.
class TFrameTimer {
public:
    TFrameTimer();
    ~TFrameTimer();
    /// Raises `OnFrame` from now on; a timer that runs already goes on.
    void Start(const TNotifyEvent& OnFrame);
    /// May be called by the handler.
    void Stop();

private:
    std::unique_ptr<TTimer> FTimer;
};

}  // namespace qv7skin
