#include "platform/vcl/streaming/FormText.h"

#include <gtest/gtest.h>

#include "platform/vcl/streaming/FormErrors.h"
#include "platform/vcl/streaming/FormFiles.h"

namespace vcl {
namespace {

/// The value that a property with this text has.
TFormValue ValueOf(const String& text) {
    const auto document = ParseFormText(L"object A: TA\r\n  P = " + text + L"\r\nend");
    return document.Root.Properties.at(0).Value;
}

/// The text of the only property of a form that is written and read in between.
std::string Rewritten(const String& text) {
    const std::string written = FormToText(ParseFormText(L"object A: TA\r\n  P = " + text + L"\r\nend"));
    EXPECT_EQ(FormToText(ParseFormText(FromUtf8(written))), written);
    const std::string head = "object A: TA\r\n  P =";
    const std::string tail = "\r\nend\r\n";
    EXPECT_EQ(written.substr(0, head.size()), head);
    return written.substr(head.size(), written.size() - head.size() - tail.size());
}

const String& StringOf(const TFormValue& value) {
    static const String none = L"(no string)";
    const auto* text = value.As<String>();
    return text ? *text : none;
}

TEST(FormTextTest, ReadsObjectsWithTheirKindNameClassAndPlace) {
    const auto document = ParseFormText(
        LR"(
        inherited Main: TMain
          object Panel1: TPanel [2]
            inline Frame1: TFrame1 end
          end
          Object TTimer end
          inherited Button1: TButton [-1] end
        end)");
    const TFormObject& root = document.Root;
    EXPECT_EQ(root.Kind, TFormObjectKind::Inherited);
    EXPECT_EQ(root.Name, L"Main");
    EXPECT_EQ(root.ClassName, L"TMain");
    EXPECT_EQ(root.ChildPos, std::nullopt);
    ASSERT_EQ(root.Children.size(), 3u);
    EXPECT_EQ(root.Children[0].Kind, TFormObjectKind::Object);
    EXPECT_EQ(root.Children[0].ChildPos, 2);
    ASSERT_EQ(root.Children[0].Children.size(), 1u);
    EXPECT_EQ(root.Children[0].Children[0].Kind, TFormObjectKind::Inline);
    EXPECT_EQ(root.Children[1].Name, L"");
    EXPECT_EQ(root.Children[1].ClassName, L"TTimer");
    EXPECT_EQ(root.Children[2].ChildPos, -1);
}

TEST(FormTextTest, ReadsNumbersOfEverySize) {
    const auto integer = [](const wchar_t* text) { return *ValueOf(text).As<std::int64_t>(); };
    EXPECT_EQ(integer(L"0"), 0);
    EXPECT_EQ(integer(L"-11"), -11);
    EXPECT_EQ(integer(L"9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integer(L"-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(integer(L"$FF"), 255);
    EXPECT_EQ(integer(L"$00ffFF00"), 0xFFFF00);
    EXPECT_EQ(integer(L"-$10"), -16);
    EXPECT_EQ(integer(L"$FFFFFFFFFFFFFFFF"), -1);
}

TEST(FormTextTest, ReadsNumbersWithFractions) {
    const auto number = [](const wchar_t* text) { return *ValueOf(text).As<TFormFloat>(); };
    EXPECT_EQ(number(L"1.5"), TFormFloat(1.5));
    EXPECT_EQ(number(L"-1E3"), TFormFloat(-1000));
    EXPECT_EQ(number(L"2.5e-1"), TFormFloat(0.25));
    EXPECT_EQ(number(L"12s").Kind, TFormFloatKind::Single);
    EXPECT_EQ(number(L"12.25C").Kind, TFormFloatKind::Currency);
    EXPECT_EQ(number(L"38500.5d").Kind, TFormFloatKind::Date);
    EXPECT_EQ(number(L"0.5f").Kind, TFormFloatKind::Double);
}

TEST(FormTextTest, JoinsTheQuotedPiecesAndCodesOfAString) {
    EXPECT_EQ(StringOf(ValueOf(L"''")), L"");
    EXPECT_EQ(StringOf(ValueOf(L"'It''s'")), L"It's");
    EXPECT_EQ(StringOf(ValueOf(L"''''")), L"'");
    EXPECT_EQ(StringOf(ValueOf(L"'Schlie'#223'en'")),
              L"Schlie\xDF"
              L"en");
    EXPECT_EQ(StringOf(ValueOf(L"#13#10")), L"\r\n");
    EXPECT_EQ(StringOf(ValueOf(L"#$41#$0042")), L"AB");
    EXPECT_EQ(StringOf(ValueOf(L"#0'x'")), String(L"\0x", 2));
    EXPECT_EQ(StringOf(ValueOf(L"#55357#56832")), L"\xD83D\xDE00");
    EXPECT_EQ(StringOf(ValueOf(L"'one' +\r\n    'two'\r\n + #33")), L"onetwo!");
    EXPECT_EQ(StringOf(ValueOf(L"'\x4E2D\x6587'")), L"\x4E2D\x6587");
}

TEST(FormTextTest, ReadsNamesAndTheWordsWithAMeaning) {
    EXPECT_EQ(ValueOf(L"clBtnFace").As<TFormIdent>()->Name, L"clBtnFace");
    EXPECT_EQ(ValueOf(L"Form2.Image1").As<TFormIdent>()->Name, L"Form2.Image1");
    EXPECT_EQ(*ValueOf(L"True").As<bool>(), true);
    EXPECT_EQ(*ValueOf(L"FALSE").As<bool>(), false);
    EXPECT_EQ(ValueOf(L"nil").Kind(), TValueKind::Nil);
    EXPECT_EQ(ValueOf(L"Null").Kind(), TValueKind::Null);
}

TEST(FormTextTest, ReadsSetsListsBytesAndCollections) {
    const auto set = ValueOf(L"[akLeft, akTop ,\r\nakRight]");
    ASSERT_EQ(set.As<TFormSet>()->Elements.size(), 3u);
    EXPECT_EQ(set.As<TFormSet>()->Elements[2].Name, L"akRight");
    EXPECT_TRUE(ValueOf(L"[]").As<TFormSet>()->Elements.empty());

    const auto list = ValueOf(L"('a' 2 (True) clRed)");
    ASSERT_EQ(list.As<TFormList>()->Values.size(), 4u);
    EXPECT_EQ(list.As<TFormList>()->Values[2].Kind(), TValueKind::List);

    const auto bytes = ValueOf(L"{ 00 fF\r\n 1 0 }");
    EXPECT_EQ(bytes.As<TFormBinary>()->Bytes, (std::vector{std::byte{0}, std::byte{0xFF}, std::byte{0x10}}));

    const auto collection = ValueOf(L"< item Width = 5 end item [3] Sub = <item end> end >");
    const auto& items = collection.As<TFormCollection>()->Items;
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].Properties.at(0).Name, L"Width");
    EXPECT_EQ(items[1].Order, 3);
    EXPECT_EQ(items[1].Properties.at(0).Value.Kind(), TValueKind::Collection);
}

TEST(FormTextTest, ReadsAWordOfTheGrammarAsANameWhereAnEqualSignFollows) {
    const auto document = ParseFormText(L"object A: TA\n object = 1\n end = 2\n Inline = 3\n item = 4\nend");
    ASSERT_EQ(document.Root.Properties.size(), 4u);
    EXPECT_EQ(document.Root.Properties[1].Name, L"end");
}

TEST(FormTextTest, TellsWhereEverythingStands) {
    const auto document =
        ParseFormText(L"object A: TA\r\n  X = 1\n  Y = [a,\r    b]\r\n  object B: TB\n  end\nend");
    const TFormObject& root = document.Root;
    EXPECT_EQ(root.Position, (TFormPosition{1, 1}));
    EXPECT_EQ(root.Properties[0].Position, (TFormPosition{2, 3}));
    EXPECT_EQ(root.Properties[0].Value.Position, (TFormPosition{2, 7}));
    EXPECT_EQ(root.Properties[1].Value.As<TFormSet>()->Elements[1].Position, (TFormPosition{4, 5}));
    EXPECT_EQ(root.Children[0].Position, (TFormPosition{5, 3}));
}

TEST(FormTextTest, WritesValuesInTheFormThatEveryoneKnows) {
    EXPECT_EQ(Rewritten(L"$10"), " 16");
    EXPECT_EQ(Rewritten(L"1.50E1"), " 15.0");
    EXPECT_EQ(Rewritten(L"'a'+'b'#13#10'c'"), " 'ab'#13#10'c'");
    EXPECT_EQ(Rewritten(L"'Wei\xDF'"), " 'Wei'#223");
    EXPECT_EQ(Rewritten(L"''''"), " ''''");
    EXPECT_EQ(Rewritten(L"''"), " ''");
    EXPECT_EQ(Rewritten(L"true"), " True");
    EXPECT_EQ(Rewritten(L"NIL"), " nil");
    EXPECT_EQ(Rewritten(L"[ fsBold,fsItalic ]"), " [fsBold, fsItalic]");
    EXPECT_EQ(Rewritten(L"[]"), " []");
    EXPECT_EQ(Rewritten(L"()"), " ()");
    EXPECT_EQ(Rewritten(L"<>"), " <>");
    EXPECT_EQ(Rewritten(L"{}"), " {}");
    EXPECT_EQ(Rewritten(L"('a' ('b'))"), " (\r\n    'a'\r\n    (\r\n      'b'))");
    EXPECT_EQ(Rewritten(L"<item A=1 end item [2] end>"),
              " <\r\n    item\r\n      A = 1\r\n    end\r\n    item [2]\r\n    end>");
    EXPECT_EQ(Rewritten(L"{0aFF}"), " {\r\n    0AFF}");
}

TEST(FormTextTest, BreaksLongStringsAndBytesIntoLines) {
    const String sixtyFour(64, L'x');
    const std::string plain(64, 'x');
    EXPECT_EQ(Rewritten(L"'" + sixtyFour + L"'"), " '" + plain + "'");
    EXPECT_EQ(Rewritten(L"'" + sixtyFour + L"y'"), "\r\n    '" + plain + "' +\r\n    'y'");
    EXPECT_EQ(Rewritten(L"('" + sixtyFour + L"y' 'z')"),
              " (\r\n    '" + plain + "' +\r\n    'y'\r\n    'z')");
    EXPECT_EQ(Rewritten(L"{" + String(64, L'1') + L"22}"),
              " {\r\n    " + std::string(64, '1') + "\r\n    22}");
}

TEST(FormTextTest, WritesObjectsWithTheirChildren) {
    const std::string text =
        "inherited Main: TMain\r\n"
        "  Font.Style = [fsBold]\r\n"
        "  inline Frame1: TFrame1 [3]\r\n"
        "    Tag = 1\r\n"
        "    inherited Button1: TButton\r\n"
        "    end\r\n"
        "  end\r\n"
        "  object TTimer\r\n"
        "  end\r\n"
        "end\r\n";
    EXPECT_EQ(FormToText(ParseFormText(FromUtf8(text))), text);
}

TEST(FormTextTest, ReadsFilesInUtf8AndInCodePage1252) {
    const auto caption = [](std::string_view bytes) {
        const auto document = ParseForm(std::as_bytes(std::span(bytes)));
        return *document.Root.FindProperty(L"Caption")->Value.As<String>();
    };
    EXPECT_EQ(caption("object A: TA Caption = 'Wei\xC3\x9F' end"), L"Wei\xDF");
    EXPECT_EQ(caption("\xEF\xBB\xBFobject A: TA Caption = 'Wei\xC3\x9F' end"), L"Wei\xDF");
    EXPECT_EQ(caption("object A: TA Caption = 'Wei\xDF \x80\x92' end"), L"Wei\xDF \x20AC\x2019");
}

TEST(FormTextTest, MarksAFileAsUtf8OnlyWhenItNeedsIt) {
    const auto first = [](const wchar_t* text) {
        return FormToBytes(ParseFormText(text), TFormFormat::Text).front();
    };
    EXPECT_EQ(first(L"object A: TA Caption = 'Wei\xDF' end"), std::byte{'o'});
    EXPECT_EQ(first(L"object \xC4rger: TA end"), std::byte{0xEF});
}

TEST(FormTextTest, FindsObjectsAndPropertiesByName) {
    const auto document = ParseFormText(L"object A: TA\n object B: TB\n object C: TC\n X = 5\n end end end");
    const TFormObject* found = document.Root.FindObject(L"c");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->ClassName, L"TC");
    EXPECT_NE(found->FindProperty(L"x"), nullptr);
    EXPECT_EQ(found->FindProperty(L"Y"), nullptr);
    EXPECT_EQ(document.Root.FindObject(L"D"), nullptr);
}

}  // namespace
}  // namespace vcl
