#include "designer/model/DesignDocument.h"

#include "platform/vcl/streaming/FormText.h"

namespace designer {

TDesignDocument::TDesignDocument() {
    FForm.OnRemove = {this, &TDesignDocument::NoteRemoved};
    FText = FormToText(FForm.Write());
}

TDesignDocument::~TDesignDocument() {
    FForm.OnRemove.Clear();
}

void TDesignDocument::MarkSaved() {
    FHistory.MarkSaved();
    OnChange();
}

void TDesignDocument::Begin(const TFormDocument& document) {
    FSelection.Clear();
    FHistory.Clear();
    Rebuild(document);
    FText = FormToText(FForm.Write());
    OnChange();
}

void TDesignDocument::BeginNew() {
    TFormDocument document = TDesignedForm().Write();
    Begin(document);
}

void TDesignDocument::Edit(const String& label, const std::function<void()>& change) {
    ++FDepth;
    try {
        change();
    } catch (...) {
        if (--FDepth == 0) {
            Show(FText);
            OnChange();
        }
        throw;
    }
    if (--FDepth == 0) Commit(label);
}

void TDesignDocument::Commit(const String& label) {
    std::string text = FormToText(FForm.Write());
    TTextChange change = TTextChange::Between(FText, text);
    if (change.IsEmpty()) return;
    FText = std::move(text);
    FHistory.Add(label, std::move(change));
    OnChange();
}

void TDesignDocument::SetText(const String& label, const std::string& text) {
    SetDocument(label, ParseFormText(FromUtf8(text)));
}

void TDesignDocument::SetDocument(const String& label, const TFormDocument& document) {
    Edit(label, [&] { Show(FormToText(document)); });
}

void TDesignDocument::Undo() {
    if (!FHistory.CanUndo() || IsEditing()) return;
    std::string text = FHistory.Undone(FText);
    Show(text);
    FHistory.StepBack();
    FText = std::move(text);
    OnChange();
}

void TDesignDocument::Redo() {
    if (!FHistory.CanRedo() || IsEditing()) return;
    std::string text = FHistory.Redone(FText);
    Show(text);
    FHistory.StepForward();
    FText = std::move(text);
    OnChange();
}

void TDesignDocument::Show(const std::string& text) {
    const TFormDocument present = FForm.Write();
    const TFormDocument wanted = ParseFormText(FromUtf8(text));
    if (present == wanted) return;
    if (!FForm.Patch(present, wanted) || FormToText(FForm.Write()) != text) Rebuild(wanted);
}

void TDesignDocument::Rebuild(const TFormDocument& document) {
    const std::vector<String> chosen = FSelection.Names();
    FForm.Load(document);
    FSelection.SetNames(chosen, FForm.Root());
    OnRebuilt();
}

}  // namespace designer
