#include "platform/vcl/graphics/ImageList.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::Numbered;
using probes::Paint;
using probes::Shows;

/// Draws images of 6 x 5 at (3, 2) on a ground of numbered pixels. Image 0 is opaque, image 1 has a magenta
/// diagonal that is left out.
class ImageListDrawingTest : public probes::PaintingTest {
protected:
    ImageListDrawingTest() : PaintingTest(12, 10) {}
    void SetUp() override {
        PaintingTest::SetUp();
        Paint(Bitmap(), Numbered);
        FList = std::make_unique<TImageList>(nullptr, 6, 5);
        TBitmap bitmap(6, 5, pf24bit);
        Paint(bitmap, Opaque);
        FList->Add(&bitmap, nullptr);
        Paint(bitmap, Diagonal);
        FList->AddMasked(&bitmap, clFuchsia);
    }
    void TearDown() override {
        FList.reset();
        PaintingTest::TearDown();
    }

    static TColor Opaque(int x, int y) {
        return RGBToColor(static_cast<std::uint8_t>(40 * x), static_cast<std::uint8_t>(50 * y), 200);
    }
    static TColor Diagonal(int x, int y) { return x == y ? clFuchsia : Opaque(x, y); }
    static bool Over(int x, int y) { return TRect::OfSize(3, 2, 6, 5).Contains({x, y}); }
    /// Whether the ground shows what the rule says where image 1 is, and itself everywhere else.
    testing::AssertionResult ShowsMasked(const probes::Rule& rule) {
        return Shows(Bitmap(), [&](int x, int y) {
            return Over(x, y) && x - 3 != y - 2 ? rule(x, y) : Numbered(x, y);
        });
    }
    static int Lightness(TColor c) { return (77 * RedOf(c) + 151 * GreenOf(c) + 28 * BlueOf(c)) / 256; }
    static TColor Grey(TColor c) {
        const auto g = static_cast<std::uint8_t>(128 + Lightness(c) / 2);
        return RGBToColor(g, g, g);
    }

    std::unique_ptr<TImageList> FList;
};

TEST_F(ImageListDrawingTest, AnOpaqueImageIsCopiedExactly) {
    FList->Draw(Canvas(), 3, 2, 0);
    EXPECT_TRUE(
        Shows(Bitmap(), [](int x, int y) { return Over(x, y) ? Opaque(x - 3, y - 2) : Numbered(x, y); }));
    EXPECT_FALSE(FList->IsMasked(0));
}

TEST_F(ImageListDrawingTest, AMaskedImageLeavesTheGround) {
    FList->Draw(Canvas(), 3, 2, 1);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return Opaque(x - 3, y - 2); }));
    EXPECT_TRUE(FList->IsMasked(1));
}

TEST_F(ImageListDrawingTest, AMaskIsGivenByABitmapToo) {
    TBitmap bitmap(6, 5, pf24bit);
    Paint(bitmap, Opaque);
    TBitmap mask(6, 5, pf24bit);
    Paint(mask, [](int x, int y) { return x == y ? clWhite : clBlack; });
    const int index = FList->Add(&bitmap, &mask);
    FList->Draw(Canvas(), 3, 2, index);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return Opaque(x - 3, y - 2); }));
    Paint(Bitmap(), Numbered);
    mask.SetPixelFormat(pf1bit);
    FList->Replace(0, &bitmap, &mask);
    FList->Draw(Canvas(), 3, 2, 0);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return Opaque(x - 3, y - 2); }));
}

TEST_F(ImageListDrawingTest, MasksMoveWithTheirImages) {
    FList->Move(0, 1);
    EXPECT_TRUE(FList->IsMasked(0));
    EXPECT_FALSE(FList->IsMasked(1));
    FList->Draw(Canvas(), 3, 2, 0);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return Opaque(x - 3, y - 2); }));
    TBitmap bitmap(6, 5, pf24bit);
    Paint(bitmap, Opaque);
    FList->ReplaceMasked(0, &bitmap, clNone);
    EXPECT_FALSE(FList->IsMasked(0));
    FList->Draw(Canvas(), 3, 2, 0);
    EXPECT_EQ(At(4, 3), Opaque(1, 1));
}

TEST_F(ImageListDrawingTest, TheDefaultMaskColorIsTheBitmapsOwn) {
    TBitmap bitmap(6, 5, pf24bit);
    Paint(bitmap, [](int x, int y) { return x == y ? clAqua : y == 4 && x == 0 ? clAqua : Opaque(x, y); });
    const int index = FList->AddMasked(&bitmap, clDefault);
    FList->Draw(Canvas(), 3, 2, index);
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
        const bool hole = x - 3 == y - 2 || (x == 3 && y == 6);
        return Over(x, y) && !hole ? Opaque(x - 3, y - 2) : Numbered(x, y);
    }));
}

