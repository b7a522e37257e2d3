#include "skin/surfaces/FlickerFreePaintBox.h"

#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/FlickerFreePanel.h"
#include "tests/skin/ControlTest.h"
#include "tests/support/WindowProbe.h"

namespace qv7skin {
namespace {

using probes::PixelsOf;
using test::Pixels;

constexpr TColor BoxColor = 0x00204060;

/// Shows what is protected.
class TOpenPaintBox : public TFlickerFreePaintBox {
public:
    using TFlickerFreePaintBox::Paint;
    using TFlickerFreePaintBox::TFlickerFreePaintBox;
};

class FlickerFreePaintBoxTest : public probes::ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        FBox = Make<TOpenPaintBox>({10, 20, 110, 60});
        FBox->SetColor(BoxColor);
        FBox->OnFFPaint = {this, &FlickerFreePaintBoxTest::PaintBuffer};
        test::PumpAll();
        FPaints = 0;
    }
    /// Red on the left half.
    void PaintBuffer(TObject* sender, TBitmap* buffer) {
        ++FPaints;
        FSender = sender;
        FLastBuffer = buffer;
        buffer->GetCanvas().GetBrush().SetColor(FPaintColor);
        buffer->GetCanvas().FillRect({0, 0, buffer->GetWidth() / 2, buffer->GetHeight()});
        if (FWhilePainting) FWhilePainting();
    }
    static COLORREF Picture(int x) { return x < 50 ? COLORREF{clRed} : COLORREF{BoxColor}; }
    /// How a box of 100 x 40 shows it, scaled and faded.
    static COLORREF Deformed(int width, int height, COLORREF faded, int x, int y) {
        return x < width / 2 && y < height ? faded : COLORREF{BoxColor};
    }

    TOpenPaintBox* FBox = nullptr;  // the form's
    int FPaints = 0;
    TObject* FSender = nullptr;
    TBitmap* FLastBuffer = nullptr;
    TColor FPaintColor = clRed;
    std::function<void()> FWhilePainting;
};

TEST_F(FlickerFreePaintBoxTest, StartsWithABufferThatNeedsPaint) {
    TFlickerFreePaintBox box(nullptr);
    EXPECT_TRUE(box.GetNeedsPaint());
    EXPECT_FALSE(box.GetPainting());
    EXPECT_FALSE(box.GetDeformed());
    EXPECT_TRUE(box.GetDoubleBuffered());
    EXPECT_TRUE(box.GetParentFont());
    EXPECT_FALSE(box.GetTabStop());
    EXPECT_EQ(box.GetBuffer().GetPixelFormat(), pf24bit);
    EXPECT_EQ(box.GetBuffer().GetWidth(), box.GetWidth());
    EXPECT_EQ(box.GetBuffer().GetHeight(), box.GetHeight());
    EXPECT_EQ(box.GetBuffer().GetCanvas().GetBrush().GetColor(), box.GetColor());
}

TEST_F(FlickerFreePaintBoxTest, ShowsWhatTheOwnerPainted) {
    EXPECT_TRUE(SamePixels(Shown(*FBox), [](int x, int) { return Picture(x); }));
    EXPECT_EQ(FSender, FBox);
    EXPECT_EQ(FLastBuffer, &FBox->GetBuffer());
    EXPECT_FALSE(FBox->GetNeedsPaint());
}

TEST_F(FlickerFreePaintBoxTest, APartIsPaintedAndShownAlone) {
    FPaintColor = clLime;
    FBox->RepaintPart({40, 10, 60, 20});
    EXPECT_EQ(FPaints, 1);
    const auto expected = [](int x, int y) {
        const bool inPart = x >= 40 && x < 50 && y >= 10 && y < 20;
        return inPart ? COLORREF{clLime} : Picture(x);
    };
    EXPECT_TRUE(SamePixels(test::ReadClient(FBox->GetHandle()), expected));
    EXPECT_TRUE(SamePixels(PixelsOf(FBox->GetBuffer()), expected));
}

TEST_F(FlickerFreePaintBoxTest, APartOfAnInvalidBufferIsAllOfIt) {
    FPaintColor = clLime;
    FBox->InvalidateBuffer();
    FBox->RepaintPart({40, 10, 60, 20});
    EXPECT_EQ(test::ReadClient(FBox->GetHandle()).At(0, 0), COLORREF{clLime});
    EXPECT_FALSE(FBox->GetNeedsPaint());
}

TEST_F(FlickerFreePaintBoxTest, APartOfADeformedBoxIsAllOfIt) {
    FBox->ApplyDeform(0.5L, 1, 1);
    FPaintColor = clLime;
    FBox->RepaintPart({0, 0, 10, 40});
    EXPECT_TRUE(SamePixels(test::ReadWindow(FBox->GetHandle()),
                           [](int x, int) { return x < 25 ? COLORREF{clLime} : COLORREF{BoxColor}; }));
}

