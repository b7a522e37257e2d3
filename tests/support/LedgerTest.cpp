#include "tests/support/LedgerTest.h"

#include <windows.h>

#include <utility>
#include <vector>

#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/forms/Application.h"
#include "tests/support/Pump.h"

namespace test {
namespace {

std::vector<std::function<void()>>& Actions() {
    static std::vector<std::function<void()>> actions;
    return actions;
}

void OpenAMenu(HWND owner) {
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, 1, L"x");
    Later([] { EndMenu(); });
    TrackPopupMenu(menu, 0, 0, 0, 0, owner, nullptr);
    DestroyMenu(menu);
}

/// The first windows of a process make the system create objects that stay: brushes, fonts, theme data.
/// Having made one window of each common kind once, counts are exact.
void WarmUpSystem() {
    static bool done = false;
    if (std::exchange(done, true)) return;
    for (int color = 0; color <= COLOR_MENUBAR; ++color)
        GetSysColorBrush(color);
    const HWND top = CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 200,
                                     nullptr, nullptr, nullptr, nullptr);
    for (const wchar_t* name : {L"Button", L"Edit", L"ListBox", L"ComboBox", L"ScrollBar", L"Static"})
        CreateWindowExW(0, name, L"x", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, top, nullptr, nullptr, nullptr);
    RedrawWindow(top, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    PumpAll();
    OpenAMenu(top);
    DestroyWindow(top);
    PumpAll();
}

void Settle() {
    // These live as long as the process.
    (void)vcl::Application();
    WarmUpSystem();
    for (const auto& action : Actions())
        action();
}

void Add(HandleCounts& to, const HandleCounts& from) {
    for (const auto& [kind, count] : from)
        to[kind] += count;
}

}  // namespace

ResourceSnapshot ResourceSnapshot::Take(Icons icons) {
    Settle();
    ResourceSnapshot snapshot;
    snapshot.FIcons = icons;
    for (const auto& [kind, count] : vcl::TLedger::Snapshot())
        snapshot.FCounts["ledger:" + kind] = count;
    Add(snapshot.FCounts, CountGdiObjects());
    Add(snapshot.FCounts, CountWindows());
    Add(snapshot.FCounts, CountMenus());
    if (icons == Icons::Count) Add(snapshot.FCounts, CountIcons());
    return snapshot;
}

std::string ResourceSnapshot::ChangeSince() const {
    return DescribeChange(FCounts, Take(FIcons).FCounts);
}

void LedgerTest::BeforeSnapshots(std::function<void()> action) {
    Actions().push_back(std::move(action));
}

void LedgerTest::SetUp() {
    TakeSnapshot();
}

void LedgerTest::TearDown() {
    EXPECT_EQ(DropSteps(), 0) << "steps given to Later or When did not run";
    PumpAll();
    EXPECT_EQ(Leaks(), "") << "left behind by the test (+) or missing after it (-)";
    EXPECT_TRUE(IsHeapValid()) << "something wrote outside its memory";
}

void LedgerTest::TakeSnapshot() {
    FBefore = ResourceSnapshot::Take(FIcons);
}

std::string LedgerTest::Leaks() const {
    return FBefore.ChangeSince();
}

}  // namespace test
