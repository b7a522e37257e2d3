#include "skin/masking/NinePartFrame.h"

#include "platform/vcl/graphics/Canvas.h"
#include "skin/masking/NinePartPaths.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::MessageOf;
using probes::PixelsOf;
using probes::RandomColors;
using test::Pixels;

constexpr TColor Fill = 0x00C66021;

/// Eight pictures by position.
using Pictures = std::array<Pixels, AllFramePositions.size()>;

const Pixels& At(const Pictures& pictures, TFramePosition position) {
    return pictures[static_cast<std::size_t>(position)];
}

Pictures PicturesOf(const TNinePartBitmaps& bitmaps) {
    Pictures pictures;
    for (const TFramePosition position : AllFramePositions) {
        const TBitmap& piece = bitmaps[position];
        pictures[static_cast<std::size_t>(position)] =
            test::ReadDC(piece.GetSourceDC(), {0, 0, piece.GetWidth(), piece.GetHeight()});
    }
    return pictures;
}

/// Draws pieces as the rules say, pixel by pixel, each clipped to the picture. An edge is stretched by
/// repeating its single pixel; a stretch to nothing or less draws nothing.
class Rule {
public:
    Rule(const Pictures& pieces, int width, int height) : FPieces(pieces), FResult(width, height, Fill) {}

    Pixels Compose() {
        const int w = FResult.Width(), h = FResult.Height();
        const auto widthOf = [&](TFramePosition p) { return At(FPieces, p).Width(); };
        const auto heightOf = [&](TFramePosition p) { return At(FPieces, p).Height(); };
        Place(fposTopLeft, 0, 0, widthOf(fposTopLeft), heightOf(fposTopLeft));
        Place(fposTopCenter, widthOf(fposTopLeft), 0, w - widthOf(fposTopRight), heightOf(fposTopCenter));
        Place(fposTopRight, w - widthOf(fposTopRight), 0, w, heightOf(fposTopRight));
        Place(fposBottomLeft, 0, h - heightOf(fposBottomLeft), widthOf(fposBottomLeft), h);
        Place(fposBottomCenter, widthOf(fposBottomLeft), h - heightOf(fposBottomCenter),
              w - widthOf(fposBottomRight), h);
        Place(fposBottomRight, w - widthOf(fposBottomRight), h - heightOf(fposBottomRight), w, h);
        if (heightOf(fposTopLeft) < h - heightOf(fposBottomLeft))
            Place(fposLeftCenter, 0, heightOf(fposTopLeft), widthOf(fposLeftCenter),
                  h - heightOf(fposBottomLeft));
        if (heightOf(fposTopRight) < h - heightOf(fposBottomRight))
            Place(fposRightCenter, w - widthOf(fposRightCenter), heightOf(fposTopRight), w,
                  h - heightOf(fposBottomRight));
        return FResult;
    }

private:
    void Place(TFramePosition position, int left, int top, int right, int bottom) {
        const Pixels& piece = At(FPieces, position);
        for (int y = std::max(top, 0); y < std::min(bottom, FResult.Height()); ++y)
            for (int x = std::max(left, 0); x < std::min(right, FResult.Width()); ++x)
                FResult.Set(x, y, piece.At((x - left) % piece.Width(), (y - top) % piece.Height()));
    }
    const Pictures& FPieces;
    Pixels FResult;
};

class NinePartFrameTest : public test::LedgerTest {
protected:
    static Pixels Composed(const TNinePartPieces& pieces, int width, int height,
                           TPixelFormat format = pf24bit) {
        TBitmap bitmap(width, height, format);
        ComposeNinePartFrame(bitmap, pieces, Fill);
        return PixelsOf(bitmap);
    }
};

