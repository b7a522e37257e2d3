#include <string>
#include <thread>
#include <vector>

#include "skin/UnitBaseClasses.h"
#include "skin/UnitQV7SkinConsts.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::MessageOf;
using vcl::probes::TMortal;

/// A list that shows how objects get in and counts what it hears of its changes.
class TProbeList : public TLstBase {
public:
    using TLstBase::Add;
    using TLstBase::GetObject;
    using TLstBase::Insert;
    using TLstBase::TLstBase;
    int Changes = 0;

protected:
    void Changed() override { ++Changes; }
};

class BaseListsTest : public test::LedgerTest {
protected:
    /// An object that writes its name to `Ended` at its end.
    TMortal* Named(char name) {
        return new TMortal([this, name] { Ended += name; });
    }
    /// Fills a list with A, B, C.
    void FillWithThree(TProbeList& list) {
        for (int i = 0; i < 3; ++i)
            list.Add(Three[i] = Named(static_cast<char>('A' + i)));
    }
    /// The list's objects as letters.
    std::string Order(const TProbeList& list) const {
        std::string order;
        for (int i = 0; i < list.GetCount(); ++i)
            for (int n = 0; n < 3; ++n)
                if (list.GetObject(i) == Three[n]) order += static_cast<char>('A' + n);
        return order;
    }
    TMortal* Three[3] = {};
    std::string Ended;
};

TEST_F(BaseListsTest, AnOwningListFreesWhatItHolds) {
    {
        TProbeList list(true);
        FillWithThree(list);
        list.Delete(1);
        EXPECT_EQ(Ended, "B");
        EXPECT_EQ(Order(list), "AC");
    }
    EXPECT_EQ(Ended.size(), 3U);
}

TEST_F(BaseListsTest, AListThatDoesNotOwnFreesNothing) {
    {
        TProbeList list(false);
        FillWithThree(list);
        list.Delete(0);
        list.Clear();
        EXPECT_EQ(list.GetCount(), 0);
    }
    EXPECT_EQ(Ended, "");
    for (TMortal* object : Three)
        delete object;
}

TEST_F(BaseListsTest, MovingToMinusOneMovesToTheEnd) {
    TProbeList list(true);
    FillWithThree(list);
    list.Move(0, -1);
    EXPECT_EQ(Order(list), "BCA");
    list.Move(2, 0);
    EXPECT_EQ(Order(list), "ABC");
    EXPECT_EQ(Ended, "");
}

TEST_F(BaseListsTest, ReversingAnOwningListFreesNothing) {
    TProbeList list(true);
    FillWithThree(list);
    list.Reverse();
    EXPECT_EQ(Order(list), "CBA");
    EXPECT_TRUE(list.GetOwnsObjects());
    EXPECT_EQ(Ended, "");
}

TEST_F(BaseListsTest, ReversingKeepsThatAListDoesNotOwn) {
    TProbeList list(false);
    FillWithThree(list);
    list.Reverse();
    EXPECT_FALSE(list.GetOwnsObjects());
    EXPECT_EQ(Order(list), "CBA");
    for (TMortal* object : Three)
        delete object;
}

TEST_F(BaseListsTest, ClearingWithoutFreeLeavesTheObjectsAliveAndTheListOwning) {
    TProbeList list(true);
    FillWithThree(list);
    list.ClearWithoutFree();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(Ended, "");
    EXPECT_TRUE(list.GetOwnsObjects());
    for (TMortal* object : Three)
        delete object;
}

TEST_F(BaseListsTest, ExtractingTakesOutWithoutFreeing) {
    TProbeList list(true);
    FillWithThree(list);
    EXPECT_EQ(list.Extract(1), Three[1]);
    EXPECT_EQ(list.Extract(Three[0]), Three[0]);
    EXPECT_EQ(list.Extract(Three[0]), nullptr);
    EXPECT_EQ(Order(list), "C");
    EXPECT_EQ(Ended, "");
    delete Three[0];
    delete Three[1];
}

