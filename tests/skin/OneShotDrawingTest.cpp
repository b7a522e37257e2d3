#include "skin/utils/OneShotDrawing.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "skin/utils/RasterSteps.h"
#include "tests/skin/PictureOnGround.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::MessageOf;
using probes::PixelsOf;
using probes::RandomColors;
using test::Pixels;

class OneShotDrawingTest : public probes::PictureOnGroundTest {};

TEST_F(OneShotDrawingTest, DrawsEverythingButTheTransparentColor) {
    for (const TPixelFormat from : {pf24bit, pf32bit})
        for (const TPixelFormat to : {pf24bit, pf32bit}) {
            const auto bitmap = BitmapOf(FPicture, from);
            const auto ground = BitmapOf(FGround, to);
            DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 5, 3, Magenta);
            EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(5, 3)));
        }
}

TEST_F(OneShotDrawingTest, TheCallersBitmapIsAsBefore) {
    const auto bitmap = BitmapOf(FPicture);
    const auto ground = BitmapOf(FGround);
    DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 5, 3, Magenta);
    EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), FPicture));
}

TEST_F(OneShotDrawingTest, ABitmapThatWasDrawnOnIsDrawnToo) {
    // Its canvas may still hold the bitmap selected.
    const auto bitmap = BitmapOf(FPicture);
    bitmap->GetCanvas().SetPixel(0, 0, clAqua);
    FPicture.Set(0, 0, clAqua);
    const auto ground = BitmapOf(FGround);
    DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 0, 0, Magenta);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(0, 0)));
}

TEST_F(OneShotDrawingTest, WidthAndHeightCutAndNeverScale) {
    const auto bitmap = BitmapOf(FPicture);
    for (const TSize size : {TSize(4, 3), TSize(4, 0), TSize(0, 3), TSize(0, 0)}) {
        const auto ground = BitmapOf(FGround);
        DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 2, 1, size.Width, size.Height, Magenta);
        EXPECT_TRUE(SamePixels(PixelsOf(*ground),
                               Expected(2, 1, size.Width ? size.Width : 9, size.Height ? size.Height : 7)));
    }
}

TEST_F(OneShotDrawingTest, ALargerSizeDrawsWhatThereIs) {
    const auto bitmap = BitmapOf(FPicture);
    const auto ground = BitmapOf(FGround);
    DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 2, 1, 15, 12, Magenta);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground).Part({2, 1, 11, 8}), Expected(2, 1).Part({2, 1, 11, 8})));
}

TEST_F(OneShotDrawingTest, DrawsOverTheEdges) {
    const auto bitmap = BitmapOf(FPicture);
    for (const TPoint place : {TPoint(-3, -2), TPoint(15, 12)}) {
        const auto ground = BitmapOf(FGround);
        DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), place.X, place.Y, Magenta);
        EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(place.X, place.Y)));
    }
}

TEST_F(OneShotDrawingTest, ASystemColorIsLookedUp) {
    const COLORREF face = ColorToRGB(clBtnFace);
    const auto bitmap = BitmapOf(3, 3, face);
    const auto ground = BitmapOf(FGround);
    DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 2, 1, clBtnFace);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), FGround));
}

TEST_F(OneShotDrawingTest, RasterStepsAndWorkInMemoryAgree) {
    RandomColors random(5);
    for (int round = 0; round < 60; ++round) {
        const TPixelFormat from = random.Next(2) ? pf24bit : pf32bit, to = random.Next(2) ? pf24bit : pf32bit;
        const auto number = [&](int least, int limit) {
            return least + static_cast<int>(random.Next(static_cast<unsigned>(limit - least)));
        };
        const Pixels picture =
            random.Picture(number(1, 12), number(1, 12), {Magenta, 0x00123456, clBlack, clWhite});
        const int x = number(-8, 22), y = number(-8, 18), width = number(-1, 14), height = number(-1, 14);
        const auto bitmap = BitmapOf(picture, from);
        const auto inMemory = BitmapOf(FGround, to), bySteps = BitmapOf(FGround, to);
        DrawTransparentBitmap(inMemory->GetCanvas(), bitmap.get(), x, y, width, height, Magenta);
        DrawTransparentSteps(bySteps->GetCanvas().GetHandle(), bitmap->GetHandle(), x, y, width, height,
                             Magenta);
        EXPECT_TRUE(SamePixels(PixelsOf(*inMemory), PixelsOf(*bySteps))) << "round " << round;
        EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), picture));
    }
}

TEST_F(OneShotDrawingTest, AnyFormatIsDrawnOnAnyCanvas) {
    for (const TPixelFormat from : {pf1bit, pf4bit, pf8bit, pf16bit, pf24bit})
        for (const TPixelFormat to : {pf8bit, pf16bit, pf24bit, pf32bit}) {
            const auto bitmap = BitmapOf(RandomColors(6).Picture(7, 5, {clWhite, clBlack}), from);
            const Pixels shown = PixelsOf(*bitmap);
            const auto ground = BitmapOf(12, 12, clRed, to);
            DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 2, 3, clWhite);
            EXPECT_TRUE(SamePixels(PixelsOf(*ground),
                                   [&](int x, int y) {
                                       return shown.At(x - 2, y - 3) == clBlack ? COLORREF{clBlack}
                                                                                : COLORREF{clRed};
                                   }))
                << static_cast<int>(from) << " on " << static_cast<int>(to);
            EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), shown));
        }
}

