#include "platform/flatstyle/FlatComboBox.h"
#include "platform/flatstyle/FlatSpinEditInteger.h"
#include "platform/vcl/graphics/Font.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace flatstyle;
using test::PumpAll;

class FlatEditors : public test::FormTest {
protected:
    TFlatSpinEditInteger& Spin() {
        if (!FSpin) FSpin = Make<TFlatSpinEditInteger>(TRect::OfSize(10, 10, 80, 21));
        return *FSpin;
    }
    /// Presses one of the spin buttons.
    void ClickButton(bool up) {
        RECT client{};
        ::GetClientRect(Spin().ButtonsHandle(), &client);
        Input.ClickAt(Spin().ButtonsHandle(), client.right / 2,
                      up ? client.bottom / 4 : client.bottom * 3 / 4);
    }
    static test::Pixels Shown(TWinControl& control) {
        PumpAll();
        return test::ReadClient(control.GetHandle());
    }

private:
    TFlatSpinEditInteger* FSpin = nullptr;
};

TEST_F(FlatEditors, ButtonsStepByTheIncrementInsideTheRange) {
    Spin().SetMinValue(-5);
    Spin().SetMaxValue(12);
    Spin().SetIncrement(5);
    std::vector<int> values;
    Spin().OnChange = [&](TObject*) { values.push_back(Spin().GetValue()); };
    ClickButton(true);
    ClickButton(true);
    ClickButton(true);
    ClickButton(false);
    EXPECT_EQ(values, (std::vector<int>{5, 10, 12, 7}));
    Spin().SetValue(-99);
    EXPECT_EQ(Spin().GetValue(), -5);
}

TEST_F(FlatEditors, KeysAndWheelStep) {
    Spin().SetFocus();
    Input.KeyPress(VK_UP);
    Input.KeyPress(VK_UP);
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Spin().GetValue(), 1);
    Input.MoveTo(Spin().GetHandle(), 10, 10);
    Input.Wheel(2);
    EXPECT_EQ(Spin().GetValue(), 3);
    Input.Wheel(-4);
    EXPECT_EQ(Spin().GetValue(), -1);
}

TEST_F(FlatEditors, OnlyNumbersCanBeTypedAndLeavingSettlesThem) {
    auto* other = Make<TEdit>(TRect::OfSize(10, 50, 80, 21));
    Spin().SetMaxValue(50);
    Spin().SetFocus();
    Spin().SelectAll();
    Input.Type(L"9a9x");
    EXPECT_EQ(Spin().GetText(), L"99");
    other->SetFocus();
    EXPECT_EQ(Spin().GetText(), L"50");
    Spin().SetText(L"--");
    EXPECT_EQ(Spin().GetValue(), 0);
}

TEST_F(FlatEditors, StepsStopAtTheEndOfTheNumbers) {
    Spin().SetValue(0x7FFFFFFF);
    Spin().Step(1);
    EXPECT_EQ(Spin().GetValue(), 0x7FFFFFFF);
    Spin().SetText(L"99999999999999999999");
    EXPECT_EQ(Spin().GetValue(), 0);
}

TEST_F(FlatEditors, TheSpinEditShowsItsColours) {
    auto* other = Make<TEdit>(TRect::OfSize(10, 50, 80, 21));
    Spin().SetColors(0, 0x00111111);
    Spin().SetColors(1, 0x00222222);
    Spin().SetColors(2, 0x00333333);
    other->SetFocus();
    const auto whole = [&] {
        PumpAll();
        return test::ReadWindow(Spin().GetHandle());
    };
    test::Pixels shown = whole();
    EXPECT_EQ(shown.At(40, 0), 0x00222222u);
    EXPECT_EQ(shown.At(0, 10), 0x00222222u);
    EXPECT_EQ(shown.At(50, 2), 0x00333333u);
    Spin().SetFocus();
    shown = whole();
    EXPECT_EQ(shown.At(50, 2), 0x00111111u);
    for (int y = 1; y < 20; ++y)
        EXPECT_EQ(shown.At(50, y), 0x00111111u) << y;
    for (const TPoint corner : {TPoint(0, 0), TPoint(79, 0), TPoint(0, 20), TPoint(79, 20)})
        EXPECT_EQ(shown.At(corner.X, corner.Y), 0x00222222u);
}