TEST_F(NinePartFrameTest, EveryFrameOfTheSkinFollowsTheRules) {
    for (const wchar_t* prefix : {L"SKINBUTTONDEFAULT", L"SKINBUTTONHOVERED", L"SKINBUTTONPRESSED",
                                  L"SKINBUTTONDISABLED", L"MASK", L"MASKWHITE", L"TABDEFAULT", L"TABHOVERED",
                                  L"TABPRESSED", L"WHITETABDEFAULT", L"WHITETABPRESSED"}) {
        const TNinePartBitmaps bitmaps(prefix);
        const Pictures pictures = PicturesOf(bitmaps);
        for (const TPixelFormat format : {pf24bit, pf32bit})
            for (const TSize size : {TSize(100, 25), TSize(30, 24), TSize(31, 25), TSize(257, 129)})
                EXPECT_TRUE(SamePixels(Composed(bitmaps.Pieces(), size.Width, size.Height, format),
                                       Rule(pictures, size.Width, size.Height).Compose()))
                    << ToUtf8(prefix) << " " << size.Width << " x " << size.Height;
    }
}

TEST_F(NinePartFrameTest, BothPathsAgreeOnEverySize) {
    const TNinePartBitmaps mask(L"MASK");
    for (const TPixelFormat format : {pf24bit, pf32bit})
        for (const int width : {29, 30, 31, 32, 33, 45, 46, 47, 48, 61, 62, 63, 64, 79})
            for (const int height : {23, 24, 25, 40}) {
                TBitmap byRows(width, height, format), byCanvas(width, height, format);
                const bool done = ComposeNinePartByRows(byRows, mask.Pieces(), Fill);
                EXPECT_EQ(done, width >= 30 && height >= 24) << width << " x " << height;
                ComposeNinePartByCanvas(byCanvas, mask.Pieces(), Fill);
                if (done) {
                    EXPECT_TRUE(SamePixels(PixelsOf(byRows), PixelsOf(byCanvas)));
                }
            }
}

TEST_F(NinePartFrameTest, ALowFrameHasNoSideEdges) {
    // Corners of 12 pixels leave no room in 20: 12 is not less than 20 - 12.
    const TNinePartBitmaps mask(L"MASK");
    const Pictures pictures = PicturesOf(mask);
    EXPECT_TRUE(SamePixels(Composed(mask.Pieces(), 60, 20), Rule(pictures, 60, 20).Compose()));
    // The column of the right edge is the corners' own from top to bottom.
    const Pixels low = Composed(mask.Pieces(), 60, 20);
    for (int y = 0; y < 20; ++y)
        EXPECT_EQ(low.At(59, y),
                  y < 8 ? At(pictures, fposTopRight).At(14, y) : At(pictures, fposBottomRight).At(14, y - 8));
}

TEST_F(NinePartFrameTest, OneRowOfRoomIsFilledByTheSideEdges) {
    const TNinePartBitmaps mask(L"MASK");
    const Pixels frame = Composed(mask.Pieces(), 60, 25);
    const Pictures pictures = PicturesOf(mask);
    EXPECT_EQ(frame.At(0, 12), At(pictures, fposLeftCenter).At(0, 0));
    EXPECT_EQ(frame.At(3, 12), At(pictures, fposLeftCenter).At(3, 0));
    EXPECT_EQ(frame.At(4, 12), Fill);
    EXPECT_EQ(frame.At(59, 12), At(pictures, fposRightCenter).At(1, 0));
}

TEST_F(NinePartFrameTest, PiecesOverlapInTheOrderOfDrawing) {
    const TNinePartBitmaps mask(L"MASK");
    const Pictures pictures = PicturesOf(mask);
    for (const TSize size : {TSize(30, 12), TSize(60, 5), TSize(40, 23), TSize(40, 1)})
        EXPECT_TRUE(SamePixels(Composed(mask.Pieces(), size.Width, size.Height),
                               Rule(pictures, size.Width, size.Height).Compose()))
            << size.Width << " x " << size.Height;
}

TEST_F(NinePartFrameTest, AFrameNarrowerThanItsCornersShowsTheRightOnes) {
    const TNinePartBitmaps mask(L"MASK");
    const Pictures pictures = PicturesOf(mask);
    const Pixels narrow = Composed(mask.Pieces(), 20, 24);
    EXPECT_TRUE(SamePixels(narrow.Part({5, 0, 20, 12}), At(pictures, fposTopRight)));
    EXPECT_TRUE(SamePixels(narrow.Part({5, 12, 20, 24}), At(pictures, fposBottomRight)));
    EXPECT_TRUE(SamePixels(narrow.Part({0, 0, 5, 12}), At(pictures, fposTopLeft).Part({0, 0, 5, 12})));
}

