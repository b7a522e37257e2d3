// Short ways through the designer by mouse and keys, and out of a text that went wrong.

#include "platform/vcl/controls/Control.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/ShortCuts.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/designer/DialogDriver.h"
#include "tests/support/PixelProbe.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

class DesignerWaysTest : public DesignerWindowTest {
protected:
    void SetUp() override {
        DesignerWindowTest::SetUp();
        Window->OpenFile(Dir.Write(L"form.dfm", SampleFile));
    }
    [[nodiscard]] TPoint CellOf(const wchar_t* className) {
        const TClassList& classes = Window->Strip().Classes();
        for (std::size_t i = 0; i < classes.size(); ++i)
            if (String(classes[i]->ClassName()) == className)
                return TPaletteStrip::CellOf(static_cast<int>(i)).TopLeft();
        return {};
    }
    TMenuItem& MenuEntry(const wchar_t* caption) {
        TMenuItem& bar = Window->MainMenu().GetItems();
        for (int i = 0; i < bar.GetCount(); ++i)
            for (int j = 0; j < bar[i]->GetCount(); ++j)
                if (SameCaption((*bar[i])[j]->GetCaption(), caption)) return *(*bar[i])[j];
        throw EInvalidOperation(L"The menu has no such entry");
    }
    void ShowText() {
        Input.KeyPress(VK_F12);
        ASSERT_TRUE(Window->ShowsText());
    }
};

TEST_F(DesignerWaysTest, TheFormHasTheFocusAtTheStart) {
    EXPECT_EQ(::GetFocus(), Window->Surface().WindowHandle());
    EXPECT_NE(Window->Status().find(L"MainForm  –  300 × 200"), String::npos) << ToUtf8(Window->Status());
}

TEST_F(DesignerWaysTest, ADoubleClickInThePalettePlacesInTheMiddle) {
    PressTool(L"Standard", L"");
    const TPoint cell = CellOf(L"TButton");
    Input.DoubleClickAt(Window->Strip().WindowHandle(), cell.X + 12, cell.Y + 12);
    const auto& made = dynamic_cast<const TButton&>(*Document().Root().FindComponent(L"Button1"));
    EXPECT_EQ(made.GetLeft(), (300 - made.GetWidth()) / 2);
    EXPECT_EQ(made.GetTop(), (200 - made.GetHeight()) / 2);
    EXPECT_EQ(Window->Strip().GetChosen(), nullptr);
    EXPECT_EQ(Window->Surface().GetTool(), nullptr);
    EXPECT_EQ(Document().History().Count(), 1u) << "one edit";
}

TEST_F(DesignerWaysTest, AClassPressedWithShiftPlacesSeveral) {
    PressTool(L"Standard", L"");
    const TPoint cell = CellOf(L"TButton");
    Input.KeyDown(VK_SHIFT);
    Input.ClickAt(Window->Strip().WindowHandle(), cell.X + 12, cell.Y + 12);
    Input.KeyUp(VK_SHIFT);
    Input.ClickAt(FormWindow(), 20, 80);
    Input.ClickAt(FormWindow(), 20, 140);
    EXPECT_TRUE(TextHas("object Button2: TButton")) << Document().Text();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Window->Strip().GetChosen(), nullptr);
    Input.ClickAt(FormWindow(), 160, 140);
    EXPECT_FALSE(TextHas("object Button3: TButton"));
}

TEST_F(DesignerWaysTest, KeysGoBetweenTheFormAndTheInspector) {
    Input.ClickAt(FormWindow(), 30, 25);
    Input.KeyPress(VK_RETURN);
    const HWND editor = ::GetFocus();
    EXPECT_EQ(::GetParent(editor), Window->Grid().WindowHandle());
    Input.KeyPress(VK_F11);
    EXPECT_EQ(::GetFocus(), Window->Surface().WindowHandle());
    Input.KeyPress(VK_F11);
    EXPECT_EQ(::GetFocus(), editor);
}

