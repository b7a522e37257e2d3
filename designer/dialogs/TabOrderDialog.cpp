#include "designer/dialogs/TabOrderDialog.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "buttons/UnitQV7SkinButton.h"
#include "designer/dialogs/DialogParts.h"
#include "designer/dialogs/RowList.h"
#include "designer/model/Arranging.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/ScrollBox.h"

namespace designer {
namespace {

constexpr TSize DialogSize{380, 340};

/// The controls on `parent` that the user placed, in tab order.
std::vector<TWinControl*> TabControls(const TDesignDocument& document, const TWinControl& parent) {
    std::vector<TWinControl*> controls;
    for (TWinControl* control : parent.TabList())
        if (control->GetOwner() == &document.Root()) controls.push_back(control);
    return controls;
}

class TTabOrderDialog final {
public:
    TTabOrderDialog(const TWinControl& parent, std::vector<TWinControl*> controls)
        : FForm(nullptr), FControls(std::move(controls)) {
        PrepareDialog(FForm, L"Tabulatorfolge", DialogSize, true);
        auto* label = new TLabel(&FForm);
        label->SetCaption(L"Reihenfolge der Tabulatortaste in " + parent.GetName() + L":");
        label->SetBounds(DialogMargin, DialogMargin, 300, 16);
        label->SetParent(&FForm);
        const int buttonLeft = DialogSize.Width - DialogMargin - DialogButtonWidth;
        TScrollBox& box = AddScrollField(
            FForm, {DialogMargin, 34, buttonLeft - 8, DialogSize.Height - 2 * DialogMargin - 31});
        FList = new TRowList(&FForm);
        FList->SetAlign(alTop);
        FList->SetParent(&box);
        FList->OnMoveRow = {this, &TTabOrderDialog::Move};
        FList->OnKeyDown = {this, &TTabOrderDialog::ListKeyDown};
        AddButton(FForm, {buttonLeft, 34}, L"&Hinauf", [this] { Shift(-1); });
        AddButton(FForm, {buttonLeft, 64}, L"Hina&b", [this] { Shift(1); });
        AddButton(FForm, {buttonLeft, 104}, L"Nach &Lage", [this] { SortByPlace(); });
        AddOkAndCancel(FForm);
        ShowRows(0);
        FForm.SetActiveControl(FList);
    }

    [[nodiscard]] bool Run() { return FForm.ShowModal() == mrOk; }
    [[nodiscard]] const std::vector<TWinControl*>& Controls() const { return FControls; }

private:
    void ShowRows(int chosen) {
        std::vector<TListRow> rows;
        for (const TWinControl* control : FControls)
            rows.push_back({.Text = Format(L"%s: %s", control->GetName(), control->ClassName()),
                            .IsFaint = !control->GetTabStop()});
        FList->SetRows(std::move(rows));
        FList->SetChosen(chosen);
    }

    void Move(int from, int before) {
        const int to = before > from ? before - 1 : before;
        TWinControl* moved = FControls[static_cast<std::size_t>(from)];
        FControls.erase(FControls.begin() + from);
        FControls.insert(FControls.begin() + to, moved);
        ShowRows(to);
    }

    void Shift(int by) {
        const int from = FList->GetChosen();
        if (from < 0 || from + by < 0 || from + by >= FList->Count()) return;
        Move(from, by > 0 ? from + 2 : from - 1);
    }

    /// As one reads: from the top down, from left to right.
    void SortByPlace() {
        std::ranges::stable_sort(FControls, {}, [](const TWinControl* control) {
            return std::tuple(control->GetTop(), control->GetLeft());
        });
        ShowRows(0);
    }

    void ListKeyDown(TObject*, WORD& key, TShiftState shift) {
        if (!shift.Contains(ssCtrl) || (key != VK_UP && key != VK_DOWN)) return;
        Shift(key == VK_UP ? -1 : 1);
        key = 0;
    }

    TForm FForm;
    std::vector<TWinControl*> FControls;
    TRowList* FList = nullptr;
};

}  // namespace

TWinControl& TabOrderParent(TDesignDocument& document) {
    auto* leader = dynamic_cast<TControl*>(document.Selection().Leader());
    if (!leader) return document.Root();
    TWinControl* window = leader->AsWinControl();
    if (window && !TabControls(document, *window).empty()) return *window;
    return leader->GetParent() ? *leader->GetParent() : document.Root();
}

void EditTabOrder(TDesignDocument& document, const TWinControl& parent) {
    TTabOrderDialog dialog(parent, TabControls(document, parent));
    if (dialog.Run()) SetTabOrder(document, dialog.Controls());
}

}  // namespace designer
