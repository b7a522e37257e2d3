#include "platform/velmora/ButtonExWithCaption.h"

#include "tests/support/FilledBitmap.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace velmora;
using test::Pixels;
using test::PumpAll;

/// A button of 60 x 20 pixels with an image list of 10 x 10 pixels: a colour for each state.
class ButtonEx : public test::FormTest {
protected:
    static constexpr TColor Colors[] = {0x000011, 0x000022, 0x000033, 0x000044, 0x000055, 0x000066};
    static constexpr TColor Ground = 0x00A0B0C0;

    void SetUp() override {
        FormTest::SetUp();
        Form().SetColor(Ground);
        Button = Make<TCustomButtonExWithCaption>({50, 40, 110, 60});
        Images = new TImageList(&Form());
        Images->SetSize(10, 10);
        for (const TColor color : Colors)
            AddImage(color);
        Form().SetActiveControl(nullptr);
        PumpAll();
    }
    void AddImage(TColor color) {
        TBitmap image(10, 10);
        image.GetCanvas().GetBrush().SetColor(color);
        image.GetCanvas().FillRect({0, 0, 10, 10});
        Images->Add(&image, nullptr);
    }
    [[nodiscard]] Pixels Shown() const { return test::ReadClient(Button->WindowHandle()); }
    [[nodiscard]] TColor Middle() const { return Shown().At(30, 10); }

    TCustomButtonExWithCaption* Button = nullptr;
    TImageList* Images = nullptr;
};

TEST_F(ButtonEx, IsAPushButtonOfTheSystemWithoutImages) {
    const Pixels shown = Shown();
    RECT rect{0, 0, 60, 20};
    EXPECT_TRUE(test::SamePixels(shown, test::Drawn(60, 20, Ground, [&](HDC dc) {
                                     DrawFrameControl(dc, &rect, DFC_BUTTON, DFCS_BUTTONPUSH);
                                 })));
}

TEST_F(ButtonEx, ShowsTheImageOfItsState) {
    Button->SetDrawFocusedRect(false);
    Button->SetImageList(Images);
    PumpAll();
    EXPECT_EQ(Middle(), Colors[0]);
    Input.MoveTo(Button->WindowHandle(), 30, 10);
    EXPECT_EQ(Middle(), Colors[3]);
    Input.Press();
    EXPECT_EQ(Middle(), Colors[2]);
    Input.Release();
    Button->SetDown(true);
    EXPECT_EQ(Middle(), Colors[5]);
    Input.MoveTo(Form().GetHandle(), 5, 5);
    EXPECT_EQ(Middle(), Colors[4]);
    Button->SetEnabled(false);
    PumpAll();
    EXPECT_EQ(Middle(), Colors[1]);
}

TEST_F(ButtonEx, TheImageStandsInTheMiddleOfTheColour) {
    Button->SetImageList(Images);
    PumpAll();
    EXPECT_TRUE(test::SamePixels(
        Shown(), [](int x, int y) { return x >= 25 && x < 35 && y >= 5 && y < 15 ? Colors[0] : Ground; }));
}

TEST_F(ButtonEx, AStretchedImageTakesTheWholeButton) {
    Button->SetImageList(Images);
    Button->SetStretchImage(true);
    PumpAll();
    EXPECT_EQ(Shown().Count(Colors[0]), 60 * 20);
}

TEST_F(ButtonEx, AShortListLendsItsFirstAndItsPressedImage) {
    Button->SetImageList(Images);
    Button->SetDown(true);
    for (int i = 0; i < 3; ++i)
        Images->Delete(3);
    PumpAll();
    EXPECT_EQ(Middle(), Colors[2]);
    Button->SetDown(false);
    Input.MoveTo(Button->WindowHandle(), 30, 10);
    EXPECT_EQ(Middle(), Colors[0]);
    while (Images->GetCount() > 1)
        Images->Delete(1);
    Input.MoveTo(Form().GetHandle(), 5, 5);
    Button->SetEnabled(false);
    PumpAll();
    EXPECT_EQ(Middle(), Colors[0]);
}

TEST_F(ButtonEx, AnEmptyListLeavesAPushButton) {
    const Pixels plain = Shown();
    Images->Clear();
    Button->SetImageList(Images);
    PumpAll();
    EXPECT_TRUE(test::SamePixels(Shown(), plain));
}

TEST_F(ButtonEx, FollowsChangesOfItsImages) {
    Button->SetImageList(Images);
    PumpAll();
    test::FilledBitmap image(10, 10, clLime, pfDevice);
    Images->Replace(0, &image, nullptr);
    PumpAll();
    EXPECT_EQ(Middle(), clLime);
}

