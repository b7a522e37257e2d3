#include "gallery/MenuSamples.h"

#include "gallery/ToolIcons.h"

namespace gallery {
namespace {

enum TMenuImage { miNone = -1, miNew, miOpen, miSave, miPrint };

TMenuItem& Add(TMenuItem& parent, const wchar_t* caption, const wchar_t* hint = L"", TShortCut shortCut = 0,
               TMenuImage image = miNone) {
    auto* item = new TMenuItem(nullptr);
    item->SetCaption(caption);
    item->SetHint(hint);
    item->SetShortCut(shortCut);
    item->SetImageIndex(image);
    parent.Add(item);
    return *item;
}

void AddFileMenu(TMenuItem& menu, TMemo& editor) {
    TMenuItem& file = Add(menu, L"&Datei");
    Add(file, L"&Neu", L"Leert den Text", ShortCut('N', {ssCtrl}), miNew).OnClick = [&editor](TObject*) {
        editor.Clear();
    };
    Add(file, L"-");
    Add(file, L"&Drucken ...", L"Steht hier nicht zur Verfügung", ShortCut('P', {ssCtrl}), miPrint)
        .SetEnabled(false);
}

void AddEditMenu(TMenuItem& menu, TMemo& editor) {
    TMenuItem& edit = Add(menu, L"&Bearbeiten");
    const auto add = [&](const wchar_t* caption, wchar_t key, const wchar_t* hint, void (TMemo::*run)()) {
        TMenuItem& item = Add(edit, caption, hint, ShortCut(static_cast<WORD>(key), {ssCtrl}));
        item.OnClick = [&editor, run](TObject*) { (editor.*run)(); };
        return &item;
    };
    TMenuItem* undo = add(L"&Rückgängig", L'Z', L"", &TMemo::Undo);
    Add(edit, L"-", L"Zwischenablage");
    TMenuItem* cut = add(L"&Ausschneiden", L'X', L"Nimmt die Auswahl heraus", &TMemo::CutToClipboard);
    TMenuItem* copy = add(L"&Kopieren", L'C', L"Legt die Auswahl ab", &TMemo::CopyToClipboard);
    add(L"&Einfügen", L'V', L"Setzt ein, was abgelegt ist", &TMemo::PasteFromClipboard);
    Add(edit, L"-");
    add(L"Alles &markieren", L'A', L"", &TMemo::SelectAll);
    TMenuItem& readOnly = Add(edit, L"&Schreibgeschützt", L"Der Text kann nur gelesen werden");
    readOnly.SetAutoCheck(true);
    readOnly.OnClick = [&editor](TObject* sender) {
        editor.SetReadOnly(dynamic_cast<TMenuItem&>(*sender).GetChecked());
    };
    edit.OnClick = [&editor, undo, cut, copy](TObject*) {
        undo->SetEnabled(editor.GetCanUndo());
        cut->SetEnabled(editor.GetSelLength() > 0 && !editor.GetReadOnly());
        copy->SetEnabled(editor.GetSelLength() > 0);
    };
}

/// A submenu of choices of which one holds.
template <class Value>
void AddChoices(TMenuItem& parent, std::initializer_list<std::pair<const wchar_t*, Value>> choices,
                Value present, const std::function<void(Value)>& choose) {
    for (const auto& [caption, value] : choices) {
        TMenuItem& item = Add(parent, caption);
        item.SetRadioItem(true);
        item.SetAutoCheck(true);
        item.SetChecked(value == present);
        item.OnClick = [choose, chosen = value](TObject*) { choose(chosen); };
    }
}

void AddFormatMenu(TMenuItem& menu, TMemo& editor) {
    TMenuItem& format = Add(menu, L"&Format");
    TMenuItem& wrap = Add(format, L"&Zeilenumbruch", L"Bricht lange Zeilen am Rand um");
    wrap.SetAutoCheck(true);
    wrap.SetChecked(editor.GetWordWrap());
    wrap.OnClick = [&editor](TObject* sender) {
        editor.SetWordWrap(dynamic_cast<TMenuItem&>(*sender).GetChecked());
    };
    AddChoices<TAlignment>(Add(format, L"&Ausrichtung"),
                           {{L"&Links", taLeftJustify}, {L"&Mitte", taCenter}, {L"&Rechts", taRightJustify}},
                           editor.GetAlignment(),
                           [&editor](TAlignment value) { editor.SetAlignment(value); });
    AddChoices<int>(Add(format, L"&Schriftgröße"), {{L"&Klein", 8}, {L"&Mittel", 10}, {L"&Groß", 14}},
                    editor.GetFont().GetSize(), [&editor](int size) { editor.GetFont().SetSize(size); });
}

}  // namespace

void FillEditorMenu(TMenuItem& menu, TMemo& editor) {
    AddFileMenu(menu, editor);
    AddEditMenu(menu, editor);
    AddFormatMenu(menu, editor);
}

void FillSampleMenu(TMenuItem& menu, const TNotifyEvent& onClick) {
    const auto add = [&onClick](TMenuItem& parent, const wchar_t* caption, const wchar_t* hint = L"",
                                TShortCut shortCut = 0, TMenuImage image = miNone) -> TMenuItem& {
        TMenuItem& item = Add(parent, caption, hint, shortCut, image);
        item.OnClick = onClick;
        return item;
    };
    Add(menu, L"-", L"Dokument");
    add(menu, L"&Neu", L"Ein leeres Dokument", ShortCut('N', {ssCtrl}), miNew);
    add(menu, L"&Öffnen", L"Ein Dokument aus der Ablage#13#10oder von der Festplatte", 0, miOpen)
        .SetDefault(true);
    add(menu, L"&Speichern", L"", ShortCut('S', {ssCtrl}), miSave).SetEnabled(false);
    Add(menu, L"-", L"Ansicht");
    TMenuItem& ruler = add(menu, L"&Lineal");
    ruler.SetAutoCheck(true);
    ruler.SetChecked(true);
    for (const wchar_t* caption : {L"&Ganze Seite", L"Seiten&breite"}) {
        TMenuItem& view = add(menu, caption);
        view.SetRadioItem(true);
        view.SetAutoCheck(true);
        view.SetChecked(view.GetMenuIndex() == ruler.GetMenuIndex() + 1);
    }
    Add(menu, L"-");
    TMenuItem& sending = Add(menu, L"S&enden an");
    TMenuItem& printers = Add(sending, L"&Drucker", L"", 0, miPrint);
    add(sending, L"&Empfänger", L"Als Anlage einer Nachricht");
    TMenuItem& upstairs = Add(printers, L"&Obergeschoss");
    add(printers, L"&Erdgeschoss").SetEnabled(false);
    add(upstairs, L"&Einseitig").SetChecked(true);
    add(upstairs, L"&Beidseitig", L"Spart Papier");
}

std::unique_ptr<TImageList> CreateMenuImages() {
    auto images = std::make_unique<TImageList>(nullptr);
    for (const TToolIcon icon : {TToolIcon::New, TToolIcon::Open, TToolIcon::Save, TToolIcon::Print})
        images->AddMasked(CreateToolIcon(icon).get(), clFuchsia);
    return images;
}

}  // namespace gallery
