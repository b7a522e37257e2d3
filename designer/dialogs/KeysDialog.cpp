#include "designer/dialogs/KeysDialog.h"

#include "buttons/UnitQV7SkinButton.h"
#include "designer/dialogs/DialogParts.h"
#include "designer/dialogs/RowList.h"
#include "platform/vcl/stdctrls/ScrollBox.h"

namespace designer {
namespace {

constexpr TSize DialogSize{460, 460};

std::vector<TListRow> Keys() {
    return {
        {.Text = L"Zum nächsten Rasterpunkt", .Note = L"Pfeile"},
        {.Text = L"Um ein Pixel", .Note = L"Strg + Pfeile"},
        {.Text = L"Größe ändern", .Note = L"Umschalt + Pfeile"},
        {.Text = L"Nächste, vorige Komponente", .Note = L"Tab, Umschalt + Tab"},
        {.Text = L"Eine Ebene höher", .Note = L"Esc"},
        {.Text = L"Zum Inspektor", .Note = L"Eingabe"},
        {.Text = L"Zwischen Formular und Inspektor", .Note = L"F11"},
        {.Text = L"Umbenennen", .Note = L"F2"},
        {.Text = L"Inhalt bearbeiten", .Note = L"Strg + E"},
        {.Text = L"Löschen", .Note = L"Entf"},
        {.Text = L"Rückgängig, Wiederholen", .Note = L"Strg + Z, Strg + Y"},
        {.Text = L"Vorschau", .Note = L"F9"},
        {.Text = L"Als Text", .Note = L"F12"},
        {.Text = {}, .IsLine = true},
        {.Text = L"Dazu wählen oder weglassen", .Note = L"Umschalt + Klick"},
        {.Text = L"Unter mehreren voranstellen", .Note = L"Klick"},
        {.Text = L"Rahmen in einer Komponente aufziehen", .Note = L"Strg + Ziehen"},
        {.Text = L"In die Mitte setzen", .Note = L"Doppelklick in der Palette"},
        {.Text = L"Mehrere nacheinander setzen", .Note = L"Umschalt + Klick in der Palette"},
        {.Text = {}, .IsLine = true},
        {.Text = L"Werte zur Auswahl", .Note = L"Alt + Abwärts"},
        {.Text = L"Nächster Wert oder Fenster", .Note = L"Doppelklick"},
        {.Text = L"Übernehmen, Verwerfen", .Note = L"Eingabe, Esc"},
    };
}

}  // namespace

void ShowKeysDialog() {
    TForm form(nullptr);
    PrepareDialog(form, L"Tasten", DialogSize, true);
    const int buttonTop = DialogSize.Height - DialogMargin - DialogButtonHeight;
    TScrollBox& box = AddScrollField(
        form, {DialogMargin, DialogMargin, DialogSize.Width - DialogMargin, buttonTop - DialogMargin});
    auto* list = new TRowList(&form);
    list->SetAlign(alTop);
    list->SetRowHeight(17);
    list->SetRows(Keys());
    list->SetParent(&box);
    TQV7SkinButton& close = AddClosingButton(
        form, {DialogSize.Width - DialogMargin - DialogButtonWidth, buttonTop}, L"&Schließen", mrCancel);
    form.SetActiveControl(&close);
    form.ShowModal();
}

}  // namespace designer
