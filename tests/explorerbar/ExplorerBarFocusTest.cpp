#include "platform/vcl/stdctrls/Button.h"
#include "tests/explorerbar/ExplorerBarFixture.h"

namespace qv7skin {
namespace {

using namespace probes;

/// A bar between two buttons, with groups of two links.
class ExplorerBarFocusTest : public ExplorerBarTest {
protected:
    void SetUp() override {
        ExplorerBarTest::SetUp();
        FBefore = Make<TButton>({230, 0, 300, 25});
        FAfter = Make<TButton>({230, 30, 300, 55});
        FBefore->SetTabOrder(0);
        Bar().SetTabOrder(1);
        FAfter->SetTabOrder(2);
        Fill(3, 2);
    }
    TQV7SkinExplorerBarFocus& Focus() { return Bar().GetFocus(); }
    void Enter() {
        FBefore->SetFocus();
        Input.KeyPress(VK_TAB);
    }
    void Back() { Input.Chord({VK_SHIFT}, VK_TAB); }
    /// "g0" for a header, "i0.1" for an item, "-" for none.
    std::string Place() {
        for (int g = 0; g < Bar().GetGroups().GetCount(); ++g) {
            if (Group(g).IsFocused()) return "g" + std::to_string(g);
            for (int i = 0; i < Group(g).GetItems().GetCount(); ++i)
                if (Item(g, i).IsFocused()) return "i" + std::to_string(g) + "." + std::to_string(i);
        }
        return "-";
    }
    std::string PlaceAfterTab() {
        Input.KeyPress(VK_TAB);
        return Place();
    }
    std::string PlaceAfterBack() {
        Back();
        return Place();
    }

    TButton* FBefore = nullptr;  // the form's
    TButton* FAfter = nullptr;
};

TEST_F(ExplorerBarFocusTest, TabGoesFromHeaderToItemsToTheNextHeaderAndOut) {
    Enter();
    EXPECT_EQ(Place(), "g0");
    for (const char* place : {"i0.0", "i0.1", "g1", "i1.0", "i1.1", "g2", "i2.0", "i2.1"})
        EXPECT_EQ(PlaceAfterTab(), place);
    EXPECT_FALSE(Focus().WantTabs());
    EXPECT_EQ(PlaceAfterTab(), "-");
    EXPECT_TRUE(FAfter->Focused());
}

TEST_F(ExplorerBarFocusTest, ShiftTabStartsAtTheEndAndGoesBack) {
    FAfter->SetFocus();
    Back();
    EXPECT_EQ(Place(), "i2.1");
    for (const char* place : {"i2.0", "g2", "i1.1", "i1.0", "g1", "i0.1", "i0.0", "g0"})
        EXPECT_EQ(PlaceAfterBack(), place);
    EXPECT_EQ(PlaceAfterBack(), "-");
    EXPECT_TRUE(FBefore->Focused());
}

TEST_F(ExplorerBarFocusTest, ClosedAndHiddenGroupsAndWhatCannotHaveItAreSkipped) {
    Group(0).SetVisible(false);
    Group(1).OpenClose();
    Item(2, 0).SetVisible(false);
    AddTo(2, new TQV7SkinExplorerItemStaticText(L"text"));
    AddTo(2, new TCheck(L"off", 0, L"", false, false, true));
    AddTo(2, new TQV7SkinExplorerItemCaptionValuePair(L"dead", L"v", L""));
    AddTo(2, new TQV7SkinExplorerItemCaptionValuePair(L"alive", true, L"v", L""));
    Enter();
    EXPECT_EQ(Place(), "g1");
    for (const char* place : {"g2", "i2.1", "i2.5"})
        EXPECT_EQ(PlaceAfterTab(), place);
    for (const char* place : {"i2.1", "g2", "g1"})
        EXPECT_EQ(PlaceAfterBack(), place);
}

TEST_F(ExplorerBarFocusTest, ReturnOpensAndClosesAGroup) {
    Enter();
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Group(0).GetState(), egsClosed);
    EXPECT_EQ(PlaceAfterTab(), "g1");
    Back();
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Group(0).GetState(), egsOpen);
}

TEST_F(ExplorerBarFocusTest, ReturnClicksALinkAndSpaceDoesNot) {
    Watch(Item(0, 0), "link");
    Enter();
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(Group(0).GetState(), egsOpen) << "nor a header";
    Input.KeyPress(VK_TAB);
    Input.KeyPress(VK_SPACE);
    EXPECT_TRUE(Log.empty());
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Log, (std::vector<std::string>{"click link"}));
}

TEST_F(ExplorerBarFocusTest, SpaceTogglesACheckBox) {
    Group(0).GetItems().Clear();
    auto& box = AddTo(0, new TCheck(L"check", 0, L"", false, true, true));
    Enter();
    Input.KeyPress(VK_TAB);
    ASSERT_TRUE(box.IsFocused());
    Input.KeyPress(VK_SPACE);
    EXPECT_TRUE(box.GetChecked());
    Input.KeyPress(VK_RETURN);
    EXPECT_FALSE(box.GetChecked());
}

TEST_F(ExplorerBarFocusTest, OtherKeysGoToTheFramework) {
    Enter();
    WORD seen = 0;
    Bar().OnKeyDown = [&](TObject*, WORD& key, TShiftState) { seen = key; };
    Input.KeyPress(VK_TAB);
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(seen, 0);
    Input.KeyPress('A');
    EXPECT_EQ(seen, 'A');
}

