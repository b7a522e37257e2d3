#include "platform/vcl/core/Events.h"

#include <memory>
#include <string>
#include <vector>

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

using TNumberEvent = TEvent<void(int)>;

class TListener {
public:
    virtual ~TListener() = default;
    void First(int n) { Seen.push_back(n); }
    void Second(int n) { Seen.push_back(-n); }
    virtual void Overridable(int n) { Seen.push_back(n * 10); }
    std::vector<int> Seen;
};

class TSpecialListener : public TListener {
public:
    void Overridable(int n) override { Seen.push_back(n * 100); }
};

class TOtherBase {
public:
    virtual ~TOtherBase() = default;
    void Third(int n) { Sum += n; }
    int Sum = 0;
};

class TTwoBases : public TListener, public TOtherBase {};

class EventsTest : public test::LedgerTest {};

TEST_F(EventsTest, IsUnassignedAtFirstAndRaisingItDoesNothing) {
    const TNumberEvent event;
    EXPECT_FALSE(event.IsAssigned());
    EXPECT_EQ(event.ObjectPart(), nullptr);
    event(1);
}

TEST_F(EventsTest, CallsAMethodOfTheBoundObject) {
    TListener listener;
    const TNumberEvent event{&listener, &TListener::First};
    event(7);
    EXPECT_TRUE(event);
    EXPECT_EQ(listener.Seen, std::vector{7});
}

TEST_F(EventsTest, CallsTheOverrideOfAVirtualMethod) {
    TSpecialListener listener;
    const TNumberEvent event{static_cast<TListener*>(&listener), &TListener::Overridable};
    event(2);
    EXPECT_EQ(listener.Seen, std::vector{200});
}

TEST_F(EventsTest, CallsAMethodOfASecondBase) {
    TTwoBases both;
    const TNumberEvent event{&both, &TOtherBase::Third};
    event(5);
    event(6);
    EXPECT_EQ(both.Sum, 11);
}

TEST_F(EventsTest, TheObjectHalfIsTheWholeObjectWhicheverBaseTheMethodBelongsTo) {
    TTwoBases both;
    const TNumberEvent first{&both, &TListener::First};
    const TNumberEvent second{&both, &TOtherBase::Third};
    const TNumberEvent throughBase{static_cast<TOtherBase*>(&both), &TOtherBase::Third};
    ASSERT_NE(static_cast<void*>(static_cast<TOtherBase*>(&both)), static_cast<void*>(&both));
    EXPECT_EQ(first.ObjectPart(), &both);
    EXPECT_EQ(second.ObjectPart(), &both);
    EXPECT_EQ(second, throughBase);
}

TEST_F(EventsTest, BindingANullObjectLeavesItUnassigned) {
    const TNumberEvent event{static_cast<TListener*>(nullptr), &TListener::First};
    EXPECT_FALSE(event);
    event(1);
}

TEST_F(EventsTest, CallsALambdaThatKeepsItsState) {
    int sum = 0;
    const TNumberEvent event = [&sum, calls = 0](int n) mutable { sum += n * ++calls; };
    event(1);
    event(1);
    EXPECT_EQ(sum, 3);
    EXPECT_EQ(event.ObjectPart(), nullptr);
}

void FreeHandler(int) {}

TEST_F(EventsTest, ANullFunctionLeavesItUnassigned) {
    void (*none)(int) = nullptr;
    EXPECT_FALSE(TNumberEvent(none));
    EXPECT_FALSE(TNumberEvent(std::function<void(int)>()));
    EXPECT_TRUE(TNumberEvent(&FreeHandler));
}

TEST_F(EventsTest, PassesReferencesThrough) {
    TEvent<void(bool&, const std::wstring&)> event = [](bool& allow, const std::wstring& text) {
        allow = text == L"yes";
    };
    bool allow = false;
    event(allow, L"yes");
    EXPECT_TRUE(allow);
}

TEST_F(EventsTest, PassesArgumentsThatCanOnlyBeMoved) {
    int seen = 0;
    const TEvent<void(std::unique_ptr<int>)> event = [&seen](std::unique_ptr<int> n) { seen = *n; };
    event(std::make_unique<int>(4));
    EXPECT_EQ(seen, 4);
}

