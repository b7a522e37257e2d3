#include "designer/model/DesignDocument.h"

#include <random>

#include "designer/model/Arranging.h"
#include "designer/model/Clipping.h"
#include "designer/model/Placing.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "tests/designer/DesignFixture.h"

namespace designer {
namespace {

constexpr wchar_t TwoButtons[] =
    L"object Button1: TButton Left = 8 Top = 8 Width = 75 Height = 25 Caption = 'One' OnClick = ButtonClick "
    L"end\n"
    L"object Button2: TButton Left = 100 Top = 8 Width = 75 Height = 25 Caption = 'Two' end\n";

class DesignDocumentTest : public DesignTest {
protected:
    /// Counts how often all components are made anew.
    void CountRebuilds() {
        Document().OnRebuilt = [this] { ++Rebuilds; };
    }
    [[nodiscard]] bool TextHas(const char* part) { return Document().Text().find(part) != std::string::npos; }
    int Rebuilds = 0;
};

TEST_F(DesignDocumentTest, BeginsWithAnEmptyForm) {
    EXPECT_EQ(Document().Root().GetName(), L"Form1");
    EXPECT_EQ(Document().Form().FormClassName(), L"TForm1");
    EXPECT_TRUE(TextHas("object Form1: TForm1\r\n"));
    EXPECT_FALSE(Document().IsModified());
    EXPECT_TRUE(Document().Root().IsInState(csDesigning));
}

TEST_F(DesignDocumentTest, ReadingAndWritingAFileGivesTheSameText) {
    Begin(TwoButtons);
    const std::string text = Document().Text();
    EXPECT_TRUE(TextHas("OnClick = ButtonClick")) << text;
    EXPECT_TRUE(Find(L"Button1").IsInState(csDesigning));
    Document().SetText(L"the same", text);
    EXPECT_EQ(Document().Text(), text);
    EXPECT_FALSE(Document().IsModified()) << "the same text is no edit";
}

TEST_F(DesignDocumentTest, AnEditOfAPropertyIsUndoneWithoutMakingComponentsAnew) {
    Begin(TwoButtons);
    CountRebuilds();
    const std::string before = Document().Text();
    auto& button = Find<TButton>(L"Button1");
    Document().Edit(L"Caption", [&] { button.SetCaption(L"Other"); });
    const std::string after = Document().Text();
    EXPECT_NE(before, after);
    EXPECT_TRUE(Document().IsModified());

    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
    EXPECT_EQ(button.GetCaption(), L"One") << "it is the same component";
    EXPECT_FALSE(Document().IsModified());
    Document().Redo();
    EXPECT_EQ(Document().Text(), after);
    EXPECT_EQ(button.GetCaption(), L"Other");
    EXPECT_EQ(Rebuilds, 0);
}

TEST_F(DesignDocumentTest, AValueThatTheFileLeavesOutComesBackToItsDefault) {
    Begin(TwoButtons);
    CountRebuilds();
    const std::string before = Document().Text();
    auto& button = Find<TButton>(L"Button1");
    Document().Edit(L"several", [&] {
        button.SetEnabled(false);
        button.SetHint(L"hint");
        button.OnDragDrop.Clear();
    });
    EXPECT_NE(Document().Text(), before);
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
    EXPECT_TRUE(button.GetEnabled());
    EXPECT_EQ(Rebuilds, 0);
}

TEST_F(DesignDocumentTest, WhatAPropertyCannotBringBackIsReadAnew) {
    Begin(TwoButtons);
    const std::string before = Document().Text();
    Document().Edit(L"Font", [&] { Find<TButton>(L"Button1").GetFont().SetSize(20); });
    EXPECT_TRUE(TextHas("Font."));
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
    EXPECT_TRUE(Find<TButton>(L"Button1").GetParentFont());
}

TEST_F(DesignDocumentTest, InsertingAndDeletingAreUndoneAndRedone) {
    Begin(L"object Panel1: TPanel Left = 8 Top = 8 Width = 200 Height = 100 end");
    CountRebuilds();
    const std::string before = Document().Text();
    auto& panel = Find<TPanel>(L"Panel1");
    TComponent* edit = Place(Document(), TEdit::StaticClass(), panel, TRect::OfSize(10, 20, 90, 21));
    EXPECT_EQ(edit->GetName(), L"Edit1");
    EXPECT_EQ(Document().Selection().Leader(), edit);
    EXPECT_EQ(static_cast<TEdit*>(edit)->GetParent(), &panel);
    const std::string after = Document().Text();

    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
    EXPECT_FALSE(Document().Root().FindComponent(L"Edit1"));
    EXPECT_TRUE(Document().Selection().IsEmpty()) << "what is gone is chosen no more";
    Document().Redo();
    EXPECT_EQ(Document().Text(), after);
    EXPECT_EQ(Find<TEdit>(L"Edit1").GetBoundsRect(), TRect::OfSize(10, 20, 90, 21));

    Choose({L"Panel1", L"Edit1"});
    DeleteSelection(Document());
    EXPECT_EQ(Document().Root().GetComponentCount(), 0);
    Document().Undo();
    EXPECT_EQ(Document().Text(), after);
    EXPECT_EQ(Find<TEdit>(L"Edit1").GetParent(), &Find(L"Panel1"));
    EXPECT_EQ(Rebuilds, 0);
}

TEST_F(DesignDocumentTest, AReferenceToADeletedComponentComesBackWithIt) {
    Begin(
        L"object Label1: TLabel Left = 8 Top = 8 Width = 50 Height = 13 Caption = 'x' FocusControl = Edit1 "
        L"end\n"
        L"object Edit1: TEdit Left = 80 Top = 8 Width = 75 Height = 21 end");
    const std::string before = Document().Text();
    Choose({L"Edit1"});
    DeleteSelection(Document());
    EXPECT_FALSE(TextHas("FocusControl"));
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
    EXPECT_EQ(Find<TLabel>(L"Label1").GetFocusControl(), &Find(L"Edit1"));
}

TEST_F(DesignDocumentTest, AFailedEditLeavesEverythingAsItWas) {
    Begin(TwoButtons);
    const std::string before = Document().Text();
    EXPECT_THROW(Document().Edit(L"fails",
                                 [&] {
                                     Find<TButton>(L"Button1").SetCaption(L"half done");
                                     delete &Find(L"Button2");
                                     throw EInvalidOperation(L"in the middle");
                                 }),
                 EInvalidOperation);
    EXPECT_EQ(Document().Text(), before);
    EXPECT_EQ(Find<TButton>(L"Button1").GetCaption(), L"One");
    EXPECT_EQ(Find<TButton>(L"Button2").GetCaption(), L"Two");
    EXPECT_FALSE(Document().History().CanUndo());
}

TEST_F(DesignDocumentTest, EditsWithinAnEditBelongToIt) {
    Begin(TwoButtons);
    const std::string before = Document().Text();
    Document().Edit(L"both", [&] {
        Document().Edit(L"inner", [&] { Find<TButton>(L"Button1").SetCaption(L"A"); });
        Document().Edit(L"inner", [&] { Find<TButton>(L"Button2").SetCaption(L"B"); });
    });
    EXPECT_EQ(Document().History().Count(), 1u);
    EXPECT_EQ(Document().History().UndoLabel(), L"both");
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
}

TEST_F(DesignDocumentTest, RenamingIsRefusedForATakenNameAndUndoable) {
    Begin(TwoButtons);
    EXPECT_THROW(Rename(Document(), Find(L"Button1"), L"Button2"), EComponentError);
    EXPECT_THROW(Rename(Document(), Find(L"Button1"), L"no name"), EComponentError);
    EXPECT_THROW(Rename(Document(), Find(L"Button1"), L""), EComponentError);
    EXPECT_FALSE(Document().IsModified());
    Rename(Document(), Find(L"Button1"), L"OkButton");
    EXPECT_TRUE(TextHas("object OkButton: TButton"));
    Document().Undo();
    EXPECT_TRUE(TextHas("object Button1: TButton"));
    Rename(Document(), Document().Root(), L"MainForm");
    EXPECT_TRUE(TextHas("object MainForm: TForm1"));
    Document().Undo();
    EXPECT_EQ(Document().Root().GetName(), L"Form1");
}

TEST_F(DesignDocumentTest, KeepsWhatItCannotRead) {
    Begin(
        L"Strange = 5\n"
        L"object Gadget1: TGadget Left = 8 Size = <item Value = 1 end> end\n"
        L"object Button1: TButton Left = 8 Top = 8 Width = 75 Height = 25 Curious = [a, b] end");
    EXPECT_EQ(Document().Form().Problems().size(), 3u);
    const std::string before = Document().Text();
    EXPECT_TRUE(TextHas("Strange = 5") && TextHas("TGadget") && TextHas("Curious = [a, b]")) << before;
    Document().Edit(L"Caption", [&] { Find<TButton>(L"Button1").SetCaption(L"new"); });
    EXPECT_TRUE(TextHas("TGadget") && TextHas("Curious = [a, b]"));
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
    Choose({L"Button1"});
    DeleteSelection(Document());
    EXPECT_FALSE(TextHas("Curious"));
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);
}

TEST_F(DesignDocumentTest, KeepsThePlaceOfTheFormOnTheScreen) {
    Begin(L"Left = 300 Top = 200 ClientWidth = 400 ClientHeight = 250");
    EXPECT_EQ(Document().Form().Place(), TPoint(300, 200));
    Document().Root().SetBounds(16, 16, 420, 260);
    EXPECT_TRUE(TextHas("Left = 300\r\n") && TextHas("Top = 200\r\n"));
    const std::string moved = [&] {
        std::string text = Document().Text();
        return text.replace(text.find("Left = 300"), 10, "Left = 310");
    }();
    Document().SetText(L"text", moved);
    EXPECT_EQ(Document().Form().Place(), TPoint(310, 200));
    EXPECT_EQ(Document().Root().GetLeft(), 16) << "the form stays where the designer shows it";
}

TEST_F(DesignDocumentTest, ATextThatCannotBeParsedChangesNothing) {
    Begin(TwoButtons);
    const std::string before = Document().Text();
    EXPECT_THROW(Document().SetText(L"text", "object Form1: TForm1\r\n  Left = \r\nend\r\n"), EFormError);
    EXPECT_EQ(Document().Text(), before);
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(DesignDocumentTest, PastedComponentsGetFreeNamesAndKeepTheirReferences) {
    Begin(
        L"object Panel1: TPanel Left = 8 Top = 8 Width = 200 Height = 100\n"
        L"  object Label1: TLabel Left = 8 Top = 8 Width = 50 Height = 13 Caption = 'Label1' FocusControl = "
        L"Edit1 end\n"
        L"  object Edit1: TEdit Left = 80 Top = 8 Width = 75 Height = 21 end\n"
        L"end");
    Choose({L"Panel1", L"Edit1"});
    const String text = CopySelection(Document());
    EXPECT_EQ(text.find(L"object Edit1"), text.rfind(L"object Edit1"))
        << "what stands in Panel1 comes with it";
    const std::string before = Document().Text();

    PasteText(Document(), text, Document().Root(), 8);
    EXPECT_EQ(Find<TPanel>(L"Panel2").GetBoundsRect(), TRect::OfSize(16, 16, 200, 100));
    EXPECT_EQ(Find<TLabel>(L"Label2").GetFocusControl(), &Find(L"Edit2"));
    EXPECT_EQ(Find<TLabel>(L"Label2").GetCaption(), L"Label2") << "a caption that was the name follows it";
    EXPECT_EQ(Document().Selection().Leader(), &Find(L"Panel2"));
    Document().Undo();
    EXPECT_EQ(Document().Text(), before);

    PasteText(Document(), text, Find(L"Panel1"), 8);
    EXPECT_EQ(Find<TPanel>(L"Panel2").GetParent(), &Find(L"Panel1"));
    EXPECT_EQ(Find<TPanel>(L"Panel2").GetLeft(), 8 + 8) << "not on Label1, which has that corner";
    EXPECT_THROW(PasteText(Document(), L"no objects", Document().Root(), 8), EFormError);
}

TEST_F(DesignDocumentTest, ComponentsWithoutASurfaceHaveAPlace) {
    TComponent* timer =
        Place(Document(), TTimer::StaticClass(), Document().Root(), TRect::OfSize(40, 300, 0, 0));
    EXPECT_EQ(DesignPlace(*timer), TPoint(40, 300));
    EXPECT_TRUE(TextHas("object Timer1: TTimer\r\n    Left = 40\r\n    Top = 300\r\n")) << Document().Text();
    MoveSelection(Document(), -50, 5);
    EXPECT_EQ(DesignPlace(*timer), TPoint(-10, 305));
    Document().Undo();
    EXPECT_EQ(DesignPlace(Find(L"Timer1")), TPoint(40, 300));
}

// Random edits of every kind, all of them undone and redone.
class RandomEdits {
public:
    explicit RandomEdits(TDesignDocument& document) : FDocument(document) {}

    void Step() {
        switch (Below(12)) {
            case 0:
            case 1:
                return Insert();
            case 2:
                if (FDocument.Root().GetComponentCount() < 12) return Insert();
                return ChooseSome(), DeleteSelection(FDocument);
            case 3:
                return ChooseSome(), MoveSelection(FDocument, Below(41) - 20, Below(41) - 20);
            case 4:
                return ChooseSome(), GrowSelection(FDocument, Below(21) - 10, Below(21) - 10);
            case 5:
                return ChooseSome(), AlignSelection(FDocument, static_cast<TAlignment>(Below(6)));
            case 6:
                return ChooseSome(), DistributeSelection(FDocument, static_cast<TDirection>(Below(2)));
            case 7:
                return ChooseSome(),
                       Below(2) ? BringSelectionToFront(FDocument) : SendSelectionToBack(FDocument);
            case 8:
                return Copy();
            case 9:
                if (TComponent* one = Any()) Rename(FDocument, *one, Format(L"Renamed%d", ++FNames));
                return;
            default:
                return SetSomething();
        }
    }

private:
    int Below(int limit) { return static_cast<int>(FRandom() % static_cast<unsigned>(limit)); }
    TComponent* Any() {
        const int count = FDocument.Root().GetComponentCount();
        return count == 0 ? nullptr : FDocument.Root().GetComponent(Below(count));
    }
    void ChooseSome() {
        std::vector<TComponent*> items;
        for (int i = Below(3); i >= 0; --i)
            if (TComponent* one = Any(); one && std::ranges::find(items, one) == items.end())
                items.push_back(one);
        FDocument.Selection().Set(items);
    }
    TWinControl& AnyParent() {
        auto* control = dynamic_cast<TControl*>(Any());
        return control ? AcceptingParent(*control) : FDocument.Root();
    }
    void Insert() {
        const TMetaClass* classes[] = {&TButton::StaticClass(), &TEdit::StaticClass(), &TLabel::StaticClass(),
                                       &TPanel::StaticClass(), &TTimer::StaticClass()};
        Place(FDocument, *classes[Below(5)], AnyParent(),
              TRect::OfSize(Below(300), Below(200), Below(2) * (5 + Below(90)), 10 + Below(40)));
    }
    void Copy() {
        ChooseSome();
        if (FDocument.Root().GetComponentCount() > 40) return;
        PasteText(FDocument, CopySelection(FDocument), AnyParent(), 8);
    }
    void SetSomething() {
        FDocument.Edit(L"Set", [&] {
            auto* control = dynamic_cast<TControl*>(Any());
            if (!control) return;
            switch (Below(7)) {
                case 0:
                    return control->SetCaption(Format(L"Text %d", Below(1000)));
                case 1:
                    return control->SetEnabled(!control->GetEnabled());
                case 2:
                    return control->SetAlign(static_cast<TAlign>(Below(6)));
                case 3:
                    return control->GetFont().SetSize(6 + Below(10));
                case 4:
                    return control->SetParentFont(true);
                case 5:
                    return control->SetAnchors(TAnchors::FromBits(static_cast<unsigned>(Below(16))));
                default:
                    return control->OnClick.SetMethodName(Below(2) ? L"Handler" : L"");
            }
        });
    }

    TDesignDocument& FDocument;
    std::mt19937 FRandom{20'26};
    int FNames = 0;
};

void EditUndoAndRedoAll(int count) {
    TDesignDocument document;
    const std::string first = document.Text();
    RandomEdits edits(document);
    for (int i = 0; i < count; ++i)
        edits.Step();
    const std::string last = document.Text();
    ASSERT_NE(first, last);
    while (document.History().CanUndo())
        document.Undo();
    EXPECT_EQ(document.Text(), first);
    EXPECT_FALSE(document.IsModified());
    while (document.History().CanRedo())
        document.Redo();
    EXPECT_EQ(document.Text(), last);
}

TEST_F(DesignDocumentTest, RandomEditsAreUndoneAndRedoneByteForByte) {
    Close();
    // The system keeps what it made for the first windows and fonts of their kind.
    EditUndoAndRedoAll(300);
    TakeSnapshot();
    EditUndoAndRedoAll(300);
}

}  // namespace
}  // namespace designer
