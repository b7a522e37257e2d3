#include "designer/inspector/PropertyList.h"

#include <algorithm>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "tests/designer/DesignFixture.h"

namespace designer {
namespace {

class PropertyListTest : public DesignTest {
protected:
    void SetUp() override {
        DesignTest::SetUp();
        Begin(
            L"object Button1: TButton Left = 8 Top = 8 Width = 75 Height = 25 Caption = 'One' OnClick = "
            L"OneClick end\n"
            L"object Button2: TButton Left = 100 Top = 8 Width = 60 Height = 25 Caption = 'Two' end\n"
            L"object Edit1: TEdit Left = 8 Top = 50 Width = 75 Height = 21 end\n"
            L"object Label1: TLabel Left = 8 Top = 80 Width = 75 Height = 13 end\n");
        Properties = std::make_unique<TPropertyList>(Document(), TPropertyList::TKind::Properties);
        Events = std::make_unique<TPropertyList>(Document(), TPropertyList::TKind::Events);
    }
    void TearDown() override {
        Properties.reset();
        Events.reset();
        DesignTest::TearDown();
    }
    const TPropertyLine& Line(const wchar_t* path) {
        Properties->Refresh();
        const TPropertyLine* line = Properties->Find(path);
        if (!line) throw EInvalidOperation(String(L"no line ") + path);
        return *line;
    }

