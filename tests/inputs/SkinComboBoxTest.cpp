#include "inputs/UnitQV7SkinComboBox.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/inputs/InputsTest.h"
#include "tests/support/FreedMemory.h"
#include "tests/support/WindowProbe.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;

class SkinComboBox : public InputsTest {
protected:
    TQV7SkinComboBox& Frame() {
        if (!FFrame) FFrame = Make<TQV7SkinComboBox>(TRect::OfSize(10, 10, 120, 20));
        return *FFrame;
    }
    TQV7SkinComboBox& Combo(std::initializer_list<const wchar_t*> items = {}) {
        for (const wchar_t* item : items)
            Frame().GetItems().Add(item);
        Frame().CreateComboBox();
        return Frame();
    }

private:
    TQV7SkinComboBox* FFrame = nullptr;
};

TEST_F(SkinComboBox, KeepsItsPropertiesUntilThereIsAnInnerControl) {
    TQV7SkinComboBox& box = Frame();
    EXPECT_EQ(box.GetRounding(), 4);
    EXPECT_EQ(box.GetStyle(), csDropDown);
    EXPECT_EQ(box.GetItemIndex(), -1);
    EXPECT_FALSE(box.GetSorted());
    box.GetItems().Add(L"b");
    box.GetItems().Add(L"a");
    box.SetItemIndex(1);
    box.SetText(L"Text");
    box.SetStyle(csDropDownList);
    EXPECT_EQ(box.GetComboBox(), nullptr);
    EXPECT_EQ(box.GetText(), L"Text");
    EXPECT_THROW(box.SetDropDownCount(3), EInvalidOperation);
    box.CreateComboBox();
    ASSERT_NE(box.GetComboBox(), nullptr);
    EXPECT_EQ(box.GetStyle(), csDropDownList);
    EXPECT_EQ(box.GetItemIndex(), 1);
    EXPECT_EQ(box.GetText(), L"a");
    EXPECT_EQ(box.GetDropDownCount(), 14);
}

TEST_F(SkinComboBox, HasNoInnerControlAtDesignTime) {
    TForm designed(nullptr);
    designed.SetDesigning(true);
    auto* box = new TQV7SkinComboBox(&designed);
    box->SetParent(&designed);
    box->CreateComboBox();
    EXPECT_EQ(box->GetComboBox(), nullptr);
    box->SetText(L"x");
    box->SetSorted(true);
    box->SetItemIndex(3);
    EXPECT_EQ(box->GetText(), L"x");
    EXPECT_TRUE(box->GetSorted());
    EXPECT_EQ(box->GetItemIndex(), 3);
}

TEST_F(SkinComboBox, TheInnerControlStandsInTheFrame) {
    TQV7SkinComboBox& box = Combo();
    EXPECT_EQ(box.GetHeight(), 25);
    EXPECT_EQ(box.GetComboBox()->GetLeft(), 3);
    EXPECT_EQ(box.GetComboBox()->GetTop(), 3);
    EXPECT_EQ(box.GetComboBox()->GetWidth(), 114);
    box.SetStyle(csDropDownList);
    EXPECT_EQ(box.GetComboBox()->GetTop(), 2);
    box.SetStyle(csSimple);
    EXPECT_EQ(box.GetComboBox()->GetTop(), 3);
    box.SetWidth(200);
    EXPECT_EQ(box.GetComboBox()->GetWidth(), 194);
    TFlatComboBoxExt* inner = box.GetComboBox();
    box.CreateComboBox();
    EXPECT_EQ(box.GetComboBox(), inner);
}

