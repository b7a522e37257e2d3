#include "designer/model/DesignDocument.h"

#include <utility>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {
namespace {

/// What the frame of a form's window is made by. While it is designed a form leaves its window alone.
auto FrameOf(const TDesignRoot& root) {
    return std::pair(root.GetBorderStyle(), root.GetBorderIcons());
}

/// Gives the form's window the frame that a reader of the file would give it, around the same inner size.
void RenewFrame(TDesignRoot& root) {
    const int width = root.GetClientWidth();
    const int height = root.GetClientHeight();
    root.RecreateWnd();
    root.SetClientWidth(width);
    root.SetClientHeight(height);
}

}  // namespace

TDesignDocument::TDesignDocument() {
    FForm.OnRemove = {this, &TDesignDocument::NoteRemoved};
    NoteWritten();
}

TDesignDocument::~TDesignDocument() {
    FForm.OnRemove.Clear();
}

void TDesignDocument::MarkSaved() {
    FHistory.MarkSaved();
    OnChange();
}

void TDesignDocument::MarkUnsaved() {
    FHistory.MarkUnsaved();
    OnChange();
}

void TDesignDocument::Begin(const TFormDocument& document, std::vector<TFormDocument> ancestors) {
    Rebuild([&] { FForm.Load(document, std::move(ancestors)); });
    FSelection.Clear();
    FHistory.Clear();
    NoteWritten();
    OnChange();
}

void TDesignDocument::NoteWritten() {
    FWritten = FForm.Write();
    FText = FormToText(FWritten);
}

void TDesignDocument::BeginNew() {
    TFormDocument document = TDesignedForm().Write();
    Begin(document);
}

void TDesignDocument::Edit(const String& label, const std::function<void()>& change) {
    TFormDocument written;
    ++FDepth;
    try {
        const TDesignRoot* root = &Root();
        const auto frame = FrameOf(*root);
        change();
        if (FDepth == 1) {
            if (&Root() == root && FrameOf(*root) != frame) {
                RenewFrame(Root());
                OnRebuilt();
            }
            FForm.FreeOrphans();
            CheckInherited();
            written = FForm.Write();
        }
    } catch (...) {
        if (--FDepth == 0) {
            TakeBack();
            OnChange();
        }
        throw;
    }
    if (--FDepth == 0) Commit(label, std::move(written));
}

/// Brings the components back to what they were before an edit.
void TDesignDocument::TakeBack() {
    try {
        // The text does not tell that an inherited component is gone.
        if (FForm.MissingInherited().empty()) return Show(FText, FForm.Write());
        ReadAnew();
    } catch (const Exception&) {
        // They can't even be written.
        ReadAnew();
    }
}

void TDesignDocument::ReadAnew() {
    Rebuild([this] { FForm.Load(ParseFormText(FromUtf8(FText))); });
    FWritten = FForm.Write();
}

void TDesignDocument::Commit(const String& label, TFormDocument written) {
    std::string text = FormToText(written);
    TTextChange change = TTextChange::Between(FText, text);
    FWritten = std::move(written);
    if (change.IsEmpty()) return;
    FHistory.Add(label, std::move(change));
    FText = std::move(text);
    OnChange();
}

void TDesignDocument::SetText(const String& label, const std::string& text) {
    SetDocument(label, ParseFormText(FromUtf8(text)));
}

void TDesignDocument::SetAncestors(const String& label, std::vector<TFormDocument> ancestors) {
    const TFormDocument document = ParseFormText(FromUtf8(FText));
    Rebuild([&] { FForm.Load(document, std::move(ancestors)); });
    // What the ancestors now say as well is left out.
    Commit(label, FForm.Write());
    OnChange();
}

void TDesignDocument::SetDocument(const String& label, const TFormDocument& document) {
    Edit(label, [&] { Show(FormToText(document), FForm.Write()); });
}

void TDesignDocument::Undo() {
    if (!FHistory.CanUndo() || IsEditing()) return;
    std::string text = FHistory.Undone(FText);
    Show(text, FWritten);
    FHistory.StepBack();
    FText = std::move(text);
    OnChange();
}

void TDesignDocument::Redo() {
    if (!FHistory.CanRedo() || IsEditing()) return;
    std::string text = FHistory.Redone(FText);
    Show(text, FWritten);
    FHistory.StepForward();
    FText = std::move(text);
    OnChange();
}

/// Brings the components, which stand as in `present`, to the text. Should they not, what is written
/// afterwards tells.
void TDesignDocument::Show(const std::string& text, const TFormDocument& present) {
    const TFormDocument wanted = ParseFormText(FromUtf8(text));
    if (present == wanted) return;
    if (FForm.Patch(present, wanted)) {
        FWritten = FForm.Write();
        if (FormToText(FWritten) == text) return;
    }
    Rebuild([&] { FForm.Load(wanted); });
    FWritten = FForm.Write();
}

void TDesignDocument::CheckInherited() const {
    const String name = FForm.MissingInherited();
    if (!name.empty())
        throw EInvalidOperation(
            Format(L"%s gehört zu dem Formular, von dem dieses erbt. Hier kann es weder "
                   L"gelöscht noch umbenannt noch woanders hineingestellt werden.",
                   name));
}

void TDesignDocument::Rebuild(const std::function<void()>& load) {
    const std::vector<String> chosen = FSelection.Names();
    load();
    FSelection.SetNames(chosen, FForm.Root());
    OnRebuilt();
}

}  // namespace designer
