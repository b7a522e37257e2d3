#include "platform/vcl/graphics/Bitmap.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Pen.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::MessageOf;
using probes::Numbered;
using probes::Paint;
using probes::Shows;

class BitmapTest : public test::LedgerTest {};

TColor White(int, int) {
    return clWhite;
}

TEST_F(BitmapTest, ANewBitmapIsEmpty) {
    TBitmap bitmap;
    EXPECT_TRUE(bitmap.GetEmpty());
    EXPECT_EQ(bitmap.GetWidth(), 0);
    EXPECT_EQ(bitmap.GetHeight(), 0);
    EXPECT_EQ(bitmap.GetPixelFormat(), pfDevice);
    EXPECT_EQ(bitmap.GetHandle(), nullptr);
    EXPECT_EQ(bitmap.GetSourceDC(), nullptr);
    EXPECT_EQ(bitmap.GetStride(), 0);
    EXPECT_TRUE(bitmap.ReadBits().IsEmpty());
    EXPECT_TRUE(bitmap.WriteBits().IsEmpty());
    EXPECT_FALSE(bitmap.GetTransparent());
    EXPECT_FALSE(bitmap.GetModified());
}

TEST_F(BitmapTest, FreshPixelsAreWhiteOrOfTheBrush) {
    for (const TPixelFormat format : {pfDevice, pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit}) {
        const TBitmap bitmap(5, 3, format);
        EXPECT_EQ(bitmap.GetPixelFormat(), format);
        EXPECT_TRUE(Shows(bitmap, White)) << static_cast<int>(format);
    }
    TBitmap bitmap;
    bitmap.GetCanvas().GetBrush().SetColor(clNavy);
    bitmap.SetSize(3, 3);
    EXPECT_TRUE(Shows(bitmap, [](int, int) { return clNavy; }));
}

TEST_F(BitmapTest, HeightMayBeSetBeforeWidth) {
    TBitmap bitmap;
    bitmap.SetHeight(7);
    EXPECT_TRUE(bitmap.GetEmpty());
    EXPECT_EQ(bitmap.GetHeight(), 7);
    bitmap.SetWidth(4);
    EXPECT_FALSE(bitmap.GetEmpty());
    EXPECT_EQ(bitmap.GetWidth(), 4);
    EXPECT_EQ(bitmap.GetHeight(), 7);
    bitmap.SetWidth(0);
    EXPECT_TRUE(bitmap.GetEmpty());
    EXPECT_EQ(bitmap.GetHeight(), 7);
}

TEST_F(BitmapTest, ResizingKeepsWhatHasAPlace) {
    for (const TPixelFormat format : {pf4bit, pf8bit, pf16bit, pf24bit, pf32bit}) {
        const auto rule = [](int x, int y) { return (x + y) % 2 ? clRed : clBlack; };
        TBitmap bitmap(9, 6, format);
        Paint(bitmap, rule);
        bitmap.GetCanvas().GetBrush().SetColor(clLime);
        bitmap.SetSize(12, 8);
        EXPECT_TRUE(Shows(bitmap, [&](int x, int y) { return x < 9 && y < 6 ? rule(x, y) : clLime; }))
            << static_cast<int>(format);
        bitmap.SetSize(4, 3);
        EXPECT_TRUE(Shows(bitmap, rule)) << static_cast<int>(format);
        bitmap.SetSize(4, 5);
        EXPECT_TRUE(Shows(bitmap, [&](int x, int y) { return y < 3 ? rule(x, y) : clLime; }))
            << static_cast<int>(format);
    }
}

TEST_F(BitmapTest, ResizingKeepsTheFormat) {
    TBitmap bitmap(4, 4, pf8bit);
    bitmap.SetSize(0, 0);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf8bit);
    bitmap.SetSize(2, 2);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf8bit);
}

TEST_F(BitmapTest, ImpossibleSizesRaiseAndChangeNothing) {
    TBitmap bitmap(3, 2, pf24bit);
    Paint(bitmap, Numbered);
    EXPECT_THROW(bitmap.SetSize(-1, 2), EInvalidGraphicOperation);
    EXPECT_THROW(bitmap.SetHeight(-7), EInvalidGraphicOperation);
    EXPECT_THROW(bitmap.SetSize(100'000, 100'000), EOutOfResources);
    EXPECT_THROW(bitmap.SetSize(0x7FFFFFFF, 0x7FFFFFFF), EOutOfResources);
    EXPECT_EQ(bitmap.GetWidth(), 3);
    EXPECT_EQ(bitmap.GetHeight(), 2);
    EXPECT_TRUE(Shows(bitmap, Numbered));
    EXPECT_NE(MessageOf<EOutOfResources>([&] { bitmap.SetSize(1, 0x7FFFFFFF); }), L"");
}

