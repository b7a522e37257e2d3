#include "designer/window/DesignerDialogs.h"

#include <commdlg.h>

#include <array>

#include "buttons/UnitQV7SkinMessageDialog.h"
#include "designer/dialogs/DialogParts.h"
#include "designer/dialogs/RowList.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/ScrollBox.h"

namespace designer {
namespace {

constexpr wchar_t Filter[] = L"Formulardateien (*.dfm)\0*.dfm\0Alle Dateien\0*.*\0";

HWND ActiveWindow() {
    return ::GetActiveWindow();
}

std::optional<String> AskFile(const wchar_t* title, const String& present, DWORD flags,
                              BOOL(WINAPI* ask)(OPENFILENAMEW*)) {
    std::array<wchar_t, 32'768> name{};
    present.copy(name.data(), name.size() - 1);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = ActiveWindow();
    dialog.lpstrFilter = Filter;
    dialog.lpstrFile = name.data();
    dialog.nMaxFile = static_cast<DWORD>(name.size());
    dialog.lpstrTitle = title;
    dialog.lpstrDefExt = L"dfm";
    dialog.Flags = flags | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
    if (!ask(&dialog)) return std::nullopt;
    return String(name.data());
}

bool AskYesNo(const String& question, const TQV7SkinMessageChoice& yes, const TQV7SkinMessageChoice& no) {
    const std::array choices{yes, no};
    return QV7SkinMessageDialog(L"QV7 Designer", question, msgiQuestion, choices) == yes.Result;
}

}  // namespace

TDesignerDialogs::TAnswer TDesignerDialogs::AskToSave(const String& title) {
    const std::array choices{
        TQV7SkinMessageChoice{.Caption = L"&Speichern",
                              .Description = L"Die Datei wird ersetzt.",
                              .Result = mrYes,
                              .Default = true},
        TQV7SkinMessageChoice{
            .Caption = L"&Verwerfen", .Description = L"Die Änderungen gehen verloren.", .Result = mrNo},
        TQV7SkinMessageChoice{.Caption = L"&Abbrechen",
                              .Description = L"Weiter am Formular arbeiten.",
                              .Result = mrCancel,
                              .Cancel = true},
    };
    switch (QV7SkinMessageDialog(L"QV7 Designer", L"Änderungen an „" + title + L"“ speichern?", msgiQuestion,
                                 choices)) {
        case mrYes:
            return TAnswer::Save;
        case mrNo:
            return TAnswer::Discard;
        default:
            return TAnswer::Cancel;
    }
}

std::optional<String> TDesignerDialogs::AskFileToOpen() {
    return AskFile(L"Formular öffnen", {}, OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST, &::GetOpenFileNameW);
}

std::optional<String> TDesignerDialogs::AskFileToSave(const String& present) {
    return AskFile(L"Formular speichern", present, OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST,
                   &::GetSaveFileNameW);
}

bool TDesignerDialogs::AskToReload(const String& title) {
    return AskYesNo(L"„" + title + L"“ wurde von einem anderen Programm geändert.",
                    {.Caption = L"&Neu laden", .Description = L"Zeigt den Stand der Datei.", .Result = mrYes},
                    {.Caption = L"&Behalten",
                     .Description = L"Weiter mit dem Stand im Designer.",
                     .Result = mrNo,
                     .Default = true,
                     .Cancel = true});
}

bool TDesignerDialogs::AskToReloadAncestor(const String& title) {
    return AskYesNo(
        L"„" + title + L"“, von dem dieses Formular erbt, wurde von einem anderen Programm geändert.",
        {.Caption = L"&Neu laden",
         .Description = L"Zeigt, was das Formular nun erbt. Die eigenen Änderungen bleiben.",
         .Result = mrYes,
         .Default = true},
        {.Caption = L"&Behalten",
         .Description = L"Weiter mit dem, was das Formular bisher erbte.",
         .Result = mrNo,
         .Cancel = true});
}

bool TDesignerDialogs::AskToRecover(const String& title) {
    return AskYesNo(L"„" + title + L"“ wurde nicht gespeichert, bevor der Designer zuletzt endete.",
                    {.Caption = L"&Wiederherstellen",
                     .Description = L"Den letzten Stand laden.",
                     .Result = mrYes,
                     .Default = true},
                    {.Caption = L"&Verwerfen",
                     .Description = L"Dieser Stand geht verloren.",
                     .Result = mrNo,
                     .Cancel = true});
}

bool TDesignerDialogs::AskToDiscardText(const String& reason) {
    return AskYesNo(L"Der Text ist kein Formular. " + reason,
                    {.Caption = L"Text &verwerfen", .Description = L"Zurück zum Formular.", .Result = mrYes},
                    {.Caption = L"&Weiter schreiben",
                     .Description = L"Die Einfügemarke steht an der Stelle.",
                     .Result = mrNo,
                     .Default = true,
                     .Cancel = true});
}

std::optional<String> TDesignerDialogs::AskAncestor(const std::vector<String>& files) {
    constexpr TSize size{420, 260};
    TForm form(nullptr);
    PrepareDialog(form, L"Abgeleitetes Formular", size, true);
    auto* label = new TLabel(&form);
    label->SetCaption(L"Von welchem Formular erbt dieses?");
    label->SetBounds(DialogMargin, DialogMargin, 300, 16);
    label->SetParent(&form);
    TScrollBox& box = AddScrollField(form, {DialogMargin, 34, size.Width - DialogMargin,
                                            size.Height - 2 * DialogMargin - DialogButtonHeight});
    auto* list = new TRowList(&form);
    list->SetAlign(alTop);
    list->SetParent(&box);
    std::vector<TListRow> rows;
    for (const String& file : files)
        rows.push_back({.Text = file});
    list->SetRows(std::move(rows));
    list->SetChosen(0);
    AddOkAndCancel(form);
    form.SetActiveControl(list);
    if (form.ShowModal() != mrOk) return std::nullopt;
    return files[static_cast<std::size_t>(list->GetChosen())];
}

void TDesignerDialogs::ShowError(const String& message) {
    ShowErrorMessage(message);
}

std::optional<String> TDesignerDialogs::AskName(const String& present) {
    TForm form(nullptr);
    PrepareDialog(form, L"Umbenennen", {300, 104}, false);
    auto* label = new TLabel(&form);
    label->SetCaption(L"Name der Komponente:");
    label->SetBounds(12, 12, 270, 16);
    label->SetParent(&form);
    auto* edit = new TEdit(&form);
    edit->SetBounds(12, 32, 276, 21);
    edit->SetText(present);
    edit->SetParent(&form);
    AddOkAndCancel(form);
    if (form.ShowModal() != mrOk) return std::nullopt;
    return edit->GetText();
}

}  // namespace designer
