#include "platform/vcl/core/StringList.h"

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Streams.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/TempDir.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

using probes::MessageOf;

class StringListTest : public test::LedgerTest {
protected:
    void Fill(std::initializer_list<const wchar_t*> texts) {
        for (const wchar_t* text : texts)
            FList.Add(text);
    }
    /// All texts, joined by commas.
    [[nodiscard]] String Joined() const {
        String joined;
        for (int i = 0; i < FList.GetCount(); ++i)
            joined += (i ? L"," : L"") + FList[i];
        return joined;
    }
    TStringList FList;
};

TEST_F(StringListTest, KeepsTextsAndObjectsInOrder) {
    TObject object;
    EXPECT_EQ(FList.Add(L"one"), 0);
    EXPECT_EQ(FList.AddObject(L"two", &object), 1);
    FList.Insert(0, L"zero");
    EXPECT_EQ(Joined(), L"zero,one,two");
    EXPECT_EQ(FList.GetObject(2), &object);
    EXPECT_EQ(FList.GetObject(0), nullptr);
    EXPECT_EQ(FList.IndexOfObject(&object), 2);
    EXPECT_EQ(FList.IndexOfObject(&FList), -1);
}

TEST_F(StringListTest, ChangesSingleEntries) {
    TObject object;
    Fill({L"a", L"b", L"c"});
    FList.Put(1, L"B");
    FList.PutObject(1, &object);
    FList.Delete(0);
    EXPECT_EQ(Joined(), L"B,c");
    EXPECT_EQ(FList.GetObject(0), &object);
    FList.Clear();
    EXPECT_EQ(FList.GetCount(), 0);
}

TEST_F(StringListTest, FindsTextsWithoutCase) {
    Fill({L"Apfel", L"\xC4pfel", L"apfel"});
    EXPECT_EQ(FList.IndexOf(L"APFEL"), 0);
    EXPECT_EQ(FList.IndexOf(L"\xE4PFEL"), 1);
    EXPECT_EQ(FList.IndexOf(L"Birne"), -1);
    EXPECT_EQ(FList.IndexOf(L""), -1);
}

TEST_F(StringListTest, MovesAndExchangesWithTheirObjects) {
    TObject object;
    Fill({L"a", L"b", L"c", L"d"});
    FList.PutObject(0, &object);
    FList.Move(0, 2);
    EXPECT_EQ(Joined(), L"b,c,a,d");
    FList.Move(3, 0);
    EXPECT_EQ(Joined(), L"d,b,c,a");
    FList.Exchange(0, 3);
    EXPECT_EQ(Joined(), L"a,b,c,d");
    EXPECT_EQ(FList.GetObject(0), &object);
}

TEST_F(StringListTest, EveryIndexOutsideTheListIsAnError) {
    Fill({L"a"});
    const String one = L"List index out of bounds (1)";
    EXPECT_EQ(MessageOf<EStringListError>([&] { (void)FList[1]; }), one);
    EXPECT_EQ(MessageOf<EStringListError>([&] { (void)FList[-1]; }), L"List index out of bounds (-1)");
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Put(1, L""); }), one);
    EXPECT_EQ(MessageOf<EStringListError>([&] { (void)FList.GetObject(1); }), one);
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.PutObject(1, nullptr); }), one);
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Insert(2, L""); }), L"List index out of bounds (2)");
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Delete(1); }), one);
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Move(0, 1); }), one);
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Exchange(1, 0); }), one);
    EXPECT_EQ(Joined(), L"a");
}

TEST_F(StringListTest, ItsTextIsAllLinesEachWithABreak) {
    Fill({L"one", L"", L"three"});
    EXPECT_EQ(FList.GetText(), L"one\r\n\r\nthree\r\n");
    FList.SetText(L"x\ny\r\nz");
    EXPECT_EQ(Joined(), L"x,y,z");
    FList.SetText(L"");
    EXPECT_EQ(FList.GetCount(), 0);
    EXPECT_EQ(FList.GetText(), L"");
}

