#include "platform/vcl/streaming/FormLexer.h"
#include "platform/vcl/streaming/FormText.h"

#include <limits>
#include <utility>

namespace vcl {
namespace {

class TFormTextParser {
public:
    TFormTextParser(StringView text, const String& fileName) : FPlace(fileName), FLexer(text, FPlace) {}

    TFormObject ParseRoot() {
        TFormObject root = ParseObject(1);
        if (Token().Kind != TFormTokenKind::End) FailExpected(L"the end of the file");
        return root;
    }

private:
    [[nodiscard]] const TFormToken& Token() const { return FLexer.Token(); }
    [[nodiscard]] bool AtSymbol(wchar_t symbol) const { return Token().IsSymbol(symbol); }
    [[noreturn]] void FailExpected(const wchar_t* expected) const;
    void Expect(wchar_t symbol);
    String ExpectName(const wchar_t* what);
    void CheckDepth(int depth) const;

    [[nodiscard]] bool AtObject() const;
    TFormObject ParseObject(int depth);
    void ParseHeader(TFormObject& object);
    std::optional<std::int32_t> ParseNumberInBrackets();
    void ParseProperties(std::vector<TFormProperty>& properties, int depth);
    void ParseEnd();

    TFormValue ParseValue(int depth);
    TFormValue::TContent ParseContent(int depth);
    TFormValue::TContent ParseNameValue();
    TFormSet ParseSet();
    TFormList ParseList(int depth);
    TFormCollection ParseCollection(int depth);

