#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/inputs/InputsTest.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;

class SkinTreeComboBox : public InputsTest {
protected:
    TQV7SkinTreeComboBox& Frame() {
        if (!FFrame) FFrame = Make<TQV7SkinTreeComboBox>(TRect::OfSize(10, 10, 120, 20));
        return *FFrame;
    }
    TOwnAdvTreeComboBoxExCustomButtonPaint& Inner() { return *Frame().GetComboBox(); }

private:
    TQV7SkinTreeComboBox* FFrame = nullptr;
};

TEST_F(SkinTreeComboBox, TheInnerControlIsThereAtOnce) {
    auto* frame = new TQV7SkinTreeComboBox(nullptr);
    EXPECT_NE(frame->GetComboBox(), nullptr);
    frame->GetTreeItems().Add(nullptr, L"Knoten");
    EXPECT_EQ(frame->GetItems().GetCount(), 1);
    delete frame;
}

TEST_F(SkinTreeComboBox, TheInnerControlStandsInTheFrame) {
    EXPECT_EQ(Inner().GetLeft(), 2);
    EXPECT_EQ(Inner().GetTop(), 2);
    EXPECT_EQ(Inner().GetWidth(), 118);
    EXPECT_EQ(Frame().GetHeight(), 25);
    EXPECT_EQ(Inner().GetColor(), 0x00FFFFFFu);
    EXPECT_EQ(Inner().GetColors(1), 0x00FFFFFFu);
    EXPECT_EQ(Inner().GetColors(3), 0x00FFFFFFu);
    EXPECT_EQ(Inner().GetFont().GetName(), L"Tahoma");
    EXPECT_EQ(Inner().GetFont().GetSize(), 8);
    Frame().SetWidth(200);
    EXPECT_EQ(Inner().GetWidth(), 198);
    const auto* inner = &Inner();
    Frame().CreateComboBox();
    EXPECT_EQ(&Inner(), inner);
}

TEST_F(SkinTreeComboBox, HasNoInnerControlAtDesignTime) {
    TForm designed(nullptr);
    designed.SetDesigning(true);
    auto* frame = new TQV7SkinTreeComboBox(&designed);
    frame->SetParent(&designed);
    frame->CreateComboBox();
    EXPECT_EQ(frame->GetComboBox(), nullptr);
    frame->SetText(L"x");
    frame->SetStyle(csDropDownList);
    frame->SetSorted(true);
    frame->SetItemIndex(3);
    frame->GetItems().Add(L"\ty");
    EXPECT_EQ(frame->GetText(), L"x");
    EXPECT_EQ(frame->GetStyle(), csDropDownList);
    EXPECT_TRUE(frame->GetSorted());
    EXPECT_EQ(frame->GetItemIndex(), 3);
    EXPECT_EQ(frame->GetItems().Get(0), L"\ty");
    EXPECT_EQ(frame->GetSelected(), nullptr);
    frame->SetNewText(L"z");
    frame->SelectAll();
    EXPECT_EQ(frame->GetText(), L"x");
    EXPECT_THROW((void)frame->GetTreeItems(), EInvalidOperation);
    EXPECT_THROW((void)frame->GetDropDownCount(), EInvalidOperation);
}

TEST_F(SkinTreeComboBox, TellsInItsOwnName) {
    Frame().GetTreeItems().Add(nullptr, L"eins");
    std::vector<String> told;
    const auto tell = [&](const wchar_t* what) {
        return [&told, this, what](TObject* sender) {
            EXPECT_EQ(sender, &Frame());
            told.emplace_back(what);
        };
    };
    Frame().OnChange = tell(L"change");
    Frame().OnClick = tell(L"click");
    Frame().OnKeyPress = [&](TObject* sender, wchar_t& key) {
        EXPECT_EQ(sender, &Frame());
        if (key == L'a') key = L'b';
    };
    Frame().SetFocus();
    EXPECT_TRUE(Inner().Focused());
    Input.Type(L"a");
    EXPECT_EQ(Frame().GetText(), L"b");
    EXPECT_EQ(told, std::vector<String>{L"change"});
    told.clear();
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(told, (std::vector<String>{L"click", L"change"}));
    EXPECT_EQ(Frame().GetSelected()->GetText(), L"eins");
}

TEST_F(SkinTreeComboBox, TellsOfExpandingAndOfTheEnd) {
    TTreeNode* node = Frame().GetTreeItems().Add(nullptr, L"eins");
    Frame().GetTreeItems().AddChild(node, L"zwei");
    std::vector<String> told;
    Frame().OnTreeExpanding = [&](TObject* sender, TTreeNode* asked, bool& allowed) {
        EXPECT_EQ(sender, &Inner());
        EXPECT_EQ(asked, node);
        told.emplace_back(L"expand");
        allowed = told.size() > 1;
    };
    Frame().OnDropUp = [&](TObject* sender, bool cancelled) {
        EXPECT_EQ(sender, &Inner());
        told.emplace_back(cancelled ? L"cancelled" : L"taken");
    };
    Frame().SetFocus();
    Input.KeyPress(VK_F4);
    Input.KeyPress(VK_HOME);
    Input.KeyPress(VK_RIGHT);
    EXPECT_FALSE(node->GetExpanded());
    Input.KeyPress(VK_RIGHT);
    EXPECT_TRUE(node->GetExpanded());
    Input.KeyPress(VK_ESCAPE);
    Input.KeyPress(VK_F4);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(told, (std::vector<String>{L"expand", L"expand", L"cancelled", L"taken"}));
}

