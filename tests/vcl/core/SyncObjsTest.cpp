#include "platform/vcl/core/SyncObjs.h"

#include <atomic>
#include <thread>

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

class CriticalSectionTest : public test::LedgerTest {
protected:
    /// Whether another thread could enter now.
    bool OthersCanEnter() {
        bool entered = false;
        std::thread([&] {
            entered = FSection.TryEnter();
            if (entered) FSection.Leave();
        }).join();
        return entered;
    }
    TCriticalSection FSection;
};

TEST_F(CriticalSectionTest, KeepsOtherThreadsOutUntilItIsLeft) {
    EXPECT_TRUE(OthersCanEnter());
    FSection.Enter();
    EXPECT_FALSE(OthersCanEnter());
    FSection.Leave();
    EXPECT_TRUE(OthersCanEnter());
}

TEST_F(CriticalSectionTest, TheHolderMayEnterAgain) {
    FSection.Enter();
    EXPECT_TRUE(FSection.TryEnter());
    FSection.Leave();
    EXPECT_FALSE(OthersCanEnter()) << "it was entered twice and left once";
    FSection.Leave();
    EXPECT_TRUE(OthersCanEnter());
}

TEST_F(CriticalSectionTest, NoStepOfTwoThreadsIsLost) {
    int count = 0;
    const auto work = [&] {
        for (int i = 0; i < 20000; ++i) {
            FSection.Enter();
            ++count;
            FSection.Leave();
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_EQ(count, 40000);
}

}  // namespace
}  // namespace vcl
