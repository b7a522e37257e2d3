#include "platform/vcl/core/TextEncoding.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormBinaryFormat.h"
#include "platform/vcl/streaming/FormPlace.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace vcl {
namespace {

using enum TBinaryKind;
using TBytes = std::vector<std::byte>;

constexpr std::size_t LongestName = 255;
/// A longer length would look like the prefix of an object.
constexpr std::size_t LongestClassName = PrefixMark - 1;

template <class T>
bool Fits(std::int64_t value) {
    return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

template <class T>
void Append(TBytes& bytes, T value) {
    const std::size_t start = bytes.size();
    bytes.resize(start + sizeof(T));
    std::memcpy(bytes.data() + start, &value, sizeof(T));
}

void Append(TBytes& bytes, const void* data, std::size_t size) {
    const auto* first = static_cast<const std::byte*>(data);
    bytes.insert(bytes.end(), first, first + size);
}

class TFormBinaryWriter {
public:
    explicit TFormBinaryWriter(const String& fileName) : FPlace(fileName) {}

    TBytes Write(const TFormObject& root) {
        Append(FBytes, FormSignature.data(), FormSignature.size());
        WriteObject(root);
        return std::move(FBytes);
    }

private:
    void WriteKind(TBinaryKind kind) { Append(FBytes, kind); }
    void WriteEnd() { Append(FBytes, std::uint8_t{0}); }
    void WriteName(const String& name, TFormPosition position, std::size_t limit = LongestName);
    void WriteObject(const TFormObject& object);
    void WritePrefix(const TFormObject& object);
    void WriteProperties(const std::vector<TFormProperty>& properties);
    void WriteLength(std::size_t length, TFormPosition position);

    void WriteValue(const TFormValue& value) {
        std::visit([&](const auto& content) { WriteContent(content, value.Position); }, value.Content);
    }
    void WriteContent(TFormNull, TFormPosition) { WriteKind(vaNull); }
    void WriteContent(TFormNil, TFormPosition) { WriteKind(vaNil); }
    void WriteContent(bool value, TFormPosition) { WriteKind(value ? vaTrue : vaFalse); }
    void WriteContent(std::int64_t value, TFormPosition = {});
    void WriteContent(const TFormFloat& value, TFormPosition);
    void WriteContent(const String& value, TFormPosition position);
    void WriteContent(const TFormIdent& value, TFormPosition position);
    void WriteContent(const TFormSet& value, TFormPosition);
    void WriteContent(const TFormList& value, TFormPosition);
    void WriteContent(const TFormBinary& value, TFormPosition position);
    void WriteContent(const TFormCollection& value, TFormPosition);

    TFormPlace FPlace;
    TBytes FBytes;
};

void TFormBinaryWriter::WriteName(const String& name, TFormPosition position, std::size_t limit) {
    const std::string text = ToUtf8(name);
    if (text.size() > limit)
        FPlace.Fail(TFormProblemKind::OutOfRange, position, L"The name is too long for a binary form");
    Append(FBytes, static_cast<std::uint8_t>(text.size()));
    Append(FBytes, text.data(), text.size());
}

void TFormBinaryWriter::WriteObject(const TFormObject& object) {
    const TFormPlace::TScope scope(FPlace, object);
    WritePrefix(object);
    WriteName(object.ClassName, object.Position, LongestClassName);
    WriteName(object.Name, object.Position);
    WriteProperties(object.Properties);
    for (const TFormObject& child : object.Children)
        WriteObject(child);
    WriteEnd();
}

void TFormBinaryWriter::WritePrefix(const TFormObject& object) {
    unsigned flags = 0;
    if (object.Kind == TFormObjectKind::Inherited) flags |= PrefixInherited;
    if (object.Kind == TFormObjectKind::Inline) flags |= PrefixInline;
    if (object.ChildPos) flags |= PrefixChildPos;
    if (flags != 0) Append(FBytes, static_cast<std::uint8_t>(PrefixMark | flags));
    if (object.ChildPos) WriteContent(std::int64_t{*object.ChildPos});
}

void TFormBinaryWriter::WriteProperties(const std::vector<TFormProperty>& properties) {
    for (const TFormProperty& property : properties) {
        const TFormPlace::TScope scope(FPlace, property.Name);
        WriteName(property.Name, property.Position);
        WriteValue(property.Value);
    }
    WriteEnd();
}

void TFormBinaryWriter::WriteLength(std::size_t length, TFormPosition position) {
    if (length > std::numeric_limits<std::int32_t>::max())
        FPlace.Fail(TFormProblemKind::OutOfRange, position, L"The value is too long for a binary form");
    Append(FBytes, static_cast<std::uint32_t>(length));
}

void TFormBinaryWriter::WriteContent(std::int64_t value, TFormPosition) {
    if (Fits<std::int8_t>(value)) {
        WriteKind(vaInt8);
        Append(FBytes, static_cast<std::int8_t>(value));
    } else if (Fits<std::int16_t>(value)) {
        WriteKind(vaInt16);
        Append(FBytes, static_cast<std::int16_t>(value));
    } else if (Fits<std::int32_t>(value)) {
        WriteKind(vaInt32);
        Append(FBytes, static_cast<std::int32_t>(value));
    } else {
        WriteKind(vaInt64);
        Append(FBytes, value);
    }
}

void TFormBinaryWriter::WriteContent(const TFormFloat& value, TFormPosition) {
    switch (value.Kind) {
        case TFormFloatKind::Extended:
            WriteKind(vaExtended);
            Append(FBytes, value.Value.Mantissa);
            Append(FBytes, value.Value.SignAndExponent);
            break;
        case TFormFloatKind::Single:
            WriteKind(vaSingle);
            Append(FBytes, static_cast<float>(value.Value.ToDouble()));
            break;
        case TFormFloatKind::Currency:
            WriteKind(vaCurrency);
            Append(FBytes, value.Value.ExactInteger().value_or(0));
            break;
        case TFormFloatKind::Date:
            WriteKind(vaDate);
            Append(FBytes, value.Value.ToDouble());
            break;
        case TFormFloatKind::Double:
            WriteKind(vaDouble);
            Append(FBytes, value.Value.ToDouble());
            break;
    }
}

void TFormBinaryWriter::WriteContent(const String& value, TFormPosition position) {
    const bool ascii = std::ranges::all_of(value, [](wchar_t c) { return c < 0x80; });
    if (!ascii && !IsWellFormed(value)) {
        WriteKind(vaWString);
        WriteLength(value.size(), position);
        Append(FBytes, value.data(), value.size() * sizeof(wchar_t));
        return;
    }
    const std::string text = ToUtf8(value);
    if (ascii && text.size() <= std::numeric_limits<std::uint8_t>::max()) {
        WriteKind(vaString);
        Append(FBytes, static_cast<std::uint8_t>(text.size()));
    } else {
        WriteKind(ascii ? vaLString : vaUTF8String);
        WriteLength(text.size(), position);
    }
    Append(FBytes, text.data(), text.size());
}

void TFormBinaryWriter::WriteContent(const TFormIdent& value, TFormPosition position) {
    WriteKind(vaIdent);
    WriteName(value.Name, position);
}

void TFormBinaryWriter::WriteContent(const TFormSet& value, TFormPosition) {
    WriteKind(vaSet);
    for (const TFormSetElement& element : value.Elements)
        WriteName(element.Name, element.Position);
    WriteEnd();
}

void TFormBinaryWriter::WriteContent(const TFormList& value, TFormPosition) {
    WriteKind(vaList);
    for (const TFormValue& element : value.Values)
        WriteValue(element);
    WriteKind(vaNull);
}

void TFormBinaryWriter::WriteContent(const TFormBinary& value, TFormPosition position) {
    WriteKind(vaBinary);
    WriteLength(value.Bytes.size(), position);
    Append(FBytes, value.Bytes.data(), value.Bytes.size());
}

void TFormBinaryWriter::WriteContent(const TFormCollection& value, TFormPosition) {
    WriteKind(vaCollection);
    for (const TFormItem& item : value.Items) {
        if (item.Order) WriteContent(std::int64_t{*item.Order});
        WriteKind(vaList);
        WriteProperties(item.Properties);
    }
    WriteKind(vaNull);
}

}  // namespace

std::vector<std::byte> FormToBinary(const TFormDocument& document) {
    return TFormBinaryWriter(document.FileName).Write(document.Root);
}

std::vector<std::byte> WrapInResource(std::span<const std::byte> form, const String& name) {
    TBytes bytes(ResourceMark.begin(), ResourceMark.end());
    const std::string text = ToUtf8(name);
    Append(bytes, text.c_str(), text.size() + 1);
    Append(bytes, ResourceFlags);
    Append(bytes, static_cast<std::uint32_t>(form.size()));
    bytes.insert(bytes.end(), form.begin(), form.end());
    return bytes;
}

}  // namespace vcl
