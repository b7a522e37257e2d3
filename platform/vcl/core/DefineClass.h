#pragma once

// How a class writes down what it publishes, in its source file:
//
//     const TMetaClass& TButton::StaticClass() {
//         using C = TButton;
//         static const TMetaClass meta = DefineClass<C>(L"TButton", TButtonControl::StaticClass())
//             .Property(L"Color", &C::GetColor, &C::SetColor, clBtnFace).Identifiers(ColorIdentifiers())
//             .Property(L"Font", &C::GetFont, &C::SetFont).Stored(&C::IsFontStored)
//             .Field(L"FocusControl", &C::FocusControl)
//             .Event(L"OnClick", &C::OnClick);
//         return meta;
//     }
//
// The value after the setter is the default that form files leave out; without it the value is always
// written.

#include <functional>
#include <limits>
#include <type_traits>
#include <utility>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/Sets.h"

namespace vcl {
namespace detail {

template <class T>
struct IsSet : std::false_type {};
template <class E>
struct IsSet<TSet<E>> : std::true_type {};

/// The class behind a reference or pointer to a nested object or component.
template <class V>
using Pointee = std::remove_cv_t<std::remove_pointer_t<std::remove_cvref_t<V>>>;

/// The event type that a method fits.
template <class M>
struct EventForMethod;
template <class C, class... Args>
struct EventForMethod<void (C::*)(Args...)> {
    using Type = TEvent<void(Args...)>;
};
template <class M>
using EventFor = typename EventForMethod<M>::Type;

template <class V>
constexpr TPropertyKind KindOf() {
    if constexpr (std::is_same_v<V, bool>)
        return TPropertyKind::Boolean;
    else if constexpr (std::is_enum_v<V>)
        return TPropertyKind::Enumeration;
    else if constexpr (IsSet<V>::value)
        return TPropertyKind::Set;
    else if constexpr (std::is_floating_point_v<V>)
        return TPropertyKind::Float;
    else if constexpr (std::is_integral_v<V>)
        return TPropertyKind::Integer;
    else if constexpr (std::is_same_v<V, String>)
        return TPropertyKind::String;
    else if constexpr (std::is_base_of_v<TComponent, Pointee<V>>)
        return TPropertyKind::Component;
    else if constexpr (std::is_base_of_v<TPersistent, Pointee<V>>)
        return TPropertyKind::Nested;
    else
        static_assert(!sizeof(V), "a property of this type can't be published");
}

template <class V>
TPropertyValue ToPropertyValue(const V& value) {
    using Kind = TPropertyKind;
    constexpr Kind kind = KindOf<V>();
    if constexpr (kind == Kind::Set)
        return static_cast<std::int64_t>(value.Bits());
    else if constexpr (kind == Kind::Float)
        return static_cast<double>(value);
    else if constexpr (kind == Kind::String)
        return value;
    else if constexpr (std::is_pointer_v<V>)
        return static_cast<TPersistent*>(const_cast<Pointee<V>*>(value));
    else
        return static_cast<std::int64_t>(value);
}

[[noreturn]] void RaiseWrongPropertyType(const wchar_t* property);
[[noreturn]] void RaisePropertyOutOfRange(const wchar_t* property, std::int64_t value);

/// Least and greatest value of a type that form files write as a number.
struct TLimits {
    std::int64_t Minimum = 0;
    std::int64_t Maximum = 0;
};
template <class V>
TLimits LimitsOf() {
    if constexpr (std::is_same_v<V, bool>)
        return {0, 1};
    else if constexpr (std::is_enum_v<V>)
        return {0, static_cast<std::int64_t>(TEnumNames<V>::Names().size()) - 1};
    else if constexpr (IsSet<V>::value)
        return {0, (std::int64_t{1} << TEnumNames<typename V::Element>::Names().size()) - 1};
    else if constexpr (std::is_integral_v<V> && sizeof(V) == 8)
        return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
    else if constexpr (std::is_integral_v<V>)
        return {std::numeric_limits<V>::min(), std::numeric_limits<V>::max()};
    else
        return {};
}

/// Takes the stored alternative or raises EConvertError with the property's name.
template <class A>
const A& Expect(const TPropertyValue& value, const wchar_t* property) {
    const A* a = std::get_if<A>(&value);
    if (!a) RaiseWrongPropertyType(property);
    return *a;
}

/// Takes the number or raises EConvertError when it is none or the type can't hold it. Numbers of 32 bits may
/// come signed or unsigned: colours are written both ways.
template <class V>
std::int64_t ExpectNumber(const TPropertyValue& value, const wchar_t* property) {
    TLimits limits = LimitsOf<V>();
    if constexpr (std::is_integral_v<V> && sizeof(V) == 4)
        limits = {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::uint32_t>::max()};
    const std::int64_t number = Expect<std::int64_t>(value, property);
    if (number < limits.Minimum || number > limits.Maximum) RaisePropertyOutOfRange(property, number);
    return number;
}

template <class V>
V FromPropertyValue(const TPropertyValue& value, const wchar_t* property) {
    using Kind = TPropertyKind;
    constexpr Kind kind = KindOf<V>();
    if constexpr (kind == Kind::Set) {
        return V::FromBits(static_cast<std::uint32_t>(ExpectNumber<V>(value, property)));
    } else if constexpr (kind == Kind::Float) {
        if (const auto* n = std::get_if<std::int64_t>(&value)) return static_cast<V>(*n);
        return static_cast<V>(Expect<double>(value, property));
    } else if constexpr (kind == Kind::String) {
        return Expect<String>(value, property);
    } else if constexpr (std::is_pointer_v<V>) {
        TPersistent* object = Expect<TPersistent*>(value, property);
        auto* typed = dynamic_cast<Pointee<V>*>(object);
        if (object && !typed) RaiseWrongPropertyType(property);
        return typed;
    } else {
        return static_cast<V>(ExpectNumber<V>(value, property));
    }
}

/// A row whose kind and limits follow from the value's type; descendants add how to reach the value.
template <class V>
class TypedRow : public TPublishedProperty {
public:
    explicit TypedRow(const wchar_t* name) : TPublishedProperty(name, KindOf<V>()) {
        if constexpr (std::is_enum_v<V>)
            FElementNames = TEnumNames<V>::Names();
        else if constexpr (IsSet<V>::value)
            FElementNames = TEnumNames<typename V::Element>::Names();
        const TLimits limits = LimitsOf<V>();
        FMinimum = limits.Minimum;
        FMaximum = limits.Maximum;
    }
    [[nodiscard]] const TMetaClass* ObjectClass() const override {
        if constexpr (std::is_base_of_v<TPersistent, Pointee<V>>)
            return &Pointee<V>::StaticClass();
        else
            return nullptr;
    }
};

/// A property reached through a getter and, unless it is read-only, a setter.
template <class T, class Getter, class Setter>
class AccessorRow final : public TypedRow<std::remove_cvref_t<std::invoke_result_t<Getter, const T&>>> {
    using Value = std::remove_cvref_t<std::invoke_result_t<Getter, const T&>>;
    using Base = TypedRow<Value>;

public:
    AccessorRow(const wchar_t* name, Getter get, Setter put) : Base(name), FGet(get), FPut(put) {
        this->FReadOnly = std::is_same_v<Setter, std::nullptr_t>;
    }
    [[nodiscard]] TPropertyValue Get(const TObject& object) const override {
        const T& self = static_cast<const T&>(object);
        if constexpr (std::is_base_of_v<TPersistent, Value>) {
            const TPersistent& nested = std::invoke(FGet, self);
            return const_cast<TPersistent*>(&nested);
        } else {
            return ToPropertyValue<Value>(std::invoke(FGet, self));
        }
    }
    void Set(TObject& object, const TPropertyValue& value) const override {
        if constexpr (std::is_same_v<Setter, std::nullptr_t>) {
            throw EConvertError(String(L"Property ") + this->Name() + L" is read-only");
        } else if constexpr (std::is_base_of_v<TPersistent, Value>) {
            const Value* nested = FromPropertyValue<Value*>(value, this->Name());
            if (!nested) RaiseWrongPropertyType(this->Name());
            std::invoke(FPut, static_cast<T&>(object), *nested);
        } else {
            std::invoke(FPut, static_cast<T&>(object), FromPropertyValue<Value>(value, this->Name()));
        }
    }

private:
    Getter FGet;
    Setter FPut;
};

/// A plain field that is public and published.
template <class T, class Owner, class V>
class FieldRow final : public TypedRow<V> {
public:
    FieldRow(const wchar_t* name, V Owner::*field) : TypedRow<V>(name), FField(field) {}
    [[nodiscard]] TPropertyValue Get(const TObject& object) const override {
        return ToPropertyValue<V>(static_cast<const T&>(object).*FField);
    }
    void Set(TObject& object, const TPropertyValue& value) const override {
        static_cast<T&>(object).*FField = FromPropertyValue<V>(value, this->Name());
    }

private:
    V Owner::*FField;
};

/// An event that is public and published.
template <class T, class Owner, class E>
class EventRow final : public TPublishedProperty {
public:
    EventRow(const wchar_t* name, E Owner::*event)
        : TPublishedProperty(name, TPropertyKind::Event), FEvent(event) {}
    [[nodiscard]] TPropertyValue Get(const TObject&) const override { return {}; }
    void Set(TObject&, const TPropertyValue&) const override { RaiseWrongPropertyType(Name()); }
    [[nodiscard]] TEventBase* Event(TObject& object) const override {
        return &(static_cast<T&>(object).*FEvent);
    }
    [[nodiscard]] const std::type_info& EventType() const override { return typeid(E); }

private:
    E Owner::*FEvent;
};

}  // namespace detail

/// Builds the description of class T row by row. A row names something of T or of an ancestor of it, whether
/// or not the ancestor publishes it too.
template <class T>
class TClassDefinition : public TMetaClass {
public:
    TClassDefinition(const wchar_t* name, const TMetaClass& parent) : TMetaClass(name, &parent, FactoryOf()) {
        if constexpr (!std::is_abstract_v<T> && std::is_base_of_v<TCollectionItem, T> &&
                      std::is_constructible_v<T, TCollection*>)
            FItemFactory = [](TCollection* collection) -> TCollectionItem* { return new T(collection); };
    }

