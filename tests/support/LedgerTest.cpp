#include "tests/support/LedgerTest.h"

#include <vector>

#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/forms/Application.h"
#include "tests/support/LeftOut.h"
#include "tests/support/Pump.h"
#include "tests/support/WarmUp.h"

namespace test {
namespace {

std::vector<std::function<void()>>& Actions() {
    static std::vector<std::function<void()>> actions;
    return actions;
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
    HandleCounts before = FCounts;
    HandleCounts after = Take(FIcons).FCounts;
    for (const std::string& kind : LeftOut::Kinds()) {
        before.erase(kind);
        after.erase(kind);
    }
    return DescribeChange(before, after);
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