TEST_F(FlatEditors, WithoutANumberTheLeastOneCounts) {
    Spin().SetMinValue(5);
    Spin().SetMaxValue(50);
    Spin().SetText(L"");
    EXPECT_EQ(Spin().GetValue(), 5);
    Spin().Step(1);
    EXPECT_EQ(Spin().GetValue(), 6);
}

TEST_F(FlatEditors, AStepSelectsTheNumberForTheNextOneToBeTyped) {
    auto* other = Make<TEdit>(TRect::OfSize(10, 50, 80, 21));
    other->SetFocus();
    ClickButton(true);
    EXPECT_TRUE(Spin().Focused());
    EXPECT_EQ(Spin().GetValue(), 1);
    Input.Type(L"-7");
    EXPECT_EQ(Spin().GetText(), L"-7");
    Spin().SetReadOnly(true);
    Input.KeyPress(VK_UP);
    EXPECT_EQ(Spin().GetValue(), -7);
}

TEST_F(FlatEditors, ButtonsAreDisabledWithTheSpinEditAlsoBeforeItsWindow) {
    TFlatSpinEditInteger early(nullptr);
    early.SetEnabled(false);
    early.SetParent(&Form());
    EXPECT_FALSE(::IsWindowEnabled(early.ButtonsHandle()));
    early.SetEnabled(true);
    EXPECT_TRUE(::IsWindowEnabled(early.ButtonsHandle()));
}

