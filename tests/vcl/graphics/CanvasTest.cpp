#include "platform/vcl/graphics/Canvas.h"

#include <array>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::Shows;

/// Draws on 20 x 12 pixels.
class CanvasTest : public probes::PaintingTest {
protected:
    CanvasTest() : PaintingTest(20, 12) {}

    [[nodiscard]] static bool Inside(const TRect& r, int x, int y) { return r.Contains({x, y}); }
    [[nodiscard]] static bool OnBorder(const TRect& r, int x, int y) {
        TRect inner = r;
        inner.Inflate(-1, -1);
        return Inside(r, x, y) && !Inside(inner, x, y);
    }
};

class CanvasHandleTest : public test::LedgerTest {};

TEST_F(CanvasTest, APixelIsReadAsItWasSet) {
    Canvas().SetPixel(3, 4, 0x00D78112);
    EXPECT_EQ(At(3, 4), 0x00D78112U);
    EXPECT_EQ(At(4, 4), clWhite);
    Canvas().SetPixel(3, 4, clBtnText);
    EXPECT_EQ(At(3, 4), ColorToRGB(clBtnText));
}

TEST_F(CanvasTest, PixelsOutsideReadAsInvalidAndTakeNothing) {
    for (const TPoint p : {TPoint(-1, 0), TPoint(0, -1), TPoint(20, 0), TPoint(0, 12)}) {
        Canvas().SetPixel(p.X, p.Y, clRed);
        EXPECT_EQ(At(p.X, p.Y), clInvalid);
    }
    EXPECT_TRUE(Shows(Bitmap(), [](int, int) { return clWhite; }));
}

TEST_F(CanvasTest, ALineLeavesItsEndOut) {
    Canvas().GetPen().SetColor(clRed);
    Canvas().MoveTo(2, 3);
    Canvas().LineTo(7, 3);
    EXPECT_EQ(Canvas().GetPenPos(), TPoint(7, 3));
    Canvas().LineTo(7, 6);
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
        return (y == 3 && x >= 2 && x < 7) || (x == 7 && y >= 3 && y < 6) ? clRed : clWhite;
    }));
    Canvas().SetPenPos({1, 2});
    EXPECT_EQ(Canvas().GetPenPos(), TPoint(1, 2));
}

TEST_F(CanvasTest, ARectangleHasAnOutlineAndAnInside) {
    Canvas().GetPen().SetColor(clRed);
    Canvas().GetBrush().SetColor(clBlue);
    const TRect r{2, 1, 9, 8};
    Canvas().Rectangle(r);
    EXPECT_TRUE(Shows(Bitmap(), [&](int x, int y) {
        return OnBorder(r, x, y) ? clRed : Inside(r, x, y) ? clBlue : clWhite;
    }));
}

TEST_F(CanvasTest, AClearBrushLeavesTheInsideAlone) {
    Canvas().GetBrush().SetStyle(bsClear);
    const TRect r{0, 0, 5, 5};
    Canvas().Rectangle(r);
    EXPECT_TRUE(Shows(Bitmap(), [&](int x, int y) { return OnBorder(r, x, y) ? clBlack : clWhite; }));
}

TEST_F(CanvasTest, FillingTakesTheBrushAlone) {
    Canvas().GetPen().SetColor(clRed);
    Canvas().GetBrush().SetColor(clGreen);
    const TRect r{4, 2, 15, 11};
    Canvas().FillRect(r);
    EXPECT_TRUE(Shows(Bitmap(), [&](int x, int y) { return Inside(r, x, y) ? clGreen : clWhite; }));
}

TEST_F(CanvasTest, AFrameIsOnePixelOfBrush) {
    Canvas().GetBrush().SetColor(clNavy);
    const TRect r{1, 1, 18, 10};
    Canvas().FrameRect(r);
    EXPECT_TRUE(Shows(Bitmap(), [&](int x, int y) { return OnBorder(r, x, y) ? clNavy : clWhite; }));
}

