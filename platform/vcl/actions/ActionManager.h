#pragma once

#include <memory>

#include "platform/vcl/actions/ActionList.h"

namespace vcl {

class TActionBars;

/// A list of actions that also says which bars show which of them.
class TCustomActionManager : public TCustomActionList {
public:
    explicit TCustomActionManager(TComponent* AOwner);
    ~TCustomActionManager() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TActionBars& GetActionBars() const { return *FActionBars; }
    void SetActionBars(const TActionBars& value);

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    std::unique_ptr<TActionBars> FActionBars;
};

/// The manager for forms.
class TActionManager : public TCustomActionManager {
public:
    using TCustomActionManager::TCustomActionManager;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
