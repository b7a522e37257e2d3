#include <array>
#include <cstring>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/TempDir.h"
#include "tests/vcl/graphics/BmpFile.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::BmpFile;
using probes::MessageOf;
using probes::Numbered;
using probes::Paint;
using probes::Shows;

using TRow = std::vector<std::uint8_t>;

class BitmapFileTest : public test::LedgerTest {
protected:
    /// Refuses the bytes and keeps what the bitmap held before.
    static testing::AssertionResult IsRefused(std::span<const std::byte> bytes) {
        TBitmap bitmap(2, 2, pf24bit);
        Paint(bitmap, Numbered);
        const String text = MessageOf<EInvalidGraphic>([&] { bitmap.LoadFromBytes(bytes); });
        if (text != L"Bitmap image is not valid") return testing::AssertionFailure() << ToUtf8(text);
        return Shows(bitmap, Numbered);
    }

    static TBitmap& Load(TBitmap& bitmap, const BmpFile& file) {
        bitmap.LoadFromBytes(file.Bytes());
        return bitmap;
    }

    /// Two rows of three pixels of 24 bits.
    static BmpFile TrueColorFile() {
        BmpFile file(3, 2, 24);
        file.AddRow(TRow{1, 2, 3, 4, 5, 6, 7, 8, 9});
        file.AddRow(TRow{11, 12, 13, 14, 15, 16, 17, 18, 19});
        return file;
    }
    static TColor TrueColor(int x, int y) {
        const int first = 3 * x + 1 + (y == 0 ? 10 : 0);
        return RGBToColor(static_cast<std::uint8_t>(first + 2), static_cast<std::uint8_t>(first + 1),
                          static_cast<std::uint8_t>(first));
    }

    /// Files whose rows are run-length encoded, with 16 or 256 colours of which the first four matter.
    static BmpFile RunFile(int width, int height, int bitCount, const TRow& code) {
        BmpFile file(width, height, bitCount, bitCount == 8 ? BI_RLE8 : BI_RLE4);
        file.Colors = FourColors();
        file.Header.biClrUsed = 4;
        file.Data = code;
        return file;
    }
    static std::vector<RGBQUAD> FourColors() {
        return {{0, 0, 0, 0}, {0, 0, 255, 0}, {0, 255, 0, 0}, {255, 0, 0, 0}};
    }
    /// Black, red, green, blue.
    static TColor Indexed(int index) {
        return std::array{clBlack, clRed, clLime, clBlue}[static_cast<std::size_t>(index)];
    }
};

// --- Depths

TEST_F(BitmapFileTest, TrueColorIsReadBottomUp) {
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, TrueColorFile()), TrueColor));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf24bit);
    EXPECT_EQ(bitmap.GetWidth(), 3);
}

TEST_F(BitmapFileTest, TopDownFilesAreTurned) {
    BmpFile file = TrueColorFile();
    file.Header.biHeight = -2;
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, file), [](int x, int y) { return TrueColor(x, 1 - y); }));
}

TEST_F(BitmapFileTest, ThirtyTwoBitsAreReadInBothDirections) {
    for (const int height : {2, -2}) {
        BmpFile file(2, height, 32);
        file.AddRow(TRow{1, 2, 3, 0, 4, 5, 6, 255});
        file.AddRow(TRow{7, 8, 9, 0, 10, 11, 12, 128});
        TBitmap bitmap;
        EXPECT_TRUE(Shows(Load(bitmap, file), [&](int x, int y) {
            const int first = 3 * x + 1 + ((y == 0) == (height > 0) ? 6 : 0);
            return RGBToColor(static_cast<std::uint8_t>(first + 2), static_cast<std::uint8_t>(first + 1),
                              static_cast<std::uint8_t>(first));
        }));
        EXPECT_EQ(bitmap.GetPixelFormat(), pf32bit);
        EXPECT_EQ(bitmap.ReadBits().Pixel(1, height > 0 ? 1 : 0)[3], 255);
    }
}