TEST_F(BaseListsTest, ExtractingByIndexGoesThroughTheOtherExtract) {
    class TNoting : public TProbeList {
    public:
        using TLstBase::Extract;
        using TProbeList::TProbeList;
        TObject* Extract(TObject* Object) override {
            Noted = Object;
            return TLstBase::Extract(Object);
        }
        TObject* Noted = nullptr;
    };
    TNoting list(false);
    TMortal object([] {});
    list.Add(&object);
    EXPECT_EQ(list.Extract(0), &object);
    EXPECT_EQ(list.Noted, &object);
}

TEST_F(BaseListsTest, IndicesOutsideRaiseTheFrameworksError) {
    TProbeList list(true);
    EXPECT_THROW(list.Delete(0), EListError);
    EXPECT_THROW(list.Extract(3), EListError);
    EXPECT_THROW(list.Move(0, -1), EListError);
    EXPECT_EQ(list.IndexOf(nullptr), -1);
}

TEST_F(BaseListsTest, EachChangeIsToldOnceToTheDescendant) {
    TProbeList list(true);
    FillWithThree(list);
    EXPECT_EQ(list.Changes, 0) << "what adds is the descendant's own";
    list.Move(0, 1);
    list.Reverse();
    list.Delete(0);
    delete list.Extract(0);
    EXPECT_EQ(list.Extract(nullptr), nullptr);
    EXPECT_EQ(list.Changes, 4);
    list.Clear();
    list.ClearWithoutFree();
    EXPECT_EQ(list.Changes, 6);
}

// --- several threads

TEST_F(BaseListsTest, TheLockMayBeEnteredAgainByItsHolder) {
    TThreadedLstBase list(true);
    TObjectList* outer = list.Enter();
    EXPECT_EQ(list.Enter(), outer);
    EXPECT_EQ(list.TryEnter(), outer);
    EXPECT_EQ(list.GetEnterCounter(), 3);
    list.Leave();
    list.Leave();
    list.Leave();
    EXPECT_EQ(list.GetEnterCounter(), 0);
}

TEST_F(BaseListsTest, AnotherThreadDoesNotGetInWhileTheLockIsHeld) {
    TThreadedLstBase list(true);
    list.Enter();
    TObjectList unset;
    TObjectList* got = &unset;
    std::thread([&] { got = list.TryEnter(); }).join();
    EXPECT_EQ(got, nullptr);
    list.Leave();
    std::thread([&] {
        got = list.TryEnter();
        if (got) list.Leave();
    }).join();
    EXPECT_NE(got, nullptr);
}

TEST_F(BaseListsTest, SingleStepsLockForThemselvesAndLeaveAlsoWhenTheyRaise) {
    TThreadedLstBase list(true);
    TMortal* object = Named('A');
    list.Enter()->Add(object);
    list.Leave();
    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(list.IndexOf(object), 0);
    EXPECT_THROW(list.Delete(5), EListError);
    EXPECT_EQ(list.GetEnterCounter(), 0);
    bool free = false;
    std::thread([&] {
        free = list.TryEnter() != nullptr;
        if (free) list.Leave();
    }).join();
    EXPECT_TRUE(free);
    list.Delete(0);
    EXPECT_EQ(Ended, "A");
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
}

