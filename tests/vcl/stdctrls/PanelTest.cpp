#include "platform/vcl/stdctrls/Panel.h"

#include "platform/vcl/graphics/Font.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;

class PanelTest : public FormTest {
protected:
    static constexpr int Width = 60;
    static constexpr int Height = 40;

    TPanel* MakePanel() {
        auto* panel = Make<TPanel>({10, 10, 10 + Width, 10 + Height});
        panel->SetColor(0x00204060);
        return panel;
    }
    Pixels Picture(TPanel& panel) { return ReadClient(panel.WindowHandle()); }

    /// The colour of a pixel of a frame `depth` pixels inside the panel's edge, or the inside's.
    static COLORREF Framed(int x, int y, int depth, int width, TColor top, TColor bottom, COLORREF inside) {
        const int toRight = Width - 1 - x - depth;
        const int toBottom = Height - 1 - y - depth;
        const int ring = std::min({x - depth, y - depth, toRight, toBottom});
        if (ring < 0 || ring >= width) return inside;
        const bool lower = toRight == ring || toBottom == ring;
        return ColorToRGB(lower ? bottom : top);
    }
};

TEST_F(PanelTest, TheOuterBevelIsRaisedAtFirst) {
    TPanel* panel = MakePanel();
    EXPECT_TRUE(SamePixels(Picture(*panel), [](int x, int y) {
        return Framed(x, y, 0, 1, clBtnHighlight, clBtnShadow, 0x00204060);
    }));
}

TEST_F(PanelTest, BevelsAndBorderLieInsideEachOther) {
    TPanel* panel = MakePanel();
    panel->SetBevelOuter(bvLowered);
    panel->SetBevelInner(bvRaised);
    panel->SetBevelWidth(2);
    panel->SetBorderWidth(3);
    EXPECT_TRUE(SamePixels(Picture(*panel), [](int x, int y) {
        const COLORREF inner = Framed(x, y, 5, 2, clBtnHighlight, clBtnShadow, 0x00204060);
        return Framed(x, y, 0, 2, clBtnShadow, clBtnHighlight, inner);
    }));
}

TEST_F(PanelTest, ASpaceBevelOnlyTakesRoom) {
    TPanel* panel = MakePanel();
    panel->SetBevelOuter(bvNone);
    auto* child = Make<TPanel>({0, 0, 5, 5}, panel);
    child->SetAlign(alClient);
    EXPECT_EQ(child->GetWidth(), Width);
    panel->SetBevelOuter(bvSpace);
    panel->SetBevelWidth(4);
    EXPECT_EQ(child->GetLeft(), 4);
    EXPECT_EQ(child->GetWidth(), Width - 8);
}

TEST_F(PanelTest, AlignedChildrenKeepOffBevelsAndBorder) {
    TPanel* panel = MakePanel();
    panel->SetBevelInner(bvLowered);
    panel->SetBevelWidth(2);
    panel->SetBorderWidth(5);
    auto* child = Make<TPanel>({0, 0, 5, 5}, panel);
    child->SetAlign(alClient);
    EXPECT_EQ(child->GetBoundsRect(), TRect(9, 9, Width - 9, Height - 9));
}

TEST_F(PanelTest, BadWidthsAreCorrected) {
    TPanel* panel = MakePanel();
    panel->SetBevelWidth(-3);
    panel->SetBorderWidth(-1);
    EXPECT_EQ(panel->GetBevelWidth(), 1);
    EXPECT_EQ(panel->GetBorderWidth(), 0);
}

TEST_F(PanelTest, TheCaptionStandsWhereAlignmentSays) {
    TPanel* panel = MakePanel();
    panel->SetColor(clWhite);
    panel->SetBevelOuter(bvNone);
    panel->GetFont().SetQuality(fqNonAntialiased);
    panel->GetFont().SetColor(clBlack);
    panel->SetCaption(L"HH");
    const auto ink = [&] { return TRect(Picture(*panel).Bounds([](COLORREF c) { return c == 0; })); };
    EXPECT_NEAR((ink().Left + ink().Right) / 2, Width / 2, 2);
    EXPECT_NEAR((ink().Top + ink().Bottom) / 2, Height / 2, 3);
    panel->SetAlignment(taRightJustify);
    EXPECT_GT(ink().Right, Width - 4);
    panel->SetVerticalAlignment(tlTop);
    EXPECT_LT(ink().Top, 6);
    panel->SetShowCaption(false);
    EXPECT_TRUE(ink().IsEmpty());
}

TEST_F(PanelTest, TheParentsGroundShowsThroughWhenAsked) {
    TPanel* panel = MakePanel();
    Form().SetColor(0x00112233);
    panel->SetBevelOuter(bvNone);
    panel->SetParentBackground(true);
    EXPECT_TRUE(SamePixels(Picture(*panel), [](int, int) { return 0x00112233; }));
    panel->SetParentBackground(false);
    EXPECT_TRUE(SamePixels(Picture(*panel), [](int, int) { return 0x00204060; }));
}

TEST_F(PanelTest, ANewSizeIsPaintedWithoutRemains) {
    TPanel* panel = MakePanel();
    panel->SetFullRepaint(false);
    for (const TSize size : {TSize{90, 70}, TSize{Width, Height}}) {
        panel->SetBounds(10, 10, size.Width, size.Height);
        const Pixels grown = Picture(*panel);
        panel->Invalidate();
        EXPECT_TRUE(SamePixels(grown, Picture(*panel)));
    }
}

TEST_F(PanelTest, ASingleBorderTakesRoomOfTheWindow) {
    TPanel* panel = MakePanel();
    panel->SetBorderStyle(bsSingle);
    const int edge = GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(panel->GetClientWidth(), Width - 2 * edge);
    TPanel without(nullptr);
    without.SetBorderStyle(bsSingle);
    EXPECT_EQ(without.GetClientWidth(), without.GetWidth() - 2 * edge);
    panel->SetCtl3D(false);
    EXPECT_EQ(panel->GetClientWidth(), Width - 2 * GetSystemMetrics(SM_CXBORDER));
}

TEST_F(PanelTest, AutoSizeWrapsTheChildren) {
    TPanel* panel = MakePanel();
    panel->SetAutoSize(true);
    EXPECT_EQ(panel->GetWidth(), Width);
    Make<TPanel>({3, 4, 33, 24}, panel);
    EXPECT_EQ(panel->GetHeight(), 24);
}

}  // namespace
}  // namespace test
