#include <algorithm>

#include "designer/dialogs/RowList.h"
#include "designer/inspector/InspectorGrid.h"
#include "designer/inspector/ValueList.h"
#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/designer/DialogDriver.h"
#include "tests/support/PixelProbe.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

constexpr char Contents[] =
    "object MainForm: TMainForm\r\n  ClientHeight = 200\r\n  ClientWidth = 300\r\n"
    "  object Label1: TLabel\r\n    Left = 16\r\n    Top = 16\r\n    Width = 80\r\n    Height = 20\r\n"
    "    Caption = 'Name'\r\n  end\r\n"
    "  object Edit1: TEdit\r\n    Left = 16\r\n    Top = 40\r\n    TabOrder = 0\r\n  end\r\n"
    "  object Memo1: TMemo\r\n    Left = 16\r\n    Top = 70\r\n    TabOrder = 1\r\n  end\r\n"
    "  object Button1: TButton\r\n    Left = 200\r\n    Top = 10\r\n    Caption = 'Eins'\r\n    TabOrder = "
    "2\r\n"
    "  end\r\n"
    "  object Button2: TButton\r\n    Left = 200\r\n    Top = 50\r\n    Caption = 'Zwei'\r\n    TabOrder = "
    "3\r\n"
    "  end\r\nend\r\n";

/// Works the inspector of a designer as a user does.
class InspectorInputTest : public DesignerWindowTest {
protected:
    void SetUp() override {
        DesignerWindowTest::SetUp();
        Window->OpenFile(Dir.Write(L"form.dfm", Contents));
    }
    template <class T>
    T& Find(const wchar_t* name) {
        return dynamic_cast<T&>(*Document().Root().FindComponent(name));
    }
    void Choose(std::initializer_list<const wchar_t*> names) {
        std::vector<TComponent*> items;
        for (const wchar_t* name : names)
            items.push_back(&Find<TComponent>(name));
        Document().Selection().Set(items);
    }
    TInspectorGrid& Grid() { return Window->Grid(); }
    /// The place of the line with that path, brought into view.
    TRect Line(const wchar_t* path) {
        TPropertyList list(Document(), TPropertyList::TKind::Properties);
        list.Refresh();
        for (const wchar_t* expanded : FExpanded)
            list.SetExpanded(expanded, true);
        const auto& lines = list.Lines();
        const auto place = std::ranges::find(lines, String(path), &TPropertyLine::Path);
        const TRect line = Grid().LineRect(static_cast<int>(place - lines.begin()));
        auto& frame = dynamic_cast<TScrollingWinControl&>(*Grid().GetParent());
        frame.GetVertScrollBar().SetPosition(line.Top - 60);
        Grid().Update();
        return line;
    }
    void ClickLine(const wchar_t* path) {
        const TRect line = Line(path);
        Input.ClickAt(Grid().WindowHandle(), line.Left + 40, line.Top + 10);
        ASSERT_EQ(Grid().GetChosenPath(), path);
    }
    void DoubleClickLine(const wchar_t* path) {
        const TRect line = Line(path);
        Input.DoubleClickAt(Grid().WindowHandle(), line.Left + 60, line.Top + 10);
    }
    void Expand(const wchar_t* path, int depth = 0) {
        const TRect line = Line(path);
        Input.ClickAt(Grid().WindowHandle(), line.Left + 8 + depth * 12, line.Top + 10);
        FExpanded.push_back(path);
    }
    void TypeValue(const wchar_t* path, const wchar_t* value) {
        ClickLine(path);
        Input.Chord({VK_CONTROL}, 'A');
        Input.Type(value);
        Input.KeyPress(VK_RETURN);
    }
    static bool IsMenuOpen() {
        const HWND menu = ::FindWindowExW(nullptr, nullptr, MAKEINTATOM(32768), nullptr);
        return menu && ::IsWindowVisible(menu);
    }
    /// The list of values that is dropped down; null while there is none.
    static TValueList* OpenList() {
        auto* list = dynamic_cast<TValueList*>(Screen().GetActiveForm());
        return list && list->GetVisible() ? list : nullptr;
    }
    /// Presses the button of the line.
    void DropDown(const wchar_t* path) {
        ClickLine(path);
        const TRect line = Line(path);
        Input.ClickAt(Grid().WindowHandle(), line.Right - 8, line.Top + 10);
        ASSERT_TRUE(OpenList());
    }
    /// Takes the value at that place of the list.
    void TakeValue(const wchar_t* path, int index) {
        DropDown(path);
        Input.KeyPress(VK_HOME);
        for (int i = 0; i < index; ++i)
            Input.KeyPress(VK_DOWN);
        Input.KeyPress(VK_RETURN);
        EXPECT_FALSE(OpenList());
    }
    void ResetLine(const wchar_t* path) {
        const TRect line = Line(path);
        test::When(&IsMenuOpen, [this] { Input.KeyPress('V'); });
        Input.ClickAt(Grid().WindowHandle(), line.Left + 40, line.Top + 10, test::MouseButton::Right);
        test::PumpAll();
    }

private:
    std::vector<const wchar_t*> FExpanded;
};

