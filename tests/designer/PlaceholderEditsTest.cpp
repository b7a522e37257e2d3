// Edits of forms that hold objects of unknown classes: nothing of these gets lost.

#include "designer/inspector/PropertyList.h"
#include "designer/model/Clipping.h"
#include "designer/model/Placing.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/designer/DesignFixture.h"

namespace designer {
namespace {

constexpr wchar_t Form[] =
    L"object Edit1: TEdit Left = 8 Top = 8 Width = 80 Height = 21 end\n"
    L"object Label1: TLabel Left = 8 Top = 40 Width = 50 Height = 13 Caption = 'x' FocusControl = Fremd1 "
    L"end\n"
    L"object Fremd1: TNirgends Farbe = clRed Ziel = Edit1 Ziele = (Edit1.Innen 'Edit1')\n"
    L"  Spalten = < item Feld = Edit1 end >\n"
    L"  object Edit7: TEdit Ziel = Edit1 OnClick = Edit1 end\n"
    L"end\n"
    L"object Panel1: TPanel Left = 120 Top = 80 Width = 160 Height = 100\n"
    L"  object Fremd2: TNirgends Tag = 3 end\n"
    L"end";

class PlaceholderEditsTest : public DesignTest {
protected:
    void SetUp() override {
        DesignTest::SetUp();
        Begin(Form);
        Start = Document().Text();
    }
    [[nodiscard]] bool TextHas(const char* part) { return Document().Text().find(part) != std::string::npos; }
    void UndoAll() {
        while (Document().History().CanUndo())
            Document().Undo();
    }
    std::string Start;
};

TEST_F(PlaceholderEditsTest, ATagIsShownAndWritten) {
    TPropertyList list(Document(), TPropertyList::TKind::Properties);
    Choose({L"Fremd2"});
    list.Refresh();
    ASSERT_TRUE(list.Find(L"Tag"));
    EXPECT_EQ(list.Find(L"Tag")->Text, L"3");
    EXPECT_FALSE(list.Find(L"Tag")->IsDefault);
    list.SetText(L"Tag", L"4");
    EXPECT_TRUE(TextHas("object Fremd2: TNirgends\r\n      Tag = 4\r\n")) << Document().Text();

    Choose({L"Fremd1", L"Edit1"});
    list.Refresh();
    list.SetText(L"Tag", L"12");
    EXPECT_TRUE(TextHas("    Tag = 12\r\n    object Edit7")) << Document().Text();
    EXPECT_EQ(Find(L"Edit1").GetTag(), 12);
    const std::string end = Document().Text();
    UndoAll();
    EXPECT_EQ(Document().Text(), Start);
    Document().Redo();
    Document().Redo();
    EXPECT_EQ(Document().Text(), end);
}

TEST_F(PlaceholderEditsTest, ReferencesToARenamedOneFollow) {
    Rename(Document(), Find(L"Fremd1"), L"Anders");
    EXPECT_TRUE(TextHas("FocusControl = Anders\r\n")) << Document().Text();
    EXPECT_TRUE(TextHas("object Anders: TNirgends"));
    Document().Undo();
    EXPECT_EQ(Document().Text(), Start);
    TPropertyList list(Document(), TPropertyList::TKind::Properties);
    Choose({L"Fremd1"});
    list.Refresh();
    list.SetText(L"Name", L"Anders");
    EXPECT_TRUE(TextHas("FocusControl = Anders\r\n")) << "by the inspector too";
}

TEST_F(PlaceholderEditsTest, ReferencesWithinOneFollowToo) {
    Rename(Document(), Find(L"Edit1"), L"NameEdit");
    EXPECT_TRUE(TextHas("    Ziel = NameEdit\r\n")) << Document().Text();
    EXPECT_TRUE(TextHas("      NameEdit.Innen\r\n      'Edit1')"));
    EXPECT_TRUE(TextHas("        Feld = NameEdit\r\n"));
    EXPECT_TRUE(TextHas("      Ziel = NameEdit\r\n"));
    EXPECT_TRUE(TextHas("OnClick = Edit1")) << "the class of Edit7 says that this is a method";
    EXPECT_TRUE(TextHas("Farbe = clRed"));
    Document().Undo();
    EXPECT_EQ(Document().Text(), Start);
}

TEST_F(PlaceholderEditsTest, ReferencesToADeletedOneGoAndComeBack) {
    Choose({L"Fremd1"});
    DeleteSelection(Document());
    EXPECT_FALSE(TextHas("Fremd1")) << Document().Text();
    Document().Undo();
    EXPECT_EQ(Document().Text(), Start);
    Document().Redo();
    EXPECT_FALSE(TextHas("Fremd1"));
}

TEST_F(PlaceholderEditsTest, WhatStandsInADeletedComponentGoesWithIt) {
    Choose({L"Panel1"});
    DeleteSelection(Document());
    EXPECT_FALSE(Document().Root().FindComponent(L"Fremd2"));
    Rename(Document(), Find(L"Edit1"), L"Fremd2");
    EXPECT_TRUE(TextHas("object Fremd2: TEdit")) << "its name is free";
    UndoAll();
    EXPECT_EQ(Document().Text(), Start);
    EXPECT_EQ(Find(L"Fremd2").GetParentComponent(), &Find(L"Panel1"));
}

TEST_F(PlaceholderEditsTest, NamesWithinOneAreTaken) {
    EXPECT_THROW(Rename(Document(), Find(L"Edit1"), L"Edit7"), EComponentError);
    EXPECT_EQ(Document().Text(), Start);
    for (int number = 2; number < 7; ++number)
        Place(Document(), TEdit::StaticClass(), Document().Root(), TRect::OfSize(0, 0, 50, 21));
    const TComponent* next =
        Place(Document(), TEdit::StaticClass(), Document().Root(), TRect::OfSize(0, 0, 50, 21));
    EXPECT_EQ(next->GetName(), L"Edit8");
}

TEST_F(PlaceholderEditsTest, CopiesReferToCopies) {
    Choose({L"Edit1", L"Fremd1"});
    const String text = CopySelection(Document());
    PasteText(Document(), text, Find(L"Panel1"), 8);
    EXPECT_TRUE(TextHas("    object Nirgends1: TNirgends\r\n")) << Document().Text();
    EXPECT_TRUE(TextHas("      Ziel = Edit2\r\n"));
    EXPECT_TRUE(TextHas("          Feld = Edit2\r\n"));
    EXPECT_EQ(Document().Selection().Items().size(), 2u);
    EXPECT_EQ(Document().Selection().Items()[1]->GetParentComponent(), &Find(L"Panel1"));
    Document().Undo();
    EXPECT_EQ(Document().Text(), Start);
}

TEST_F(PlaceholderEditsTest, AnEmptyClipboardChangesNothing) {
    Choose({L"Edit1"});
    PasteText(Document(), L"", Document().Root(), 8);
    EXPECT_EQ(Document().Selection().Leader(), &Find(L"Edit1"));
    EXPECT_FALSE(Document().History().CanUndo());
}

class InheritedPlaceholderTest : public DesignTest {
protected:
    /// Begins with a form that inherits one with this in it.
    void BeginInherited(const String& base, const String& derived) {
        std::vector<TFormDocument> ancestors;
        ancestors.push_back(ParseFormText(L"object Base: TBase\n" + base + L"\nend"));
        Document().Begin(ParseFormText(L"inherited Form1: TForm1\n" + derived + L"\nend"),
                         std::move(ancestors));
    }
    [[nodiscard]] bool TextHas(const char* part) { return Document().Text().find(part) != std::string::npos; }
};

constexpr wchar_t BaseWithUnknown[] =
    L"object Button1: TButton Left = 8 Top = 8 Wolke = 7 end\n"
    L"object Fremd1: TNirgends Left = 40 Top = 8 object Innen1: TAuchNicht Zahl = 1 end end";

TEST_F(InheritedPlaceholderTest, IsShownAndNotWritten) {
    BeginInherited(BaseWithUnknown, L"");
    EXPECT_EQ(Document().Text(), "inherited Form1: TForm1\r\nend\r\n");
    ASSERT_TRUE(Document().Root().FindComponent(L"Fremd1"));
    EXPECT_EQ(DesignPlace(Find(L"Fremd1")), TPoint(40, 8));
    EXPECT_FALSE(Document().Form().Problems().empty());
    Choose({L"Fremd1"});
    EXPECT_THROW(DeleteSelection(Document()), EInvalidOperation);
    EXPECT_THROW(Rename(Document(), Find(L"Fremd1"), L"Anders"), EInvalidOperation);
    EXPECT_EQ(Document().Text(), "inherited Form1: TForm1\r\nend\r\n");
}

TEST_F(InheritedPlaceholderTest, WhatChangesInItIsWritten) {
    BeginInherited(BaseWithUnknown, L"");
    Document().Edit(L"Verschieben", [&] { SetDesignPlace(Find(L"Fremd1"), {48, 8}); });
    EXPECT_EQ(
        Document().Text(),
        "inherited Form1: TForm1\r\n  inherited Fremd1: TNirgends\r\n    Left = 48\r\n  end\r\nend\r\n");
    Document().Undo();
    EXPECT_EQ(Document().Text(), "inherited Form1: TForm1\r\nend\r\n");
    EXPECT_EQ(DesignPlace(Find(L"Fremd1")), TPoint(40, 8));
}

TEST_F(InheritedPlaceholderTest, WhatTheFileSaysAboutItStays) {
    BeginInherited(
        BaseWithUnknown,
        L"inherited Fremd1: TNirgends Top = 16 Neu = 'x' inherited Innen1: TAuchNicht Zahl = 2 end "
        L"object Innen2: TAuchNicht end end\n"
        L"object Button2: TButton Left = 80 Top = 8 end");
    const std::string text = Document().Text();
    EXPECT_EQ(
        text,
        "inherited Form1: TForm1\r\n  inherited Fremd1: TNirgends\r\n    Top = 16\r\n    Neu = 'x'\r\n"
        "    inherited Innen1: TAuchNicht\r\n      Zahl = 2\r\n    end\r\n    object Innen2: TAuchNicht\r\n"
        "    end\r\n  end\r\n  object Button2: TButton\r\n    Left = 80\r\n    Top = 8\r\n"
        "    Width = 75\r\n    Height = 25\r\n    TabOrder = 1\r\n    Caption = ''\r\n  end\r\nend\r\n");
    EXPECT_EQ(DesignPlace(Find(L"Fremd1")), TPoint(40, 16));
    EXPECT_EQ(Document().Root().GetComponentCount(), 3);
    Document().SetText(L"the same", text);
    EXPECT_EQ(Document().Text(), text);
}

TEST_F(InheritedPlaceholderTest, CopiesHoldWhatCouldNotBeRead) {
    BeginInherited(BaseWithUnknown, L"");
    Choose({L"Button1", L"Fremd1"});
    PasteText(Document(), CopySelection(Document()), Document().Root(), 8);
    EXPECT_TRUE(TextHas("    Wolke = 7\r\n")) << Document().Text();
    EXPECT_TRUE(TextHas("  object Nirgends1: TNirgends\r\n"));
    EXPECT_TRUE(TextHas("    object AuchNicht1: TAuchNicht\r\n      Zahl = 1\r\n"));
}

}  // namespace
}  // namespace designer
