// What the commands of menus and toolbar do.

#include <algorithm>
#include <cstdint>

#include "designer/dialogs/ComponentEditors.h"
#include "designer/dialogs/KeysDialog.h"
#include "designer/dialogs/TabOrderDialog.h"
#include "designer/files/FileNames.h"
#include "designer/files/SafeFile.h"
#include "designer/model/Clipping.h"
#include "designer/model/Placing.h"
#include "designer/window/DesignerWindow.h"
#include "designer/window/Preview.h"
#include "platform/vcl/forms/Clipboard.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {

String TextProblem(const TFormProblem& problem) {
    return Format(L"Zeile %d, Spalte %d: %s", problem.Position.Line, problem.Position.Column, problem.Text);
}

/// Runs a command and shows what it raises.
bool TDesignerWindow::Try(const std::function<void()>& command) {
    try {
        FGrid->Accept();
        command();
        return true;
    } catch (const EAbort&) {
        // The user has changed his mind.
        return false;
    } catch (const Exception& error) {
        FDialogs->ShowError(error.Message());
        return false;
    }
}

bool TDesignerWindow::TryEdit(const std::function<void()>& command) {
    return AcceptText() && Try(command);
}

bool TDesignerWindow::MayLeave() {
    FGrid->Accept();
    if (!AcceptText()) return false;
    if (!FDocument.IsModified()) return true;
    switch (FDialogs->AskToSave(FFile.Title())) {
        case TDesignerDialogs::TAnswer::Save:
            return Save();
        case TDesignerDialogs::TAnswer::Discard:
            return true;
        case TDesignerDialogs::TAnswer::Cancel:
            break;
    }
    return false;
}

void TDesignerWindow::NewForm() {
    if (!MayLeave()) return;
    Try([this] { FFile.New(); });
    UpdateTitle();
}

void TDesignerWindow::NewInheritingForm() {
    if (!MayLeave()) return;
    const auto ancestor = FDialogs->AskFileToOpen();
    if (!ancestor) return;
    Try([&] { FFile.NewInheriting(*ancestor); });
    UpdateTitle();
}

void TDesignerWindow::Open() {
    if (const auto name = FDialogs->AskFileToOpen()) OpenFile(*name);
}

void TDesignerWindow::OpenFile(const String& name) {
    if (!MayLeave()) return;
    if (Try([&] { FFile.Open(name); })) FRecent.Add(name);
    UpdateTitle();
    ShowProblems();
}

void TDesignerWindow::ShowProblems() {
    const auto& problems = FDocument.Form().Problems();
    if (!problems.empty()) ShowStatus(problems.front().Message());
}

/// What is typed into the text belongs to what this form says itself.
void TDesignerWindow::ReloadAncestors() {
    if (!AcceptText()) return;
    Try([this] { FFile.ReloadAncestors(); });
    ShowProblems();
}

void TDesignerWindow::OpenRecentFile(const String& name) {
    if (FileTimeOf(name) != 0) return OpenFile(name);
    FRecent.Remove(name);
    FDialogs->ShowError(L"Die Datei „" + name + L"“ gibt es nicht mehr. Sie wurde aus der Liste genommen.");
}

void TDesignerWindow::OfferLeftWork() {
    for (const TLeftWork& work : FAutoSave.LeftWork()) {
        const bool isNew = work.FileName.empty() || IsFileFolder(work.FileName);
        const String title = isNew ? String(L"Unbenannt") : work.FileName;
        if (!FDialogs->AskToRecover(title)) {
            TAutoSave::Forget(work);
            continue;
        }
        // It goes only when this program has kept it itself. What else was left waits for the next start.
        const bool taken = Try([&] {
            FFile.Recover(work.FileName, work.Text);
            if (KeepWork()) TAutoSave::Forget(work);
        });
        UpdateTitle();
        if (taken) return;
    }
}

bool TDesignerWindow::Save() {
    if (!AcceptText()) return false;
    if (FFile.Name().empty()) return SaveAs();
    if (!LookAtDisk()) Try([this] { FFile.Save(); });
    UpdateTitle();
    return !FDocument.IsModified();
}

bool TDesignerWindow::SaveAs() {
    if (!AcceptText()) return false;
    const auto name = FDialogs->AskFileToSave(FFile.Name());
    if (!name) return false;
    if (Try([&] { FFile.SaveAs(*name); })) FRecent.Add(*name);
    UpdateTitle();
    return !FDocument.IsModified();
}

// --- edits; in an editor they are about its text

void TDesignerWindow::Undo() {
    // A value of the inspector that has been taken over is an edit of the form.
    auto* editor = dynamic_cast<TCustomEdit*>(GetActiveControl());
    if (editor && (editor == FTextMemo || editor->GetModified())) return editor->Undo();
    TryEdit([this] { FDocument.Undo(); });
}

void TDesignerWindow::Redo() {
    TryEdit([this] { FDocument.Redo(); });
}

void TDesignerWindow::Cut() {
    if (auto* editor = dynamic_cast<TCustomEdit*>(GetActiveControl())) return editor->CutToClipboard();
    if (Copy()) Delete();
}