TEST_F(BaseListsTest, ManyThreadsLoseNothing) {
    constexpr int Threads = 4;
    constexpr int Each = 500;
    TThreadedLstBase list(true);
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t)
        threads.emplace_back([&] {
            for (int i = 0; i < Each; ++i) {
                TObjectList* objects = list.Enter();
                objects->Add(new TBase());
                if (i % 2) objects->Delete(0);
                list.Leave();
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(list.Count(), Threads * Each / 2);
    EXPECT_EQ(list.GetEnterCounter(), 0);
}

// --- the change log

class ChangeLogTest : public BaseListsTest {
protected:
    void TearDown() override {
        Current.Clear();
        Updated.Clear();
        Deleted.Clear();
        BaseListsTest::TearDown();
    }
    TProbeList Current{true};
    TProbeList Updated{false};
    TProbeList Deleted{true};
    TLstChangeLog Log{&Current, &Updated, &Deleted};
};

TEST_F(ChangeLogTest, InsertingARecordTwiceRaisesTheGermanText) {
    TMortal* record = Named('A');
    Log.InsertRec(record);
    EXPECT_EQ(MessageOf<Exception>([&] { Log.InsertRec(record); }),
              L"TLstChangeLog: einzufügendes Objekt bereits in Liste vorhanden");
    EXPECT_EQ(Current.GetCount(), 1);
}

TEST_F(ChangeLogTest, DeletingAnUnknownRecordRaisesTheGermanTextAndChangesNothing) {
    TMortal stranger([] {});
    Updated.Add(&stranger);
    EXPECT_EQ(MessageOf<Exception>([&] { Log.DeleteRec(&stranger); }),
              L"TLstChangeLog: zu löschendes Objekt nicht in Liste vorhanden");
    EXPECT_EQ(Updated.GetCount(), 1);
    EXPECT_EQ(Deleted.GetCount(), 0);
}

TEST_F(ChangeLogTest, TheErrorNamesTheClassOfTheDescendant) {
    class TOwnLog : public TLstChangeLog {
    public:
        using TLstChangeLog::TLstChangeLog;
        [[nodiscard]] const TMetaClass& ClassType() const override {
            static const TMetaClass meta(L"TOwnLog", &TLstChangeLog::StaticClass(), nullptr);
            return meta;
        }
    };
    TOwnLog log(&Current, &Updated, &Deleted);
    EXPECT_EQ(MessageOf<Exception>([&] { log.DeleteRec(nullptr); }),
              L"TOwnLog" + LoadSkinString(resObjectNotInList));
}

TEST_F(ChangeLogTest, UpdatingNotesEachRecordOnceAndAsksForNoOther) {
    TMortal stranger([] {});
    Log.UpdateRec(&stranger);
    Log.UpdateRec(&stranger);
    EXPECT_EQ(Updated.GetCount(), 1);
    EXPECT_EQ(Current.GetCount(), 0);
}

TEST_F(ChangeLogTest, DeletingAnUpdatedRecordMovesItFromThereToTheDeletedOnes) {
    TMortal* record = Named('A');
    Log.InsertRec(record);
    Log.UpdateRec(record);
    Log.DeleteRec(record);
    EXPECT_EQ(Updated.GetCount(), 0);
    EXPECT_EQ(Current.GetCount(), 0);
    EXPECT_EQ(Deleted.IndexOf(record), 0);
    EXPECT_EQ(Ended, "") << "the record lives in the log of deleted ones";
}

TEST_F(ChangeLogTest, ClearingEmptiesTheThreeListsOwnersFree) {
    TMortal* kept = Named('K');
    TMortal* gone = Named('G');
    Log.InsertRec(kept);
    Log.InsertRec(gone);
    Log.UpdateRec(kept);
    Log.DeleteRec(gone);
    Log.Clear();
    EXPECT_EQ(Current.GetCount() + Updated.GetCount() + Deleted.GetCount(), 0);
    EXPECT_EQ(Ended, "KG") << "current records go before the deleted ones";
}

TEST_F(ChangeLogTest, ALogWithoutListsRefusesToWork) {
    TLstChangeLog log;
    TMortal record([] {});
    EXPECT_THROW(log.InsertRec(&record), EInvalidOperation);
    EXPECT_THROW(log.UpdateRec(&record), EInvalidOperation);
    EXPECT_THROW(log.DeleteRec(&record), EInvalidOperation);
    EXPECT_THROW(log.Clear(), EInvalidOperation);
}

// --- records

class TProbeRecord : public TRecStatusBase {
public:
    using TRecStatusBase::FBKUPStatus;
    using TRecStatusBase::FStatus;
    bool New = false;
    bool Changed = false;
    mutable int Questions = 0;
    std::string Actions;

protected:
    [[nodiscard]] bool IsNew() const override { return ++Questions, New; }
    [[nodiscard]] bool IsChanged() const override { return ++Questions, Changed; }
    void DoCommit() override { Note('c'); }
    void DoRollback() override { Note('r'); }
    void DoClear() override { Note('x'); }

private:
    /// The action, with the status it finds.
    void Note(char action) { (Actions += action) += static_cast<char>('0' + static_cast<int>(FStatus)); }
};

TEST_F(BaseListsTest, TheStatusIsReckonedAnewOnEachReading) {
    TProbeRecord record;
    EXPECT_EQ(record.GetStatus(), rsUnchanged);
    record.Changed = true;
    EXPECT_EQ(record.GetStatus(), rsUpdated);
    record.New = true;
    EXPECT_EQ(record.GetStatus(), rsNew);
    EXPECT_EQ(record.FStatus, rsNew);
    record.New = record.Changed = false;
    EXPECT_EQ(record.GetStatus(), rsUnchanged);
    EXPECT_EQ(record.FStatus, rsUnchanged);
}

TEST_F(BaseListsTest, ADeletedRecordIsNeverAsked) {
    TProbeRecord record;
    record.New = true;
    record.FStatus = rsDeleted;
    EXPECT_EQ(record.GetStatus(), rsDeleted);
    EXPECT_EQ(record.Questions, 0);
}

TEST_F(BaseListsTest, CommitActsFirstRollbackAndClearAfterwards) {
    TProbeRecord record;
    record.FStatus = rsUpdated;
    record.Commit();
    EXPECT_EQ(record.Actions, "c2");
    EXPECT_EQ(record.FStatus, rsUnchanged);
    EXPECT_EQ(record.FBKUPStatus, rsUnchanged);

    record.FStatus = rsDeleted;
    record.FBKUPStatus = rsNew;
    record.Rollback();
    EXPECT_EQ(record.Actions, "c2r1");
    EXPECT_EQ(record.FStatus, rsNew);
    EXPECT_EQ(record.FBKUPStatus, rsNew);

    record.Clear();
    EXPECT_EQ(record.Actions, "c2r1x0");
    EXPECT_EQ(record.FBKUPStatus, rsUnchanged);
}

TEST_F(BaseListsTest, CopyingAStatusTakesTheReckonedOneAndTheSavedOne) {
    TProbeRecord source;
    source.Changed = true;
    source.FBKUPStatus = rsNew;
    TProbeRecord copy;
    copy.CopyStatus(source);
    EXPECT_EQ(copy.FStatus, rsUpdated);
    EXPECT_EQ(copy.FBKUPStatus, rsNew);
}

TEST_F(BaseListsTest, WhatListsAndRecordsPublishCanBeRead) {
    const auto read = [](const TObject& object, const wchar_t* name) {
        return std::get<std::int64_t>(object.ClassType().FindProperty(name)->Get(object));
    };
    TLstBase list(true);
    EXPECT_EQ(read(list, L"Count"), 0);
    EXPECT_EQ(read(list, L"OwnsObjects"), 1);
    list.ClassType().FindProperty(L"OwnsObjects")->Set(list, std::int64_t{0});
    EXPECT_FALSE(list.GetOwnsObjects());
    EXPECT_TRUE(list.ClassType().FindProperty(L"Count")->IsReadOnly());
    TNotifyEventList listeners(false);
    listeners.Add(TNotifyEvent(), 0);
    EXPECT_EQ(read(listeners, L"Count"), 1);
    TProbeRecord record;
    record.Changed = true;
    EXPECT_EQ(read(record, L"Status"), 2);
    EXPECT_STREQ(record.ClassType().FindProperty(L"Status")->ElementNames()[2], L"rsUpdated");
}

}  // namespace
}  // namespace qv7skin