TEST_F(SkinComboBox, TheInnerControlHasTheSettingsOfTheSkin) {
    TFlatComboBoxExt& inner = *Combo().GetComboBox();
    EXPECT_EQ(inner.GetOwner(), &Frame());
    EXPECT_EQ(inner.GetParent(), &Frame());
    EXPECT_EQ(inner.GetColor(), 0x00FFFFFFu);
    EXPECT_EQ(inner.GetColors(1), 0x00FFFFFFu);
    EXPECT_EQ(inner.GetColors(2), 0x00FFFFFFu);
    EXPECT_EQ(inner.GetAnchors(), (TAnchors{akLeft, akTop, akRight}));
    EXPECT_EQ(inner.GetButtonWidth(), 15);
    EXPECT_FALSE(inner.GetDrawButtonLine());
    EXPECT_FALSE(inner.GetParentBackground());
    EXPECT_FALSE(inner.GetParentDoubleBuffered());
    EXPECT_TRUE(inner.GetDoubleBuffered());
}

TEST_F(SkinComboBox, IsNeverLowerThanItsLeastHeight) {
    Frame().GetConstraints().SetMaxHeight(12);
    EXPECT_EQ(Frame().GetHeight(), 12);
    Combo();
    EXPECT_EQ(Frame().GetHeight(), 25);
    Frame().GetConstraints().SetMaxHeight(0);
    EXPECT_EQ(Frame().GetHeight(), 25);
    Frame().SetHeight(12);
    EXPECT_EQ(Frame().GetHeight(), 25);
    Frame().SetHeight(40);
    EXPECT_EQ(Frame().GetHeight(), 40);
}

TEST_F(SkinComboBox, TakesTheHeightOfItsInnerControlWithALargeFont) {
    Frame().GetFont().SetHeight(-40);
    Combo();
    EXPECT_GT(Frame().GetComboBox()->GetHeight(), 40);
    EXPECT_EQ(Frame().GetHeight(), Frame().GetComboBox()->GetHeight());
}

TEST_F(SkinComboBox, TheFocusGoesThroughTheFrame) {
    TQV7SkinComboBox& box = Frame();
    const test::WindowProbe frame(box.GetHandle());
    box.SetFocus();
    EXPECT_EQ(::GetFocus(), box.GetHandle());
    box.CreateComboBox();
    Make<TEdit>(TRect::OfSize(10, 100, 50, 21))->SetFocus();
    box.SetFocus();
    EXPECT_EQ(frame.Count(WM_SETFOCUS), 2);
    EXPECT_TRUE(box.GetComboBox()->Focused());
}

TEST_F(SkinComboBox, SelectsAllOfItsText) {
    Frame().SelectAll();
    TQV7SkinComboBox& box = Combo();
    box.SetText(L"Text");
    box.SetFocus();
    box.GetComboBox()->SetSelLength(0);
    box.SelectAll();
    EXPECT_EQ(box.GetComboBox()->GetSelLength(), 4);
    Input.Type(L"x");
    EXPECT_EQ(box.GetText(), L"x");
}

TEST_F(SkinComboBox, HandsOnWhatIsSetLater) {
    TQV7SkinComboBox& box = Combo({L"c", L"a"});
    TStringList items;
    for (const wchar_t* item : {L"z", L"y", L"x"})
        items.Add(item);
    box.SetItems(items);
    EXPECT_EQ(box.GetComboBox()->GetItems().GetCount(), 3);
    EXPECT_EQ(box.GetItems().Get(0), L"z");
    box.SetItemIndex(0);
    EXPECT_EQ(box.GetComboBox()->GetItemIndex(), 0);
    box.SetSorted(true);
    EXPECT_TRUE(box.GetComboBox()->GetSorted());
    EXPECT_TRUE(box.GetSorted());
    EXPECT_EQ(box.GetItems().Get(0), L"x");
    EXPECT_EQ(box.GetItemIndex(), 2);
    box.SetDropDownCount(3);
    EXPECT_EQ(box.GetComboBox()->GetDropDownCount(), 3);
    EXPECT_EQ(box.GetDropDownCount(), 3);
}