TEST_F(CanvasTest, TheFocusFrameRemovesItself) {
    probes::Paint(Bitmap(), probes::Numbered);
    Canvas().GetBrush().SetColor(clRed);
    Canvas().GetFont().SetColor(clGreen);
    (void)Canvas().TextExtent(L"x");
    Canvas().DrawFocusRect({1, 1, 15, 10});
    EXPECT_FALSE(Shows(Bitmap(), probes::Numbered));
    EXPECT_EQ(At(3, 5), probes::Numbered(3, 5));
    Canvas().DrawFocusRect({1, 1, 15, 10});
    EXPECT_TRUE(Shows(Bitmap(), probes::Numbered));
}

TEST_F(CanvasTest, ThePenModeMixesWithWhatIsThere) {
    Canvas().GetBrush().SetColor(0x00F0F0F0);
    Canvas().FillRect({0, 0, 20, 12});
    Canvas().GetPen().SetColor(0x00FF00FF);
    Canvas().GetPen().SetMode(pmXor);
    Canvas().MoveTo(0, 0);
    Canvas().LineTo(5, 0);
    EXPECT_EQ(At(2, 0), 0x000FF00FU);
    Canvas().GetPen().SetMode(pmNot);
    Canvas().MoveTo(0, 1);
    Canvas().LineTo(5, 1);
    EXPECT_EQ(At(2, 1), 0x000F0F0FU);
    Canvas().GetPen().SetMode(pmMask);
    Canvas().MoveTo(0, 2);
    Canvas().LineTo(5, 2);
    EXPECT_EQ(At(2, 2), 0x00F000F0U);
    Canvas().GetPen().SetMode(pmNop);
    Canvas().MoveTo(0, 3);
    Canvas().LineTo(5, 3);
    EXPECT_EQ(At(2, 3), 0x00F0F0F0U);
    Canvas().GetPen().SetMode(pmWhite);
    Canvas().MoveTo(0, 4);
    Canvas().LineTo(5, 4);
    EXPECT_EQ(At(2, 4), clWhite);
    Canvas().GetPen().SetMode(pmCopy);
    Canvas().MoveTo(0, 5);
    Canvas().LineTo(5, 5);
    EXPECT_EQ(At(2, 5), clFuchsia);
}

TEST_F(CanvasTest, GapsOfADottedPenShowTheBrushOrNothing) {
    Canvas().GetPen().SetStyle(psDot);
    Canvas().GetPen().SetColor(clRed);
    Canvas().GetBrush().SetColor(clYellow);
    Canvas().MoveTo(0, 0);
    Canvas().LineTo(20, 0);
    EXPECT_GT(CountOf(clYellow), 0);
    EXPECT_EQ(CountOf(clYellow) + CountOf(clRed), 20);
    const int gaps = CountOf(clYellow);
    Canvas().GetBrush().SetStyle(bsClear);
    Canvas().MoveTo(0, 1);
    Canvas().LineTo(20, 1);
    EXPECT_EQ(CountOf(clYellow), gaps);
}

TEST_F(CanvasTest, AnEllipseTouchesTheMiddleOfItsEdges) {
    Canvas().GetPen().SetColor(clRed);
    Canvas().GetBrush().SetColor(clLime);
    Canvas().Ellipse({0, 0, 11, 11});
    for (const TPoint p : {TPoint(5, 0), TPoint(0, 5), TPoint(10, 5), TPoint(5, 10)})
        EXPECT_EQ(At(p.X, p.Y), clRed) << p.X << "," << p.Y;
    for (const TPoint p : {TPoint(0, 0), TPoint(10, 0), TPoint(0, 10), TPoint(10, 10)})
        EXPECT_EQ(At(p.X, p.Y), clWhite) << p.X << "," << p.Y;
    EXPECT_EQ(At(5, 5), clLime);
}

TEST_F(CanvasTest, ARoundedRectangleLosesItsCornersOnly) {
    Canvas().GetBrush().SetColor(clLime);
    Canvas().RoundRect({0, 0, 20, 12}, 8, 8);
    EXPECT_EQ(At(0, 0), clWhite);
    EXPECT_EQ(At(19, 11), clWhite);
    EXPECT_EQ(At(10, 0), clBlack);
    EXPECT_EQ(At(0, 6), clBlack);
    EXPECT_EQ(At(10, 6), clLime);
}

