#include "platform/vcl/core/Component.h"

#include <functional>
#include <memory>

#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

/// A component that notes what it hears, as "+x" and "-x" with the number of the other one.
class TListening : public TComponent {
public:
    TListening(TComponent* AOwner, int number) : TComponent(AOwner), FNumber(number) {}
    [[nodiscard]] int Number() const { return FNumber; }
    std::vector<std::pair<const TComponent*, TOperation>> Heard;
    std::function<void(TComponent*, TOperation)> OnNotify;

    [[nodiscard]] int Count(const TComponent* component, TOperation operation) const {
        return static_cast<int>(std::ranges::count(Heard, std::pair(component, operation)));
    }

protected:
    void Notification(TComponent* component, TOperation operation) override {
        TComponent::Notification(component, operation);
        Heard.emplace_back(component, operation);
        if (OnNotify) OnNotify(component, operation);
    }

private:
    int FNumber;
};

class ComponentNotificationTest : public test::LedgerTest {
protected:
    void SetUp() override {
        LedgerTest::SetUp();
        FOwner = std::make_unique<TListening>(nullptr, 0);
    }
    void TearDown() override {
        FOwner.reset();
        LedgerTest::TearDown();
    }
    std::unique_ptr<TListening> FOwner;
};

TEST_F(ComponentNotificationTest, OwnerAndSiblingsHearOfAnInsertion) {
    auto* sibling = new TListening(FOwner.get(), 1);
    auto* component = new TComponent(FOwner.get());
    EXPECT_EQ(FOwner->Count(component, opInsert), 1);
    EXPECT_EQ(sibling->Count(component, opInsert), 1);
}

TEST_F(ComponentNotificationTest, WhatSiblingsOwnHearsItToo) {
    auto* sibling = new TListening(FOwner.get(), 1);
    auto* nephew = new TListening(sibling, 2);
    const std::unique_ptr<TComponent> component(new TComponent(FOwner.get()));
    FOwner->RemoveComponent(component.get());
    EXPECT_EQ(nephew->Count(component.get(), opInsert), 1);
    EXPECT_EQ(nephew->Count(component.get(), opRemove), 1);
}

TEST_F(ComponentNotificationTest, OwnerAndSiblingsHearOnceThatAComponentIsFreed) {
    auto* sibling = new TListening(FOwner.get(), 1);
    auto* component = new TComponent(FOwner.get());
    sibling->FreeNotification(component);
    component->Free();
    EXPECT_EQ(FOwner->Count(component, opRemove), 1);
    EXPECT_EQ(sibling->Count(component, opRemove), 1);
}

TEST_F(ComponentNotificationTest, AStrangerHearsItAfterAskingForIt) {
    TListening stranger(nullptr, 1);
    auto* asked = new TComponent(FOwner.get());
    auto* other = new TComponent(FOwner.get());
    stranger.FreeNotification(asked);
    stranger.FreeNotification(asked);
    other->Free();
    asked->Free();
    EXPECT_EQ(stranger.Heard.size(), 1u);
    EXPECT_EQ(stranger.Count(asked, opRemove), 1);
}

TEST_F(ComponentNotificationTest, TheAgreementIsMutual) {
    TListening asked(nullptr, 1);
    auto* asking = new TComponent(nullptr);
    asking->FreeNotification(&asked);
    asking->Free();
    EXPECT_EQ(asked.Count(asking, opRemove), 1);
}

TEST_F(ComponentNotificationTest, TheAgreementCanBeEnded) {
    TListening stranger(nullptr, 1);
    auto* component = new TComponent(nullptr);
    stranger.FreeNotification(component);
    component->RemoveFreeNotification(&stranger);
    component->Free();
    EXPECT_TRUE(stranger.Heard.empty());
}

TEST_F(ComponentNotificationTest, AskingNobodyOrOneselfIsNothing) {
    TListening component(nullptr, 1);
    component.FreeNotification(nullptr);
    component.FreeNotification(&component);
    component.RemoveFreeNotification(nullptr);
    EXPECT_TRUE(component.Heard.empty());
}

TEST_F(ComponentNotificationTest, SiblingsHearItWhileTheirOwnerEnds) {
    auto owner = std::make_unique<TComponent>(nullptr);
    auto* first = new TListening(owner.get(), 1);
    auto* last = new TListening(owner.get(), 2);
    int heard = 0;
    first->OnNotify = [&](TComponent* component, TOperation operation) {
        if (component == last && operation == opRemove) ++heard;
    };
    owner.reset();
    EXPECT_EQ(heard, 1);
}

TEST_F(ComponentNotificationTest, ReferencesAcrossOwnersClearThemselves) {
    TListening form(nullptr, 1);
    TComponent* reference = nullptr;
    form.OnNotify = [&](TComponent* component, TOperation operation) {
        if (operation == opRemove && component == reference) reference = nullptr;
    };
    {
        TComponent otherForm(nullptr);
        reference = new TComponent(&otherForm);
        form.FreeNotification(reference);
    }
    EXPECT_EQ(reference, nullptr);
}

TEST_F(ComponentNotificationTest, AListenerMayFreeOtherComponentsMeanwhile) {
    std::vector<TComponent*> components;
    for (int i = 0; i < 5; ++i)
        components.push_back(new TComponent(FOwner.get()));
    auto* listener = new TListening(FOwner.get(), 1);
    int heard = 0;
    listener->OnNotify = [&](TComponent* component, TOperation operation) {
        if (component != components[2] || operation != opRemove) return;
        ++heard;
        delete components[4];
        delete components[0];
    };
    components[2]->Free();
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(FOwner->GetComponentCount(), 3);
    EXPECT_EQ(FOwner->GetComponent(0), components[1]);
    EXPECT_EQ(FOwner->GetComponent(1), components[3]);
}

TEST_F(ComponentNotificationTest, AListenerMayFreeAnotherListenerOfTheSameComponent) {
    auto* asked = new TComponent(nullptr);
    auto* early = new TListening(nullptr, 1);
    TListening late(nullptr, 2);
    early->FreeNotification(asked);
    late.FreeNotification(asked);
    late.OnNotify = [&](TComponent* component, TOperation) {
        if (component == asked) early->Free();
    };
    asked->Free();
    EXPECT_EQ(late.Count(asked, opRemove), 1);
}

TEST_F(ComponentNotificationTest, AListenerMayFreeItself) {
    auto* asked = new TComponent(nullptr);
    auto* listener = new TListening(nullptr, 1);
    bool freed = false;
    listener->FreeNotification(asked);
    listener->OnNotify = [&freed, listener](TComponent*, TOperation) {
        freed = true;
        delete listener;
    };
    asked->Free();
    EXPECT_TRUE(freed);
}

TEST_F(ComponentNotificationTest, AComponentThatTheOwnerRefusesIsNotListed) {
    FOwner->OnNotify = [](TComponent*, TOperation operation) {
        if (operation == opInsert) throw 1;
    };
    EXPECT_THROW(new TComponent(FOwner.get()), int);
    EXPECT_EQ(FOwner->GetComponentCount(), 0);
}

}  // namespace
}  // namespace vcl
