#include "platform/vcl/stdctrls/MonthCalendar.h"

#include <commctrl.h>

#include "tests/support/CalendarFonts.h"
#include "tests/support/FormTest.h"

namespace {

using namespace vcl;
using test::PumpAll;

class MonthCalendar : public test::FormTest {
protected:
    TMonthCalendar& Calendar() {
        if (!FCalendar) {
            FCalendar = Make<TMonthCalendar>(TRect::OfSize(10, 10, 200, 170));
            PumpAll();
        }
        return *FCalendar;
    }
    TDate Shown() {
        SYSTEMTIME time{};
        ::SendMessageW(Calendar().GetHandle(), MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&time));
        return EncodeDate(time.wYear, time.wMonth, time.wDay);
    }

private:
    test::CalendarFonts FFonts;
    TMonthCalendar* FCalendar = nullptr;
};

TEST_F(MonthCalendar, BeginsWithToday) {
    EXPECT_EQ(Calendar().GetDate(), Today());
}

TEST_F(MonthCalendar, ShowsTheDateThatIsSetAndKeepsItInANewWindow) {
    Calendar().SetDate(EncodeDate(2014, 2, 3) + 0.5);
    EXPECT_EQ(Calendar().GetDate(), EncodeDate(2014, 2, 3));
    EXPECT_EQ(Shown(), EncodeDate(2014, 2, 3));
    Calendar().RecreateWnd();
    EXPECT_EQ(Shown(), EncodeDate(2014, 2, 3));
    Calendar().SetDate(EncodeDate(1000, 1, 1));
    EXPECT_EQ(Calendar().GetDate(), EncodeDate(1000, 1, 1));
    EXPECT_EQ(Shown(), EncodeDate(1752, 9, 14));
}

TEST_F(MonthCalendar, GivesTheWindowItsColours) {
    TMonthCalColors& colors = Calendar().GetCalColors();
    colors.SetTitleBackColor(0x00555555);
    colors.SetTrailingTextColor(0x00F0EAE7);
    Calendar().RecreateWnd();
    const auto colorOf = [&](WPARAM part) {
        return static_cast<TColor>(::SendMessageW(Calendar().GetHandle(), MCM_GETCOLOR, part, 0));
    };
    EXPECT_EQ(colorOf(MCSC_TITLEBK), 0x00555555u);
    EXPECT_EQ(colorOf(MCSC_TRAILINGTEXT), 0x00F0EAE7u);
    EXPECT_EQ(colorOf(MCSC_MONTHBK), 0x00FFFFFFu);
}

TEST_F(MonthCalendar, KeysChooseAnotherDay) {
    Calendar().SetDate(EncodeDate(2024, 1, 31));
    int clicks = 0;
    Calendar().OnClick = [&](TObject*) { ++clicks; };
    Calendar().SetFocus();
    const auto after = [&](WORD key) {
        Input.KeyPress(key);
        EXPECT_EQ(Shown(), Calendar().GetDate());
        return Calendar().GetDate();
    };
    EXPECT_EQ(after(VK_NEXT), EncodeDate(2024, 2, 29));
    EXPECT_EQ(after(VK_RIGHT), EncodeDate(2024, 3, 1));
    EXPECT_EQ(after(VK_LEFT), EncodeDate(2024, 2, 29));
    EXPECT_EQ(after(VK_UP), EncodeDate(2024, 2, 22));
    EXPECT_EQ(after(VK_DOWN), EncodeDate(2024, 2, 29));
    EXPECT_EQ(after(VK_HOME), EncodeDate(2024, 2, 1));
    EXPECT_EQ(after(VK_END), EncodeDate(2024, 2, 29));
    EXPECT_EQ(after(VK_PRIOR), EncodeDate(2024, 1, 29));
    EXPECT_EQ(clicks, 8);
}

}  // namespace
