#include "platform/vcl/stdctrls/Timer.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class TimerTest : public FormTest {
protected:
    std::unique_ptr<TTimer> NewTimer(unsigned interval) {
        auto timer = std::make_unique<TTimer>(nullptr);
        timer->SetInterval(interval);
        timer->OnTimer = [this](TObject*) { ++Count; };
        return timer;
    }
    static long RunningTimers() {
        const auto counts = TLedger::Snapshot();
        const auto found = counts.find("timer");
        return found == counts.end() ? 0 : found->second;
    }
    int Count = 0;
};

TEST_F(TimerTest, RaisesItsEventAgainAndAgain) {
    const auto timer = NewTimer(10);
    EXPECT_TRUE(PumpUntil([&] { return Count >= 3; }));
}

TEST_F(TimerTest, StandsStillWhileDisabledOrWithoutInterval) {
    const auto timer = NewTimer(10);
    timer->SetEnabled(false);
    const auto witness = NewTimer(30);
    int seen = 0;
    witness->OnTimer = [&](TObject*) { ++seen; };
    ASSERT_TRUE(PumpUntil([&] { return seen >= 2; }));
    EXPECT_EQ(Count, 0);
    timer->SetInterval(0);
    timer->SetEnabled(true);
    ASSERT_TRUE(PumpUntil([&] { return seen >= 4; }));
    EXPECT_EQ(Count, 0);
    timer->SetInterval(10);
    EXPECT_TRUE(PumpUntil([&] { return Count > 0; }));
}

TEST_F(TimerTest, TheLedgerCountsRunningTimers) {
    // Nothing in a build that does not count.
    const long one = TLedger::IsActive() ? 1 : 0;
    const long before = RunningTimers();
    const auto timer = NewTimer(1000);
    EXPECT_EQ(RunningTimers(), before + one);
    timer->SetEnabled(false);
    EXPECT_EQ(RunningTimers(), before);
    timer->SetEnabled(true);
    timer->SetInterval(500);
    EXPECT_EQ(RunningTimers(), before + one);
}

TEST_F(TimerTest, AnErrorInTheEventGoesToTheApplication) {
    const auto timer = NewTimer(10);
    timer->OnTimer = [&](TObject*) {
        timer->SetEnabled(false);
        throw EInvalidOperation(L"tick");
    };
    ASSERT_TRUE(PumpUntil([&] { return !Errors.empty(); }));
    EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: tick"});
    Errors.clear();
}

TEST_F(TimerTest, MayBeFreedInItsOwnEvent) {
    auto timer = NewTimer(10);
    timer->OnTimer = [&](TObject*) {
        ++Count;
        timer.reset();
    };
    ASSERT_TRUE(PumpUntil([&] { return Count > 0; }));
    EXPECT_EQ(timer, nullptr);
}

TEST_F(TimerTest, RunsWhileAMenuIsOpen) {
    const auto timer = NewTimer(10);
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, 1, L"x");
    When([&] { return Count >= 2; }, [] { EndMenu(); });
    TrackPopupMenu(menu, 0, 200, 200, 0, Form().GetHandle(), nullptr);
    DestroyMenu(menu);
    EXPECT_GE(Count, 2);
}

TEST_F(TimerTest, ManyTimersKeepApart) {
    std::vector<std::unique_ptr<TTimer>> timers;
    std::vector<int> counts(50);
    for (std::size_t i = 0; i < counts.size(); ++i) {
        timers.push_back(NewTimer(10));
        timers.back()->OnTimer = [&counts, i](TObject*) { ++counts[i]; };
    }
    EXPECT_TRUE(PumpUntil([&] { return *std::min_element(counts.begin(), counts.end()) > 0; }));
}

}  // namespace
}  // namespace test
