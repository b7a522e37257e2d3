// Random edits of every kind, undone and redone as a whole. The seed is fixed: each run does the same.

#include <algorithm>
#include <random>

#include "designer/inspector/PropertyList.h"
#include "designer/model/Arranging.h"
#include "designer/model/Clipping.h"
#include "designer/model/Placing.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/designer/DesignFixture.h"

namespace designer {
namespace {

constexpr std::size_t MostComponents = 40;

class RandomEditsTest : public DesignTest {
protected:
    RandomEditsTest() { RegisterStandardClasses(); }

    void SetUp() override {
        DesignTest::SetUp();
        Begin(
            L"ClientWidth = 600 ClientHeight = 400\n"
            L"object Panel1: TPanel Left = 8 Top = 8 Width = 200 Height = 200\n"
            L"  object Edit1: TEdit Left = 8 Top = 8 Width = 80 Height = 21 end\n"
            L"end\n"
            L"object Fremd1: TNirgends Farbe = 7 end\n"
            L"object Button1: TButton Left = 300 Top = 8 Width = 75 Height = 25 OnClick = Los end");
        for (const TRegisteredPage& page : RegisteredPages())
            FClasses.insert(FClasses.end(), page.Classes.begin(), page.Classes.end());
    }

    /// Makes so many edits, undoes and redoes all of them. Looks at the components after each step of that
    /// many.
    void Run(std::size_t count, std::size_t every) {
        const std::string start = Document().Text();
        std::size_t tries = 0;
        while (Document().History().Count() < count) {
            ASSERT_LT(++tries, 10 * count) << "too many edits change nothing";
            EditOnce();
            if (HasFatalFailure()) return;
        }
        const std::string end = Document().Text();
        for (std::size_t i = 1; i <= count && !HasFailure(); ++i) {
            Document().Undo();
            if (i % every == 0) ExpectComponentsOfText();
        }
        EXPECT_FALSE(Document().History().CanUndo());
        EXPECT_EQ(Document().Text(), start);
        EXPECT_EQ(FormToText(Document().Document()), start);
        for (std::size_t i = 1; i <= count && !HasFailure(); ++i) {
            Document().Redo();
            if (i % every == 0) ExpectComponentsOfText();
        }
        EXPECT_FALSE(Document().History().CanRedo());
        EXPECT_EQ(Document().Text(), end);
        ExpectComponentsOfText();
    }

private:
    int Below(int limit) { return static_cast<int>(FRandom() % static_cast<unsigned>(limit)); }
    TDesignRoot& Root() { return Document().Root(); }
    TSelection& Selection() { return Document().Selection(); }

    /// The components are those of the text: as they were read from it, should they not write it again (a
    /// form that sizes itself around aligned controls comes to another size).
    void ExpectComponentsOfText() {
        const std::string written = FormToText(Document().Document());
        if (written == Document().Text()) return;
        TDesignDocument fresh;
        fresh.Begin(ParseFormText(FromUtf8(Document().Text())));
        EXPECT_EQ(written, fresh.Text());
    }

    /// One edit; one that is refused must leave no trace.
    void EditOnce() {
        ChooseSome();
        const std::string before = Document().Text();
        const std::size_t edits = Document().History().Count();
        try {
            AnyEdit();
        } catch (const Exception&) {
            ASSERT_EQ(Document().Text(), before);
            ASSERT_EQ(Document().History().Count(), edits);
            ExpectComponentsOfText();
        }
    }

    void ChooseSome() {
        std::vector<TComponent*> items;
        for (int i = Below(4); i > 0 && Root().GetComponentCount() > 0; --i) {
            TComponent* item = Root().GetComponent(Below(Root().GetComponentCount()));
            if (std::ranges::find(items, item) == items.end()) items.push_back(item);
        }
        Selection().Set(std::move(items));
    }

    void AnyEdit() {
        if (static_cast<std::size_t>(Root().GetComponentCount()) > MostComponents) return DeleteOne();
        switch (Below(14)) {
            case 0:
            case 1:
                return PlaceOne();
            case 2:
                return MoveSelection(Document(), Below(41) - 20, Below(41) - 20);
            case 3:
                return GrowSelection(Document(), Below(21) - 10, Below(21) - 10);
            case 4:
                return AlignSelection(Document(), static_cast<TAlignment>(Below(6)));
            case 5:
                return DistributeSelection(Document(), AnyDirection());
            case 6:
                return EqualizeSelection(Document(), AnyDirection());
            case 7:
                return CenterSelection(Document(), AnyDirection());
            case 8:
                return Below(2) ? BringSelectionToFront(Document()) : SendSelectionToBack(Document());
            case 9:
                return CopyAndPaste();
            case 10:
                return RenameOne();
            case 11:
                return Below(4) ? EditValue() : DeleteOne();
            default:
                return EditValue();
        }
    }

    TDirection AnyDirection() { return Below(2) ? TDirection::Horizontal : TDirection::Vertical; }

    TWinControl& AnyParent() {
        auto* control = dynamic_cast<TControl*>(Selection().Leader());
        return control ? AcceptingParent(*control) : Root();
    }

    void PlaceOne() {
        const TMetaClass& meta =
            *FClasses[static_cast<std::size_t>(Below(static_cast<int>(FClasses.size())))];
        const TRect place = Below(2) ? TRect::OfSize(Below(500), Below(300), 8 + Below(120), 8 + Below(80))
                                     : TRect::OfSize(Below(500), Below(300), 0, 0);
        Place(Document(), meta, AnyParent(), place);
    }

    void DeleteOne() {
        if (Root().GetComponentCount() == 0) return;
        Selection().SetOnly(Root().GetComponent(Below(Root().GetComponentCount())));
        DeleteSelection(Document());
    }

    void CopyAndPaste() {
        const String text = CopySelection(Document());
        if (!text.empty()) PasteText(Document(), text, AnyParent(), 8);
    }

    void RenameOne() {
        if (TComponent* leader = Selection().Leader())
            Rename(Document(), *leader, Format(L"Name%d", Below(60)));
    }

    /// Another value for any property or event, sometimes a wrong one.
    void EditValue() {
        TPropertyList list(Document(),
                           Below(4) ? TPropertyList::TKind::Properties : TPropertyList::TKind::Events);
        list.SetExpanded(L"Font", true);
        list.SetExpanded(L"Anchors", true);
        list.Refresh();
        if (list.Lines().empty()) return;
        const auto index = static_cast<std::size_t>(Below(static_cast<int>(list.Lines().size())));
        const TPropertyLine& line = list.Lines()[index];
        const String path = line.Path;
        if (line.IsReadOnly || line.Name == L"Name") return;
        if (Below(5) == 0) return list.Reset(path);
        const auto choices = list.Choices(line);
        if (!choices.empty()) {
            const auto choice = static_cast<std::size_t>(Below(static_cast<int>(choices.size())));
            return list.SetText(path, choices[choice]);
        }
        list.SetText(path, line.Row->Kind() == TPropertyKind::String ? Format(L"Text %d – 'ß'", Below(1000))
                                                                     : IntToStr(Below(200) - 20));
    }

    TClassList FClasses;
    std::mt19937 FRandom{20};
};

TEST_F(RandomEditsTest, AreAllUndoneAndRedone) {
    Run(100, 5);
}

class RandomEditsSoak : public RandomEditsTest {};

TEST_F(RandomEditsSoak, TenThousandAreAllUndoneAndRedone) {
    Run(10'000, 20);
}

}  // namespace
}  // namespace designer
