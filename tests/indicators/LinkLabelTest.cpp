#include "indicators/UnitQV7SkinLinkLabel.h"

#include <cmath>

#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Icon.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace qv7skin;

constexpr COLORREF LinkBlue = 0x00D78112;
constexpr COLORREF White = 0x00FFFFFF;
constexpr COLORREF Key = 0x00FF00FF;

class LinkLabelTest : public FormTest {
protected:
    TQV7SkinLinkLabel* MakeLink(const wchar_t* caption, int left = 20, int top = 20) {
        Form().SetColor(clWhite);
        auto* label = new TQV7SkinLinkLabel(nullptr);
        label->GetFont().SetQuality(fqNonAntialiased);
        label->SetCaption(caption);
        label->SetLeft(left);
        label->SetTop(top);
        label->SetParent(&Form());
        return label;
    }
    /// A picture with corners in the key colour and green and grey halves.
    static void GivePicture(TQV7SkinLinkLabel& label, int width, int height) {
        TBitmap bitmap(width, height, pf24bit);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                bitmap.GetCanvas().SetPixel(x, y, PicturePixel(width, height, x, y));
        label.GetPicture().SetBitmap(&bitmap);
    }
    static COLORREF PicturePixel(int width, int height, int x, int y) {
        const bool corner = (x == 0 || x == width - 1) && (y == 0 || y == height - 1);
        return corner ? Key : x < width / 2 ? RGB(10, 200, 10) : RGB(100, 100, 100);
    }
    /// Half of what a colour lacks of white, in grey, and never lighter than 240.
    static COLORREF Grey(COLORREF color) {
        const int missing = (765 - GetRValue(color) - GetGValue(color) - GetBValue(color)) * 50 / 300;
        const int grey = std::min(255 - missing, 240);
        return RGB(grey, grey, grey);
    }
    Pixels Shown(const TControl& label) {
        return ReadClient(Form().WindowHandle()).Part(label.GetBoundsRect());
    }
    static bool IsUnderlined(const TControl& label) {
        return label.GetFont().GetStyle().Contains(fsUnderline);
    }
    /// Moves the mouse off the label and waits for the system to tell.
    void Leave() {
        Input.MoveAway();
        ASSERT_TRUE(PumpUntil([] { return GetMouseControl() == nullptr; }));
    }
    void Hover(const TControl& label) {
        Input.MoveTo(Form().WindowHandle(), label.GetLeft() + 3, label.GetTop() + 3);
    }
    static int TextWidth(TQV7SkinLinkLabel& label) { return label.GetCanvas().TextWidth(label.GetCaption()); }
};

TEST_F(LinkLabelTest, ANewLinkIsBlueWithAHand) {
    TQV7SkinLinkLabel label(nullptr);
    EXPECT_EQ(label.GetFont().GetColor(), LinkBlue);
    EXPECT_EQ(label.GetCursor(), crHandPoint);
    EXPECT_EQ(label.GetLayout(), tlCenter);
    EXPECT_EQ(label.GetTransparentColor(), clNone);
    EXPECT_EQ(label.GetEllipsType(), etNone);
    EXPECT_FALSE(IsUnderlined(label));
}

TEST_F(LinkLabelTest, TheCaptionIsDrawnInTheColorOfItsFont) {
    TQV7SkinLinkLabel* label = MakeLink(L"Details");
    const Pixels shown = Shown(*label);
    EXPECT_GT(shown.Count(LinkBlue), 20);
    EXPECT_EQ(shown.Count(LinkBlue) + shown.Count(White), shown.Width() * shown.Height());
}

TEST_F(LinkLabelTest, TheMouseUnderlinesAndLeavingEndsIt) {
    TQV7SkinLinkLabel* label = MakeLink(L"Details");
    const Pixels before = Shown(*label);
    const TRect bounds = label->GetBoundsRect();
    Hover(*label);
    EXPECT_TRUE(IsUnderlined(*label));
    EXPECT_GT(Shown(*label).Count(LinkBlue), before.Count(LinkBlue));
    EXPECT_EQ(label->GetBoundsRect(), bounds);
    Leave();
    EXPECT_FALSE(IsUnderlined(*label));
    EXPECT_TRUE(SamePixels(Shown(*label), before));
}