TEST_F(CanvasTest, APolygonIsFilledAPolylineIsNot) {
    const std::array<TPoint, 4> corners = {TPoint(2, 2), TPoint(8, 2), TPoint(8, 8), TPoint(2, 8)};
    Canvas().GetBrush().SetColor(clAqua);
    Canvas().Polygon(corners);
    EXPECT_EQ(At(5, 5), clAqua);
    EXPECT_EQ(At(2, 5), clBlack);
    const std::array<TPoint, 3> path = {TPoint(10, 2), TPoint(18, 2), TPoint(18, 8)};
    Canvas().Polyline(path);
    EXPECT_EQ(At(14, 2), clBlack);
    EXPECT_EQ(At(18, 7), clBlack);
    EXPECT_EQ(At(14, 5), clWhite);
}

TEST_F(CanvasTest, ArcsRunCounterClockwise) {
    // The upper half: from the right end over the top to the left end.
    Canvas().Arc({0, 0, 11, 11}, {10, 5}, {0, 5});
    EXPECT_EQ(At(5, 0), clBlack);
    EXPECT_EQ(At(5, 10), clWhite);
    EXPECT_EQ(At(5, 5), clWhite);
    Canvas().GetBrush().SetColor(clRed);
    Canvas().Chord({0, 0, 11, 11}, {10, 5}, {0, 5});
    EXPECT_EQ(At(5, 3), clRed);
    EXPECT_EQ(At(5, 8), clWhite);
    Canvas().GetBrush().SetColor(clBlue);
    Canvas().Pie({0, 0, 11, 11}, {10, 5}, {5, 0});
    EXPECT_EQ(At(7, 3), clBlue);
    EXPECT_EQ(At(3, 3), clRed);
}

TEST_F(CanvasTest, AFloodFillStopsAtColorOrBorder) {
    Canvas().GetBrush().SetStyle(bsClear);
    Canvas().Rectangle({2, 2, 10, 10});
    Canvas().GetBrush().SetColor(clRed);
    Canvas().FloodFill(5, 5, clWhite, fsSurface);
    EXPECT_EQ(At(3, 3), clRed);
    EXPECT_EQ(At(0, 0), clWhite);
    Canvas().GetBrush().SetColor(clBlue);
    Canvas().FloodFill(5, 5, clBlack, fsBorder);
    EXPECT_EQ(At(8, 8), clBlue);
    EXPECT_EQ(At(11, 11), clWhite);
}

TEST_F(CanvasTest, APatternBrushRepeatsItsPicture) {
    TBitmap pattern(8, 8, pf24bit);
    probes::Paint(pattern, probes::Numbered);
    Canvas().GetBrush().SetBitmap(&pattern);
    Canvas().FillRect({0, 0, 20, 12});
    Canvas().GetBrush().SetBitmap(nullptr);
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) { return probes::Numbered(x % 8, y % 8); }));
}

TEST_F(CanvasTest, DrawingIsToldBeforeAndAfter) {
    std::string told;
    Canvas().OnChanging = [&](TObject* sender) {
        EXPECT_EQ(sender, &Canvas());
        told += '<';
    };
    Canvas().OnChange = [&](TObject*) { told += '>'; };
    Canvas().FillRect({0, 0, 1, 1});
    Canvas().SetPixel(0, 0, clRed);
    Canvas().MoveTo(1, 1);
    (void)Canvas().GetPixel(0, 0);
    (void)Canvas().TextWidth(L"x");
    EXPECT_EQ(told, "<><>");
    Canvas().DrawDirectly([](HDC dc) { ::SetPixel(dc, 2, 2, clBlue); });
    EXPECT_EQ(told, "<><><>");
    EXPECT_EQ(At(2, 2), clBlue);
}

TEST_F(CanvasTest, TheClipRectangleIsTheSurface) {
    EXPECT_EQ(Canvas().GetClipRect(), TRect(0, 0, 20, 12));
    {
        const TClipScope clip(Canvas(), {5, 5, 100, 8});
        EXPECT_EQ(Canvas().GetClipRect(), TRect(5, 5, 20, 8));
        Canvas().GetBrush().SetColor(clRed);
        Canvas().FillRect({0, 0, 20, 12});
    }
    EXPECT_EQ(Canvas().GetClipRect(), TRect(0, 0, 20, 12));
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) { return x >= 5 && y >= 5 && y < 8 ? clRed : clWhite; }));
}

