#pragma once

#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// A lock between the threads of the process. The thread that holds it may enter again; it leaves as often as
/// it entered.
class TCriticalSection : public TObject {
public:
    TCriticalSection();
    ~TCriticalSection() override;

    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Waits until no other thread holds the lock and takes it.
    void Enter() { EnterCriticalSection(&FSection); }
    void Leave() { LeaveCriticalSection(&FSection); }
    /// Takes the lock when no other thread holds it; false otherwise, without waiting.
    [[nodiscard]] bool TryEnter() { return TryEnterCriticalSection(&FSection) != FALSE; }

private:
    CRITICAL_SECTION FSection;
};

}  // namespace vcl
