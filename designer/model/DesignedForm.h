#pragma once

#include <memory>
#include <vector>

#include "designer/model/DesignRoot.h"
#include "platform/vcl/streaming/FormErrors.h"
#include "platform/vcl/streaming/Reader.h"

namespace designer {

/// A form file as real components in design state. What can't be read is kept and written back: objects of
/// unknown classes, properties that a class does not have, the class and the place of the form itself.
class TDesignedForm {
public:
    /// An empty form "Form1" of the class "TForm1".
    TDesignedForm();
    ~TDesignedForm();
    TDesignedForm(const TDesignedForm&) = delete;
    TDesignedForm& operator=(const TDesignedForm&) = delete;

    [[nodiscard]] TDesignRoot& Root() const { return *FRoot; }
    /// Replaces all components by those of the document. The new form takes the old one's parent and place.
    /// Raises EFormError, and leaves everything as it is, for a form that inherits one while there is none.
    void Load(const TFormDocument& document);
    /// The same with other ancestors: the documents of the forms that it inherits, the oldest first. Raises
    /// EFormError as well for ancestors that can't be read.
    void Load(const TFormDocument& document, std::vector<TFormDocument> ancestors);
    /// Brings the components to the state of `to`, which differs from the present state `from` by little:
    /// what is the same in both stays as it is. False when that is not possible; the components are then in
    /// no defined state and want `Load`.
    [[nodiscard]] bool Patch(const TFormDocument& from, const TFormDocument& to);
    /// What the form file holds; of a form that inherits one only what differs.
    [[nodiscard]] TFormDocument Write() const;
    /// All components, with those that are inherited as if they were the form's own.
    [[nodiscard]] TFormDocument WriteWhole() const;

    /// True when the form inherits another one.
    [[nodiscard]] bool Inherits() const { return FInherits; }
    /// True for a component that an ancestor has brought along: it can't be deleted, renamed or moved into
    /// another one.
    [[nodiscard]] bool IsInherited(const TComponent& component) const;
    /// The name of an inherited component for which that has happened; empty when there is none.
    [[nodiscard]] String MissingInherited() const;
    /// Frees the placeholders of objects that stood in a component which has been freed.
    void FreeOrphans();

    /// What is wrong in the document that was loaded, and in those that it inherits.
    [[nodiscard]] const std::vector<TFormProblem>& Problems() const { return FProblems; }

    /// The class that a host gives the form, such as "TMainForm".
    [[nodiscard]] const String& FormClassName() const { return FFormClassName; }
    /// Raises EComponentError when it is no identifier.
    void SetFormClassName(const String& name);
    /// Where the form will stand on the screen; in the designer it stands elsewhere.
    [[nodiscard]] TPoint Place() const { return FPlace; }
    void SetPlace(TPoint place) { FPlace = place; }

    /// A component is being freed; compare the pointer only.
    TEvent<void(TComponent*)> OnRemove;

private:
    void NoteRemoved(TComponent* component);
    void NoteRenamed(const String& present, const String& next);
    void Adopt(std::unique_ptr<TDesignRoot> root);
    [[nodiscard]] TFormDocument WriteWith(TComponent* ancestor,
                                          const std::vector<TUnreadProperty>& unread) const;

    std::unique_ptr<TDesignRoot> FRoot;
    std::vector<TFormDocument> FAncestors;
    std::unique_ptr<TDesignRoot> FAncestor;  ///< The form as its ancestors alone make it; null without any.
    TPoint FAncestorPlace;
    bool FInherits = false;
    String FFormClassName;
    TPoint FPlace;
    std::vector<TFormProblem> FProblems;
    std::vector<TUnreadProperty> FUnread;
    std::vector<TUnreadProperty> FInheritedUnread;  ///< In the files of the ancestors.
};

}  // namespace designer
