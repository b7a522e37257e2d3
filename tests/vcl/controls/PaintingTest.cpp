#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "tests/support/PixelProbe.h"
#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class Painting : public ControlsTest {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        Form->SetColor(clWhite);
    }
    /// The form's pixel after all waiting paint messages.
    [[nodiscard]] COLORREF PixelAt(int x, int y) {
        PumpAll();
        return ReadClient(Form->WindowHandle()).At(x, y);
    }
    template <class T>
    T* Colored(TColor color, const TRect& bounds, TWinControl* parent = nullptr) {
        T* control = Make<T>(bounds, parent);
        control->SetColor(color);
        return control;
    }
};

TEST_F(Painting, EachControlPaintsItsPlace) {
    Colored<TProbeGraphic>(clRed, {10, 10, 30, 30});
    auto* window = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    Colored<TProbeGraphic>(clBlue, {10, 10, 20, 20}, window);
    const auto expected = [](int x, int y) -> COLORREF {
        const TPoint p{x, y};
        if (TRect(10, 10, 30, 30).Contains(p)) return clRed;
        if (TRect(60, 20, 70, 30).Contains(p)) return clBlue;
        return TRect(50, 10, 90, 50).Contains(p) ? clGreen : clWhite;
    };
    PumpAll();
    EXPECT_TRUE(SamePixels(ReadClient(Form->WindowHandle()), expected));
}

TEST_F(Painting, AGraphicControlPaintsInsideItsBoundsOnly) {
    auto* graphic = Colored<TProbeGraphic>(clRed, {10, 10, 30, 30});
    graphic->PaintHook = [&] {
        graphic->GetCanvas().GetBrush().SetColor(clBlue);
        graphic->GetCanvas().FillRect({-50, 5, 200, 10});
    };
    EXPECT_EQ(PixelAt(10, 15), clBlue);
    EXPECT_EQ(PixelAt(9, 15), clWhite);
    EXPECT_EQ(PixelAt(30, 15), clWhite);
    EXPECT_EQ(PixelAt(15, 14), clRed);
}

TEST_F(Painting, HiddenControlsAreNotPainted) {
    auto* graphic = Colored<TProbeGraphic>(clRed, {10, 10, 30, 30});
    auto* window = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    ASSERT_EQ(PixelAt(15, 15), clRed);
    graphic->Hide();
    window->Hide();
    EXPECT_EQ(PixelAt(15, 15), clWhite);
    EXPECT_EQ(PixelAt(55, 15), clWhite);
    window->Show();
    EXPECT_EQ(PixelAt(55, 15), clGreen);
}

TEST_F(Painting, TheUpperGraphicControlCoversTheLower) {
    auto* low = Colored<TProbeGraphic>(clRed, {10, 10, 30, 30});
    Colored<TProbeGraphic>(clBlue, {20, 20, 40, 40});
    EXPECT_EQ(PixelAt(25, 25), clBlue);
    low->BringToFront();
    EXPECT_EQ(PixelAt(25, 25), clRed);
}

TEST_F(Painting, RepaintShowsAtOnceAndUnderWhatLiesAbove) {
    auto* low = Colored<TProbeGraphic>(clRed, {10, 10, 30, 30});
    Colored<TProbeGraphic>(clBlue, {20, 20, 40, 40});
    low->ControlStyle.Include(csOpaque);
    PumpAll();
    low->PaintHook = [&] {
        low->GetCanvas().GetBrush().SetColor(clLime);
        low->GetCanvas().FillRect({0, 0, 20, 20});
    };
    low->Repaint();
    const Pixels now = ReadWindow(Form->WindowHandle());
    EXPECT_EQ(now.At(15, 15), clLime);
    EXPECT_EQ(now.At(25, 25), clBlue);
}

TEST_F(Painting, AWindowRepaintsWithoutTheMessageQueue) {
    auto* window = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    PumpAll();
    const int before = window->Paints;
    window->PaintHook = [&] {
        window->GetCanvas().GetBrush().SetColor(clRed);
        window->GetCanvas().FillRect({0, 0, 10, 10});
    };
    window->Repaint();
    EXPECT_EQ(window->Paints, before + 1);
    EXPECT_EQ(GetUpdateRect(window->WindowHandle(), nullptr, FALSE), 0);
    EXPECT_EQ(ReadWindow(Form->WindowHandle()).At(52, 12), clRed);
}

