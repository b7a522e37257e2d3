#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

class TCollection;
class TUnknownComponent;
struct TUnreadProperty;

/// Writes components to a form document: each with its published properties in the order of their tables,
/// then those that its class defines itself, then its children. Left out is what equals its default and what
/// is not stored; of an inherited form and of frames, what equals the ancestor.
class TWriter {
public:
    /// Asked for the name under which a form file knows what an event calls; empty leaves it to the methods
    /// that the root and its frames publish. Events without a name are left out.
    std::function<String(const TEventBase& event, const TPublishedProperty& property)> OnFindMethodName;
    /// Asked for the component with which a frame is compared; null compares it with a new one of its class.
    std::function<TComponent*(TComponent& frame)> OnFindAncestor;
    /// What a reader could not read and the file shall keep, or null.
    const std::vector<TUnreadProperty>* UnreadProperties = nullptr;

    /// Writes `root` and what stands in it, as an inherited form when there is an `ancestor`. Raises
    /// EWriteError for a value that form files can't hold.
    [[nodiscard]] TFormDocument WriteRootComponent(TComponent& root, TComponent* ancestor = nullptr);

private:
    class TDefinedProperties;
    using TProperties = std::vector<TFormProperty>;

    /// A form, or a frame in it, whose components names mean.
    struct TScope {
        TComponent* Root;        ///< The form.
        TComponent* LookupRoot;  ///< The form, or the frame.
    };
    /// A property and what it is compared with.
    struct TSubject {
        const String& Prefix;  ///< The names of the objects that it lies in, each with a point.
        const TPublishedProperty& Row;
        TPersistent& Object;
        const TPublishedProperty* AncestorRow;  ///< Null when there is none to compare with.
        TPersistent* Ancestor;
        /// Most properties are left out, so that few names are wanted.
        [[nodiscard]] String Name() const { return Prefix + Row.Name(); }
    };

    // Objects (Writer.cpp).
    TFormObject WriteComponent(TComponent& component, TComponent* ancestor, bool isRoot);
    void WriteContents(TFormObject& object, TComponent& component, TComponent* ancestor);
    void WriteChildren(TFormObject& object, TComponent& component, TComponent* ancestor);
    void InsertUnknown(TFormObject& object, const TComponent& component) const;
    [[nodiscard]] const TUnknownComponent* InheritedUnknown(const TUnknownComponent& unknown) const;
    void AppendUnread(TProperties& properties, const TComponent& component) const;
    [[nodiscard]] std::vector<TComponent*> ChildrenOf(TComponent& component, const TScope& scope) const;
    [[nodiscard]] TComponent* AncestorOf(const TComponent& child) const;
    [[nodiscard]] std::vector<TComponent*> ExpectedOrder(const std::vector<TComponent*>& children,
                                                         TComponent* ancestor) const;

    // Properties (WriterProperties.cpp).
    void WriteProperties(TProperties& properties, TPersistent& object, TPersistent* ancestor,
                         const String& prefix);
    void WriteProperty(TProperties& properties, const TSubject& subject);
    void WriteNested(TProperties& properties, const TSubject& subject);
    void WriteEvent(TProperties& properties, const TSubject& subject) const;
    void WriteSimple(TProperties& properties, const TSubject& subject) const;
    /// True for a value that the file need not say.
    [[nodiscard]] static bool IsUsual(const TSubject& subject, const TPropertyValue& value);
    void WriteReference(TProperties& properties, const TSubject& subject) const;
    [[nodiscard]] TFormValue CollectionValue(TCollection& collection);
    /// A method as form files name it.
    struct TMethodName {
        String Path;  ///< The name of the frame that it belongs to and a point; empty for the form.
        String Name;
        bool IsLocal = false;  ///< It belongs to the form or frame that names mean.
    };
    [[nodiscard]] TMethodName MethodName(TPersistent& object, const TPublishedProperty& row,
                                         const TScope& scope) const;
    [[nodiscard]] static String ReferenceName(TPersistent& object, const TPublishedProperty& row,
                                              const TScope& scope);
    [[nodiscard]] const std::vector<const TPublishedProperty*>& RowsOf(const TMetaClass& meta);

    std::vector<const TUnknownComponent*> FUnknown;  ///< Those that the root owns.
    TScope FScope{};
    TScope FAncestorScope{};
    TProperties FProperties;  ///< Of the component being written; it keeps its room from one to the next.
    std::unordered_map<const TMetaClass*, std::vector<const TPublishedProperty*>> FRows;
};

}  // namespace vcl
