#include "skin/utils/TransparentBitmap.h"

#include "platform/vcl/graphics/Canvas.h"
#include "tests/skin/PictureOnGround.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::MessageOf;
using probes::PixelsOf;
using probes::RandomColors;
using test::Pixels;

class TransparentBitmapTest : public probes::PictureOnGroundTest {};

TEST_F(TransparentBitmapTest, TheMaskIsBlackWhereThePictureIsAndThePictureBlackWhereItIsNot) {
    for (const TPixelFormat format : {pf24bit, pf32bit, pfDevice}) {
        TTransparentBitmap transparent(Magenta);
        transparent.SetBitmap(BitmapOf(FPicture, format).get());
        EXPECT_TRUE(
            SamePixels(test::ReadDC(transparent.GetMask().GetSourceDC(), {0, 0, 9, 7}), [&](int x, int y) {
                return FPicture.At(x, y) == Magenta ? COLORREF{clWhite} : COLORREF{clBlack};
            }));
        EXPECT_TRUE(
            SamePixels(test::ReadDC(transparent.GetBitmap().GetSourceDC(), {0, 0, 9, 7}), [&](int x, int y) {
                return FPicture.At(x, y) == Magenta ? COLORREF{clBlack} : FPicture.At(x, y);
            }));
    }
}

TEST_F(TransparentBitmapTest, FewColorsAreMaskedToo) {
    for (const TPixelFormat format : {pf1bit, pf4bit, pf8bit, pf16bit}) {
        const auto source = BitmapOf(RandomColors(3).Picture(8, 5, {clWhite, clBlack}), format);
        const Pixels shown = PixelsOf(*source);
        TTransparentBitmap transparent(clWhite);
        transparent.SetBitmap(source.get());
        const auto ground = BitmapOf(8, 5, 0x00445566);
        transparent.Draw(ground->GetCanvas(), 0, 0);
        EXPECT_TRUE(SamePixels(PixelsOf(*ground), [&](int x, int y) {
            return shown.At(x, y) == clWhite ? COLORREF{0x00445566} : COLORREF{clBlack};
        })) << static_cast<int>(format);
    }
}

TEST_F(TransparentBitmapTest, ItsSizeIsThePictures) {
    TTransparentBitmap transparent(Magenta);
    EXPECT_TRUE(transparent.GetEmpty());
    EXPECT_EQ(transparent.GetWidth(), 0);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    EXPECT_FALSE(transparent.GetEmpty());
    EXPECT_EQ(transparent.GetWidth(), 9);
    EXPECT_EQ(transparent.GetHeight(), 7);
    EXPECT_EQ(transparent.GetMask().GetWidth(), 9);
    EXPECT_EQ(transparent.GetMask().GetHeight(), 7);
}

TEST_F(TransparentBitmapTest, TheSourceIsCopied) {
    const auto source = BitmapOf(FPicture);
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(source.get());
    EXPECT_TRUE(SamePixels(PixelsOf(*source), FPicture));
}

TEST_F(TransparentBitmapTest, DrawsEverythingButTheTransparentColor) {
    for (const TPixelFormat from : {pf24bit, pf32bit})
        for (const TPixelFormat to : {pf24bit, pf32bit}) {
            TTransparentBitmap transparent(Magenta);
            transparent.SetBitmap(BitmapOf(FPicture, from).get());
            const auto ground = BitmapOf(FGround, to);
            transparent.Draw(ground->GetCanvas(), 5, 3);
            EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(5, 3)));
        }
}

TEST_F(TransparentBitmapTest, DrawsOverTheEdges) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    for (const TPoint place : {TPoint(-3, -2), TPoint(15, 12), TPoint(-100, 5), TPoint(3, 100)}) {
        const auto ground = BitmapOf(FGround);
        transparent.Draw(ground->GetCanvas(), place.X, place.Y);
        EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(place.X, place.Y)));
    }
}

TEST_F(TransparentBitmapTest, DrawsTheSameThroughADeviceContext) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    for (const TPixelFormat format : {pf24bit, pf32bit})
        for (const TPoint place : {TPoint(5, 3), TPoint(-3, -2), TPoint(15, 12)}) {
            const auto ground = BitmapOf(FGround, format);
            TCanvas lent;
            lent.SetHandle(ground->GetCanvas().GetHandle());
            transparent.Draw(lent, place.X, place.Y);
            lent.SetHandle(nullptr);
            EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(place.X, place.Y)));
        }
}

TEST_F(TransparentBitmapTest, DrawsOnlyInsideTheClipRegion) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    {
        const TClipScope clip(ground->GetCanvas(), {3, 4, 10, 9});
        transparent.Draw(ground->GetCanvas(), 1, 2);
    }
    const Pixels everywhere = Expected(1, 2);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), [&](int x, int y) {
        return TRect(3, 4, 10, 9).Contains({x, y}) ? everywhere.At(x, y) : FGround.At(x, y);
    }));
}