TEST_F(LinkLabelTest, ADisabledLinkIsNotUnderlined) {
    TQV7SkinLinkLabel* label = MakeLink(L"Details");
    label->SetEnabled(false);
    Hover(*label);
    EXPECT_FALSE(IsUnderlined(*label));
    label->Perform(CM_MOUSEENTER);
    EXPECT_FALSE(IsUnderlined(*label));
}

TEST_F(LinkLabelTest, DisablingAHoveredLinkEndsItsUnderline) {
    TQV7SkinLinkLabel* label = MakeLink(L"Details");
    Hover(*label);
    ASSERT_TRUE(IsUnderlined(*label));
    label->SetEnabled(false);
    EXPECT_FALSE(IsUnderlined(*label));
}

TEST_F(LinkLabelTest, LeavingAlwaysRemovesTheUnderline) {
    TQV7SkinLinkLabel* label = MakeLink(L"Details");
    label->SetEnabled(false);
    label->GetFont().SetStyle({fsUnderline, fsBold});
    label->Perform(CM_MOUSELEAVE);
    EXPECT_EQ(label->GetFont().GetStyle(), TFontStyles{fsBold});
}

TEST_F(LinkLabelTest, EventsOfTheMouseComeAfterTheUnderline) {
    TQV7SkinLinkLabel* label = MakeLink(L"Details");
    std::vector<bool> underlined;
    label->OnMouseEnter = label->OnMouseLeave = [&](TObject*) { underlined.push_back(IsUnderlined(*label)); };
    Hover(*label);
    Leave();
    EXPECT_EQ(underlined, (std::vector<bool>{true, false}));
}

/// Counts how often it is painted.
class ProbeLink : public TQV7SkinLinkLabel {
public:
    using TQV7SkinLinkLabel::TQV7SkinLinkLabel;
    int Paints = 0;

protected:
    void Paint() override {
        ++Paints;
        TQV7SkinLinkLabel::Paint();
    }
};

TEST_F(LinkLabelTest, TheUnderlineShowsBeforeTheEvents) {
    auto* label = Make<ProbeLink>({20, 20, 80, 40});
    PumpAll();
    label->Paints = 0;
    std::vector<int> paints;
    label->OnMouseEnter = label->OnMouseLeave = [&](TObject*) { paints.push_back(label->Paints); };
    Hover(*label);
    Leave();
    ASSERT_EQ(paints.size(), 2u);
    EXPECT_GE(paints[0], 1);
    EXPECT_GT(paints[1], paints[0]);
}

TEST_F(LinkLabelTest, ADisabledCaptionIsEngraved) {
    TQV7SkinLinkLabel* label = MakeLink(L"HHH");
    label->SetAutoSize(false);
    label->SetBounds(20, 20, 60, 30);
    Form().SetColor(RGB(200, 220, 240));
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), dark = ::GetSysColor(COLOR_BTNSHADOW);
    label->GetFont().SetColor(clRed);
    const Pixels enabled = Shown(*label);
    label->SetEnabled(false);
    const Pixels shown = Shown(*label);
    EXPECT_TRUE(SamePixels(shown, [&](int x, int y) {
        if (enabled.At(x, y) == RGB(255, 0, 0)) return dark;
        if (enabled.At(x - 1, y - 1) == RGB(255, 0, 0)) return light;
        return enabled.At(x, y);
    }));
    EXPECT_GT(shown.Count(dark), 20);
}

TEST_F(LinkLabelTest, AnOpaqueLinkFillsItsArea) {
    TQV7SkinLinkLabel* label = MakeLink(L"");
    label->SetColor(RGB(250, 240, 10));
    label->SetTransparent(false);
    const Pixels shown = Shown(*label);
    EXPECT_EQ(shown.Count(RGB(250, 240, 10)), shown.Width() * shown.Height());
}

TEST_F(LinkLabelTest, ThePictureStandsInTheCornerAndTheTextBehindIt) {
    TQV7SkinLinkLabel* label = MakeLink(L"HHH");
    const int textWidth = label->GetWidth(), textHeight = label->GetHeight();
    GivePicture(*label, 16, 30);
    EXPECT_EQ(label->GetWidth(), 16 + 4 + textWidth);
    EXPECT_EQ(label->GetHeight(), 30);
    const Pixels shown = Shown(*label);
    EXPECT_TRUE(
        SamePixels(shown.Part({0, 0, 16, 30}), [](int x, int y) { return PicturePixel(16, 30, x, y); }));
    const RECT ink = shown.Part({16, 0, shown.Width(), 30}).Bounds([](COLORREF c) { return c == LinkBlue; });
    EXPECT_GE(ink.left, 4);
    EXPECT_LE(ink.left, 6);
    EXPECT_NEAR((ink.top + ink.bottom) / 2, 15, textHeight / 4);
    label->GetPicture().Assign(nullptr);
    EXPECT_EQ(label->GetWidth(), textWidth);
    EXPECT_EQ(label->GetHeight(), textHeight);
}