TEST_F(Painting, RepaintLeavesChildWindowsAlone) {
    auto* outer = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    Colored<TProbeWindow>(clBlue, {5, 5, 20, 20}, outer);
    PumpAll();
    outer->Repaint();
    EXPECT_EQ(PixelAt(60, 20), clBlue);
    Form->Repaint();
    EXPECT_EQ(PixelAt(60, 20), clBlue);
}

TEST_F(Painting, NothingIsPaintedWhileAParentIsHidden) {
    auto* outer = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    auto* inner = Colored<TProbeWindow>(clBlue, {5, 5, 20, 20}, outer);
    outer->Hide();
    PumpAll();
    inner->Paints = 0;
    inner->Repaint();
    EXPECT_EQ(inner->Paints, 0);
    EXPECT_FALSE(inner->GetShowing());
}

TEST_F(Painting, TheCanvasWorksOutsideOfPainting) {
    auto* graphic = Colored<TProbeGraphic>(clRed, {10, 10, 30, 30});
    auto* window = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    PumpAll();
    graphic->GetCanvas().GetBrush().SetColor(clBlue);
    graphic->GetCanvas().FillRect({15, 15, 100, 100});
    window->GetCanvas().GetBrush().SetColor(clYellow);
    window->GetCanvas().FillRect({0, 0, 5, 5});
    const Pixels now = ReadWindow(Form->WindowHandle());
    EXPECT_EQ(now.At(26, 26), clBlue);
    EXPECT_EQ(now.At(31, 31), clWhite) << "cut at the control's edge";
    EXPECT_EQ(now.At(52, 12), clYellow);
    EXPECT_TRUE(window->GetCanvas().HandleAllocated());
    SendMessageW(Form->WindowHandle(), WM_NULL, 0, 0);
    EXPECT_FALSE(window->GetCanvas().HandleAllocated()) << "given back after a message";
}

TEST_F(Painting, ManyCanvasesShareTheFewDeviceContextsOfTheSystem) {
    std::vector<TProbeGraphic*> all;
    for (int i = 0; i < 20; ++i)
        all.push_back(Colored<TProbeGraphic>(clRed, TRect::OfSize(i * 10, 0, 10, 10)));
    PumpAll();
    for (int round = 0; round < 3; ++round) {
        for (TProbeGraphic* graphic : all) {
            graphic->GetCanvas().GetBrush().SetColor(clBlue);
            graphic->GetCanvas().FillRect({0, 0, 10, 5});
        }
    }
    const Pixels now = ReadWindow(Form->WindowHandle());
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(now.At(i * 10 + 5, 2), clBlue);
        EXPECT_EQ(now.At(i * 10 + 5, 7), clRed);
    }
}

TEST_F(Painting, WithoutAParentACanvasHasNothingToDrawOn) {
    TProbeGraphic graphic(nullptr);
    EXPECT_THROW(graphic.GetCanvas().FillRect({0, 0, 1, 1}), EInvalidOperation);
}

TEST_F(Painting, DoubleBufferingShowsTheSamePicture) {
    auto* window = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    window->ControlStyle.Include(csOpaque);
    Colored<TProbeGraphic>(clBlue, {10, 10, 20, 20}, window);
    PumpAll();
    const Pixels direct = ReadClient(window->WindowHandle());
    window->SetDoubleBuffered(true);
    window->Invalidate();
    PumpAll();
    EXPECT_TRUE(SamePixels(ReadClient(window->WindowHandle()), direct));
    window->Repaint();
    EXPECT_TRUE(SamePixels(ReadClient(window->WindowHandle()), direct));
}

TEST_F(Painting, ABufferedWindowIsNeverErasedOnTheScreen) {
    auto* window = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    window->SetDoubleBuffered(true);
    PumpAll();
    COLORREF duringPaint = clWhite;
    window->SetColor(clRed);
    window->PaintHook = [&] { duringPaint = ReadWindow(Form->WindowHandle()).At(60, 20); };
    PumpAll();
    EXPECT_EQ(duringPaint, clGreen);
    EXPECT_EQ(PixelAt(60, 20), clRed);
}