TEST_F(BitmapFileTest, OneBitTakesTheTwoColorsOfItsTable) {
    BmpFile file(10, 2, 1);
    file.Colors = {{0, 0, 255, 0}, {255, 0, 0, 0}};
    file.AddRow(TRow{0xAA, 0x80});
    file.AddRow(TRow{0x0F, 0x40});
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, file), [](int x, int y) {
        const unsigned row = y == 0 ? 0x0F40 : 0xAA80;
        return row >> (15 - x) & 1 ? clBlue : clRed;
    }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf1bit);
}

TEST_F(BitmapFileTest, FourAndEightBitsTakeTheColorsOfTheirTable) {
    BmpFile four(3, 1, 4);
    four.Colors = FourColors();
    four.Header.biClrUsed = 4;
    four.AddRow(TRow{0x12, 0x30});
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, four), [](int x, int) { return Indexed(x + 1); }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf4bit);
    BmpFile eight(3, 1, 8);
    eight.Colors = FourColors();
    eight.Header.biClrUsed = 4;
    eight.AddRow(TRow{3, 2, 1});
    EXPECT_TRUE(Shows(Load(bitmap, eight), [](int x, int) { return Indexed(3 - x); }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf8bit);
}

TEST_F(BitmapFileTest, AWholeTableIsExpectedWhenNoNumberIsGiven) {
    BmpFile file(1, 1, 8);
    file.Colors.assign(256, RGBQUAD{9, 8, 7, 0});
    file.AddRow(TRow{200});
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, file), [](int, int) { return RGBToColor(7, 8, 9); }));
}

TEST_F(BitmapFileTest, IndicesBeyondTheTableAreBlack) {
    BmpFile file(2, 1, 8);
    file.Colors = FourColors();
    file.Header.biClrUsed = 4;
    file.AddRow(TRow{250, 1});
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, file), [](int x, int) { return x ? clRed : clBlack; }));
}

TEST_F(BitmapFileTest, SixteenBitsHaveFiveEachUnlessMasksSayElse) {
    BmpFile plain(2, 1, 16);
    plain.AddRow(TRow{0x1F, 0x7C, 0xE0, 0x03});
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, plain), [](int x, int) { return x ? clLime : clFuchsia; }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf15bit);
    BmpFile masked(2, 1, 16, BI_BITFIELDS);
    masked.More = {0xF800, 0x07E0, 0x001F};
    masked.AddRow(TRow{0x1F, 0xF8, 0xE0, 0x07});
    EXPECT_TRUE(Shows(Load(bitmap, masked), [](int x, int) { return x ? clLime : clFuchsia; }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf16bit);
    masked.More = {0x7C00, 0x03E0, 0x001F};
    EXPECT_EQ(Load(bitmap, masked).GetPixelFormat(), pf15bit);
}

TEST_F(BitmapFileTest, UnusualMasksAreTakenApart) {
    BmpFile file(2, 1, 16, BI_BITFIELDS);
    file.More = {0x000F, 0x00F0, 0x0F00};
    file.AddRow(TRow{0x0F, 0x08, 0xF0, 0x00});
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, file), [](int x, int) { return x ? clLime : RGBToColor(255, 0, 0x88); }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf32bit);
    BmpFile wide(1, 1, 32, BI_BITFIELDS);
    wide.More = {0x3FF00000, 0x000FFC00, 0x000003FF};
    wide.AddRow(TRow{0xFF, 0x03, 0x00, 0x20});
    EXPECT_TRUE(Shows(Load(bitmap, wide), [](int, int) { return RGBToColor(128, 0, 255); }));
}

