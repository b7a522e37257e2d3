#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/vcl/actions/Action.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

class TChangeLink;
class TCustomImageList;
struct TMessage;

/// An action of the list, and whether the handler dealt with it.
using TActionListEvent = TEvent<void(TBasicAction*, bool&)>;

/// Whether the actions of a list run: as they are, not at all, or not at all but all shown as enabled.
enum class TActionListState { asNormal, asSuspended, asSuspendedEnabled };
using enum TActionListState;

template <>
struct TEnumNames<TActionListState> {
    static std::span<const wchar_t* const> Names();
};

/// Actions that belong together: with their images, and run by their short cuts on the form that owns the
/// list. The list frees its actions.
class TCustomActionList : public TComponent, public TGuarded {
public:
    explicit TCustomActionList(TComponent* AOwner);
    ~TCustomActionList() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] int GetActionCount() const { return static_cast<int>(FActions.size()); }
    /// Raises EListError outside of the list.
    [[nodiscard]] TContainedAction* GetAction(int index) const;
    [[nodiscard]] TContainedAction* operator[](int index) const { return GetAction(index); }
    /// Images that actions name by their index; not owned.
    [[nodiscard]] TCustomImageList* GetImages() const { return FImages; }
    virtual void SetImages(TCustomImageList* value);
    [[nodiscard]] TActionListState GetState() const { return FState; }
    void SetState(TActionListState value);

    /// Runs the action whose short cut the key message is; false when there is none that is enabled.
    bool IsShortCut(TMessage& message);
    /// Raises the list's event for an action; true when it was handled.
    bool ExecuteAction(TBasicAction* action);
    bool UpdateAction(TBasicAction* action);

    void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) override;
    void SetChildOrder(TComponent* child, int order) override;

    /// Raised after actions or images changed.
    TNotifyEvent OnChange;
    TNotifyEvent OnStateChange;
    /// Raised before an action asks others to run or update it.
    TActionListEvent OnExecute;
    TActionListEvent OnUpdate;

protected:
    void Notification(TComponent* component, TOperation operation) override;
    virtual void Change();

private:
    friend class TContainedAction;
    void Add(TContainedAction* action);
    void TakeOut(TContainedAction* action);
    void ImagesChanged(TObject* sender);

    std::vector<TContainedAction*> FActions;
    TCustomImageList* FImages = nullptr;
    std::unique_ptr<TChangeLink> FImagesLink;
    TActionListState FState = asNormal;
};

/// The list for forms.
class TActionList : public TCustomActionList {
public:
    using TCustomActionList::TCustomActionList;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
