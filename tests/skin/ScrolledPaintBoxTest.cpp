#include "skin/surfaces/ScrolledPaintBox.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/ScrollBox.h"
#include "tests/skin/ControlTest.h"

namespace qv7skin {
namespace {

using test::Pixels;
using test::PumpAll;

/// A paint box of 100,000 rows in a scroll box of 80 x 60; each row has a colour of its own.
class ScrolledPaintBoxTest : public probes::ControlTest {
protected:
    static constexpr int ContentHeight = 100'000;

    void SetUp() override {
        ControlTest::SetUp();
        FFrame = new TScrollBox(nullptr);
        FFrame->SetBorderStyle(bsNone);
        FFrame->SetBounds(10, 10, 80 + GetSystemMetrics(SM_CXVSCROLL), 60);
        FFrame->SetParent(&Form());
        FBox = new TScrolledPaintBox(nullptr);
        FBox->SetBounds(0, 0, 80, ContentHeight);
        FBox->OnFFPaint = {this, &ScrolledPaintBoxTest::PaintRows};
        FBox->SetParent(FFrame);
        PumpAll();
        FRows = {};
    }
    void PaintRows(TObject*, TBitmap* buffer) {
        EXPECT_EQ(buffer->GetHeight(), ContentHeight);
        TCanvas& canvas = buffer->GetCanvas();
        const TRect reach = canvas.GetClipRect();
        FRows.push_back({reach.Top, reach.Bottom});
        for (int y = reach.Top; y < reach.Bottom; ++y) {
            canvas.GetBrush().SetColor(ColorOf(y) + FShade);
            canvas.FillRect({0, y, 80, y + 1});
        }
    }
    static TColor ColorOf(int row) { return 0x00800000 + row % 60'000; }
    void ScrollTo(int position) { FFrame->GetVertScrollBar().SetPosition(position); }
    testing::AssertionResult ShowsRowsFrom(int first) {
        return SamePixels(test::ReadClient(FBox->GetHandle()),
                          [&](int, int y) { return COLORREF{static_cast<COLORREF>(ColorOf(first + y))}; });
    }

    TScrollBox* FFrame = nullptr;       // the form's
    TScrolledPaintBox* FBox = nullptr;  // the frame's
    std::vector<TRowSpan> FRows;
    int FShade = 0;
};

TEST_F(ScrolledPaintBoxTest, TheWindowCoversWhatIsSeen) {
    RECT window{};
    GetClientRect(FBox->GetHandle(), &window);
    EXPECT_EQ(TRect(window), TRect(0, 0, 80, 60));
    EXPECT_EQ(FBox->GetClientRect(), TRect(0, 0, 80, ContentHeight));
    EXPECT_EQ(FBox->SeenRows(), (TRowSpan{0, 60}));
    EXPECT_TRUE(ShowsRowsFrom(0));
    EXPECT_EQ(FFrame->GetVertScrollBar().GetRange(), ContentHeight);
}

TEST_F(ScrolledPaintBoxTest, ScrollingPaintsOnlyTheRowsThatCome) {
    ScrollTo(13);
    EXPECT_EQ(FRows, (std::vector<TRowSpan>{{60, 73}}));
    EXPECT_TRUE(ShowsRowsFrom(13));
    ScrollTo(3);
    EXPECT_EQ(FRows.back(), (TRowSpan{3, 13}));
    EXPECT_TRUE(ShowsRowsFrom(3));
    ScrollTo(70'000);
    EXPECT_EQ(FRows.back(), (TRowSpan{70'000, 70'060}));
    EXPECT_TRUE(ShowsRowsFrom(70'000));
    ScrollTo(ContentHeight);
    EXPECT_TRUE(ShowsRowsFrom(ContentHeight - 60));
    EXPECT_EQ(FBox->GetTop(), 60 - ContentHeight);
}

TEST_F(ScrolledPaintBoxTest, APartIsPaintedAsFarAsItIsSeen) {
    ScrollTo(50'000);
    FRows.clear();
    FShade = 0x1000;
    FBox->RepaintPart({0, 50'010, 80, 50'012});
    EXPECT_EQ(FRows, (std::vector<TRowSpan>{{50'010, 50'012}}));
    const Pixels shown = test::ReadClient(FBox->GetHandle());
    for (int y = 0; y < 60; ++y)
        EXPECT_EQ(shown.At(5, y),
                  static_cast<COLORREF>(ColorOf(50'000 + y) + (y == 10 || y == 11 ? FShade : 0)));
    FBox->RepaintPart({0, 10, 80, 20});
    EXPECT_EQ(test::ReadClient(FBox->GetHandle()).At(5, 12), shown.At(5, 12));
}

TEST_F(ScrolledPaintBoxTest, PositionsAreThoseOfTheContent) {
    ScrollTo(60'000);
    TPoint moved;
    TPoint pressed;
    FBox->OnMouseMove = [&](TObject*, TShiftState, int x, int y) { moved = {x, y}; };
    FBox->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int x, int y) { pressed = {x, y}; };
    Input.MoveTo(FBox->GetHandle(), 7, 9);
    EXPECT_EQ(moved, TPoint(7, 60'009));
    Input.Press();
    EXPECT_EQ(pressed, TPoint(7, 60'009));
    const TPoint screen{Input.Position().x, Input.Position().y};
    EXPECT_EQ(FBox->ScreenToClient(screen), TPoint(7, 60'009));
}

TEST_F(ScrolledPaintBoxTest, TheWindowFollowsItsParentsSize) {
    ScrollTo(40'000);
    FFrame->SetHeight(90);
    FBox->FollowParent();
    PumpAll();
    EXPECT_EQ(FBox->SeenRows(), (TRowSpan{40'000, 40'090}));
    EXPECT_TRUE(ShowsRowsFrom(40'000));
}

TEST_F(ScrolledPaintBoxTest, ItsPictureInAnotherPlaceIsTheSame) {
    ScrollTo(300);
    TBitmap copy(80, 60, pf24bit);
    FFrame->PaintTo(copy.GetCanvas().GetHandle(), 0, 0);
    for (int y = 0; y < 60; ++y)
        EXPECT_EQ(copy.GetCanvas().GetPixel(4, y), ColorOf(300 + y));
}

TEST_F(ScrolledPaintBoxTest, ADisplayThatIsScaledDownShowsRowsBeyondTheBuffer) {
    FBox->ApplyDeform(1, 0.01, 1);
    PumpAll();
    const Pixels shown = test::ReadClient(FBox->GetHandle());
    for (int y = 0; y < 60; ++y) {
        const int row = static_cast<int>(shown.At(5, y)) - 0x00800000;
        EXPECT_GE(row, y * 100 - 1) << "a factor of 0.01 is a little more";
        EXPECT_LT(row, y * 100 + 100);
    }
    FBox->NoDeform();
    EXPECT_TRUE(ShowsRowsFrom(0));
}

TEST_F(ScrolledPaintBoxTest, WhatTheDeformedPictureLeavesFreeHasTheControlsColor) {
    FBox->SetColor(clLime);
    FBox->ApplyDeform(0.5, 0.0002, 1);
    const Pixels shown = test::ReadClient(FBox->GetHandle());
    for (int y = 0; y < 60; ++y)
        EXPECT_EQ(shown.At(60, y), COLORREF{clLime});
    for (int y = 20; y < 60; ++y)
        EXPECT_EQ(shown.At(5, y), COLORREF{clLime});
    EXPECT_NE(shown.At(5, 10), COLORREF{clLime});
}

}  // namespace
}  // namespace qv7skin