TEST_F(DesignerWaysTest, UndoingInTheInspectorIsAboutTheValueOnlyWhileItIsTyped) {
    Input.ClickAt(FormWindow(), 30, 25);
    const std::string before = Document().Text();
    TypeValue(L"Caption", L"Los");
    ASSERT_NE(Document().Text(), before);
    Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_EQ(Document().Text(), before);
    Input.Type(L"x");
    Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_EQ(Document().History().Position(), 0u) << "nothing was undone or done";
}

TEST_F(DesignerWaysTest, TheGridIsHiddenAndLeftByTheMenu) {
    const auto dots = [this] {
        ::UpdateWindow(FormWindow());
        const test::Pixels pixels = test::ReadClient(FormWindow()).Part({8, 120, 80, 192});
        return 72 * 72 - pixels.Count(pixels.At(1, 1));
    };
    EXPECT_EQ(dots(), 9 * 9);
    MenuEntry(L"Raster zeigen").Click();
    EXPECT_EQ(dots(), 0);
    MenuEntry(L"Raster zeigen").Click();
    Input.ClickAt(FormWindow(), 30, 25);
    MenuEntry(L"Am Raster ausrichten").Click();
    EXPECT_FALSE(MenuEntry(L"Am Raster ausrichten").GetChecked());
    Input.KeyPress(VK_RIGHT);
    EXPECT_TRUE(TextHas("Left = 17")) << Document().Text();
    MenuEntry(L"Plätze festhalten").Click();
    Input.KeyPress(VK_RIGHT);
    EXPECT_TRUE(TextHas("Left = 17"));
}

TEST_F(DesignerWaysTest, TheKeysAreListed) {
    bool ran = false;
    InDialog(L"Tasten", [&](DialogDriver& dialog) {
        ran = true;
        EXPECT_GT(dialog.Rows().size(), 10u);
        dialog.Picture(L"keys");
        dialog.Input.KeyPress(VK_ESCAPE);
    });
    Input.KeyPress(VK_F1);
    EXPECT_TRUE(ran);
}

TEST_F(DesignerWaysTest, AWrongTextCanBeGivenUp) {
    ShowText();
    Input.Type(L"?");
    EXPECT_FALSE(Window->Grid().GetEnabled()) << "there is no form to inspect";
    Input.KeyPress(VK_F12);
    EXPECT_TRUE(Window->ShowsText()) << "the answer was to go on";
    Answers.Yes = true;
    Input.KeyPress(VK_F12);
    EXPECT_FALSE(Window->ShowsText());
    EXPECT_TRUE(Window->Grid().GetEnabled());
    EXPECT_FALSE(Document().IsModified());
    EXPECT_EQ(Answers.Reasons.size(), 2u);
}

TEST_F(DesignerWaysTest, AWrongTextDoesNotKeepTheDesignerOpen) {
    ShowText();
    Input.Type(L"?");
    EXPECT_FALSE(Window->CloseQuery());
    Answers.Yes = true;
    EXPECT_TRUE(Window->CloseQuery());
    EXPECT_TRUE(Answers.Errors.empty());
}

TEST_F(DesignerWaysTest, CommandsTakeTheTypedTextFirst) {
    ShowText();
    String text = Window->TextMemo().GetText();
    text.replace(text.find(L"Fertig"), 6, L"Los");
    Window->TextMemo().SetText(text);
    Answers.Name = L"GoButton";
    Document().Selection().SetOnly(Document().Root().FindComponent(L"OkButton"));
    Input.KeyPress(VK_F2);
    EXPECT_TRUE(TextHas("object GoButton: TButton"));
    EXPECT_TRUE(TextHas("Caption = 'Los'")) << Document().Text();
}

TEST_F(DesignerWaysTest, SavingLeavesTheCaretInTheText) {
    ShowText();
    for (int i = 0; i < 4; ++i)
        Input.KeyPress(VK_DOWN);
    Input.Type(L"  Tag = 4");
    Input.KeyPress(VK_RETURN);
    const int caret = Window->TextMemo().GetCaretPos().Y;
    EXPECT_EQ(caret, 5);
    Input.Chord({VK_CONTROL}, 'S');
    EXPECT_NE(Dir.Read(L"form.dfm").find("Tag = 4"), std::string::npos);
    EXPECT_EQ(Window->TextMemo().GetCaretPos().Y, caret);
}

}  // namespace
}  // namespace designer
