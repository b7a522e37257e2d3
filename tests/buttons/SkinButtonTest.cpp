#include "platform/vcl/graphics/TextLayout.h"
#include "skin/UnitQV7SkinColors.h"
#include "tests/buttons/SkinButtonFixture.h"

namespace {

using namespace qv7skin;
using test::ExpectedFace;
using test::Pixels;
using test::PumpAll;
using test::SamePixels;

class SkinButton : public test::SkinButtonTest {
protected:
    /// The picture of the state with the caption centred between the margins, `offset` pixels lower and
    /// further right.
    [[nodiscard]] Pixels Captioned(TButtonExState state, const TFont& font, int offset) const {
        const Pixels face = ExpectedFace(state, 100, 25);
        const Pixels drawn = test::Drawn(100, 25, 0, [&](HDC dc) {
            for (int y = 0; y < 25; ++y)
                for (int x = 0; x < 100; ++x)
                    SetPixelV(dc, x, y, face.At(x, y));
            RECT rect{4 + offset, 2 + offset, 96 + offset, 23 + offset};
            SetBkMode(dc, TRANSPARENT);
            SetTextColor(dc, font.GetColor());
            const HGDIOBJ old = SelectObject(dc, font.GetHandle());
            DrawTextW(dc, Button->GetCaption().c_str(), -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
            SelectObject(dc, old);
        });
        return OnForm(drawn, ExpectedFace(bexNormal, 100, 25));
    }
};

// --- a new button

TEST_F(SkinButton, BeginsWithTheStatedValues) {
    const test::ProbeSkinButton fresh(nullptr);
    EXPECT_EQ(fresh.GetWidth(), 100);
    EXPECT_EQ(fresh.GetHeight(), 25);
    EXPECT_EQ(fresh.GetFocusedRectMarginHorizontal(), 10);
    EXPECT_EQ(fresh.GetFocusedRectMarginVertical(), 4);
    EXPECT_TRUE(fresh.GetUseSkinFonts());
    EXPECT_TRUE(fresh.GetDrawFocusedRect());
    EXPECT_FALSE(fresh.GetDrawHoveredIfFocused());
    EXPECT_TRUE(fresh.GetTabStop());
    for (const TFont* font : {&fresh.GetFont(), &fresh.GetFontHovered(), &fresh.GetFontDisabled()}) {
        EXPECT_EQ(font->GetColor(), 0x00FFFFFFu);
        EXPECT_EQ(font->GetStyle(), TFontStyles{fsBold});
    }
}

// --- captions and fonts

TEST_F(SkinButton, TheCaptionIsWhiteAndBoldInTheMiddle) {
    Button->SetCaption(L"Caption");
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Captioned(bexNormal, Button->GetFont(), 0)));
    EXPECT_FALSE(SamePixels(Shown(), OnForm(ExpectedFace(bexNormal, 100, 25))));
}

TEST_F(SkinButton, ThePressedCaptionMoves) {
    Button->SetDrawFocusedRect(false);
    Button->SetCaption(L"Caption");
    Input.MoveTo(Window(), 50, 12);
    Input.Press();
    EXPECT_TRUE(SamePixels(Shown(), Captioned(bexPressed, Button->GetFontHovered(), 1)));
}

TEST_F(SkinButton, TheDisabledCaptionIsWhiteAndBold) {
    Button->SetCaption(L"Caption");
    Button->SetEnabled(false);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Captioned(bexDisabled, Button->GetFontDisabled(), 0)));
    EXPECT_EQ(Button->GetFontDisabled().GetColor(), 0x00FFFFFFu);
}

TEST_F(SkinButton, PaintingGivesTheFontsTheColoursOfTheSkin) {
    Button->SetCaption(L"Caption");
    Button->GetFont().SetColor(clRed);
    Button->GetFontHovered().SetStyle({fsItalic});
    Button->GetFontDisabled().SetColor(clLime);
    PumpAll();
    EXPECT_EQ(Button->GetFont().GetColor(), GetQV7SkinColorButtonCaption());
    EXPECT_EQ(Button->GetFontHovered().GetStyle(), GetQV7SkinStyleButtonCaption());
    EXPECT_EQ(Button->GetFontDisabled().GetColor(), GetQV7SkinColorButtonCaptionDisabled());
    EXPECT_TRUE(SamePixels(Shown(), Captioned(bexNormal, Button->GetFont(), 0)));
}

