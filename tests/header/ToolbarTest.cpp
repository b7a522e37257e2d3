#include "header/UnitQV7SkinHeaderChevron.h"
#include "platform/vcl/graphics/Canvas.h"
#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::Pixels;
using test::SamePixels;

constexpr int Margin = 10;
constexpr int BarHeight = 34;

class Toolbars : public StripTest<TQV7SkinToolbar> {
protected:
    [[nodiscard]] static Pixels Bar(int width) {
        const Pixels bar = Piece(L"TOOLBARBACKGROUND");
        return Pixels(width, BarHeight, [&](int, int y) { return bar.At(0, y); });
    }
    /// A button's background by its rule.
    [[nodiscard]] static Pixels Button(const String& state, int width) {
        Pixels button(width, BarHeight);
        const Pixels left = Piece(L"TOOLBUTTON" + state + L"LEFT");
        const Pixels right = Piece(L"TOOLBUTTON" + state + L"RIGHT");
        Put(button, left, 0, 0);
        Put(button, right, width - right.Width(), 0);
        Put(button, Piece(L"TOOLBUTTON" + state + L"CENTER"), left.Width(), 0,
            width - left.Width() - right.Width());
        return button;
    }
    TQV7SkinToolbutton* AddButton(const String& caption, TBitmap* image = nullptr,
                                  TBitmap* selected = nullptr) {
        auto* const button = new TQV7SkinToolbutton(caption, image, selected);
        Items().Add(button);
        return button;
    }
};

TEST_F(Toolbars, IsAsHighAsItsPictureAndHidesWhatIsCut) {
    EXPECT_EQ(Strip->GetHeight(), BarHeight);
    EXPECT_EQ(Strip->GetHorzOffset(), Margin);
    EXPECT_TRUE(Strip->GetHideClippedItems());
    EXPECT_FALSE(Strip->GetAllowItemDrag());
    EXPECT_TRUE(SamePixels(Shown(), Bar(300)));
}

TEST_F(Toolbars, AnotherHeightStretchesTheBar) {
    Strip->SetHeight(68);
    const Pixels shown = Shown();
    const Pixels bar = Piece(L"TOOLBARBACKGROUND");
    EXPECT_EQ(shown.At(0, 0), bar.At(0, 0));
    EXPECT_EQ(shown.At(299, 67), bar.At(0, 33));
}

TEST_F(Toolbars, ARestingButtonDoesNotShow) {
    Blank(new TQV7SkinToolbutton, 40);
    EXPECT_TRUE(SamePixels(Shown(), Bar(300)));
}

TEST_F(Toolbars, HoveredAndSelectedButtonsHaveTheirFrames) {
    Blank(new TQV7SkinToolbutton, 40);
    auto* second = Blank(new TQV7SkinToolbutton, 50);
    // Buttons are hit from x = 0 on, though the row begins at the margin.
    Input.MoveTo(Surface(), 20, 15);
    EXPECT_TRUE(SamePixels(ShownAt(Margin, 40), Button(L"HOVERED", 40)));
    EXPECT_TRUE(SamePixels(ShownAt(Margin + 40, 50), Bar(50)));
    second->SetSelected(true);
    EXPECT_TRUE(SamePixels(ShownAt(Margin + 40, 50), Button(L"PRESSED", 50)));
    Input.MoveTo(Surface(), 70, 15);
    EXPECT_TRUE(SamePixels(ShownAt(Margin, 40), Bar(40)));
    EXPECT_TRUE(SamePixels(ShownAt(Margin + 40, 50), Button(L"PRESSED", 50)));
    second->SetSelected(false);
    EXPECT_TRUE(SamePixels(ShownAt(Margin + 40, 50), Button(L"HOVERED", 50)));
}

TEST_F(Toolbars, ATabAmongTheButtonsShowsTheMouseToo) {
    AddBlank(40);
    EXPECT_TRUE(SamePixels(ShownAt(Margin, 40), Bar(40)));
    Input.MoveTo(Surface(), 20, 15);
    EXPECT_TRUE(SamePixels(ShownAt(Margin, 40), Button(L"HOVERED", 40)));
    Input.MoveTo(Surface(), 200, 15);
    EXPECT_TRUE(SamePixels(ShownAt(Margin, 40), Bar(40)));
}

TEST_F(Toolbars, AClickSelectsNothing) {
    int clicks = 0;
    AddButton(L"Neu")->OnClick = [&](TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int) {
        ++clicks;
    };
    Input.ClickAt(Surface(), 10, 15);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(Strip->GetSelectedItem(), nullptr);
}

TEST_F(Toolbars, ButtonsThatDoNotFitAreLeftOutForTheChevron) {
    Blank(new TQV7SkinToolbutton, 100);
    Blank(new TQV7SkinToolbutton, 100);
    EXPECT_FALSE(Strip->GetChevronVisible());
    auto* last = Blank(new TQV7SkinToolbutton, 100);
    last->SetSelected(true);
    ASSERT_TRUE(Strip->GetChevronVisible());
    const TQV7SkinHeaderChevronBase& chevron = Strip->GetChevron();
    EXPECT_NE(dynamic_cast<const TQV7SkinToolbarChevron*>(&chevron), nullptr);
    EXPECT_EQ(chevron.GetBoundsRect(), TRect(285, 0, 300, BarHeight));
    // The place where the third would begin.
    EXPECT_TRUE(SamePixels(ShownAt(Margin + 200, 75), Bar(75)));
    Items()[0]->SetVisible(false);
    EXPECT_TRUE(SamePixels(ShownAt(Margin + 100, 100), Button(L"PRESSED", 100)));
    EXPECT_FALSE(Strip->GetChevronVisible());
}

TEST_F(Toolbars, APictureForTheSelectedStateAloneIsCentredByItsOwnHeight) {
    TBitmap picture(10, 14, pf24bit);
    picture.GetCanvas().GetBrush().SetColor(clRed);
    picture.GetCanvas().FillRect(TRect(0, 0, 10, 14));
    TQV7SkinToolbutton* button = AddButton(L"", nullptr, &picture);
    button->SetSelected(true);
    const Pixels shown = Shown();
    const RECT red = shown.Bounds([](COLORREF color) { return color == static_cast<COLORREF>(clRed); });
    EXPECT_EQ(red.left, Margin + 7);
    EXPECT_EQ(red.top, (BarHeight - 14) / 2);
    EXPECT_EQ(red.bottom, (BarHeight - 14) / 2 + 14);
    Items().Clear();
}

TEST_F(Toolbars, ThePictureStandsBeforeTheCaption) {
    TBitmap picture(16, 16, pf24bit);
    picture.GetCanvas().GetBrush().SetColor(clRed);
    picture.GetCanvas().FillRect(TRect(0, 0, 16, 16));
    AddButton(L"", &picture);
    const RECT red = Shown().Bounds([](COLORREF color) { return color == static_cast<COLORREF>(clRed); });
    EXPECT_EQ(red.left, Margin + 7);
    EXPECT_EQ(red.top, 9);
    EXPECT_EQ(red.right, Margin + 7 + 16);
    EXPECT_EQ(Strip->GetItemRect(0).Width(), 16 + 3 + 14);
    Items().Clear();
}

}  // namespace
}  // namespace qv7skin