    /// A property that is always written.
    template <class Get, class Put>
    TClassDefinition&& Property(const wchar_t* name, Get get, Put put) && {
        FProperties.push_back(std::make_unique<detail::AccessorRow<T, Get, Put>>(name, get, put));
        return std::move(*this);
    }
    /// A property with the default that form files leave out.
    template <class Get, class Put, class D>
    TClassDefinition&& Property(const wchar_t* name, Get get, Put put, const D& byDefault) && {
        using Row = detail::AccessorRow<T, Get, Put>;
        using Value = std::remove_cvref_t<std::invoke_result_t<Get, const T&>>;
        FProperties.push_back(std::make_unique<Row>(name, get, put));
        FProperties.back()->FDefault = detail::ToPropertyValue<Value>(Value(byDefault));
        return std::move(*this);
    }
    template <class V, class Owner>
    TClassDefinition&& Field(const wchar_t* name, V Owner::*field) && {
        FProperties.push_back(std::make_unique<detail::FieldRow<T, Owner, V>>(name, field));
        return std::move(*this);
    }
    template <class V, class Owner, class D>
    TClassDefinition&& Field(const wchar_t* name, V Owner::*field, const D& byDefault) && {
        FProperties.push_back(std::make_unique<detail::FieldRow<T, Owner, V>>(name, field));
        FProperties.back()->FDefault = detail::ToPropertyValue<V>(V(byDefault));
        return std::move(*this);
    }
    template <class E, class Owner>
    TClassDefinition&& Event(const wchar_t* name, E Owner::*event) && {
        FProperties.push_back(std::make_unique<detail::EventRow<T, Owner, E>>(name, event));
        return std::move(*this);
    }
    /// A method that form files may name as the handler of an event:
    /// `.Method<&TMainForm::OkClick>(L"OkClick")`.
    template <auto method>
    TClassDefinition&& Method(const wchar_t* name) && {
        using Event = detail::EventFor<decltype(method)>;
        FMethods.push_back({name, &typeid(Event),
                            [](TEventBase& event, TObject* instance) {
                                static_cast<Event&>(event) = Event(static_cast<T*>(instance), method);
                            },
                            [](const TEventBase& event, TObject* instance) {
                                return event == Event(static_cast<T*>(instance), method);
                            }});
        return std::move(*this);
    }
    /// A member that points to the component of that name, as long as the object owns one:
    /// `.Component<&TMainForm::OkButton>(L"OkButton")`.
    template <auto field>
    TClassDefinition&& Component(const wchar_t* name) && {
        using Class = detail::Pointee<decltype(std::declval<T&>().*field)>;
        FFields.push_back({name, &Class::StaticClass, [](TComponent& owner, TComponent* component) {
                               static_cast<T&>(owner).*field = static_cast<Class*>(component);
                           }});
        return std::move(*this);
    }

