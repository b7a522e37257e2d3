#include "designer/model/TextChange.h"

#include <gtest/gtest.h>

namespace designer {
namespace {

struct TPair {
    std::string From, To;
};

class TextChangeTest : public testing::TestWithParam<TPair> {};

TEST_P(TextChangeTest, LeadsFromOneTextToTheOtherAndBack) {
    const auto& [from, to] = GetParam();
    const TTextChange change = TTextChange::Between(from, to);
    EXPECT_EQ(change.Apply(from), to);
    EXPECT_EQ(change.Revert(to), from);
    EXPECT_EQ(change.IsEmpty(), from == to);
}

INSTANTIATE_TEST_SUITE_P(Texts, TextChangeTest,
                         testing::Values(TPair{"", ""}, TPair{"", "new"}, TPair{"old", ""},
                                         TPair{"same", "same"},
                                         TPair{"left middle right", "left other right"}, TPair{"aaa", "aa"},
                                         TPair{"aa", "aaa"}, TPair{"abab", "ab"}, TPair{"ab", "abab"},
                                         TPair{"begins", "and begins"}, TPair{"ends", "ends here"}));

TEST(TextChange, KeepsOnlyWhatDiffers) {
    const TTextChange change = TTextChange::Between("Left = 10, Top = 5", "Left = 20, Top = 5");
    EXPECT_EQ(change.Position, 7u);
    EXPECT_EQ(change.Before, "1");
    EXPECT_EQ(change.After, "2");
}

}  // namespace
}  // namespace designer
