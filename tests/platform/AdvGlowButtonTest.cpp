#include "platform/tms/AdvGlowButton.h"

#include "platform/tms/GlowFace.h"
#include "tests/support/FilledBitmap.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace tms;
using test::Pixels;
using test::PumpAll;
using test::SamePixels;

class AdvGlowButton : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Form().SetColor(0x00C0FFC0);
        Button = Make<TAdvGlowButton>({50, 40, 150, 71});
        Form().SetActiveControl(nullptr);
        PumpAll();
    }
    [[nodiscard]] Pixels Shown() const { return test::ReadClient(Button->WindowHandle()); }
    [[nodiscard]] Pixels Face(TGlowGroup group, bool glow = false) {
        TBitmap bitmap(Button->GetWidth(), Button->GetHeight(), pf32bit);
        bitmap.GetCanvas().GetBrush().SetColor(Form().GetColor());
        bitmap.GetCanvas().FillRect({0, 0, Button->GetWidth(), Button->GetHeight()});
        PaintGlowFace(bitmap.WriteBits(), Button->GetAppearance().GetColors(group), Button->GetRounded(),
                      glow);
        return test::ReadBitmap(bitmap.GetHandle());
    }

    TAdvGlowButton* Button = nullptr;
};

TEST_F(AdvGlowButton, ShowsTheColoursOfEachState) {
    const HWND window = Button->WindowHandle();
    EXPECT_TRUE(SamePixels(Shown(), Face(glowNormal)));
    Input.MoveTo(window, 50, 15);
    EXPECT_TRUE(SamePixels(Shown(), Face(glowHot, true)));
    Button->SetEnabled(false);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Face(glowDisabled)));
}

TEST_F(AdvGlowButton, APressShowsDownWithoutAGlow) {
    Input.MoveTo(Button->WindowHandle(), 50, 15);
    Input.Press();
    Pixels shown = Shown(), expected = Face(glowDown);
    // The focus came with the press; its frame lies three pixels inside.
    EXPECT_TRUE(SamePixels(shown.Part({0, 0, 100, 3}), expected.Part({0, 0, 100, 3})));
    EXPECT_TRUE(SamePixels(shown.Part({4, 4, 96, 27}), expected.Part({4, 4, 96, 27})));
}

TEST_F(AdvGlowButton, ASwitchedOnToggleButtonShowsChecked) {
    Button->SetStyle(absToggle);
    Button->SetDown(true);
    EXPECT_TRUE(SamePixels(Shown(), Face(glowChecked)));
    Button->SetStyle(absButton);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Face(glowDown)));
}

TEST_F(AdvGlowButton, RepaintsWhenItsAppearanceChanges) {
    TGlowColors colors = Button->GetAppearance().GetColors(glowNormal);
    colors.Color = clRed;
    Button->Appearance().SetColors(glowNormal, colors);
    PumpAll();
    EXPECT_EQ(Shown().At(50, 1), static_cast<COLORREF>(clRed));
    Button->SetRounded(false);
    PumpAll();
    EXPECT_EQ(Shown().At(0, 0), colors.Border);
}

TEST_F(AdvGlowButton, TheCaptionHasTheColourOfItsState) {
    TGlowColors colors = Button->GetAppearance().GetColors(glowHot);
    colors.Text = 0x00FF0000;
    Button->Appearance().SetColors(glowHot, colors);
    Button->GetFont().SetColor(0x000000FF);
    Button->GetFont().SetQuality(fqNonAntialiased);
    Button->Appearance().SetSystemFont(false);
    Button->SetCaption(L"WWWW");
    PumpAll();
    EXPECT_GT(Shown().Count(0x000000FF), 20);
    Input.MoveTo(Button->WindowHandle(), 50, 15);
    EXPECT_GT(Shown().Count(0x00FF0000), 20);
    EXPECT_EQ(Shown().Count(0x000000FF), 0);
}