TEST_F(LinkLabelTest, TheTransparentColorShowsTheBackground) {
    TQV7SkinLinkLabel* label = MakeLink(L"x");
    GivePicture(*label, 12, 12);
    EXPECT_EQ(Shown(*label).At(0, 0), Key);
    label->SetTransparentColor(Key);
    const Pixels shown = Shown(*label);
    EXPECT_TRUE(SamePixels(shown.Part({0, 0, 12, 12}), [](int x, int y) {
        const COLORREF pixel = PicturePixel(12, 12, x, y);
        return pixel == Key ? White : pixel;
    }));
}

TEST_F(LinkLabelTest, TheTransparentColorMayBeOneOfTheSystem) {
    TQV7SkinLinkLabel* label = MakeLink(L"x");
    TBitmap bitmap(8, 8, pf24bit);
    bitmap.GetCanvas().GetBrush().SetColor(clHighlight);
    bitmap.GetCanvas().FillRect({0, 0, 8, 8});
    label->GetPicture().SetBitmap(&bitmap);
    for (const bool enabled : {true, false}) {
        label->SetEnabled(enabled);
        label->SetTransparentColor(clHighlight);
        EXPECT_EQ(Shown(*label).Part({0, 0, 8, 8}).Count(White), 64);
        label->SetTransparentColor(clNone);
        EXPECT_EQ(Shown(*label).Part({0, 0, 8, 8}).Count(White), 0);
    }
}

TEST_F(LinkLabelTest, ADisabledPictureIsGrey) {
    TQV7SkinLinkLabel* label = MakeLink(L"x");
    GivePicture(*label, 12, 12);
    label->SetEnabled(false);
    EXPECT_TRUE(SamePixels(Shown(*label).Part({0, 0, 12, 12}),
                           [](int x, int y) { return Grey(PicturePixel(12, 12, x, y)); }));
    label->SetTransparentColor(Key);
    EXPECT_TRUE(SamePixels(Shown(*label).Part({0, 0, 12, 12}), [](int x, int y) {
        const COLORREF pixel = PicturePixel(12, 12, x, y);
        return pixel == Key ? White : Grey(pixel);
    }));
    label->SetEnabled(true);
    EXPECT_EQ(Shown(*label).At(3, 3), RGB(10, 200, 10));
}

TEST_F(LinkLabelTest, AnotherPictureOfTheSameSizeShows) {
    TQV7SkinLinkLabel* label = MakeLink(L"x");
    const auto give = [&](TColor color) {
        TBitmap bitmap(12, 12, pf24bit);
        bitmap.GetCanvas().GetBrush().SetColor(color);
        bitmap.GetCanvas().FillRect({0, 0, 12, 12});
        label->GetPicture().SetBitmap(&bitmap);
    };
    for (const bool enabled : {true, false}) {
        label->SetEnabled(enabled);
        for (const TColor color : {RGB(200, 10, 10), RGB(20, 20, 20)}) {
            give(color);
            EXPECT_EQ(Shown(*label).At(5, 5), enabled ? color : Grey(color)) << enabled;
        }
    }
}

TEST_F(LinkLabelTest, PicturesOfOtherKindsDoNotShow) {
    TQV7SkinLinkLabel* label = MakeLink(L"x");
    const int width = label->GetWidth();
    TIcon icon;
    icon.SetHandle(::CopyIcon(::LoadIconW(nullptr, MAKEINTRESOURCEW(32516))));
    label->GetPicture().SetGraphic(&icon);
    EXPECT_EQ(label->GetWidth(), width);
}

