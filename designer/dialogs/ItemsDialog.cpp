#include "designer/dialogs/ItemsDialog.h"

#include <algorithm>
#include <utility>

#include "buttons/UnitQV7SkinButton.h"
#include "designer/dialogs/DialogParts.h"
#include "designer/dialogs/RowList.h"
#include "designer/inspector/InspectorPages.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinToolbar.h"
#include "platform/vcl/core/Collection.h"
#include "platform/vcl/menus/ShortCuts.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/ScrollBox.h"

namespace designer {
namespace {

constexpr TSize DialogSize{640, 420};
constexpr int ListWidth = 300;
constexpr int ToolbarHeight = 34;

class TItemsDialog final {
public:
    TItemsDialog(TItemTree& tree, TValueDialogs& values)
        : FTree(tree),
          FValues(values),
          FProperties(tree.Document(), TPropertyList::TKind::Properties),
          FEvents(tree.Document(), TPropertyList::TKind::Events),
          FFirstState(tree.Document().History().Position()),
          FOuterChange(tree.Document().OnChange),
          FForm(nullptr) {
        PrepareDialog(FForm, tree.Title(), DialogSize, true);
        MakeToolbar();
        MakeList();
        MakeInspector();
        AddClosingButton(FForm,
                         {DialogSize.Width - DialogMargin - DialogButtonWidth,
                          DialogSize.Height - DialogMargin - DialogButtonHeight},
                         L"Schließen", mrCancel);
        FForm.OnShortCut = {this, &TItemsDialog::ShortCutPressed};
        tree.Document().OnChange = {this, &TItemsDialog::DocumentChanged};
        ShowEntries();
        FList->SetChosen(0);
        ShowSubject();
        FForm.SetActiveControl(FList);
    }
    ~TItemsDialog() {
        FGrid->SetList(nullptr);
        FTree.Document().OnChange = FOuterChange;
    }
    TItemsDialog(const TItemsDialog&) = delete;
    TItemsDialog& operator=(const TItemsDialog&) = delete;

    void Run() {
        FForm.ShowModal();
        FList->EndEdit(true);
        FGrid->Accept();
    }

private:
    void MakeToolbar() {
        auto* toolbar = new TQV7SkinToolbar(&FForm);
        toolbar->SetAlign(alTop);
        toolbar->SetHeight(ToolbarHeight);
        const auto add = [&](const wchar_t* caption, void (TItemsDialog::*command)()) {
            auto* button = new TQV7SkinToolbutton(caption);
            button->OnClick = [this, command](TQV7SkinHeaderItemCustom*, TMouseButton mouse, TShiftState, int,
                                              int) {
                if (mouse == mbLeft) (this->*command)();
            };
            toolbar->GetItems().Add(button);
        };
        add(L"Neu", &TItemsDialog::AddBehind);
        if (FTree.CanNest()) add(L"Darunter", &TItemsDialog::AddBelow);
        if (FTree.HasSeparators()) add(L"Trennlinie", &TItemsDialog::AddSeparator);
        add(L"Löschen", &TItemsDialog::RemoveChosen);
        add(L"Hinauf", &TItemsDialog::ShiftUp);
        add(L"Hinab", &TItemsDialog::ShiftDown);
        if (FTree.CanNest()) {
            add(L"Hinein", &TItemsDialog::MoveIn);
            add(L"Heraus", &TItemsDialog::MoveOut);
        }
        toolbar->SetParent(&FForm);
    }

    void MakeList() {
        constexpr int top = ToolbarHeight + DialogMargin;
        TScrollBox& box = AddScrollField(FForm, {DialogMargin, top, DialogMargin + ListWidth,
                                                 DialogSize.Height - 2 * DialogMargin - DialogButtonHeight});
        box.SetAnchors({akLeft, akTop, akBottom});
        FList = new TRowList(&FForm);
        FList->SetAlign(alTop);
        FList->SetParent(&box);
        FList->OnChoose = {this, &TItemsDialog::ShowSubject};
        FList->OnEdited = [this](int index, const String& text) {
            Change([&] { FTree.Rename(index, text); });
        };
        FList->OnMoveRow = [this](int index, int before) {
            Place([&] { return FTree.MoveBefore(index, before); });
        };
        FList->OnKeyDown = {this, &TItemsDialog::ListKeyDown};
    }

    void MakeInspector() {
        constexpr int left = DialogMargin + ListWidth + 8;
        constexpr int top = ToolbarHeight + DialogMargin;
        constexpr int tabsHeight = 25;
        const TAnchors stretched{akLeft, akTop, akRight};
        auto* tabs = new TQV7SkinSimpleTabControl(&FForm);
        tabs->SetBounds(left, top, DialogSize.Width - DialogMargin - left, tabsHeight);
        tabs->SetAnchors(stretched);
        tabs->SetAllowItemDrag(false);
        tabs->SetParent(&FForm);
        TScrollBox& box = AddScrollField(FForm, {left, top + tabsHeight, DialogSize.Width - DialogMargin,
                                                 DialogSize.Height - 2 * DialogMargin - DialogButtonHeight});
        FGrid = new TInspectorGrid(&FForm);
        FGrid->SetAlign(alTop);
        FGrid->SetParent(&box);
        FGrid->OnRefused = &ShowErrorMessage;
        FGrid->OnEditValue = [this](const TPropertyLine& line) {
            // Collections in the entries are entries of the tree.
            if (!dynamic_cast<TCollection*>(HeldIn(line)))
                Change([&] { EditValue(FTree.Document(), TPropertyLine(line), FValues); });
        };
        const auto subject = [this] { return Chosen(); };
        FProperties.SetSubject(subject);
        FEvents.SetSubject(subject);
        AddInspectorPages(*tabs, *FGrid, FProperties, FEvents);
    }

