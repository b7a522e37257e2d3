#include "platform/vcl/streaming/Reader.h"

#include "platform/vcl/core/Streams.h"
#include "platform/vcl/streaming/FormResources.h"
#include "tests/vcl/streaming/ReaderFixture.h"

namespace vcl {
namespace {

using Log = std::vector<String>;

TEST_F(ReaderTest, SetsPropertiesOfEveryKind) {
    const TSampleForm& form = ReadWith(
        LR"(
        Width = 120  Small = -128  Byte = 255  Short = -32768  Word = $FFFF  Long = 9223372036854775807
        Visible = False  Kind = skStar  Kinds = [skPlain, SKSTAR]  Ratio = 0.25  Narrow = 3
        Color = clred  Caption = 'Hello'  Tag = 7)");
    EXPECT_EQ(form.GetName(), L"Form");
    EXPECT_EQ(form.Width, 120);
    EXPECT_EQ(form.Small, -128);
    EXPECT_EQ(form.Byte, 255);
    EXPECT_EQ(form.Short, -32768);
    EXPECT_EQ(form.Word, 0xFFFF);
    EXPECT_EQ(form.Long, std::numeric_limits<std::int64_t>::max());
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(form.Kind, skStar);
    EXPECT_EQ(form.Kinds, (TSampleKinds{skPlain, skStar}));
    EXPECT_EQ(form.Ratio, 0.25);
    EXPECT_EQ(form.Narrow, 3.0f);
    EXPECT_EQ(form.Color, 0xFFu);
    EXPECT_EQ(form.Caption, L"Hello");
    EXPECT_EQ(form.GetTag(), 7);
}

TEST_F(ReaderTest, TakesUnsignedNumbersAlsoInSignedForm) {
    EXPECT_EQ(ReadWith(L"Color = -16777201").Color, 0xFF00000Fu);
    EXPECT_EQ(ReadWith(L"Color = $FF00000F").Color, 0xFF00000Fu);
}

TEST_F(ReaderTest, ReachesIntoNestedObjects) {
    const TSampleForm& form =
        ReadWith(L"Style.Color = clRed\nstyle.inner.depth = 5\nStyle.Inner.Label = 'x'");
    EXPECT_EQ(form.GetStyle().Color, 0xFFu);
    EXPECT_EQ(form.GetStyle().GetInner().Depth, 5);
    EXPECT_EQ(form.GetStyle().GetInner().Label, L"x");
}

TEST_F(ReaderTest, FillsStringListsAndReplacesWhatTheyHeld) {
    Form = std::make_unique<TSampleForm>(nullptr);
    Form->GetLines().Add(L"old");
    const auto document = ParseFormText(L"object Form: TSampleForm Lines.Strings = ('one' 'two') end");
    TReader(document).ReadRootComponent(Form.get());
    EXPECT_EQ(Form->GetLines().GetText(), L"one\r\ntwo\r\n");
}

TEST_F(ReaderTest, FillsCollectionsAndReplacesTheirItems) {
    TSampleForm& form =
        ReadWith(L"Items = <item Text = 'a' end item [7] Width = 3 Parts = <item Text = 'deep' end> end>");
    ASSERT_EQ(form.GetItems().GetCount(), 2);
    const auto& first = dynamic_cast<TSampleItem&>(*form.GetItems()[0]);
    const auto& second = dynamic_cast<TSampleItem&>(*form.GetItems()[1]);
    EXPECT_EQ(first.Text, L"a");
    EXPECT_EQ(second.Width, 3);
    ASSERT_EQ(second.GetParts().GetCount(), 1);
    EXPECT_EQ(dynamic_cast<TSampleItem&>(*second.GetParts()[0]).Text, L"deep");

    const auto document = ParseFormText(L"object Form: TSampleForm Items = <item end> end");
    TReader(document).ReadRootComponent(&form);
    EXPECT_EQ(form.GetItems().GetCount(), 1);
}

TEST_F(ReaderTest, HandsBytesToTheObjectThatDefinesThem) {
    EXPECT_EQ(ReadWith(L"Data = {01FF}").Data, (std::vector{std::byte{1}, std::byte{0xFF}}));
}

TEST_F(ReaderTest, PlacesComponentsWithoutParentForDesigners) {
    TSampleForm& form = ReadWith(L"object Timer1: TSampleTimer Left = -8 Top = 40 Interval = 5 end");
    const TComponent* timer = form.FindComponent(L"Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->GetDesignInfo(), static_cast<std::int32_t>(0x0028FFF8));
    EXPECT_EQ(dynamic_cast<const TSampleTimer&>(*timer).Interval, 5);
}

TEST_F(ReaderTest, GivesChildrenTheRootAsOwnerAndTheirObjectAsParent) {
    TSampleForm& form = ReadWith(
        LR"(
        object Outer: TSample
          object Inner: TSample end
          object Unnamed: TSample end
        end
        object TSample end)");
    TSample& outer = form.Find(L"Outer");
    TSample& inner = form.Find(L"Inner");
    EXPECT_EQ(inner.GetOwner(), &form);
    EXPECT_EQ(inner.GetParentComponent(), &outer);
    EXPECT_EQ(outer.GetParentComponent(), &form);
    EXPECT_EQ(form.Children().size(), 2u);
    EXPECT_EQ(form.Children()[1]->GetName(), L"");
    EXPECT_EQ(form.GetComponentCount(), 4);
}

TEST_F(ReaderTest, PutsChildrenAtTheirPlaces) {
    const TSampleForm& form = ReadWith(
        LR"(
        object A: TSample end
        object B: TSample end
        object C: TSample [0] end)");
    ASSERT_EQ(form.Children().size(), 3u);
    EXPECT_EQ(form.Children()[0]->GetName(), L"C");
    EXPECT_EQ(form.Children()[1]->GetName(), L"A");
}

TEST_F(ReaderTest, CompletesTheRootFirstThenInTheOrderOfCreationAfterAllReferences) {
    ReadWith(
        LR"(
        Partner = B
        object A: TSample
          Partner = C
          object B: TSample end
        end
        object C: TSample Partner = A end)");
    EXPECT_EQ(TSample::TakeLog(),
              (Log{L"Loaded Form with B", L"Loaded A with C", L"Loaded B", L"Loaded C with A"}));
}

TEST_F(ReaderTest, MarksComponentsAsLoadingWhileTheyAreRead) {
    TSampleForm& form = ReadWith(L"Limit = 1 object A: TSample Limit = 1 end");
    for (const TSample* sample : {static_cast<TSample*>(&form), &form.Find(L"A")}) {
        EXPECT_TRUE(sample->StateAtLimit.Contains(csLoading));
        EXPECT_TRUE(sample->StateAtLimit.Contains(csReading));
        EXPECT_FALSE(sample->IsInState(csLoading));
        EXPECT_FALSE(sample->IsInState(csReading));
        EXPECT_EQ(sample->LoadedCount, 1);
    }
}

TEST_F(ReaderTest, MakesTheRootByItsClassForAnOwner) {
    TComponent owner(nullptr);
    const auto document = ParseFormText(L"object Main: TSampleForm object A: TSample end end");
    TComponent* root = TReader(document).ReadRootComponent(nullptr, &owner);
    ASSERT_NE(dynamic_cast<TSampleForm*>(root), nullptr);
    EXPECT_EQ(root->GetOwner(), &owner);
    EXPECT_EQ(root->GetName(), L"Main");
}

TEST_F(ReaderTest, MakesTheNamesOfRootsUnique) {
    TComponent owner(nullptr);
    const auto document = ParseFormText(L"object Main: TSampleForm end");
    const auto name = [&] { return TReader(document).ReadRootComponent(nullptr, &owner)->GetName(); };
    EXPECT_EQ(name(), L"Main");
    EXPECT_EQ(name(), L"Main_1");
    EXPECT_EQ(name(), L"Main_2");
}

TEST_F(ReaderTest, CreatesInDesignStateUnderADesigningRoot) {
    Form = std::make_unique<TSampleForm>(nullptr);
    Form->SetDesigning(true);
    const auto document = ParseFormText(L"object Form: TSampleForm object A: TSample end end");
    TReader(document).ReadRootComponent(Form.get());
    EXPECT_TRUE(Form->Find(L"A").IsInState(csDesigning));
}

TEST_F(ReaderTest, AsksForClassesThatTheProgramBrings) {
    Form = std::make_unique<TSampleForm>(nullptr);
    const auto document = ParseFormText(L"object Form: TSampleForm object A: TElsewhere end end");
    TReader reader(document);
    reader.OnFindClass = [](const String& name) {
        return name == L"TElsewhere" ? &TSampleTimer::StaticClass() : nullptr;
    };
    reader.ReadRootComponent(Form.get());
    EXPECT_NE(dynamic_cast<TSampleTimer*>(Form->FindComponent(L"A")), nullptr);
}

TEST_F(ReaderTest, ReadsFromStreamsOneFormAfterTheOther) {
    TMemoryStream stream;
    TSampleForm first(nullptr);
    first.SetName(L"First");
    TSampleForm second(nullptr);
    second.SetName(L"Second");
    WriteComponent(stream, first);
    WriteComponent(stream, second);
    stream.SetPosition(0);
    const std::unique_ptr<TComponent> a(ReadComponent(stream));
    const std::unique_ptr<TComponent> b(ReadComponent(stream));
    EXPECT_EQ(a->GetName(), L"First");
    EXPECT_EQ(b->GetName(), L"Second");
    EXPECT_EQ(stream.GetPosition(), stream.GetSize());
}

}  // namespace
}  // namespace vcl
