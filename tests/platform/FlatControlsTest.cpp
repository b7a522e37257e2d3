#include "platform/flatstyle/FlatCheckBox.h"
#include "platform/flatstyle/FlatGroupBox.h"
#include "platform/flatstyle/FlatPanel.h"
#include "platform/flatstyle/FlatRadioButton.h"
#include "platform/vcl/actions/Action.h"
#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace flatstyle;
using test::PumpAll;

class FlatControls : public test::FormTest {
protected:
    static test::Pixels Shown(TWinControl& control) {
        PumpAll();
        return test::ReadClient(control.GetHandle());
    }
};

TEST_F(FlatControls, KnowNoOtherIndicesOfColours) {
    auto* box = Make<TFlatCheckBox>(TRect::OfSize(10, 10, 80, 17));
    EXPECT_NO_THROW(box->SetColors(3, clRed));
    EXPECT_THROW(box->SetColors(4, clRed), EListError);
    EXPECT_THROW((void)box->GetColors(-1), EListError);
}

TEST_F(FlatControls, AClickTurnsACheckBoxOver) {
    auto* box = Make<TFlatCheckBox>(TRect::OfSize(10, 10, 80, 17));
    int clicks = 0;
    box->OnClick = [&](TObject*) { ++clicks; };
    Input.ClickAt(box->GetHandle(), 5, 8);
    EXPECT_TRUE(box->GetChecked());
    EXPECT_TRUE(box->Focused());
    Input.KeyPress(VK_SPACE);
    EXPECT_FALSE(box->GetChecked());
    box->SetChecked(true);
    EXPECT_EQ(clicks, 3);
}

TEST_F(FlatControls, EnterDoesNotTurnACheckBoxOver) {
    auto* box = Make<TFlatCheckBox>(TRect::OfSize(10, 10, 80, 17));
    box->SetFocus();
    Input.KeyPress(VK_RETURN);
    EXPECT_FALSE(box->GetChecked());
}

TEST_F(FlatControls, ACheckBoxShowsItsColours) {
    auto* box = Make<TFlatCheckBox>(TRect::OfSize(10, 10, 80, 17));
    for (int index = 0; index < 4; ++index)
        box->SetColors(index, 0x00111111 * static_cast<TColor>(index + 1));
    test::Pixels shown = Shown(*box);
    EXPECT_EQ(shown.At(0, 2), 0x00444444u);  // the line
    EXPECT_EQ(shown.At(12, 14), 0x00444444u);
    EXPECT_EQ(shown.At(6, 8), ColorToRGB(clWindow));
    EXPECT_EQ(shown.Count(0x00333333), 0);
    box->SetChecked(true);
    EXPECT_GT(Shown(*box).Count(0x00333333), 9);  // the mark
    Input.MoveTo(box->GetHandle(), 5, 8);
    EXPECT_EQ(Shown(*box).At(1, 3), 0x00111111u);  // under the mouse
    Input.Press();
    EXPECT_EQ(Shown(*box).At(1, 3), 0x00222222u);  // pressed
    Input.Release();
}

TEST_F(FlatControls, OneRadioButtonOfAGroupIsChecked) {
    auto* a = Make<TFlatRadioButton>(TRect::OfSize(10, 10, 80, 17));
    auto* b = Make<TFlatRadioButton>(TRect::OfSize(10, 30, 80, 17));
    auto* other = Make<TFlatRadioButton>(TRect::OfSize(10, 50, 80, 17));
    other->SetGroupIndex(1);
    other->SetChecked(true);
    a->SetChecked(true);
    Input.ClickAt(b->GetHandle(), 5, 8);
    EXPECT_FALSE(a->GetChecked());
    EXPECT_TRUE(b->GetChecked());
    EXPECT_TRUE(other->GetChecked());
    Input.ClickAt(b->GetHandle(), 5, 8);
    EXPECT_TRUE(b->GetChecked());
}

