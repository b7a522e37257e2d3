#include "platform/vcl/core/LifeGuard.h"

#include <memory>

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

class TWatched : public TGuarded {};

TEST(LifeGuardTest, TellsThatTheObjectLives) {
    const TWatched object;
    const TLifeGuard guard(object);
    EXPECT_TRUE(guard.IsAlive());
}

TEST(LifeGuardTest, EveryGuardTellsThatTheObjectIsGone) {
    auto object = std::make_unique<TWatched>();
    const TLifeGuard outer(*object);
    {
        const TLifeGuard inner(*object);
        EXPECT_TRUE(inner.IsAlive());
    }
    EXPECT_TRUE(outer.IsAlive());
    object.reset();
    EXPECT_FALSE(outer.IsAlive());
}

TEST(LifeGuardTest, ObjectsThatNeverCallOutAllocateNothing) {
    const long before = test::CountHeapBlocks();
    const TWatched object;
    EXPECT_EQ(test::CountHeapBlocks(), before);
}

}  // namespace
}  // namespace vcl