    TFormPlace FPlace;
    TFormLexer FLexer;
};

void TFormTextParser::FailExpected(const wchar_t* expected) const {
    const auto kind =
        Token().Kind == TFormTokenKind::End ? TFormProblemKind::Truncated : TFormProblemKind::Syntax;
    FPlace.Fail(kind, Token().Position,
                Format(L"%s found where %s is expected", Token().Description(), expected));
}

void TFormTextParser::Expect(wchar_t symbol) {
    if (!AtSymbol(symbol)) FailExpected(Format(L"'%c'", symbol).c_str());
    FLexer.Advance();
}

String TFormTextParser::ExpectName(const wchar_t* what) {
    if (Token().Kind != TFormTokenKind::Name || Token().Text.find(L'.') != StringView::npos)
        FailExpected(what);
    String name(Token().Text);
    FLexer.Advance();
    return name;
}

void TFormTextParser::CheckDepth(int depth) const {
    if (depth > MaxFormNesting)
        FPlace.Fail(TFormProblemKind::TooDeep, Token().Position, L"Nested too deeply");
}

bool TFormTextParser::AtObject() const {
    return FLexer.IsKeyword(L"object") || FLexer.IsKeyword(L"inherited") || FLexer.IsKeyword(L"inline");
}

TFormObject TFormTextParser::ParseObject(int depth) {
    CheckDepth(depth);
    TFormObject object;
    ParseHeader(object);
    const TFormPlace::TScope scope(FPlace, object);
    ParseProperties(object.Properties, depth);
    while (AtObject())
        object.Children.push_back(ParseObject(depth + 1));
    ParseEnd();
    return object;
}

void TFormTextParser::ParseHeader(TFormObject& object) {
    object.Position = Token().Position;
    if (FLexer.IsKeyword(L"object"))
        object.Kind = TFormObjectKind::Object;
    else if (FLexer.IsKeyword(L"inherited"))
        object.Kind = TFormObjectKind::Inherited;
    else if (FLexer.IsKeyword(L"inline"))
        object.Kind = TFormObjectKind::Inline;
    else
        FailExpected(L"'object', 'inherited' or 'inline'");
    FLexer.Advance();
    object.ClassName = ExpectName(L"a name");
    if (AtSymbol(L':')) {
        FLexer.Advance();
        object.Name = std::exchange(object.ClassName, ExpectName(L"the name of a class"));
    }
    object.ChildPos = ParseNumberInBrackets();
}

std::optional<std::int32_t> TFormTextParser::ParseNumberInBrackets() {
    if (!AtSymbol(L'[')) return std::nullopt;
    FLexer.Advance();
    if (Token().Kind != TFormTokenKind::Integer) FailExpected(L"a whole number");
    const std::int64_t number = Token().Integer;
    using Limits = std::numeric_limits<std::int32_t>;
    if (number < Limits::min() || number > Limits::max())
        FPlace.Fail(TFormProblemKind::OutOfRange, Token().Position, Format(L"Number too big: %d", number));
    FLexer.Advance();
    Expect(L']');
    return static_cast<std::int32_t>(number);
}

void TFormTextParser::ParseProperties(std::vector<TFormProperty>& properties, int depth) {
    while (Token().Kind == TFormTokenKind::Name && !FLexer.IsKeyword(L"end") && !AtObject()) {
        TFormProperty property{String(Token().Text), {}, Token().Position};
        const TFormPlace::TScope scope(FPlace, property.Name);
        FLexer.Advance();
        Expect(L'=');
        property.Value = ParseValue(depth);
        properties.push_back(std::move(property));
    }
}

void TFormTextParser::ParseEnd() {
    if (!FLexer.IsKeyword(L"end")) FailExpected(L"'end'");
    FLexer.Advance();
}

TFormValue TFormTextParser::ParseValue(int depth) {
    CheckDepth(depth);
    TFormValue value;
    value.Position = Token().Position;
    value.Content = ParseContent(depth);
    return value;
}

TFormValue::TContent TFormTextParser::ParseContent(int depth) {
    TFormValue::TContent content;
    switch (Token().Kind) {
        case TFormTokenKind::Name:
            return ParseNameValue();
        case TFormTokenKind::Integer:
            content = Token().Integer;
            break;
        case TFormTokenKind::Float:
            content = Token().Float;
            break;
        case TFormTokenKind::String:
            content = Token().Value;
            break;
        default:
            if (AtSymbol(L'[')) return ParseSet();
            if (AtSymbol(L'(')) return ParseList(depth);
            if (AtSymbol(L'<')) return ParseCollection(depth);
            if (AtSymbol(L'{')) return TFormBinary{FLexer.ReadBytes()};
            FailExpected(L"a value");
    }
    FLexer.Advance();
    return content;
}

TFormValue::TContent TFormTextParser::ParseNameValue() {
    const StringView name = Token().Text;
    TFormValue::TContent content;
    if (SameText(name, L"True"))
        content = true;
    else if (SameText(name, L"False"))
        content = false;
    else if (SameText(name, L"nil"))
        content = TFormNil();
    else if (SameText(name, L"Null"))
        content = TFormNull();
    else
        content = TFormIdent{String(name)};
    FLexer.Advance();
    return content;
}

TFormSet TFormTextParser::ParseSet() {
    TFormSet set;
    FLexer.Advance();
    while (!AtSymbol(L']')) {
        if (!set.Elements.empty()) Expect(L',');
        const TFormPosition position = Token().Position;
        set.Elements.push_back({ExpectName(L"the name of a set's element"), position});
    }
    FLexer.Advance();
    return set;
}

TFormList TFormTextParser::ParseList(int depth) {
    TFormList list;
    FLexer.Advance();
    while (!AtSymbol(L')')) {
        TFormValue value = ParseValue(depth + 1);
        if (value.Kind() == TValueKind::Null)
            FPlace.Fail(TFormProblemKind::Syntax, value.Position, L"Null can't stand in a list");
        list.Values.push_back(std::move(value));
    }
    FLexer.Advance();
    return list;
}

TFormCollection TFormTextParser::ParseCollection(int depth) {
    TFormCollection collection;
    FLexer.Advance();
    while (!AtSymbol(L'>')) {
        if (!FLexer.IsKeyword(L"item")) FailExpected(L"'item' or '>'");
        const TFormPlace::TScope scope(FPlace, collection.Items.size());
        TFormItem item;
        item.Position = Token().Position;
        FLexer.Advance();
        item.Order = ParseNumberInBrackets();
        ParseProperties(item.Properties, depth + 1);
        ParseEnd();
        collection.Items.push_back(std::move(item));
    }
    FLexer.Advance();
    return collection;
}

}  // namespace

TFormDocument ParseFormText(StringView text, const String& fileName) {
    return {TFormTextParser(text, fileName).ParseRoot(), fileName};
}

}  // namespace vcl