TEST_F(StringListTest, SetTextOfGetTextChangesNothing) {
    Fill({L"", L"a", L""});
    TStringList copy;
    copy.SetText(FList.GetText());
    EXPECT_TRUE(copy.Equals(FList));
}

TEST_F(StringListTest, EqualsLooksAtEveryCharacter) {
    Fill({L"a", L"b"});
    TStringList other;
    other.Add(L"a");
    EXPECT_FALSE(FList.Equals(other));
    other.Add(L"B");
    EXPECT_FALSE(FList.Equals(other));
    other.Put(1, L"b");
    EXPECT_TRUE(FList.Equals(other));
}

TEST_F(StringListTest, AssignTakesTextsAndObjects) {
    TObject object;
    FList.AddObject(L"a", &object);
    TStringList copy;
    copy.Add(L"old");
    copy.Assign(&FList);
    EXPECT_TRUE(copy.Equals(FList));
    EXPECT_EQ(copy.GetObject(0), &object);
    copy.Assign(&copy);
    EXPECT_EQ(copy.GetCount(), 1);
}

TEST_F(StringListTest, AssignRefusesWhatIsNoList) {
    const TComponent component(nullptr);
    EXPECT_EQ(MessageOf<EConvertError>([&] { FList.Assign(&component); }),
              L"Cannot assign a TComponent to a TStringList");
    EXPECT_EQ(MessageOf<EConvertError>([&] { FList.Assign(nullptr); }),
              L"Cannot assign a nil to a TStringList");
}

TEST_F(StringListTest, CanBeAppendedToItself) {
    Fill({L"a", L"b"});
    FList.AddStrings(FList);
    EXPECT_EQ(Joined(), L"a,b,a,b");
}

TEST_F(StringListTest, ASortedListFindsThePlaceOfNewTexts) {
    Fill({L"pear", L"Apple", L"plum"});
    FList.SetSorted(true);
    EXPECT_EQ(Joined(), L"Apple,pear,plum");
    EXPECT_EQ(FList.Add(L"fig"), 1);
    EXPECT_EQ(FList.Add(L"quince"), 4);
    EXPECT_EQ(Joined(), L"Apple,fig,pear,plum,quince");
    EXPECT_EQ(FList.IndexOf(L"PLUM"), 3);
    EXPECT_EQ(FList.IndexOf(L"cherry"), -1);
}

TEST_F(StringListTest, ASortedListTreatsDuplicatesAsItIsTold) {
    Fill({L"a", L"b"});
    FList.SetSorted(true);
    EXPECT_EQ(FList.Add(L"A"), 0);
    EXPECT_EQ(Joined(), L"a,b");
    FList.Duplicates = dupAccept;
    FList.Add(L"A");
    EXPECT_EQ(FList.GetCount(), 3);
    FList.Duplicates = dupError;
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Add(L"b"); }),
              L"String list does not allow duplicates");
    EXPECT_EQ(FList.GetCount(), 3);
}

TEST_F(StringListTest, ASortedListRefusesWhatWouldBreakItsOrder) {
    Fill({L"a", L"b"});
    FList.SetSorted(true);
    const String refused = L"Operation not allowed on sorted list";
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Insert(0, L"z"); }), refused);
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Put(0, L"z"); }), refused);
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Move(0, 1); }), refused);
    EXPECT_EQ(MessageOf<EStringListError>([&] { FList.Exchange(0, 1); }), refused);
    EXPECT_EQ(Joined(), L"a,b");
    FList.SetSorted(false);
    FList.Insert(0, L"z");
    EXPECT_EQ(Joined(), L"z,a,b");
}

TEST_F(StringListTest, SortsOnceWithoutStayingSorted) {
    Fill({L"b", L"c", L"a"});
    FList.Sort();
    FList.Add(L"0");
    EXPECT_EQ(Joined(), L"a,b,c,0");
    EXPECT_FALSE(FList.GetSorted());
}

