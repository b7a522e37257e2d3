#pragma once

#include <utility>

#include "platform/vcl/core/LifeGuard.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// Gives a member of an object another value for the length of a scope, which may end by an error and in
/// which the object may be freed.
template <class V>
class [[nodiscard]] TWhileScope {
public:
    TWhileScope(const TGuarded& owner, V& member, V value)
        : FGuard(owner), FMember(member), FFormer(std::exchange(member, std::move(value))) {}
    ~TWhileScope() {
        if (FGuard.IsAlive()) FMember = std::move(FFormer);
    }
    TWhileScope(const TWhileScope&) = delete;
    TWhileScope& operator=(const TWhileScope&) = delete;

private:
    TLifeGuard FGuard;
    V& FMember;
    V FFormer;
};

}  // namespace qv7skin
