#include "platform/vcl/core/PointerSet.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <set>

namespace vcl {
namespace {

TEST(PointerSetTest, HoldsWhatASetOfTheStandardLibraryHolds) {
    std::array<int, 500> things{};
    std::set<int*> expected;
    TPointerSet<int> set;
    std::mt19937 random(7);
    for (int step = 0; step < 20000; ++step) {
        int* thing = &things[random() % things.size()];
        // Phases in which it grows and in which it shrinks.
        if (random() % 10 < (step / 2000 % 2 ? 3U : 7U)) {
            set.Insert(thing);
            expected.insert(thing);
        } else {
            set.Erase(thing);
            expected.erase(thing);
        }
        ASSERT_EQ(set.Count(), expected.size());
        ASSERT_EQ(set.Contains(thing), expected.contains(thing));
    }
    std::set<int*> found;
    set.ForEach([&](int* thing) { EXPECT_TRUE(found.insert(thing).second); });
    EXPECT_EQ(found, expected);
    for (int& thing : things)
        EXPECT_EQ(set.Contains(&thing), expected.contains(&thing));
}

TEST(PointerSetTest, AnEmptyOneHasNothingToGiveUp) {
    TPointerSet<int> set;
    int thing = 0;
    set.Erase(&thing);
    EXPECT_FALSE(set.Contains(&thing));
    EXPECT_EQ(set.Count(), 0U);
}

}  // namespace
}  // namespace vcl