TEST_F(FlatControls, ArrowsGoFromRadioButtonToRadioButton) {
    TFlatRadioButton* radios[3];
    for (int i = 0; i < 3; ++i)
        radios[i] = Make<TFlatRadioButton>(TRect::OfSize(10, 10 + 20 * i, 80, 17));
    radios[1]->SetEnabled(false);
    radios[0]->SetFocus();
    Input.KeyPress(VK_DOWN);
    EXPECT_TRUE(radios[2]->Focused());
    EXPECT_TRUE(radios[2]->GetChecked());
    Input.KeyPress(VK_DOWN);
    EXPECT_TRUE(radios[0]->GetChecked());
    Input.KeyPress(VK_LEFT);
    EXPECT_TRUE(radios[2]->GetChecked());
    EXPECT_FALSE(radios[0]->GetChecked());
}

TEST_F(FlatControls, ArrowsStayInTheGroup) {
    TFlatRadioButton* radios[3];
    for (int i = 0; i < 3; ++i)
        radios[i] = Make<TFlatRadioButton>(TRect::OfSize(10, 10 + 20 * i, 80, 17));
    radios[1]->SetGroupIndex(1);
    radios[0]->SetFocus();
    Input.KeyPress(VK_DOWN);
    EXPECT_TRUE(radios[2]->Focused());
    EXPECT_FALSE(radios[1]->GetChecked());
}

TEST_F(FlatControls, ACheckedRadioButtonThatJoinsAGroupIsTheOne) {
    auto* a = Make<TFlatRadioButton>(TRect::OfSize(10, 10, 80, 17));
    auto* b = Make<TFlatRadioButton>(TRect::OfSize(10, 30, 80, 17));
    b->SetGroupIndex(1);
    a->SetChecked(true);
    b->SetChecked(true);
    EXPECT_TRUE(a->GetChecked());
    b->SetGroupIndex(0);
    EXPECT_TRUE(b->GetChecked());
    EXPECT_FALSE(a->GetChecked());
}

/// Counts its clicks from the beginning.
class CountingCheckBox : public TFlatCheckBox {
public:
    explicit CountingCheckBox(TComponent* AOwner) : TFlatCheckBox(AOwner) {
        OnClick = [this](TObject*) { ++Clicks; };
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<CountingCheckBox>(L"TCountingCheckBox", TFlatCheckBox::StaticClass());
        return meta;
    }
    int Clicks = 0;
};

TEST_F(FlatControls, AFormFileThatChecksABoxClicksNothing) {
    RegisterClass(CountingCheckBox::StaticClass());
    TReader(ParseFormText(L"object Form: TForm\nobject Box: TCountingCheckBox\nChecked = True\nend\nend"))
        .ReadRootComponent(&Form());
    auto& box = dynamic_cast<CountingCheckBox&>(*Form().FindComponent(L"Box"));
    EXPECT_TRUE(box.GetChecked());
    EXPECT_EQ(box.Clicks, 0);
    box.SetChecked(false);
    EXPECT_EQ(box.Clicks, 1);
    UnRegisterClass(CountingCheckBox::StaticClass());
}

TEST_F(FlatControls, ARadioButtonMayBeFreedByItsClick) {
    auto* a = Make<TFlatRadioButton>(TRect::OfSize(10, 10, 80, 17));
    auto* b = Make<TFlatRadioButton>(TRect::OfSize(10, 30, 80, 17));
    a->SetChecked(true);
    b->OnClick = [&](TObject*) { delete b; };
    Input.ClickAt(b->GetHandle(), 5, 8);
    EXPECT_EQ(Form().GetControlCount(), 1);
}