TEST_F(SkinComboBox, TheStoredOrderSortsTheInnerList) {
    Frame().SetSorted(true);
    Frame().SetItemIndex(0);
    EXPECT_TRUE(Frame().GetSorted());
    TQV7SkinComboBox& box = Combo({L"zwei", L"eins"});
    EXPECT_EQ(box.GetItems().Get(0), L"eins");
    EXPECT_EQ(box.GetItemIndex(), 1);
    EXPECT_EQ(box.GetText(), L"zwei");
}

TEST_F(SkinComboBox, ChoosesTheNearestNumber) {
    TQV7SkinComboBox& box = Combo({L"10", L"20", L"30"});
    box.SetNearestIndexForValue(25, 0);
    EXPECT_EQ(box.GetItemIndex(), 1);
    box.SetNearestIndexForValue(15, 2);
    EXPECT_EQ(box.GetItemIndex(), 0);
    box.SetNearestIndexForValue(5, 0);
    EXPECT_EQ(box.GetItemIndex(), 0);
    box.SetNearestIndexForValue(5, 2);
    EXPECT_EQ(box.GetItemIndex(), 2);
    box.SetNearestIndexForValue(20, 0);
    EXPECT_EQ(box.GetItemIndex(), 1);
    box.SetNearestIndexForValue(1000, 0);
    EXPECT_EQ(box.GetItemIndex(), 2);
}

TEST_F(SkinComboBox, ATextThatIsNoNumberCountsAsZero) {
    TQV7SkinComboBox& box = Combo({L"10", L"x", L"30"});
    box.SetNearestIndexForValue(5, 0);
    EXPECT_EQ(box.GetItemIndex(), 1);
    box.SetNearestIndexForValue(-5, 2);
    EXPECT_EQ(box.GetItemIndex(), 2);
}

TEST_F(SkinComboBox, AnEntryThatIsTheNumberGoesBeforeLaterOnesThatQualifyToo) {
    TQV7SkinComboBox& box = Combo({L"20", L"10", L"30", L" 20"});
    box.SetNearestIndexForValue(20, 2);
    EXPECT_EQ(box.GetItemIndex(), 0);
    box.SetNearestIndexForValue(29, 2);
    EXPECT_EQ(box.GetItemIndex(), 3);
}

TEST_F(SkinComboBox, ANumberThatNoIntegerHoldsCountsAsZero) {
    TQV7SkinComboBox& box = Combo({L"10", L"99999999999", L"-99999999999", L"2147483647"});
    box.SetNearestIndexForValue(5, 0);
    EXPECT_EQ(box.GetItemIndex(), 2);
    box.GetItems().Delete(2);
    box.SetNearestIndexForValue(5, 0);
    EXPECT_EQ(box.GetItemIndex(), 1);
    box.SetNearestIndexForValue(0x7FFFFFFF, 0);
    EXPECT_EQ(box.GetItemIndex(), 2);
}

TEST_F(SkinComboBox, WithoutEntriesTheDefaultIndexRemains) {
    Frame().SetNearestIndexForValue(5, -1);
    EXPECT_EQ(Frame().GetItemIndex(), -1);
}

TEST_F(SkinComboBox, ShowsANumberThatIsNoEntryAsText) {
    TQV7SkinComboBox& box = Combo({L"1", L"2.5", L"7"});
    box.SetValue(2.5);
    EXPECT_EQ(box.GetItemIndex(), 1);
    box.SetValue(7);
    EXPECT_EQ(box.GetItemIndex(), 2);
    box.SetValue(0.1);
    EXPECT_EQ(box.GetItemIndex(), -1);
    EXPECT_EQ(box.GetText(), L"0.1");
}