TEST_F(NinePartFrameTest, RandomPiecesFollowTheRules) {
    RandomColors random(1);
    for (int round = 0; round < 60; ++round) {
        Pictures pictures;
        TNinePartPieces::Graphics graphics;
        std::vector<std::unique_ptr<TBitmap>> bitmaps;
        for (const TFramePosition position : AllFramePositions) {
            const bool isTopOrBottom = position == fposTopCenter || position == fposBottomCenter;
            const bool isSide = position == fposLeftCenter || position == fposRightCenter;
            const int width = isTopOrBottom ? 1 : 1 + static_cast<int>(random.Next(9));
            const int height = isSide ? 1 : 1 + static_cast<int>(random.Next(9));
            const auto index = static_cast<std::size_t>(position);
            pictures[index] = random.Picture(width, height);
            bitmaps.push_back(BitmapOf(pictures[index], random.Next(2) ? pf24bit : pf32bit));
            graphics[index] = bitmaps.back().get();
        }
        const int width = 18 + static_cast<int>(random.Next(60)),
                  height = 1 + static_cast<int>(random.Next(40));
        EXPECT_TRUE(
            SamePixels(Composed(TNinePartPieces(graphics), width, height, random.Next(2) ? pf24bit : pf32bit),
                       Rule(pictures, width, height).Compose()))
            << "round " << round << ": " << width << " x " << height;
    }
}

TEST_F(NinePartFrameTest, TheEdgesOfTransparentPiecesShowTheFill) {
    Pictures pictures;
    TNinePartPieces::Graphics graphics;
    std::vector<std::unique_ptr<TBitmap>> bitmaps;
    for (std::size_t i = 0; i < graphics.size(); ++i) {
        bitmaps.push_back(BitmapOf(i == 1 || i == 4 ? 1 : 3, i > 5 ? 1 : 3, Magenta));
        bitmaps.back()->SetTransparentColor(Magenta);
        bitmaps.back()->SetTransparent(true);
        graphics[i] = bitmaps.back().get();
    }
    EXPECT_EQ(Composed(TNinePartPieces(graphics), 20, 20).Count(Fill), 400);
}

TEST_F(NinePartFrameTest, FewColorsAreComposedToo) {
    const TNinePartBitmaps mask(L"MASK");
    TBitmap bitmap(40, 30, pf16bit);
    ComposeNinePartFrame(bitmap, mask.Pieces(), clBlack);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf16bit);
    EXPECT_EQ(PixelsOf(bitmap).At(20, 15), COLORREF{clBlack});
}

TEST_F(NinePartFrameTest, ASystemColorFills) {
    const TNinePartBitmaps mask(L"MASK");
    TBitmap bitmap(40, 30, pf24bit);
    ComposeNinePartFrame(bitmap, mask.Pieces(), clHighlight);
    EXPECT_EQ(PixelsOf(bitmap).At(20, 15), ColorToRGB(clHighlight));
}

TEST_F(NinePartFrameTest, TheBitmapTellsThatItChanged) {
    const TNinePartBitmaps pieces(L"SKINBUTTONDEFAULT");
    TBitmap face(60, 30, pf24bit);
    int changes = 0;
    face.OnChange = [&](TObject*) { ++changes; };
    ASSERT_TRUE(ComposeNinePartByRows(face, pieces.Pieces(), clBlack));
    EXPECT_EQ(changes, 1);
}

TEST_F(NinePartFrameTest, NoPixelsNeedNoFrame) {
    const TNinePartBitmaps mask(L"MASK");
    TBitmap empty;
    ComposeNinePartFrame(empty, mask.Pieces(), Fill);
    EXPECT_TRUE(empty.GetEmpty());
}

TEST_F(NinePartFrameTest, AMissingPieceRaisesAnErrorWithItsName) {
    const String text = MessageOf<EResNotFound>([] { TNinePartBitmaps bitmaps(L"NOSUCHFRAME"); });
    EXPECT_NE(text.find(L"NOSUCHFRAMETOPLEFT"), String::npos) << ToUtf8(text);
    // A band of three has no upper corners.
    EXPECT_THROW(TNinePartBitmaps(L"TOOLBUTTONHOVERED"), EResNotFound);
}

}  // namespace
}  // namespace qv7skin