TEST_F(InspectorInputTest, TextNumbersAndShortCutsAreTyped) {
    Choose({L"Button1"});
    TypeValue(L"Caption", L"Größe");
    TypeValue(L"Width", L"90");
    EXPECT_EQ(Find<TButton>(L"Button1").GetCaption(), L"Größe");
    EXPECT_EQ(Find<TButton>(L"Button1").GetWidth(), 90);
    TypeValue(L"Hint", L"Tipp");
    EXPECT_TRUE(TextHas("Hint = 'Tipp'"));
    EXPECT_EQ(Document().History().Count(), 3u);
}

TEST_F(InspectorInputTest, EnumerationsAreTakenFromTheListOrTurnedByDoubleClicks) {
    Choose({L"Label1"});
    TakeValue(L"Align", 2);
    EXPECT_TRUE(TextHas("Align = alBottom")) << Document().Text();
    Document().Undo();
    DoubleClickLine(L"Align");
    EXPECT_TRUE(TextHas("Align = alTop")) << Document().Text();
    DoubleClickLine(L"Enabled");
    EXPECT_TRUE(TextHas("Enabled = False"));
}

TEST_F(InspectorInputTest, ValuesAreTakenByMouse) {
    Choose({L"Label1"});
    DropDown(L"Align");
    TRowList& rows = OpenList()->List();
    EXPECT_EQ(rows.Rows()[static_cast<std::size_t>(rows.GetChosen())].Text, L"alNone") << "the present value";
    const TRect row = rows.RowRect(3);
    Input.MoveTo(rows.WindowHandle(), 20, row.Top + 5);
    EXPECT_EQ(rows.GetChosen(), 3) << "it follows the mouse";
    Input.Click();
    EXPECT_FALSE(OpenList());
    EXPECT_TRUE(TextHas("Align = alLeft")) << Document().Text();
    EXPECT_EQ(Screen().GetActiveForm(), Window.get());
}

TEST_F(InspectorInputTest, TypedLettersFindAValueInTheList) {
    Choose({L"Label1"});
    DropDown(L"Color");
    TRowList& rows = OpenList()->List();
    Input.Type(L"clna");
    EXPECT_EQ(rows.Rows()[static_cast<std::size_t>(rows.GetChosen())].Text, L"clNavy");
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Find<TLabel>(L"Label1").GetColor(), clNavy);
}

TEST_F(InspectorInputTest, ALongListScrollsAndStaysOnTheScreen) {
    Choose({L"Label1"});
    DropDown(L"Color");
    const TRect place = OpenList()->GetBoundsRect();
    EXPECT_LE(place.Height(), TValueList::MaxRows * 20 + 2);
    EXPECT_LE(place.Bottom, ::GetSystemMetrics(SM_CYSCREEN));
    EXPECT_EQ(Document().History().Count(), 0u);
    Input.KeyPress(VK_END);
    TRowList& rows = OpenList()->List();
    EXPECT_EQ(rows.GetChosen(), rows.Count() - 1);
    const TPoint last = rows.ClientToScreen(rows.RowRect(rows.GetChosen()).TopLeft());
    EXPECT_LT(last.Y, place.Bottom);
}

TEST_F(InspectorInputTest, EscapeAndAClickElsewhereGiveTheListUp) {
    Choose({L"Label1"});
    DropDown(L"Align");
    Input.KeyPress(VK_DOWN);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(OpenList());
    DropDown(L"Align");
    Input.KeyPress(VK_DOWN);
    Input.ClickAt(Window->Surface().WindowHandle(), 4, 4);
    EXPECT_FALSE(OpenList());
    EXPECT_EQ(Document().History().Count(), 0u);
}

TEST_F(InspectorInputTest, ADoubleClickOnTheValueTurnsItToo) {
    Choose({L"Label1"});
    TRect line = Line(L"Enabled");
    Input.DoubleClickAt(Grid().WindowHandle(), Grid().ValueLeft() + 20, line.Top + 10);
    EXPECT_TRUE(TextHas("Enabled = False")) << "the editor was not there yet";
    line = Line(L"Enabled");
    Input.DoubleClickAt(Grid().WindowHandle(), Grid().ValueLeft() + 20, line.Top + 10);
    EXPECT_FALSE(TextHas("Enabled = False")) << "now it is";
}

TEST_F(InspectorInputTest, WhatIsCutOffIsItsHint) {
    const auto hintAt = [this](const wchar_t* path, int x) {
        THintInfo info;
        info.CursorPos = {x, Line(path).Top + 10};
        info.HintStr = L"?";
        Grid().Perform(CM_HINTSHOW, 0, reinterpret_cast<LPARAM>(&info));
        return info.HintStr;
    };
    Document().Selection().Clear();
    const int value = Grid().ValueLeft() + 20;
    EXPECT_EQ(hintAt(L"BorderIcons", value), L"[biSystemMenu,biMinimize,biMaximize]");
    EXPECT_EQ(hintAt(L"BorderIcons", 20), L"");
    EXPECT_EQ(hintAt(L"Align", value), L"");
}

