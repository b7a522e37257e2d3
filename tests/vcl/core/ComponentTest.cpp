#include "platform/vcl/core/Component.h"

#include <memory>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

using probes::MessageOf;

/// A component that notes its end.
class TNoting : public TComponent {
public:
    TNoting(TComponent* AOwner, std::vector<String>* ended, const String& name)
        : TComponent(AOwner), FEnded(ended) {
        SetName(name);
    }
    ~TNoting() override { FEnded->push_back(GetName()); }

private:
    std::vector<String>* FEnded;
};

class ComponentTest : public test::LedgerTest {
protected:
    std::vector<String> FEnded;
};

TEST_F(ComponentTest, AnOwnerListsItsComponentsInOrder) {
    TComponent owner(nullptr);
    auto* first = new TComponent(&owner);
    auto* second = new TComponent(&owner);
    EXPECT_EQ(owner.GetComponentCount(), 2);
    EXPECT_EQ(owner.GetComponent(0), first);
    EXPECT_EQ(owner.GetComponent(1), second);
    EXPECT_EQ(second->GetOwner(), &owner);
    EXPECT_EQ(second->GetComponentIndex(), 1);
    EXPECT_EQ(owner.GetComponentIndex(), -1);
    EXPECT_EQ(MessageOf<EListError>([&] { (void)owner.GetComponent(2); }), L"List index out of bounds (2)");
    EXPECT_EQ(MessageOf<EListError>([&] { (void)owner.GetComponent(-1); }), L"List index out of bounds (-1)");
}

TEST_F(ComponentTest, AnOwnerFreesItsComponentsFromTheLastToTheFirst) {
    {
        TComponent owner(nullptr);
        for (const wchar_t* name : {L"a", L"b", L"c"})
            new TNoting(&owner, &FEnded, name);
    }
    EXPECT_EQ(FEnded, (std::vector<String>{L"c", L"b", L"a"}));
}

TEST_F(ComponentTest, OwnedOfOwnedGoFirst) {
    {
        TComponent owner(nullptr);
        auto* a = new TNoting(&owner, &FEnded, L"a");
        new TNoting(a, &FEnded, L"inner");
        new TNoting(&owner, &FEnded, L"b");
    }
    EXPECT_EQ(FEnded, (std::vector<String>{L"b", L"a", L"inner"}))
        << "a's own destructor runs before the base frees what it owns";
}

TEST_F(ComponentTest, ADeletedComponentLeavesItsOwner) {
    TComponent owner(nullptr);
    const std::unique_ptr<TComponent> first(new TComponent(&owner));
    auto* second = new TComponent(&owner);
    delete second;
    EXPECT_EQ(owner.GetComponentCount(), 1);
    EXPECT_EQ(owner.GetComponent(0), first.get());
}

TEST_F(ComponentTest, DestroyComponentsEmptiesTheOwner) {
    TComponent owner(nullptr);
    new TNoting(&owner, &FEnded, L"a");
    new TNoting(&owner, &FEnded, L"b");
    owner.DestroyComponents();
    EXPECT_EQ(owner.GetComponentCount(), 0);
    EXPECT_EQ(FEnded, (std::vector<String>{L"b", L"a"}));
    EXPECT_FALSE(owner.IsInState(csDestroying));
}

TEST_F(ComponentTest, InsertingMovesFromTheFormerOwner) {
    TComponent before(nullptr);
    TComponent after(nullptr);
    auto* component = new TComponent(&before);
    after.InsertComponent(component);
    EXPECT_EQ(component->GetOwner(), &after);
    EXPECT_EQ(before.GetComponentCount(), 0);
    after.InsertComponent(component);
    EXPECT_EQ(after.GetComponentCount(), 1) << "a second time is no change";
}

TEST_F(ComponentTest, RemovingGivesUpWithoutFreeing) {
    TComponent owner(nullptr);
    const std::unique_ptr<TComponent> component(new TComponent(&owner));
    owner.RemoveComponent(component.get());
    EXPECT_EQ(component->GetOwner(), nullptr);
    owner.RemoveComponent(component.get());
    owner.RemoveComponent(nullptr);
    EXPECT_EQ(owner.GetComponentCount(), 0);
}