TEST_F(BitmapFileTest, NewerHeadersCarryTheirMasksInside) {
    BmpFile file(1, 1, 32, BI_BITFIELDS);
    file.More.assign((sizeof(BITMAPV5HEADER) - sizeof(BITMAPINFOHEADER)) / sizeof(DWORD), 0);
    const DWORD masks[] = {0x000000FF, 0x0000FF00, 0x00FF0000, 0xFF000000};
    std::copy(std::begin(masks), std::end(masks), file.More.begin());
    file.AddRow(TRow{10, 20, 30, 40});
    TBitmap bitmap;
    bitmap.LoadFromBytes(file.Bytes(sizeof(BITMAPV5HEADER)));
    EXPECT_TRUE(Shows(bitmap, [](int, int) { return RGBToColor(10, 20, 30); }));
    EXPECT_EQ(bitmap.ReadBits().Pixel(0, 0)[3], 40);
}

TEST_F(BitmapFileTest, TheOldHeaderIsRead) {
    std::vector<std::byte> bytes;
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof(BITMAPCOREHEADER) + 2 * 3;
    BmpFile::Append(bytes, file);
    BmpFile::Append(bytes, BITMAPCOREHEADER{sizeof(BITMAPCOREHEADER), 8, 1, 1, 1});
    BmpFile::Append(bytes, RGBTRIPLE{255, 0, 0});
    BmpFile::Append(bytes, RGBTRIPLE{0, 255, 0});
    BmpFile::Append(bytes, DWORD{0x0F});
    TBitmap bitmap;
    bitmap.LoadFromBytes(bytes);
    EXPECT_TRUE(Shows(bitmap, [](int x, int) { return x < 4 ? clBlue : clLime; }));
}

// --- Run-length codes