TEST_F(FlickerFreePaintBoxTest, AnInvalidBufferIsPaintedWithTheNextMessage) {
    FPaintColor = clLime;
    FBox->InvalidateBuffer();
    EXPECT_TRUE(FBox->GetNeedsPaint());
    EXPECT_EQ(FPaints, 0);
    EXPECT_EQ(Shown(*FBox).At(10, 10), COLORREF{clLime});
    EXPECT_EQ(FPaints, 1);
    EXPECT_FALSE(FBox->GetNeedsPaint());
}

TEST_F(FlickerFreePaintBoxTest, PaintMessagesShowTheBufferAsItIs) {
    FBox->Invalidate();
    EXPECT_TRUE(SamePixels(Shown(*FBox), [](int x, int) { return Picture(x); }));
    EXPECT_EQ(FPaints, 0);
}

TEST_F(FlickerFreePaintBoxTest, RepaintingReachesTheScreenAtOnce) {
    test::WindowProbe probe(FBox->GetHandle());
    FPaintColor = clLime;
    FBox->Repaint();
    EXPECT_EQ(FPaints, 1);
    EXPECT_FALSE(probe.Saw(WM_PAINT));
    EXPECT_EQ(test::ReadWindow(FBox->GetHandle()).Count(clLime), 50 * 40);
    EXPECT_FALSE(probe.Saw(WM_PAINT));
}

TEST_F(FlickerFreePaintBoxTest, RepaintingFillsTheBufferWithTheControlsColor) {
    FBox->OnFFPaint.Clear();
    FBox->Repaint();
    EXPECT_EQ(Shown(*FBox).Count(BoxColor), 4000);
    FBox->SetColor(clYellow);
    FBox->GetBuffer().GetCanvas().GetBrush().SetColor(clBlack);
    FBox->Repaint();
    EXPECT_EQ(Shown(*FBox).Count(clYellow), 4000);
}

TEST_F(FlickerFreePaintBoxTest, TheBufferHasTheControlsFont) {
    FBox->GetFont().SetName(L"Courier New");
    FBox->GetFont().SetSize(19);
    FBox->Repaint();
    EXPECT_EQ(FBox->GetBuffer().GetCanvas().GetFont().GetName(), L"Courier New");
    EXPECT_EQ(FBox->GetBuffer().GetCanvas().GetFont().GetSize(), 19);
    FBox->GetBuffer().GetCanvas().GetFont().SetSize(30);
    FBox->Paint();
    EXPECT_EQ(FBox->GetBuffer().GetCanvas().GetFont().GetSize(), 19)
        << "also when nothing is painted into it";
}

TEST_F(FlickerFreePaintBoxTest, ANewSizeGetsANewBuffer) {
    FBox->SetBounds(10, 20, 60, 30);
    EXPECT_TRUE(FBox->GetNeedsPaint());
    EXPECT_EQ(FBox->GetBuffer().GetWidth(), 60);
    EXPECT_EQ(FBox->GetBuffer().GetHeight(), 30);
    EXPECT_EQ(FBox->GetBuffer().GetPixelFormat(), pf24bit);
    EXPECT_EQ(FBox->GetBuffer().GetCanvas().GetBrush().GetColor(), BoxColor);
    EXPECT_TRUE(
        SamePixels(Shown(*FBox), [](int x, int) { return x < 30 ? COLORREF{clRed} : COLORREF{BoxColor}; }));
    EXPECT_EQ(FPaints, 1);
}

TEST_F(FlickerFreePaintBoxTest, ASizeOfNothingIsBearable) {
    for (const TSize size : {TSize(0, 0), TSize(0, 20), TSize(20, 0), TSize(-5, -5)}) {
        FBox->SetBounds(10, 20, size.Width, size.Height);
        FBox->Repaint();
        FBox->ApplyDeform(0.5L, 0.5L, 0.5L);
        FBox->NoDeform();
        test::PumpAll();
    }
    FBox->SetBounds(10, 20, 100, 40);
    EXPECT_TRUE(SamePixels(Shown(*FBox), [](int x, int) { return Picture(x); }));
}