TEST_F(ComponentTest, NobodyOwnsItself) {
    TComponent owner(nullptr);
    auto* inner = new TComponent(&owner);
    EXPECT_THROW(owner.InsertComponent(&owner), EInvalidOperation);
    EXPECT_THROW(inner->InsertComponent(&owner), EInvalidOperation);
    EXPECT_EQ(owner.GetOwner(), nullptr);
}

TEST_F(ComponentTest, IsFoundByNameWithoutCase) {
    TComponent owner(nullptr);
    auto* component = new TComponent(&owner);
    component->SetName(L"Button1");
    new TComponent(&owner);
    EXPECT_EQ(owner.FindComponent(L"BUTTON1"), component);
    EXPECT_EQ(owner.FindComponent(L"Button2"), nullptr);
    EXPECT_EQ(owner.FindComponent(L""), nullptr) << "components without a name are not found by it";
}

TEST_F(ComponentTest, ANameIsAnIdentifierOrEmpty) {
    TComponent component(nullptr);
    for (const wchar_t* name : {L"Button1", L"_x", L"\xC4pfel_2", L"x", L""}) {
        component.SetName(name);
        EXPECT_EQ(component.GetName(), name);
    }
    component.SetName(L"Kept");
    for (const wchar_t* name : {L"1x", L"a b", L"a.b", L"a-b", L" a", L"\x20AC"}) {
        EXPECT_EQ(MessageOf<EComponentError>([&] { component.SetName(name); }),
                  String(L"'") + name + L"' is not a valid component name");
        EXPECT_EQ(component.GetName(), L"Kept");
    }
}

TEST_F(ComponentTest, SiblingsHaveDifferentNames) {
    TComponent owner(nullptr);
    auto* first = new TComponent(&owner);
    auto* second = new TComponent(&owner);
    first->SetName(L"Taken");
    EXPECT_EQ(MessageOf<EComponentError>([&] { second->SetName(L"TAKEN"); }),
              L"A component named TAKEN already exists");
    EXPECT_EQ(second->GetName(), L"");
    first->SetName(L"taken");
    EXPECT_EQ(first->GetName(), L"taken") << "its own name may change its case";
    first->SetName(L"");
    second->SetName(L"Taken");
    EXPECT_EQ(owner.FindComponent(L"taken"), second);
}

TEST_F(ComponentTest, ComponentsOfDifferentOwnersMayShareAName) {
    TComponent one(nullptr);
    TComponent two(nullptr);
    auto* a = new TComponent(&one);
    auto* b = new TComponent(&two);
    a->SetName(L"Same");
    EXPECT_NO_THROW(b->SetName(L"Same"));
    EXPECT_EQ(MessageOf<EComponentError>([&] { one.InsertComponent(b); }),
              L"A component named Same already exists");
    EXPECT_EQ(b->GetOwner(), &two) << "nothing changed";
}

TEST_F(ComponentTest, KeepsTagAndDesignInfo) {
    TComponent component(nullptr);
    EXPECT_EQ(component.GetTag(), 0);
    component.SetTag(-5);
    component.SetDesignInfo(0x00120034);
    EXPECT_EQ(component.GetTag(), -5);
    EXPECT_EQ(component.GetDesignInfo(), 0x00120034);
}

TEST_F(ComponentTest, MayBeFreedInItsOwnEventHandler) {
    class TClicking : public TComponent {
    public:
        using TComponent::TComponent;
        void Click() { OnClick(this); }
        TNotifyEvent OnClick;
    };
    TComponent owner(nullptr);
    auto* component = new TClicking(&owner);
    component->OnClick = [](TObject* sender) { static_cast<TClicking*>(sender)->Free(); };
    component->Click();
    EXPECT_EQ(owner.GetComponentCount(), 0);
}

}  // namespace
}  // namespace vcl
