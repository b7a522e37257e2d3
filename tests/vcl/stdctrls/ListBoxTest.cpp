#include "platform/vcl/stdctrls/ListBox.h"

#include "platform/vcl/core/Exceptions.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class ListBoxTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Box = Make<TListBox>({10, 10, 130, 110});
    }
    void Fill(std::initializer_list<const wchar_t*> texts) {
        for (const wchar_t* text : texts)
            Box->GetItems().Add(text);
    }
    /// What the system's list shows.
    std::vector<std::wstring> Shown() const {
        std::vector<std::wstring> texts;
        const auto count = SendMessageW(Box->WindowHandle(), LB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            wchar_t text[50];
            SendMessageW(Box->WindowHandle(), LB_GETTEXT, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(text));
            texts.emplace_back(text);
        }
        return texts;
    }
    using Texts = std::vector<std::wstring>;
    TListBox* Box = nullptr;
};

TEST_F(ListBoxTest, TheWindowFollowsEveryChangeOfTheItems) {
    Fill({L"b", L"a", L"c"});
    EXPECT_EQ(Shown(), (Texts{L"b", L"a", L"c"}));
    Box->GetItems().Put(1, L"x");
    EXPECT_EQ(Shown(), (Texts{L"b", L"x", L"c"}));
    Box->GetItems().Delete(0);
    EXPECT_EQ(Shown(), (Texts{L"x", L"c"}));
    Box->GetItems().Insert(0, L"first");
    Box->GetItems().Exchange(0, 2);
    EXPECT_EQ(Shown(), (Texts{L"c", L"x", L"first"}));
    Box->GetItems().Move(2, 0);
    EXPECT_EQ(Shown(), (Texts{L"first", L"c", L"x"}));
    Box->SetSorted(true);
    EXPECT_EQ(Shown(), (Texts{L"c", L"first", L"x"}));
    Box->GetItems().Add(L"d");
    EXPECT_EQ(Shown(), (Texts{L"c", L"d", L"first", L"x"}));
    Box->Clear();
    EXPECT_EQ(Shown(), Texts());
}

TEST_F(ListBoxTest, ASortedListHoldsTheSameTextTwice) {
    Box->SetSorted(true);
    Fill({L"b", L"a", L"b"});
    EXPECT_EQ(Shown(), (Texts{L"a", L"b", L"b"}));
}

TEST_F(ListBoxTest, ItemsSelectionAndPlaceOutliveTheWindow) {
    for (int i = 0; i < 40; ++i)
        Box->GetItems().Add(IntToStr(i));
    Box->SetItemIndex(20);
    Box->SetTopIndex(18);
    Box->SetBorderStyle(bsNone);
    EXPECT_EQ(Shown().size(), 40U);
    EXPECT_EQ(Box->GetItemIndex(), 20);
    EXPECT_EQ(Box->GetTopIndex(), 18);
}

TEST_F(ListBoxTest, WorksWithoutAWindow) {
    TListBox box(nullptr);
    box.GetItems().Add(L"a");
    box.GetItems().Add(L"b");
    box.SetItemIndex(1);
    EXPECT_TRUE(box.GetSelected(1));
    EXPECT_FALSE(box.GetSelected(0));
    box.SetParent(&Form());
    EXPECT_EQ(SendMessageW(box.WindowHandle(), LB_GETCURSEL, 0, 0), 1);
}

TEST_F(ListBoxTest, AClickSelectsAndTells) {
    Fill({L"a", L"b", L"c"});
    int clicks = 0;
    int doubles = 0;
    Box->OnClick = [&](TObject*) { ++clicks; };
    Box->OnDblClick = [&](TObject*) { ++doubles; };
    const TRect second = Box->ItemRect(1);
    Input.ClickAt(Box->WindowHandle(), 5, second.Top + 2);
    EXPECT_EQ(Box->GetItemIndex(), 1);
    EXPECT_EQ(clicks, 1);
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Box->GetItemIndex(), 2);
    EXPECT_EQ(clicks, 2);
    Input.DoubleClickAt(Box->WindowHandle(), 5, second.Top + 2);
    EXPECT_EQ(doubles, 1);
}

TEST_F(ListBoxTest, PointsAndItemsBelongTogether) {
    Fill({L"a", L"b", L"c"});
    const TRect second = Box->ItemRect(1);
    EXPECT_EQ(second.Height(), Box->GetItemHeight());
    EXPECT_EQ(Box->ItemAtPos({second.Left, second.Top}), 1);
    EXPECT_EQ(Box->ItemAtPos({second.Left, second.Top - 1}), 0);
    EXPECT_EQ(Box->ItemAtPos({5, Box->GetClientHeight() - 1}), -1);
    EXPECT_EQ(Box->ItemAtPos({-1, 5}), -1);
    EXPECT_THROW((void)Box->ItemRect(3), EListError);
}

TEST_F(ListBoxTest, SeveralCanBeSelected) {
    Fill({L"a", L"b", L"c"});
    Box->SetMultiSelect(true);
    Box->SetSelected(0, true);
    Box->SetSelected(2, true);
    EXPECT_EQ(Box->GetSelCount(), 2);
    Box->SetBorderStyle(bsNone);
    EXPECT_TRUE(Box->GetSelected(0));
    EXPECT_FALSE(Box->GetSelected(1));
    EXPECT_TRUE(Box->GetSelected(2));
}

TEST_F(ListBoxTest, ObjectsStayWithTheirTexts) {
    TObject object;
    Box->SetSorted(true);
    Box->GetItems().AddObject(L"b", &object);
    Box->GetItems().Add(L"a");
    EXPECT_EQ(Box->GetItems().GetObject(1), &object);
}

}  // namespace
}  // namespace test
