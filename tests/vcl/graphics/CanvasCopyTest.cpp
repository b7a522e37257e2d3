#include <vector>

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::Numbered;
using probes::Paint;
using probes::Shows;

/// Copies onto 20 x 12 pixels.
class CanvasCopyTest : public probes::PaintingTest {
protected:
    CanvasCopyTest() : PaintingTest(20, 12) {}
};

TEST_F(CanvasCopyTest, APartIsCopiedToItsPlace) {
    TBitmap source(10, 10, pf24bit);
    Paint(source, Numbered);
    Canvas().CopyRect(TRect::OfSize(5, 4, 6, 3), source.GetCanvas(), TRect::OfSize(2, 1, 6, 3));
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
        return TRect::OfSize(5, 4, 6, 3).Contains({x, y}) ? Numbered(x - 3, y - 3) : clWhite;
    }));
}

TEST_F(CanvasCopyTest, EveryDepthCopiesToEveryOther) {
    for (const TPixelFormat from : {pfDevice, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit})
        for (const TPixelFormat to : {pfDevice, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit}) {
            TBitmap source(7, 5, from);
            Paint(source, [](int x, int) { return x % 2 ? clRed : clAqua; });
            TBitmap target(7, 5, to);
            target.GetCanvas().CopyRect({0, 0, 7, 5}, source, {0, 0, 7, 5});
            EXPECT_TRUE(Shows(target, [](int x, int) { return x % 2 ? clRed : clAqua; }))
                << static_cast<int>(from) << " to " << static_cast<int>(to);
        }
}

/// A copy mode, and what it makes of source and destination.
struct TModeCase {
    TCopyMode Mode;
    std::uint32_t (*Rule)(std::uint32_t source, std::uint32_t dest);
};

TEST_F(CanvasCopyTest, TheCopyModeCombinesBits) {
    using U = std::uint32_t;
    const TModeCase cases[] = {
        {cmSrcCopy, [](U s, U) { return s; }},
        {cmSrcAnd, [](U s, U d) { return s & d; }},
        {cmSrcPaint, [](U s, U d) { return s | d; }},
        {cmSrcInvert, [](U s, U d) { return s ^ d; }},
        {cmSrcErase, [](U s, U d) { return s & ~d; }},
        {cmNotSrcCopy, [](U s, U) { return ~s; }},
        {cmNotSrcErase, [](U s, U d) { return ~(s | d); }},
        {cmMergePaint, [](U s, U d) { return ~s | d; }},
        {cmDstInvert, [](U, U d) { return ~d; }},
        {cmBlackness, [](U, U) { return U{0}; }},
        {cmWhiteness, [](U, U) { return ~U{0}; }},
    };
    TBitmap source(20, 12, pf24bit);
    Paint(source, [](int x, int y) {
        return RGBToColor(0xCC, static_cast<std::uint8_t>(9 * x), static_cast<std::uint8_t>(y));
    });
    for (const TModeCase& mode : cases) {
        Paint(Bitmap(), Numbered);
        Canvas().SetCopyMode(mode.Mode);
        Canvas().CopyRect({0, 0, 20, 12}, source.GetCanvas(), {0, 0, 20, 12});
        EXPECT_TRUE(Shows(Bitmap(),
                          [&](int x, int y) {
                              const TColor s = RGBToColor(0xCC, static_cast<std::uint8_t>(9 * x),
                                                          static_cast<std::uint8_t>(y));
                              return mode.Rule(s, Numbered(x, y)) & 0x00FFFFFF;
                          }))
            << std::hex << mode.Mode;
    }
    EXPECT_EQ(cmSrcCopy, 0x00CC0020U);
    EXPECT_EQ(cmSrcAnd, 0x008800C6U);
    EXPECT_EQ(cmSrcPaint, 0x00EE0086U);
}

