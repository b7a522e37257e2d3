#include "platform/vcl/core/Collection.h"

#include <memory>

#include "platform/vcl/core/DefineClass.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

using probes::MessageOf;

class TPart : public TCollectionItem {
public:
    using TCollectionItem::TCollectionItem;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TPart>(L"TPart", TCollectionItem::StaticClass());
        return meta;
    }
    void Assign(const TPersistent* source) override {
        const auto* part = dynamic_cast<const TPart*>(source);
        if (!part) return TCollectionItem::Assign(source);
        SetSize(part->Size);
    }
    void SetSize(int size) {
        Size = size;
        Changed(false);
    }
    int Size = 0;
};

class TParts : public TOwnedCollection {
public:
    explicit TParts(TPersistent* AOwner) : TOwnedCollection(AOwner, TPart::StaticClass()) {}
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TParts>(L"TParts", TOwnedCollection::StaticClass());
        return meta;
    }
    [[nodiscard]] TPart* Part(int index) const { return static_cast<TPart*>(GetItem(index)); }
    TPart* AddSized(int size) {
        auto* part = static_cast<TPart*>(Add());
        part->Size = size;
        Log.clear();
        return part;
    }
    /// The sizes of all items, such as "123".
    [[nodiscard]] std::string Sizes() const {
        std::string sizes;
        for (int i = 0; i < GetCount(); ++i)
            sizes += static_cast<char>('0' + Part(i)->Size);
        return sizes;
    }
    /// What was heard: u and U for updates of one and of all, a, e, d for added, extracting, deleting.
    std::string Log;
    bool RefusesItems = false;

protected:
    void Update(TCollectionItem* item) override { Log += item ? 'u' : 'U'; }
    void Notify(TCollectionItem* item, TCollectionNotification action) override {
        if (RefusesItems && action == cnAdded) throw 1;
        Log += action == cnAdded ? 'a' : action == cnExtracting ? 'e' : 'd';
        // Only a whole item can be asked for what its class adds.
        if (dynamic_cast<TPart*>(item)) Log += '!';
    }
};

class TPartsOwner : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TPartsOwner>(L"TPartsOwner", TComponent::StaticClass())
                .Property(L"Parts", &TPartsOwner::GetParts, &TPartsOwner::SetParts);
        return meta;
    }
    [[nodiscard]] const TParts& GetParts() const { return FParts; }
    void SetParts(const TParts& parts) { FParts.Assign(&parts); }
    TParts& Parts() { return FParts; }

private:
    TParts FParts{this};
};

class CollectionTest : public test::LedgerTest {
protected:
    void SetUp() override {
        LedgerTest::SetUp();
        for (const int size : {1, 2, 3})
            FParts.AddSized(size);
    }
    void TearDown() override {
        FParts.Clear();
        LedgerTest::TearDown();
    }
    TParts FParts{nullptr};
};

TEST_F(CollectionTest, MakesItemsOfItsClassAtTheEnd) {
    TCollectionItem* item = FParts.Add();
    ASSERT_NE(dynamic_cast<TPart*>(item), nullptr);
    EXPECT_EQ(item->GetCollection(), &FParts);
    EXPECT_EQ(item->GetIndex(), 3);
    EXPECT_EQ(FParts.GetCount(), 4);
    EXPECT_EQ(&FParts.GetItemClass(), &TPart::StaticClass());
}

TEST_F(CollectionTest, AnnouncesANewItemWhenItIsWhole) {
    FParts.Add();
    EXPECT_EQ(FParts.Log, "a!U");
}

TEST_F(CollectionTest, AnItemMadeByItselfJoinsToo) {
    const auto* item = new TPart(&FParts);
    EXPECT_EQ(FParts.GetItem(3), item);
    EXPECT_EQ(FParts.Log, "aU");
}