TEST_F(ImageListDrawingTest, WithoutMasksEveryPixelShows) {
    FList->SetMasked(false);
    TBitmap bitmap(6, 5, pf24bit);
    Paint(bitmap, Diagonal);
    const int index = FList->AddMasked(&bitmap, clFuchsia);
    EXPECT_FALSE(FList->IsMasked(index));
    FList->Draw(Canvas(), 3, 2, index);
    EXPECT_EQ(At(4, 3), clFuchsia);
}

TEST_F(ImageListDrawingTest, ABackgroundColorFillsTheHoles) {
    FList->SetBkColor(clYellow);
    FList->Draw(Canvas(), 3, 2, 1);
    EXPECT_TRUE(Shows(Bitmap(), [](int x, int y) {
        if (!Over(x, y)) return Numbered(x, y);
        return x - 3 == y - 2 ? clYellow : Opaque(x - 3, y - 2);
    }));
    Paint(Bitmap(), Numbered);
    FList->Draw(Canvas(), 3, 2, 1, dsTransparent);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return Opaque(x - 3, y - 2); }));
}

TEST_F(ImageListDrawingTest, SelectedAndFocusedImagesAreMixed) {
    FList->SetBlendColor(clRed);
    FList->Draw(Canvas(), 3, 2, 1, dsSelected);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return BlendColors(Opaque(x - 3, y - 2), clRed, 128); }));
    Paint(Bitmap(), Numbered);
    FList->SetBlendColor(clDefault);
    FList->SetDrawingStyle(dsFocus);
    FList->Draw(Canvas(), 3, 2, 1);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return BlendColors(Opaque(x - 3, y - 2), clHighlight, 64); }));
}

TEST_F(ImageListDrawingTest, WithoutABlendColorTheGroundIsMixedIn) {
    FList->Draw(Canvas(), 3, 2, 1, dsSelected);
    EXPECT_TRUE(
        ShowsMasked([](int x, int y) { return BlendColors(Opaque(x - 3, y - 2), Numbered(x, y), 128); }));
}

TEST_F(ImageListDrawingTest, DisabledImagesAreLightGrey) {
    FList->Draw(Canvas(), 3, 2, 1, false);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return Grey(Opaque(x - 3, y - 2)); }));
    EXPECT_GE(RedOf(Grey(clBlack)), 128);
    Paint(Bitmap(), Numbered);
    FList->Draw(Canvas(), 3, 2, 0, false);
    EXPECT_EQ(At(4, 3), Grey(Opaque(1, 1)));
}

TEST_F(ImageListDrawingTest, DrawingTellsTheCanvasOnce) {
    int changes = 0;
    Canvas().OnChange = [&](TObject*) { ++changes; };
    FList->Draw(Canvas(), 0, 0, 0);
    FList->Draw(Canvas(), 0, 0, 1);
    FList->Draw(Canvas(), 0, 0, 1, dsSelected, false);
    EXPECT_EQ(changes, 3);
    FList->Draw(Canvas(), 0, 0, 2);
    FList->Draw(Canvas(), 0, 0, -1);
    EXPECT_EQ(changes, 3);
}

TEST_F(ImageListDrawingTest, ABitmapOfAnImageHasItsSizeAndPixels) {
    TBitmap bitmap(2, 2, pf24bit);
    ASSERT_TRUE(FList->GetBitmap(0, bitmap));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf24bit);
    EXPECT_TRUE(Shows(bitmap, Opaque));
    bitmap.GetCanvas().GetBrush().SetColor(clFuchsia);
    ASSERT_TRUE(FList->GetBitmap(1, bitmap));
    EXPECT_TRUE(Shows(bitmap, Diagonal));
}

TEST_F(ImageListDrawingTest, AnIconBecomesAnImage) {
    TBitmap color(6, 5, pf24bit);
    Paint(color, [](int x, int y) { return x == y ? clBlack : Opaque(x, y); });
    TBitmap mask(6, 5, pf24bit);
    Paint(mask, [](int x, int y) { return x == y ? clWhite : clBlack; });
    mask.SetPixelFormat(pf1bit);
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmColor = color.GetHandle();
    info.hbmMask = mask.GetHandle();
    const TIconHandle icon(::CreateIconIndirect(&info));
    const int index = FList->AddIcon(icon.Get());
    FList->Draw(Canvas(), 3, 2, index);
    EXPECT_TRUE(ShowsMasked([](int x, int y) { return Opaque(x - 3, y - 2); }));
}

}  // namespace
}  // namespace vcl