TEST_F(CanvasCopyTest, DrawingAnOpaqueBitmapTakesTheCopyMode) {
    TBitmap source(3, 3, pf24bit);
    Paint(source, [](int, int) { return 0x00F0F0F0U; });
    Canvas().GetBrush().SetColor(0x003C3C3C);
    Canvas().FillRect({0, 0, 20, 12});
    Canvas().SetCopyMode(cmSrcAnd);
    Canvas().Draw(0, 0, &source);
    EXPECT_EQ(At(1, 1), 0x00303030U);
    EXPECT_EQ(At(3, 3), 0x003C3C3CU);
}

TEST_F(CanvasCopyTest, GrowingRepeatsPixelsAndMixesNone) {
    TBitmap source(2, 2, pf24bit);
    Paint(source, Numbered);
    Canvas().CopyRect({0, 0, 20, 12}, source, {0, 0, 2, 2});
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) { return Numbered(x / 10, y / 6); }));
}

TEST_F(CanvasCopyTest, ShrinkingLeavesPixelsOutAndMixesNone) {
    TBitmap source(40, 24, pf24bit);
    Paint(source, [](int x, int) { return x / 20 ? clRed : clBlue; });
    Canvas().CopyRect({0, 0, 20, 12}, source, {0, 0, 40, 24});
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int) { return x / 10 ? clRed : clBlue; }));
}

TEST_F(CanvasCopyTest, APixelWideStripStretchesOverABand) {
    TBitmap strip(1, 12, pf24bit);
    Paint(strip, Numbered);
    Canvas().StretchDraw({3, 0, 20, 12}, &strip);
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) { return x < 3 ? clWhite : Numbered(0, y); }));
}

TEST_F(CanvasCopyTest, ACanvasCopiesFromItself) {
    Paint(Bitmap(), Numbered);
    Canvas().CopyRect(TRect::OfSize(10, 0, 5, 12), Canvas(), TRect::OfSize(0, 0, 5, 12));
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) { return Numbered(x >= 10 && x < 15 ? x - 10 : x, y); }));
}

TEST_F(CanvasCopyTest, CopyingFromASharerReadsWhatWasShared) {
    Paint(Bitmap(), Numbered);
    TBitmap copy;
    copy.Assign(&Bitmap());
    Canvas().CopyRect(TRect::OfSize(1, 0, 19, 12), copy.GetCanvas(), TRect::OfSize(0, 0, 19, 12));
    EXPECT_TRUE(Shows(copy, Numbered));
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) { return Numbered(x ? x - 1 : 0, y); }));
}

TEST_F(CanvasCopyTest, NothingIsDrawnOfNothing) {
    const TBitmap empty;
    int changes = 0;
    Canvas().OnChange = [&](TObject*) { ++changes; };
    Canvas().Draw(0, 0, nullptr);
    Canvas().Draw(0, 0, &empty);
    Canvas().StretchDraw({0, 0, 5, 5}, nullptr);
    Canvas().StretchDraw({0, 0, 5, 5}, &empty);
    Canvas().CopyRect({0, 0, 5, 5}, empty, {0, 0, 5, 5});
    EXPECT_EQ(changes, 0);
}

TEST_F(CanvasCopyTest, DrawingOnAnEmptyBitmapDoesNothing) {
    TBitmap empty;
    empty.GetCanvas().FillRect({0, 0, 5, 5});
    empty.GetCanvas().Draw(0, 0, &Bitmap());
    EXPECT_TRUE(empty.GetEmpty());
    empty.SetSize(2, 2);
    EXPECT_TRUE(Shows(empty, [](int, int) { return clWhite; }));
}

TEST_F(CanvasCopyTest, ABlackAndWhiteSourceOfTheSystemTakesFontAndBrushColors) {
    const TMemoryDC dc = CreateMemoryDC();
    const BYTE bits[] = {0xAA, 0, 0xAA, 0};
    const TBitmapHandle mono(CreateBitmap(8, 2, 1, 1, bits));
    const TSelectObject selected(dc.Get(), mono.Get());
    TCanvas source;
    source.SetHandle(dc.Get());
    Canvas().GetFont().SetColor(clRed);
    Canvas().GetBrush().SetColor(clLime);
    Canvas().CopyRect({0, 0, 8, 2}, source, {0, 0, 8, 2});
    for (int x = 0; x < 8; ++x)
        EXPECT_EQ(At(x, 1), x % 2 ? clRed : clLime) << x;
}

