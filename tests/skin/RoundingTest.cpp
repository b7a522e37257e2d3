#include "skin/utils/Rounding.h"

#include <gtest/gtest.h>

namespace qv7skin {
namespace {

TEST(RoundingTest, TiesGoToTheEvenNumber) {
    EXPECT_EQ(RoundHalfEven(0.5L), 0);
    EXPECT_EQ(RoundHalfEven(1.5L), 2);
    EXPECT_EQ(RoundHalfEven(2.5L), 2);
    EXPECT_EQ(RoundHalfEven(-0.5L), 0);
    EXPECT_EQ(RoundHalfEven(-1.5L), -2);
    EXPECT_EQ(RoundHalfEven(-2.5L), -2);
}

TEST(RoundingTest, EverythingElseGoesToTheNearest) {
    EXPECT_EQ(RoundHalfEven(0.49999L), 0);
    EXPECT_EQ(RoundHalfEven(0.50001L), 1);
    EXPECT_EQ(RoundHalfEven(-0.50001L), -1);
    EXPECT_EQ(RoundHalfEven(254.9L), 255);
    EXPECT_EQ(RoundHalfEven(7.0L), 7);
}

}  // namespace
}  // namespace qv7skin