TEST_F(Painting, BuffersOfWindowsInsideEachOtherDoNotMix) {
    auto* outer = Colored<TProbeWindow>(clGreen, {50, 10, 150, 110});
    auto* inner = Colored<TProbeWindow>(clBlue, {5, 5, 20, 20}, outer);
    outer->SetDoubleBuffered(true);
    ASSERT_TRUE(inner->GetDoubleBuffered());
    PumpAll();
    inner->SetColor(clRed);
    outer->PaintHook = [&] { inner->Repaint(); };
    outer->Repaint();
    EXPECT_EQ(PixelAt(57, 17), clRed);
    EXPECT_EQ(PixelAt(52, 12), clGreen);
    EXPECT_EQ(PixelAt(100, 60), clGreen);
}

TEST_F(Painting, PaintToCopiesTheWholeTree) {
    auto* outer = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    Colored<TProbeGraphic>(clBlue, {0, 0, 10, 10}, outer);
    auto* inner = Colored<TProbeWindow>(clRed, {20, 20, 30, 30}, outer);
    Colored<TProbeGraphic>(clLime, {0, 0, 5, 5}, inner);
    auto* hidden = Colored<TProbeWindow>(clBlack, {0, 30, 10, 40}, outer);
    hidden->Hide();
    const Pixels copy = Drawn(60, 60, clWhite, [&](HDC dc) { outer->PaintTo(dc, 10, 5); });
    EXPECT_TRUE(SamePixels(copy, [](int x, int y) -> COLORREF {
        const TPoint p{x - 10, y - 5};
        if (TRect(0, 0, 10, 10).Contains(p)) return clBlue;
        if (TRect(20, 20, 25, 25).Contains(p)) return clLime;
        if (TRect(20, 20, 30, 30).Contains(p)) return clRed;
        return TRect(0, 0, 40, 40).Contains(p) ? clGreen : clWhite;
    }));
}

TEST_F(Painting, AParentBackgroundShowsThrough) {
    class TThrough : public TProbeWindow {
    public:
        using TProbeWindow::TProbeWindow;

    protected:
        void Paint() override { GetCanvas().SetPixel(0, 0, clRed); }
    };
    auto* outer = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    outer->PaintHook = [&] {
        outer->GetCanvas().GetBrush().SetColor(clBlue);
        outer->GetCanvas().FillRect({0, 10, 40, 20});
    };
    auto* through = Make<TThrough>({5, 5, 25, 25}, outer);
    through->SetColor(clBlack);
    through->SetParentBackground(true);
    PumpAll();
    const Pixels now = ReadClient(through->WindowHandle());
    EXPECT_EQ(now.At(0, 0), clRed);
    EXPECT_EQ(now.At(10, 2), clGreen);
    EXPECT_EQ(now.At(10, 5), clBlue);
    EXPECT_EQ(now.At(10, 14), clBlue);
    EXPECT_EQ(now.At(10, 15), clGreen);
}

TEST_F(Painting, BevelsAreDrawnInTheFrame) {
    auto* window = Colored<TProbeWindow>(clGreen, {50, 10, 90, 50});
    window->SetBevelInner(bvNone);
    window->SetBevelKind(bkTile);
    PumpAll();
    const Pixels now = ReadWindow(Form->WindowHandle());
    EXPECT_EQ(now.At(50, 20), GetSysColor(COLOR_3DSHADOW));
    EXPECT_EQ(now.At(89, 20), GetSysColor(COLOR_3DHILIGHT));
    EXPECT_EQ(now.At(51, 20), clGreen);
    EXPECT_EQ(now.At(88, 20), clGreen);
}

TEST_F(Painting, ReflectsTheColoursOfSystemControls) {
    class TSystemText : public TWinControl {
    public:
        using TWinControl::TWinControl;

    protected:
        void CreateParams(TCreateParams& params) override {
            TWinControl::CreateParams(params);
            CreateSubClass(params, L"STATIC");
        }
    };
    auto* text = Make<TSystemText>({10, 10, 60, 30});
    text->SetColor(clAqua);
    EXPECT_EQ(PixelAt(50, 25), clAqua);
    text->SetText(L"abc");
    EXPECT_EQ(text->GetText(), L"abc");
}

}  // namespace
}  // namespace test