TEST_F(BitmapFileTest, RunsOfEightBitsAreDecoded) {
    // Bottom row: 3 x red, 2 literal (blue, green). Top row: delta over one, then 1 x red.
    const BmpFile file = RunFile(5, 2, 8, {3, 1, 0, 3, 3, 2, 0, 0, 0, 0, 0, 2, 1, 0, 1, 1, 0, 1});
    TBitmap bitmap;
    bitmap.LoadFromBytes(file.Bytes());
    const int expected[2][5] = {{0, 1, 0, 0, 0}, {1, 1, 1, 3, 2}};
    EXPECT_TRUE(Shows(bitmap, [&](int x, int y) {
        return x < 3 || y == 0 ? Indexed(expected[y][x]) : x == 3 ? clBlue : clLime;
    }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf8bit);
}

TEST_F(BitmapFileTest, RunsOfFourBitsAreDecoded) {
    // Bottom row: 4 alternating red and green, then literally blue, red, green. Top row: 5 x blue.
    const BmpFile file = RunFile(7, 2, 4, {4, 0x12, 0, 3, 0x31, 0x20, 0, 0, 5, 0x33, 0, 1});
    TBitmap bitmap;
    bitmap.LoadFromBytes(file.Bytes());
    const int expected[2][7] = {{3, 3, 3, 3, 3, 0, 0}, {1, 2, 1, 2, 3, 1, 2}};
    EXPECT_TRUE(Shows(bitmap, [&](int x, int y) { return Indexed(expected[y][x]); }));
    EXPECT_EQ(bitmap.GetPixelFormat(), pf4bit);
}

TEST_F(BitmapFileTest, ARunMayReachBeyondItsLineButNotBelowThePicture) {
    TBitmap bitmap;
    EXPECT_TRUE(Shows(Load(bitmap, RunFile(2, 1, 8, {9, 1, 0, 1})), [](int, int) { return clRed; }));
    EXPECT_TRUE(IsRefused(RunFile(2, 1, 8, {2, 1, 0, 0, 1, 1, 0, 1}).Bytes()));
    EXPECT_TRUE(IsRefused(RunFile(2, 1, 8, {0, 2, 0, 9, 1, 1, 0, 1}).Bytes()));
}

TEST_F(BitmapFileTest, RunsStandBottomUpAndInTheirDepthOnly) {
    EXPECT_TRUE(IsRefused(RunFile(2, -1, 8, {2, 1, 0, 1}).Bytes()));
    BmpFile file = RunFile(2, 1, 8, {2, 1, 0, 1});
    file.Header.biCompression = BI_RLE4;
    EXPECT_TRUE(IsRefused(file.Bytes()));
    BmpFile deep = TrueColorFile();
    deep.Header.biCompression = BI_RLE8;
    EXPECT_TRUE(IsRefused(deep.Bytes()));
}

// --- Damaged and foreign files

TEST_F(BitmapFileTest, AFileCutAnywhereIsRefused) {
    BmpFile indexed(3, 2, 8);
    indexed.Colors = FourColors();
    indexed.Header.biClrUsed = 4;
    indexed.AddRow(TRow{1, 2, 3});
    indexed.AddRow(TRow{3, 2, 1});
    BmpFile masked(2, 1, 16, BI_BITFIELDS);
    masked.More = {0xF800, 0x07E0, 0x001F};
    masked.AddRow(TRow{1, 2, 3, 4});
    const BmpFile files[] = {TrueColorFile(), indexed, masked,
                             RunFile(5, 2, 8, {3, 1, 0, 3, 3, 2, 0, 0, 0, 0, 2, 1, 0, 1}),
                             RunFile(7, 2, 4, {4, 0x12, 0, 3, 0x31, 0x20, 0, 0, 5, 0x33, 0, 1})};
    for (const BmpFile& file : files) {
        const std::vector<std::byte> bytes = file.Bytes();
        for (std::size_t length = 0; length < bytes.size(); ++length)
            ASSERT_TRUE(IsRefused(std::span(bytes).first(length))) << length << " of " << bytes.size();
        TBitmap bitmap;
        EXPECT_NO_THROW(bitmap.LoadFromBytes(bytes));
    }
}

TEST_F(BitmapFileTest, ForeignFilesAreRefused) {
    for (const char* text :
         {"", "B", "BM", "GIF89a and so on, long enough to hold all headers of a bitmap file...",
          "\xFF\xD8\xFF\xE0 JFIF and so on, long enough to hold all headers of a bitmap file"})
        EXPECT_TRUE(IsRefused(std::as_bytes(std::span(text, std::strlen(text))))) << text;
}

TEST_F(BitmapFileTest, ImpossibleHeadersAreRefused) {
    const auto refused = [](const std::function<void(BmpFile&)>& spoil) {
        BmpFile file = TrueColorFile();
        spoil(file);
        return IsRefused(file.Bytes());
    };
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biWidth = 0; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biWidth = -3; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biHeight = 0; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biHeight = std::numeric_limits<LONG>::min(); }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biWidth = std::numeric_limits<LONG>::max(); }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biHeight = std::numeric_limits<LONG>::max(); }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biPlanes = 3; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biBitCount = 0; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biBitCount = 7; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biCompression = BI_JPEG; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biCompression = BI_BITFIELDS; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biSize = 39; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biSize = 0xFFFFFFFF; }));
    EXPECT_TRUE(refused([](BmpFile& f) { f.Header.biClrUsed = 0x40000000; }));
}

TEST_F(BitmapFileTest, ThePlaceOfThePixelsIsChecked) {
    std::vector<std::byte> bytes = TrueColorFile().Bytes();
    const auto withOffset = [&](DWORD offset) {
        std::memcpy(bytes.data() + 10, &offset, sizeof offset);
        return std::span<const std::byte>(bytes);
    };
    for (const DWORD offset : {1U, 13U, 20U, 53U, 1000U, 0xFFFFFFFFU})
        EXPECT_TRUE(IsRefused(withOffset(offset))) << offset;
    TBitmap bitmap;
    bitmap.LoadFromBytes(withOffset(0));
    EXPECT_TRUE(Shows(bitmap, TrueColor));
}

// --- Writing

