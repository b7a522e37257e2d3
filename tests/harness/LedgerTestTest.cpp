#include "tests/support/LedgerTest.h"

#include <memory>

#include "tests/support/GuiHandles.h"
#include "tests/support/TestWindow.h"

namespace test {
namespace {

class SnapshotTest : public LedgerTest {};

TEST_F(SnapshotTest, NamesALeakedBrush) {
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_EQ(Leaks(), "  gdi:brush +1\n");
    DeleteObject(brush);
    EXPECT_EQ(Leaks(), "");
}

TEST_F(SnapshotTest, NamesALeakedWindow) {
    {
        TestWindow window;
        EXPECT_EQ(Leaks(), "  window:TestWindow +1\n");
    }
    EXPECT_EQ(Leaks(), "");
}

TEST_F(SnapshotTest, NamesAMessageOnlyWindow) {
    const HWND window =
        CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    EXPECT_EQ(Leaks(), "  window:Static +1\n");
    DestroyWindow(window);
}

TEST_F(SnapshotTest, CountsMenusAndIconsWhenAsked) {
    const HICON shared = LoadIconW(nullptr, IDI_APPLICATION);
    TakeSnapshot();
    const auto before = ResourceSnapshot::Take(ResourceSnapshot::Icons::Count);
    const HMENU menu = CreatePopupMenu();
    const HICON icon = CopyIcon(shared);
    const std::string change = before.ChangeSince();
    EXPECT_NE(change.find("  menu +1\n"), std::string::npos) << change;
    EXPECT_NE(change.find("  icon +1\n"), std::string::npos) << change;
    DestroyMenu(menu);
    DestroyIcon(icon);
    EXPECT_EQ(before.ChangeSince(), "");
}

TEST_F(SnapshotTest, CountsHeapBlocksExactly) {
    const long before = CountHeapBlocks();
    auto block = std::make_unique<int[]>(100);
    EXPECT_EQ(CountHeapBlocks(), before + 1);
    block.reset();
    EXPECT_EQ(CountHeapBlocks(), before);
}

}  // namespace
}  // namespace test
