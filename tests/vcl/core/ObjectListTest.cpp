#include "platform/vcl/core/ObjectList.h"

#include <memory>

#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

using probes::MessageOf;
using probes::TMortal;

class ObjectListTest : public test::LedgerTest {
protected:
    /// Adds an object that notes its number when it ends.
    TObject* AddTo(TObjectList& list, int number) {
        auto* object = new TMortal([this, number] { FEnded.push_back(number); });
        list.Add(object);
        return object;
    }
    std::vector<int> FEnded;
};

TEST_F(ObjectListTest, AnOwningListFreesItsObjectsFromTheEnd) {
    {
        TObjectList list;
        EXPECT_TRUE(list.GetOwnsObjects());
        for (const int n : {1, 2, 3})
            AddTo(list, n);
        EXPECT_EQ(list.GetCount(), 3);
    }
    EXPECT_EQ(FEnded, (std::vector{3, 2, 1}));
}

TEST_F(ObjectListTest, AListThatDoesNotOwnFreesNothing) {
    TObject object;
    {
        TObjectList list(false);
        EXPECT_EQ(list.Add(&object), 0);
        EXPECT_EQ(list.Add(&object), 1);
        list.Delete(0);
        list.Clear();
        list.Add(&object);
    }
    EXPECT_EQ(object.ClassName(), L"TObject");
}

TEST_F(ObjectListTest, DeleteAndRemoveFreeWhenOwning) {
    TObjectList list;
    AddTo(list, 1);
    TObject* second = AddTo(list, 2);
    AddTo(list, 3);
    list.Delete(0);
    EXPECT_EQ(FEnded, std::vector{1});
    EXPECT_EQ(list.Remove(second), 0);
    EXPECT_EQ(FEnded, (std::vector{1, 2}));
    EXPECT_EQ(list.Remove(second), -1);
    EXPECT_EQ(list.GetCount(), 1);
}

TEST_F(ObjectListTest, ExtractTakesOutWithoutFreeing) {
    TObjectList list;
    const std::unique_ptr<TObject> object(AddTo(list, 1));
    EXPECT_EQ(list.Extract(object.get()), object.get());
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.Extract(object.get()), nullptr);
    EXPECT_TRUE(FEnded.empty());
}

TEST_F(ObjectListTest, ReplacingAnEntryFreesTheOldObjectButNotItself) {
    TObjectList list;
    TObject* first = AddTo(list, 1);
    list.SetItem(0, first);
    EXPECT_TRUE(FEnded.empty());
    list.SetItem(0, new TObject);
    EXPECT_EQ(FEnded, std::vector{1});
    list.SetItem(0, nullptr);
    EXPECT_EQ(list[0], nullptr);
    EXPECT_EQ(list.GetCount(), 1);
}

TEST_F(ObjectListTest, OwnershipCanBeSwitched) {
    TObject object;
    TObjectList list;
    list.Add(&object);
    list.SetOwnsObjects(false);
    list.Clear();
    list.SetOwnsObjects(true);
    AddTo(list, 1);
    list.Clear();
    EXPECT_EQ(FEnded, std::vector{1});
}

TEST_F(ObjectListTest, AnObjectMayLookAtTheListWhileItEnds) {
    TObjectList list;
    int place = 0;
    int count = 0;
    auto* object = new TMortal([&] {
        place = list.IndexOf(nullptr);
        count = list.GetCount();
    });
    list.Add(nullptr);
    list.Add(object);
    list.Delete(1);
    EXPECT_EQ(place, 0);
    EXPECT_EQ(count, 1);
}

TEST_F(ObjectListTest, AnObjectMayTakeOthersAlongWhenItEnds) {
    TObjectList list;
    AddTo(list, 1);
    TObject* second = AddTo(list, 2);
    list.Add(new TMortal([&] { list.Remove(second); }));
    list.Clear();
    EXPECT_EQ(FEnded, (std::vector{2, 1}));
}

class ObjectListOrderTest : public test::LedgerTest {
protected:
    ObjectListOrderTest() {
        for (TObject& object : FObjects)
            FList.Add(&object);
    }
    /// The list as numbers of the objects, such as "0123".
    [[nodiscard]] std::string Order() const {
        std::string order;
        for (const TObject* object : FList.Items())
            order += static_cast<char>('0' + (object - FObjects));
        return order;
    }
    TObject FObjects[4];
    TObjectList FList{false};
};

TEST_F(ObjectListOrderTest, MovesInBothDirections) {
    FList.Move(0, 2);
    EXPECT_EQ(Order(), "1203");
    FList.Move(3, 0);
    EXPECT_EQ(Order(), "3120");
    FList.Move(1, 1);
    EXPECT_EQ(Order(), "3120");
}

TEST_F(ObjectListOrderTest, ExchangesAndInserts) {
    FList.Exchange(0, 3);
    EXPECT_EQ(Order(), "3120");
    FList.Insert(0, &FObjects[2]);
    FList.Insert(5, &FObjects[1]);
    EXPECT_EQ(Order(), "231201");
}

TEST_F(ObjectListOrderTest, FindsTheFirstPlace) {
    FList.Add(&FObjects[1]);
    EXPECT_EQ(FList.IndexOf(&FObjects[1]), 1);
    EXPECT_EQ(FList.IndexOf(this->FObjects + 3), 3);
    EXPECT_EQ(FList.IndexOf(nullptr), -1);
}

TEST_F(ObjectListOrderTest, EveryIndexOutsideTheListIsAnError) {
    const String minusOne = L"List index out of bounds (-1)";
    const String four = L"List index out of bounds (4)";
    EXPECT_EQ(MessageOf<EListError>([&] { (void)FList[-1]; }), minusOne);
    EXPECT_EQ(MessageOf<EListError>([&] { (void)FList.GetItem(4); }), four);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.SetItem(4, nullptr); }), four);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.Delete(4); }), four);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.Move(0, 4); }), four);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.Move(-1, 0); }), minusOne);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.Exchange(4, 0); }), four);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.Exchange(0, -1); }), minusOne);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.Insert(5, nullptr); }), L"List index out of bounds (5)");
    EXPECT_EQ(Order(), "0123");
}

TEST_F(ObjectListOrderTest, MakesRoomButNeverLessThanItNeeds) {
    FList.SetCapacity(100);
    EXPECT_GE(FList.GetCapacity(), 100);
    EXPECT_EQ(MessageOf<EListError>([&] { FList.SetCapacity(3); }), L"List capacity out of bounds (3)");
    EXPECT_EQ(Order(), "0123");
}

TEST_F(ObjectListOrderTest, IsNamed) {
    EXPECT_EQ(FList.ClassName(), L"TObjectList");
}

}  // namespace
}  // namespace vcl