TEST_F(BitmapFileTest, WhatIsSavedIsReadBackInEveryFormat) {
    for (const TPixelFormat format : {pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit}) {
        TBitmap bitmap(11, 3, pf24bit);
        Paint(bitmap, Numbered);
        bitmap.SetPixelFormat(format);
        const std::vector<std::byte> bytes = bitmap.SaveToBytes();
        TBitmap back;
        back.LoadFromBytes(bytes);
        EXPECT_EQ(back.GetPixelFormat(), format);
        EXPECT_TRUE(test::SamePixels(probes::PixelsOf(back), probes::PixelsOf(bitmap)))
            << static_cast<int>(format);
        EXPECT_EQ(back.SaveToBytes(), bytes);
    }
    EXPECT_TRUE(TBitmap().SaveToBytes().empty());
}

TEST_F(BitmapFileTest, TheSystemReadsWhatIsSaved) {
    const test::TempDir folder;
    // Not pf16bit: Wine loads it with five bits of green.
    for (const TPixelFormat format : {pf1bit, pf4bit, pf8bit, pf15bit, pf24bit}) {
        TBitmap bitmap(11, 3, pf24bit);
        Paint(bitmap, Numbered);
        bitmap.SetPixelFormat(format);
        bitmap.SaveToFile(folder.File(L"saved.bmp"));
        const TBitmapHandle loaded(
            static_cast<HBITMAP>(::LoadImageW(nullptr, folder.File(L"saved.bmp").c_str(), IMAGE_BITMAP, 0, 0,
                                              LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
        ASSERT_TRUE(loaded);
        EXPECT_TRUE(test::SamePixels(test::ReadBitmap(loaded.Get()), probes::PixelsOf(bitmap)))
            << static_cast<int>(format);
    }
}

TEST_F(BitmapFileTest, FilesAndStreamsAreReadToTheirEnd) {
    const test::TempDir folder;
    TBitmap bitmap(5, 4, pf24bit);
    Paint(bitmap, Numbered);
    bitmap.SaveToFile(folder.File(L"a.bmp"));
    TBitmap back;
    back.LoadFromFile(folder.File(L"a.bmp"));
    EXPECT_TRUE(Shows(back, Numbered));
    TMemoryStream stream;
    stream.WriteBuffer("head", 4);
    bitmap.SaveToStream(stream);
    stream.SetPosition(4);
    back.Assign(nullptr);
    back.LoadFromStream(stream);
    EXPECT_TRUE(Shows(back, Numbered));
    EXPECT_EQ(stream.GetPosition(), stream.GetSize());
}

TEST_F(BitmapFileTest, AMissingFileRaisesItsName) {
    const test::TempDir folder;
    TBitmap bitmap(2, 2);
    const String name = folder.File(L"missing.bmp");
    EXPECT_NE(MessageOf<EFOpenError>([&] { bitmap.LoadFromFile(name); }).find(name), String::npos);
    EXPECT_EQ(bitmap.GetWidth(), 2);
    EXPECT_THROW(bitmap.SaveToFile(folder.File(L"no\\folder.bmp")), Exception);
}

TEST_F(BitmapFileTest, LoadingTellsTheChangeAndDropsTheCanvasSurface) {
    TBitmap bitmap(2, 2);
    bitmap.GetCanvas().GetBrush().SetColor(clRed);
    bitmap.GetCanvas().FillRect({0, 0, 2, 2});
    int changes = 0;
    bitmap.OnChange = [&](TObject*) { ++changes; };
    bitmap.LoadFromBytes(TrueColorFile().Bytes());
    EXPECT_EQ(changes, 1);
    bitmap.GetCanvas().FillRect({0, 0, 1, 1});
    EXPECT_EQ(bitmap.ReadBits().GetColor(0, 0), clRed);
    EXPECT_EQ(bitmap.ReadBits().GetColor(1, 1), TrueColor(1, 1));
}

}  // namespace
}  // namespace vcl
