#include "platform/vcl/core/Ledger.h"

#include <memory>
#include <thread>

#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/SampleClasses.h"

namespace vcl {
namespace {

#if VCL_LEDGER
class LedgerCountsTest : public test::LedgerTest {
protected:
    void SetUp() override {
        LedgerTest::SetUp();
        FBefore = TLedger::Snapshot();
    }
    [[nodiscard]] TLedger::Counts Change() const { return TLedger::Difference(FBefore, TLedger::Snapshot()); }
    TLedger::Counts FBefore;
};

using TCounts = TLedger::Counts;

TEST_F(LedgerCountsTest, HandlesAreCountedByKind) {
    TLedger::Count("test:a", 1);
    TLedger::Count("test:a", 1);
    TLedger::Count("test:b", 1);
    EXPECT_EQ(Change(), (TCounts{{"test:a", 2}, {"test:b", 1}}));
    TLedger::Count("test:b", -1);
    EXPECT_EQ(Change(), (TCounts{{"test:a", 2}}));
    TLedger::Count("test:a", -2);
    EXPECT_EQ(Change(), TCounts{});
}

TEST_F(LedgerCountsTest, KindsAreTheSameWhereverTheirNamesStand) {
    const std::string copy = "test:a";
    TLedger::Count("test:a", 1);
    TLedger::Count(copy.c_str(), -1);
    EXPECT_EQ(Change(), TCounts{});
}

TEST_F(LedgerCountsTest, ObjectsAreCountedByTheirClass) {
    {
        const TObject plain;
        const samples::TSample sample(nullptr);
        EXPECT_EQ(Change(), (TCounts{{"object:TObject", 1}, {"object:TSample", 1}, {"object:TDetail", 1}}));
    }
    EXPECT_EQ(Change(), TCounts{});
}

TEST_F(LedgerCountsTest, ObjectsUnderConstructionAndDestructionCountAsWhatTheyAre) {
    class TSelfWatching : public TComponent {
    public:
        TSelfWatching(const TCounts& before, TCounts* seen)
            : TComponent(nullptr), FBefore(before), FSeen(seen) {
            *FSeen = TLedger::Difference(FBefore, TLedger::Snapshot());
        }
        ~TSelfWatching() override { *FSeen = TLedger::Difference(FBefore, TLedger::Snapshot()); }

    private:
        const TCounts& FBefore;
        TCounts* FSeen;
    };
    TCounts seen;
    {
        const TSelfWatching object(FBefore, &seen);
        EXPECT_EQ(seen, (TCounts{{"object:TComponent", 1}}));
        seen.clear();
    }
    EXPECT_EQ(seen, (TCounts{{"object:TComponent", 1}}));
}

TEST_F(LedgerCountsTest, AMissingOneCountsNegative) {
    auto object = std::make_unique<TObject>();
    const TCounts with = TLedger::Snapshot();
    object.reset();
    EXPECT_EQ(TLedger::Difference(with, TLedger::Snapshot()), (TCounts{{"object:TObject", -1}}));
}

TEST_F(LedgerCountsTest, ThreadsMayCountAtTheSameTime) {
    const auto work = [] {
        for (int i = 0; i < 5000; ++i) {
            const TObject object;
            TLedger::Count("test:thread", 1);
            if (i % 500 == 0) (void)TLedger::Snapshot();
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_EQ(Change(), (TCounts{{"test:thread", 10000}}));
    TLedger::Count("test:thread", -10000);
}

TEST_F(LedgerCountsTest, NamingAClassForTheFirstTimeInASnapshotIsNoTrouble) {
    class TLazy : public TObject {
    public:
        [[nodiscard]] const TMetaClass& ClassType() const override {
            if (!Helper()) Helper() = std::make_unique<TObject>();
            static const TMetaClass meta(L"TLazy", &TObject::StaticClass(), nullptr);
            return meta;
        }
        static std::unique_ptr<TObject>& Helper() {
            static std::unique_ptr<TObject> helper;
            return helper;
        }
    };
    {
        const TLazy lazy;
        EXPECT_EQ(Change().at("object:TLazy"), 1);
    }
    TLazy::Helper().reset();
}

#else
TEST(LedgerCountsTest, ABuildWithoutTheLedgerCountsNothing) {
    TLedger::Count("test:a", 1);
    EXPECT_FALSE(TLedger::IsActive());
    EXPECT_EQ(TLedger::Snapshot(), TLedger::Counts{});
}
#endif

}  // namespace
}  // namespace vcl
