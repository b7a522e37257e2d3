#include "buttons/UnitQV7SkinButton.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace qv7skin;
using test::Pixels;
using test::PumpAll;

class GlowSkinButton : public test::LedgerTest {};

void ExpectColors(const TAdvGlowButton& button, TGlowGroup group, TColor border, TColor color, TColor colorTo,
                  TColor mirror, TColor mirrorTo) {
    const TGlowColors& colors = button.GetAppearance().GetColors(group);
    EXPECT_EQ(colors.Border, border);
    EXPECT_EQ(colors.Color, color);
    EXPECT_EQ(colors.ColorTo, colorTo);
    EXPECT_EQ(colors.ColorMirror, mirror);
    EXPECT_EQ(colors.ColorMirrorTo, mirrorTo);
    EXPECT_EQ(static_cast<int>(colors.Gradient), 1);
    EXPECT_EQ(static_cast<int>(colors.GradientMirror), 1);
}

TEST_F(GlowSkinButton, BeginsDarkWithABlueHighlight) {
    const TQV7SkinButton button(nullptr);
    EXPECT_EQ(button.GetWidth(), 100);
    EXPECT_EQ(button.GetHeight(), 25);
    EXPECT_FALSE(button.GetRounded());
    EXPECT_FALSE(button.GetAppearance().GetSystemFont());
    EXPECT_EQ(button.GetFont().GetColor(), 0x00FFFFFFu);
    EXPECT_EQ(button.GetFont().GetName(), L"Tahoma");
    EXPECT_EQ(button.GetFont().GetHeight(), -11);
    EXPECT_EQ(button.GetFont().GetStyle(), TFontStyles{fsBold});
    ExpectColors(button, glowNormal, 0x00000000, 0x00626262, 0x00515151, 0x00000000, 0x00121212);
    ExpectColors(button, glowDisabled, 0x00808080, 0x00F2F2F2, 0x00F2F2F2, 0x00B6B6B6, 0x00F2F2F2);
    ExpectColors(button, glowDown, 0x00800000, 0x00F2BF86, 0x00C66021, 0x00F7D944, 0x00C66021);
    ExpectColors(button, glowHot, 0x00800000, 0x00F2BF86, 0x00C66021, 0x00F7D944, 0x00C66021);
    EXPECT_EQ(button.GetAppearance().GetColors(glowDown).Text, 0x00FFFFFFu);
    EXPECT_EQ(button.GetAppearance().GetColors(glowHot).Text, 0x00FFFFFFu);
    EXPECT_EQ(button.GetAppearance().GetColors(glowNormal).Text, clDefault);
    EXPECT_EQ(button.GetAppearance().GetColors(glowChecked), button.GetAppearance().GetColors(glowDown));
}

TEST_F(GlowSkinButton, ButtonStyleIsTheStyleOfTheGlowButton) {
    TQV7SkinButton button(nullptr);
    EXPECT_EQ(button.GetButtonStyle(), bxsPush);
    button.SetButtonStyle(bxsToggle);
    EXPECT_EQ(button.GetStyle(), absToggle);
    EXPECT_EQ(button.GetButtonStyle(), bxsToggle);
    button.SetButtonStyle(static_cast<TButtonExStyle>(2));
    EXPECT_EQ(button.GetStyle(), absButton);
    button.SetStyle(absToggle);
    EXPECT_EQ(button.GetButtonStyle(), bxsToggle);
}

TEST_F(GlowSkinButton, AllCompatibilityNumbersAreOne) {
    TQV7SkinButton button(nullptr);
    button.SetTextMarginLeft(7);
    EXPECT_EQ(button.GetFocusedRectMarginVertical(), 7);
    using Get = int (TCustomTMSAdvGlowButton::*)() const;
    using Set = void (TCustomTMSAdvGlowButton::*)(int);
    using T = TCustomTMSAdvGlowButton;
    const std::pair<Get, Set> numbers[] = {
        {&T::GetTextMarginHorizontal, &T::SetTextMarginHorizontal},
        {&T::GetTextMarginVertical, &T::SetTextMarginVertical},
        {&T::GetTextMarginLeft, &T::SetTextMarginLeft},
        {&T::GetTextOffsetDownHorizontal, &T::SetTextOffsetDownHorizontal},
        {&T::GetTextOffsetDownVertical, &T::SetTextOffsetDownVertical},
        {&T::GetFocusedRectMarginHorizontal, &T::SetFocusedRectMarginHorizontal},
        {&T::GetFocusedRectMarginVertical, &T::SetFocusedRectMarginVertical},
    };
    int value = 10;
    for (const auto& written : numbers) {
        (button.*written.second)(++value);
        for (const auto& read : numbers)
            EXPECT_EQ((button.*read.first)(), value);
    }
}

TEST_F(GlowSkinButton, AllCompatibilitySwitchesAreOne) {
    TQV7SkinButton button(nullptr);
    using Get = bool (TCustomTMSAdvGlowButton::*)() const;
    using Set = void (TCustomTMSAdvGlowButton::*)(bool);
    using T = TCustomTMSAdvGlowButton;
    const std::pair<Get, Set> switches[] = {
        {&T::GetUseSkinFonts, &T::SetUseSkinFonts},
        {&T::GetAllowDblClick, &T::SetAllowDblClick},
        {&T::GetDrawFocusedRect, &T::SetDrawFocusedRect},
        {&T::GetDrawHoveredIfFocused, &T::SetDrawHoveredIfFocused},
        {&T::GetStretchImage, &T::SetStretchImage},
        {&T::GetClickOnSpace, &T::SetClickOnSpace},
    };
    for (const auto& written : switches) {
        for (const bool value : {true, false}) {
            (button.*written.second)(value);
            for (const auto& read : switches)
                EXPECT_EQ((button.*read.first)(), value);
        }
    }
}

