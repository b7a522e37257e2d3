#pragma once

#include <functional>

#include "designer/model/DesignedForm.h"
#include "designer/model/History.h"
#include "designer/model/Selection.h"

namespace designer {

/// A form file being edited: its components, its text, what is chosen, and every edit so far.
///
/// The text is what counts. After each edit the components are written to it, and undoing an edit brings the
/// components back to the text before, so that nothing can get lost on the way: what the components do not
/// carry over by a change of their properties is read anew.
class TDesignDocument {
public:
    TDesignDocument();
    ~TDesignDocument();
    TDesignDocument(const TDesignDocument&) = delete;
    TDesignDocument& operator=(const TDesignDocument&) = delete;

    [[nodiscard]] TDesignedForm& Form() { return FForm; }
    [[nodiscard]] TDesignRoot& Root() const { return FForm.Root(); }
    [[nodiscard]] TSelection& Selection() { return FSelection; }
    [[nodiscard]] const THistory& History() const { return FHistory; }
    /// The form file as text, as of the last edit.
    [[nodiscard]] const std::string& Text() const { return FText; }
    [[nodiscard]] bool IsModified() const { return !FHistory.IsSaved(); }
    void MarkSaved();
    /// The file holds something else from now on.
    void MarkUnsaved();

    /// Begins with another form file, without history. What is wrong in it stands in `Form().Problems()`.
    /// A form that inherits others needs their documents, the oldest first. Raises EFormError when they are
    /// missing or can't be read; the present form stays then.
    void Begin(const TFormDocument& document, std::vector<TFormDocument> ancestors = {});
    /// Begins with an empty form.
    void BeginNew();

    /// Runs a change to the components and takes it into the history as one edit, if it changed anything.
    /// Edits within it belong to it. When the change raises, everything is as before, and the error goes on;
    /// so too, with EInvalidOperation, when an inherited component is gone afterwards.
    void Edit(const String& label, const std::function<void()>& change);
    /// Makes another text the form file, as one edit. Raises EFormError when it can't be parsed; the form
    /// stays as it was then.
    void SetText(const String& label, const std::string& text);
    /// Lets the form inherit other documents, the oldest first, as one edit; what it says itself stays.
    /// Raises EFormError when they can't be read, and leaves everything as it is then.
    void SetAncestors(const String& label, std::vector<TFormDocument> ancestors);
    /// The same as `SetText` with a document.
    void SetDocument(const String& label, const TFormDocument& document);
    /// The form file as it would be written now.
    [[nodiscard]] TFormDocument Document() const { return FForm.Write(); }
    void Undo();
    void Redo();
    [[nodiscard]] bool IsEditing() const { return FDepth > 0; }

    /// Something in the form or in the state of the history has changed.
    TEvent<void()> OnChange;
    /// All components were made anew.
    TEvent<void()> OnRebuilt;

private:
    void Show(const std::string& text, const TFormDocument& present);
    void TakeBack();
    void ReadAnew();
    void Rebuild(const std::function<void()>& load);
    void CheckInherited() const;
    void NoteWritten();
    void Commit(const String& label, TFormDocument written);
    void NoteRemoved(TComponent* component) { FSelection.Forget(component); }

    TDesignedForm FForm;
    TSelection FSelection;
    THistory FHistory;
    TFormDocument FWritten;  ///< The components, as of the last edit.
    std::string FText;       ///< The same as text.
    int FDepth = 0;
};

}  // namespace designer