TEST_F(SkinTreeComboBox, SetNewTextChoosesTheNode) {
    TTreeNode* node = Frame().GetTreeItems().Add(nullptr, L"eins");
    Frame().SetNewText(L"eins");
    EXPECT_EQ(Frame().GetSelected(), node);
    EXPECT_EQ(Frame().GetText(), L"eins");
    Frame().SetNewText(L"zwei");
    EXPECT_EQ(Frame().GetSelected(), nullptr);
    EXPECT_EQ(Frame().GetText(), L"zwei");
}

/// The button is 17 wide and stands at the right edge of the inner control.
TEST_F(SkinTreeComboBox, DrawsTheSkinsButton) {
    const auto arrow = [&](int dx, int dy) {
        const test::Pixels shown = Shown(Inner());
        return shown.At(shown.Width() - 18 + 19 / 2 - 5 + dx, shown.Height() / 2 + dy);
    };
    // The frame lies over the first and the last row.
    const auto lineLength = [&] {
        const test::Pixels shown = Shown(Inner());
        int length = 0;
        for (int y = 1; y < shown.Height() - 1; ++y)
            if (shown.At(shown.Width() - 17, y) == 0x00F0EAE7) ++length;
        return length;
    };
    EXPECT_EQ(lineLength(), Inner().GetClientHeight() - 2);
    EXPECT_EQ(arrow(3, -1), 0x00000000u);
    EXPECT_EQ(arrow(7, -1), 0x00000000u);
    EXPECT_EQ(arrow(5, 1), 0x00000000u);
    Inner().SetColors(1, 0x00FEFEFE);
    EXPECT_EQ(lineLength(), 0);
    Inner().SetColors(1, 0x00FFFFFF);
    Inner().SetDroppedDown(true);
    EXPECT_EQ(arrow(5, -1), 0x00000000u);
    EXPECT_EQ(arrow(3, 1), 0x00000000u);
    EXPECT_EQ(arrow(3, -1), 0x00FFFFFFu);
    Inner().SetDroppedDown(false);
    Frame().SetEnabled(false);
    EXPECT_EQ(Inner().GetFont().GetColor(), 0x00F0EAE7u);
    EXPECT_EQ(arrow(3, -1), 0x00808080u);
    EXPECT_EQ(arrow(5, 1), 0x00808080u);
    Frame().SetEnabled(true);
    EXPECT_EQ(Inner().GetFont().GetColor(), 0x00000000u);
    EXPECT_EQ(arrow(5, 1), 0x00000000u);
}

TEST_F(SkinTreeComboBox, SelectsAllOfItsText) {
    Frame().SetText(L"Text");
    Frame().SetFocus();
    Frame().SelectAll();
    Input.Type(L"x");
    EXPECT_EQ(Frame().GetText(), L"x");
}

TEST_F(SkinTreeComboBox, HandsOnWhatIsSet) {
    EXPECT_TRUE(Frame().GetParentFont());
    EXPECT_EQ(Inner().GetOwner(), nullptr);
    EXPECT_EQ(Inner().GetAnchors(), (TAnchors{akLeft, akTop, akRight}));
    TStringList items;
    for (const wchar_t* item : {L"b", L"\tc", L"a"})
        items.Add(item);
    Frame().SetItems(items);
    EXPECT_EQ(Inner().GetItems().GetCount(), 3);
    Frame().SetItemIndex(1);
    EXPECT_EQ(Inner().GetItemIndex(), 1);
    EXPECT_EQ(Frame().GetItemIndex(), 1);
    EXPECT_EQ(Frame().GetText(), L"c");
    Frame().SetSorted(true);
    EXPECT_TRUE(Inner().GetSorted());
    EXPECT_EQ(Frame().GetItems().Get(0), L"a");
    Frame().SetStyle(csDropDownList);
    EXPECT_EQ(Inner().GetStyle(), csDropDownList);
    EXPECT_EQ(Frame().GetStyle(), csDropDownList);
    Frame().SetDropDownCount(5);
    EXPECT_EQ(Inner().GetDropDownCount(), 5);
    EXPECT_EQ(Frame().GetDropDownCount(), 5);
    EXPECT_EQ(&Frame().GetTreeItems(), &Inner().GetTreeItems());
}

TEST_F(SkinTreeComboBox, WhatWasSetBeforeGoesToTheInnerControl) {
    TQV7SkinTreeComboBox frame(nullptr);
    frame.SetEnabled(false);
    frame.GetFont().SetStyle({fsBold});
    EXPECT_FALSE(frame.GetComboBox()->GetEnabled());
    EXPECT_EQ(frame.GetComboBox()->GetFont().GetColor(), 0x00F0EAE7u);
    EXPECT_EQ(frame.GetComboBox()->GetFont().GetStyle(), TFontStyles{fsBold});
}

TEST_F(SkinTreeComboBox, TakesTheHeightOfItsInnerControl) {
    auto* frame = Make<TQV7SkinTreeComboBox>(TRect::OfSize(10, 50, 120, 60));
    const int inner = frame->GetComboBox()->GetHeight();
    EXPECT_EQ(frame->GetHeight(), std::max(25, inner + 1));
}

TEST_F(SkinTreeComboBox, MayGoWithItsTreeOpen) {
    Frame().SetFocus();
    Input.KeyPress(VK_F4);
    EXPECT_TRUE(Inner().GetDroppedDown());
    Frame().Free();
    test::PumpAll();
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(SkinTreeComboBox, TheCornersShowTheSurroundings) {
    Frame();
    test::PumpAll();
    const test::Pixels shown = Shown(Form());
    EXPECT_NE(shown.At(10, 10), 0x00FFFFFFu);
}

}  // namespace
