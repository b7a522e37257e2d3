#include "platform/vcl/core/ScopedValue.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vcl {
namespace {

TEST(ScopedValueTest, TheFormerValueComesBackAlsoFromNestedScopes) {
    int value = 1;
    {
        const TScopedValue outer(value, 2);
        EXPECT_EQ(value, 2);
        {
            const TScopedValue inner(value, 3);
            EXPECT_EQ(value, 3);
        }
        EXPECT_EQ(value, 2);
    }
    EXPECT_EQ(value, 1);
}

TEST(ScopedValueTest, AnErrorEndsTheScopeToo) {
    bool busy = false;
    try {
        const TScopedValue working(busy, true);
        throw std::runtime_error("no");
    } catch (const std::runtime_error&) {
        EXPECT_FALSE(busy);
    }
}

}  // namespace
}  // namespace vcl
