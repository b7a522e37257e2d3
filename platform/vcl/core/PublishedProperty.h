#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <typeinfo>
#include <variant>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/Strings.h"

namespace vcl {

class TObject;
class TPersistent;

/// What kind of value a published property holds; decides how a form file writes it.
enum class TPropertyKind {
    Integer,
    Boolean,
    Enumeration,
    Set,
    Float,
    String,
    Nested,  ///< An object owned by its holder (font, string list, picture); written property by property or
             ///< as data.
    Component,  ///< A reference to another component, not owned.
    Event,
};

/// The value of a property, free of its static type. Integer, Boolean, Enumeration (ordinal) and Set (bits)
/// use the integer; Nested and Component the object.
using TPropertyValue = std::variant<std::monostate, std::int64_t, double, String, TPersistent*>;

/// A number with a name of its own in form files, such as clBtnFace or crHandPoint.
struct TIdentifier {
    const wchar_t* Name;
    std::int64_t Value;
};

/// One row of a class's table of published properties.
class TPublishedProperty {
public:
    TPublishedProperty(const wchar_t* name, TPropertyKind kind) : FName(name), FKind(kind) {}
    virtual ~TPublishedProperty() = default;
    TPublishedProperty(const TPublishedProperty&) = delete;
    TPublishedProperty& operator=(const TPublishedProperty&) = delete;

    [[nodiscard]] const wchar_t* Name() const { return FName; }
    [[nodiscard]] TPropertyKind Kind() const { return FKind; }
    [[nodiscard]] bool IsReadOnly() const { return FReadOnly; }
    /// The names of an enumeration's values (or of a set's elements) by ordinal; empty for other kinds.
    [[nodiscard]] std::span<const wchar_t* const> ElementNames() const { return FElementNames; }
    /// Names for single numbers (colours, cursors); empty where there are none.
    [[nodiscard]] std::span<const TIdentifier> Identifiers() const { return FIdentifiers; }
    /// The value of a new object, as the table says; none for properties that are always written when stored.
    [[nodiscard]] const std::optional<TPropertyValue>& Default() const { return FDefault; }
    /// The value that a form file leaves out of `object`: what its other properties make of it, or else
    /// `Default`.
    [[nodiscard]] std::optional<TPropertyValue> DefaultFor(const TObject& object) const {
        return FDefaultRule ? FDefaultRule(object) : FDefault;
    }
    /// True when `DefaultFor` is not the same for all objects.
    [[nodiscard]] bool HasDefaultRule() const { return FDefaultRule != nullptr; }
    /// Least and greatest value of an Integer, Boolean, Enumeration or Set (the bits).
    [[nodiscard]] std::int64_t Minimum() const { return FMinimum; }
    [[nodiscard]] std::int64_t Maximum() const { return FMaximum; }

    /// The present value; not for events.
    [[nodiscard]] virtual TPropertyValue Get(const TObject& object) const = 0;
    /// Writes a value of the property's kind. Nested objects are assigned, the others set. Raises what the
    /// setter raises; a value of another kind or a Component of another class raises EConvertError.
    virtual void Set(TObject& object, const TPropertyValue& value) const = 0;
    /// The event itself, of kind Event; null for all others.
    [[nodiscard]] virtual TEventBase* Event(TObject&) const { return nullptr; }
    /// The type of an event, `typeid(TEvent<...>)`; `typeid(void)` for all others.
    [[nodiscard]] virtual const std::type_info& EventType() const { return typeid(void); }
    /// The class that a Nested or Component value must have; null for all others.
    [[nodiscard]] virtual const TMetaClass* ObjectClass() const { return nullptr; }
    /// The rule whether a form file writes the property at all.
    [[nodiscard]] bool IsStored(const TObject& object) const { return !FStored || FStored(object); }

protected:
    template <class T>
    friend class TClassDefinition;

    const wchar_t* FName;
    TPropertyKind FKind;
    bool FReadOnly = false;
    std::span<const wchar_t* const> FElementNames;
    std::span<const TIdentifier> FIdentifiers;
    std::optional<TPropertyValue> FDefault;
    std::int64_t FMinimum = 0;
    std::int64_t FMaximum = 0;
    std::function<bool(const TObject&)> FStored;
    std::function<std::optional<TPropertyValue>(const TObject&)> FDefaultRule;
};

/// Names of an enumeration's values by ordinal. Each published enumeration specialises it beside its
/// declaration: `template <> struct TEnumNames<TAlign> { static std::span<const wchar_t* const> Names(); };`
template <class E>
struct TEnumNames;

}  // namespace vcl