TEST_F(AdvGlowButton, TheCaptionStandsInTheMiddle) {
    Button->Appearance().SetSystemFont(false);
    Button->SetCaption(L"Caption");
    PumpAll();
    const Pixels face = Face(glowNormal);
    EXPECT_TRUE(SamePixels(Shown(), test::Drawn(100, 31, 0, [&](HDC dc) {
                               for (int y = 0; y < 31; ++y)
                                   for (int x = 0; x < 100; ++x)
                                       SetPixelV(dc, x, y, face.At(x, y));
                               RECT rect{0, 0, 100, 31};
                               SetBkMode(dc, TRANSPARENT);
                               SetTextColor(dc, ColorToRGB(Button->GetFont().GetColor()));
                               const HGDIOBJ old = SelectObject(dc, Button->GetFont().GetHandle());
                               DrawTextW(dc, L"Caption", -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
                               SelectObject(dc, old);
                           })));
}

TEST_F(AdvGlowButton, ThePictureStandsWhereTheLayoutSays) {
    test::FilledBitmap picture(8, 8, clRed, pfDevice);
    Button->Picture().SetBitmap(&picture);
    Button->SetBounds(50, 40, 120, 61);
    Button->SetCaption(L"Text");
    const auto place = [&](TButtonLayout layout) {
        Button->SetLayout(layout);
        PumpAll();
        return Shown().Bounds([](COLORREF c) { return c == 0x000000FFu; });
    };
    EXPECT_LT(place(blGlyphLeft).right, 60);
    EXPECT_GT(place(blGlyphRight).left, 60);
    EXPECT_LT(place(blGlyphTop).bottom, 31);
    EXPECT_GT(place(blGlyphBottom).top, 31);
    EXPECT_NEAR(place(blGlyphTop).left, 56, 1);
    EXPECT_EQ(place(blGlyphLeft).top, 26);
}

TEST_F(AdvGlowButton, ADisabledPictureIsHalfFaded) {
    test::FilledBitmap picture(8, 8, clRed, pfDevice);
    Button->Picture().SetBitmap(&picture);
    Button->SetEnabled(false);
    PumpAll();
    const COLORREF face = Face(glowDisabled).At(50, 15), shown = Shown().At(50, 15);
    EXPECT_NEAR(GetRValue(shown), (255 + GetRValue(face)) / 2, 1);
    EXPECT_NEAR(GetGValue(shown), GetGValue(face) / 2, 1);
}

TEST_F(AdvGlowButton, TransparentCornersShowTheParent) {
    Form().OnPaint = [&](TObject*) {
        Form().GetCanvas().GetBrush().SetColor(clBlue);
        Form().GetCanvas().FillRect({40, 30, 60, 50});
    };
    EXPECT_EQ(Shown().At(0, 0), 0x00C0FFC0u);
    Button->SetTransparent(true);
    PumpAll();
    EXPECT_EQ(Shown().At(0, 0), static_cast<COLORREF>(clBlue));
    EXPECT_EQ(Shown().At(99, 30), 0x00C0FFC0u);
}

TEST_F(AdvGlowButton, AnAutomaticSizeFitsTheContentAndAsksTheHost) {
    Button->SetCaption(L"A caption that takes some room");
    Button->SetAutoSize(true);
    EXPECT_GT(Button->GetWidth(), 120);
    const int before = Button->GetWidth();
    Button->OnSetButtonSize = [](TObject*, int& width, int& height) {
        width += 10;
        height = 50;
    };
    Button->SetSpacing(5);
    EXPECT_EQ(Button->GetWidth(), before + 10);
    EXPECT_EQ(Button->GetHeight(), 50);
    Button->Appearance().SetSystemFont(false);
    Button->GetFont().SetSize(20);
    EXPECT_GT(Button->GetWidth(), before + 10);
}

TEST_F(AdvGlowButton, ADoubleClickCountsWhenSomebodyListens) {
    int clicks = 0, doubles = 0;
    Button->OnClick = [&](TObject*) { ++clicks; };
    Input.DoubleClickAt(Button->WindowHandle(), 50, 15);
    EXPECT_EQ(clicks, 2);
    Button->OnDblClick = [&](TObject*) { ++doubles; };
    Input.DoubleClickAt(Button->WindowHandle(), 50, 15);
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(doubles, 1);
}

}  // namespace
