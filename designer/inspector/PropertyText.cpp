#include "designer/inspector/PropertyText.h"

#include <algorithm>
#include <charconv>

#include "designer/model/Naming.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/menus/ShortCuts.h"

namespace designer {
namespace {

bool IsShortCut(const TPublishedProperty& row) {
    return SameText(row.Name(), L"ShortCut");
}

String IntegerText(const TPublishedProperty& row, std::int64_t value) {
    if (IsShortCut(row)) return ShortCutToText(static_cast<TShortCut>(value));
    const auto names = row.Identifiers();
    const auto named = std::ranges::find(names, value, &TIdentifier::Value);
    if (named != names.end()) return named->Name;
    return IsColorProperty(row) ? Format(L"$%.8X", static_cast<std::uint32_t>(value)) : IntToStr(value);
}

std::int64_t IntegerOf(const TPublishedProperty& row, const String& text) {
    if (IsShortCut(row)) {
        const TShortCut shortCut = TextToShortCut(text);
        if (shortCut == scNone && !text.empty()) throw EConvertError(Format(L"'%s' ist keine Taste", text));
        return shortCut;
    }
    for (const TIdentifier& id : row.Identifiers())
        if (SameText(id.Name, text)) return id.Value;
    // No two fallbacks give the same for a text that is no number.
    const std::int64_t value = StrToIntDef(text, 0);
    if (value != StrToIntDef(text, 1)) throw EConvertError(Format(L"'%s' ist keine ganze Zahl", text));
    return value;
}

std::int64_t OrdinalOf(const TPublishedProperty& row, const String& name) {
    const auto names = row.ElementNames();
    for (std::size_t i = 0; i < names.size(); ++i)
        if (SameText(names[i], name)) return static_cast<std::int64_t>(i);
    throw EConvertError(Format(L"'%s' ist kein Wert von %s", name, row.Name()));
}

String SetText(const TPublishedProperty& row, std::int64_t bits) {
    String text = L"[";
    const auto names = row.ElementNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
        if ((bits >> i & 1) == 0) continue;
        if (text.size() > 1) text += L',';
        text += names[i];
    }
    return text + L']';
}

std::int64_t SetOf(const TPublishedProperty& row, const String& text) {
    StringView rest = text;
    if (!rest.empty() && rest.front() == L'[') rest.remove_prefix(1);
    if (!rest.empty() && rest.back() == L']') rest.remove_suffix(1);
    std::int64_t bits = 0;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(L','), rest.size());
        if (const String name = Trim(rest.substr(0, end)); !name.empty())
            bits |= std::int64_t{1} << OrdinalOf(row, name);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return bits;
}

String FloatText(double value) {
    char digits[40];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    return FromUtf8({digits, static_cast<std::size_t>(end - digits)});
}

double FloatOf(const String& text) {
    std::string digits = ToUtf8(Trim(text));
    std::ranges::replace(digits, ',', '.');
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
        throw EConvertError(Format(L"'%s' ist keine Zahl", text));
    return value;
}

TPersistent* ComponentOf(const TPublishedProperty& row, const String& name, const TComponent& root) {
    if (name.empty()) return nullptr;
    TComponent* component =
        SameText(name, root.GetName()) ? const_cast<TComponent*>(&root) : root.FindComponent(name);
    if (!component) throw EConvertError(Format(L"Es gibt keine Komponente '%s'", name));
    if (row.ObjectClass() && !component->InheritsFrom(*row.ObjectClass()))
        throw EConvertError(Format(L"%s ist kein %s", name, row.ObjectClass()->ClassName()));
    return component;
}

void SetMethod(const TPublishedProperty& row, TPersistent& object, const String& name,
               const TComponent& root) {
    if (!name.empty()) CheckMethodName(root, row, name);
    row.Event(object)->SetMethodName(name);
}

void AddComponents(const TPublishedProperty& row, const TComponent& root, std::vector<String>& choices) {
    for (int i = 0; i < root.GetComponentCount(); ++i) {
        const TComponent& component = *root.GetComponent(i);
        if (!component.GetName().empty() &&
            (!row.ObjectClass() || component.InheritsFrom(*row.ObjectClass())))
            choices.push_back(component.GetName());
    }
}

