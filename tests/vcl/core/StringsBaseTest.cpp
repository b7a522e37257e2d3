#include <utility>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/StringList.h"
#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

/// A list as controls have it: it keeps its lines elsewhere and implements no more than it must.
class TForeignLines : public TStrings {
public:
    [[nodiscard]] int GetCount() const override { return static_cast<int>(FLines.size()); }
    [[nodiscard]] String Get(int index) const override { return At(index).first; }
    void Put(int index, const String& text) override { At(index).first = text; }
    [[nodiscard]] TObject* GetObject(int index) const override { return At(index).second; }
    void PutObject(int index, TObject* object) override { At(index).second = object; }
    void InsertObject(int index, const String& text, TObject* object) override {
        FLines.insert(FLines.begin() + index, {text, object});
    }
    void Delete(int index) override { FLines.erase(FLines.begin() + index); }
    void Clear() override { FLines.clear(); }
    std::string Updates;

protected:
    void SetUpdateState(bool updating) override { Updates += updating ? '<' : '>'; }

private:
    using TLine = std::pair<String, TObject*>;
    TLine& At(int index) { return FLines.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] const TLine& At(int index) const { return FLines.at(static_cast<std::size_t>(index)); }
    std::vector<TLine> FLines;
};

class StringsBaseTest : public test::LedgerTest {
protected:
    TForeignLines FLines;
};

TEST_F(StringsBaseTest, AddsAtTheEnd) {
    EXPECT_EQ(FLines.Add(L"a"), 0);
    EXPECT_EQ(FLines.AddObject(L"b", nullptr), 1);
    EXPECT_EQ(FLines.GetText(), L"a\r\nb\r\n");
}

TEST_F(StringsBaseTest, MovesAndExchangesThroughItsPrimitives) {
    TObject object;
    FLines.SetText(L"a\nb\nc");
    FLines.PutObject(0, &object);
    FLines.Updates.clear();
    FLines.Move(0, 2);
    EXPECT_EQ(FLines.GetText(), L"b\r\nc\r\na\r\n");
    EXPECT_EQ(FLines.GetObject(2), &object);
    FLines.Exchange(0, 2);
    EXPECT_EQ(FLines.GetText(), L"a\r\nc\r\nb\r\n");
    EXPECT_EQ(FLines.GetObject(0), &object);
    EXPECT_EQ(FLines.Updates, "<><>");
}

TEST_F(StringsBaseTest, AListOfAnotherKindCanBeAssigned) {
    TStringList source;
    source.SetText(L"x\ny");
    FLines.Add(L"old");
    FLines.Assign(&source);
    EXPECT_TRUE(FLines.Equals(source));
    EXPECT_EQ(FLines.Updates, "<>") << "one bracket around it all";
}

TEST_F(StringsBaseTest, IsNamedAfterItsTable) {
    EXPECT_EQ(FLines.ClassName(), L"TStrings");
    EXPECT_FALSE(TStrings::StaticClass().CanCreate());
    EXPECT_TRUE(TStringList::StaticClass().InheritsFrom(TStrings::StaticClass()));
}

}  // namespace
}  // namespace vcl
