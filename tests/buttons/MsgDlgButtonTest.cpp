#include <functional>

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"
#include "tests/buttons/MsgDlgButtonFixture.h"
#include "tests/support/FilledBitmap.h"

namespace test {
namespace {

using namespace qv7skin;

Pixels WithBorder(Pixels picture, COLORREF border) {
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            if (x == 0 || y == 0 || x == picture.Width() - 1 || y == picture.Height() - 1)
                picture.Set(x, y, border);
    return picture;
}

TEST_F(MsgDlgButtonTest, ANewButtonHasItsFirstValues) {
    TQV7SkinButtonMsgDlg button(nullptr);
    EXPECT_EQ(button.GetAlignment(), taLeftJustify);
    EXPECT_EQ(button.GetTextMarginHorizontal(), 3);
    EXPECT_EQ(button.GetTextMarginVertical(), 3);
    EXPECT_EQ(button.GetSpacing(), 20);
    EXPECT_EQ(button.GetFont().GetName(), L"Tahoma");
    EXPECT_EQ(button.GetFont().GetSize(), 10);
    EXPECT_EQ(button.GetFont().GetStyle(), TFontStyles{fsBold});
    EXPECT_EQ(button.GetFont().GetColor(), Text);
    EXPECT_EQ(button.GetFontDescription().GetName(), L"Tahoma");
    EXPECT_EQ(button.GetFontDescription().GetSize(), 7);
    EXPECT_EQ(button.GetFontDescription().GetColor(), Text);
    EXPECT_EQ(button.GetColorHovered(), Ground);
    EXPECT_EQ(button.GetColorBorder(), Border);
}

TEST_F(MsgDlgButtonTest, DefaultValuesComeBackAndColorsMayStay) {
    Button->SetColorHovered(clRed);
    Button->SetColorBorder(clGreen);
    Button->GetFontDescription().SetColor(clBlue);
    Button->GetFont().SetSize(20);
    Button->SetSpacing(1);
    Button->SetKeepColors(true);
    Button->SetDefaultValues();
    EXPECT_EQ(Button->GetColorHovered(), clRed);
    EXPECT_EQ(Button->GetColorBorder(), clGreen);
    EXPECT_EQ(Button->GetFontDescription().GetColor(), clBlue);
    EXPECT_EQ(Button->GetFont().GetSize(), 10);
    EXPECT_EQ(Button->GetSpacing(), 20);
    Button->SetKeepColors(false);
    Button->SetDefaultValues();
    EXPECT_EQ(Button->GetColorHovered(), Ground);
    EXPECT_EQ(Button->GetColorBorder(), Border);
    EXPECT_EQ(Button->GetFontDescription().GetColor(), Text);
}

TEST_F(MsgDlgButtonTest, AtRestOnlyTheTextShows) {
    EXPECT_TRUE(SamePixels(Shown(), Expected(White, Text, 0, 0)));
}

TEST_F(MsgDlgButtonTest, UnderTheMouseItHasGroundBorderAndBlueText) {
    MoveOn();
    EXPECT_EQ(Button->GetState(), bexHovered);
    EXPECT_TRUE(SamePixels(Shown(), WithBorder(Expected(Ground, Blue, 0, 0), Border)));
    Input.MoveAway();
    ASSERT_TRUE(PumpUntil([&] { return Button->GetState() == bexNormal; }));
    EXPECT_TRUE(SamePixels(Shown(), Expected(White, Text, 0, 0)));
}

TEST_F(MsgDlgButtonTest, PressedTheTextMovesByTwiceTheOffsets) {
    Button->SetDrawFocusedRect(false);
    for (const TAlignment alignment : {taLeftJustify, taRightJustify, taCenter}) {
        Button->SetAlignment(alignment);
        Button->SetTextOffsetDownHorizontal(2);
        Button->SetTextOffsetDownVertical(3);
        MoveOn();
        Input.Press();
        EXPECT_EQ(Button->GetState(), bexPressed);
        EXPECT_TRUE(SamePixels(Shown(), WithBorder(Expected(Ground, Blue, 4, 6), Border)));
        Input.Release();
    }
}

TEST_F(MsgDlgButtonTest, ADisabledButtonIsEngravedAndHasNoBorder) {
    Form().SetColor(RGB(230, 240, 200));
    Button->SetEnabled(false);
    MoveOn();
    const COLORREF form = RGB(230, 240, 200);
    const Pixels lower = Expected(form, White, 0, 0), upper = Expected(form, Silver, 0, 0);
    EXPECT_TRUE(SamePixels(Shown(), [&](int x, int y) {
        // Later lines are drawn over the shadows of earlier ones; they do not touch each other here.
        if (upper.At(x, y) == Silver) return Silver;
        return x > 0 && y > 0 && lower.At(x - 1, y - 1) == White ? White : form;
    }));
    EXPECT_GT(Shown().Count(Silver), 100);
}

TEST_F(MsgDlgButtonTest, WithoutImagesTheTextStartsAtMarginAndSpacing) {
    EXPECT_EQ(Button->GetTextArea(), (TRect{23, 3, 297, 57}));
    EXPECT_EQ(Button->CaptionPlaces.back().Left, 23);
    MakeImages(4);
    EXPECT_EQ(Button->GetTextArea(), (TRect{16 + 3 + 3 + 20, 3, 297, 57}));
}

TEST_F(MsgDlgButtonTest, TheDescriptionFollowsTheSizeOfTheCaptionWithTheNextPaint) {
    Button->SetHeight(100);
    Button->GetFont().SetSize(14);
    EXPECT_EQ(Button->GetFontDescription().GetSize(), 7);
    PumpAll();
    EXPECT_EQ(Button->GetFontDescription().GetSize(), 11);
    EXPECT_TRUE(SamePixels(Shown(), Expected(White, Text, 0, 0)));
    Button->GetFontDescription().SetSize(30);
    PumpAll();
    EXPECT_EQ(Button->GetFontDescription().GetSize(), 11);
    Button->GetFont().SetSize(2);
    PumpAll();
    EXPECT_EQ(Button->GetFontDescription().GetSize(), 1)
        << "never so small that the system takes a size of its own";
}

TEST_F(MsgDlgButtonTest, PaintingDoesNotAskForAnotherPaint) {
    Button->GetFont().SetSize(12);
    PumpAll();
    Button->Paints = 0;
    Button->GetFont().SetSize(13);
    PumpAll();
    EXPECT_EQ(Button->Paints, 1);
}

TEST_F(MsgDlgButtonTest, TheTextBlockStandsInTheMiddleAndKeepsTheMargins) {
    const int height = Button->GetTextHeight();
    TRect caption = Button->CaptionPlaces.back();
    EXPECT_EQ(caption.Top, (60 - height) / 2);
    EXPECT_EQ(caption.Bottom, caption.Top + height);
    EXPECT_EQ(caption.Right, 297);
    Button->SetHeight(height + 2);
    PumpAll();
    caption = Button->CaptionPlaces.back();
    EXPECT_EQ(caption.Top, 3);
    EXPECT_EQ(caption.Bottom, height + 2 - 3);
}

TEST_F(MsgDlgButtonTest, CaptionAndDescriptionMoveThePlaceDown) {
    const auto lineHeight = [](const TFont& font) {
        TBitmap bitmap(1, 1);
        bitmap.GetCanvas().SetFont(font);
        return bitmap.GetCanvas().TextHeight(L"Aq");
    };
    const int captionLine = lineHeight(Button->GetFont());
    const int descriptionLine = lineHeight(Button->GetFontDescription());
    EXPECT_EQ(Button->GetTextHeight(), captionLine + 2 * descriptionLine);
    TRect place(0, 0, 200, 60);
    Button->DrawCaption(DT_SINGLELINE, place);
    EXPECT_EQ(place, TRect(0, captionLine, 200, 60));
    Button->DrawDescription(DT_SINGLELINE, place);
    EXPECT_EQ(place, TRect(0, captionLine + 2 * descriptionLine, 200, 60));
}

TEST_F(MsgDlgButtonTest, AnyChangeOfTheDescriptionPaints) {
    const int before = Button->Paints;
    Button->GetDescription().Put(0, L"Anders.");
    PumpAll();
    EXPECT_EQ(Button->Paints, before + 1);
    TStringList other;
    other.Add(L"Nur eine Zeile & mehr");
    Button->SetDescription(other);
    EXPECT_EQ(Button->GetDescription().GetCount(), 1);
    EXPECT_TRUE(SamePixels(Shown(), Expected(White, Text, 0, 0)));
}

TEST_F(MsgDlgButtonTest, SettersPaintWhenTheyChangeSomething) {
    TFont font;
    font.SetColor(clGreen);
    const std::pair<const char*, std::function<void()>> setters[] = {
        {"Alignment", [&] { Button->SetAlignment(taCenter); }},
        {"TextMarginHorizontal", [&] { Button->SetTextMarginHorizontal(9); }},
        {"TextMarginVertical", [&] { Button->SetTextMarginVertical(9); }},
        {"Spacing", [&] { Button->SetSpacing(9); }},
        {"TextOffsetDownHorizontal", [&] { Button->SetTextOffsetDownHorizontal(9); }},
        {"TextOffsetDownVertical", [&] { Button->SetTextOffsetDownVertical(9); }},
        {"ColorHovered", [&] { Button->SetColorHovered(clRed); }},
        {"ColorBorder", [&] { Button->SetColorBorder(clRed); }},
        {"FontDescription", [&] { Button->SetFontDescription(font); }},
    };
    for (const auto& [name, set] : setters) {
        Button->Paints = 0;
        set();
        PumpAll();
        EXPECT_EQ(Button->Paints, 1) << name;
    }
}

TEST_F(MsgDlgButtonTest, EachStateHasItsImage) {
    MakeImages(6);
    const auto shownImage = [&] {
        const Pixels part = Shown();
        // In the middle of the height, behind the margin.
        return part.At(3 + 8, 30);
    };
    EXPECT_EQ(shownImage(), ImageColor(0));
    MoveOn();
    EXPECT_EQ(shownImage(), ImageColor(1));
    Input.Press();
    EXPECT_EQ(shownImage(), ImageColor(2));
    Input.Release();
    Button->SetDown(true);
    EXPECT_EQ(shownImage(), ImageColor(5));
    Input.MoveAway();
    ASSERT_TRUE(PumpUntil([&] { return Button->GetState() == bexDown; }));
    EXPECT_EQ(shownImage(), ImageColor(4));
    Button->SetEnabled(false);
    EXPECT_EQ(shownImage(), ImageColor(3));
    Button->SetDown(false);
    Button->SetEnabled(true);
    EXPECT_EQ(shownImage(), ImageColor(0));
}

TEST_F(MsgDlgButtonTest, PaintingPutsTheBrushBack) {
    for (const bool enabled : {true, false}) {
        Button->SetEnabled(enabled);
        PumpAll();
        EXPECT_EQ(Button->BrushAfterPaint, bsSolid) << enabled;
    }
}

TEST_F(MsgDlgButtonTest, ImagesStandBehindTheMarginWithoutTheirMagenta) {
    MakeImages(4);
    const Pixels part = Shown().Part({0, 0, 23, 60});
    EXPECT_TRUE(SamePixels(part, [](int x, int y) {
        const bool inside = x >= 3 + 2 && x < 3 + 14 && y >= 22 + 2 && y < 22 + 14;
        return inside ? ImageColor(0) : White;
    }));
}

TEST_F(MsgDlgButtonTest, MaskedImagesKeepTheirHoles) {
    MakeImages(0);
    FilledBitmap image(16, 16, clGreen);
    image.GetCanvas().GetBrush().SetColor(clYellow);
    image.GetCanvas().FillRect({4, 4, 12, 12});
    Images->AddMasked(&image, clGreen);
    const Pixels shown = Shown();
    EXPECT_EQ(shown.At(3 + 1, 23), White);
    EXPECT_EQ(shown.At(3 + 8, 30), RGB(255, 255, 0));
}

TEST_F(MsgDlgButtonTest, AShortListLendsItsFirstImage) {
    MakeImages(1);
    const auto shownImage = [&] { return Shown().At(3 + 8, 30); };
    MoveOn();
    EXPECT_EQ(shownImage(), ImageColor(0));
    Button->SetEnabled(false);
    const COLORREF grey = shownImage();
    EXPECT_EQ(GetRValue(grey), GetGValue(grey));
    EXPECT_EQ(GetRValue(grey), GetBValue(grey));
    EXPECT_EQ(Shown().At(3, 22), White);
}

TEST_F(MsgDlgButtonTest, AListOfThreeLendsThePressedImageToAButtonThatIsOn) {
    MakeImages(3);
    const auto shownImage = [&] { return Shown().At(3 + 8, 30); };
    Button->SetDown(true);
    EXPECT_EQ(shownImage(), ImageColor(2));
    MoveOn();
    EXPECT_EQ(shownImage(), ImageColor(2));
}

TEST_F(MsgDlgButtonTest, ChangedImagesShow) {
    MakeImages(4);
    EXPECT_EQ(Shown().At(3 + 8, 30), ImageColor(0));
    FilledBitmap image(16, 16, clRed);
    Images->Replace(0, &image, nullptr);
    EXPECT_EQ(Shown().At(3 + 8, 30), RGB(255, 0, 0));
}

TEST_F(MsgDlgButtonTest, AFreedImageListIsForgotten) {
    MakeImages(4);
    PumpAll();
    Images.reset();
    EXPECT_EQ(Button->GetImageList(), nullptr);
    EXPECT_TRUE(SamePixels(Shown(), Expected(White, Text, 0, 0)));
}

TEST_F(MsgDlgButtonTest, ImagesThatWereReplacedAreForgotten) {
    MakeImages(4);
    TImageList others(nullptr);
    others.SetSize(16, 16);
    Button->SetImageList(&others);
    EXPECT_EQ(Button->GetImageList(), &others);
    delete std::exchange(Button, nullptr);
    Images->Clear();
    others.SetSize(8, 8);
}

TEST_F(MsgDlgButtonTest, ImagesOutliveTheButton) {
    MakeImages(4);
    PumpAll();
    delete std::exchange(Button, nullptr);
    Images->Clear();
}

TEST_F(MsgDlgButtonTest, TheFocusShowsAsADottedFrame) {
    Button->SetFocus();
    Pixels focused = Shown();
    EXPECT_NE(focused, Expected(White, Text, 0, 0));
    Button->SetDrawFocusedRect(false);
    EXPECT_TRUE(SamePixels(Shown(), Expected(White, Text, 0, 0)));
    Button->SetDrawHoveredIfFocused(true);
    EXPECT_TRUE(SamePixels(Shown(), WithBorder(Expected(Ground, Blue, 0, 0), Border)));
}

TEST_F(MsgDlgButtonTest, ItClicksLikeEveryButton) {
    int clicks = 0;
    Button->OnClick = [&](TObject*) { ++clicks; };
    Button->SetCaption(L"&Speichern");
    Button->SetDefault(true);
    MoveOn();
    Input.Click();
    EXPECT_EQ(clicks, 1);
    Input.Chord({VK_MENU}, 'S');
    EXPECT_EQ(clicks, 2);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(clicks, 3);
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(clicks, 4);
}

TEST_F(MsgDlgButtonTest, AButtonFreedInItsOwnEventDoesNoHarm) {
    for (const int event : {0, 1, 2, 3, 4}) {
        if (!Button) {
            Button = Make<ProbeMsgDlgButton>({20, 30, 320, 90});
            MakeImages(4);
        }
        const auto bye = [&](TObject*) { delete std::exchange(Button, nullptr); };
        if (event == 0) Button->OnClick = bye;
        if (event == 1) Button->OnMouseEnter = bye;
        if (event == 2) Button->OnMouseLeave = bye;
        if (event == 3) Button->OnStateChange = bye;
        if (event == 4)
            Button->OnMouseDown = [&](TObject* s, TMouseButton, TShiftState, int, int) { bye(s); };
        PumpAll();
        Input.MoveTo(Form().WindowHandle(), 100, 50);
        if (Button) Input.Click();
        Input.MoveAway();
        EXPECT_TRUE(PumpUntil([&] { return Button == nullptr; })) << event;
    }
}

}  // namespace
}  // namespace test
