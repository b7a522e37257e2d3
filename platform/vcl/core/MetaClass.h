#pragma once

#include <memory>
#include <typeinfo>
#include <vector>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Strings.h"

namespace vcl {

class TCollection;
class TCollectionItem;
class TComponent;
class TMetaClass;
class TObject;
class TPublishedProperty;

/// A method that form files may bind to events by name.
struct TPublishedMethod {
    String Name;
    const std::type_info* Signature;                     ///< `typeid(TEvent<...>)` that it fits.
    void (*Bind)(TEventBase& event, TObject* instance);  ///< Binds the method of `instance` to `event`.
    /// True when `event`, of that signature, calls the method of `instance`.
    bool (*IsBound)(const TEventBase& event, TObject* instance);
};

/// A member of a class that points to one of its own components: it is set when a component of that name
/// comes, and emptied when that goes.
struct TPublishedField {
    String Name;
    const TMetaClass& (*Class)();  ///< The class that the component must have.
    /// Sets the member of `owner`, an instance of the class that publishes it, to a component or to null.
    void (*Set)(TComponent& owner, TComponent* component);
};

/// The description of a class at run time: its name, its ancestor, how to make one, and what it publishes.
class TMetaClass {
public:
    using Factory = TComponent* (*)(TComponent* owner);
    using ItemFactory = TCollectionItem* (*)(TCollection* collection);
    using Properties = std::vector<std::unique_ptr<TPublishedProperty>>;

    TMetaClass(const wchar_t* name, const TMetaClass* parent, Factory factory);
    TMetaClass(TMetaClass&&) noexcept;
    ~TMetaClass();

    [[nodiscard]] const wchar_t* ClassName() const { return FName; }
    [[nodiscard]] const TMetaClass* ClassParent() const { return FParent; }
    [[nodiscard]] bool InheritsFrom(const TMetaClass& ancestor) const;
    /// True for components that can be made by class (not abstract).
    [[nodiscard]] bool CanCreate() const { return FFactory != nullptr; }
    /// Makes a component of the class, owned by `owner`; null for a class that can't be made this way.
    [[nodiscard]] TComponent* Create(TComponent* owner) const { return FFactory ? FFactory(owner) : nullptr; }

    /// Makes an item of the class in `collection`; null for a class that is no collection item or abstract.
    [[nodiscard]] TCollectionItem* CreateItem(TCollection* collection) const {
        return FItemFactory ? FItemFactory(collection) : nullptr;
    }

    /// What this very class adds, in the order of its table.
    [[nodiscard]] const Properties& OwnProperties() const { return FProperties; }
    [[nodiscard]] const std::vector<TPublishedMethod>& OwnMethods() const { return FMethods; }
    [[nodiscard]] const std::vector<TPublishedField>& OwnFields() const { return FFields; }
    /// All published properties: ancestors first, a row of a descendant in the place of the row that it
    /// replaces.
    [[nodiscard]] std::vector<const TPublishedProperty*> AllProperties() const;
    /// The property of that name, the class's own before its ancestors'; names ignore case. Null when
    /// unknown.
    [[nodiscard]] const TPublishedProperty* FindProperty(StringView name) const;
    [[nodiscard]] const TPublishedMethod* FindMethod(StringView name) const;
    [[nodiscard]] const TPublishedField* FindField(StringView name) const;

protected:
    const wchar_t* FName;
    const TMetaClass* FParent;
    Factory FFactory;
    ItemFactory FItemFactory = nullptr;
    Properties FProperties;
    std::vector<TPublishedMethod> FMethods;
    std::vector<TPublishedField> FFields;
};

}  // namespace vcl
