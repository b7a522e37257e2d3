// The code of docs/manual/inputs.md, line by line, and what the chapter says that it does.

#include "explorerbar/UnitQV7SkinPopupForm.h"
#include "inputs/UnitQV7SkinComboBox.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/manual/ChapterTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace qv7skin;

class TColorForm : public TQV7SkinPopupForm {
    using TQV7SkinPopupForm::TQV7SkinPopupForm;  // its controls come from a form file, or from here
};

class TOrderForm : public TForm {
public:
    using TForm::TForm;

    TQV7SkinComboBox* MakeSalutation() {
        auto* salutation = new TQV7SkinComboBox(this);
        salutation->SetParent(this);
        salutation->SetBounds(12, 12, 140, 25);
        salutation->SetStyle(csDropDownList);
        salutation->GetItems().Add(L"Frau");
        salutation
            ->CreateComboBox();  // CreateEdit() of a spin edit, CreateParts() of the two other drop-downs
        return salutation;
    }
    void MakeCategory() {
        auto* category = new TQV7SkinTreeComboBox(this);
        category->SetParent(this);
        category->SetBounds(12, 48, 200, 25);
        category->SetStyle(csDropDownList);  // a choice only; csDropDown, as at first, has an editor
        TTreeNodes& nodes = category->GetTreeItems();
        TTreeNode* food = nodes.Add(nullptr, L"Lebensmittel");
        nodes.AddChild(food, L"Obst");
        TTreeNode* office = nodes.Add(nullptr, L"Bürobedarf");
        office->SetHasChildren(true);  // made when the user wants to see them
        category->OnTreeExpanding = {this, &TOrderForm::FillNode};
        category->OnDropUp = {this, &TOrderForm::CategoryClosed};
        Category = category;
    }
    TQV7SkinComboBox* MakeShades() {
        auto* shades = new TQV7SkinComboBox(this);
        shades->SetParent(this);
        shades->SetBounds(12, 84, 140, 25);
        shades->GetItems().Add(L"schwarz");
        shades->GetItems().Add(L"dunkelblau");
        shades->CreateComboBox();
        shades->SetStyle(csOwnerDrawFixed);
        shades->GetComboBox()->OnDrawItem = {this, &TOrderForm::DrawShade};
        return shades;
    }
    TColorForm* MakeColors(TQV7SkinComboBoxCustomDropDown* drop, TButton* button) {
        auto* colors = new TColorForm(this);  // belongs to this form, and lies above it
        drop->SetDropDownForm(colors);        // opens below the drop-down control ...
        colors->ShowAtControl(button);        // ... or below any other control
        return colors;
    }
    void DrawShade(TObject*, int entry, const TRect& place, UINT, HDC dc);
    void FillNode(TObject*, TTreeNode* node, bool& allow);
    void CategoryClosed(TObject*, bool cancelled);

    bool LoadBelow(TTreeNode& node) const {
        Category->GetTreeItems().AddChild(&node, L"Papier");
        return true;
    }
    void ShowCategory(const TTreeNode* node) { Shown = node ? node->GetText() : String(); }
    TQV7SkinTreeComboBox* Category = nullptr;
    String Shown;
};

void TOrderForm::DrawShade(TObject*, int entry, const TRect& place, UINT, HDC dc) {
    const RECT area = place;
    ::SetDCBrushColor(dc, entry < 0 ? RGB(255, 255, 255) : RGB(0, 0, 80 * entry));  // -1: none is chosen
    ::FillRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}
void TOrderForm::FillNode(TObject*, TTreeNode* node, bool& allow) {
    if (node->GetCount() == 0) allow = LoadBelow(*node);  // false keeps the node closed
}
void TOrderForm::CategoryClosed(TObject*, bool cancelled) {
    if (!cancelled) ShowCategory(Category->GetSelected());
}

using InputsChapterTest = test::ChapterTest<TOrderForm>;

TEST_F(InputsChapterTest, AComboBoxMadeInCodeHasItsItems) {
    TQV7SkinComboBox* salutation = Main().MakeSalutation();
    salutation->SetItemIndex(0);
    EXPECT_EQ(salutation->GetText(), L"Frau");
}

TEST_F(InputsChapterTest, TheHostDrawsEntries) {
    TQV7SkinComboBox* shades = Main().MakeShades();
    for (const int entry : {-1, 0, 1}) {
        shades->SetItemIndex(entry);
        const COLORREF expected = entry < 0 ? RGB(255, 255, 255) : RGB(0, 0, 80 * entry);
        EXPECT_EQ(test::ReadClient(shades->GetComboBox()->GetHandle()).At(20, 10), expected);
    }
}

TEST_F(InputsChapterTest, ATreeIsFilledWhenTheUserWantsToSeeIt) {
    Main().MakeCategory();
    Main().Category->SetFocus();
    Input.KeyPress(VK_F4);
    for (const WORD key : {VK_DOWN, VK_DOWN, VK_RIGHT, VK_RIGHT, VK_RETURN})
        Input.KeyPress(key);
    EXPECT_EQ(Main().Shown, L"Papier");
}

TEST_F(InputsChapterTest, APopupFormOpensBelowAnyControl) {
    auto* drop = new TQV7SkinComboBoxCustomDropDown(&Main());
    drop->SetParent(&Main());
    auto* button = new TButton(&Main());
    button->SetBounds(20, 100, 80, 25);
    button->SetParent(&Main());
    const TColorForm* colors = Main().MakeColors(drop, button);
    EXPECT_TRUE(colors->GetVisible());
    EXPECT_NEAR(colors->GetTop(), button->GetClientOrigin().Y + button->GetHeight(), 1);
}

}  // namespace
