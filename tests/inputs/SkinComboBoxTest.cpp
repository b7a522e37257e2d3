#include "inputs/UnitQV7SkinComboBox.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/inputs/InputsTest.h"

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

TEST_F(SkinComboBox, ChoosesTheNearestNumber) {
    TQV7SkinComboBox& box = Combo({L"10", L"20", L"30"});
    box.SetNearestIndexForValue(25, 0);
    EXPECT_EQ(box.GetItemIndex(), 1);
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
