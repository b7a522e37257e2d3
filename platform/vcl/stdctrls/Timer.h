#pragma once

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// Raises `OnTimer` again and again from the message loop of the thread that made it. The event may change
/// or free the timer; an error that escapes it goes to the application's exception event.
class TTimer : public TComponent, public TGuarded {
public:
    explicit TTimer(TComponent* AOwner);
    ~TTimer() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] bool GetEnabled() const { return FEnabled; }
    /// Starts or stops; starting begins a whole new interval.
    void SetEnabled(bool value);
    [[nodiscard]] unsigned GetInterval() const { return FInterval; }
    /// Milliseconds between two events; 0 stops the timer. A running timer begins a whole new interval.
    /// The system delivers at most one event per 10 to 16 ms.
    void SetInterval(unsigned value);

    TNotifyEvent OnTimer;

protected:
    /// Raises `OnTimer`.
    virtual void Timer();

private:
    static void CALLBACK Elapsed(HWND window, UINT message, UINT_PTR id, DWORD time);
    void Restart();
    void Stop();

    UINT_PTR FId = 0;
    unsigned FInterval = 1000;
    bool FEnabled = true;
};

}  // namespace vcl