TEST_F(TransparentBitmapTest, DrawingTellsTheChange) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    int changes = 0;
    ground->OnChange = [&](TObject*) { ++changes; };
    transparent.Draw(ground->GetCanvas(), 0, 0);
    EXPECT_EQ(changes, 1);
}

TEST_F(TransparentBitmapTest, DrawingLeavesTheCanvasInSourcePaint) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    transparent.Draw(ground->GetCanvas(), 0, 0);
    EXPECT_EQ(ground->GetCanvas().GetCopyMode(), 0x00EE0086U);
    ground->GetCanvas().SetCopyMode(cmSrcCopy);
    transparent.DrawClipped(ground->GetCanvas(), 0, 0, {0, 0, 4, 4});
    EXPECT_EQ(ground->GetCanvas().GetCopyMode(), TCopyMode{cmSrcPaint});
    ground->GetCanvas().SetCopyMode(cmSrcCopy);
    TTransparentBitmap(Magenta).Draw(ground->GetCanvas(), 0, 0);
    EXPECT_EQ(ground->GetCanvas().GetCopyMode(), TCopyMode{cmSrcPaint})
        << "also when there is nothing to draw";
}

TEST_F(TransparentBitmapTest, CenteredMeansVerticallyAndAnOffsetFromTheLeft) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    transparent.DrawCentered(ground->GetCanvas(), {2, 1, 18, 16}, 4);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(6, 1 + (15 - 7) / 2)));
}

TEST_F(TransparentBitmapTest, CenteredKeepsTheOddRowBelow) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    transparent.DrawCentered(ground->GetCanvas(), {2, 1, 18, 11}, 4);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(6, 1 + 1)));  // (10 - 7) div 2
}

TEST_F(TransparentBitmapTest, CenteredInTooLittleRoomReachesOverItsTop) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    transparent.DrawCentered(ground->GetCanvas(), {2, 6, 18, 8}, 0);
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), Expected(2, 6 - 2)));  // (2 - 7) div 2
}

TEST_F(TransparentBitmapTest, ClippedDrawsFromAPlaceInThePicture) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    // A rectangle of the picture's size: nothing is scaled, and what the picture lacks stays as it was.
    transparent.DrawClipped(ground->GetCanvas(), 2, 3, TRect::OfSize(4, 5, 9, 7));
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), [&](int x, int y) {
        const COLORREF c = FPicture.At(x - 4 + 2, y - 5 + 3);
        const bool inside = x >= 4 && y >= 5 && c != CLR_INVALID && c != Magenta;
        return inside ? c : FGround.At(x, y);
    }));
}

TEST_F(TransparentBitmapTest, ClippedScalesToTheRectangle) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const auto ground = BitmapOf(FGround);
    transparent.DrawClipped(ground->GetCanvas(), 0, 0, {0, 0, 18, 14});
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), [&](int x, int y) {
        const COLORREF c = FPicture.At(x / 2, y / 2);
        return x < 18 && y < 14 && c != Magenta ? c : FGround.At(x, y);
    }));
}

TEST_F(TransparentBitmapTest, TheColorIsSetBeforeThePicture) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetTransparentColor(clWhite);
    EXPECT_EQ(transparent.GetTransparentColor(), TColor{clWhite});
    transparent.SetBitmap(BitmapOf(FPicture).get());
    const String text = MessageOf<EAssertionFailed>([&] { transparent.SetTransparentColor(clRed); });
    EXPECT_EQ(text, L"Set TransparentColor first, then assign Bitmap (Common/UnitGraphicsUtils, line 822)");
    EXPECT_EQ(transparent.GetTransparentColor(), TColor{clWhite});
}

TEST_F(TransparentBitmapTest, NullEmptiesThePicture) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    transparent.SetBitmap(nullptr);
    EXPECT_TRUE(transparent.GetEmpty());
    const auto ground = BitmapOf(FGround);
    transparent.Draw(ground->GetCanvas(), 5, 5);
    transparent.DrawClipped(ground->GetCanvas(), 0, 0, {0, 0, 5, 5});
    EXPECT_TRUE(SamePixels(PixelsOf(*ground), FGround));
    transparent.SetTransparentColor(clRed);
    EXPECT_EQ(transparent.GetTransparentColor(), TColor{clRed});
}

TEST_F(TransparentBitmapTest, AnEmptySourceEmptiesThePicture) {
    TTransparentBitmap transparent(Magenta);
    transparent.SetBitmap(BitmapOf(FPicture).get());
    TBitmap empty;
    transparent.SetBitmap(&empty);
    EXPECT_TRUE(transparent.GetEmpty());
}

}  // namespace
}  // namespace qv7skin