class StringListEventTest : public StringListTest {
protected:
    StringListEventTest() {
        FList.OnChanging = [this](TObject* sender) { Note('-', sender); };
        FList.OnChange = [this](TObject* sender) { Note('+', sender); };
    }
    void Note(char event, TObject* sender) {
        FSeen += event;
        EXPECT_EQ(sender, &FList);
    }
    std::string FSeen;
};

TEST_F(StringListEventTest, EveryChangeIsAnnouncedBeforeAndAfter) {
    FList.Add(L"a");
    EXPECT_EQ(FSeen, "-+");
    FList.Put(0, L"b");
    FList.PutObject(0, nullptr);
    FList.Insert(0, L"c");
    FList.Exchange(0, 1);
    FList.Move(0, 1);
    FList.Delete(0);
    FList.Clear();
    EXPECT_EQ(FSeen, "-+-+-+-+-+-+-+-+");
}

TEST_F(StringListEventTest, WhatChangesNothingIsNotAnnounced) {
    FList.Clear();
    FList.Sort();
    EXPECT_EQ(FSeen, "");
}

TEST_F(StringListEventTest, AnUpdateBracketIsAnnouncedOnce) {
    FList.BeginUpdate();
    EXPECT_EQ(FSeen, "-");
    FList.Add(L"a");
    FList.BeginUpdate();
    FList.Add(L"b");
    FList.EndUpdate();
    EXPECT_EQ(FSeen, "-");
    FList.EndUpdate();
    EXPECT_EQ(FSeen, "-+");
    FList.EndUpdate();
    EXPECT_EQ(FSeen, "-+") << "one end too many counts for nothing";
}

TEST_F(StringListEventTest, WholeTextsAreAnnouncedOnce) {
    FList.SetText(L"a\nb\nc");
    EXPECT_EQ(FSeen, "-+");
    TStringList other;
    other.Add(L"x");
    FList.Assign(&other);
    FList.AddStrings(other);
    EXPECT_EQ(FSeen, "-+-+-+");
}

TEST_F(StringListTest, GoesIntoAFileAndBack) {
    const test::TempDir folder;
    const String file = folder.File(L"lines.txt");
    Fill({L"Wei\xDF", L"", L"\xD83D\xDE00"});
    FList.SaveToFile(file);
    TStringList read;
    read.Add(L"former");
    read.LoadFromFile(file);
    EXPECT_TRUE(read.Equals(FList));
    EXPECT_THROW(read.LoadFromFile(folder.File(L"none.txt")), EFOpenError);
}

TEST_F(StringListTest, ReadsTheRestOfAStreamInAnyUsualEncoding) {
    const auto linesOf = [this](std::string_view bytes) {
        TMemoryStream stream;
        stream.WriteBuffer("skipped", 7);
        stream.WriteBuffer(bytes.data(), bytes.size());
        stream.SetPosition(7);
        FList.LoadFromStream(stream);
        return Joined();
    };
    EXPECT_EQ(linesOf("\xEF\xBB\xBF\xC3\xA4\nb"), L"\xE4,b") << "UTF-8 with its mark";
    EXPECT_EQ(linesOf("\xC3\xA4\r\nb\r\n"), L"\xE4,b") << "and without";
    EXPECT_EQ(linesOf("\xE4\n\x80"), L"\xE4,\x20AC") << "code page 1252";
    EXPECT_EQ(linesOf({"\xFF\xFE\xE4\0\n\0b\0", 8}), L"\xE4,b") << "UTF-16";
    EXPECT_EQ(linesOf(""), L"");
}

TEST_F(StringListEventTest, TheBracketEndsWhenAChangeRaises) {
    FList.SetSorted(true);
    FList.Duplicates = dupError;
    EXPECT_THROW(FList.SetText(L"a\na"), EStringListError);
    EXPECT_EQ(FSeen, "-+");
    FList.Add(L"b");
    EXPECT_EQ(FSeen, "-+-+");
}

}  // namespace
}  // namespace vcl
