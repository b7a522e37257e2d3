#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::MessageOf;
using probes::Shows;

void Here() {}

HINSTANCE ThisModule() {
    return ModuleOfAddress(reinterpret_cast<const void*>(&Here));
}

class BitmapResourceTest : public test::LedgerTest {};

TEST_F(BitmapResourceTest, ABitmapIsLoadedByNameInItsDepth) {
    TBitmap bitmap;
    int changes = 0;
    bitmap.OnChange = [&](TObject*) { ++changes; };
    bitmap.LoadFromResourceName(ThisModule(), L"TestBitmap");
    EXPECT_EQ(bitmap.GetPixelFormat(), pf24bit);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(Shows(bitmap, [](int x, int y) {
        const int first = 3 * x + (y == 0 ? 7 : 1);
        return RGBToColor(static_cast<std::uint8_t>(first + 2), static_cast<std::uint8_t>(first + 1),
                          static_cast<std::uint8_t>(first));
    }));
}

TEST_F(BitmapResourceTest, ABitmapIsLoadedByNumber) {
    TBitmap bitmap;
    bitmap.LoadFromResourceID(ThisModule(), 77);
    EXPECT_EQ(bitmap.GetPixelFormat(), pf4bit);
    EXPECT_TRUE(Shows(bitmap, [](int, int) { return clBlue; }));
}

TEST_F(BitmapResourceTest, AnUnknownNameStandsInTheError) {
    TBitmap bitmap(3, 3);
    EXPECT_EQ(MessageOf<EResNotFound>([&] { bitmap.LoadFromResourceName(ThisModule(), L"NOSUCHBITMAP"); }),
              L"Resource NOSUCHBITMAP not found");
    EXPECT_EQ(bitmap.GetWidth(), 3);
}

TEST_F(BitmapResourceTest, ADamagedBitmapIsRefused) {
    TBitmap bitmap(3, 3);
    EXPECT_EQ(
        MessageOf<EInvalidGraphic>([&] { bitmap.LoadFromResourceName(ThisModule(), L"TESTBITMAPCUT"); }),
        L"Bitmap image is not valid");
    EXPECT_EQ(bitmap.GetWidth(), 3);
}

}  // namespace
}  // namespace vcl