TEST_F(FlatControls, OnlyTheRadioButtonThatIsChosenClicks) {
    auto* a = Make<TFlatRadioButton>(TRect::OfSize(10, 10, 80, 17));
    auto* b = Make<TFlatRadioButton>(TRect::OfSize(10, 30, 80, 17));
    a->SetChecked(true);
    std::string clicked;
    a->OnClick = [&](TObject*) { clicked += 'a'; };
    b->OnClick = [&](TObject*) { clicked += 'b'; };
    Input.ClickAt(b->GetHandle(), 5, 8);
    EXPECT_FALSE(a->GetChecked());
    EXPECT_EQ(clicked, "b");
}

TEST_F(FlatControls, RadioButtonsFollowTheActionsOfAGroup) {
    auto* list = new TActionList(&Form());
    TAction* actions[2];
    TFlatRadioButton* radios[2];
    std::string runs;
    for (int i = 0; i < 2; ++i) {
        actions[i] = new TAction(&Form());
        actions[i]->SetActionList(list);
        actions[i]->SetGroupIndex(1);
        actions[i]->SetAutoCheck(true);
        actions[i]->SetOnExecute([&runs, i](TObject*) { runs += static_cast<char>('0' + i); });
        radios[i] = Make<TFlatRadioButton>(TRect::OfSize(10, 10 + 20 * i, 80, 17));
        radios[i]->SetAction(actions[i]);
    }
    actions[0]->SetChecked(true);
    EXPECT_TRUE(radios[0]->GetChecked());
    EXPECT_EQ(runs, "");
    Input.ClickAt(radios[1]->GetHandle(), 5, 8);
    EXPECT_FALSE(radios[0]->GetChecked());
    EXPECT_TRUE(radios[1]->GetChecked());
    EXPECT_FALSE(actions[0]->GetChecked());
    EXPECT_TRUE(actions[1]->GetChecked());
    EXPECT_EQ(runs, "1");
    actions[0]->SetChecked(true);
    EXPECT_TRUE(radios[0]->GetChecked());
    EXPECT_FALSE(radios[1]->GetChecked());
}

TEST_F(FlatControls, APanelHasTwoLines) {
    auto* panel = Make<TFlatPanel>(TRect::OfSize(10, 10, 40, 20));
    panel->SetColors(0, 0x00111111);
    panel->SetColors(1, 0x00222222);
    panel->SetColor(0x00333333);
    EXPECT_TRUE(test::SamePixels(Shown(*panel), [](int x, int y) -> COLORREF {
        if (x == 39 || y == 19) return 0x00222222;
        return x == 0 || y == 0 ? 0x00111111 : 0x00333333;
    }));
}

TEST_F(FlatControls, AGroupBoxHasItsCaptionInTheLine) {
    auto* group = Make<TFlatGroupBox>(TRect::OfSize(10, 10, 120, 60));
    group->SetColors(0, 0x00111111);
    group->SetCaption(L"Wer");
    const test::Pixels shown = Shown(*group);
    EXPECT_EQ(shown.At(0, 30), 0x00111111u);
    EXPECT_EQ(shown.At(60, 59), 0x00111111u);
    EXPECT_EQ(shown.At(0, 0), ColorToRGB(clBtnFace));
    const RECT line = shown.Bounds([](COLORREF color) { return color == 0x00111111; });
    EXPECT_GT(line.top, 0);
    EXPECT_EQ(shown.At(100, line.top), 0x00111111u);
    EXPECT_EQ(shown.At(7, line.top), ColorToRGB(clBtnFace));
}

TEST_F(FlatControls, TheAccessKeyOfAGroupBoxFocusesWhatIsInside) {
    auto* group = Make<TFlatGroupBox>(TRect::OfSize(10, 10, 120, 60));
    group->SetCaption(L"&Wer");
    auto* inside = Make<TEdit>(TRect::OfSize(10, 20, 50, 20), group);
    auto* outside = Make<TEdit>(TRect::OfSize(10, 90, 50, 20));
    outside->SetFocus();
    Input.Chord({VK_MENU}, 'W');
    EXPECT_TRUE(inside->Focused());
}

}  // namespace