TEST_F(BitmapTest, ScanLinesAreTheMemoryOfTheRows) {
    TBitmap bitmap(5, 3, pf24bit);
    Paint(bitmap, Numbered);
    for (int y = 0; y < 3; ++y) {
        const auto* row = static_cast<const std::uint8_t*>(std::as_const(bitmap).ScanLine(y));
        for (int x = 0; x < 5; ++x)
            EXPECT_EQ(RGBToColor(row[3 * x + 2], row[3 * x + 1], row[3 * x]), Numbered(x, y));
    }
    static_cast<std::uint8_t*>(bitmap.ScanLine(1))[0] = 0x77;
    EXPECT_EQ(BlueOf(bitmap.GetCanvas().GetPixel(0, 1)), 0x77);
    EXPECT_EQ(static_cast<std::uint8_t*>(bitmap.ScanLine(1)) - static_cast<std::uint8_t*>(bitmap.ScanLine(0)),
              bitmap.GetStride());
    EXPECT_EQ(std::abs(bitmap.GetStride()), 16);
}

TEST_F(BitmapTest, ScanLinesOutsideRaise) {
    TBitmap bitmap(2, 2, pf32bit);
    const TBitmap empty;
    EXPECT_EQ(MessageOf<EInvalidGraphicOperation>([&] { (void)bitmap.ScanLine(-1); }),
              L"Scan line index out of range");
    EXPECT_EQ(MessageOf<EInvalidGraphicOperation>([&] { (void)bitmap.ScanLine(2); }),
              L"Scan line index out of range");
    EXPECT_EQ(MessageOf<EInvalidGraphicOperation>([&] { (void)empty.ScanLine(0); }),
              L"Scan line index out of range");
}

TEST_F(BitmapTest, ViewsReadAndWriteColors) {
    for (const TPixelFormat format : {pfDevice, pf24bit, pf32bit}) {
        TBitmap bitmap(7, 4, format);
        const TBitmapBits bits = bitmap.WriteBits();
        EXPECT_EQ(bits.Width, 7);
        EXPECT_EQ(bits.Height, 4);
        EXPECT_EQ(bits.BytesPerPixel, format == pf24bit ? 3 : 4);
        EXPECT_EQ(bits.Stride, bitmap.GetStride());
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 7; ++x)
                bits.SetColor(x, y, Numbered(x, y));
        EXPECT_TRUE(Shows(bitmap, Numbered));
        const TConstBitmapBits same = bits;
        EXPECT_EQ(same.GetColor(6, 3), Numbered(6, 3));
        EXPECT_EQ(bitmap.ReadBits().Row(2), bits.Row(2));
    }
}

TEST_F(BitmapTest, ViewsSeeWhatWasDrawn) {
    TBitmap bitmap(4, 4, pf24bit);
    bitmap.GetCanvas().GetBrush().SetColor(0x00C0A080);
    bitmap.GetCanvas().FillRect({0, 0, 4, 4});
    EXPECT_EQ(bitmap.ReadBits().GetColor(3, 3), 0x00C0A080U);
}

TEST_F(BitmapTest, ViewsNeedWholeBytesPerChannel) {
    TBitmap bitmap(2, 2, pf8bit);
    EXPECT_FALSE(bitmap.HasByteBits());
    EXPECT_THROW((void)bitmap.WriteBits(), EInvalidGraphicOperation);
    EXPECT_THROW((void)bitmap.ReadBits(), EInvalidGraphicOperation);
}

// --- Formats

TEST_F(BitmapTest, ConvertingBetweenTrueColorsKeepsPixels) {
    TBitmap bitmap(6, 5, pf24bit);
    Paint(bitmap, Numbered);
    bitmap.SetPixelFormat(pf32bit);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf32bit);
    EXPECT_TRUE(Shows(bitmap, Numbered));
    bitmap.SetPixelFormat(pfDevice);
    EXPECT_EQ(bitmap.GetPixelFormat(), pfDevice);
    bitmap.SetPixelFormat(pf24bit);
    EXPECT_TRUE(Shows(bitmap, Numbered));
}

