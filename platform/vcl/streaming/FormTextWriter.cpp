#include "platform/vcl/streaming/FormText.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace vcl {
namespace {

/// Strings longer than this, in characters, go to lines of their own.
constexpr std::size_t StringPiece = 64;
constexpr std::size_t BytesInLine = 32;

bool IsPlain(wchar_t c) {
    return c >= L' ' && c < 0x7F;
}

class TFormTextWriter {
public:
    void WriteObject(const TFormObject& object, int indent);
    [[nodiscard]] std::string TakeText() { return std::move(FText); }

private:
    void NewLine(int indent);
    void Write(std::string_view ascii) { FText += ascii; }
    void WriteName(StringView name) { FText += ToUtf8(name); }
    void WriteNumberInBrackets(const std::optional<std::int32_t>& number);
    void WriteProperties(const std::vector<TFormProperty>& properties, int indent);
    void WriteValue(const TFormValue& value, int indent);

    void WriteContent(TFormNull, int) { Write("Null"); }
    void WriteContent(TFormNil, int) { Write("nil"); }
    void WriteContent(bool value, int) { Write(value ? "True" : "False"); }
    void WriteContent(std::int64_t value, int) { Write(std::to_string(value)); }
    void WriteContent(const TFormFloat& value, int) { WriteName(FormFloatToText(value)); }
    void WriteContent(const String& value, int indent);
    void WriteContent(const TFormIdent& value, int) { WriteName(value.Name); }
    void WriteContent(const TFormSet& value, int);
    void WriteContent(const TFormList& value, int indent);
    void WriteContent(const TFormBinary& value, int indent);
    void WriteContent(const TFormCollection& value, int indent);
    void WriteStringPiece(StringView piece);

    std::string FText;
};

void TFormTextWriter::NewLine(int indent) {
    FText += "\r\n";
    FText.append(static_cast<std::size_t>(indent) * 2, ' ');
}

void TFormTextWriter::WriteNumberInBrackets(const std::optional<std::int32_t>& number) {
    if (number) Write(" [" + std::to_string(*number) + "]");
}

void TFormTextWriter::WriteObject(const TFormObject& object, int indent) {
    FText.append(static_cast<std::size_t>(indent) * 2, ' ');
    switch (object.Kind) {
        case TFormObjectKind::Object:
            Write("object ");
            break;
        case TFormObjectKind::Inherited:
            Write("inherited ");
            break;
        case TFormObjectKind::Inline:
            Write("inline ");
            break;
    }
    if (!object.Name.empty()) {
        WriteName(object.Name);
        Write(": ");
    }
    WriteName(object.ClassName);
    WriteNumberInBrackets(object.ChildPos);
    WriteProperties(object.Properties, indent + 1);
    Write("\r\n");
    for (const TFormObject& child : object.Children)
        WriteObject(child, indent + 1);
    FText.append(static_cast<std::size_t>(indent) * 2, ' ');
    Write("end\r\n");
}

void TFormTextWriter::WriteProperties(const std::vector<TFormProperty>& properties, int indent) {
    for (const TFormProperty& property : properties) {
        NewLine(indent);
        WriteName(property.Name);
        Write(" =");
        WriteValue(property.Value, indent);
    }
}

void TFormTextWriter::WriteValue(const TFormValue& value, int indent) {
    const String* text = value.As<String>();
    if (!text || text->size() <= StringPiece) Write(" ");
    std::visit([&](const auto& content) { WriteContent(content, indent); }, value.Content);
}

void TFormTextWriter::WriteContent(const String& value, int indent) {
    if (value.size() <= StringPiece) return WriteStringPiece(value);
    for (std::size_t start = 0; start < value.size(); start += StringPiece) {
        if (start > 0) Write(" +");
        NewLine(indent + 1);
        WriteStringPiece(StringView(value).substr(start, StringPiece));
    }
}

void TFormTextWriter::WriteStringPiece(StringView piece) {
    if (piece.empty()) Write("''");
    while (!piece.empty()) {
        const auto plain = static_cast<std::size_t>(std::ranges::find_if_not(piece, IsPlain) - piece.begin());
        if (plain > 0) {
            Write("'");
            for (const wchar_t c : piece.substr(0, plain))
                FText.append(c == L'\'' ? 2 : 1, static_cast<char>(c));
            Write("'");
        }
        piece.remove_prefix(plain);
        for (; !piece.empty() && !IsPlain(piece.front()); piece.remove_prefix(1))
            Write("#" + std::to_string(static_cast<unsigned>(piece.front())));
    }
}

void TFormTextWriter::WriteContent(const TFormSet& value, int) {
    Write("[");
    for (std::size_t i = 0; i < value.Elements.size(); ++i) {
        if (i > 0) Write(", ");
        WriteName(value.Elements[i].Name);
    }
    Write("]");
}

void TFormTextWriter::WriteContent(const TFormList& value, int indent) {
    Write("(");
    for (const TFormValue& element : value.Values) {
        const String* text = element.As<String>();
        // A long string starts its own line.
        if (!text || text->size() <= StringPiece) NewLine(indent + 1);
        std::visit([&](const auto& content) { WriteContent(content, text ? indent : indent + 1); },
                   element.Content);
    }
    Write(")");
}

void TFormTextWriter::WriteContent(const TFormBinary& value, int indent) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    Write("{");
    for (std::size_t i = 0; i < value.Bytes.size(); ++i) {
        if (i % BytesInLine == 0) NewLine(indent + 1);
        const auto byte = std::to_integer<unsigned>(value.Bytes[i]);
        FText += digits[byte >> 4];
        FText += digits[byte & 15];
    }
    Write("}");
}

void TFormTextWriter::WriteContent(const TFormCollection& value, int indent) {
    Write("<");
    for (const TFormItem& item : value.Items) {
        NewLine(indent + 1);
        Write("item");
        WriteNumberInBrackets(item.Order);
        WriteProperties(item.Properties, indent + 2);
        NewLine(indent + 1);
        Write("end");
    }
    Write(">");
}

}  // namespace

std::string FormToText(const TFormObject& object) {
    TFormTextWriter writer;
    writer.WriteObject(object, 0);
    return writer.TakeText();
}

std::string FormToText(const TFormDocument& document) {
    return FormToText(document.Root);
}

}  // namespace vcl
