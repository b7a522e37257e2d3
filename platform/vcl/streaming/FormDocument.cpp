#include "platform/vcl/streaming/FormDocument.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace vcl {

bool operator==(const TFormValue& a, const TFormValue& b) {
    const auto same = [&b](const auto& content) {
        using T = std::decay_t<decltype(content)>;
        const T* other = b.As<T>();
        if (!other) return false;
        if constexpr (std::is_same_v<T, TFormNull> || std::is_same_v<T, TFormNil>)
            return true;
        else if constexpr (std::is_same_v<T, TFormIdent>)
            return content.Name == other->Name;
        else if constexpr (std::is_same_v<T, TFormSet>)
            return std::ranges::equal(content.Elements, other->Elements, {}, &TFormSetElement::Name,
                                      &TFormSetElement::Name);
        else if constexpr (std::is_same_v<T, TFormList>)
            return content.Values == other->Values;
        else if constexpr (std::is_same_v<T, TFormBinary>)
            return content.Bytes == other->Bytes;
        else if constexpr (std::is_same_v<T, TFormCollection>)
            return content.Items == other->Items;
        else
            return content == *other;
    };
    return std::visit(same, a.Content);
}

bool operator==(const TFormProperty& a, const TFormProperty& b) {
    return a.Name == b.Name && a.Value == b.Value;
}

bool operator==(const TFormItem& a, const TFormItem& b) {
    return a.Order == b.Order && a.Properties == b.Properties;
}

bool operator==(const TFormObject& a, const TFormObject& b) {
    return a.Kind == b.Kind && a.Name == b.Name && a.ClassName == b.ClassName && a.ChildPos == b.ChildPos &&
           a.Properties == b.Properties && a.Children == b.Children;
}

TValueKind TFormValue::Kind() const {
    using enum TValueKind;
    // In the order of TContent.
    constexpr std::array kinds{Null,       Nil, Boolean, Integer, Float,     String,
                               Identifier, Set, List,    Binary,  Collection};
    static_assert(kinds.size() == std::variant_size_v<TContent>);
    return kinds[Content.index()];
}

const TFormProperty* TFormObject::FindProperty(StringView name) const {
    const auto found = std::ranges::find_if(
        Properties, [&](const TFormProperty& property) { return SameText(property.Name, name); });
    return found == Properties.end() ? nullptr : &*found;
}

const TFormObject* TFormObject::FindObject(StringView name) const {
    if (SameText(Name, name)) return this;
    for (const TFormObject& child : Children) {
        if (const TFormObject* found = child.FindObject(name)) return found;
    }
    return nullptr;
}

const wchar_t* ValueKindText(TValueKind kind) {
    switch (kind) {
        case TValueKind::EndOfList:
            return L"the end of the list";
        case TValueKind::Null:
            return L"Null";
        case TValueKind::Nil:
            return L"nil";
        case TValueKind::Boolean:
            return L"a Boolean";
        case TValueKind::Integer:
            return L"a whole number";
        case TValueKind::Float:
            return L"a number with a fraction";
        case TValueKind::String:
            return L"a string";
        case TValueKind::Identifier:
            return L"a name";
        case TValueKind::Set:
            return L"a set";
        case TValueKind::List:
            return L"a list";
        case TValueKind::Binary:
            return L"bytes";
        case TValueKind::Collection:
            return L"a collection";
    }
    return L"";
}

}  // namespace vcl