TEST_F(BitmapTest, SixteenBitsKeepTheUpperBits) {
    const auto kept = [](int channel, int bits) {
        const int upper = channel >> (8 - bits);
        return static_cast<std::uint8_t>(upper << (8 - bits) | upper >> (2 * bits - 8));
    };
    TBitmap bitmap(6, 5, pf24bit);
    Paint(bitmap, Numbered);
    TBitmap other;
    other.Assign(&bitmap);
    bitmap.SetPixelFormat(pf15bit);
    EXPECT_TRUE(Shows(bitmap, [&](int x, int y) {
        const TColor c = Numbered(x, y);
        return RGBToColor(kept(RedOf(c), 5), kept(GreenOf(c), 5), kept(BlueOf(c), 5));
    }));
    other.SetPixelFormat(pf16bit);
    EXPECT_TRUE(Shows(other, [&](int x, int y) {
        const TColor c = Numbered(x, y);
        return RGBToColor(kept(RedOf(c), 5), kept(GreenOf(c), 6), kept(BlueOf(c), 5));
    }));
    bitmap.SetPixelFormat(pf24bit);
    EXPECT_EQ(bitmap.ReadBits().GetColor(3, 3),
              RGBToColor(kept(RedOf(Numbered(3, 3)), 5), kept(GreenOf(Numbered(3, 3)), 5),
                         kept(BlueOf(Numbered(3, 3)), 5)));
}

TEST_F(BitmapTest, FewColorsAreTheNearestOfTheTable) {
    TBitmap bitmap(4, 1, pf24bit);
    const TColor colors[] = {0x00000010, 0x000000F0, 0x00818181, 0x00FEFEFE};
    Paint(bitmap, [&](int x, int) { return colors[x]; });
    bitmap.SetPixelFormat(pf4bit);
    const TColor nearest[] = {clBlack, clRed, clGray, clWhite};
    EXPECT_TRUE(Shows(bitmap, [&](int x, int) { return nearest[x]; }));
    bitmap.SetPixelFormat(pf1bit);
    EXPECT_TRUE(Shows(bitmap, [&](int x, int) { return x < 2 ? clBlack : clWhite; }));
}

TEST_F(BitmapTest, TheTableOf256ColorsHoldsACube) {
    TBitmap bitmap(6, 6, pf24bit);
    const auto rule = [](int x, int y) {
        return RGBToColor(static_cast<std::uint8_t>(51 * x), static_cast<std::uint8_t>(51 * y), 153);
    };
    Paint(bitmap, rule);
    bitmap.SetPixelFormat(pf8bit);
    EXPECT_TRUE(Shows(bitmap, rule));
}

TEST_F(BitmapTest, MonochromeIsOneBit) {
    TBitmap bitmap(4, 4);
    EXPECT_FALSE(bitmap.GetMonochrome());
    bitmap.SetMonochrome(true);
    EXPECT_TRUE(bitmap.GetMonochrome());
    EXPECT_EQ(bitmap.GetPixelFormat(), pf1bit);
    bitmap.SetMonochrome(false);
    EXPECT_EQ(bitmap.GetPixelFormat(), pfDevice);
}

TEST_F(BitmapTest, ACustomFormatCannotBeSet) {
    TBitmap bitmap(4, 4);
    EXPECT_THROW(bitmap.SetPixelFormat(pfCustom), EInvalidGraphicOperation);
    EXPECT_EQ(bitmap.GetPixelFormat(), pfDevice);
}

TEST_F(BitmapTest, TheFormatOfAnEmptyBitmapIsThatOfItsFuture) {
    TBitmap bitmap;
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(3, 3);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf24bit);
}

// --- Telling

TEST_F(BitmapTest, ChangesAreTold) {
    TBitmap bitmap;
    int changes = 0;
    bitmap.OnChange = [&](TObject* sender) {
        EXPECT_EQ(sender, &bitmap);
        ++changes;
    };
    bitmap.SetSize(4, 4);
    bitmap.SetSize(4, 4);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(bitmap.GetModified());
    bitmap.SetModified(false);
    EXPECT_EQ(changes, 1);
    bitmap.GetCanvas().FillRect({0, 0, 1, 1});
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(bitmap.GetModified());
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetTransparent(true);
    bitmap.SetTransparent(true);
    bitmap.SetTransparentColor(clRed);
    bitmap.Changed();
    EXPECT_EQ(changes, 6);
}

