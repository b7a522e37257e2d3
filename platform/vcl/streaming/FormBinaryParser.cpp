#include "platform/vcl/core/TextEncoding.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormBinaryFormat.h"
#include "platform/vcl/streaming/FormBytes.h"
#include "platform/vcl/streaming/FormNames.h"

#include <algorithm>
#include <utility>

namespace vcl {
namespace {

using enum TBinaryKind;

class TFormBinaryParser {
public:
    TFormBinaryParser(std::span<const std::byte> bytes, const String& fileName)
        : FPlace(fileName), FBytes(bytes, FPlace) {}

    TFormObject ParseRoot() {
        SkipResourceHeader();
        const auto signature = FBytes.Take(FormSignature.size(), FBytes.Offset());
        if (!std::ranges::equal(signature, FormSignature))
            FBytes.Fail(TFormProblemKind::Syntax, FBytes.Offset() - FormSignature.size(),
                        L"No binary form: the signature TPF0 is missing");
        return ParseObject(1);
    }
    [[nodiscard]] std::size_t Offset() const { return FBytes.Offset(); }
    void ExpectEnd() const {
        if (!FBytes.AtEnd())
            FBytes.Fail(TFormProblemKind::Syntax, FBytes.Offset(), L"Bytes behind the end of the form");
    }

private:
    void SkipResourceHeader();
    void CheckDepth(int depth) const;
    String ReadName(const wchar_t* what, bool dotted);
    TFormObject ParseObject(int depth);
    void ParsePrefix(TFormObject& object);
    void ParseProperties(std::vector<TFormProperty>& properties, int depth);
    std::int64_t ReadInteger(TBinaryKind kind);
    std::optional<std::int32_t> ParseOrder();

    TFormValue ParseValue(int depth);
    TFormValue::TContent ParseContent(TBinaryKind kind, std::size_t start, int depth);
    TFormValue::TContent ParseFloat(TBinaryKind kind, std::size_t start);
    TFormValue::TContent ParseIdent();
    String ParseString(TBinaryKind kind, std::size_t start);
    TFormBinary ParseBinary(std::size_t start);
    TFormSet ParseSet();
    TFormList ParseList(int depth);
    TFormCollection ParseCollection(int depth);