TEST_F(OneShotDrawingTest, DrawsOnlyInsideTheClipRegion) {
    const auto bitmap = BitmapOf(20, 16, clRed);
    const auto ground = BitmapOf(FGround);
    {
        const TClipScope clip(ground->GetCanvas(), {3, 4, 10, 9});
        DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 0, 0, Magenta);
    }
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), [&](int x, int y) {
        return TRect(3, 4, 10, 9).Contains({x, y}) ? COLORREF{clRed} : FGround.At(x, y);
    }));
}

TEST_F(OneShotDrawingTest, ABitmapIsDrawnOnItself) {
    const auto bitmap = BitmapOf(4, 1, clLime);
    bitmap->GetCanvas().SetPixel(0, 0, clRed);
    DrawTransparentBitmap(bitmap->GetCanvas(), bitmap.get(), 1, 0, clLime);
    EXPECT_EQ(PixelsOf(*bitmap).At(1, 0), COLORREF{clRed});
}

TEST_F(OneShotDrawingTest, ChangesAreTold) {
    const auto bitmap = BitmapOf(FPicture);
    const auto ground = BitmapOf(FGround);
    int changes = 0;
    ground->OnChange = [&](TObject*) { ++changes; };
    DrawTransparentBitmap(ground->GetCanvas(), bitmap.get(), 0, 0, Magenta);
    EXPECT_EQ(changes, 1);
}

TEST_F(OneShotDrawingTest, NothingToDrawDoesNothing) {
    const auto ground = BitmapOf(FGround);
    DrawTransparentBitmap(ground->GetCanvas(), nullptr, 0, 0, Magenta);
    TBitmap empty;
    DrawTransparentBitmap(ground->GetCanvas(), &empty, 0, 0, Magenta);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), FGround));
}

// --- Failing steps

int callsUntilFailure = 0;

BOOL WINAPI FailingBlit(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY,
                        DWORD operation) {
    if (callsUntilFailure-- == 0) return FALSE;
    return BitBlt(to, x, y, width, height, from, fromX, fromY, operation);
}

struct Step {
    const wchar_t* Message;
    int Line;
};
constexpr Step Steps[] = {
    {L"BitBlt: Save the bitmap", 319},
    {L"BitBlt: Create object mask", 328},
    {L"BitBlt: Create inverse object mask", 335},
    {L"BitBlt: Copy background of main dc", 339},
    {L"BitBlt: Copy background of main dc", 343},
    {L"BitBlt: Mask out transparent pixels", 347},
    {L"BitBlt: XOR with background", 351},
    {L"BitBlt: Copy destination to screen", 360},
    {L"BitBlt: Restore original bitmap", 364},
};

class FailingStepTest : public OneShotDrawingTest, public ::testing::WithParamInterface<int> {};

TEST_P(FailingStepTest, RaisesItsMessageAndLeavesNothingBehind) {
    const int step = GetParam();
    const auto bitmap = BitmapOf(FPicture);
    const auto ground = BitmapOf(FGround);
    const HDC canvas = ground->GetCanvas().GetHandle();
    const HBITMAP picture = bitmap->GetHandle();
    const auto before = test::ResourceSnapshot::Take();
    callsUntilFailure = step;
    const String text = MessageOf<EAssertionFailed>(
        [&] { DrawTransparentSteps(canvas, picture, 0, 0, 0, 0, Magenta, FailingBlit); });
    EXPECT_EQ(before.ChangeSince(), "");
    EXPECT_EQ(text, Format(L"%s (Common/UnitGraphicsUtils, line %d)", Steps[step].Message, Steps[step].Line));
    EXPECT_EQ(callsUntilFailure, -1);  // no step after the failing one

    // The canvas shows the picture once the step that copies it there was done.
    const bool shows = Steps[step].Line > 360;
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), shows ? Expected(0, 0) : FGround));
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingStepTest, ::testing::Range(0, static_cast<int>(std::size(Steps))));

int sourceMapMode = 0;

BOOL WINAPI NotingBlit(HDC, int, int, int, int, HDC from, int, int, DWORD) {
    if (sourceMapMode == 0) sourceMapMode = GetMapMode(from);
    return TRUE;
}

TEST_F(OneShotDrawingTest, TheSourceHasTheMappingModeOfTheCanvas) {
    const auto bitmap = BitmapOf(FPicture);
    const TMemoryDC canvas = CreateMemoryDC();
    SetMapMode(canvas.Get(), MM_LOMETRIC);
    sourceMapMode = 0;
    DrawTransparentSteps(canvas.Get(), bitmap->GetHandle(), 0, 0, 0, 0, Magenta, NotingBlit);
    EXPECT_EQ(sourceMapMode, MM_LOMETRIC);
}

TEST_F(OneShotDrawingTest, ACanvasWithoutDeviceContextFailsInTheFirstStep) {
    const auto bitmap = BitmapOf(FPicture);
    HDC gone = nullptr;
    {
        const TMemoryDC dc = CreateMemoryDC();
        gone = dc.Get();
    }
    const String text = MessageOf<EAssertionFailed>(
        [&] { DrawTransparentSteps(gone, bitmap->GetHandle(), 0, 0, 0, 0, Magenta); });
    EXPECT_EQ(text, L"BitBlt: Save the bitmap (Common/UnitGraphicsUtils, line 319)");
    EXPECT_TRUE(SamePixels(PixelsOf(*bitmap), FPicture));
}

}  // namespace
}  // namespace qv7skin