    std::unique_ptr<TPropertyList> Properties;
    std::unique_ptr<TPropertyList> Events;
};

TEST_F(PropertyListTest, ShowsThePublishedPropertiesInOrderOfTheirNames) {
    Choose({L"Button1"});
    Properties->Refresh();
    const auto& lines = Properties->Lines();
    EXPECT_TRUE(std::ranges::is_sorted(
        lines, [](const auto& a, const auto& b) { return CompareText(a.Name, b.Name) < 0; }));
    EXPECT_EQ(lines.size(), static_cast<std::size_t>(std::ranges::count_if(
                                TButton::StaticClass().AllProperties(),
                                [](const auto* row) { return row->Kind() != TPropertyKind::Event; })));
    EXPECT_EQ(Line(L"Caption").Text, L"One");
    EXPECT_EQ(Line(L"Enabled").Text, L"True");
    EXPECT_EQ(Line(L"Anchors").Text, L"[akLeft,akTop]");
    EXPECT_EQ(Line(L"Font").Text, L"(TFont)");
    EXPECT_EQ(Properties->Find(L"OnClick"), nullptr);
}

TEST_F(PropertyListTest, PropertiesThatOnlyShareANameAreNotShownTogether) {
    Begin(
        L"object Edit1: TQV7SkinEdit Left = 8 Top = 8 end\n"
        L"object Menu1: TQV7SkinPopupMenu end\n"
        L"object Edit2: TEdit Left = 8 Top = 80 end\n"
        L"object Button1: TButton Left = 8 Top = 50 Width = 75 Height = 25 end\n");
    Choose({L"Edit1", L"Menu1"});
    Properties->Refresh();
    EXPECT_FALSE(Properties->Find(L"Alignment")) << "of a text and of a menu";
    Properties->SetText(L"Tag", L"5");
    EXPECT_EQ(Find(L"Menu1").GetTag(), 5);
    Choose({L"Edit2", L"Button1"});
    Properties->SetExpanded(L"Font", true);
    Properties->SetText(L"Font.Name", L"Arial");
    EXPECT_EQ(Find<TButton>(L"Button1").GetFont().GetName(), L"Arial");
    EXPECT_EQ(Line(L"Font.Name").Text, L"Arial");
}

TEST_F(PropertyListTest, MarksWhatDiffersFromANewComponent) {
    Choose({L"Button2"});
    EXPECT_TRUE(Line(L"Enabled").IsDefault);
    EXPECT_TRUE(Line(L"Height").IsDefault) << "a new button is 25 pixels high";
    EXPECT_FALSE(Line(L"Width").IsDefault);
    EXPECT_FALSE(Line(L"Caption").IsDefault);
    EXPECT_TRUE(Line(L"Font").IsDefault);
    Properties->SetExpanded(L"Font", true);
    Properties->SetText(L"Font.Size", L"20");
    EXPECT_FALSE(Line(L"Font").IsDefault);
    EXPECT_FALSE(Line(L"Font.Size").IsDefault);
    EXPECT_TRUE(Line(L"Font.Name").IsDefault);
    EXPECT_EQ(Find<TButton>(L"Button2").GetFont().GetSize(), 20);
}

TEST_F(PropertyListTest, SeveralComponentsShowWhatTheyHaveInCommon) {
    Choose({L"Button1", L"Button2"});
    EXPECT_TRUE(Line(L"Width").IsMixed);
    EXPECT_EQ(Line(L"Width").Text, L"");
    EXPECT_FALSE(Line(L"Height").IsMixed);
    EXPECT_EQ(Properties->Find(L"Name"), nullptr);
    Properties->SetText(L"Width", L"90");
    EXPECT_EQ(Find<TButton>(L"Button1").GetWidth(), 90);
    EXPECT_EQ(Find<TButton>(L"Button2").GetWidth(), 90);
    EXPECT_EQ(Document().History().Count(), 1u) << "one edit";

    Choose({L"Button1", L"Label1"});
    Properties->Refresh();
    EXPECT_NE(Properties->Find(L"Caption"), nullptr);
    EXPECT_EQ(Properties->Find(L"TabOrder"), nullptr) << "labels have none";
}

TEST_F(PropertyListTest, WithoutAChoiceTheFormIsShown) {
    Document().Root().SetBounds(16, 16, 400, 300);
    EXPECT_EQ(Line(L"Name").Text, L"Form1");
    Properties->SetText(L"Left", L"250");
    EXPECT_EQ(Line(L"Left").Text, L"250");
    EXPECT_EQ(Document().Root().GetLeft(), 16) << "that is where the designer shows it";
    EXPECT_NE(Document().Text().find("Left = 250\r\n"), std::string::npos);
    Properties->SetText(L"Name", L"MainForm");
    EXPECT_EQ(Document().Root().GetName(), L"MainForm");
}

struct TValueCase {
    const wchar_t* Path;
    const wchar_t* Typed;
    const wchar_t* Shown;
};
class PropertyListValues : public PropertyListTest, public testing::WithParamInterface<TValueCase> {};

TEST_P(PropertyListValues, ATypedValueIsSetAndShown) {
    Choose({L"Label1"});
    Properties->SetExpanded(L"Font", true);
    Properties->SetExpanded(L"Font.Style", true);
    Properties->SetText(GetParam().Path, GetParam().Typed);
    EXPECT_EQ(Line(GetParam().Path).Text, GetParam().Shown);
    Document().Undo();
    EXPECT_NE(Line(GetParam().Path).Text, GetParam().Shown);
}

INSTANTIATE_TEST_SUITE_P(Kinds, PropertyListValues,
                         testing::Values(TValueCase{L"Left", L" 12", L"12"},
                                         TValueCase{L"Enabled", L"false", L"False"},
                                         TValueCase{L"Align", L"altop", L"alTop"},
                                         TValueCase{L"Anchors", L"akRight, aktop", L"[akTop,akRight]"},
                                         TValueCase{L"Anchors", L"[]", L"[]"},
                                         TValueCase{L"Caption", L"Grüße, Welt", L"Grüße, Welt"},
                                         TValueCase{L"Color", L"CLRED", L"clRed"},
                                         TValueCase{L"Color", L"$00D78112", L"$00D78112"},
                                         TValueCase{L"Cursor", L"crHandPoint", L"crHandPoint"},
                                         TValueCase{L"FocusControl", L"edit1", L"Edit1"},
                                         TValueCase{L"Font.Name", L"Arial", L"Arial"},
                                         TValueCase{L"Font.Style.fsBold", L"True", L"True"}));

struct TBadCase {
    const wchar_t* Path;
    const wchar_t* Typed;
    const char* Message;
};
class PropertyListErrors : public PropertyListTest, public testing::WithParamInterface<TBadCase> {};

TEST_P(PropertyListErrors, AValueThatCannotBeIsRefusedAndChangesNothing) {
    Choose({L"Label1"});
    Properties->SetExpanded(L"Font", true);
    Properties->SetExpanded(L"Font.Style", true);
    Properties->Refresh();
    const std::string before = Document().Text();
    try {
        Properties->SetText(GetParam().Path, GetParam().Typed);
        ADD_FAILURE() << "not refused";
    } catch (const Exception& error) {
        EXPECT_STREQ(error.what(), GetParam().Message);
    }
    EXPECT_EQ(Document().Text(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, PropertyListErrors,
    testing::Values(TBadCase{L"Left", L"wide", "'wide' ist keine ganze Zahl"},
                    TBadCase{L"Enabled", L"ja", "'ja' ist weder True noch False"},
                    TBadCase{L"Align", L"alMiddle", "'alMiddle' ist kein Wert von Align"},
                    TBadCase{L"Anchors", L"akUp", "'akUp' ist kein Wert von Anchors"},
                    TBadCase{L"FocusControl", L"Nobody", "Es gibt keine Komponente 'Nobody'"},
                    TBadCase{L"FocusControl", L"Label1", "Label1 ist kein TWinControl"},
                    TBadCase{L"Font.Style.fsBold", L"1", "'1' ist weder True noch False"},
                    TBadCase{L"Font", L"Arial", "Font hat keinen Wert als Text"},
                    TBadCase{L"Name", L"1st", "'1st' is not a valid component name"},
                    TBadCase{L"Name", L"Edit1", "A component named Edit1 already exists"}));

TEST_F(PropertyListTest, AResetGivesTheValueOfANewComponent) {
    Choose({L"Button1"});
    Properties->SetExpanded(L"Font", true);
    Properties->SetText(L"Enabled", L"False");
    Properties->SetText(L"Width", L"200");
    Properties->SetText(L"Font.Size", L"30");
    Properties->Reset(L"Enabled");
    Properties->Reset(L"Width");
    Properties->Reset(L"Font.Size");
    EXPECT_TRUE(Line(L"Enabled").IsDefault);
    EXPECT_EQ(Line(L"Width").Text, L"75");
    EXPECT_TRUE(Line(L"Font.Size").IsDefault);
}

TEST_F(PropertyListTest, EventsShowAndTakeNamesOfMethods) {
    Choose({L"Button1"});
    Events->Refresh();
    ASSERT_NE(Events->Find(L"OnClick"), nullptr);
    EXPECT_EQ(Events->Find(L"OnClick")->Text, L"OneClick");
    EXPECT_EQ(Events->Find(L"Caption"), nullptr);
    Choose({L"Button2"});
    Events->Refresh();
    EXPECT_EQ(Events->Choices(*Events->Find(L"OnClick")), std::vector<String>{L"OneClick"});
    EXPECT_TRUE(Events->Choices(*Events->Find(L"OnKeyPress")).empty()) << "no method of that kind is known";
    Events->SetText(L"OnClick", L"TwoClick");
    EXPECT_NE(Document().Text().find("OnClick = TwoClick"), std::string::npos);
    EXPECT_THROW(Events->SetText(L"OnClick", L"two clicks"), EConvertError);
    Events->SetText(L"OnClick", L"");
    EXPECT_EQ(Document().Text().find("TwoClick"), std::string::npos);
}

TEST_F(PropertyListTest, OffersWhatThereIsToChooseFrom) {
    Choose({L"Label1"});
    Properties->Refresh();
    EXPECT_EQ(Properties->Choices(Line(L"FocusControl")),
              (std::vector<String>{L"Button1", L"Button2", L"Edit1"}));
    EXPECT_EQ(Properties->Choices(Line(L"Enabled")), (std::vector<String>{L"False", L"True"}));
    const auto colors = Properties->Choices(Line(L"Color"));
    EXPECT_NE(std::ranges::find(colors, L"clBtnFace"), colors.end());
    EXPECT_TRUE(Properties->Choices(Line(L"Caption")).empty());
}

}  // namespace
}  // namespace designer
