#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Png.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/Program.h"
#include "tests/support/TempDir.h"

namespace {

using namespace vcl;

/// How many colours the part of the picture right of the navigation and below the title has.
std::size_t ColorsOfPage(const TBitmap& picture) {
    const TConstBitmapBits bits = picture.ReadBits();
    std::set<TColor> colors;
    for (int y = 100; y < bits.Height - 10; ++y)
        for (int x = 220; x < bits.Width - 10; ++x)
            colors.insert(bits.GetColor(x, y));
    return colors.size();
}

class GalleryShotsTest : public test::LedgerTest {};

TEST_F(GalleryShotsTest, EveryPageLeavesAPictureOfItself) {
    const test::TempDir folder;
    ASSERT_EQ(test::RunProgram(L"gallery.exe", L"--shots \"" + folder.Path() + L"\"").Code, 0u);

    std::set<std::wstring> pages;
    for (const auto& file : std::filesystem::directory_iterator(folder.Path())) {
        SCOPED_TRACE(file.path().string());
        TPngImage picture;
        picture.LoadFromFile(file.path().wstring());
        EXPECT_GE(picture.GetWidth(), 960);
        EXPECT_GE(picture.GetHeight(), 680);
        EXPECT_GT(ColorsOfPage(picture.GetBitmap()), 5u) << "the page is empty";
        const std::wstring name = file.path().stem().wstring();
        pages.insert(name.substr(0, name.find(L'-')));
    }
    const std::set<std::wstring> expected{
        L"palette",     L"bitmaps", L"frames",        L"masks",      L"columnheaders", L"paintbox",
        L"tones",       L"regions", L"skinbutton",    L"glowbutton", L"messagedialog", L"tabs",
        L"whitetabs",   L"toolbar", L"captionheader", L"gauges",     L"linklabels",    L"splitters",
        L"explorerbar", L"menus",   L"orderform",     L"popupforms",
    };
    EXPECT_EQ(pages, expected);
}

TEST_F(GalleryShotsTest, AnUnknownArgumentIsRefused) {
    EXPECT_EQ(test::RunProgram(L"gallery.exe", L"--what").Code, 2u);
}

}  // namespace