/// Copying to a canvas announces itself: there the control changes its size while it is being painted.
TEST_F(FlickerFreePaintBoxTest, ANewSizeWhilePaintingKeepsTheBuffer) {
    bool wasPainting = false;
    FBox->GetCanvas().OnChanging = [&](TObject*) {
        if (wasPainting) return;
        wasPainting = FBox->GetPainting();
        FBox->SetBounds(10, 20, 50, 20);
    };
    const TBitmap* buffer = &FBox->GetBuffer();
    FBox->Paint();
    FBox->GetCanvas().OnChanging.Clear();
    EXPECT_TRUE(wasPainting);
    EXPECT_EQ(&FBox->GetBuffer(), buffer);
    EXPECT_EQ(FBox->GetBuffer().GetWidth(), 100);
    EXPECT_EQ(FBox->GetBuffer().GetHeight(), 40);
    EXPECT_FALSE(FBox->GetPainting());
}

TEST_F(FlickerFreePaintBoxTest, AHandlerMayChangeTheSize) {
    FWhilePainting = [&] { FBox->SetBounds(10, 20, 80, 30); };
    FBox->Repaint();
    FWhilePainting = nullptr;
    EXPECT_EQ(FBox->GetBuffer().GetWidth(), 80);
    EXPECT_TRUE(
        SamePixels(Shown(*FBox), [](int x, int) { return x < 40 ? COLORREF{clRed} : COLORREF{BoxColor}; }));
}

TEST_F(FlickerFreePaintBoxTest, AHandlerMayFreeTheBox) {
    FWhilePainting = [&] { FBox->Free(); };
    FBox->Repaint();
    test::PumpAll();
    EXPECT_EQ(FPaints, 1);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(FlickerFreePaintBoxTest, DeformedByOneItLooksAsUsual) {
    FBox->ApplyDeform(1, 1, 1);
    EXPECT_TRUE(FBox->GetDeformed());
    EXPECT_TRUE(SamePixels(test::ReadWindow(FBox->GetHandle()), [](int x, int) { return Picture(x); }));
}

TEST_F(FlickerFreePaintBoxTest, HalfDeformedItIsSmallAndPaleInTheCorner) {
    FBox->ApplyDeform(0.5L, 0.5L, 0.5L);
    const TColor faded = RGBToColor((255 + 0x60) / 2 + 1, 0x40 / 2, 0x20 / 2);  // 175.5 goes to 176
    EXPECT_TRUE(SamePixels(test::ReadWindow(FBox->GetHandle()), [&](int x, int y) {
        return x < 25 && y < 20 ? COLORREF{faded} : COLORREF{BoxColor};
    }));
}

TEST_F(FlickerFreePaintBoxTest, DeformingAndItsEndReachTheScreenAtOnce) {
    const test::WindowProbe probe(FBox->GetHandle());
    FBox->ApplyDeform(0.5L, 0.5L, 0);
    EXPECT_EQ(test::ReadWindow(FBox->GetHandle()).Count(BoxColor), 100 * 40);
    FBox->NoDeform();
    EXPECT_EQ(test::ReadWindow(FBox->GetHandle()).Count(clRed), 50 * 40);
    EXPECT_FALSE(probe.Saw(WM_PAINT));
}

TEST_F(FlickerFreePaintBoxTest, ItStaysDeformedUntilToldOtherwise) {
    FBox->ApplyDeform(0.5L, 1, 1);
    FBox->Invalidate();
    const auto half = [](int x, int) { return x < 25 ? COLORREF{clRed} : COLORREF{BoxColor}; };
    EXPECT_TRUE(SamePixels(Shown(*FBox), half));
    FBox->Repaint();
    EXPECT_TRUE(SamePixels(test::ReadWindow(FBox->GetHandle()), half));
    FBox->NoDeform();
    EXPECT_FALSE(FBox->GetDeformed());
    EXPECT_TRUE(SamePixels(test::ReadWindow(FBox->GetHandle()), [](int x, int) { return Picture(x); }));
}

TEST_F(FlickerFreePaintBoxTest, ScaledSizesAreRoundedToTheEvenNumber) {
    // 100 x 0.045 = 4.5, 40 x 0.0625 = 2.5.
    FPaintColor = BoxColor;
    FBox->OnFFPaint = [](TObject*, TBitmap* buffer) {
        buffer->GetCanvas().GetBrush().SetColor(clRed);
        buffer->GetCanvas().FillRect({0, 0, buffer->GetWidth(), buffer->GetHeight()});
    };
    FBox->Repaint();
    FBox->ApplyDeform(0.045L, 0.0625L, 1);
    EXPECT_TRUE(SamePixels(test::ReadWindow(FBox->GetHandle()), [](int x, int y) {
        return x < 4 && y < 2 ? COLORREF{clRed} : COLORREF{BoxColor};
    }));
}

TEST_F(FlickerFreePaintBoxTest, EnlargedItFillsTheControl) {
    FBox->ApplyDeform(2, 2, 1);
    EXPECT_EQ(test::ReadWindow(FBox->GetHandle()).Count(clRed), 4000);
}

TEST_F(FlickerFreePaintBoxTest, FullyFadedOnlyTheControlsColorIsLeft) {
    FBox->ApplyDeform(1, 1, 0);
    EXPECT_EQ(test::ReadWindow(FBox->GetHandle()).Count(BoxColor), 4000);
    EXPECT_EQ(PixelsOf(FBox->GetBuffer()).Count(clRed), 2000);  // the buffer itself is not faded
}

TEST_F(FlickerFreePaintBoxTest, ErasingIsAnsweredAndDoesNothing) {
    const Pixels before = Shown(*FBox);
    const HDC dc = GetDC(FBox->GetHandle());
    EXPECT_EQ(SendMessageW(FBox->GetHandle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), 1);
    ReleaseDC(FBox->GetHandle(), dc);
    EXPECT_TRUE(SamePixels(test::ReadWindow(FBox->GetHandle()), before));
}

TEST_F(FlickerFreePaintBoxTest, TellsWhenThePointerComesAndGoes) {
    String heard;
    FBox->OnMouseEnter = [&](TObject* sender) { heard += sender == FBox ? L"enter " : L"? "; };
    FBox->OnMouseLeave = [&](TObject* sender) { heard += sender == FBox ? L"leave " : L"? "; };
    Input.MoveTo(FBox->GetHandle(), 5, 5);
    ASSERT_TRUE(test::PumpUntil([&] { return heard == L"enter "; }));
    Input.MoveTo(FBox->GetHandle(), 15, 8);
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return heard == L"enter leave "; })) << ToUtf8(heard);
}

