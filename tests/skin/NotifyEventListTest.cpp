#include <memory>
#include <string>

#include "platform/vcl/core/Exceptions.h"
#include "skin/UnitBaseClasses.h"
#include "tests/support/LedgerTest.h"

namespace qv7skin {
namespace {

class NotifyEventListTest : public test::LedgerTest {
protected:
    /// Writes its name to the log when it is told.
    class TListener : public TObject {
    public:
        TListener(std::string& log, char name) : FLog(log), FName(name) {}
        void First(TObject*) { FLog += FName; }
        void Second(TObject*) { (FLog += FName) += '2'; }
        void Raise(TObject*) {
            FLog += FName;
            throw EInvalidOperation(L"no");
        }
        TNotifyEvent OnFirst() { return {this, &TListener::First}; }
        TNotifyEvent OnSecond() { return {this, &TListener::Second}; }
        TNotifyEvent OnRaise() { return {this, &TListener::Raise}; }

    private:
        std::string& FLog;
        char FName;
    };

    std::string Log;
    TListener A{Log, 'a'};
    TListener B{Log, 'b'};
    TListener C{Log, 'c'};
};

TEST_F(NotifyEventListTest, ListenersOfTheTagAreToldFromTheLastToTheFirst) {
    TNotifyEventList list(false);
    list.Add(A.OnFirst(), 1);
    list.Add(B.OnFirst(), 2);
    list.Add(C.OnFirst(), 1);
    list.Add(A.OnFirst(), 1);
    list.DoNotify(nullptr, 1);
    EXPECT_EQ(Log, "aca");
    EXPECT_EQ(list.GetCount(), 4);
    EXPECT_EQ(list.GetNotifyEvents(1)->GetTag(), 2);
}

TEST_F(NotifyEventListTest, TheSenderIsHandedOn) {
    TObject sender;
    TObject* heard = nullptr;
    TNotifyEventList list(false);
    list.Add(TNotifyEvent([&heard](TObject* from) { heard = from; }), 0);
    list.DoNotify(&sender, 0);
    EXPECT_EQ(heard, &sender);
}

TEST_F(NotifyEventListTest, AListenerIsFoundByItsObjectWhateverItsMethod) {
    TNotifyEventList list(false);
    list.Add(A.OnFirst(), 1);
    list.Add(A.OnSecond(), 1);
    list.Add(B.OnFirst(), 1);
    EXPECT_EQ(list.IndexOf(A.OnFirst()), 1);
    EXPECT_EQ(list.IndexOf(C.OnFirst()), -1);
}

TEST_F(NotifyEventListTest, RemovingTakesTheMethodRegisteredLast) {
    TNotifyEventList list(false);
    list.Add(A.OnFirst(), 1);
    list.Add(A.OnSecond(), 1);
    list.Remove(A.OnFirst());
    list.DoNotify(nullptr, 1);
    EXPECT_EQ(Log, "a") << "the first method is left";
    list.Remove(C.OnFirst());
    EXPECT_EQ(list.GetCount(), 1);
}

TEST_F(NotifyEventListTest, CallablesWithoutAnObjectAreFoundByThemselves) {
    TNotifyEventList list(false);
    const TNotifyEvent one = [this](TObject*) { Log += '1'; };
    const TNotifyEvent two = [this](TObject*) { Log += '2'; };
    list.Add(one, 0);
    list.Add(two, 0);
    EXPECT_EQ(list.IndexOf(one), 0);
    EXPECT_EQ(list.IndexOf(two), 1);
    list.Remove(one);
    list.DoNotify(nullptr, 0);
    EXPECT_EQ(Log, "2");
}

TEST_F(NotifyEventListTest, WithDeleteAfterNotifyEachIsToldOnceAndOtherTagsStay) {
    TNotifyEventList list(true);
    list.Add(A.OnFirst(), 1);
    list.Add(B.OnFirst(), 2);
    list.Add(C.OnFirst(), 1);
    list.DoNotify(nullptr, 1);
    EXPECT_EQ(Log, "ca");
    ASSERT_EQ(list.GetCount(), 1);
    EXPECT_EQ(list.GetNotifyEvents(0)->GetTag(), 2);
    list.DoNotify(nullptr, 1);
    EXPECT_EQ(Log, "ca");
}

TEST_F(NotifyEventListTest, AnErrorEndsTheRoundOfAPlainList) {
    TNotifyEventList list(true);
    list.Add(A.OnFirst(), 0);
    list.Add(B.OnRaise(), 0);
    list.Add(C.OnFirst(), 0);
    EXPECT_THROW(list.DoNotify(nullptr, 0), EInvalidOperation);
    EXPECT_EQ(Log, "cb");
    EXPECT_EQ(list.GetCount(), 2) << "the one that raised was not told to its end";
}

TEST_F(NotifyEventListTest, TheSecureListDropsWhoRaisesAndGoesOn) {
    TNotifyEventListSecure list(false);
    list.Add(A.OnFirst(), 0);
    list.Add(B.OnRaise(), 0);
    list.Add(C.OnFirst(), 0);
    EXPECT_NO_THROW(list.DoNotify(nullptr, 0));
    EXPECT_EQ(Log, "cba");
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.IndexOf(B.OnRaise()), -1);
    list.DoNotify(nullptr, 0);
    EXPECT_EQ(Log, "cbaca");
}

TEST_F(NotifyEventListTest, TheSecureListDeletesAfterNotifyingToo) {
    TNotifyEventListSecure list(true);
    list.Add(A.OnFirst(), 0);
    list.Add(B.OnRaise(), 0);
    list.DoNotify(nullptr, 0);
    EXPECT_EQ(Log, "ba");
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(NotifyEventListTest, AListenerMayRemoveItselfWhileItIsTold) {
    TNotifyEventList list(true);
    list.Add(A.OnFirst(), 0);
    list.Add(TNotifyEvent([&](TObject*) {
                 Log += 'x';
                 list.Clear();
             }),
             0);
    list.DoNotify(nullptr, 0);
    EXPECT_EQ(Log, "x");
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(NotifyEventListTest, NobodyIsToldTwiceWhenAnEarlierListenerLeavesMeanwhile) {
    TNotifyEventList list(false);
    list.Add(A.OnFirst(), 0);
    list.Add(B.OnFirst(), 0);
    list.Add(TNotifyEvent([&](TObject*) {
                 Log += 'x';
                 list.Remove(A.OnFirst());
             }),
             0);
    list.DoNotify(nullptr, 0);
    EXPECT_EQ(Log, "xb");
}

TEST_F(NotifyEventListTest, AListenerThatComesMeanwhileWaitsForTheNextTime) {
    TNotifyEventList list(false);
    list.Add(TNotifyEvent([&](TObject*) {
                 Log += 'x';
                 if (list.GetCount() < 3) list.Add(A.OnFirst(), 0);
             }),
             0);
    list.DoNotify(nullptr, 0);
    EXPECT_EQ(Log, "x");
    list.DoNotify(nullptr, 0);
    EXPECT_EQ(Log, "xax");
}

TEST_F(NotifyEventListTest, AListenerMayFreeTheList) {
    auto list = std::make_unique<TNotifyEventList>(true);
    list->Add(A.OnFirst(), 0);
    list->Add(TNotifyEvent([&](TObject*) { list.reset(); }), 0);
    list->DoNotify(nullptr, 0);
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(Log, "");
}

TEST_F(NotifyEventListTest, AnUnsetCallbackIsPassedOver) {
    TNotifyEventItem item(nullptr, 7);
    item.DoNotify(nullptr);
    EXPECT_EQ(item.GetTag(), 7);
}

}  // namespace
}  // namespace qv7skin