TEST_F(CollectionTest, InsertsAtAPlace) {
    static_cast<TPart*>(FParts.Insert(1))->Size = 9;
    EXPECT_EQ(FParts.Sizes(), "1923");
    EXPECT_EQ(FParts.Log, "a!U");
    static_cast<TPart*>(FParts.Insert(4))->Size = 8;
    EXPECT_EQ(FParts.Sizes(), "19238");
}

TEST_F(CollectionTest, EveryIndexOutsideIsAnError) {
    EXPECT_EQ(MessageOf<EListError>([&] { (void)FParts[3]; }), L"List index out of bounds (3)");
    EXPECT_EQ(MessageOf<EListError>([&] { FParts.Delete(-1); }), L"List index out of bounds (-1)");
    EXPECT_EQ(MessageOf<EListError>([&] { FParts.Insert(4); }), L"List index out of bounds (4)");
    EXPECT_EQ(MessageOf<EListError>([&] { FParts[0]->SetIndex(3); }), L"List index out of bounds (3)");
    EXPECT_EQ(FParts.Sizes(), "123");
}

TEST_F(CollectionTest, DeletingAnnouncesTheItemWhileItIsWhole) {
    FParts.Delete(1);
    EXPECT_EQ(FParts.Log, "d!e!U");
    EXPECT_EQ(FParts.Sizes(), "13");
}

TEST_F(CollectionTest, AnItemFreedByItselfLeaves) {
    delete FParts.GetItem(0);
    EXPECT_EQ(FParts.Sizes(), "23");
    EXPECT_EQ(FParts.Log, "eU");
}

TEST_F(CollectionTest, ClearUpdatesOnce) {
    FParts.Clear();
    EXPECT_EQ(FParts.GetCount(), 0);
    EXPECT_EQ(FParts.Log, "d!e!d!e!d!e!U");
    FParts.Log.clear();
    FParts.Clear();
    EXPECT_EQ(FParts.Log, "");
}

TEST_F(CollectionTest, ItemsMoveByTheirIndex) {
    FParts.GetItem(0)->SetIndex(2);
    EXPECT_EQ(FParts.Sizes(), "231");
    FParts.GetItem(2)->SetIndex(1);
    EXPECT_EQ(FParts.Sizes(), "213");
    EXPECT_EQ(FParts.Log, "UU");
    FParts.GetItem(1)->SetIndex(1);
    EXPECT_EQ(FParts.Log, "UU") << "no move, no update";
}

TEST_F(CollectionTest, NumbersAreNeverUsedTwice) {
    EXPECT_EQ(FParts[0]->GetID(), 0);
    EXPECT_EQ(FParts[2]->GetID(), 2);
    FParts.Delete(2);
    EXPECT_EQ(FParts.Add()->GetID(), 3);
    FParts[0]->SetIndex(1);
    EXPECT_EQ(FParts.FindItemID(0), FParts[1]);
    EXPECT_EQ(FParts.FindItemID(2), nullptr);
}

TEST_F(CollectionTest, AChangeOfOneItemUpdatesIt) {
    FParts.Part(1)->SetSize(7);
    EXPECT_EQ(FParts.Log, "u");
    FParts.Part(1)->SetDisplayName(L"x");
    EXPECT_EQ(FParts.Log, "uu");
    EXPECT_EQ(FParts.Part(1)->GetDisplayName(), L"TPart");
}

TEST_F(CollectionTest, UpdatesAreHeldBackInABracket) {
    FParts.BeginUpdate();
    FParts.Part(0)->SetSize(7);
    FParts.BeginUpdate();
    FParts.Part(1)->SetSize(8);
    FParts.EndUpdate();
    EXPECT_EQ(FParts.Log, "");
    FParts.EndUpdate();
    EXPECT_EQ(FParts.Log, "U");
}

