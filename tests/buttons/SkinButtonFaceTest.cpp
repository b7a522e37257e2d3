#include "platform/vcl/graphics/Regions.h"
#include "tests/buttons/SkinButtonFixture.h"

namespace {

using namespace qv7skin;
using test::ExpectedFace;
using test::Pixels;
using test::PumpAll;
using test::SamePixels;

class SkinButtonFace : public test::SkinButtonTest {
protected:
    [[nodiscard]] Pixels Expected(TButtonExState state) const {
        return OnForm(ExpectedFace(state, Button->GetWidth(), Button->GetHeight()));
    }
};

TEST_F(SkinButtonFace, IsMadeOfTheDefaultFrameAtRest) {
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexNormal)));
}

TEST_F(SkinButtonFace, IsMadeOfTheHoveredFrameUnderTheMouse) {
    Input.MoveTo(Window(), 50, 12);
    EXPECT_EQ(Button->GetState(), bexHovered);
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexHovered)));
}

TEST_F(SkinButtonFace, IsMadeOfThePressedFrameUnderAPress) {
    Button->SetDrawFocusedRect(false);
    Input.MoveTo(Window(), 50, 12);
    Input.Press();
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexPressed)));
    Input.MoveTo(Form().GetHandle(), 5, 5);
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexNormal)));
    Input.MoveTo(Window(), 50, 12);
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexPressed)));
}

TEST_F(SkinButtonFace, IsMadeOfTheDisabledFrameWithAGreyInterior) {
    Button->SetBounds(50, 40, 100, 40);
    Button->SetEnabled(false);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexDisabled)));
    EXPECT_EQ(Shown().At(50, 20), 0x00939393u);
}

TEST_F(SkinButtonFace, LooksPressedWhileItIsSwitchedOn) {
    Button->SetDrawFocusedRect(false);
    Button->SetButtonStyle(bxsToggle);
    Button->SetDown(true);
    EXPECT_EQ(Button->GetState(), bexDown);
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexPressed)));
    Input.MoveTo(Window(), 50, 12);
    EXPECT_EQ(Button->GetState(), bexDownHovered);
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexPressed)));
}

TEST_F(SkinButtonFace, TheLastTwoStatesHaveThePicturesOfThePressedOne) {
    const auto image = [&](int index) {
        TBitmap bitmap;
        EXPECT_TRUE(Button->GetStateImages()->GetBitmap(index, bitmap));
        return test::ReadBitmap(bitmap.GetHandle());
    };
    EXPECT_TRUE(SamePixels(image(4), image(2)));
    EXPECT_TRUE(SamePixels(image(5), image(2)));
    EXPECT_FALSE(image(3) == image(2));
}

TEST_F(SkinButtonFace, EveryPictureFollowsTheRuleInEverySize) {
    for (const TSize size : {TSize{26, 24}, {27, 25}, {26, 60}, {100, 26}, {333, 77}}) {
        Button->SetBounds(10, 10, size.Width, size.Height);
        for (const TButtonExState state :
             {bexNormal, bexDisabled, bexPressed, bexHovered, bexDown, bexDownHovered}) {
            TBitmap bitmap;
            ASSERT_TRUE(Button->GetStateImages()->GetBitmap(static_cast<int>(state), bitmap));
            EXPECT_TRUE(SamePixels(test::ReadBitmap(bitmap.GetHandle()),
                                   ExpectedFace(state, size.Width, size.Height)))
                << size.Width << " x " << size.Height << ", state " << static_cast<int>(state);
        }
    }
}

TEST_F(SkinButtonFace, TheInteriorIsBlackGreyOrBlueByState) {
    Button->SetBounds(10, 10, 100, 60);
    const TColor interiors[] = {0x00000000, 0x00939393, 0x00C66021, 0x00000000, 0x00C66021, 0x00C66021};
    for (int state = 0; state < 6; ++state) {
        TBitmap bitmap;
        ASSERT_TRUE(Button->GetStateImages()->GetBitmap(state, bitmap));
        EXPECT_EQ(bitmap.GetCanvas().GetPixel(50, 30), interiors[state]) << state;
    }
}

// --- the window's outline

/// True when the region holds exactly the pixels of the picture that are not magenta.
testing::AssertionResult IsOutlineOf(HWND window, const Pixels& picture) {
    const TRegionHandle region(CreateRectRgn(0, 0, 0, 0));
    if (GetWindowRgn(window, region.Get()) == ERROR) return testing::AssertionFailure() << "no region";
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            if ((PtInRegion(region.Get(), x, y) != 0) != (picture.At(x, y) != 0x00FF00FF))
                return testing::AssertionFailure() << "differs at " << x << ", " << y;
    return testing::AssertionSuccess();
}

