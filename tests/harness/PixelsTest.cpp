#include "tests/support/Pixels.h"

#include "tests/support/LedgerTest.h"
#include "tests/support/PixelProbe.h"
#include "tests/support/TempDir.h"
#include "tests/support/TestWindow.h"

namespace test {
namespace {

class PixelsTest : public LedgerTest {};

TEST_F(PixelsTest, ADifferenceIsCountedListedAndDrawn) {
    const Pixels expected(4, 2, RGB(255, 255, 255));
    Pixels actual = expected;
    actual.Set(2, 1, RGB(1, 2, 3));
    const auto result = SamePixels(actual, expected);
    ASSERT_FALSE(result);
    const std::string text = result.message();
    EXPECT_NE(text.find("1 of 8 pixels differ"), std::string::npos) << text;
    EXPECT_NE(text.find("(2, 1) is 0x00030201, expected 0x00FFFFFF"), std::string::npos) << text;
    EXPECT_NE(text.find("....\n  ..#.\n"), std::string::npos) << text;
}

TEST_F(PixelsTest, PicturesOfDifferentSizeAreNeverTheSame) {
    EXPECT_FALSE(SamePixels(Pixels(2, 2), Pixels(2, 3)));
}

TEST_F(PixelsTest, AWindowIsReadWithItsChildren) {
    TestWindow window({100, 100, 180, 160}, [](UINT message, WPARAM dc, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_CTLCOLORSTATIC) return std::nullopt;
        SetBkColor(reinterpret_cast<HDC>(dc), RGB(0, 0, 255));
        return reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH));
    });
    CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 10, 20, 30, 15, window, nullptr, nullptr,
                    nullptr);
    const auto rule = [](int x, int y) {
        const bool child = x >= 10 && x < 40 && y >= 20 && y < 35;
        return child ? RGB(0, 0, 0) : RGB(255, 255, 255);
    };
    EXPECT_TRUE(SamePixels(ReadClient(window), rule));
    EXPECT_EQ(ReadClient(window).Width(), 80);
}

TEST_F(PixelsTest, ABitmapOfOneBitReadsInItsColours) {
    const BYTE bits[] = {0b10100000, 0};
    const HBITMAP bitmap = CreateBitmap(3, 1, 1, 1, bits);
    const Pixels pixels = ReadBitmap(bitmap);
    DeleteObject(bitmap);
    EXPECT_TRUE(SamePixels(pixels, [](int x, int) { return x == 1 ? RGB(0, 0, 0) : RGB(255, 255, 255); }));
    EXPECT_EQ(pixels.Width(), 3);
}

TEST_F(PixelsTest, DrawnStartsFromTheBackground) {
    const Pixels pixels = Drawn(5, 5, RGB(9, 8, 7), [](HDC dc) { SetPixel(dc, 1, 2, RGB(255, 0, 0)); });
    EXPECT_TRUE(
        SamePixels(pixels, [](int x, int y) { return x == 1 && y == 2 ? RGB(255, 0, 0) : RGB(9, 8, 7); }));
    const RECT bounds = pixels.Bounds([](COLORREF color) { return color == RGB(255, 0, 0); });
    EXPECT_EQ(bounds.left, 1);
    EXPECT_EQ(bounds.bottom, 3);
}

TEST_F(PixelsTest, APixmapHoldsTheColoursInOrder) {
    const TempDir folder;
    Pixels(1, 1, RGB(65, 66, 67)).SavePpm(folder.File(L"one.ppm"));
    EXPECT_EQ(folder.Read(L"one.ppm"), "P6\n1 1\n255\nABC");
}

}  // namespace
}  // namespace test