TEST_F(BitmapTest, AHandlerMayFreeTheBitmap) {
    auto bitmap = std::make_unique<TBitmap>(4, 4);
    bitmap->GetCanvas().OnChange = [&](TObject*) { bitmap.reset(); };
    bitmap->GetCanvas().FillRect({0, 0, 1, 1});
    EXPECT_EQ(bitmap, nullptr);
    bitmap = std::make_unique<TBitmap>(4, 4);
    bitmap->OnChange = [&](TObject*) { bitmap.reset(); };
    bitmap->GetCanvas().FillRect({0, 0, 1, 1});
    EXPECT_EQ(bitmap, nullptr);
}

// --- Handles

TEST_F(BitmapTest, TheHandleCanBeSelectedElsewhere) {
    TBitmap bitmap(4, 4, pf24bit);
    Paint(bitmap, Numbered);
    const test::Pixels pixels = test::ReadBitmap(bitmap.GetHandle());
    EXPECT_TRUE(test::SamePixels(pixels, Numbered));
    DIBSECTION section{};
    ASSERT_EQ(GetObjectW(bitmap.GetHandle(), sizeof section, &section), static_cast<int>(sizeof section));
    EXPECT_EQ(section.dsBmih.biBitCount, 24);
    bitmap.GetCanvas().SetPixel(0, 0, clRed);
    EXPECT_EQ(bitmap.GetCanvas().GetPixel(0, 0), clRed);
}

TEST_F(BitmapTest, AReleasedHandleIsTheCallers) {
    TBitmap bitmap(4, 3, pf32bit);
    Paint(bitmap, Numbered);
    TBitmap sharer;
    sharer.Assign(&bitmap);
    const TBitmapHandle handle = bitmap.ReleaseHandle();
    EXPECT_TRUE(bitmap.GetEmpty());
    EXPECT_EQ(bitmap.GetWidth(), 0);
    EXPECT_TRUE(test::SamePixels(test::ReadBitmap(handle.Get()), Numbered));
    EXPECT_TRUE(Shows(sharer, Numbered));
    TBitmap empty;
    EXPECT_FALSE(empty.ReleaseHandle());
}

TEST_F(BitmapTest, ASystemBitmapIsTakenOver) {
    TBitmap source(5, 4, pf24bit);
    Paint(source, Numbered);
    const HBITMAP section = source.ReleaseHandle().Release();
    TBitmap bitmap;
    bitmap.SetHandle(section);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf24bit);
    EXPECT_TRUE(Shows(bitmap, Numbered));
    EXPECT_EQ(GetObjectType(section), 0U);
    const BYTE bits[] = {0xF0, 0, 0x0F, 0};
    bitmap.SetHandle(CreateBitmap(8, 2, 1, 1, bits));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf1bit);
    EXPECT_TRUE(Shows(bitmap, [](int x, int y) { return (x < 4) == (y == 0) ? clWhite : clBlack; }));
    bitmap.SetHandle(nullptr);
    EXPECT_TRUE(bitmap.GetEmpty());
}

TEST_F(BitmapTest, SectionsOfEveryDepthAreTakenOver) {
    for (const TPixelFormat format : {pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit}) {
        TBitmap source(9, 4, format);
        Paint(source, [](int x, int y) { return (x + y) % 3 ? clWhite : clBlack; });
        TBitmap bitmap;
        bitmap.SetHandle(source.ReleaseHandle().Release());
        EXPECT_EQ(bitmap.GetPixelFormat(), format);
        EXPECT_TRUE(Shows(bitmap, [](int x, int y) { return (x + y) % 3 ? clWhite : clBlack; }))
            << static_cast<int>(format);
    }
}

TEST_F(BitmapTest, WhatIsNoBitmapIsRefused) {
    TBitmap bitmap(2, 2);
    const HBRUSH brush = CreateSolidBrush(0x00ABCDEF);
    EXPECT_EQ(MessageOf<EInvalidGraphic>([&] { bitmap.SetHandle(reinterpret_cast<HBITMAP>(brush)); }),
              L"Bitmap image is not valid");
    EXPECT_EQ(bitmap.GetWidth(), 2);
}

}  // namespace
}  // namespace vcl
