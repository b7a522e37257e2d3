#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/vcl/streaming/FormPlace.h"
#include "platform/vcl/streaming/LoadSession.h"
#include "platform/vcl/streaming/PropertyAddress.h"

namespace vcl {

class TCollection;

/// A property of a form file that could not be read into its component.
struct TUnreadProperty {
    TComponent* Component;
    TFormProperty Property;
};

/// Reads components from a form document.
///
/// Order: each object of the file is made, gets its name, its parent, its properties and then its children,
/// from the top of the file to its end. References between components are set after that. Then `Loaded` is
/// called: first that of the root, then those of the others in the order in which they were made.
///
/// A root in design state keeps the names of its events' methods (`TEventBase::MethodName`) instead of
/// binding them.
///
/// When something is wrong, EFormError is raised and what was made so far is freed; of a root that was given
/// the properties may have changed.
class TReader {
public:
    /// The document must outlive the reader.
    explicit TReader(const TFormDocument& document);
    ~TReader();
    TReader(const TReader&) = delete;
    TReader& operator=(const TReader&) = delete;

    /// Notes what is wrong in `GetProblems` and goes on, instead of raising: an object that can't be made
    /// becomes a TUnknownComponent, a property that can't be read is left alone and kept in
    /// `GetUnreadProperties`.
    bool CollectProblems = false;
    /// Asked for a class before the registry is; null leaves it to the registry.
    std::function<const TMetaClass*(const String& name)> OnFindClass;
    /// Asked for a method before the root is: binds it to the event, or returns false.
    std::function<bool(const String& name, TPersistent& object, TEventBase& event)> OnFindMethod;

    /// Reads the document into `root`; without one it makes the root by its class, which then belongs to
    /// `owner`. The root's name is made unique among those of its owner and of all global components by
    /// "_1" and so on. Returns the root.
    TComponent* ReadRootComponent(TComponent* root, TComponent* owner = nullptr);

    /// Leaves completing the components to the session, for several documents that make one form.
    void Join(TLoadSession& session) { FJoined = &session; }

    [[nodiscard]] const std::vector<TFormProblem>& GetProblems() const { return FProblems; }
    /// In the order of the file.
    [[nodiscard]] const std::vector<TUnreadProperty>& GetUnreadProperties() const { return FUnread; }

private:
    class TDefinedProperty;
    struct TReference {
        TPropertyAddress Address;
        TComponent* LookupRoot;
        String Name;
        TFormProblem Problem;  ///< As it will be reported when there is no such component.
        const TFormProperty* Source;
    };
    struct TPropertyKey {
        const TMetaClass* Class;
        StringView Name;
        friend bool operator==(const TPropertyKey& a, const TPropertyKey& b) = default;
    };
    struct TPropertyKeyHash {
        std::size_t operator()(const TPropertyKey& key) const;
    };

    // Objects (Reader.cpp).
    void ReadRoot(TComponent* owner);
    void NameRoot();
    void ReadContents(const TFormObject& object, TComponent& component, TComponent& lookupRoot);
    TComponent* ReadChild(const TFormObject& object, TComponent& parent, TComponent& lookupRoot, int index);
    static bool OverridesUnknown(const TFormObject& object, const TComponent& lookupRoot, int index);
    TComponent& MakeOrFind(const TFormObject& object, TComponent& lookupRoot);
    TComponent& Create(const TFormObject& object, TComponent* owner);
    TComponent& FindInherited(const TFormObject& object, TComponent& lookupRoot);
    void CheckField(const TFormObject& object, const TComponent& component) const;
    [[nodiscard]] const TMetaClass& ClassOf(const TFormObject& object);
    /// Runs a step; what it raises is noted or raised as EFormError. False when something was noted.
    template <class Step>
    bool Try(TFormPosition position, TFormProblemKind kind, Step step);
    void Report(TFormProblem problem);

    // Properties (ReaderProperties.cpp).
    void ReadProperties(const std::vector<TFormProperty>& properties, TPersistent& object);
    void ReadProperty(const TFormProperty& property, TPersistent& object);
    void ReadDefined(const TFormProperty& property, StringView name, TPersistent& object);
    void SetProperty(const TPublishedProperty& row, TPersistent& object, const TFormProperty& property);
    void SetValue(const TPublishedProperty& row, TPersistent& object, TPropertyValue value,
                  TFormPosition position);
    [[nodiscard]] const TPublishedProperty* FindProperty(const TMetaClass& meta, StringView name);
    [[nodiscard]] TPropertyValue SimpleValue(const TPublishedProperty& row, const TFormValue& value) const;
    [[nodiscard]] std::int64_t IntegerValue(const TPublishedProperty& row, const TFormValue& value) const;
    [[nodiscard]] std::int64_t ElementOrdinal(const TPublishedProperty& row, const String& name,
                                              TFormPosition position) const;
    void ReadCollection(TCollection& collection, const TFormCollection& value);
    void ReadItems(TCollection& collection, const std::vector<TFormItem>& items);
    void BindEvent(const TPublishedProperty& row, TPersistent& object, const TFormValue& value);
    void NoteReference(const TPublishedProperty& row, const TFormProperty& property);
    [[noreturn]] void FailType(const TFormValue& value, const wchar_t* expected) const;

    // References (ReaderReferences.cpp).
    void SetReferences();
    void SetReference(const TReference& reference);
    [[nodiscard]] bool IsUnknown(const TComponent* target, StringView name) const;
    [[nodiscard]] TComponent* FindTarget(const TReference& reference, bool& mayComeLater) const;

    const TFormDocument& FDocument;
    TFormPlace FPlace;
    std::shared_ptr<const String> FFileName;
    TComponent* FRoot = nullptr;
    TLoadSession* FJoined = nullptr;
    TLoadSession* FSession = nullptr;
    TComponent* FLookupRoot = nullptr;  ///< Whose components names mean: the root, or a frame in it.
    TPropertyAddress FAddress;          ///< The object being read.
    const TFormProperty* FTopProperty = nullptr;  ///< The property of the component being read.
    std::vector<TReference> FReferences;
    std::vector<TFormProblem> FProblems;
    std::vector<TUnreadProperty> FUnread;
    std::unordered_map<StringView, const TMetaClass*> FClasses;
    std::unordered_map<TPropertyKey, const TPublishedProperty*, TPropertyKeyHash> FRows;
};

}  // namespace vcl
