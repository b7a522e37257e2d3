#include <utility>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Pen.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::Numbered;
using probes::Paint;
using probes::Shows;

/// Bitmaps that were assigned to each other.
class BitmapSharingTest : public test::LedgerTest {
protected:
    static bool Share(const TBitmap& a, const TBitmap& b) { return a.ScanLine(0) == b.ScanLine(0); }
};

TEST_F(BitmapSharingTest, AssigningSharesTheMemory) {
    TBitmap source(5, 4, pf24bit);
    Paint(source, Numbered);
    TBitmap copy;
    copy.Assign(&source);
    EXPECT_TRUE(Share(source, copy));
    EXPECT_EQ(copy.GetPixelFormat(), pf24bit);
    EXPECT_TRUE(Shows(copy, Numbered));
    EXPECT_TRUE(Share(source, copy));
}

TEST_F(BitmapSharingTest, DrawingOnOneLeavesTheOtherAlone) {
    TBitmap source(5, 4, pf24bit);
    Paint(source, Numbered);
    TBitmap copy;
    copy.Assign(&source);
    source.GetCanvas().FillRect({0, 0, 5, 4});
    EXPECT_TRUE(Shows(source, [](int, int) { return clWhite; }));
    EXPECT_TRUE(Shows(copy, Numbered));
    TBitmap third;
    third.Assign(&copy);
    third.GetCanvas().SetPixel(0, 0, clRed);
    EXPECT_TRUE(Shows(copy, Numbered));
    EXPECT_EQ(third.ReadBits().GetColor(0, 0), clRed);
}

TEST_F(BitmapSharingTest, WritingToMemoryLeavesTheOtherAlone) {
    TBitmap source(5, 4, pf24bit);
    Paint(source, Numbered);
    TBitmap copy;
    copy.Assign(&source);
    copy.WriteBits().SetColor(1, 1, clRed);
    EXPECT_TRUE(Shows(source, Numbered));
    TBitmap other;
    other.Assign(&source);
    static_cast<std::uint8_t*>(source.ScanLine(0))[0] ^= 0xFF;
    EXPECT_TRUE(Shows(other, Numbered));
}

TEST_F(BitmapSharingTest, AViewOfTheOnlyOwnerStaysValid) {
    TBitmap bitmap(5, 4, pf24bit);
    const TBitmapBits bits = bitmap.WriteBits();
    EXPECT_EQ(bitmap.WriteBits().Data, bits.Data);
    (void)bitmap.GetSourceDC();
    EXPECT_EQ(bitmap.WriteBits().Data, bits.Data);
    bitmap.GetCanvas().SetPixel(0, 0, clRed);
    EXPECT_EQ(bits.GetColor(0, 0), clRed);
    EXPECT_EQ(bitmap.WriteBits().Data, bits.Data);
}

TEST_F(BitmapSharingTest, SizeAndFormatOfOneLeaveTheOtherAlone) {
    TBitmap source(5, 4, pf24bit);
    Paint(source, Numbered);
    TBitmap copy;
    copy.Assign(&source);
    source.SetSize(2, 2);
    copy.SetPixelFormat(pf32bit);
    EXPECT_EQ(copy.GetWidth(), 5);
    EXPECT_TRUE(Shows(copy, Numbered));
    EXPECT_TRUE(Shows(source, Numbered));
    EXPECT_EQ(source.GetPixelFormat(), pf24bit);
}

TEST_F(BitmapSharingTest, ASharerOutlivesItsSource) {
    TBitmap copy;
    {
        TBitmap source(5, 4, pf24bit);
        Paint(source, Numbered);
        copy.Assign(&source);
    }
    EXPECT_TRUE(Shows(copy, Numbered));
    copy.GetCanvas().SetPixel(0, 0, clRed);
    EXPECT_EQ(copy.GetCanvas().GetPixel(0, 0), clRed);
}

TEST_F(BitmapSharingTest, ToolsStaySetWhenTheSurfaceChanges) {
    TBitmap bitmap(5, 4, pf24bit);
    bitmap.GetCanvas().GetBrush().SetColor(clRed);
    bitmap.GetCanvas().GetPen().SetColor(clBlue);
    bitmap.GetCanvas().Rectangle(0, 0, 5, 4);
    TBitmap copy;
    copy.Assign(&bitmap);
    bitmap.GetCanvas().Rectangle(1, 1, 4, 3);
    EXPECT_EQ(bitmap.ReadBits().GetColor(1, 1), clBlue);
    EXPECT_EQ(copy.ReadBits().GetColor(1, 1), clRed);
    bitmap.SetSize(9, 9);
    bitmap.GetCanvas().Rectangle(4, 4, 9, 9);
    EXPECT_EQ(bitmap.ReadBits().GetColor(4, 4), clBlue);
    EXPECT_EQ(bitmap.ReadBits().GetColor(6, 6), clRed);
}

TEST_F(BitmapSharingTest, TransparencyComesAlong) {
    TBitmap source(2, 2, pf24bit);
    source.SetTransparent(true);
    source.SetTransparentColor(clRed);
    TBitmap copy;
    int changes = 0;
    copy.OnChange = [&](TObject*) { ++changes; };
    copy.Assign(&source);
    EXPECT_TRUE(copy.GetTransparent());
    EXPECT_EQ(copy.GetTransparentColor(), clRed);
    EXPECT_EQ(copy.GetTransparentMode(), tmFixed);
    EXPECT_EQ(changes, 1);
}

TEST_F(BitmapSharingTest, AssigningNothingEmpties) {
    TBitmap bitmap(2, 2, pf24bit);
    int changes = 0;
    bitmap.OnChange = [&](TObject*) { ++changes; };
    bitmap.Assign(nullptr);
    EXPECT_TRUE(bitmap.GetEmpty());
    EXPECT_EQ(bitmap.GetWidth(), 0);
    EXPECT_EQ(bitmap.GetPixelFormat(), pfDevice);
    EXPECT_EQ(changes, 1);
    bitmap.Assign(nullptr);
    EXPECT_EQ(changes, 1);
}

TEST_F(BitmapSharingTest, AssigningItselfChangesNothing) {
    TBitmap bitmap(2, 2, pf24bit);
    Paint(bitmap, Numbered);
    bitmap.Assign(&bitmap);
    EXPECT_TRUE(Shows(bitmap, Numbered));
}

TEST_F(BitmapSharingTest, AssigningAnEmptyBitmapTakesItsSizeAndFormat) {
    TBitmap source;
    source.SetPixelFormat(pf24bit);
    source.SetHeight(5);
    TBitmap bitmap(2, 2);
    bitmap.Assign(&source);
    EXPECT_TRUE(bitmap.GetEmpty());
    EXPECT_EQ(bitmap.GetHeight(), 5);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf24bit);
}

TEST_F(BitmapSharingTest, OtherObjectsCannotBeAssigned) {
    TBitmap bitmap;
    const TPen pen;
    EXPECT_EQ(probes::MessageOf<EConvertError>([&] { bitmap.Assign(&pen); }),
              L"Cannot assign a TPen to a TBitmap");
}

}  // namespace
}  // namespace vcl
