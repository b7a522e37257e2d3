#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "platform/vcl/core/Persistent.h"
#include "platform/vcl/core/Sets.h"

namespace vcl {

enum class TOperation { opInsert, opRemove };
enum class TComponentStateFlag {
    csLoading,
    csReading,
    csWriting,
    csDestroying,
    csDesigning,
    csAncestor,
    csUpdating,
    csFixups,
    csInline,
};
using TComponentState = TSet<TComponentStateFlag>;
using enum TOperation;
using enum TComponentStateFlag;

/// An object with a name and an owner that frees it; the unit of form files and designers.
///
/// Freeing: delete it, or let its owner do so. A component that refers to another one without owning it asks
/// that one for a free notification and clears its reference in `Notification`. Destructors free what their
/// own class owns; while they run, virtual calls reach the class being destroyed and its ancestors only, and
/// `csDestroying` is set from the first moment when the object is freed through `Free`, its owner or its
/// parent.
class TComponent : public TPersistent {
public:
    explicit TComponent(TComponent* AOwner);
    ~TComponent() override;

    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Announces the destruction to the whole subtree (`Destroying`) and deletes the component.
    void Free();
    /// Sets csDestroying here and in all owned components and calls `BeforeDestruction` of each, once.
    void Destroying();

    [[nodiscard]] TComponent* GetOwner() const override { return FOwner; }
    [[nodiscard]] String GetNamePath() const override { return FName; }
    [[nodiscard]] const String& GetName() const { return FName; }
    /// Renames the component. Raises EComponentError when the text is no identifier or a sibling has the
    /// name.
    virtual void SetName(const String& name);
    [[nodiscard]] std::intptr_t GetTag() const { return FTag; }
    void SetTag(std::intptr_t tag) { FTag = tag; }
    [[nodiscard]] TComponentState GetComponentState() const { return FComponentState; }
    [[nodiscard]] bool IsInState(TComponentStateFlag flag) const { return FComponentState.Contains(flag); }

    [[nodiscard]] int GetComponentCount() const { return static_cast<int>(FComponents.size()); }
    /// The owned component at the index; raises EListError outside the range.
    [[nodiscard]] TComponent* GetComponent(int index) const;
    /// The place in the owner's list, or -1 without an owner.
    [[nodiscard]] int GetComponentIndex() const;
    /// The owned component of that name, or null; ignores case.
    [[nodiscard]] TComponent* FindComponent(StringView name) const;
    /// Becomes the owner of the component, which leaves its former owner, takes over the design state and is
    /// announced with opInsert. Raises EComponentError when an owned component has the same name, and
    /// EInvalidOperation when it would come to own itself.
    void InsertComponent(TComponent* component);
    /// Announces opRemove and gives the component up without freeing it.
    void RemoveComponent(TComponent* component);
    /// Frees the owned components, the last one first.
    void DestroyComponents();

    /// Asks for `Notification(component, opRemove)` here when `component` is freed, and the other way round.
    /// Components of one owner hear of each other through it anyway.
    void FreeNotification(TComponent* component);
    /// Ends that agreement on both sides.
    void RemoveFreeNotification(TComponent* component);

    /// Sets or clears design state on the component and all that it owns.
    void SetDesigning(bool value, bool setChildren = true);
    /// The component under which a form file nests this one (the parent of a control), or null.
    [[nodiscard]] virtual TComponent* GetParentComponent() const { return nullptr; }
    [[nodiscard]] virtual bool HasParent() const { return false; }
    /// Makes `parent` the one that `GetParentComponent` returns; the default ignores it.
    virtual void SetParentComponent(TComponent*) {}
    /// Calls `visit` for each component that a form file nests under this one.
    virtual void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root);
    /// Moves `child` to that place among those that `GetChildren` visits; the default ignores it.
    virtual void SetChildOrder(TComponent*, int) {}

    /// For readers of form files: marks the component as being read, and as complete again.
    void BeginLoading();
    void EndLoading();

    /// For a designer's place of a non-visual component, in pixels of its form: the low word counts from the
    /// left, the high word from the top. Form files hold it as `Left` and `Top`.
    [[nodiscard]] std::int32_t GetDesignInfo() const { return FDesignInfo; }
    void SetDesignInfo(std::int32_t value) { FDesignInfo = value; }

protected:
    friend class TReader;
    friend class TWriter;
    friend class TLoadSession;

    void DefineProperties(TFiler& filer) override;
    /// Tells that `component` came to (opInsert) or is leaving (opRemove) this component's surroundings: what
    /// the owner hears, all that it owns hears too. The component may be under construction or half
    /// destroyed, so compare the pointer and ask it nothing but what `TComponent` offers. Must not raise at
    /// opRemove, which destructors announce.
    virtual void Notification(TComponent* component, TOperation operation);
    /// Called once after all properties have been read from a form file; clears csLoading.
    virtual void Loaded();
    /// Called once, when the component is freed through `Free`, its owner or its parent: what has to end
    /// while the object is still whole.
    virtual void BeforeDestruction() {}
    void SetState(TComponentStateFlag flag, bool present) { FComponentState.Put(flag, present); }
    /// Called on the owner before one of its components gets, changes or loses its name (and on the component
    /// itself, with null, when it has no owner): raises EComponentError when the new name is taken. Must not
    /// raise when the name is given up, since that happens in destructors.
    virtual void ValidateRename(TComponent* component, const String& current, const String& next);
    virtual void ChangeName(const String& name);

private:
    /// Sets or empties the published field of the owner that has this component's name.
    void SetReference(bool present);
    [[nodiscard]] bool OwnsOrIs(const TComponent* component) const;
    void Unlist(TComponent* component);

    TComponent* FOwner = nullptr;
    String FName;
    std::intptr_t FTag = 0;
    std::vector<TComponent*> FComponents;
    std::vector<TComponent*> FFreeNotifies;
    std::int32_t FDesignInfo = 0;
    TComponentState FComponentState;
};

}  // namespace vcl