TEST_F(SkinComboBox, WritesNumbersAsTheFrameworkDoes) {
    TQV7SkinComboBox& box = Combo();
    const std::pair<double, const wchar_t*> numbers[] = {
        {2.5, L"2.5"},       {-3, L"-3"},         {1e14, L"100000000000000"}, {1e15, L"1E15"},
        {1.5e20, L"1.5E20"}, {0.0001, L"0.0001"}, {0.00001, L"1E-5"},         {1.0 / 3, L"0.333333333333333"},
    };
    for (const auto& [value, text] : numbers) {
        box.SetValue(value);
        EXPECT_EQ(box.GetText(), text);
        EXPECT_EQ(box.GetItemIndex(), -1);
    }
    box.GetItems().Add(L"1E15");
    box.SetValue(1e15);
    EXPECT_EQ(box.GetItemIndex(), 0);
}

TEST_F(SkinComboBox, TellsInItsOwnName) {
    TQV7SkinComboBox& box = Combo({L"eins", L"zwei"});
    std::vector<String> told;
    const auto tell = [&](const wchar_t* what) {
        return [&told, &box, what](TObject* sender) {
            EXPECT_EQ(sender, &box);
            told.emplace_back(what);
        };
    };
    box.OnChange = tell(L"change");
    box.OnClick = tell(L"click");
    box.OnKeyPress = [&](TObject* sender, wchar_t& key) {
        EXPECT_EQ(sender, &box);
        if (key == L'a') key = L'b';
    };
    box.SetFocus();
    EXPECT_TRUE(box.GetComboBox()->Focused());
    Input.Type(L"a");
    EXPECT_EQ(box.GetText(), L"b");
    EXPECT_EQ(told, std::vector<String>{L"change"});
    told.clear();
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(told, (std::vector<String>{L"click", L"change"}));
    EXPECT_EQ(box.GetText(), L"eins");
}

TEST_F(SkinComboBox, DisablingTurnsTextAndArrowLight) {
    TQV7SkinComboBox& box = Combo();
    const auto arrow = [&](int dx, int dy) {
        const test::Pixels shown = Shown(*box.GetComboBox());
        // One pixel more than the button at both sides, which is 15 wide.
        return shown.At(shown.Width() - 16 + 17 / 2 - 5 + dx, shown.Height() / 2 + dy);
    };
    EXPECT_EQ(box.GetComboBox()->GetFont().GetColor(), 0x00000000u);
    EXPECT_EQ(arrow(3, -1), 0x00000000u);
    EXPECT_EQ(arrow(7, -1), 0x00000000u);
    EXPECT_EQ(arrow(5, 1), 0x00000000u);
    box.SetEnabled(false);
    EXPECT_FALSE(box.GetComboBox()->GetEnabled());
    EXPECT_EQ(box.GetComboBox()->GetFont().GetColor(), 0x00F0EAE7u);
    EXPECT_EQ(arrow(3, -1), 0x00808080u);
    EXPECT_EQ(arrow(5, 1), 0x00808080u);
    box.SetEnabled(true);
    EXPECT_EQ(box.GetComboBox()->GetFont().GetColor(), 0x00000000u);
    EXPECT_EQ(arrow(5, 1), 0x00000000u);
}

TEST_F(SkinComboBox, TheTextOfADisabledListIsLight) {
    Frame().SetStyle(csDropDownList);
    Frame().SetItemIndex(0);
    Frame().SetEnabled(false);
    TQV7SkinComboBox& box = Combo({L"WWWWW"});
    EXPECT_FALSE(box.GetComboBox()->GetEnabled());
    EXPECT_EQ(box.GetComboBox()->GetFont().GetColor(), 0x00F0EAE7u);
    const auto text = [&] { return Shown(*box.GetComboBox()).Part({0, 0, 90, 25}); };
    EXPECT_EQ(text().Count(0), 0);
    EXPECT_GT(text().Count(0x00F0EAE7), 20);
    box.SetEnabled(true);
    EXPECT_GT(text().Count(0), 20);
    EXPECT_EQ(text().Count(0x00F0EAE7), 0);
}

/// Where the ink of the text begins in the frame.
int TextLeft(const test::Pixels& shown) {
    const RECT ink = shown.Part({2, 2, 90, 23}).Bounds([](COLORREF color) { return color == 0; });
    return 2 + static_cast<int>(ink.left);
}

