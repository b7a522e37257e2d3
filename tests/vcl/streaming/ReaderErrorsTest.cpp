#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/vcl/streaming/ReaderFixture.h"

namespace vcl {
namespace {

using ReaderErrorsTest = ReaderTest;
using Kind = TFormProblemKind;

struct TReaderError {
    const wchar_t* Contents;  ///< From the second line of the form on.
    Kind Problem;
    const char* Message;
};

const TReaderError Errors[] = {
    {L"object A: TNobody end", Kind::UnknownClass, "Form.dfm(2,1): Form.A: Class TNobody not found"},
    {L"object A: TComponent end", Kind::UnknownClass, "Form.dfm(2,1): Form.A: Class TComponent not found"},
    {L"object A: TSampleBroken end", Kind::Failed, "Form.dfm(2,1): Form.A: There is no room"},
    {L"object A: TSampleTimer\n object B: TSample end end", Kind::Failed,
     "Form.dfm(3,2): Form.A.B: Samples stand in samples only"},
    {L"Colr = 5", Kind::UnknownProperty, "Form.dfm(2,1): Form.Colr: TSampleForm has no property Colr"},
    {L"Style.Colr = 5", Kind::UnknownProperty,
     "Form.dfm(2,1): Form.Style.Colr: TSampleStyle has no property Colr"},
    {L"Stile.Color = 5", Kind::UnknownProperty,
     "Form.dfm(2,1): Form.Stile.Color: TSampleForm has no property Stile"},
    {L"Caption.Text = 5", Kind::UnknownProperty,
     "Form.dfm(2,1): Form.Caption.Text: Property Caption of TSampleForm holds no object"},
    {L"Width = 'x'", Kind::WrongType,
     "Form.dfm(2,9): Form.Width: a string found where a whole number is expected"},
    {L"Width = 1.5", Kind::WrongType,
     "Form.dfm(2,9): Form.Width: a number with a fraction found where a whole number is expected"},
    {L"Width = wide", Kind::WrongType,
     "Form.dfm(2,9): Form.Width: wide found where a whole number is expected"},
    {L"Visible = 1", Kind::WrongType,
     "Form.dfm(2,11): Form.Visible: a whole number found where True or False is expected"},
    {L"Kind = 1", Kind::WrongType,
     "Form.dfm(2,8): Form.Kind: a whole number found where the name of a value is expected"},
    {L"Kinds = skStar", Kind::WrongType, "Form.dfm(2,9): Form.Kinds: skStar found where a set is expected"},
    {L"Ratio = True", Kind::WrongType,
     "Form.dfm(2,9): Form.Ratio: a Boolean found where a number is expected"},
    {L"Caption = 5", Kind::WrongType,
     "Form.dfm(2,11): Form.Caption: a whole number found where a string is expected"},
    {L"Partner = 'A'", Kind::WrongType,
     "Form.dfm(2,11): Form.Partner: a string found where the name of a component is expected"},
    {L"OnClick = 'A'", Kind::WrongType,
     "Form.dfm(2,11): Form.OnClick: a string found where the name of a method is expected"},
    {L"Items = (1)", Kind::WrongType,
     "Form.dfm(2,9): Form.Items: a list found where a collection is expected"},
    {L"Style = <>", Kind::WrongType,
     "Form.dfm(2,9): Form.Style: a collection found where properties of the object is expected"},
    {L"Data = 5", Kind::WrongType, "Form.dfm(2,8): Form.Data: a whole number found where bytes are expected"},
    {L"Lines.Strings = 'x'", Kind::WrongType,
     "Form.dfm(2,17): Form.Lines.Strings: a string found where a list is expected"},
    {L"Lines.Strings = ('x'\n 5)", Kind::WrongType,
     "Form.dfm(3,2): Form.Lines.Strings: a whole number found where a string is expected"},
    {L"Byte = 256", Kind::OutOfRange, "Form.dfm(2,8): Form.Byte: Value 256 of property Byte is out of range"},
    {L"Byte = -1", Kind::OutOfRange, "Form.dfm(2,8): Form.Byte: Value -1 of property Byte is out of range"},
    {L"Width = 4294967296", Kind::OutOfRange,
     "Form.dfm(2,9): Form.Width: Value 4294967296 of property Width is out of range"},
    {L"Ratio = 1E400", Kind::OutOfRange, "Form.dfm(2,9): Form.Ratio: Number too big"},
    {L"Kind = skOval", Kind::UnknownValue,
     "Form.dfm(2,8): Form.Kind: skOval is none of skPlain, skRound, skStar"},
    {L"Kinds = [skPlain,\n skOval]", Kind::UnknownValue,
     "Form.dfm(3,2): Form.Kinds: skOval is none of skPlain, skRound, skStar"},
    {L"Color = clPink", Kind::UnknownValue,
     "Form.dfm(2,9): Form.Color: clPink is the name of no value of the property"},
    {L"Limit = -1", Kind::InvalidValue, "Form.dfm(2,9): Form.Limit: The limit must not be negative"},
    {L"Area = 5", Kind::InvalidValue, "Form.dfm(2,8): Form.Area: The property is read-only"},
    {L"Data = {00112233445566778899AABBCC}", Kind::InvalidValue,
     "Form.dfm(2,8): Form.Data: Thirteen bytes bring bad luck"},
    {L"Name = 'a b'", Kind::InvalidValue, "Form.dfm(2,8): Form.Name: 'a b' is not a valid component name"},
    {L"Items = <item end item\n Widht = 5 end>", Kind::UnknownProperty,
     "Form.dfm(3,2): Form.Items[1].Widht: TSampleItem has no property Widht"},
    {L"Partner = Nobody", Kind::UnknownReference, "Form.dfm(2,11): Form.Partner: No component named Nobody"},
    {L"Style.Partner = A.B object A: TSample end", Kind::UnknownReference,
     "Form.dfm(2,17): Form.Style.Partner: No component named A.B"},
    {L"Items = <item Partner = Nobody end>", Kind::UnknownReference,
     "Form.dfm(2,25): Form.Items[0].Partner: No component named Nobody"},
    {L"Partner = T\nobject T: TSampleTimer end", Kind::UnknownReference,
     "Form.dfm(2,11): Form.Partner: T is a TSampleTimer, not a TSample"},
    {L"OnClick = NoClick", Kind::UnknownMethod,
     "Form.dfm(2,11): Form.OnClick: TSampleForm publishes no method NoClick"},
    {L"OnClick = A.SampleClick object A: TSample end", Kind::UnknownMethod,
     "Form.dfm(2,11): Form.OnClick: TSampleForm publishes no method A.SampleClick"},
    {L"OnClick = SampleCheck", Kind::UnknownMethod,
     "Form.dfm(2,11): Form.OnClick: Method SampleCheck does not fit the event"},
    {L"object A: TSample end\nobject a: TSample end", Kind::DuplicateName,
     "Form.dfm(3,1): Form.a: A component named a already exists"},
    {L"inherited A: TSample end", Kind::MissingAncestor,
     "Form.dfm(2,1): Form.A: No ancestor has a component named A"},
    {L"object A: TSample end\ninherited A: TSampleTimer end", Kind::MissingAncestor,
     "Form.dfm(3,1): Form.A: The ancestor's component is a TSample, not a TSampleTimer"},
    {L"object A: TSample\n object B: TSampleFragile end end", Kind::Failed,
     "Form.dfm(3,2): Form.A.B: It breaks"},
};

TEST_F(ReaderErrorsTest, NameTheirPlaceAndLeaveNothingBehind) {
    for (const TReaderError& error : Errors) {
        EXPECT_EQ(RaisedWith(error.Contents), error.Message);
        EXPECT_EQ(LastProblem.Kind, error.Problem) << error.Message;
        EXPECT_EQ(Form->GetComponentCount(), 0) << error.Message;
        EXPECT_FALSE(Form->IsInState(csLoading)) << error.Message;
        EXPECT_FALSE(Form->IsInState(csReading)) << error.Message;
        Form.reset();
        EXPECT_EQ(Leaks(), "") << error.Message;
    }
}

TEST_F(ReaderErrorsTest, FreeARootThatTheReaderMade) {
    const auto document =
        ParseFormText(L"object Form: TSampleForm object A: TSample end object B: TNobody end end");
    EXPECT_THROW(TReader(document).ReadRootComponent(nullptr), EFormError);
    EXPECT_EQ(Leaks(), "");
    const auto foreign = ParseFormText(L"object Form: TNobody end", L"Form.dfm");
    try {
        TReader(foreign).ReadRootComponent(nullptr);
        FAIL() << "nothing raised";
    } catch (const EFormError& error) {
        EXPECT_EQ(error.Message(), L"Form.dfm(1,1): Form: Class TNobody not found");
    }
}

TEST_F(ReaderErrorsTest, LeaveComponentsAloneThatWereThereBefore) {
    Read(L"object Form: TSampleForm object A: TSample end end");
    const auto document = ParseFormText(
        L"inherited Form: TSampleForm inherited A: TSample Width = 5 object B: TNobody end end end");
    EXPECT_THROW(TReader(document).ReadRootComponent(Form.get()), EFormError);
    EXPECT_EQ(Form->GetComponentCount(), 1);
    EXPECT_FALSE(Form->Find(L"A").IsInState(csReading));
}

TEST_F(ReaderErrorsTest, AreLocatedByOffsetInBinaryForms) {
    Form = std::make_unique<TSampleForm>(nullptr);
    const auto bytes = FormToBinary(ParseFormText(L"object Form: TSampleForm Width = 5 Kind = skOval end"));
    const auto document = ParseFormBinary(bytes, L"Form.dfm");
    try {
        TReader(document).ReadRootComponent(Form.get());
        FAIL() << "nothing raised";
    } catch (const EFormError& error) {
        EXPECT_STREQ(error.what(),
                     "Form.dfm(offset 34): Form.Kind: skOval is none of skPlain, skRound, skStar");
    }
}

TEST_F(ReaderErrorsTest, ReferencesToWhatCouldNotBeMadeAreNoProblemsOfTheirOwn) {
    Form = std::make_unique<TSampleForm>(nullptr);
    const auto document = ParseFormText(
        L"object Form: TSampleForm Partner = A Anyone = B object A: TNobody object B: TSample end end end");
    TReader reader(document);
    reader.CollectProblems = true;
    reader.ReadRootComponent(Form.get());
    ASSERT_EQ(reader.GetProblems().size(), 1u);
    EXPECT_EQ(reader.GetProblems()[0].Kind, Kind::UnknownClass);
    EXPECT_EQ(Form->Partner, nullptr);
    TWriter writer;
    writer.UnreadProperties = &reader.GetUnreadProperties();
    const TFormDocument written = writer.WriteRootComponent(*Form);
    EXPECT_EQ(*written.Root.FindProperty(L"Partner"), *document.Root.FindProperty(L"Partner"));
    EXPECT_EQ(*written.Root.FindProperty(L"Anyone"), *document.Root.FindProperty(L"Anyone"));
}

TEST_F(ReaderErrorsTest, CollectedProblemsDoNotEndTheReading) {
    Form = std::make_unique<TSampleForm>(nullptr);
    const auto document = ParseFormText(
        LR"(object Form: TSampleForm
      Width = 'x'
      Caption = 'Kept'
      Partner = Nobody
      object A: TNobody
        object B: TSample end
      end
      object C: TSample
        OnClick = NoClick
        Items = <item Widht = 5 Text = 'Kept' end>
        object D: TSampleFragile end
      end
      object c: TSample Width = 3 end
      inherited E: TSample end
    end)",
        L"Form.dfm");
    TReader reader(document);
    reader.CollectProblems = true;
    reader.ReadRootComponent(Form.get());

    std::vector<TFormProblemKind> kinds;
    for (const TFormProblem& problem : reader.GetProblems())
        kinds.push_back(problem.Kind);
    EXPECT_EQ(kinds, (std::vector{Kind::WrongType, Kind::UnknownClass, Kind::UnknownMethod,
                                  Kind::UnknownProperty, Kind::DuplicateName, Kind::MissingAncestor,
                                  Kind::UnknownReference, Kind::Failed}));
    EXPECT_EQ(reader.GetProblems()[3].Message(),
              L"Form.dfm(10,23): Form.C.Items[0].Widht: TSampleItem has no property Widht");
    EXPECT_EQ(Form->Caption, L"Kept");
    EXPECT_EQ(Form->Width, 75);
    EXPECT_EQ(dynamic_cast<TSampleItem&>(*Form->Find(L"C").GetItems()[0]).Text, L"Kept");
    ASSERT_EQ(Form->Children().size(), 2u);
    EXPECT_EQ(Form->Children()[1]->GetName(), L"");
    EXPECT_EQ(Form->Children()[1]->Width, 3);
}

}  // namespace
}  // namespace vcl
