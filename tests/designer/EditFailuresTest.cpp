// Edits that fail, and names that collide.

#include "designer/inspector/PropertyList.h"
#include "designer/model/Clipping.h"
#include "designer/model/Placing.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/designer/DesignFixture.h"

namespace designer {
namespace {

/// A component that can be brought into a state in which it can't be written.
class TFragile final : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TFragile>(L"TFragile", TComponent::StaticClass())
                                           .Property(L"Value", &TFragile::GetValue, &TFragile::SetValue, 0);
        return meta;
    }
    [[nodiscard]] int GetValue() const {
        if (IsBroken) throw EInvalidOperation(L"broken");
        return FValue;
    }
    void SetValue(int value) { FValue = value; }
    bool IsBroken = false;

private:
    int FValue = 0;
};

class EditFailuresTest : public DesignTest {
protected:
    void SetUp() override {
        DesignTest::SetUp();
        RegisterClass(TFragile::StaticClass());
        Begin(
            L"object Button1: TButton Left = 8 Top = 8 Width = 75 Height = 25 OnClick = Los end\n"
            L"object Edit1: TEdit Left = 8 Top = 40 Width = 75 Height = 21 end\n"
            L"object Fragile1: TFragile Value = 4 end");
        Start = Document().Text();
    }
    void TearDown() override {
        DesignTest::TearDown();
        UnRegisterClass(TFragile::StaticClass());
    }
    std::string Start;
};

TEST_F(EditFailuresTest, WhatCannotBeWrittenIsTakenBack) {
    EXPECT_THROW(Document().Edit(L"breaks",
                                 [&] {
                                     Find<TButton>(L"Button1").SetCaption(L"half done");
                                     Find<TFragile>(L"Fragile1").IsBroken = true;
                                 }),
                 EInvalidOperation);
    EXPECT_EQ(Document().Text(), Start);
    EXPECT_EQ(FormToText(Document().Document()), Start) << "the components are those of the text";
    EXPECT_FALSE(Document().IsEditing());
    EXPECT_FALSE(Document().IsModified());
    Document().Edit(L"works", [&] { Find<TFragile>(L"Fragile1").SetValue(5); });
    EXPECT_NE(Document().Text().find("Value = 5"), std::string::npos);
    Document().Undo();
    EXPECT_EQ(Document().Text(), Start);
}

TEST_F(EditFailuresTest, AnErrorWithinAnEditInAnEditTakesBackBoth) {
    EXPECT_THROW(Document().Edit(L"outer",
                                 [&] {
                                     Find<TButton>(L"Button1").SetCaption(L"A");
                                     Document().Edit(L"inner", [&] {
                                         Find<TFragile>(L"Fragile1").IsBroken = true;
                                         throw EAbort(L"in the middle");
                                     });
                                 }),
                 EAbort);
    EXPECT_EQ(FormToText(Document().Document()), Start);
    EXPECT_FALSE(Document().IsEditing());
}

TEST_F(EditFailuresTest, AMethodFitsOneTypeOfEvents) {
    TPropertyList events(Document(), TPropertyList::TKind::Events);
    Choose({L"Edit1"});
    events.Refresh();
    EXPECT_THROW(events.SetText(L"OnKeyPress", L"Los"), EConvertError);
    EXPECT_THROW(events.SetText(L"OnKeyPress", L"los"), EConvertError);
    EXPECT_EQ(Document().Text(), Start);
    events.SetText(L"OnClick", L"Los");
    EXPECT_NE(Document().Text(), Start) << "events of one type may share it";
    events.SetText(L"OnClick", L"LOS");
    EXPECT_EQ(*Find<TEdit>(L"Edit1").OnClick.MethodName(), L"LOS");
    events.SetText(L"OnClick", L"");
    EXPECT_EQ(Document().Text(), Start);
}

TEST_F(EditFailuresTest, MethodsAndComponentsHaveDifferentNames) {
    TPropertyList events(Document(), TPropertyList::TKind::Events);
    Choose({L"Edit1"});
    events.Refresh();
    EXPECT_THROW(events.SetText(L"OnClick", L"button1"), EConvertError);
    EXPECT_THROW(events.SetText(L"OnClick", L"Form1"), EConvertError);
    EXPECT_THROW(Rename(Document(), Find(L"Edit1"), L"LOS"), EComponentError);
    EXPECT_EQ(Document().Text(), Start);
    EXPECT_EQ(Find(L"Edit1").GetName(), L"Edit1");
}

TEST_F(EditFailuresTest, AFileWhereTheyHaveTheSameNameStaysAsItIs) {
    Begin(L"object Los: TButton Left = 8 Top = 8 OnClick = Los end");
    const std::string text = Document().Text();
    EXPECT_NE(text.find("object Los: TButton"), std::string::npos) << text;
    EXPECT_NE(text.find("OnClick = Los"), std::string::npos) << text;
    EXPECT_TRUE(Document().Form().Problems().empty());
}

TEST_F(EditFailuresTest, PastedNamesDifferFromAllOthersAndEachOther) {
    PasteText(Document(),
              L"object Edit1: TEdit end object Edit1: TEdit end object EDIT2: TEdit end object Form1: TEdit "
              L"end object TEdit end",
              Document().Root(), 0);
    std::vector<String> names = Document().Selection().Names();
    EXPECT_EQ(names, (std::vector<String>{L"Edit2", L"Edit3", L"Edit4", L"Edit5", L"Edit6"}));
    EXPECT_TRUE(Document().Form().Problems().empty());
    Document().Undo();
    EXPECT_EQ(Document().Text(), Start);
}

TEST_F(EditFailuresTest, WhatAnotherFormInheritsIsTheFormsOwnWhenPasted) {
    PasteText(Document(), L"inherited Button9: TButton Left = 90 Caption = 'X' end", Document().Root(), 0);
    EXPECT_NE(Document().Text().find("  object Button9: TButton\r\n"), std::string::npos)
        << Document().Text();
    EXPECT_TRUE(Document().Form().Problems().empty());
}

}  // namespace
}  // namespace designer