TEST_F(SkinComboBox, TheTextStandsInOnePlaceInAllStyles) {
    TQV7SkinComboBox& box = Combo({L"EEE"});
    box.SetItemIndex(0);
    const int withEditor = TextLeft(Shown(box));
    box.SetStyle(csDropDownList);
    EXPECT_EQ(TextLeft(Shown(box)), withEditor);
    box.SetStyle(csOwnerDrawFixed);
    EXPECT_EQ(TextLeft(Shown(box)), withEditor);
}

TEST_F(SkinComboBox, MayBeFreedByEveryEventOfTheInnerControl) {
    const test::FreedMemory freed;
    struct Occasion {
        const char* Name;
        TNotifyEvent TCustomComboBox::*Event;
        bool Opens;
    };
    const Occasion occasions[] = {{"OnDropDown", &TCustomComboBox::OnDropDown, true},
                                  {"OnCloseUp", &TCustomComboBox::OnCloseUp, true},
                                  {"OnSelect", &TCustomComboBox::OnSelect, false}};
    for (const Occasion& occasion : occasions) {
        auto* box = Make<TQV7SkinComboBox>(TRect::OfSize(10, 40, 120, 25));
        box->GetItems().Add(L"eins");
        box->CreateComboBox();
        box->SetFocus();
        box->GetComboBox()->*occasion.Event = [&box](TObject*) { delete std::exchange(box, nullptr); };
        if (occasion.Opens) {
            Input.KeyPress(VK_F4);
            if (box) Input.KeyPress(VK_ESCAPE);
        } else {
            Input.KeyPress(VK_DOWN);
        }
        EXPECT_EQ(box, nullptr) << occasion.Name;
    }
    EXPECT_EQ(test::FreedMemory::WrittenBlocks(), 0);
}

TEST_F(SkinComboBox, TheArrowPointsUpWhileTheListIsOpen) {
    TQV7SkinComboBox& box = Combo({L"eins"});
    box.SetFocus();
    box.GetComboBox()->SetDroppedDown(true);
    const test::Pixels shown = Shown(*box.GetComboBox());
    const int x = shown.Width() - 16 + 17 / 2 - 5;
    EXPECT_EQ(shown.At(x + 5, shown.Height() / 2 - 1), 0x00000000u);
    EXPECT_EQ(shown.At(x + 3, shown.Height() / 2 + 1), 0x00000000u);
    EXPECT_EQ(shown.At(x + 3, shown.Height() / 2 - 1), 0x00FFFFFFu);
    box.GetComboBox()->SetDroppedDown(false);
}

TEST_F(SkinComboBox, ALineMaySeparateTheButton) {
    TFlatComboBoxExt& inner = *Combo().GetComboBox();
    const auto lineLength = [&] {
        const test::Pixels shown = Shown(inner);
        const int x = shown.Width() - 15;
        int length = 0;
        for (int y = 0; y < shown.Height(); ++y)
            if (shown.At(x, y) == 0x00F0EAE7) ++length;
        return length;
    };
    EXPECT_EQ(lineLength(), 0);
    inner.SetDrawButtonLine(true);
    EXPECT_EQ(lineLength(), inner.GetClientHeight() - 1);
    inner.SetColors(TFlatComboBox::BorderColorIndex, 0x00112233);
    EXPECT_EQ(lineLength(), 0);
}

TEST_F(SkinComboBox, AThousandRoundsOfOpeningLeaveNothingBehind) {
    TQV7SkinComboBox& box = Combo({L"eins"});
    box.SetFocus();
    for (int round = 0; round < 1000; ++round) {
        box.GetComboBox()->SetDroppedDown(true);
        box.GetComboBox()->SetDroppedDown(false);
    }
    EXPECT_FALSE(box.GetComboBox()->GetDroppedDown());
}

}  // namespace
