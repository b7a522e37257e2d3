#include <memory>

#include "platform/vcl/core/DefineClass.h"
#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

class TPart : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TPart>(L"TPart", TComponent::StaticClass());
        return meta;
    }
};

class TWhole : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TWhole>(L"TWhole", TComponent::StaticClass())
                                           .Component<&TWhole::First>(L"First")
                                           .Component<&TWhole::Anything>(L"Anything");
        return meta;
    }
    TPart* First = nullptr;
    TComponent* Anything = nullptr;
};

/// Adds a field to those of its ancestor.
class TWiderWhole : public TWhole {
public:
    using TWhole::TWhole;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TWiderWhole>(L"TWiderWhole", TWhole::StaticClass())
                                           .Component<&TWiderWhole::Second>(L"Second");
        return meta;
    }
    TPart* Second = nullptr;
};

class PublishedFieldTest : public test::LedgerTest {
protected:
    TPart* Add(const wchar_t* name) {
        auto* part = new TPart(FWhole.get());
        part->SetName(name);
        return part;
    }
    std::unique_ptr<TWiderWhole> FWhole;

    void SetUp() override {
        LedgerTest::SetUp();
        FWhole = std::make_unique<TWiderWhole>(nullptr);
    }
    void TearDown() override {
        FWhole.reset();
        LedgerTest::TearDown();
    }
};

TEST_F(PublishedFieldTest, PointsToTheComponentOfItsName) {
    TPart* first = Add(L"first");
    TPart* second = Add(L"Second");
    EXPECT_EQ(FWhole->First, first);
    EXPECT_EQ(FWhole->Second, second);
    EXPECT_EQ(FWhole->Anything, nullptr);
}

TEST_F(PublishedFieldTest, FollowsAChangeOfNames) {
    TPart* part = Add(L"First");
    part->SetName(L"Other");
    EXPECT_EQ(FWhole->First, nullptr);
    part->SetName(L"Anything");
    EXPECT_EQ(FWhole->Anything, part);
}

TEST_F(PublishedFieldTest, IsEmptyWhenTheComponentIsFreedOrLeaves) {
    delete Add(L"First");
    EXPECT_EQ(FWhole->First, nullptr);
    const std::unique_ptr<TPart> part(Add(L"First"));
    FWhole->RemoveComponent(part.get());
    EXPECT_EQ(FWhole->First, nullptr);
    FWhole->InsertComponent(part.get());
    EXPECT_EQ(FWhole->First, part.get());
}

TEST_F(PublishedFieldTest, TakesNoComponentOfAnotherClass) {
    auto* other = new TComponent(FWhole.get());
    other->SetName(L"First");
    EXPECT_EQ(FWhole->First, nullptr);
    other->SetName(L"Anything");
    EXPECT_EQ(FWhole->Anything, other);
}

TEST_F(PublishedFieldTest, IsLeftAloneWhileItsOwnerEnds) {
    Add(L"First");
    Add(L"Second");
    FWhole.reset();
}

TEST_F(PublishedFieldTest, IsFoundByNameInTheClassAndItsAncestors) {
    EXPECT_NE(TWiderWhole::StaticClass().FindField(L"FIRST"), nullptr);
    EXPECT_EQ(TWhole::StaticClass().FindField(L"Second"), nullptr);
    EXPECT_EQ(&TWhole::StaticClass().FindField(L"First")->Class(), &TPart::StaticClass());
}

}  // namespace
}  // namespace vcl
