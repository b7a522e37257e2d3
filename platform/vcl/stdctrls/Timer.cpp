#include "platform/vcl/stdctrls/Timer.h"

#include <exception>
#include <unordered_map>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"

namespace vcl {
namespace {

/// The running timers of the thread by the system's number. A message that comes late, after its timer was
/// stopped, finds nothing here.
std::unordered_map<UINT_PTR, TTimer*>& RunningTimers() {
    thread_local std::unordered_map<UINT_PTR, TTimer*> timers;
    return timers;
}

}  // namespace

const TMetaClass& TTimer::StaticClass() {
    using C = TTimer;
    static const TMetaClass meta = DefineClass<C>(L"TTimer", TComponent::StaticClass())
                                       .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
                                       .Property(L"Interval", &C::GetInterval, &C::SetInterval, 1000U)
                                       .Event(L"OnTimer", &C::OnTimer);
    return meta;
}

TTimer::TTimer(TComponent* AOwner) : TComponent(AOwner) {
    Restart();
}

TTimer::~TTimer() {
    Stop();
}

void TTimer::SetEnabled(bool value) {
    if (value == FEnabled) return;
    FEnabled = value;
    Restart();
}

void TTimer::SetInterval(unsigned value) {
    if (value == FInterval) return;
    FInterval = value;
    Restart();
}

void TTimer::Restart() {
    Stop();
    if (!FEnabled || FInterval == 0) return;
    FId = ::SetTimer(nullptr, 0, FInterval, Elapsed);
    if (!FId) throw EOutOfResources(L"Not enough timers available");
    RunningTimers()[FId] = this;
    TLedger::Count("timer", +1);
}

void TTimer::Stop() {
    if (!FId) return;
    ::KillTimer(nullptr, FId);
    RunningTimers().erase(FId);
    TLedger::Count("timer", -1);
    FId = 0;
}

void CALLBACK TTimer::Elapsed(HWND, UINT, UINT_PTR id, DWORD) {
    const auto found = RunningTimers().find(id);
    if (found == RunningTimers().end()) return;
    try {
        found->second->Timer();
    } catch (...) {
        AppServices().HandleException(std::current_exception());
    }
}

void TTimer::Timer() {
    OnTimer(this);
}

}  // namespace vcl