TEST_F(FlatEditors, ButtonsStandInsideTheLineBesideTheNumber) {
    RECT place{};
    ::GetWindowRect(Spin().ButtonsHandle(), &place);
    ::MapWindowPoints(nullptr, Form().GetHandle(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, 10 + 80 - 1 - 15);
    EXPECT_EQ(place.right, 10 + 80 - 1);
    EXPECT_EQ(place.top, 10 + (21 - 13) / 2);
    EXPECT_EQ(place.bottom, 10 + 21 - 2);
}

TEST_F(FlatEditors, TheNumberKeepsOffTheButtonsInEveryFont) {
    const auto margins = [this] { return ::SendMessageW(Spin().GetHandle(), EM_GETMARGINS, 0, 0); };
    EXPECT_EQ(margins(), MAKELONG(2, 15 + 2));
    Spin().GetFont().SetHeight(-15);
    EXPECT_EQ(margins(), MAKELONG(2, 15 + 2));
    Spin().RecreateWnd();
    EXPECT_EQ(margins(), MAKELONG(2, 15 + 2));
}

TEST_F(FlatEditors, TheNumberStaysInTheMiddle) {
    const auto top = [this] {
        RECT window{};
        ::GetWindowRect(Spin().GetHandle(), &window);
        return Spin().ClientToScreen({0, 0}).Y - static_cast<int>(window.top);
    };
    Spin().GetFont().SetHeight(-11);
    EXPECT_EQ(top(), (21 - 13) / 2);
    Spin().SetHeight(31);
    EXPECT_EQ(top(), (31 - 13) / 2);
    Spin().GetFont().SetHeight(-20);
    EXPECT_EQ(top(), (31 - 25) / 2);
    Spin().SetHeight(20);
    EXPECT_EQ(top(), 0);
}

TEST_F(FlatEditors, EverythingSurvivesANewWindow) {
    Spin().SetValue(42);
    Spin().RecreateWnd();
    EXPECT_EQ(Spin().GetValue(), 42);
    EXPECT_TRUE(::IsWindow(Spin().ButtonsHandle()));
    ClickButton(true);
    EXPECT_EQ(Spin().GetValue(), 43);
}

// --- the combo box

class ProbedFlatComboBox : public TFlatComboBox {
public:
    using TFlatComboBox::GetButtonRect;
    using TFlatComboBox::TFlatComboBox;
};

TEST_F(FlatEditors, AComboBoxHasALineAroundItAndAButtonWithATriangle) {
    auto* box = Make<ProbedFlatComboBox>(TRect::OfSize(10, 10, 100, 21));
    box->SetColors(0, 0x00111111);
    box->SetColors(1, 0x00222222);
    box->SetColors(2, 0x00333333);
    box->SetColor(0x00444444);
    const test::Pixels shown = Shown(*box);
    const int width = shown.Width();
    const int height = shown.Height();
    EXPECT_EQ(shown.At(0, height / 2), 0x00333333u);
    EXPECT_EQ(shown.At(width / 2, 0), 0x00333333u);
    EXPECT_EQ(shown.At(1, 1), 0x00444444u);
    const TRect button = box->GetButtonRect();
    EXPECT_EQ(button.Width(), 17);
    EXPECT_EQ(shown.At(button.Left, height / 2), 0x00333333u);
    EXPECT_EQ(shown.At(button.Left + 2, 2), 0x00222222u);
    const int x = button.Left + 8 - 5;
    const int y = height / 2;
    EXPECT_EQ(shown.At(x + 3, y - 1), 0x00111111u);
    EXPECT_EQ(shown.At(x + 7, y - 1), 0x00111111u);
    EXPECT_EQ(shown.At(x + 5, y + 1), 0x00111111u);
    EXPECT_EQ(shown.At(x + 3, y + 1), 0x00222222u);
}

TEST_F(FlatEditors, TheEditorOfAComboBoxReachesToItsButton) {
    auto* box = Make<ProbedFlatComboBox>(TRect::OfSize(10, 10, 100, 21));
    const auto place = [&] {
        RECT rect{};
        ::GetWindowRect(box->EditHandle(), &rect);
        const TPoint at = box->ScreenToClient({static_cast<int>(rect.left), static_cast<int>(rect.top)});
        return TRect::OfSize(at.X, at.Y, static_cast<int>(rect.right - rect.left),
                             static_cast<int>(rect.bottom - rect.top));
    };
    EXPECT_EQ(place(), TRect(3, 3, box->GetButtonRect().Left - 1, box->GetClientHeight() - 3));
    box->SetWidth(140);
    EXPECT_EQ(place(), TRect(3, 3, box->GetButtonRect().Left - 1, box->GetClientHeight() - 3));
    box->SetButtonWidth(30);
    EXPECT_EQ(place(), TRect(3, 3, 140 - 30 - 1, box->GetClientHeight() - 3));
}

TEST_F(FlatEditors, TheTrianglePointsUpWhileTheListIsOpen) {
    auto* box = Make<ProbedFlatComboBox>(TRect::OfSize(10, 10, 100, 21));
    box->GetItems().Add(L"eins");
    box->SetColors(1, 0x00222222);
    box->SetFocus();
    box->SetDroppedDown(true);
    const test::Pixels shown = Shown(*box);
    const int x = box->GetButtonRect().Left + 8 - 5;
    const int y = shown.Height() / 2;
    EXPECT_EQ(shown.At(x + 5, y - 1), 0x00000000u);
    EXPECT_EQ(shown.At(x + 3, y + 1), 0x00000000u);
    EXPECT_EQ(shown.At(x + 3, y - 1), 0x00222222u);
    box->SetDroppedDown(false);
}

TEST_F(FlatEditors, AListShowsItsChosenEntry) {
    auto* box = Make<ProbedFlatComboBox>(TRect::OfSize(10, 10, 100, 21));
    auto* other = Make<TEdit>(TRect::OfSize(10, 50, 80, 21));
    box->SetStyle(csDropDownList);
    box->GetItems().Add(L"WWWWW");
    other->SetFocus();
    const auto dark = [&] { return Shown(*box).Part({4, 2, 70, 18}).Count(0); };
    EXPECT_EQ(dark(), 0);
    box->SetItemIndex(0);
    EXPECT_GT(dark(), 20);
    box->SetFocus();
    EXPECT_GT(Shown(*box).Count(ColorToRGB(clHighlight)), 100);
    box->SetDroppedDown(true);
    EXPECT_EQ(Shown(*box).Count(ColorToRGB(clHighlight)), 0);
    box->SetDroppedDown(false);
}

}  // namespace
