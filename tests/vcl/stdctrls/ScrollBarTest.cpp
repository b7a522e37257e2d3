#include "platform/vcl/stdctrls/ScrollBar.h"

#include <commctrl.h>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/TrackBar.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class ScrollBarTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Bar = Make<TScrollBar>({10, 10, 210, 27});
        Bar->OnChange = [this](TObject*) { ++Changes; };
    }
    void Scroll(WORD code) {
        Form().Perform(WM_HSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(Bar->WindowHandle()));
    }
    TScrollBar* Bar = nullptr;
    int Changes = 0;
};

TEST_F(ScrollBarTest, ThePositionStaysWithinTheLimits) {
    Bar->SetPosition(200);
    EXPECT_EQ(Bar->GetPosition(), 100);
    Bar->SetParams(50, 60, 80);
    EXPECT_EQ(Bar->GetPosition(), 60);
    Bar->SetPageSize(11);
    Bar->SetPosition(80);
    EXPECT_EQ(Bar->GetPosition(), 70);
    EXPECT_THROW(Bar->SetMax(59), EInvalidOperation);
    EXPECT_EQ(Bar->GetMax(), 80);
}

TEST_F(ScrollBarTest, TheUsersStepsHaveTheirSizes) {
    Bar->SetSmallChange(3);
    Bar->SetLargeChange(20);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(Bar->GetPosition(), 3);
    Scroll(SB_PAGEDOWN);
    EXPECT_EQ(Bar->GetPosition(), 23);
    Scroll(SB_PAGEUP);
    Scroll(SB_LINEUP);
    EXPECT_EQ(Bar->GetPosition(), 0);
    Scroll(SB_BOTTOM);
    EXPECT_EQ(Bar->GetPosition(), 100);
    EXPECT_EQ(Changes, 5);
}

TEST_F(ScrollBarTest, TheHandlerMayChangeWhereItGoes) {
    TScrollCode seen = scEndScroll;
    Bar->OnScroll = [&](TObject*, TScrollCode code, int& position) {
        seen = code;
        position = 42;
    };
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(seen, scLineDown);
    EXPECT_EQ(Bar->GetPosition(), 42);
}

TEST_F(ScrollBarTest, TheMouseWorksTheArrows) {
    // A loop of the system runs between press and release.
    FromOtherThread([&] { Input.ClickAt(Bar->WindowHandle(), Bar->GetWidth() - 5, 8); });
    EXPECT_EQ(Bar->GetPosition(), 1);
}

TEST_F(ScrollBarTest, TurningSwapsTheSides) {
    Bar->SetKind(sbVertical);
    EXPECT_EQ(Bar->GetWidth(), 17);
    EXPECT_EQ(Bar->GetHeight(), 200);
}

class TrackBarTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Bar = Make<TTrackBar>({10, 10, 210, 50});
        Bar->OnChange = [this](TObject*) { ++Changes; };
    }
    LRESULT Shown() const { return SendMessageW(Bar->WindowHandle(), TBM_GETPOS, 0, 0); }
    TTrackBar* Bar = nullptr;
    int Changes = 0;
};

TEST_F(TrackBarTest, ShowsItsPositionAndTellsChanges) {
    Bar->SetPosition(4);
    EXPECT_EQ(Shown(), 4);
    EXPECT_EQ(Changes, 1);
    Bar->SetMax(3);
    EXPECT_EQ(Bar->GetPosition(), 3);
    EXPECT_EQ(Changes, 2);
    EXPECT_THROW(Bar->SetMin(4), EInvalidOperation);
}

TEST_F(TrackBarTest, KeysMoveIt) {
    Bar->SetPageSize(5);
    Bar->SetFocus();
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(Bar->GetPosition(), 1);
    Input.KeyPress(VK_NEXT);
    EXPECT_EQ(Bar->GetPosition(), 6);
    EXPECT_EQ(Changes, 2);
}

TEST_F(TrackBarTest, ANewWindowKeepsAllValues) {
    Bar->SetParams(7, 5, 50);
    Bar->SetOrientation(trVertical);
    EXPECT_EQ(Shown(), 7);
    EXPECT_EQ(SendMessageW(Bar->WindowHandle(), TBM_GETRANGEMAX, 0, 0), 50);
    EXPECT_EQ(Bar->GetHeight(), 200);
}

}  // namespace
}  // namespace test