TEST_F(CollectionTest, AssignCopiesTheItems) {
    TParts other(nullptr);
    other.AddSized(5);
    FParts.Assign(&other);
    EXPECT_EQ(FParts.Sizes(), "5");
    EXPECT_NE(FParts[0], other[0]);
    EXPECT_EQ(FParts.Log.back(), 'U');
    EXPECT_EQ(std::ranges::count(FParts.Log, 'U'), 1);
    FParts.Assign(&FParts);
    EXPECT_EQ(FParts.Sizes(), "5");
    const TPersistent stranger;
    EXPECT_EQ(MessageOf<EConvertError>([&] { FParts.Assign(&stranger); }),
              L"Cannot assign a TPersistent to a TParts");
}

TEST_F(CollectionTest, SetItemAssignsToTheItem) {
    const TCollectionItem* kept = FParts[0];
    FParts.SetItem(0, FParts[2]);
    EXPECT_EQ(FParts[0], kept);
    EXPECT_EQ(FParts.Sizes(), "323");
}

TEST_F(CollectionTest, ItemsChangeTheirCollection) {
    TParts other(nullptr);
    TCollectionItem* item = FParts[1];
    item->SetCollection(&other);
    EXPECT_EQ(FParts.Sizes(), "13");
    EXPECT_EQ(other.Sizes(), "2");
    EXPECT_EQ(FParts.Log, "e!U");
    EXPECT_EQ(other.Log, "a!U");
    item->SetCollection(nullptr);
    const std::unique_ptr<TCollectionItem> alone(item);
    EXPECT_EQ(item->GetIndex(), -1);
    EXPECT_EQ(item->GetOwner(), nullptr);
    EXPECT_EQ(other.GetCount(), 0);
}

TEST_F(CollectionTest, ACollectionTakesNoItemsOfOtherClasses) {
    TCollection plain(TCollectionItem::StaticClass());
    FParts[0]->SetCollection(&plain);
    EXPECT_EQ(plain.GetCount(), 1) << "a descendant fits";
    EXPECT_EQ(MessageOf<EListError>([&] { plain.Add()->SetCollection(&FParts); }),
              L"A TParts can't hold a TCollectionItem");
    EXPECT_EQ(plain.GetCount(), 2);
}

TEST_F(CollectionTest, AClassThatIsNoItemCannotBeMade) {
    TCollection odd(TComponent::StaticClass());
    EXPECT_EQ(MessageOf<EInvalidOperation>([&] { odd.Add(); }), L"Items of class TComponent can't be made");
    EXPECT_EQ(odd.GetCount(), 0);
}

TEST_F(CollectionTest, ItemsAreNamedByTheWayToThem) {
    TPartsOwner owner(nullptr);
    owner.Parts().Add();
    const TCollectionItem* item = owner.Parts().Add();
    EXPECT_EQ(item->GetNamePath(), L"Parts[1]");
    owner.SetName(L"Bar");
    EXPECT_EQ(item->GetNamePath(), L"Bar.Parts[1]");
    EXPECT_EQ(owner.Parts().GetNamePath(), L"Bar.Parts");
    EXPECT_EQ(owner.Parts().GetOwner(), &owner);
    EXPECT_EQ(FParts[0]->GetNamePath(), L"TParts[0]");
}

TEST_F(CollectionTest, IsAPublishedNestedProperty) {
    TPartsOwner owner(nullptr);
    const TPublishedProperty* row = owner.ClassType().FindProperty(L"Parts");
    EXPECT_EQ(row->Kind(), TPropertyKind::Nested);
    row->Set(owner, static_cast<TPersistent*>(&FParts));
    EXPECT_EQ(owner.Parts().Sizes(), "123");
}

TEST_F(CollectionTest, AnItemThatTheCollectionRefusesIsNotListed) {
    FParts.RefusesItems = true;
    EXPECT_THROW(new TPart(&FParts), int);
    EXPECT_THROW(FParts.Add(), int);
    EXPECT_EQ(FParts.Sizes(), "123");
}

}  // namespace
}  // namespace vcl
