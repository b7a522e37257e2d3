#include "indicators/UnitQV7SkinSplitter.h"

#include <algorithm>

#include "platform/vcl/core/Exceptions.h"
#include "tests/vcl/stdctrls/SplitterFixture.h"

namespace test {
namespace {

using namespace qv7skin;

/// A splitter whose rule can be asked without dragging.
class ProbeSplitter : public TQV7SkinSplitter {
public:
    using TQV7SkinSplitter::TQV7SkinSplitter;
    int Ask(int size) {
        static_cast<void>(DoCanResize(size));
        return size;
    }
};

class SkinSplitterTest : public SplitterFixture<ProbeSplitter> {
protected:
    void SetLeast(int nearest, int furthest) {
        TQV7SkinSplitterSizeConstraints& least = Bar->GetMinConstraints();
        if (IsUpright(Align)) {
            least.SetLeft(nearest);
            least.SetRight(furthest);
        } else {
            least.SetTop(nearest);
            least.SetBottom(furthest);
        }
    }
};

class SkinSplitterEdgeTest : public SkinSplitterTest, public testing::WithParamInterface<TAlign> {
protected:
    void SetUp() override {
        SkinSplitterTest::SetUp();
        Build(GetParam());
    }
};

INSTANTIATE_TEST_SUITE_P(Edges, SkinSplitterEdgeTest, testing::ValuesIn(SplitterAligns),
                         [](const auto& info) { return AlignName(info.param); });

/// The rule as it is written: first the left or upper side, then the right or lower one.
int Expected(TAlign align, int parent, int bar, int size, int nearest, int furthest) {
    const bool resizesNearest = align == alLeft || align == alTop;
    if (nearest != 0) {
        if (resizesNearest)
            size = std::max(size, nearest);
        else if (parent - bar - size < nearest)
            size = parent - bar - nearest;
    }
    if (furthest != 0) {
        if (!resizesNearest)
            size = std::max(size, furthest);
        else if (parent - bar - size < furthest)
            size = parent - bar - furthest;
    }
    return size;
}

TEST_P(SkinSplitterEdgeTest, EveryProposedSizeFollowsTheRule) {
    Bar->SetAutoSnap(false);
    for (const int nearest : {0, 1, 40, 150, 290, 500}) {
        for (const int furthest : {0, 1, 60, 150, 290, 500}) {
            SetLeast(nearest, furthest);
            for (int size = -10; size <= ParentSize() + 10; size += 7)
                ASSERT_EQ(Bar->Ask(size), Expected(Align, ParentSize(), 3, size, nearest, furthest))
                    << size << " between " << nearest << " and " << furthest;
        }
    }
}

TEST_P(SkinSplitterEdgeTest, TheOtherDirectionsSizesDoNotCount) {
    Bar->SetAutoSnap(false);
    TQV7SkinSplitterSizeConstraints& least = Bar->GetMinConstraints();
    if (IsUpright(Align)) {
        least.SetTop(150);
        least.SetBottom(150);
    } else {
        least.SetLeft(150);
        least.SetRight(150);
    }
    EXPECT_EQ(Bar->Ask(5), 5);
    EXPECT_EQ(Bar->Ask(395), 395);
}

TEST_P(SkinSplitterEdgeTest, DraggingKeepsBothSides) {
    SetLeast(90, 50);
    const bool resizesNearest = GrowsAhead(Align);
    const int own = resizesNearest ? 90 : 50, other = resizesNearest ? 50 : 90;
    for (const TResizeStyle style : {rsNone, rsLine, rsUpdate, rsPattern}) {
        Bar->SetResizeStyle(style);
        Drag(*Bar, -1000);
        EXPECT_EQ(SizeOf(*Side), own);
        Drag(*Bar, 1000);
        EXPECT_EQ(SizeOf(*Rest), other);
    }
}

TEST_P(SkinSplitterEdgeTest, WhereBothCanNotBeKeptTheLaterRuleWins) {
    Bar->SetAutoSnap(false);
    SetLeast(250, 250);
    Drag(*Bar, 20);
    const int size = GrowsAhead(Align) ? ParentSize() - 3 - 250 : 250;
    EXPECT_EQ(SizeOf(*Side), size);
    SetLeast(10, 1000);
    Drag(*Bar, 1);
    EXPECT_EQ(SizeOf(*Side), GrowsAhead(Align) ? 0 : 1000);
}

TEST_P(SkinSplitterEdgeTest, ALeastSizeAboveMinSizeKeepsFromSnapping) {
    SetLeast(31, 31);
    Drag(*Bar, -95);
    EXPECT_EQ(SizeOf(*Side), 31);
    SetLeast(20, 20);
    Drag(*Bar, -30);
    EXPECT_EQ(SizeOf(*Side), 0);
}

TEST_P(SkinSplitterEdgeTest, TheHostIsAskedAboutTheAdjustedSize) {
    SetLeast(80, 80);
    int asked = 0;
    Bar->OnCanResize = [&](TObject*, int& size, bool&) { asked = size; };
    Drag(*Bar, -60);
    EXPECT_EQ(asked, 80);
}

TEST_F(SkinSplitterTest, OneThatIsNotAlignedChangesNoSize) {
    Build(alLeft);
    Bar->SetAutoSnap(false);
    Bar->GetMinConstraints().SetLeft(100);
    Bar->SetAlign(alNone);
    EXPECT_EQ(Bar->Ask(5), 5);
    EXPECT_EQ(Bar->Ask(395), 395);
}

TEST_F(SkinSplitterTest, OneThatStandsNowhereChangesNoSize) {
    ProbeSplitter bar(nullptr);
    bar.SetAutoSnap(false);
    bar.GetMinConstraints().SetLeft(100);
    EXPECT_EQ(bar.Ask(50), 50);
}

TEST_F(SkinSplitterTest, LeastSizesTellTheirChangesOnce) {
    TQV7SkinSplitterSizeConstraints a(nullptr), b(nullptr);
    int changes = 0;
    b.OnChange = [&](TObject* sender) {
        EXPECT_EQ(sender, &b);
        ++changes;
    };
    b.SetTop(4);
    b.SetTop(4);
    b.SetLeft(-4);
    EXPECT_EQ(changes, 1);
    a.SetLeft(1);
    a.SetRight(2);
    a.SetTop(3);
    a.SetBottom(4);
    b.Assign(&a);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(b.GetLeft(), 1);
    EXPECT_EQ(b.GetRight(), 2);
    EXPECT_EQ(b.GetTop(), 3);
    EXPECT_EQ(b.GetBottom(), 4);
    TSizeConstraints other;
    EXPECT_THROW(other.Assign(&a), EConvertError);
}

TEST_F(SkinSplitterTest, ItTakesOverLeastSizesAndKeepsItsOwnObject) {
    TQV7SkinSplitter splitter(nullptr);
    TQV7SkinSplitterSizeConstraints least(nullptr);
    least.SetBottom(12);
    splitter.SetMinConstraints(least);
    EXPECT_EQ(splitter.GetMinConstraints().GetBottom(), 12);
    EXPECT_EQ(splitter.GetMinConstraints().GetSplitter(), &splitter);
    EXPECT_EQ(splitter.GetMinConstraints().GetOwner(), &splitter);
    EXPECT_NE(&splitter.GetMinConstraints(), &least);
}

TEST_P(SkinSplitterEdgeTest, HandlersMayFreeTheSplitter) {
    SetLeast(10, 10);
    Bar->OnMoved = [&](TObject*) { delete std::exchange(Bar, nullptr); };
    Drag(*Bar, 30);
    EXPECT_EQ(Bar, nullptr);
}

}  // namespace
}  // namespace test
