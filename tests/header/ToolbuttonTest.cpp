#include "header/items/Toolbutton.h"

#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using probes::TProbeStrip;
using test::Pixels;

class ToolbuttonTest : public probes::HeaderTest {
protected:
    TQV7SkinToolbutton* AddButton(const String& caption, TBitmap* image = nullptr,
                                  TBitmap* imageSelected = nullptr) {
        auto* const button = new TQV7SkinToolbutton(caption, image, imageSelected);
        Items().Add(button);
        return button;
    }
    static std::unique_ptr<TBitmap> Picture(int width, int height, TColor color) {
        auto bitmap = std::make_unique<TBitmap>(width, height, pf24bit);
        bitmap->GetCanvas().GetBrush().SetColor(color);
        bitmap->GetCanvas().FillRect({0, 0, width, height});
        return bitmap;
    }
    /// The background in a state: the strip leaves the corners magenta, a button is a whole rectangle.
    static COLORREF Background(int x, int y, int width, int height, int state) {
        return TProbeStrip::InShape(x, y, width, height)
                   ? static_cast<COLORREF>(TProbeStrip::StateColor(state))
                   : static_cast<COLORREF>(probes::Magenta);
    }
};

TEST_F(ToolbuttonTest, MeasuresPictureCaptionAndMargins) {
    const auto picture = Picture(16, 16, clRed);
    EXPECT_EQ(WidthOf(*AddButton(L"")), 14);
    EXPECT_EQ(WidthOf(*AddButton(L"Caption")), TextWidth(L"Caption", {}) + 14);
    EXPECT_EQ(WidthOf(*AddButton(L"", picture.get())), 16 + 3 + 14);
    EXPECT_EQ(WidthOf(*AddButton(L"Caption", picture.get())), 16 + 3 + TextWidth(L"Caption", {}) + 14);
    TQV7SkinToolbutton* const button = AddButton(L"Caption", nullptr, picture.get());
    EXPECT_EQ(WidthOf(*button), TextWidth(L"Caption", {}) + 14);
    button->OnMeasure = [](TQV7SkinHeaderItemCustom*, TCanvas&, int& width) { width += 5; };
    EXPECT_EQ(WidthOf(*button), 5);
}

TEST_F(ToolbuttonTest, AClickTellsAndSelectsNothing) {
    TQV7SkinToolbutton* const button = AddButton(L"");
    Watch(*button, "button");
    Input.ClickAt(Surface(), 7, 10);
    EXPECT_FALSE(button->GetSelected());
    EXPECT_EQ(Log, (std::vector<std::string>{"enter button", "click button 7,10"}));
}

TEST_F(ToolbuttonTest, ShowsTheBackgroundOfItsState) {
    TQV7SkinToolbutton* const button = AddButton(L"");
    const auto shown = [&] { return Shown().Part({0, 0, 14, 21}); };
    const auto inState = [](int state) {
        return [state](int x, int y) { return Background(x, y, 14, 21, state); };
    };
    EXPECT_TRUE(SamePixels(shown(), inState(0)));
    Input.MoveTo(Surface(), 7, 10);
    EXPECT_TRUE(SamePixels(shown(), inState(1)));
    button->SetSelected(true);
    EXPECT_TRUE(SamePixels(shown(), inState(2)));
    Header->SetSelectedItem(nullptr);
    Input.MoveAway();
    ASSERT_TRUE(test::PumpUntil([&] { return button->GetBackgroundState() == 0; }));
    EXPECT_TRUE(SamePixels(shown(), inState(0)));
}

TEST_F(ToolbuttonTest, CentresItsPictureVertically) {
    const auto picture = Picture(10, 8, clRed);
    TQV7SkinToolbutton* const button = AddButton(L"", picture.get());
    const Pixels shown = DrawnItem(*button, 4, 40, 30, pf24bit);
    const RECT place = shown.Bounds([](COLORREF c) { return c == clRed; });
    EXPECT_EQ(place.left, 4 + 7);
    EXPECT_EQ(place.top, (30 - 8) / 2);
    EXPECT_EQ(place.right, 4 + 7 + 10);
    EXPECT_EQ(place.bottom, 11 + 8);
}

