#include "platform/vcl/core/Sets.h"

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

enum class TEdge { Left, Top, Right, Last = 31 };
using enum TEdge;
using TEdges = TSet<TEdge>;

TEST(SetsTest, IsEmptyAtFirst) {
    constexpr TEdges none;
    static_assert(none.IsEmpty());
    EXPECT_EQ(none.Bits(), 0u);
    EXPECT_FALSE(none.Contains(Left));
}

TEST(SetsTest, HoldsTheElementsOfItsList) {
    constexpr TEdges edges{Left, Right};
    static_assert(edges.Contains(Left) && edges.Contains(Right) && !edges.Contains(Top));
    EXPECT_EQ(edges.Bits(), 5u);
}

TEST(SetsTest, TakesTheElementWithOrdinal31) {
    EXPECT_EQ((TEdges{Last}.Bits()), 0x80000000u);
    EXPECT_TRUE(TEdges::FromBits(0x80000000u).Contains(Last));
}

TEST(SetsTest, IncludesAndExcludesSingleElements) {
    TEdges edges;
    edges.Include(Top);
    edges.Put(Left, true);
    EXPECT_EQ(edges, (TEdges{Left, Top}));
    edges.Exclude(Left);
    edges.Exclude(Right);
    edges.Put(Top, false);
    EXPECT_TRUE(edges.IsEmpty());
}

TEST(SetsTest, HasUnionDifferenceAndIntersection) {
    const TEdges a{Left, Top};
    const TEdges b{Top, Right};
    EXPECT_EQ(a + b, (TEdges{Left, Top, Right}));
    EXPECT_EQ(a - b, TEdges{Left});
    EXPECT_EQ(a * b, TEdges{Top});
}

TEST(SetsTest, ContainsAllOfASubset) {
    const TEdges edges{Left, Top};
    EXPECT_TRUE(edges.ContainsAll({Left}));
    EXPECT_TRUE(edges.ContainsAll({}));
    EXPECT_FALSE(edges.ContainsAll({Left, Right}));
}

}  // namespace
}  // namespace vcl