TEST_F(ExplorerBarFocusTest, TheFocusedPlaceComesIntoView) {
    Bar().GetGroups().Clear();
    Fill(3, 30);
    FAfter->SetFocus();
    Back();
    Back();
    EXPECT_EQ(Place(), "i2.28");
    EXPECT_EQ(ScrollPos() + 300, Item(2, 28).ClipRect().Bottom);
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
}

TEST_F(ExplorerBarFocusTest, AHeaderComesIntoViewWithItsWholeGroup) {
    Bar().GetGroups().Clear();
    Fill(3, 8);
    Enter();
    while (Place() != "g2")
        Input.KeyPress(VK_TAB);
    EXPECT_EQ(ScrollPos() + 300, Group(2).BodyRect().Bottom);
    while (Place() != "g0")
        Back();
    EXPECT_EQ(ScrollPos(), 0);
}

TEST_F(ExplorerBarFocusTest, WithoutAnotherPlaceTheFocusStays) {
    FAfter->SetFocus();
    Back();
    Focus().MoveFocus(true);
    EXPECT_EQ(Place(), "i2.1");
    Focus().ResetIndex(true);
    Focus().MoveFocus(false);
    EXPECT_EQ(Place(), "g0");
}

TEST_F(ExplorerBarFocusTest, KeysDoNothingWhileTheBarHasNotTheFocus) {
    Group(0).GetItems().Clear();
    auto& box = AddTo(0, new TCheck(L"check", 0, L"", false, true, true));
    Watch(box, "box");
    Focus().ResetIndex(true);
    Focus().DoReturnKeyPress();
    EXPECT_EQ(Group(0).GetState(), egsOpen);
    Focus().MoveFocus(true);
    ASSERT_EQ(Focus().FocusedItem(), &box);
    EXPECT_FALSE(box.IsFocused());
    Focus().DoReturnKeyPress();
    Focus().DoSpaceKeyPress();
    EXPECT_TRUE(Log.empty());
    EXPECT_FALSE(box.GetChecked());
}

TEST_F(ExplorerBarFocusTest, AReturnThatChangesNothingPaintsAllTheSame) {
    Enter();
    Input.KeyPress(VK_TAB);
    int paints = 0;
    const TFFPaintEvent painter = Box().OnFFPaint;
    Box().OnFFPaint = [&](TObject*, TBitmap*) { ++paints; };
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(paints, 1);
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(paints, 1) << "not for a key that does nothing";
    Box().OnFFPaint = painter;
}

TEST_F(ExplorerBarFocusTest, TheFocusIsShownOnlyWhileTheBarHasIt) {
    Enter();
    const auto focused = WholePicture();
    EXPECT_TRUE(ShowsRowsOf(*focused));
    FAfter->SetFocus();
    EXPECT_EQ(Place(), "-");
    EXPECT_TRUE(ShowsRowsOf(*WholePicture()));
    int differing = 0;
    const auto plain = WholePicture();
    for (int y = 0; y < 19; ++y)
        for (int x = 0; x < 218; ++x)
            differing += focused->GetCanvas().GetPixel(x, y) != plain->GetCanvas().GetPixel(x, y);
    EXPECT_GT(differing, 0);
}

TEST_F(ExplorerBarFocusTest, TheFrameIsWiderAndFurtherRight) {
    TBitmap bitmap(60, 30, pf24bit);
    bitmap.GetCanvas().GetBrush().SetColor(clBlue);
    bitmap.GetCanvas().FillRect({0, 0, 60, 30});
    bitmap.GetCanvas().GetBrush().SetColor(clLime);
    Focus().DrawFocusRect(bitmap.GetCanvas(), {10, 5, 40, 20}, clRed);
    EXPECT_EQ(bitmap.GetCanvas().GetPixel(25, 12), clBlue) << "only the frame is drawn";
    TRect found(60, 30, 0, 0);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 60; ++x) {
            if (bitmap.GetCanvas().GetPixel(x, y) == clBlue) continue;
            EXPECT_EQ(bitmap.GetCanvas().GetPixel(x, y), clRed);
            found = {std::min(found.Left, x), std::min(found.Top, y), std::max(found.Right, x + 1),
                     std::max(found.Bottom, y + 1)};
        }
    EXPECT_EQ(found, TRect(8, 5, 44, 20));
    Focus().DrawFocusRect(bitmap.GetCanvas(), {10, 5, 40, 20}, clDefaultFocus);
    int grey = 0;
    for (int x = 8; x < 44; ++x)
        grey += bitmap.GetCanvas().GetPixel(x, 5) == 0x00F0EAE7;
    EXPECT_GT(grey, 5);
}

TEST_F(ExplorerBarFocusTest, AFailedSearchIsNowhere) {
    EXPECT_EQ(Focus().FindNextVisible({2, false, 1}, false), (TFocusIndex{0, false, -1}));
    EXPECT_EQ(Focus().FindPreviousVisible({0, true, 0}, false), (TFocusIndex{0, false, -1}));
    EXPECT_FALSE(Focus().IsValidIndex({0, false, -1}));
    EXPECT_FALSE(Focus().IsValidIndex({3, true, 0}));
    EXPECT_TRUE(Focus().IsValidGroupIndex({2, true, 0}));
    EXPECT_TRUE(Focus().IsValidItemIndex({2, false, 1}));
    EXPECT_FALSE(Focus().IsValidItemIndex({2, false, 2}));
}

}  // namespace
}  // namespace qv7skin
