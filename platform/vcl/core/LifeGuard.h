#pragma once

#include <memory>

namespace vcl {

class TLifeGuard;

/// Base for objects that call out to the host and must know afterwards whether they still live. The sentinel
/// is made on first use, so that objects that never call out pay one pointer.
class TGuarded {
protected:
    TGuarded() = default;
    ~TGuarded() {
        if (FAlive) *FAlive = false;
    }
    TGuarded(const TGuarded&) = delete;
    TGuarded& operator=(const TGuarded&) = delete;

private:
    friend class TLifeGuard;
    mutable std::shared_ptr<bool> FAlive;
};

/// Stands on the stack around a call to the host: `TLifeGuard guard(*this); OnClick(this); if
/// (!guard.IsAlive()) return;`
class TLifeGuard {
public:
    explicit TLifeGuard(const TGuarded& object) {
        if (!object.FAlive) object.FAlive = std::make_shared<bool>(true);
        FAlive = object.FAlive;
    }
    [[nodiscard]] bool IsAlive() const { return *FAlive; }

private:
    std::shared_ptr<bool> FAlive;
};

}  // namespace vcl
