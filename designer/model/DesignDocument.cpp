#include "designer/model/DesignDocument.h"

#include <utility>

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
            CheckInherited();
        }
    } catch (...) {
        if (--FDepth == 0) {
            Show(FText, FForm.Write());
            OnChange();
        }
        throw;
    }
    if (--FDepth == 0) Commit(label);
}

void TDesignDocument::Commit(const String& label) {
    const std::string before = std::move(FText);
    NoteWritten();
    TTextChange change = TTextChange::Between(before, FText);
    if (change.IsEmpty()) return;
    FHistory.Add(label, std::move(change));
    OnChange();
}

void TDesignDocument::SetText(const String& label, const std::string& text) {
    SetDocument(label, ParseFormText(FromUtf8(text)));
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
