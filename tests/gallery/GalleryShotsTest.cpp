#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Png.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/TempDir.h"

namespace {

using namespace vcl;

/// The name of the desktop that the test runs on, so that the program joins it.
std::wstring DesktopName() {
    wchar_t name[256] = {};
    GetUserObjectInformationW(GetThreadDesktop(GetCurrentThreadId()), UOI_NAME, name, sizeof name, nullptr);
    return name;
}

/// Runs the gallery, which stands beside the test program, and returns its exit code.
DWORD RunGallery(const std::wstring& arguments) {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    const auto program = std::filesystem::path(self).parent_path() / L"gallery.exe";
    std::wstring commandLine = L"\"" + program.wstring() + L"\" " + arguments;
    std::wstring desktop = DesktopName();
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.lpDesktop = desktop.data();
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return GetLastError();
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

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
    ASSERT_EQ(RunGallery(L"--shots \"" + folder.Path() + L"\""), 0u);

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
    const std::set<std::wstring> expected{L"palette",       L"bitmaps",   L"frames", L"masks",
                                          L"columnheaders", L"paintbox",  L"tones",  L"regions",
                                          L"skinbutton",    L"glowbutton"};
    EXPECT_EQ(pages, expected);
}

TEST_F(GalleryShotsTest, AnUnknownArgumentIsRefused) {
    EXPECT_EQ(RunGallery(L"--what"), 2u);
}

}  // namespace