TEST_F(ButtonEx, ForgetsAListThatIsFreed) {
    const Pixels plain = Shown();
    Button->SetImageList(Images);
    delete Images;
    PumpAll();
    EXPECT_EQ(Button->GetImageList(), nullptr);
    EXPECT_TRUE(test::SamePixels(Shown(), plain));
}

TEST_F(ButtonEx, TheFontsAreThoseOfTheStates) {
    Button->SetImageList(Images);
    Button->SetCaption(L"WW");
    for (TFont* font : {&Button->GetFont(), &Button->GetFontHovered(), &Button->GetFontDisabled()})
        font->SetQuality(fqNonAntialiased);
    Button->GetFont().SetColor(clRed);
    Button->GetFontHovered().SetColor(clLime);
    Button->GetFontDisabled().SetColor(clBlue);
    PumpAll();
    EXPECT_GT(Shown().Count(clRed), 5);
    Input.MoveTo(Button->WindowHandle(), 30, 10);
    EXPECT_GT(Shown().Count(clLime), 5);
    EXPECT_EQ(Shown().Count(clRed), 0);
    Button->SetEnabled(false);
    PumpAll();
    EXPECT_GT(Shown().Count(clBlue), 5);
}

TEST_F(ButtonEx, AFontKeepsWhatItHasOfItsOwn) {
    Button->GetFontHovered().SetColor(clLime);
    Button->GetFont().SetColor(clRed);
    Button->GetFont().SetName(L"Courier New");
    Button->GetFont().SetQuality(fqNonAntialiased);
    EXPECT_EQ(Button->GetFontHovered().GetColor(), clLime);
    EXPECT_EQ(Button->GetFontHovered().GetName(), L"Courier New");
    EXPECT_EQ(Button->GetFontHovered().GetQuality(), fqNonAntialiased);
    EXPECT_EQ(Button->GetFontDisabled().GetColor(), clGrayText);
}

TEST_F(ButtonEx, MarginsAndAlignmentPlaceTheCaption) {
    Button->SetImageList(Images);
    Button->SetBounds(50, 40, 200, 40);
    Button->GetFont().SetColor(clRed);
    Button->GetFont().SetQuality(fqNonAntialiased);
    Button->SetCaption(L"H");
    const auto ink = [&] {
        PumpAll();
        return Shown().Bounds([](COLORREF c) { return c == static_cast<COLORREF>(clRed); });
    };
    Button->SetAlignment(taLeftJustify);
    const RECT left = ink();
    Button->SetTextMarginLeft(20);
    EXPECT_EQ(ink().left, left.left + 20);
    Button->SetTextMarginHorizontal(Button->GetTextMarginHorizontal() + 5);
    EXPECT_EQ(ink().left, left.left + 25);
    Button->SetAlignment(taRightJustify);
    const RECT right = ink();
    Button->SetTextMarginHorizontal(Button->GetTextMarginHorizontal() + 5);
    EXPECT_EQ(ink().right, right.right - 5);
}

TEST_F(ButtonEx, ThePressedCaptionMovesByItsOffsets) {
    Button->SetImageList(Images);
    Button->SetDrawFocusedRect(false);
    Button->SetBounds(50, 40, 200, 40);
    Button->SetAlignment(taLeftJustify);
    Button->GetFont().SetColor(clRed);
    Button->GetFont().SetQuality(fqNonAntialiased);
    Button->SetCaption(L"H");
    Button->SetTextOffsetDownHorizontal(3);
    Button->SetTextOffsetDownVertical(2);
    PumpAll();
    const auto ink = [&] {
        return Shown().Bounds([](COLORREF c) { return c == static_cast<COLORREF>(clRed); });
    };
    const RECT before = ink();
    Input.MoveTo(Button->WindowHandle(), 30, 10);
    Input.Press();
    EXPECT_EQ(ink().left, before.left + 3);
    EXPECT_EQ(ink().top, before.top + 2);
    Input.Release();
    Button->SetDown(true);
    EXPECT_EQ(ink().left, before.left + 3);
}

TEST_F(ButtonEx, ACaptionOfSeveralLinesIsDrawnInLines) {
    Button->SetImageList(Images);
    Button->SetBounds(50, 40, 100, 60);
    Button->GetFont().SetColor(clRed);
    Button->GetFont().SetQuality(fqNonAntialiased);
    const auto height = [&](const wchar_t* caption) {
        Button->SetCaption(caption);
        PumpAll();
        const RECT ink = Shown().Bounds([](COLORREF c) { return c == static_cast<COLORREF>(clRed); });
        return ink.bottom - ink.top;
    };
    EXPECT_GT(height(L"H\nH"), 2 * height(L"H"));
}

}  // namespace