TEST_F(CanvasCopyTest, ABrushCopyLeavesOneColorToTheBrush) {
    TBitmap source(4, 4, pf24bit);
    Paint(source, [](int x, int y) { return x == y ? clFuchsia : clNavy; });
    Canvas().GetBrush().SetColor(clYellow);
    Canvas().BrushCopy({2, 2, 6, 6}, source, {0, 0, 4, 4}, clFuchsia);
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
        if (!TRect(2, 2, 6, 6).Contains({x, y})) return clWhite;
        return x == y ? clYellow : clNavy;
    }));
}

TEST_F(CanvasCopyTest, MemoryUnderTheCanvasIsReachedWhereItIsPlain) {
    const auto direct = Canvas().DirectBits();
    ASSERT_TRUE(direct);
    EXPECT_EQ(direct->Clip, TRect(0, 0, 20, 12));
    direct->Bits.SetColor(3, 4, clRed);
    EXPECT_EQ(At(3, 4), clRed);
    {
        const TClipScope clip(Canvas(), {2, 2, 8, 9});
        ASSERT_TRUE(Canvas().DirectBits());
        EXPECT_EQ(Canvas().DirectBits()->Clip, TRect(2, 2, 8, 9));
    }
    {
        const TCanvasStateScope scope(Canvas());
        SetViewportOrgEx(Canvas().GetHandle(), 1, -2, nullptr);
        const auto shifted = Canvas().DirectBits();
        ASSERT_TRUE(shifted) << "counted as the canvas counts";
        EXPECT_EQ(shifted->Clip, TRect(-1, 2, 19, 14));
        shifted->Bits.SetColor(6, 9, clBlue);
        EXPECT_EQ(Canvas().GetPixel(6, 9), clBlue);
    }
    EXPECT_EQ(At(7, 7), clBlue);
    {
        const TCanvasStateScope scope(Canvas());
        SetMapMode(Canvas().GetHandle(), MM_ISOTROPIC);
        EXPECT_FALSE(Canvas().DirectBits());
    }
    {
        const TCanvasStateScope scope(Canvas());
        ExcludeClipRect(Canvas().GetHandle(), 5, 5, 6, 6);
        EXPECT_FALSE(Canvas().DirectBits());
    }
    Bitmap().SetPixelFormat(pf8bit);
    EXPECT_FALSE(Canvas().DirectBits());
    TBitmap empty;
    EXPECT_FALSE(empty.GetCanvas().DirectBits());
}

TEST_F(CanvasCopyTest, MoreBitmapsThanOpenContextsStayUsable) {
    std::vector<std::unique_ptr<TBitmap>> bitmaps;
    for (int i = 0; i < 600; ++i) {
        bitmaps.push_back(std::make_unique<TBitmap>(2, 2, pf24bit));
        bitmaps.back()->GetCanvas().SetPixel(0, 0, static_cast<TColor>(i));
    }
    for (int i = 0; i < 600; ++i) {
        Canvas().CopyRect({0, 0, 2, 2}, *bitmaps[static_cast<std::size_t>(i)], {0, 0, 2, 2});
        ASSERT_EQ(At(0, 0), static_cast<TColor>(i));
        bitmaps[static_cast<std::size_t>(i)]->GetCanvas().SetPixel(1, 1, static_cast<TColor>(i));
        ASSERT_EQ(bitmaps[static_cast<std::size_t>(i)]->ReadBits().GetColor(1, 1), static_cast<TColor>(i));
    }
}

}  // namespace
}  // namespace vcl