TEST_F(GlowSkinButton, BothCompatibilityFontsAreOne) {
    TQV7SkinButton button(nullptr);
    TFont font;
    font.SetSize(17);
    button.SetFontHovered(font);
    EXPECT_EQ(button.GetFontDisabled().GetSize(), 17);
    EXPECT_EQ(&button.GetFontDisabled(), &button.GetFontHovered());
    EXPECT_NE(button.GetFont().GetSize(), 17);
}

class GlowSkinButtonOnForm : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Button = Make<TQV7SkinButton>({50, 40, 150, 65});
        Form().SetActiveControl(nullptr);
        PumpAll();
    }
    [[nodiscard]] Pixels Shown() const { return test::ReadClient(Button->WindowHandle()); }

    TQV7SkinButton* Button = nullptr;
};

TEST_F(GlowSkinButtonOnForm, IsADarkFaceWithABlackBorder) {
    // 23 rows inside the border: 12 of the gradient, 11 of its mirror.
    const Pixels shown = Shown();
    EXPECT_EQ(shown.At(0, 0), 0x00000000u);
    EXPECT_EQ(shown.At(99, 24), 0x00000000u);
    EXPECT_EQ(shown.At(50, 1), 0x00626262u);
    EXPECT_EQ(shown.At(50, 12), 0x00515151u);
    EXPECT_EQ(shown.At(50, 13), 0x00000000u);
    EXPECT_EQ(shown.At(50, 23), 0x00121212u);
}

TEST_F(GlowSkinButtonOnForm, GlowsBlueUnderTheMouse) {
    Input.MoveTo(Button->WindowHandle(), 50, 12);
    const Pixels shown = Shown();
    EXPECT_EQ(shown.At(50, 0), 0x00800000u);
    EXPECT_EQ(shown.At(1, 1), 0x00F2BF86u);
    EXPECT_EQ(shown.At(1, 12), 0x00C66021u);
    // The glow reaches the middle, not the edge.
    EXPECT_GT(GetRValue(shown.At(50, 23)), 0x21);
}

TEST_F(GlowSkinButtonOnForm, GlowsUnderTheMouseAlsoWhenItIsOn) {
    Button->SetButtonStyle(bxsToggle);
    Button->SetDown(true);
    PumpAll();
    const Pixels rest = Shown();
    EXPECT_EQ(rest.At(50, 23), 0x00C66021u);
    Input.MoveTo(Button->WindowHandle(), 50, 12);
    const Pixels hot = Shown();
    EXPECT_EQ(hot.At(50, 0), rest.At(50, 0));
    EXPECT_EQ(hot.At(1, 1), rest.At(1, 1));
    EXPECT_GT(GetRValue(hot.At(50, 23)), GetRValue(rest.At(50, 23)));
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return Shown().At(50, 23) == rest.At(50, 23); }));
}

TEST_F(GlowSkinButtonOnForm, TellsItsStateAndItsClicks) {
    int changes = 0, clicks = 0;
    Button->OnStateChange = [&](TObject* sender) {
        EXPECT_EQ(sender, Button);
        ++changes;
    };
    Button->OnClick = [&](TObject*) { ++clicks; };
    Input.ClickAt(Button->WindowHandle(), 50, 12);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(changes, 3);
}

TEST_F(GlowSkinButtonOnForm, TheAlignmentMovesTheCaption) {
    Button->SetCaption(L"I");
    const auto middle = [&](TAlignment alignment) {
        Button->SetAlignment(alignment);
        PumpAll();
        const RECT ink = Shown().Bounds([](COLORREF c) { return c == 0x00FFFFFFu; });
        return (ink.left + ink.right) / 2;
    };
    EXPECT_LT(middle(taLeftJustify), 20);
    EXPECT_GT(middle(taRightJustify), 80);
    EXPECT_NEAR(middle(taCenter), 50, 2);
}

TEST_F(GlowSkinButtonOnForm, SurvivesBeingFreedInItsOwnEvents) {
    Button->OnClick = [&](TObject*) { delete std::exchange(Button, nullptr); };
    Input.ClickAt(Button->WindowHandle(), 50, 12);
    EXPECT_EQ(Button, nullptr);
}

TEST_F(GlowSkinButtonOnForm, ClosesAModalFormWithItsResult) {
    TForm dialog(nullptr);
    dialog.SetBounds(200, 200, 200, 100);
    auto* cancel = new TQV7SkinButton(&dialog);
    cancel->SetParent(&dialog);
    cancel->SetCancel(true);
    cancel->SetModalResult(mrCancel);
    test::When([&] { return cancel->GetShowing(); }, [&] { Input.KeyPress(VK_ESCAPE); });
    EXPECT_EQ(dialog.ShowModal(), mrCancel);
}

}  // namespace