    static TPersistent* HeldIn(const TPropertyLine& line) {
        return line.Row->Kind() == TPropertyKind::Nested
                   ? std::get<TPersistent*>(line.Row->Get(*line.Holders.front()))
                   : nullptr;
    }

    [[nodiscard]] TPersistent* Chosen() const {
        const std::vector<TItemEntry> entries = FTree.Entries();
        const int index = FList->GetChosen();
        return index >= 0 && index < static_cast<int>(entries.size())
                   ? entries[static_cast<std::size_t>(index)].Object
                   : nullptr;
    }

    void ShowEntries() {
        std::vector<TListRow> rows;
        for (TItemEntry& entry : FTree.Entries())
            rows.push_back({.Text = std::move(entry.Text),
                            .Depth = entry.Depth,
                            .Note = std::move(entry.Note),
                            .IsLine = entry.IsSeparator});
        FList->SetRows(std::move(rows));
    }

    void ShowSubject() {
        FGrid->Accept();
        FProperties.Refresh();
        FEvents.Refresh();
        FGrid->UpdateLines();
    }

    void DocumentChanged() {
        FOuterChange();
        ShowEntries();
        FProperties.Refresh();
        FEvents.Refresh();
        FGrid->UpdateLines();
    }

    /// Runs a change and shows what it raises.
    bool Change(const std::function<void()>& change) {
        try {
            FGrid->Accept();
            change();
            return true;
        } catch (const Exception& error) {
            ShowErrorMessage(error.Message());
            return false;
        }
    }

    /// Runs a change that tells where the entry stands afterwards, and chooses it there.
    bool Place(const std::function<int()>& change) {
        int index = FList->GetChosen();
        if (!Change([&] { index = change(); })) return false;
        FList->SetChosen(index);
        ShowSubject();
        return true;
    }

    void AddAt(bool below) {
        FList->EndEdit(true);
        const int present = FList->GetChosen();
        if (Place([&] { return FTree.Add(present, below && present >= 0); })) FList->BeginEdit();
    }
    void AddBehind() { AddAt(false); }
    void AddBelow() { AddAt(true); }
    void AddSeparator() {
        FList->EndEdit(true);
        Place([&] { return FTree.Add(FList->GetChosen(), false, cLineCaption); });
    }
    void RemoveChosen() {
        FList->EndEdit(false);
        if (FList->GetChosen() >= 0) Place([&] { return FTree.Remove(FList->GetChosen()); });
    }
    void MoveChosen(int (TItemTree::*move)(int)) {
        FList->EndEdit(true);
        if (FList->GetChosen() >= 0) Place([&] { return (FTree.*move)(FList->GetChosen()); });
    }
    void MoveIn() { MoveChosen(&TItemTree::MoveIn); }
    void MoveOut() { MoveChosen(&TItemTree::MoveOut); }
    void ShiftChosen(int by) {
        FList->EndEdit(true);
        if (FList->GetChosen() >= 0) Place([&] { return FTree.Shift(FList->GetChosen(), by); });
    }
    void ShiftUp() { ShiftChosen(-1); }
    void ShiftDown() { ShiftChosen(1); }

    void ListKeyDown(TObject*, WORD& key, TShiftState shift) {
        const bool ctrl = shift.Contains(ssCtrl);
        switch (std::exchange(key, 0)) {
            case VK_INSERT:
                return AddAt(ctrl && FTree.CanNest());
            case VK_DELETE:
                return RemoveChosen();
            case VK_RETURN:
                return FList->BeginEdit();
            case VK_UP:
                if (ctrl) return ShiftUp();
                key = VK_UP;
                return;
            case VK_DOWN:
                if (ctrl) return ShiftDown();
                key = VK_DOWN;
                return;
            case VK_LEFT:
                if (ctrl) MoveOut();
                return;
            case VK_RIGHT:
                if (ctrl) MoveIn();
                return;
            case VK_HOME:
                key = VK_HOME;
                return;
            case VK_END:
                key = VK_END;
                return;
            case VK_F2:
                key = VK_F2;
                return;
            default:
                return;
        }
    }

    /// Undo and redo, for what was done here; in an editor they are about its text.
    void ShortCutPressed(TMessage& message, bool& handled) {
        if (dynamic_cast<TCustomEdit*>(FForm.GetActiveControl())) return;
        const TShortCut shortCut = ShortCutFromMessage(message);
        TDesignDocument& document = FTree.Document();
        if (shortCut == ShortCut('Z', {ssCtrl})) {
            handled = true;
            if (document.History().Position() > FFirstState) document.Undo();
        } else if (shortCut == ShortCut('Y', {ssCtrl})) {
            handled = true;
            document.Redo();
        }
    }

    TItemTree& FTree;
    TValueDialogs& FValues;
    TPropertyList FProperties;
    TPropertyList FEvents;
    std::size_t FFirstState;  ///< Of the history, when the dialog was opened.
    TEvent<void()> FOuterChange;
    TForm FForm;
    TRowList* FList = nullptr;
    TInspectorGrid* FGrid = nullptr;
};

}  // namespace

void EditItems(TItemTree& tree, TValueDialogs& values) {
    TItemsDialog(tree, values).Run();
}

}  // namespace designer
