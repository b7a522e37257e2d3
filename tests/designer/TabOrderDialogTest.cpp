#include "designer/dialogs/TabOrderDialog.h"

#include "designer/dialogs/RowList.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/designer/DialogDriver.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

constexpr char ThreeButtons[] =
    "object MainForm: TMainForm\r\n  ClientHeight = 200\r\n  ClientWidth = 300\r\n"
    "  object A: TButton\r\n    Left = 16\r\n    Top = 80\r\n    TabOrder = 0\r\n  end\r\n"
    "  object B: TButton\r\n    Left = 116\r\n    Top = 16\r\n    TabOrder = 1\r\n    TabStop = False\r\n  "
    "end\r\n"
    "  object C: TButton\r\n    Left = 16\r\n    Top = 16\r\n    TabOrder = 2\r\n  end\r\n"
    "  object Note: TLabel\r\n    Left = 16\r\n    Top = 120\r\n  end\r\n"
    "  object Box: TPanel\r\n    Left = 150\r\n    Top = 100\r\n    Width = 140\r\n    TabOrder = 3\r\n"
    "    object D: TButton\r\n      Left = 4\r\n      Top = 4\r\n      TabOrder = 0\r\n    end\r\n"
    "    object E: TButton\r\n      Left = 80\r\n      Top = 4\r\n      TabOrder = 1\r\n    end\r\n  "
    "end\r\nend\r\n";

class TabOrderDialogTest : public DesignerWindowTest {
protected:
    void SetUp() override {
        DesignerWindowTest::SetUp();
        Window->OpenFile(Dir.Write(L"form.dfm", ThreeButtons));
    }
    /// Opens the dialog for what is chosen and does this in it.
    void Edit(const std::function<void(DialogDriver&)>& steps) {
        InDialog(L"Tabulatorfolge", steps);
        Window->EditTabOrder();
    }
    static std::vector<String> Names(const TRowList& list) {
        std::vector<String> names;
        for (const TListRow& row : list.Rows())
            names.push_back(row.Text.substr(0, row.Text.find(L':')));
        return names;
    }
    /// The names of the form's controls in tab order.
    std::vector<String> Order(const TWinControl& parent) {
        std::vector<String> names;
        for (const TWinControl* control : parent.TabList())
            names.push_back(control->GetName());
        return names;
    }
    std::vector<String> Order() { return Order(Document().Root()); }
    using TNames = std::vector<String>;
};

TEST_F(TabOrderDialogTest, ShowsTheWindowedControlsInTheirOrder) {
    TNames names;
    std::vector<bool> faint;
    Edit([&](DialogDriver& dialog) {
        names = Names(dialog.List());
        for (const TListRow& row : dialog.List().Rows())
            faint.push_back(row.IsFaint);
        dialog.Picture(L"tab-order");
        dialog.Press(L"Abbrechen");
    });
    EXPECT_EQ(names, (TNames{L"A", L"B", L"C", L"Box"}));
    EXPECT_EQ(faint, (std::vector<bool>{false, true, false, true})) << "B and the panel are no tab stops";
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(TabOrderDialogTest, ButtonsMoveTheChosenControlAsOneEdit) {
    const std::string before = Document().Text();
    Edit([&](DialogDriver& dialog) {
        dialog.ClickRow(2);
        dialog.Press(L"Hinauf");
        dialog.Press(L"Hinauf");
        dialog.Press(L"Hinauf");
        EXPECT_EQ(Names(dialog.List()), (TNames{L"C", L"A", L"B", L"Box"})) << "and stays at the top";
        dialog.ClickRow(1);
        dialog.Press(L"Hinab");
        dialog.Press(L"OK");
    });
    EXPECT_EQ(Order(), (TNames{L"C", L"B", L"A", L"Box"}));
    EXPECT_EQ(Document().History().Count(), 1u);
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
    EXPECT_EQ(Order(), (TNames{L"A", L"B", L"C", L"Box"}));
    Document().Redo();
    EXPECT_EQ(Order(), (TNames{L"C", L"B", L"A", L"Box"}));
}

TEST_F(TabOrderDialogTest, KeysMoveTheChosenControl) {
    Edit([&](DialogDriver& dialog) {
        dialog.Input.KeyPress(VK_DOWN);
        dialog.Input.Chord({VK_CONTROL}, VK_DOWN);
        dialog.Input.KeyPress(VK_END);
        dialog.Input.Chord({VK_CONTROL}, VK_UP);
        dialog.Input.KeyPress(VK_RETURN);
    });
    EXPECT_EQ(Order(), (TNames{L"A", L"C", L"Box", L"B"}));
}

TEST_F(TabOrderDialogTest, RowsAreDragged) {
    Edit([&](DialogDriver& dialog) {
        dialog.DragRow(0, 3);
        EXPECT_EQ(Names(dialog.List()), (TNames{L"B", L"C", L"A", L"Box"}));
        EXPECT_EQ(dialog.List().GetChosen(), 2) << "the dragged one stays chosen";
        dialog.DragRow(3, 0);
        dialog.Press(L"OK");
    });
    EXPECT_EQ(Order(), (TNames{L"Box", L"B", L"C", L"A"}));
}

TEST_F(TabOrderDialogTest, TheOrderFollowsThePlaces) {
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Nach Lage");
        dialog.Press(L"OK");
    });
    EXPECT_EQ(Order(), (TNames{L"C", L"B", L"A", L"Box"}));
}

TEST_F(TabOrderDialogTest, AChosenContainerIsTheOneThatIsOrdered) {
    auto& box = dynamic_cast<TWinControl&>(*Document().Root().FindComponent(L"Box"));
    Document().Selection().SetOnly(&box);
    Edit([&](DialogDriver& dialog) {
        EXPECT_EQ(Names(dialog.List()), (TNames{L"D", L"E"}));
        dialog.DragRow(0, 2);
        dialog.Press(L"OK");
    });
    EXPECT_EQ(Order(box), (TNames{L"E", L"D"}));
    Document().Selection().SetOnly(box.TabList()[0]);
    EXPECT_EQ(&TabOrderParent(Document()), &box) << "the control that the chosen one stands in";
    Document().Selection().SetOnly(Document().Root().FindComponent(L"Note"));
    EXPECT_EQ(&TabOrderParent(Document()), &Document().Root());
}

TEST_F(TabOrderDialogTest, TheSameOrderIsNoEdit) {
    Edit([&](DialogDriver& dialog) { dialog.Press(L"OK"); });
    EXPECT_FALSE(Document().IsModified());
}

}  // namespace
}  // namespace designer