    /// Adds the rows of a group that several classes share: `rows` takes the table and returns it.
    template <class Rows>
    TClassDefinition&& With(Rows rows) && {
        return rows(std::move(*this));
    }

    /// The rule whether a form file writes the last row at all.
    TClassDefinition&& Stored(bool (T::*rule)() const) && {
        FProperties.back()->FStored = [rule](const TObject& object) {
            return (static_cast<const T&>(object).*rule)();
        };
        return std::move(*this);
    }
    /// The last row is never written to form files.
    TClassDefinition&& NotStored() && {
        FProperties.back()->FStored = [](const TObject&) { return false; };
        return std::move(*this);
    }
    /// What form files leave out of the last row follows from other properties: `rule`, a getter, tells it.
    template <class Rule>
    TClassDefinition&& DefaultFrom(Rule rule) && {
        FProperties.back()->FDefaultRule = [rule](const TObject& object) -> std::optional<TPropertyValue> {
            using Value = std::remove_cvref_t<std::invoke_result_t<Rule, const T&>>;
            return detail::ToPropertyValue<Value>(std::invoke(rule, static_cast<const T&>(object)));
        };
        return std::move(*this);
    }
    /// Names for single values of the last row.
    TClassDefinition&& Identifiers(std::span<const TIdentifier> identifiers) && {
        FProperties.back()->FIdentifiers = identifiers;
        return std::move(*this);
    }
    /// Narrows the limits that designers and tests see; the setter is what enforces them.
    TClassDefinition&& Range(std::int64_t minimum, std::int64_t maximum) && {
        FProperties.back()->FMinimum = minimum;
        FProperties.back()->FMaximum = maximum;
        return std::move(*this);
    }

private:
    static constexpr Factory FactoryOf() {
        if constexpr (!std::is_abstract_v<T> && std::is_constructible_v<T, TComponent*> &&
                      std::is_base_of_v<TComponent, T>) {
            return [](TComponent* owner) -> TComponent* { return new T(owner); };
        } else {
            return nullptr;
        }
    }
};

template <class T>
[[nodiscard]] TClassDefinition<T> DefineClass(const wchar_t* name, const TMetaClass& parent) {
    return TClassDefinition<T>(name, parent);
}

}  // namespace vcl