TEST_F(InspectorInputTest, LinesAreLeftByEscape) {
    Choose({L"Memo1"});
    bool ran = false;
    InDialog(L"Zeilen", [&](DialogDriver& dialog) {
        dialog.Input.Type(L"weg");
        dialog.Input.KeyPress(VK_ESCAPE);
        ran = dialog.Form().GetModalResult() == mrCancel;
    });
    DoubleClickLine(L"Lines");
    EXPECT_TRUE(ran);
    EXPECT_EQ(Document().History().Count(), 0u);
}

TEST_F(InspectorInputTest, ElementsOfASetAreTurnedInTheirLines) {
    Choose({L"Label1"});
    Expand(L"Anchors");
    DoubleClickLine(L"Anchors.akRight");
    EXPECT_TRUE(TextHas("Anchors = [akLeft, akTop, akRight]")) << Document().Text();
    TypeValue(L"Anchors", L"[akTop]");
    EXPECT_TRUE(TextHas("Anchors = [akTop]"));
}

TEST_F(InspectorInputTest, ColorsAndCursorsHaveTheirNames) {
    Choose({L"Label1"});
    TypeValue(L"Color", L"clRed");
    EXPECT_EQ(Find<TLabel>(L"Label1").GetColor(), clRed);
    TakeValue(L"Color", 0);
    EXPECT_NE(Find<TLabel>(L"Label1").GetColor(), clRed);
    TakeValue(L"Cursor", 3);
    EXPECT_TRUE(TextHas("    Cursor = cr")) << Document().Text();
}

TEST_F(InspectorInputTest, AReferenceIsTakenFromTheComponentsThatFit) {
    Choose({L"Label1"});
    TakeValue(L"FocusControl", 2);
    EXPECT_TRUE(TextHas("FocusControl = Edit1")) << Document().Text();
}

TEST_F(InspectorInputTest, NestedPropertiesAreEditedBelowTheirLine) {
    Choose({L"Button1"});
    Expand(L"Font");
    TypeValue(L"Font.Size", L"17");
    EXPECT_EQ(Find<TButton>(L"Button1").GetFont().GetSize(), 17);
    Expand(L"Font.Style", 1);
    DoubleClickLine(L"Font.Style.fsBold");
    EXPECT_TRUE(TextHas("Font.Style = [fsBold]")) << Document().Text();
}

TEST_F(InspectorInputTest, LinesOfTextAreWrittenInAWindow) {
    Choose({L"Memo1"});
    bool ran = false;
    InDialog(L"Zeilen", [&](DialogDriver& dialog) {
        ran = true;
        dialog.Input.Chord({VK_CONTROL}, 'A');
        dialog.Input.Type(L"eins");
        dialog.Picture(L"lines");
        dialog.Press(L"OK");
    });
    DoubleClickLine(L"Lines");
    EXPECT_TRUE(ran);
    EXPECT_EQ(Find<TMemo>(L"Memo1").GetLines().GetText(), L"eins\r\n");
}

TEST_F(InspectorInputTest, SeveralComponentsTakeAValueTogether) {
    Choose({L"Button1", L"Button2"});
    TypeValue(L"Width", L"66");
    EXPECT_EQ(Find<TButton>(L"Button1").GetWidth(), 66);
    EXPECT_EQ(Find<TButton>(L"Button2").GetWidth(), 66);
    EXPECT_EQ(Document().History().Count(), 1u);
}

TEST_F(InspectorInputTest, AValueGoesBackToItsDefaultByTheMenu) {
    Choose({L"Button1"});
    const std::string before = Document().Text();
    TypeValue(L"Enabled", L"False");
    ASSERT_TRUE(TextHas("Enabled = False"));
    ResetLine(L"Enabled");
    EXPECT_EQ(Document().Text(), before);
    EXPECT_EQ(Document().History().Count(), 2u);
    ResetLine(L"Enabled");
    EXPECT_EQ(Document().History().Count(), 2u) << "there is nothing to reset";
}

TEST_F(InspectorInputTest, ChangedValuesAreDrawnBold) {
    const auto inkOf = [&](const wchar_t* path) {
        const TRect line = Line(path);
        Grid().Choose(L"");
        Grid().Repaint();
        const RECT value{Grid().ValueLeft() + 2, line.Top, line.Right, line.Bottom - 1};
        return test::ReadClient(Grid().WindowHandle()).Part(value).Count(0);
    };
    Choose({L"Button1"});
    const int plain = inkOf(L"Height");
    ASSERT_GT(plain, 0) << "25, as every new button";
    TypeValue(L"Height", L"52");
    EXPECT_GT(inkOf(L"Height"), plain) << "the same digits";
}

}  // namespace
}  // namespace designer