TEST_F(LinkLabelTest, DotsShortenWhatDoesNotFit) {
    TQV7SkinLinkLabel* label = MakeLink(L"C:\\Programme\\Velmora\\Handbuch\\Inhalt.html");
    label->SetAutoSize(false);
    label->SetBounds(20, 20, 120, 20);
    // What the system makes of the text in that width.
    const auto drawn = [&](UINT flags) {
        return Drawn(120, 20, White, [&](HDC dc) {
            ::SelectObject(dc, label->GetFont().GetHandle());
            ::SetTextColor(dc, LinkBlue);
            ::SetBkMode(dc, TRANSPARENT);
            RECT needed{0, 0, 120, 0};
            ::DrawTextExW(dc, label->GetCaption().data(), -1, &needed, DT_CALCRECT | DT_EXPANDTABS, nullptr);
            RECT place{0, (20 - needed.bottom) / 2, 120, 20};
            ::DrawTextExW(dc, label->GetCaption().data(), -1, &place, DT_EXPANDTABS | flags, nullptr);
            ::SelectObject(dc, ::GetStockObject(SYSTEM_FONT));
        });
    };
    const std::pair<TEllipsType, UINT> modes[] = {
        {etNone, 0}, {etEndEllips, DT_END_ELLIPSIS}, {etPathEllips, DT_PATH_ELLIPSIS}};
    std::vector<Pixels> all;
    for (const auto& [type, flags] : modes) {
        label->SetEllipsType(type);
        all.push_back(Shown(*label));
        EXPECT_TRUE(SamePixels(all.back(), drawn(flags)));
    }
    EXPECT_NE(all[0], all[1]);
    EXPECT_NE(all[0], all[2]);
    EXPECT_NE(all[1], all[2]);
}

TEST_F(LinkLabelTest, LayoutAndAlignmentPlaceTheText) {
    TQV7SkinLinkLabel* label = MakeLink(L"HHH");
    label->SetAutoSize(false);
    label->SetBounds(20, 20, 200, 80);
    const auto ink = [&] { return Shown(*label).Bounds([](COLORREF c) { return c == LinkBlue; }); };
    EXPECT_NEAR((ink().top + ink().bottom) / 2, 40, 3);
    EXPECT_LT(ink().left, 3);
    label->SetLayout(tlTop);
    EXPECT_LT(ink().bottom, 20);
    label->SetLayout(tlBottom);
    EXPECT_GT(ink().top, 60);
    label->SetAlignment(taRightJustify);
    EXPECT_GT(ink().right, 195);
}

TEST_F(LinkLabelTest, WordWrapBreaksBesideThePicture) {
    TQV7SkinLinkLabel* label = MakeLink(L"one two three four five six");
    const int line = label->GetHeight();
    GivePicture(*label, 20, 8);
    label->SetWordWrap(true);
    label->SetWidth(90);
    label->SetCaption(L"one two three four five six seven");
    EXPECT_LE(label->GetWidth(), 90);
    EXPECT_GE(label->GetHeight(), 2 * line);
    EXPECT_EQ(Shown(*label).Part({20, 0, 24, label->GetHeight()}).Count(LinkBlue), 0);
}

TEST_F(LinkLabelTest, TheAccessKeyMovesTheFocus) {
    TQV7SkinLinkLabel* label = MakeLink(L"&Suche");
    auto* first = Make<TEdit>({10, 60, 100, 80});
    auto* second = Make<TEdit>({10, 90, 100, 110});
    label->SetFocusControl(second);
    first->SetFocus();
    Input.Chord({VK_MENU}, 'S');
    EXPECT_TRUE(second->Focused());
}

TEST_F(LinkLabelTest, ADesignedLinkDoesNotReactToTheMouse) {
    TQV7SkinLinkLabel* label = MakeLink(L"Details");
    label->GetFont().SetStyle({fsUnderline});
    label->SetDesigning(true);
    label->Perform(CM_MOUSELEAVE);
    EXPECT_TRUE(IsUnderlined(*label));
    label->GetFont().SetStyle({});
    label->Perform(CM_MOUSEENTER);
    EXPECT_FALSE(IsUnderlined(*label));
}

TEST_F(LinkLabelTest, ALinkFreedInItsOwnEventDoesNoHarm) {
    for (const int event : {0, 1, 2}) {
        TQV7SkinLinkLabel* label = MakeLink(L"Bye");
        GivePicture(*label, 8, 8);
        const auto bye = [](TObject* sender) { delete sender; };
        if (event == 0) label->OnMouseEnter = bye;
        if (event == 1) label->OnMouseLeave = bye;
        if (event == 2) label->OnClick = bye;
        PumpAll();
        Input.ClickAt(Form().WindowHandle(), 25, 25);
        Leave();
        EXPECT_EQ(Form().GetControlCount(), 0) << event;
    }
}

}  // namespace
}  // namespace test
