#include <algorithm>
#include <cstdlib>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Jpeg.h"
#include "platform/vcl/graphics/Png.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::MessageOf;
using probes::Paint;
using probes::Shows;

/// Pictures that the system's decoders read.
class EncodedImageTest : public probes::PaintingTest {
protected:
    EncodedImageTest() : PaintingTest(16, 12) {}

    /// The first use of the decoders leaves things that live as long as the process.
    void SetUp() override {
        static bool warm = false;
        if (!std::exchange(warm, true)) (void)TwoHalves(JpegOf(8, 8), 8);
        PaintingTest::SetUp();
    }

    static std::vector<std::byte> JpegOf(int width, int height, int quality = 100) {
        TBitmap bitmap(width, height, pf24bit);
        Paint(bitmap, [&](int x, int) { return x < width / 2 ? clRed : clNavy; });
        TJPEGImage image;
        image.SetCompressionQuality(quality);
        image.Assign(&bitmap);
        return image.SaveToBytes();
    }
    static bool IsNear(TColor a, TColor b) {
        const auto alike = [](int x, int y) { return std::abs(x - y) < 24; };
        return alike(RedOf(a), RedOf(b)) && alike(GreenOf(a), GreenOf(b)) && alike(BlueOf(a), BlueOf(b));
    }
    /// Whether the decoded picture is red on its left and navy on its right half, as far as JPEG keeps it.
    static bool TwoHalves(std::span<const std::byte> bytes, int width) {
        TJPEGImage image;
        image.LoadFromBytes(bytes);
        return IsNear(image.GetBitmap().ReadBits().GetColor(1, 1), clRed) &&
               IsNear(image.GetBitmap().ReadBits().GetColor(width - 2, 1), clNavy);
    }
};

TEST_F(EncodedImageTest, AJpegIsDecodedToTrueColor) {
    TJPEGImage image;
    image.LoadFromBytes(JpegOf(16, 8));
    EXPECT_EQ(image.GetWidth(), 16);
    EXPECT_EQ(image.GetHeight(), 8);
    EXPECT_FALSE(image.GetEmpty());
    EXPECT_EQ(image.GetBitmap().GetPixelFormat(), pf24bit);
    EXPECT_TRUE(TwoHalves(JpegOf(16, 8), 16));
}

TEST_F(EncodedImageTest, AJpegIsDrawnAndAssignedToBitmaps) {
    TJPEGImage image;
    image.LoadFromBytes(JpegOf(16, 8));
    Canvas().Draw(0, 2, &image);
    EXPECT_TRUE(IsNear(At(1, 3), clRed));
    EXPECT_TRUE(IsNear(At(14, 3), clNavy));
    EXPECT_EQ(At(1, 1), clWhite);
    TBitmap bitmap;
    bitmap.Assign(&image);
    EXPECT_EQ(bitmap.GetWidth(), 16);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf24bit);
    EXPECT_EQ(bitmap.ReadBits().Data, image.GetBitmap().ReadBits().Data);
}

TEST_F(EncodedImageTest, AJpegCutAnywhereIsRefused) {
    const std::vector<std::byte> bytes = JpegOf(16, 8, 50);
    TJPEGImage image;
    image.LoadFromBytes(bytes);
    for (std::size_t length = 0; length < bytes.size(); length += length < 64 ? 1 : 17) {
        const String text =
            MessageOf<EInvalidGraphic>([&] { image.LoadFromBytes(std::span(bytes).first(length)); });
        ASSERT_EQ(text.find(L"JPEG error #"), 0U) << length << ": " << ToUtf8(text);
    }
    ASSERT_THROW(image.LoadFromBytes(std::span(bytes).first(bytes.size() - 1)), EInvalidGraphic);
    EXPECT_EQ(image.GetWidth(), 16);
    EXPECT_EQ(image.SaveToBytes(), bytes);
}