TEST_F(EventsTest, IsEqualForTheSameObjectAndMethodOnly) {
    TListener listener;
    TListener other;
    const TNumberEvent event{&listener, &TListener::First};
    EXPECT_EQ(event, (TNumberEvent{&listener, &TListener::First}));
    EXPECT_FALSE(event == (TNumberEvent{&listener, &TListener::Second}));
    EXPECT_FALSE(event == (TNumberEvent{&other, &TListener::First}));
    EXPECT_FALSE(event == TNumberEvent());
    EXPECT_EQ(TNumberEvent(), TNumberEvent(nullptr));
}

TEST_F(EventsTest, EqualCallablesAreCopiesOfOneBinding) {
    const auto handler = [](int) {};
    const TNumberEvent event = handler;
    const TNumberEvent copy = event;
    EXPECT_EQ(event, copy);
    EXPECT_FALSE(event == TNumberEvent(handler));
}

TEST_F(EventsTest, ClearUnbindsAndFreesTheCallable) {
    auto token = std::make_shared<int>(0);
    TNumberEvent event = [token](int) {};
    EXPECT_EQ(token.use_count(), 2);
    event.Clear();
    EXPECT_FALSE(event);
    EXPECT_EQ(event, TNumberEvent());
    EXPECT_EQ(token.use_count(), 1);
}

TEST_F(EventsTest, AssigningNullUnbinds) {
    TNumberEvent event = [](int) {};
    event = nullptr;
    EXPECT_FALSE(event);
}

TEST_F(EventsTest, AHandlerMayRebindTheEventWhileItRuns) {
    auto token = std::make_shared<int>(0);
    std::vector<std::string> order;
    TNumberEvent event;
    event = [&, token](int) {
        event = [&order](int) { order.push_back("second"); };
        // The closure of the running handler is still there.
        order.push_back(token.use_count() == 2 ? "first" : "gone");
    };
    event(0);
    event(0);
    EXPECT_EQ(order, (std::vector<std::string>{"first", "second"}));
    EXPECT_EQ(token.use_count(), 1);
}

TEST_F(EventsTest, AHandlerMayFreeTheOwnerOfTheEvent) {
    struct TOwner {
        TNumberEvent OnNumber;
    };
    auto token = std::make_shared<int>(0);
    auto owner = std::make_unique<TOwner>();
    long uses = 0;
    owner->OnNumber = [&, token](int) {
        owner.reset();
        uses = token.use_count();
    };
    owner->OnNumber(1);
    EXPECT_EQ(owner, nullptr);
    EXPECT_EQ(uses, 2) << "the closure must live until the handler returns";
    EXPECT_EQ(token.use_count(), 1);
}

TEST_F(EventsTest, AHandlerMayRaise) {
    TNumberEvent event = [](int n) {
        if (n < 0) throw n;
    };
    EXPECT_THROW(event(-1), int);
    EXPECT_NO_THROW(event(1));
}

TEST_F(EventsTest, RaisingAllocatesNothing) {
    long before = 0;
    long inside = 0;
    const TNumberEvent event = [&inside](int) { inside = test::CountHeapBlocks(); };
    before = test::CountHeapBlocks();
    event(1);
    EXPECT_EQ(inside, before);
}

TEST_F(EventsTest, RemembersTheNameOfAMethodInsteadOfTheMethod) {
    TNumberEvent event = [](int) { FAIL() << "still bound"; };
    event.SetMethodName(L"ButtonClick");
    event(1);
    EXPECT_FALSE(event.IsAssigned());
    ASSERT_TRUE(event.MethodName());
    EXPECT_EQ(*event.MethodName(), L"ButtonClick");

    TNumberEvent other;
    EXPECT_FALSE(other == event);
    other.SetMethodName(L"ButtonClick");
    EXPECT_TRUE(other == event);
    other.SetMethodName(L"OtherClick");
    EXPECT_FALSE(other == event);
    other.SetMethodName(L"");
    EXPECT_FALSE(other.MethodName());
    event = [](int) {};
    EXPECT_FALSE(event.MethodName()) << "a bound event has no name";
}

}  // namespace
}  // namespace vcl