TEST_F(ToolbuttonTest, NewPicturesPaintTheRowAtOnce) {
    const auto picture = Picture(10, 8, clRed);
    TQV7SkinToolbutton* const button = AddButton(L"");
    const probes::TBarItem* const beside = AddBar(20);
    int draws = beside->Draws;
    button->SetImage(picture.get());
    EXPECT_EQ(beside->Draws, ++draws);
    button->SetImageSelected(picture.get());
    EXPECT_EQ(beside->Draws, ++draws);
    Items().Clear();
}

TEST_F(ToolbuttonTest, DrawsItsCaptionBlackAfterThePicture) {
    const auto picture = Picture(10, 8, clRed);
    const auto textLeft = [&](TQV7SkinToolbutton& button) {
        return DrawnItem(button, 0, 100, 30, pf24bit).Bounds([](COLORREF c) { return c == clBlack; }).left;
    };
    const auto alone = textLeft(*AddButton(L"|"));
    EXPECT_GE(alone, 7);
    EXPECT_LT(alone, 7 + 4);
    EXPECT_EQ(textLeft(*AddButton(L"|", picture.get())), alone + 10 + 3);
}

TEST_F(ToolbuttonTest, APictureForTheSelectedButtonAloneIsCentredByItself) {
    const auto picture = Picture(10, 8, clRed);
    TQV7SkinToolbutton* const button = AddButton(L"", nullptr, picture.get());
    button->SetSelected(true);
    const Pixels shown = DrawnItem(*button, 0, 40, 30, pf24bit);
    const RECT place = shown.Bounds([](COLORREF c) { return c == clRed; });
    EXPECT_EQ(place.left, 7);
    EXPECT_EQ(place.top, 11);
}

TEST_F(ToolbuttonTest, ATallerPictureForTheSelectedButtonStandsWhereTheOtherDoes) {
    const auto picture = Picture(10, 8, clLime), selected = Picture(10, 12, clRed);
    TQV7SkinToolbutton* const button = AddButton(L"", picture.get(), selected.get());
    button->SetSelected(true);
    EXPECT_EQ(DrawnItem(*button, 0, 40, 30, pf24bit).Bounds([](COLORREF c) { return c == clRed; }).top, 11);
}

TEST_F(ToolbuttonTest, IsDrawnByTheHostOnItsBackground) {
    TQV7SkinToolbutton* const button = AddButton(L"Caption");
    button->OnMeasure = [](TQV7SkinHeaderItemCustom*, TCanvas&, int& width) { width += 40; };
    button->OnDraw = [](TQV7SkinHeaderItemCustom*, TCanvas& canvas, int height, int& x) {
        EXPECT_EQ(canvas.GetFont().GetColor(), TColor{clBlack});
        EXPECT_EQ(canvas.GetBrush().GetStyle(), bsClear);
        canvas.GetBrush().SetColor(clRed);
        canvas.FillRect({x + 10, 0, x + 20, height});
    };
    Header->Refresh();
    EXPECT_TRUE(SamePixels(Shown().Part({0, 0, 40, 21}), [](int x, int y) -> COLORREF {
        return x >= 10 && x < 20 ? COLORREF{clRed} : Background(x, y, 40, 21, 0);
    }));
}

TEST_F(ToolbuttonTest, IsRenderedAnewWhenItIsToBe) {
    TQV7SkinToolbutton* const button = AddButton(L"A");
    Header->Rendered.clear();
    Header->Refresh();
    EXPECT_TRUE(Header->Rendered.empty());
    button->SetNeedsRender();
    Header->Refresh();
    EXPECT_FALSE(button->GetNeedsRender());
    button->SetSelected(false);
    EXPECT_TRUE(button->GetNeedsRender());
    Header->Refresh();
    Header->Look = 3;
    Header->Refresh();
    EXPECT_EQ(Header->Rendered, (std::vector<int>{0, 0, 0}));
}

}  // namespace
}  // namespace qv7skin
