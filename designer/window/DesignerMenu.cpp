// The commands as menus.

#include <functional>

#include "designer/dialogs/ComponentEditors.h"
#include "designer/model/Arranging.h"
#include "designer/window/DesignerWindow.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/ShortCuts.h"

namespace designer {
namespace {

TMenuItem& AddItem(TMenuItem& parent, const wchar_t* caption, const wchar_t* shortCut,
                   std::function<void()> command) {
    auto* item = new TMenuItem(&parent);
    item->SetCaption(caption);
    if (shortCut) item->SetShortCut(TextToShortCut(shortCut));
    if (command) item->OnClick = [command = std::move(command)](TObject*) { command(); };
    parent.Add(item);
    return *item;
}

TMenuItem& AddSubmenu(TMenuItem& parent, const wchar_t* caption) {
    return AddItem(parent, caption, nullptr, nullptr);
}

/// A caption that shows the text as it is: `&` in it is no mnemonic.
String Literal(const String& text) {
    String caption;
    for (const wchar_t c : text)
        caption.append(c == cHotkeyPrefix ? 2 : 1, c);
    return caption;
}

}  // namespace

void TDesignerWindow::MakeMenu() {
    FMenu = new TQV7SkinMainMenu(this);
    TMenuItem& bar = FMenu->GetItems();
    TMenuItem& file = AddSubmenu(bar, L"&Datei");
    file.OnClick = {this, &TDesignerWindow::UpdateRecentFiles};
    AddItem(file, L"&Neu", L"Ctrl+N", [this] { NewForm(); });
    AddItem(file, L"Neu, &abgeleitet von …", L"Shift+Ctrl+N", [this] { NewInheritingForm(); });
    AddItem(file, L"Ö&ffnen …", L"Ctrl+O", [this] { Open(); });
    FRecentItem = &AddSubmenu(file, L"&Zuletzt geöffnet");
    AddItem(file, L"&Speichern", L"Ctrl+S", [this] { Save(); });
    AddItem(file, L"Speichern &unter …", nullptr, [this] { SaveAs(); });
    file.NewBottomLine();
    AddItem(file, L"&Beenden", nullptr, [this] { Close(); });

    TMenuItem& edit = AddSubmenu(bar, L"&Bearbeiten");
    edit.OnClick = {this, &TDesignerWindow::UpdateMenu};
    FUndoItem = &AddItem(edit, L"&Rückgängig", L"Ctrl+Z", [this] { Undo(); });
    FRedoItem = &AddItem(edit, L"&Wiederholen", L"Ctrl+Y", [this] { Redo(); });
    edit.NewBottomLine();
    AddItem(edit, L"&Ausschneiden", L"Ctrl+X", [this] { Cut(); });
    AddItem(edit, L"&Kopieren", L"Ctrl+C", [this] { Copy(); });
    AddItem(edit, L"&Einfügen", L"Ctrl+V", [this] { Paste(); });
    FDeleteItem = &AddItem(edit, L"Lös&chen", L"Del", [this] { Delete(); });
    AddItem(edit, L"A&lles auswählen", L"Ctrl+A", [this] { ChooseAll(); });
    edit.NewBottomLine();
    AddItem(edit, L"U&mbenennen …", L"F2", [this] { RenameChosen(); });
    FEditItems.push_back(&AddItem(edit, L"&Inhalt bearbeiten …", L"Ctrl+E", [this] { EditChosen(); }));

    AddArrangeItems(AddSubmenu(bar, L"A&nordnen"));
    AddViewItems(AddSubmenu(bar, L"&Ansicht"));
    TMenuItem& view = AddSubmenu(bar, L"&Formular");
    AddItem(view, L"&Vorschau", L"F9", [this] { Preview(); });
    AddItem(view, L"Als &Text", L"F12", [this] { ToggleText(); });
    AddItem(AddSubmenu(bar, L"&Hilfe"), L"&Tasten …", L"F1", [this] { ShowKeys(); });
    FMenu->OnBeforeExecuteShortCut = {this, &TDesignerWindow::LimitDeleteKey};
    FMenu->OnAfterExecuteShortCut = {this, &TDesignerWindow::RestoreDeleteKey};
    UpdateRecentFiles(nullptr);
    FMenu->ApplyCustomLayout();
    // Menus with images leave the items of the bar to the system: the painter would put a gutter before each.
    FMenu->SetImages(new TImageList(this));
    FMenu->SetOwnerDraw(false);
    SetMenu(FMenu);
}

void TDesignerWindow::AddArrangeItems(TMenuItem& parent) {
    const auto add = [&](const wchar_t* caption, std::function<void()> change) {
        AddItem(parent, caption, nullptr, [this, change = std::move(change)] { TryEdit(change); });
    };
    const auto align = [&](const wchar_t* caption, TAlignment alignment) {
        add(caption, [this, alignment] { AlignSelection(FDocument, alignment); });
    };
    using TChange = void (*)(TDesignDocument&, TDirection);
    const auto spread = [&](const wchar_t* caption, TChange change, TDirection direction) {
        add(caption, [this, change, direction] { change(FDocument, direction); });
    };
    align(L"&Links ausrichten", TAlignment::Left);
    align(L"&Mitten übereinander", TAlignment::HorizontalCenter);
    align(L"&Rechts ausrichten", TAlignment::Right);
    align(L"&Oben ausrichten", TAlignment::Top);
    align(L"Mitten &nebeneinander", TAlignment::VerticalCenter);
    align(L"&Unten ausrichten", TAlignment::Bottom);
    parent.NewBottomLine();
    spread(L"&Waagrecht verteilen", &DistributeSelection, TDirection::Horizontal);
    spread(L"&Senkrecht verteilen", &DistributeSelection, TDirection::Vertical);
    spread(L"Gleiche &Breite", &EqualizeSelection, TDirection::Horizontal);
    spread(L"Gleiche &Höhe", &EqualizeSelection, TDirection::Vertical);
    spread(L"Waagrecht &zentrieren", &CenterSelection, TDirection::Horizontal);
    spread(L"Senkrecht z&entrieren", &CenterSelection, TDirection::Vertical);
    parent.NewBottomLine();
    add(L"Nach &vorn", [this] { BringSelectionToFront(FDocument); });
    add(L"Nach h&inten", [this] { SendSelectionToBack(FDocument); });
    parent.NewBottomLine();
    AddItem(parent, L"&Tabulatorfolge …", nullptr, [this] { EditTabOrder(); });
}

/// Entries that switch something on and off, with a mark while it is on.
void TDesignerWindow::AddViewItems(TMenuItem& parent) {
    const auto add = [&parent](const wchar_t* caption, bool isOn, std::function<void(bool)> set) {
        TMenuItem& item = AddItem(parent, caption, nullptr, nullptr);
        item.SetChecked(isOn);
        item.OnClick = [&item, set = std::move(set)](TObject*) {
            item.SetChecked(!item.GetChecked());
            set(item.GetChecked());
        };
    };
    TDesignSurface& surface = *FSurface;
    add(L"&Raster zeigen", surface.ShowGrid, [this](bool isOn) {
        FSurface->ShowGrid = isOn;
        FDocument.Root().Invalidate();
    });
    const int grid = surface.Snapping.Grid;
    add(L"&Am Raster ausrichten", true,
        [this, grid](bool isOn) { FSurface->Snapping.Grid = isOn ? grid : 1; });
    add(L"An &Nachbarn ausrichten", surface.Snapping.UseGuides,
        [this](bool isOn) { FSurface->Snapping.UseGuides = isOn; });
    add(L"&Plätze festhalten", surface.IsLocked, [this](bool isOn) {
        FSurface->IsLocked = isOn;
        FSurface->UpdateMarks();
    });
    parent.NewBottomLine();
    AddItem(parent, L"Formular &oder Inspektor", L"F11", [this] { SwitchFocus(); });
}

void TDesignerWindow::MakeContextMenu() {
    FContextMenu = new TQV7SkinPopupMenu(this);
    TMenuItem& items = FContextMenu->GetItems();
    AddItem(items, L"&Ausschneiden", nullptr, [this] { Cut(); });
    AddItem(items, L"&Kopieren", nullptr, [this] { Copy(); });
    AddItem(items, L"&Einfügen", nullptr, [this] { Paste(); });
    AddItem(items, L"&Löschen", nullptr, [this] { Delete(); });
    items.NewBottomLine();
    AddArrangeItems(AddSubmenu(items, L"A&nordnen"));
    AddItem(items, L"U&mbenennen …", nullptr, [this] { RenameChosen(); });
    FEditItems.push_back(&AddItem(items, L"&Inhalt bearbeiten …", nullptr, [this] { EditChosen(); }));
}

void TDesignerWindow::UpdateRecentFiles(TObject*) {
    FRecentItem->Clear();
    const std::vector<String> names = FRecent.Names();
    for (int number = 1; const String& name : names) {
        AddItem(*FRecentItem, Format(L"&%d  %s", number++, Literal(name)).c_str(), nullptr,
                [this, name] { OpenRecentFile(String(name)); });
    }
    FRecentItem->SetEnabled(!names.empty());
}

/// The key deletes components on the form only: elsewhere it belongs to what has the focus.
void TDesignerWindow::LimitDeleteKey(TObject*) {
    if (GetActiveControl() != FSurface) FDeleteItem->SetShortCut(scNone);
}

void TDesignerWindow::RestoreDeleteKey(TObject*) {
    FDeleteItem->SetShortCut(ShortCut(VK_DELETE, {}));
}

void TDesignerWindow::UpdateMenu(TObject*) {
    const THistory& history = FDocument.History();
    FUndoItem->SetCaption(history.CanUndo() ? L"&Rückgängig: " + history.UndoLabel()
                                            : String(L"&Rückgängig"));
    FUndoItem->SetEnabled(history.CanUndo());
    FRedoItem->SetCaption(history.CanRedo() ? L"&Wiederholen: " + history.RedoLabel()
                                            : String(L"&Wiederholen"));
    FRedoItem->SetEnabled(history.CanRedo());
    const TComponent* leader = FDocument.Selection().Leader();
    for (TMenuItem* item : FEditItems)
        item->SetEnabled(leader && HasComponentEditor(*leader));
}

}  // namespace designer