TEST_F(SkinButtonFace, TheWindowIsRoundLikeTheDefaultPicture) {
    ASSERT_EQ(ExpectedFace(bexNormal, 100, 25).At(0, 0), 0x00FF00FFu);
    EXPECT_TRUE(IsOutlineOf(Window(), ExpectedFace(bexNormal, 100, 25)));
    Button->SetBounds(50, 40, 150, 40);
    EXPECT_TRUE(IsOutlineOf(Window(), ExpectedFace(bexNormal, 150, 40)));
}

TEST_F(SkinButtonFace, ANewWindowGetsTheOutlineAgain) {
    Button->Built.clear();
    Button->RecreateWnd();
    PumpAll();
    EXPECT_TRUE(IsOutlineOf(Window(), ExpectedFace(bexNormal, 100, 25)));
    EXPECT_TRUE(Button->Built.empty());
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexNormal)));
}

TEST_F(SkinButtonFace, TheCornersBelongToTheForm) {
    EXPECT_EQ(Shown().At(0, 0), FormColor);
    int clicks = 0;
    Button->OnClick = [&](TObject*) { ++clicks; };
    Input.ClickAt(Form().GetHandle(), 50, 40);
    EXPECT_EQ(clicks, 0);
    Input.ClickAt(Form().GetHandle(), 100, 52);
    EXPECT_EQ(clicks, 1);
}

// --- when pictures are made

TEST_F(SkinButtonFace, SixPicturesAreMadeInTheOrderOfTheStates) {
    Button->Built.clear();
    Button->SetWidth(120);
    EXPECT_EQ(Button->Built, (std::vector<TButtonExState>{bexNormal, bexDisabled, bexPressed, bexHovered,
                                                          bexDown, bexDownHovered}));
    EXPECT_EQ(Button->GetStateImages()->GetCount(), 6);
    EXPECT_EQ(Button->GetStateImages()->GetWidth(), 120);
    EXPECT_EQ(Button->GetStateImages()->GetHeight(), 25);
}

TEST_F(SkinButtonFace, TheSameSizeMakesNoneAnew) {
    Button->Built.clear();
    Button->SetBounds(60, 50, 100, 25);
    Button->RebuildImages(false);
    EXPECT_TRUE(Button->Built.empty());
    Button->RebuildImages(true);
    EXPECT_EQ(Button->Built.size(), 6u);
}

TEST_F(SkinButtonFace, NoStateMakesAnyAnew) {
    Button->Built.clear();
    Input.MoveTo(Window(), 50, 12);
    Input.Click();
    Button->SetEnabled(false);
    PumpAll();
    EXPECT_TRUE(Button->Built.empty());
}

TEST_F(SkinButtonFace, ANewButtonHasPicturesAsSoonAsItHasAWindow) {
    auto* other = new test::ProbeSkinButton(&Form());
    other->SetParent(&Form());
    other->HandleNeeded();
    EXPECT_EQ(other->Built.size(), 6u);
    EXPECT_EQ(other->Regions, 1);
}

TEST_F(SkinButtonFace, LoadingMakesThePicturesEvenWithoutAWindow) {
    test::ProbeSkinButton button(nullptr);
    EXPECT_TRUE(button.Built.empty());
    button.Loaded();
    EXPECT_EQ(button.Built.size(), 6u);
    button.SetWidth(60);
    EXPECT_EQ(button.Built.size(), 12u);
    EXPECT_EQ(button.GetStateImages()->GetWidth(), 60);
}

TEST_F(SkinButtonFace, NewPicturesShowAtOnce) {
    const int before = Button->Paints;
    Button->RebuildImages(true);
    EXPECT_EQ(Button->Paints, before + 1);
}

TEST_F(SkinButtonFace, AButtonWithoutAreaHasNoPictures) {
    Button->SetBounds(50, 40, 0, 25);
    PumpAll();
    EXPECT_EQ(Button->GetStateImages()->GetCount(), 0);
    Button->SetBounds(50, 40, 100, 25);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexNormal)));
}

TEST_F(SkinButtonFace, AButtonSmallerThanItsCornersStillPaints) {
    for (const TSize size : {TSize{20, 10}, {1, 1}, {5, 40}, {13, 12}}) {
        Button->SetBounds(50, 40, size.Width, size.Height);
        PumpAll();
        EXPECT_EQ(Button->GetStateImages()->GetCount(), 6);
    }
}

TEST_F(SkinButtonFace, AnImageListOfTheHostDoesNotReplaceTheFrames) {
    TImageList images(nullptr);
    TBitmap image(16, 16);
    images.Add(&image, nullptr);
    Button->SetImageList(&images);
    PumpAll();
    EXPECT_TRUE(SamePixels(Shown(), Expected(bexNormal)));
}

}  // namespace