TEST_F(FlickerFreePaintBoxTest, AtDesignTimeItShowsADashedFrame) {
    FBox->SetDesigning(true);
    FBox->Repaint();
    EXPECT_EQ(FPaints, 0);
    FBox->Invalidate();
    const Pixels shown = Shown(*FBox);
    EXPECT_EQ(FPaints, 0);
    EXPECT_EQ(shown.Part({1, 1, 99, 39}).Count(BoxColor), 98 * 38);
    const int onTop = shown.Part({0, 0, 100, 1}).Count(clBlack);
    EXPECT_GT(onTop, 20);
    EXPECT_LT(onTop, 100);
}

TEST_F(FlickerFreePaintBoxTest, WithoutAWindowOnlyTheBufferIsPainted) {
    TOpenPaintBox loose(nullptr);
    loose.SetBounds(0, 0, 20, 10);
    loose.OnFFPaint = FBox->OnFFPaint;
    loose.Repaint();
    loose.ApplyDeform(0.5L, 0.5L, 0.5L);
    loose.NoDeform();
    EXPECT_EQ(FPaints, 1);
    EXPECT_EQ(PixelsOf(loose.GetBuffer()).Count(clRed), 100);
}

TEST_F(FlickerFreePaintBoxTest, AnErrorWhilePaintingReachesTheApplication) {
    FWhilePainting = [] { throw EInvalidOperation(L"no paint"); };
    FBox->SetBounds(10, 20, 90, 40);
    test::PumpAll();
    FWhilePainting = nullptr;
    ASSERT_FALSE(Errors.empty());
    EXPECT_EQ(Errors.front(), "EInvalidOperation: no paint");
    Errors.clear();
    FBox->Repaint();
    EXPECT_EQ(Shown(*FBox).Count(clRed), 45 * 40);
    Errors.clear();
}

TEST_F(FlickerFreePaintBoxTest, ThousandsOfRepaintsLeaveNothingBehind) {
    const auto repaint = [&](int strength) {
        FBox->Repaint();
        FBox->ApplyDeform(0.5L, 0.5L, strength);
        FBox->NoDeform();
        FBox->Invalidate();
        FBox->Update();
    };
    repaint(0);
    repaint(1);
    const auto before = test::ResourceSnapshot::Take();
    for (int i = 0; i < 2000; ++i)
        repaint(i % 2);
    EXPECT_EQ(before.ChangeSince(), "");
}

class FlickerFreePanelTest : public probes::ControlTest {};

TEST_F(FlickerFreePanelTest, IsADoubleBufferedPanel) {
    auto* panel = Make<TFlickerFreePanel>({10, 10, 60, 40});
    panel->SetColor(clLime);
    panel->SetBevelOuter(bvNone);
    EXPECT_TRUE(panel->GetDoubleBuffered());
    EXPECT_EQ(Shown(*panel).Count(clLime), 1500);
    EXPECT_EQ(panel->ClassName(), L"TFlickerFreePanel");
}

}  // namespace
}  // namespace qv7skin
