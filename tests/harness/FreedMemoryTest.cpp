#include "tests/support/FreedMemory.h"

#include <gtest/gtest.h>

#include <string>

namespace test {
namespace {

TEST(FreedMemoryTest, FillsWhatIsFreed) {
    const FreedMemory guard;
    auto* volatile value = new int(7);
    const int* volatile gone = value;
    delete value;
    EXPECT_EQ(static_cast<unsigned>(*gone), 0xDDDDDDDDu);
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 0);
}

TEST(FreedMemoryTest, SeesWritingToWhatWasFreed) {
    const FreedMemory guard;
    auto* volatile value = new int(7);
    int* volatile gone = value;
    delete value;
    *gone = 8;
    EXPECT_EQ(FreedMemory::WrittenBlocks(), 1);
}

}  // namespace
}  // namespace test
