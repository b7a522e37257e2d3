#include "designer/surface/Guides.h"

#include <gtest/gtest.h>

#include "designer/surface/Handles.h"

namespace designer {
namespace {

constexpr TSnapping GridOnly{.Grid = 8, .Distance = 4, .UseGuides = false};
constexpr TSnapping WithGuides{.Grid = 8, .Distance = 4, .UseGuides = true};

TEST(Snapping, ARectangleMovesToTheGridAndKeepsItsSize) {
    EXPECT_EQ(Snapped(TRect::OfSize(11, 13, 30, 20), {}, {}, GridOnly), TRect::OfSize(8, 16, 30, 20));
    EXPECT_EQ(Snapped(TRect::OfSize(12, 12, 30, 20), {}, {}, GridOnly), TRect::OfSize(16, 16, 30, 20))
        << "half way: on";
    EXPECT_EQ(Snapped(TRect::OfSize(-5, -3, 30, 20), {}, {}, GridOnly), TRect::OfSize(-8, 0, 30, 20));
}

TEST(Snapping, AGridOfOnePixelChangesNothing) {
    for (int x = -20; x <= 20; ++x)
        EXPECT_EQ(Snapped(TRect::OfSize(x, 5, 9, 9), {}, {}, {.Grid = 1, .UseGuides = false}),
                  TRect::OfSize(x, 5, 9, 9));
}

TEST(Snapping, EveryPlaceComesToAPointOfTheGridAtMostHalfAStepAway) {
    for (int x = -40; x <= 40; ++x) {
        const TRect snapped = Snapped(TRect::OfSize(x, 0, 10, 10), {}, {}, GridOnly);
        EXPECT_EQ(snapped.Left % 8, 0) << x;
        EXPECT_LE(std::abs(snapped.Left - x), 4) << x;
    }
}

TEST(Snapping, AnEdgeOfAnotherControlWinsOverTheGrid) {
    const TRect other = TRect::OfSize(101, 50, 60, 21);
    EXPECT_EQ(Snapped(TRect::OfSize(103, 8, 40, 20), {}, std::span(&other, 1), WithGuides).Left, 101);
    EXPECT_EQ(Snapped(TRect::OfSize(120, 8, 40, 20), {}, std::span(&other, 1), WithGuides).Right, 161)
        << "right edges";
    EXPECT_EQ(Snapped(TRect::OfSize(110, 8, 40, 20), {}, std::span(&other, 1), WithGuides).Left, 112)
        << "none is near";
    EXPECT_EQ(Snapped(TRect::OfSize(103, 8, 40, 20), {}, std::span(&other, 1), GridOnly).Left, 104);
}

TEST(Snapping, OnlyTheEdgesThatMoveComeToRest) {
    const TRect place{3, 3, 50, 50};
    EXPECT_EQ(Snapped({3, 3, 61, 50}, {.Right = true}, {}, GridOnly), TRect(3, 3, 64, 50));
    EXPECT_EQ(Snapped({9, 11, 50, 50}, {.Left = true, .Top = true}, {}, GridOnly), TRect(8, 8, 50, 50));
    EXPECT_EQ(Snapped({49, 3, 50, 50}, {.Left = true}, {}, {.Grid = 100, .UseGuides = false}),
              TRect(0, 3, 50, 50));
    EXPECT_GE(Snapped({49, 3, 50, 50}, {.Left = true}, {}, GridOnly).Width(), 1) << "never less than a pixel";
    EXPECT_EQ(place, TRect(3, 3, 50, 50));
}

TEST(Guides, RunAlongEdgesThatLieInOneLine) {
    const TRect others[] = {TRect::OfSize(10, 100, 50, 20), TRect::OfSize(200, 10, 50, 20)};
    const auto guides = GuidesOf(TRect::OfSize(10, 10, 80, 30), others);
    ASSERT_EQ(guides.size(), 2u);
    EXPECT_EQ(guides[0].Line, TRect(10, 10, 11, 120)) << "left edges";
    EXPECT_EQ(guides[1].Line, TRect(10, 10, 250, 11)) << "top edges";
    EXPECT_TRUE(GuidesOf(TRect::OfSize(300, 300, 5, 5), others).empty());

    const TRect row[] = {TRect::OfSize(100, 10, 20, 30), TRect::OfSize(200, 10, 20, 50),
                         TRect::OfSize(10, 300, 9, 9)};
    const auto merged = GuidesOf(TRect::OfSize(10, 10, 80, 30), row);
    ASSERT_EQ(merged.size(), 3u) << "one line for all that lie on it";
    EXPECT_EQ(merged[0].Line, TRect(10, 10, 120, 11)) << "as far as the nearest";
}

TEST(Handles, EachStandsOnItsCornerOrEdge) {
    const TRect place = TRect::OfSize(20, 30, 101, 51);
    const auto handles = HandlesAround(place);
    for (int i = 0; i < 8; ++i) {
        const TRect& handle = handles[static_cast<std::size_t>(i)];
        const TPoint middle{(handle.Left + handle.Right) / 2, (handle.Top + handle.Bottom) / 2};
        EXPECT_EQ(HandleAt(place, middle), i);
        const TMovingEdges edges = EdgesOf(i);
        if (edges.Left) {
            EXPECT_EQ(middle.X, place.Left);
        }
        if (edges.Right) {
            EXPECT_EQ(middle.X, place.Right - 1);
        }
        if (edges.Top) {
            EXPECT_EQ(middle.Y, place.Top);
        }
        if (edges.Bottom) {
            EXPECT_EQ(middle.Y, place.Bottom - 1);
        }
        EXPECT_FALSE(edges.IsNone());
    }
    EXPECT_FALSE(HandleAt(place, {50, 40}).has_value());
}

TEST(Handles, MovedEdgesNeverCross) {
    const TRect place{10, 10, 50, 40};
    EXPECT_EQ(WithEdgesMoved(place, EdgesOf(4), 5, 7), TRect(10, 10, 55, 47));
    EXPECT_EQ(WithEdgesMoved(place, EdgesOf(0), 100, 100), TRect(49, 39, 50, 40));
    EXPECT_EQ(WithEdgesMoved(place, EdgesOf(3), -100, 100), TRect(10, 10, 11, 40));
}

}  // namespace
}  // namespace designer
