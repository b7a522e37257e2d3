#include <memory>

#include "platform/vcl/core/Component.h"
#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

/// A component that counts its life's turns.
class TCounting : public TComponent {
public:
    TCounting(TComponent* AOwner, std::string* log, char name) : TComponent(AOwner), FLog(log), FName(name) {}
    ~TCounting() override { Note('~'); }

protected:
    void BeforeDestruction() override { Note(IsInState(csDestroying) ? '!' : '?'); }
    void Loaded() override {
        TComponent::Loaded();
        Note('l');
    }

private:
    void Note(char turn) { (*FLog += turn) += FName; }
    std::string* FLog;
    char FName;
};

class ComponentStateTest : public test::LedgerTest {
protected:
    std::string FLog;
};

TEST_F(ComponentStateTest, FreeAnnouncesTheEndToTheWholeSubtreeFirst) {
    auto* owner = new TCounting(nullptr, &FLog, 'o');
    auto* a = new TCounting(owner, &FLog, 'a');
    new TCounting(a, &FLog, 'i');
    new TCounting(owner, &FLog, 'b');
    owner->Free();
    EXPECT_EQ(FLog, "!o!a!i!b~o~b~a~i");
}

TEST_F(ComponentStateTest, AnOwnedComponentHearsOfItsEndThroughItsOwner) {
    {
        TComponent owner(nullptr);
        new TCounting(&owner, &FLog, 'a');
    }
    EXPECT_EQ(FLog, "!a~a");
}

TEST_F(ComponentStateTest, DestroyingIsAnnouncedOnce) {
    TCounting component(nullptr, &FLog, 'c');
    component.Destroying();
    component.Destroying();
    EXPECT_EQ(FLog, "!c");
    EXPECT_TRUE(component.IsInState(csDestroying));
}

TEST_F(ComponentStateTest, ComponentsThatGoDuringTheAnnouncementAreNoTrouble) {
    TComponent owner(nullptr);
    class TFreeing : public TComponent {
    public:
        using TComponent::TComponent;
        TComponent* Other = nullptr;

    protected:
        void BeforeDestruction() override { delete Other; }
    };
    auto* freeing = new TFreeing(&owner);
    freeing->Other = new TCounting(&owner, &FLog, 'x');
    new TCounting(&owner, &FLog, 'y');
    owner.Destroying();
    EXPECT_EQ(FLog, "~x!y");
}

TEST_F(ComponentStateTest, DesignStateIsPassedOnAtInsertion) {
    TComponent owner(nullptr);
    owner.SetDesigning(true);
    auto* component = new TComponent(&owner);
    EXPECT_TRUE(component->IsInState(csDesigning));
    auto* subtree = new TComponent(nullptr);
    auto* inner = new TComponent(subtree);
    owner.InsertComponent(subtree);
    EXPECT_TRUE(subtree->IsInState(csDesigning));
    EXPECT_TRUE(inner->IsInState(csDesigning));
}

TEST_F(ComponentStateTest, DesignStateCanBeSetForOneOrForAll) {
    TComponent owner(nullptr);
    auto* component = new TComponent(&owner);
    owner.SetDesigning(true, false);
    EXPECT_FALSE(component->IsInState(csDesigning));
    owner.SetDesigning(true);
    EXPECT_TRUE(component->IsInState(csDesigning));
    owner.SetDesigning(false);
    EXPECT_FALSE(component->IsInState(csDesigning));
    EXPECT_TRUE(owner.GetComponentState().IsEmpty());
}

TEST_F(ComponentStateTest, LoadedIsCalledOnceAtTheEndOfReading) {
    TCounting component(nullptr, &FLog, 'c');
    component.BeginLoading();
    EXPECT_TRUE(component.GetComponentState().ContainsAll({csLoading, csReading}));
    component.EndLoading();
    EXPECT_TRUE(component.GetComponentState().IsEmpty());
    component.EndLoading();
    EXPECT_EQ(FLog, "lc");
}

TEST_F(ComponentStateTest, AComponentMadeWhileItsOwnerLoadsIsNotLoadingItself) {
    TComponent owner(nullptr);
    owner.BeginLoading();
    const auto* component = new TComponent(&owner);
    EXPECT_FALSE(component->IsInState(csLoading)) << "nobody would ever tell it that loading ended";
    owner.EndLoading();
}

}  // namespace
}  // namespace vcl