bool TDesignerWindow::Copy() {
    if (auto* editor = dynamic_cast<TCustomEdit*>(GetActiveControl())) return editor->CopyToClipboard(), true;
    return !FDocument.Selection().IsEmpty() &&
           Try([this] { Clipboard().SetAsText(CopySelection(FDocument)); });
}

void TDesignerWindow::Paste() {
    if (auto* editor = dynamic_cast<TCustomEdit*>(GetActiveControl())) return editor->PasteFromClipboard();
    TryEdit(
        [this] { PasteText(FDocument, Clipboard().GetAsText(), PlaceForNew(), FSurface->Snapping.Grid); });
}

/// What is chosen, when it takes controls, or what that stands in.
TWinControl& TDesignerWindow::PlaceForNew() {
    auto* leader = dynamic_cast<TControl*>(FDocument.Selection().Leader());
    if (!leader) return FDocument.Root();
    const bool takesControls = leader->AsWinControl() && leader->ControlStyle.Contains(csAcceptsControls);
    return takesControls ? *leader->AsWinControl() : AcceptingParent(*leader);
}

void TDesignerWindow::Delete() {
    if (auto* editor = dynamic_cast<TCustomEdit*>(GetActiveControl())) return editor->ClearSelection();
    TryEdit([this] { DeleteSelection(FDocument); });
}

void TDesignerWindow::ChooseAll() {
    if (auto* editor = dynamic_cast<TCustomEdit*>(GetActiveControl())) return editor->SelectAll();
    std::vector<TComponent*> all;
    const TDesignRoot& root = FDocument.Root();
    for (int i = 0; i < root.GetComponentCount(); ++i) {
        TComponent* component = root.GetComponent(i);
        if (component->GetParentComponent() == &root || TComponentIcons::IsShownByIcon(*component))
            all.push_back(component);
    }
    FDocument.Selection().Set(std::move(all));
}

void TDesignerWindow::RenameChosen() {
    TComponent* leader = FDocument.Selection().Leader();
    TComponent& component = leader ? *leader : FDocument.Root();
    const auto name = FDialogs->AskName(component.GetName());
    if (name && *name != component.GetName()) TryEdit([&] { Rename(FDocument, component, *name); });
}

void TDesignerWindow::EditChosen() {
    TComponent* leader = FDocument.Selection().Leader();
    if (leader && HasComponentEditor(*leader))
        TryEdit([&] { EditComponent(FDocument, *leader, *FValueDialogs); });
}

void TDesignerWindow::EditTabOrder() {
    TryEdit([this] { designer::EditTabOrder(FDocument, TabOrderParent(FDocument)); });
}

// --- text and preview

bool TDesignerWindow::AcceptText() {
    if (!ShowsText()) return true;
    const std::string text = ToUtf8(FTextMemo->GetText());
    if (text == FDocument.Text()) return true;
    try {
        FDocument.SetText(L"Text ändern", text);
        FTypedText.reset();
        return true;
    } catch (const EFormError& error) {
        ShowTextPosition(error.Problem().Position);
        return OfferToDiscardText(TextProblem(error.Problem()));
    } catch (const Exception& error) {
        return OfferToDiscardText(error.Message());
    }
}

bool TDesignerWindow::OfferToDiscardText(const String& reason) {
    if (!FDialogs->AskToDiscardText(reason)) return false;
    FTypedText.reset();
    ShowText();
    AllowOtherEdits(true);
    return true;
}

/// Shows the form's text; the caret stays about where it was.
void TDesignerWindow::ShowText() {
    const String text = FromUtf8(FDocument.Text());
    if (FTextMemo->GetText() == text) return;
    const TPoint caret = FTextMemo->GetCaretPos();
    FUpdatingText = true;
    FTextMemo->SetText(text);
    FUpdatingText = false;
    FTextMemo->SetCaretPos(caret);
    FTextMemo->Perform(EM_SCROLLCARET);
}

/// While the text is no form there is nothing that the inspector and the structure could be about.
void TDesignerWindow::AllowOtherEdits(bool value) {
    FGrid->SetEnabled(value);
    FStructure->SetEnabled(value);
}

void TDesignerWindow::ShowTextPosition(TFormPosition position) {
    const auto fromZero = [](std::uint32_t number) { return static_cast<int>(std::max(number, 1u)) - 1; };
    FTextMemo->SetCaretPos({fromZero(position.Column), fromZero(position.Line)});
    FTextMemo->Perform(EM_SCROLLCARET);
}

void TDesignerWindow::ToggleText() {
    if (ShowsText()) {
        if (!AcceptText()) return;
        FTextMemo->Hide();
        FSurfaceScroll->Show();
        FSurface->SetFocus();
        return;
    }
    FGrid->Accept();
    ShowText();
    FSurfaceScroll->Hide();
    FTextMemo->Show();
    FTextMemo->SetFocus();
}

void TDesignerWindow::Preview() {
    if (AcceptText()) Try([this] { RunPreview(FDocument.Form().WriteWhole()); });
}

void TDesignerWindow::SwitchFocus() {
    if (GetActiveControl() != FSurface)
        FSurface->SetFocus();
    else if (FGrid->CanFocus())
        FGrid->FocusEditor();
}

void TDesignerWindow::ShowKeys() {
    ShowKeysDialog();
}

}  // namespace designer