TEST_F(CanvasTest, AStateScopeKeepsTheToolsRight) {
    Canvas().GetPen().SetColor(clRed);
    Canvas().MoveTo(0, 0);
    Canvas().LineTo(1, 0);
    {
        const TCanvasStateScope scope(Canvas());
        Canvas().GetPen().SetColor(clBlue);
        Canvas().MoveTo(1, 0);
        Canvas().LineTo(2, 0);
    }
    // The context has the red pen again; the canvas knows that the blue one has to be selected.
    Canvas().MoveTo(2, 0);
    Canvas().LineTo(3, 0);
    EXPECT_EQ(At(0, 0), clRed);
    EXPECT_EQ(At(1, 0), clBlue);
    EXPECT_EQ(At(2, 0), clBlue);
}

TEST_F(CanvasTest, AStateScopeOutlivesAChangeOfTheSurface) {
    {
        const TCanvasStateScope scope(Canvas());
        Bitmap().SetSize(5, 5);
        Canvas().FillRect({0, 0, 5, 5});
    }
    Canvas().SetPixel(1, 1, clRed);
    EXPECT_EQ(At(1, 1), clRed);
}

TEST_F(CanvasHandleTest, ABorrowedContextGetsItsObjectsBack) {
    const TMemoryDC dc = CreateMemoryDC();
    const HGDIOBJ font = GetCurrentObject(dc.Get(), OBJ_FONT);
    const HGDIOBJ pen = GetCurrentObject(dc.Get(), OBJ_PEN);
    const HGDIOBJ brush = GetCurrentObject(dc.Get(), OBJ_BRUSH);
    TCanvas canvas;
    canvas.SetHandle(dc.Get());
    canvas.GetFont().SetSize(20);
    canvas.GetPen().SetColor(clRed);
    canvas.GetBrush().SetColor(clRed);
    canvas.Rectangle(0, 0, 1, 1);
    canvas.TextOut(0, 0, L"x");
    EXPECT_NE(GetCurrentObject(dc.Get(), OBJ_FONT), font);
    EXPECT_NE(GetCurrentObject(dc.Get(), OBJ_PEN), pen);
    EXPECT_NE(GetCurrentObject(dc.Get(), OBJ_BRUSH), brush);
    canvas.Refresh();
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), pen);
    canvas.Rectangle(0, 0, 1, 1);
    canvas.SetHandle(nullptr);
    EXPECT_FALSE(canvas.HandleAllocated());
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_FONT), font);
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_BRUSH), brush);
}

TEST_F(CanvasHandleTest, WithoutAContextDrawingFails) {
    TCanvas canvas;
    EXPECT_EQ(probes::MessageOf<EInvalidOperation>([&] {
                  canvas.FillRect({0, 0, 1, 1});
              }),
              L"Canvas does not allow drawing");
}

TEST_F(CanvasHandleTest, WhatIsSelectedIsNotSelectedAgain) {
    const TMemoryDC dc = CreateMemoryDC();
    TCanvas canvas;
    canvas.SetHandle(dc.Get());
    (void)canvas.TextExtent(L"x");
    const HGDIOBJ stock = GetStockObject(SYSTEM_FONT);
    SelectObject(dc.Get(), stock);
    canvas.GetFont().SetColor(clRed);
    (void)canvas.TextExtent(L"x");
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_FONT), stock);
    canvas.GetFont().SetStyle({fsBold});
    (void)canvas.TextExtent(L"x");
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_FONT), canvas.GetFont().GetHandle());
}

TEST_F(CanvasHandleTest, AFontMayEndWhileItIsSelected) {
    const TMemoryDC dc = CreateMemoryDC();
    TCanvas canvas;
    canvas.SetHandle(dc.Get());
    canvas.GetFont().SetHeight(-19);
    (void)canvas.TextExtent(L"x");
    const HFONT selected = canvas.GetFont().GetHandle();
    canvas.GetFont().SetHeight(-20);
    EXPECT_EQ(GetObjectType(selected), static_cast<DWORD>(OBJ_FONT));
    (void)canvas.TextExtent(L"x");
    EXPECT_EQ(GetObjectType(selected), 0U);
}

}  // namespace
}  // namespace vcl