TEST_F(EncodedImageTest, ForeignBytesAreRefused) {
    const char junk[] = "This is no picture at all, and not meant to be one.";
    TJPEGImage jpeg;
    TPngImage png;
    EXPECT_EQ(MessageOf<EInvalidGraphic>([&] { jpeg.LoadFromBytes(std::as_bytes(std::span(junk))); }),
              L"JPEG error #12039");
    EXPECT_EQ(MessageOf<EInvalidGraphic>([&] { png.LoadFromBytes(std::as_bytes(std::span(junk))); }),
              L"PNG error #12039");
    EXPECT_THROW(png.LoadFromBytes(JpegOf(4, 4)), EInvalidGraphic);
    EXPECT_TRUE(jpeg.GetEmpty());
}

TEST_F(EncodedImageTest, LoadedBytesAreSavedAsTheyWere) {
    const std::vector<std::byte> bytes = JpegOf(16, 8, 70);
    TJPEGImage image;
    image.LoadFromBytes(bytes);
    EXPECT_EQ(image.SaveToBytes(), bytes);
    TJPEGImage copy;
    copy.Assign(&image);
    EXPECT_EQ(copy.SaveToBytes(), bytes);
    EXPECT_EQ(copy.GetBitmap().ReadBits().Data, image.GetBitmap().ReadBits().Data);
    EXPECT_TRUE(TJPEGImage().SaveToBytes().empty());
}

TEST_F(EncodedImageTest, QualityStaysBetweenSmallestAndBest) {
    TJPEGImage image;
    EXPECT_EQ(image.GetCompressionQuality(), 90);
    image.SetCompressionQuality(1000);
    EXPECT_EQ(image.GetCompressionQuality(), 100);
    image.SetCompressionQuality(0);
    EXPECT_EQ(image.GetCompressionQuality(), 1);
}

TEST_F(EncodedImageTest, TheSizeIsFixed) {
    TJPEGImage image;
    EXPECT_EQ(MessageOf<EInvalidGraphicOperation>([&] { image.SetWidth(3); }),
              L"Cannot change the size of a TJPEGImage");
    EXPECT_THROW(image.SetHeight(3), EInvalidGraphicOperation);
}

TEST_F(EncodedImageTest, APngKeepsEveryPixel) {
    TBitmap bitmap(9, 7, pf24bit);
    Paint(bitmap, probes::Numbered);
    TPngImage image;
    image.Assign(&bitmap);
    TPngImage back;
    back.LoadFromBytes(image.SaveToBytes());
    EXPECT_TRUE(Shows(back.GetBitmap(), probes::Numbered));
    Canvas().Draw(0, 0, &back);
    EXPECT_TRUE(
        Shows(Bitmap(), [](int x, int y) { return x < 9 && y < 7 ? probes::Numbered(x, y) : clWhite; }));
}

TEST_F(EncodedImageTest, APngBlendsByItsAlpha) {
    TBitmap bitmap(2, 1, pf32bit);
    const TBitmapBits bits = bitmap.WriteBits();
    const std::uint8_t half[] = {0, 0, 128, 128};  // red of half strength, premultiplied
    std::copy_n(half, 4, bits.Pixel(1, 0));
    std::fill_n(bits.Pixel(0, 0), 4, std::uint8_t{0});
    TPngImage image;
    image.Assign(&bitmap);
    TPngImage back;
    back.LoadFromBytes(image.SaveToBytes());
    Canvas().Draw(0, 0, &back);
    EXPECT_EQ(At(0, 0), clWhite);
    EXPECT_TRUE(IsNear(At(1, 0), RGBToColor(255, 127, 127)));
    EXPECT_TRUE(back.GetTransparent());
}

TEST_F(EncodedImageTest, APngCutAnywhereIsRefused) {
    TBitmap bitmap(5, 4, pf24bit);
    Paint(bitmap, probes::Numbered);
    TPngImage image;
    image.Assign(&bitmap);
    const std::vector<std::byte> bytes = image.SaveToBytes();
    TPngImage back;
    for (std::size_t length = 0; length < bytes.size(); ++length)
        ASSERT_THROW(back.LoadFromBytes(std::span(bytes).first(length)), EInvalidGraphic) << length;
    EXPECT_TRUE(back.GetEmpty());
    back.LoadFromBytes(bytes);
    EXPECT_EQ(back.GetHeight(), 4);
}

}  // namespace
}  // namespace vcl
