#include "platform/vcl/streaming/Writer.h"

#include <limits>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/UnknownComponent.h"
#include "tests/vcl/streaming/ReaderFixture.h"

namespace vcl {
namespace {

class WriterTest : public ReaderTest {
protected:
    std::string Written() { return FormToText(TWriter().WriteRootComponent(*Form)); }
    /// What is written of a form that this was read into, without the first and the last line and the
    /// property that is always there.
    std::string Rewritten(const String& contents) {
        ReadWith(contents);
        std::string text = Written();
        const std::string head = "object Form: TSampleForm\r\n";
        const std::string always = "  Always = ''\r\n";
        EXPECT_EQ(text.substr(0, head.size()), head);
        text.erase(0, head.size());
        if (const auto place = text.find(always);
            place == 0 || (place != std::string::npos && text[place - 1] == '\n'))
            text.erase(place, always.size());
        return text.substr(0, text.size() - std::string("end\r\n").size());
    }
};

TEST_F(WriterTest, LeavesOutDefaultsAndWritesWhatHasNone) {
    EXPECT_EQ(FormToText(TWriter().WriteRootComponent(ReadWith(L""))),
              "object Form: TSampleForm\r\n"
              "  Always = ''\r\n"
              "end\r\n");
}

TEST_F(WriterTest, WritesPropertiesOfEveryKindInTheOrderOfTheirTables) {
    EXPECT_EQ(
        Rewritten(
            LR"(OnCheck = SampleCheck OnClick = SampleClick Items = <item Text = 'a' OnPick = OtherClick end>
                Lines.Strings = ('one' 'two') Style.Inner.Depth = 2 Style.Color = 255 Data = {01FF} Anyone = Owner
                Color = 0 Narrow = 0.1s Ratio = 2 Kinds = [skStar, skPlain] Kind = skRound
                Visible = False Long = 9223372036854775807 Small = -5 Tag = 3 Caption = 'Wei'#223)"),
        "  Tag = 3\r\n"
        "  Small = -5\r\n"
        "  Long = 9223372036854775807\r\n"
        "  Visible = False\r\n"
        "  Kind = skRound\r\n"
        "  Kinds = [skPlain, skStar]\r\n"
        "  Ratio = 2.0\r\n"
        "  Narrow = 0.10000000149011612\r\n"
        "  Color = clBlack\r\n"
        "  Caption = 'Wei'#223\r\n"
        "  Anyone = Owner\r\n"
        "  Style.Color = clRed\r\n"
        "  Style.Inner.Depth = 2\r\n"
        "  Lines.Strings = (\r\n"
        "    'one'\r\n"
        "    'two')\r\n"
        "  Items = <\r\n"
        "    item\r\n"
        "      Text = 'a'\r\n"
        "      OnPick = OtherClick\r\n"
        "    end>\r\n"
        "  OnClick = SampleClick\r\n"
        "  OnCheck = SampleCheck\r\n"
        "  Data = {\r\n"
        "    01FF}\r\n");
}

TEST_F(WriterTest, AsksTheStoredRuleAndSkipsReadOnlyProperties) {
    ReadWith(L"Caption = 'x'");
    EXPECT_NE(Written().find("Caption"), std::string::npos);
    Form->Stored = false;
    Form->Secret = 5;
    EXPECT_EQ(Written(), "object Form: TSampleForm\r\n  Always = ''\r\nend\r\n");
}

TEST_F(WriterTest, WritesUnsignedNumbersAsSignedOnes) {
    EXPECT_EQ(Rewritten(L"Color = $FF123456"), "  Color = -15584170\r\n");
    EXPECT_EQ(Rewritten(L"Color = $7F123456"), "  Color = 2131899478\r\n");
    EXPECT_EQ(Form->Color, 0x7F123456u);
}

TEST_F(WriterTest, NamesComponentsAsTheReaderFindsThem) {
    const std::string text =
        "  Partner = A\r\n"
        "  Anyone = Owner\r\n"
        "  object A: TSample\r\n"
        "    Always = ''\r\n"
        "    Partner = B\r\n"
        "    Style.Partner = Owner\r\n"
        "    Items = <\r\n"
        "      item\r\n"
        "        Partner = B\r\n"
        "      end>\r\n"
        "    object B: TSample\r\n"
        "      Always = ''\r\n"
        "    end\r\n"
        "  end\r\n";
    EXPECT_EQ(Rewritten(FromUtf8(text)), text);
    TSample& a = Form->Find(L"A");
    EXPECT_EQ(a.GetStyle().Partner, Form.get());
    EXPECT_EQ(Form->Anyone, Form.get());
    EXPECT_EQ(dynamic_cast<TSampleItem&>(*a.GetItems()[0]).Partner, &Form->Find(L"B"));
}

TEST_F(WriterTest, LeavesOutReferencesToWhatHasNoName) {
    ReadWith(L"object TSample end");
    Form->Partner = Form->Children()[0];
    EXPECT_EQ(Written().find("Partner"), std::string::npos);
}

TEST_F(WriterTest, LeavesOutEventsThatNoMethodOfTheFormHandles) {
    ReadWith(L"");
    TSampleForm other(nullptr);
    Form->OnClick = {&other, &TSampleForm::SampleClick};
    EXPECT_EQ(Written().find("OnClick"), std::string::npos);
    Form->OnClick = [](TObject*) {};
    EXPECT_EQ(Written().find("OnClick"), std::string::npos);
    Form->OnClick = {Form.get(), &TSampleForm::OtherClick};
    EXPECT_NE(Written().find("OnClick = OtherClick"), std::string::npos);
}

TEST_F(WriterTest, AsksForNamesOfMethodsThatADesignerKeeps) {
    ReadWith(L"");
    Form->OnClick = [](TObject*) {};
    TWriter writer;
    writer.OnFindMethodName = [](const TEventBase&, const TPublishedProperty& property) {
        return String(property.Name()) + L"Handler";
    };
    EXPECT_NE(FormToText(writer.WriteRootComponent(*Form)).find("OnClick = OnClickHandler"),
              std::string::npos);
}

TEST_F(WriterTest, WritesThePlaceOfComponentsWithoutParent) {
    const std::string text =
        "  object Timer1: TSampleTimer\r\n"
        "    Interval = 5\r\n"
        "    Left = -8\r\n"
        "    Top = 40\r\n"
        "  end\r\n";
    EXPECT_EQ(Rewritten(FromUtf8(text)), text);
}

TEST_F(WriterTest, LeavesOutComponentsOfOtherOwners) {
    ReadWith(L"object A: TSample end");
    TSample foreign(nullptr);
    foreign.SetParentComponent(Form.get());
    foreign.SetName(L"Foreign");
    EXPECT_EQ(Written().find("Foreign"), std::string::npos);
}

TEST_F(WriterTest, MarksComponentsWhileTheyAreWritten) {
    struct TWatcher : TSample {
        using TSample::TSample;
        void DefineProperties(TFiler&) override { Seen = IsInState(csWriting); }
        bool Seen = false;
    };
    TWatcher watcher(nullptr);
    (void)TWriter().WriteRootComponent(watcher);
    EXPECT_TRUE(watcher.Seen);
    EXPECT_FALSE(watcher.IsInState(csWriting));
}

TEST_F(WriterTest, RefusesValuesThatFormsCannotHold) {
    ReadWith(L"");
    Form->Ratio = std::numeric_limits<double>::infinity();
    EXPECT_THROW((void)Written(), EWriteError);
    EXPECT_FALSE(Form->IsInState(csWriting));
    Form->Ratio = 1;
    Form->Kind = static_cast<TSampleKind>(7);
    EXPECT_THROW((void)Written(), EWriteError);
}

TEST_F(WriterTest, RefusesDefinedPropertiesThatAreNotOneValue) {
    struct TCareless : TSample {
        using TSample::TSample;
        void DefineProperties(TFiler& filer) override {
            filer.DefineProperty(
                L"Odd", {}, [this](TValueWriter& writer) { Write(writer); }, true);
        }
        std::function<void(TValueWriter&)> Write;
    };
    TCareless careless(nullptr);
    const auto raises = [&](std::function<void(TValueWriter&)> write) {
        careless.Write = std::move(write);
        EXPECT_THROW((void)TWriter().WriteRootComponent(careless), EWriteError);
    };
    raises([](TValueWriter&) {});
    raises([](TValueWriter& writer) { writer.WriteListBegin(); });
    raises([](TValueWriter& writer) { writer.WriteListEnd(); });
    raises([](TValueWriter& writer) {
        writer.WriteInteger(1);
        writer.WriteInteger(2);
    });
    careless.Write = [](TValueWriter& writer) {
        writer.WriteListBegin();
        writer.WriteIdent(L"a");
        writer.WriteListBegin();
        writer.WriteBoolean(true);
        writer.WriteFloat(0.5);
        writer.WriteListEnd();
        writer.WriteListEnd();
    };
    EXPECT_NE(FormToText(TWriter().WriteRootComponent(careless))
                  .find("Odd = (\r\n    a\r\n    (\r\n      True\r\n      0.5))"),
              std::string::npos);
}

TEST_F(WriterTest, UnknownObjectsAndPropertiesAreWrittenBackUnchanged) {
    const std::string text =
        "object Form: TSampleForm\r\n"
        "  Always = ''\r\n"
        "  object A: TSample\r\n"
        "    Always = ''\r\n"
        "    Widht = 5\r\n"
        "    Partner = Grid1\r\n"
        "    Widht2 = 5\r\n"
        "    object Grid1: TForeignGrid\r\n"
        "      Columns = <\r\n"
        "        item\r\n"
        "          Title.Caption = 'One'\r\n"
        "        end>\r\n"
        "      object Inner: TSample\r\n"
        "        Width = 75\r\n"
        "      end\r\n"
        "    end\r\n"
        "    object B: TSample\r\n"
        "      Always = ''\r\n"
        "      OnClick = NoClick\r\n"
        "    end\r\n"
        "    object TForeignLine\r\n"
        "    end\r\n"
        "  end\r\n"
        "  inline Frame1: TForeignFrame\r\n"
        "    inherited Button: TForeignButton\r\n"
        "      Left = 3\r\n"
        "    end\r\n"
        "  end\r\n"
        "  object Timer1: TForeignTimer\r\n"
        "  end\r\n"
        "end\r\n";
    Form = std::make_unique<TSampleForm>(nullptr);
    const TFormDocument document = ParseFormText(FromUtf8(text));
    TReader reader(document);
    reader.CollectProblems = true;
    reader.ReadRootComponent(Form.get());
    EXPECT_EQ(reader.GetProblems().size(), 7u) << "the reference to Grid1 is none of its own";
    EXPECT_EQ(Form->FindComponent(L"Inner"), nullptr);
    const auto* grid = dynamic_cast<TUnknownComponent*>(Form->FindComponent(L"Grid1"));
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->GetParentComponent(), &Form->Find(L"A"));

    TWriter writer;
    writer.UnreadProperties = &reader.GetUnreadProperties();
    EXPECT_EQ(FormToText(writer.WriteRootComponent(*Form)), text);
}

TEST_F(WriterTest, AnUnknownObjectIsNotWrittenWithoutItsParent) {
    Form = std::make_unique<TSampleForm>(nullptr);
    const auto document =
        ParseFormText(L"object Form: TSampleForm object A: TSample object G: TForeign end end end");
    TReader reader(document);
    reader.CollectProblems = true;
    reader.ReadRootComponent(Form.get());
    delete &Form->Find(L"A");
    EXPECT_EQ(Form->FindComponent(L"G")->GetParentComponent(), nullptr);
    EXPECT_EQ(Written().find("TForeign"), std::string::npos);
}

TEST_F(WriterTest, KeepsTheNamesOfMethodsOfAFormInDesignState) {
    const String text =
        L"object Form: TSampleForm\r\n  Always = ''\r\n  OnClick = NobodyHasThisMethod\r\nend\r\n";
    Form = std::make_unique<TSampleForm>(nullptr);
    Form->SetDesigning(true);
    const TFormDocument document = ParseFormText(text, L"Form.dfm");
    TReader(document).ReadRootComponent(Form.get());
    EXPECT_FALSE(Form->OnClick.IsAssigned());
    EXPECT_EQ(Written(), ToUtf8(text));
}

}  // namespace
}  // namespace vcl
