#include "platform/vcl/forms/Screen.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class ScreenTest : public FormTest {
protected:
    static HCURSOR NewCursor() {
        const BYTE bits[128] = {};
        return CreateCursor(nullptr, 0, 0, 32, 32, bits, bits);
    }
};

TEST_F(ScreenTest, KnowsItsMeasures) {
    EXPECT_EQ(Screen().GetWidth(), GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(Screen().GetHeight(), GetSystemMetrics(SM_CYSCREEN));
    EXPECT_GE(Screen().GetWidth(), Screen().GetWorkAreaRect().Width());
    EXPECT_TRUE(Screen().GetDesktopRect().Contains({0, 0}));
    EXPECT_EQ(Screen().GetWorkAreaRect({10, 10, 20, 20}), Screen().GetWorkAreaRect());
    EXPECT_GE(Screen().GetPixelsPerInch(), 72);
}

TEST_F(ScreenTest, ListsTheFontsOnceAndSorted) {
    const TStrings& fonts = Screen().GetFonts();
    EXPECT_GE(fonts.IndexOf(L"Tahoma"), 0);
    for (int i = 1; i < fonts.GetCount(); ++i)
        EXPECT_LT(CompareText(fonts.Get(i - 1), fonts.Get(i)), 0);
    TakeSnapshot();
}

TEST_F(ScreenTest, ListsTheFormsOfTheProgram) {
    const int before = Screen().GetFormCount();
    TForm form(nullptr);
    EXPECT_EQ(Screen().GetFormCount(), before + 1);
    EXPECT_TRUE(Screen().HasForm(&form));
    EXPECT_THROW((void)Screen().GetForm(before + 1), EListError);
}

TEST_F(ScreenTest, CursorsHaveNumbersOfTheProgramsOwn) {
    EXPECT_EQ(Screen().GetCursorHandle(crHandPoint), LoadCursorW(nullptr, IDC_HAND));
    EXPECT_EQ(Screen().GetCursorHandle(crNone), nullptr);
    EXPECT_EQ(Screen().GetCursorHandle(4711), LoadCursorW(nullptr, IDC_ARROW));
    const HCURSOR own = NewCursor();
    Screen().SetCursorHandle(4711, own);
    EXPECT_EQ(Screen().GetCursorHandle(4711), own);
    Form().SetCursor(4711);
    Input.MoveTo(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(GetCursor(), own);
    Screen().SetCursorHandle(4711, NewCursor());
    EXPECT_NE(Screen().GetCursorHandle(4711), own);
    Screen().SetCursorHandle(4711, nullptr);
    EXPECT_EQ(Screen().GetCursorHandle(4711), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(ScreenTest, TheScreensCursorOverridesAllOthersAtOnce) {
    Form().SetCursor(crCross);
    Input.MoveTo(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_CROSS));
    Screen().SetCursor(crHourGlass);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    Input.MoveTo(Form().WindowHandle(), 60, 60);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    Screen().SetCursor(crDefault);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_CROSS));
}

}  // namespace
}  // namespace test
