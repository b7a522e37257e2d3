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
    void Load(const TFormDocument& document);
    /// Brings the components to the state of `to`, which differs from the present state `from` by little:
    /// what is the same in both stays as it is. False when that is not possible; the components are then in
    /// no defined state and want `Load`.
    [[nodiscard]] bool Patch(const TFormDocument& from, const TFormDocument& to);
    [[nodiscard]] TFormDocument Write() const;

    /// What is wrong in the document that was loaded.
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

    std::unique_ptr<TDesignRoot> FRoot;
    String FFormClassName;
    TPoint FPlace;
    std::vector<TFormProblem> FProblems;
    std::vector<TUnreadProperty> FUnread;
};

}  // namespace designer