TEST_F(SkinButton, FontsOfTheHostStayWithoutSkinFonts) {
    Button->SetCaption(L"Caption");
    Button->SetUseSkinFonts(false);
    Button->GetFont().SetColor(clYellow);
    Button->GetFontHovered().SetColor(clAqua);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Captioned(bexNormal, Button->GetFont(), 0)));
    EXPECT_EQ(Button->GetFont().GetColor(), clYellow);
    Input.MoveTo(Window(), 50, 12);
    EXPECT_TRUE(SamePixels(Shown(), Captioned(bexHovered, Button->GetFontHovered(), 0)));
    EXPECT_EQ(Button->GetFontHovered().GetColor(), clAqua);
}

TEST_F(SkinButton, ChangingUseSkinFontsMakesThePicturesAnew) {
    Button->Built.clear();
    Button->SetUseSkinFonts(true);
    EXPECT_TRUE(Button->Built.empty());
    Button->SetUseSkinFonts(false);
    EXPECT_EQ(Button->Built.size(), 6u);
    EXPECT_EQ(Button->Regions, 2);
}

TEST_F(SkinButton, ANewSizeOfTheFontReachesAllThree) {
    Button->GetFont().SetSize(12);
    EXPECT_EQ(Button->GetFontHovered().GetSize(), 12);
    EXPECT_EQ(Button->GetFontDisabled().GetSize(), 12);
}

// --- focus frame

TEST_F(SkinButton, TheFocusFrameIsDottedWhiteInsideItsMargins) {
    Button->SetFocus();
    PumpAll();
    const Pixels face = ExpectedFace(bexNormal, 100, 25);
    const Pixels shown = Shown();
    const RECT frame{10, 4, 90, 21};
    int white = 0, around = 0;
    for (int y = 0; y < 25; ++y) {
        for (int x = 0; x < 100; ++x) {
            if (face.At(x, y) == 0x00FF00FF) continue;
            const bool inRect = x >= frame.left && x < frame.right && y >= frame.top && y < frame.bottom;
            const bool onEdge = inRect && (x == frame.left || x == frame.right - 1 || y == frame.top ||
                                           y == frame.bottom - 1);
            if (!onEdge) {
                EXPECT_EQ(shown.At(x, y), face.At(x, y)) << x << ", " << y;
                continue;
            }
            ++around;
            if (shown.At(x, y) != face.At(x, y)) {
                EXPECT_EQ(shown.At(x, y), 0x00FFFFFFu) << x << ", " << y;
                ++white;
            }
        }
    }
    // Dots and gaps: neither a line nor a few points.
    EXPECT_GT(white, around / 4);
    EXPECT_LT(white, around * 3 / 4);
}

TEST_F(SkinButton, TheFocusFrameGoesWithTheFocus) {
    const Pixels before = Shown();
    Button->SetFocus();
    PumpAll();
    EXPECT_FALSE(Shown() == before);
    Form().SetActiveControl(nullptr);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), before));
}

TEST_F(SkinButton, NoFocusFrameWithoutDrawFocusedRect) {
    const Pixels before = Shown();
    Button->SetDrawFocusedRect(false);
    Button->SetFocus();
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), before));
}

TEST_F(SkinButton, DrawingTheFrameRestoresThePenColourOnly) {
    Button->GetCanvas().GetPen().SetColor(clGreen);
    Button->SetFocus();
    PumpAll();
    EXPECT_EQ(Button->GetCanvas().GetPen().GetColor(), clGreen);
    EXPECT_EQ(Button->GetCanvas().GetPen().GetStyle(), psDot);
    Button->GetCanvas().GetBrush().SetStyle(bsSolid);
    Button->DrawFocusRect();
    EXPECT_EQ(Button->GetCanvas().GetBrush().GetStyle(), bsClear);
}

TEST_F(SkinButton, TheFocusCanLookLikeTheMouse) {
    Button->SetDrawFocusedRect(false);
    Button->SetDrawHoveredIfFocused(true);
    Button->SetFocus();
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), OnForm(ExpectedFace(bexHovered, 100, 25))));
}

// --- behaviour

TEST_F(SkinButton, TellsEveryChangeOfItsState) {
    std::vector<TButtonExState> states;
    Button->OnStateChange = [&](TObject* sender) {
        EXPECT_EQ(sender, Button);
        states.push_back(Button->GetState());
    };
    Input.ClickAt(Window(), 50, 12);
    Input.MoveTo(Form().GetHandle(), 5, 5);
    Button->SetEnabled(false);
    EXPECT_EQ(states,
              (std::vector<TButtonExState>{bexHovered, bexPressed, bexHovered, bexNormal, bexDisabled}));
}