void AddMethods(const TPublishedProperty& wanted, TComponent& component, std::vector<String>& choices) {
    for (const TPublishedProperty* row : component.ClassType().AllProperties()) {
        if (row->Kind() != TPropertyKind::Event || row->EventType() != wanted.EventType()) continue;
        if (const String* name = row->Event(component)->MethodName()) choices.push_back(*name);
    }
}

}  // namespace

bool IsColorProperty(const TPublishedProperty& row) {
    const auto names = row.Identifiers();
    return std::ranges::any_of(names, [](const TIdentifier& id) { return SameText(id.Name, L"clBlack"); });
}

String PropertyText(const TPublishedProperty& row, TPersistent& object) {
    if (row.Kind() == TPropertyKind::Event) {
        const String* name = row.Event(object)->MethodName();
        return name ? *name : String();
    }
    const TPropertyValue value = row.Get(object);
    switch (row.Kind()) {
        case TPropertyKind::Boolean:
            return std::get<std::int64_t>(value) != 0 ? L"True" : L"False";
        case TPropertyKind::Enumeration: {
            const auto names = row.ElementNames();
            const auto ordinal = static_cast<std::size_t>(std::get<std::int64_t>(value));
            return ordinal < names.size() ? String(names[ordinal]) : IntToStr(std::get<std::int64_t>(value));
        }
        case TPropertyKind::Set:
            return SetText(row, std::get<std::int64_t>(value));
        case TPropertyKind::Float:
            return FloatText(std::get<double>(value));
        case TPropertyKind::String:
            return std::get<String>(value);
        case TPropertyKind::Nested: {
            const TPersistent* nested = std::get<TPersistent*>(value);
            return nested ? Format(L"(%s)", nested->ClassName()) : String();
        }
        case TPropertyKind::Component: {
            const auto* component = dynamic_cast<const TComponent*>(std::get<TPersistent*>(value));
            return component ? component->GetName() : String();
        }
        default:
            return IntegerText(row, std::get<std::int64_t>(value));
    }
}

void SetPropertyText(const TPublishedProperty& row, TPersistent& object, const String& text,
                     const TComponent& root) {
    switch (row.Kind()) {
        case TPropertyKind::Boolean:
            if (!SameText(text, L"True") && !SameText(text, L"False"))
                throw EConvertError(Format(L"'%s' ist weder True noch False", text));
            return row.Set(object, std::int64_t{SameText(text, L"True")});
        case TPropertyKind::Enumeration:
            return row.Set(object, OrdinalOf(row, text));
        case TPropertyKind::Set:
            return row.Set(object, SetOf(row, text));
        case TPropertyKind::Float:
            return row.Set(object, FloatOf(text));
        case TPropertyKind::String:
            return row.Set(object, text);
        case TPropertyKind::Component:
            return row.Set(object, ComponentOf(row, text, root));
        case TPropertyKind::Event:
            return SetMethod(row, object, text, root);
        case TPropertyKind::Nested:
            throw EConvertError(Format(L"%s hat keinen Wert als Text", row.Name()));
        default:
            return row.Set(object, IntegerOf(row, text));
    }
}

std::vector<String> PropertyChoices(const TPublishedProperty& row, const TComponent& root) {
    std::vector<String> choices;
    switch (row.Kind()) {
        case TPropertyKind::Boolean:
            return {L"False", L"True"};
        case TPropertyKind::Enumeration:
            for (const wchar_t* name : row.ElementNames())
                choices.emplace_back(name);
            return choices;
        case TPropertyKind::Component:
            AddComponents(row, root, choices);
            break;
        case TPropertyKind::Event:
            AddMethods(row, const_cast<TComponent&>(root), choices);
            for (int i = 0; i < root.GetComponentCount(); ++i)
                AddMethods(row, *root.GetComponent(i), choices);
            break;
        default:
            for (const TIdentifier& id : row.Identifiers())
                choices.emplace_back(id.Name);
            return choices;
    }
    std::ranges::sort(choices, [](const String& a, const String& b) { return CompareText(a, b) < 0; });
    choices.erase(std::unique(choices.begin(), choices.end()), choices.end());
    return choices;
}

}  // namespace designer
