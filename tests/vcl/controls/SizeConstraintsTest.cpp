#include "platform/vcl/controls/SizeConstraints.h"

#include <gtest/gtest.h>

namespace vcl {
namespace {

TEST(SizeConstraints, MinimumAndMaximumMoveEachOther) {
    TSizeConstraints limits;
    int changes = 0;
    limits.OnChange = [&](TObject*) { ++changes; };
    limits.SetMaxWidth(100);
    limits.SetMinWidth(120);
    EXPECT_EQ(limits.GetMaxWidth(), 120);
    limits.SetMaxWidth(50);
    EXPECT_EQ(limits.GetMinWidth(), 50);
    limits.SetMaxWidth(0);
    EXPECT_EQ(limits.GetMinWidth(), 50) << "0 is no limit";
    limits.SetMinHeight(-5);
    EXPECT_EQ(limits.GetMinHeight(), 0);
    EXPECT_EQ(changes, 4);
}

TEST(SizeConstraints, AssignTakesAllFour) {
    TSizeConstraints from;
    from.SetMaxWidth(40);
    from.SetMaxHeight(30);
    from.SetMinWidth(20);
    from.SetMinHeight(10);
    TSizeConstraints to;
    to.Assign(&from);
    EXPECT_EQ(to.GetMinWidth(), 20);
    EXPECT_EQ(to.GetMinHeight(), 10);
    EXPECT_EQ(to.GetMaxWidth(), 40);
    EXPECT_EQ(to.GetMaxHeight(), 30);
}

}  // namespace
}  // namespace vcl