    TFormPlace FPlace;
    TFormBytes FBytes;
};

void TFormBinaryParser::SkipResourceHeader() {
    if (FBytes.Peek() != std::to_integer<std::uint8_t>(ResourceMark.front())) return;
    const auto mark = FBytes.Take(ResourceMark.size(), 0);
    if (!std::ranges::equal(mark, ResourceMark))
        FBytes.Fail(TFormProblemKind::Syntax, 0, L"No binary form: the resource is no RCDATA");
    while (FBytes.Read<char>() != '\0') {
    }
    (void)FBytes.Read<std::uint16_t>();
    FBytes.Limit(FBytes.Read<std::uint32_t>());
}

void TFormBinaryParser::CheckDepth(int depth) const {
    if (depth > MaxFormNesting) FBytes.Fail(TFormProblemKind::TooDeep, FBytes.Offset(), L"Nested too deeply");
}

String TFormBinaryParser::ReadName(const wchar_t* what, bool dotted) {
    const std::size_t start = FBytes.Offset();
    String name = FBytes.ReadShortText();
    if (!IsDottedFormName(name) || (!dotted && name.find(L'.') != String::npos))
        FBytes.Fail(TFormProblemKind::Syntax, start, Format(L"Invalid name of %s", what));
    return name;
}

TFormObject TFormBinaryParser::ParseObject(int depth) {
    CheckDepth(depth);
    TFormObject object;
    object.Position = FBytes.Position();
    ParsePrefix(object);
    object.ClassName = ReadName(L"a class", false);
    if (FBytes.Peek() == 0)
        (void)FBytes.Read<std::uint8_t>();
    else
        object.Name = ReadName(L"a component", false);
    const TFormPlace::TScope scope(FPlace, object);
    ParseProperties(object.Properties, depth);
    while (FBytes.Peek() != 0)
        object.Children.push_back(ParseObject(depth + 1));
    (void)FBytes.Read<std::uint8_t>();
    return object;
}

void TFormBinaryParser::ParsePrefix(TFormObject& object) {
    const unsigned prefix = FBytes.Peek();
    if ((prefix & PrefixMark) != PrefixMark) return;
    (void)FBytes.Read<std::uint8_t>();
    const unsigned flags = prefix & ~PrefixMark;
    const bool both = (flags & PrefixInherited) != 0 && (flags & PrefixInline) != 0;
    if (both || flags > (PrefixInherited | PrefixChildPos | PrefixInline))
        FBytes.Fail(TFormProblemKind::Syntax, FBytes.Offset() - 1,
                    Format(L"Invalid flags of an object (%d)", flags));
    if ((flags & PrefixInherited) != 0) object.Kind = TFormObjectKind::Inherited;
    if ((flags & PrefixInline) != 0) object.Kind = TFormObjectKind::Inline;
    if ((flags & PrefixChildPos) == 0) return;
    object.ChildPos = ParseOrder();
    if (!object.ChildPos)
        FBytes.Fail(TFormProblemKind::Syntax, FBytes.Offset(),
                    L"The place of an object must be a whole number");
}

std::optional<std::int32_t> TFormBinaryParser::ParseOrder() {
    const auto kind = static_cast<TBinaryKind>(FBytes.Peek());
    if (kind != vaInt8 && kind != vaInt16 && kind != vaInt32) return std::nullopt;
    (void)FBytes.Read<std::uint8_t>();
    return static_cast<std::int32_t>(ReadInteger(kind));
}

void TFormBinaryParser::ParseProperties(std::vector<TFormProperty>& properties, int depth) {
    while (FBytes.Peek() != 0) {
        TFormProperty property;
        property.Position = FBytes.Position();
        property.Name = ReadName(L"a property", true);
        const TFormPlace::TScope scope(FPlace, property.Name);
        property.Value = ParseValue(depth);
        properties.push_back(std::move(property));
    }
    (void)FBytes.Read<std::uint8_t>();
}

TFormValue TFormBinaryParser::ParseValue(int depth) {
    CheckDepth(depth);
    TFormValue value;
    value.Position = FBytes.Position();
    const std::size_t start = FBytes.Offset();
    value.Content = ParseContent(static_cast<TBinaryKind>(FBytes.Read<std::uint8_t>()), start, depth);
    return value;
}

TFormValue::TContent TFormBinaryParser::ParseContent(TBinaryKind kind, std::size_t start, int depth) {
    switch (kind) {
        case vaNull:
            return TFormNull();
        case vaNil:
            return TFormNil();
        case vaFalse:
            return false;
        case vaTrue:
            return true;
        case vaInt8:
        case vaInt16:
        case vaInt32:
        case vaInt64:
            return ReadInteger(kind);
        case vaExtended:
        case vaSingle:
        case vaCurrency:
        case vaDate:
        case vaDouble:
            return ParseFloat(kind, start);
        case vaString:
        case vaLString:
        case vaWString:
        case vaUTF8String:
            return ParseString(kind, start);
        case vaIdent:
            return ParseIdent();
        case vaBinary:
            return ParseBinary(start);
        case vaSet:
            return ParseSet();
        case vaList:
            return ParseList(depth);
        case vaCollection:
            return ParseCollection(depth);
    }
    FBytes.Fail(TFormProblemKind::Syntax, start, Format(L"Unknown kind of value (%d)", kind));
}

std::int64_t TFormBinaryParser::ReadInteger(TBinaryKind kind) {
    switch (kind) {
        case vaInt8:
            return FBytes.Read<std::int8_t>();
        case vaInt16:
            return FBytes.Read<std::int16_t>();
        case vaInt32:
            return FBytes.Read<std::int32_t>();
        default:
            return FBytes.Read<std::int64_t>();
    }
}

TFormValue::TContent TFormBinaryParser::ParseFloat(TBinaryKind kind, std::size_t start) {
    TFormFloat number;
    switch (kind) {
        case vaExtended:
            number.Value.Mantissa = FBytes.Read<std::uint64_t>();
            number.Value.SignAndExponent = FBytes.Read<std::uint16_t>();
            break;
        case vaSingle:
            number = {TFormFloatKind::Single, TExtended::FromDouble(FBytes.Read<float>())};
            break;
        case vaCurrency:
            number = {TFormFloatKind::Currency, TExtended::FromInteger(FBytes.Read<std::int64_t>())};
            break;
        case vaDate:
            number = {TFormFloatKind::Date, TExtended::FromDouble(FBytes.Read<double>())};
            break;
        default:
            number = {TFormFloatKind::Double, TExtended::FromDouble(FBytes.Read<double>())};
            break;
    }
    if (!number.Value.IsFinite()) FBytes.Fail(TFormProblemKind::OutOfRange, start, L"Not a finite number");
    return number;
}

TFormValue::TContent TFormBinaryParser::ParseIdent() {
    String name = ReadName(L"a value", true);
    if (SameText(name, L"True")) return true;
    if (SameText(name, L"False")) return false;
    if (SameText(name, L"nil")) return TFormNil();
    if (SameText(name, L"Null")) return TFormNull();
    return TFormIdent{std::move(name)};
}

String TFormBinaryParser::ParseString(TBinaryKind kind, std::size_t start) {
    const std::uint32_t length =
        kind == vaString ? FBytes.Read<std::uint8_t>() : FBytes.Read<std::uint32_t>();
    if (kind == vaWString) {
        const auto bytes = FBytes.Take(std::uint64_t{length} * sizeof(wchar_t), start);
        String text(length, L'\0');
        std::memcpy(text.data(), bytes.data(), bytes.size());
        return text;
    }
    const auto bytes = FBytes.Take(length, start);
    if (kind != vaUTF8String) return DecodeAnsi(bytes);
    auto text = DecodeUtf8(bytes);
    if (!text) FBytes.Fail(TFormProblemKind::Syntax, start, L"Malformed UTF-8");
    return *std::move(text);
}

TFormBinary TFormBinaryParser::ParseBinary(std::size_t start) {
    const auto bytes = FBytes.Take(FBytes.Read<std::uint32_t>(), start);
    return {{bytes.begin(), bytes.end()}};
}

TFormSet TFormBinaryParser::ParseSet() {
    TFormSet set;
    while (FBytes.Peek() != 0) {
        const TFormPosition position = FBytes.Position();
        set.Elements.push_back({ReadName(L"a set's element", false), position});
    }
    (void)FBytes.Read<std::uint8_t>();
    return set;
}

TFormList TFormBinaryParser::ParseList(int depth) {
    TFormList list;
    while (static_cast<TBinaryKind>(FBytes.Peek()) != vaNull) {
        TFormValue value = ParseValue(depth + 1);
        if (value.Kind() == TValueKind::Null)
            FPlace.Fail(TFormProblemKind::Syntax, value.Position, L"Null can't stand in a list");
        list.Values.push_back(std::move(value));
    }
    (void)FBytes.Read<std::uint8_t>();
    return list;
}

TFormCollection TFormBinaryParser::ParseCollection(int depth) {
    TFormCollection collection;
    while (static_cast<TBinaryKind>(FBytes.Peek()) != vaNull) {
        const TFormPlace::TScope scope(FPlace, collection.Items.size());
        TFormItem item;
        item.Position = FBytes.Position();
        item.Order = ParseOrder();
        if (static_cast<TBinaryKind>(FBytes.Read<std::uint8_t>()) != vaList)
            FBytes.Fail(TFormProblemKind::Syntax, FBytes.Offset() - 1, L"An item must begin with a list");
        ParseProperties(item.Properties, depth + 1);
        collection.Items.push_back(std::move(item));
    }
    (void)FBytes.Read<std::uint8_t>();
    return collection;
}

}  // namespace

bool IsFormBinary(std::span<const std::byte> bytes) {
    const auto beginsWith = [bytes](const auto& mark) {
        return bytes.size() >= mark.size() && std::ranges::equal(bytes.first(mark.size()), mark);
    };
    return beginsWith(FormSignature) || beginsWith(ResourceMark);
}

TFormDocument ParseFormBinary(std::span<const std::byte> bytes, const String& fileName) {
    TFormBinaryParser parser(bytes, fileName);
    TFormDocument document{parser.ParseRoot(), fileName};
    parser.ExpectEnd();
    return document;
}

TFormDocument ParseFormBinary(std::span<const std::byte> bytes, const String& fileName, std::size_t& length) {
    TFormBinaryParser parser(bytes, fileName);
    TFormDocument document{parser.ParseRoot(), fileName};
    length = parser.Offset();
    return document;
}

}  // namespace vcl