TEST_F(SkinButton, SpaceWorksItUnlessSwitchedOff) {
    int clicks = 0;
    Button->OnClick = [&](TObject*) { ++clicks; };
    Button->SetFocus();
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(clicks, 1);
    Button->SetClickOnSpace(false);
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(clicks, 1);
}

TEST_F(SkinButton, DoubleClicksCountOnlyWhenAllowed) {
    int clicks = 0, doubles = 0;
    Button->OnClick = [&](TObject*) { ++clicks; };
    Button->OnDblClick = [&](TObject*) { ++doubles; };
    Input.DoubleClickAt(Window(), 50, 12);
    EXPECT_EQ(clicks, 2);
    Button->SetAllowDblClick(true);
    Input.DoubleClickAt(Window(), 50, 12);
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(doubles, 1);
}

TEST_F(SkinButton, AToggleButtonKeepsItsStateAfterAClick) {
    Button->SetDrawFocusedRect(false);
    Button->SetButtonStyle(bxsToggle);
    Input.ClickAt(Window(), 50, 12);
    Input.MoveTo(Form().GetHandle(), 5, 5);
    EXPECT_TRUE(Button->GetDown());
    EXPECT_EQ(Button->GetState(), bexDown);
    EXPECT_TRUE(SamePixels(Shown(), OnForm(ExpectedFace(bexPressed, 100, 25))));
}

TEST_F(SkinButton, SurvivesBeingFreedInItsOwnEvents) {
    const auto freeIt = [&] { delete std::exchange(Button, nullptr); };
    const std::vector<std::function<void()>> bindings = {
        [&] { Button->OnClick = [&](TObject*) { freeIt(); }; },
        [&] { Button->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) { freeIt(); }; },
        [&] { Button->OnStateChange = [&](TObject*) { freeIt(); }; },
        [&] { Button->OnMouseEnter = [&](TObject*) { freeIt(); }; },
    };
    for (const auto& bind : bindings) {
        bind();
        Input.ClickAt(Window(), 50, 12);
        EXPECT_EQ(Button, nullptr);
        Input.MoveAway();
        Button = Make<test::ProbeSkinButton>({50, 40, 150, 65});
        PumpAll();
    }
}

TEST_F(SkinButton, AHundredNewWindowsLeaveNothingBehind) {
    const test::ResourceSnapshot before = test::ResourceSnapshot::Take();
    for (int i = 0; i < 100; ++i) {
        Button->RecreateWnd();
        PumpAll();
    }
    EXPECT_EQ(before.ChangeSince(), "");
    EXPECT_TRUE(SamePixels(Shown(), OnForm(ExpectedFace(bexNormal, 100, 25))));
}

TEST_F(SkinButton, TenThousandCyclesLeaveNothingBehind) {
    int clicks = 0;
    Button->OnClick = [&](TObject*) { ++clicks; };
    Input.ClickAt(Window(), 50, 12);
    const test::ResourceSnapshot before = test::ResourceSnapshot::Take();
    for (int i = 0; i < 10000; ++i) {
        SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 12));
        SendMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(50, 12));
        Button->Perform(CM_MOUSELEAVE);
        Button->Perform(CM_MOUSEENTER);
    }
    EXPECT_EQ(clicks, 10001);
    EXPECT_EQ(before.ChangeSince(), "");
}

TEST_F(SkinButton, AHundredFormsLeaveNothingBehind) {
    const test::ResourceSnapshot before = test::ResourceSnapshot::Take();
    for (int i = 0; i < 100; ++i) {
        TForm form(nullptr);
        for (int k = 0; k < 3; ++k) {
            auto* skin = new TCustomQV7SkinButton(&form);
            skin->SetBounds(10, 10 + 40 * k, 90 + 10 * k, 30);
            skin->SetParent(&form);
            auto* glow = new TQV7SkinButton(&form);
            glow->SetBounds(150, 10 + 40 * k, 100, 30);
            glow->SetParent(&form);
        }
        form.Show();
        form.Update();
    }
    PumpAll();
    EXPECT_EQ(before.ChangeSince(), "");
}

TEST_F(SkinButton, TheLastOneTakesTheFrameBitmapsWithIt) {
    delete std::exchange(Button, nullptr);
    const test::ResourceSnapshot before = test::ResourceSnapshot::Take();
    Make<test::ProbeSkinButton>({10, 10, 110, 35});
    PumpAll();
    EXPECT_NE(before.ChangeSince(), "");
    delete Form().WinControls().front();
    PumpAll();
    EXPECT_EQ(before.ChangeSince(), "");
}

}  // namespace
