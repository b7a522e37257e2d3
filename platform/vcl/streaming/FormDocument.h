#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

#include "platform/vcl/core/Filer.h"
#include "platform/vcl/streaming/FormFloat.h"

namespace vcl {

// A form file as a tree: what parsers make of text and binary files, what writers make files of, and what
// components are read from and written to. Comparing parts of a document leaves out their positions.

/// The greatest depth of objects, lists and items in each other.
inline constexpr int MaxFormNesting = 100;

/// Where something stands in its file: in a text its line and column, in a binary file its offset.
struct TFormPosition {
    std::uint32_t Line = 0;    ///< From 1; 0 in binary files.
    std::uint32_t Column = 0;  ///< From 1, in UTF-16 units; in binary files the offset in bytes.

    [[nodiscard]] static TFormPosition AtOffset(std::size_t offset) {
        return {0, static_cast<std::uint32_t>(offset)};
    }
    [[nodiscard]] bool IsOffset() const { return Line == 0; }
    friend bool operator==(TFormPosition a, TFormPosition b) = default;
};

struct TFormItem;
struct TFormValue;

/// The value `Null`.
struct TFormNull {};
/// The reference to nothing, `nil`.
struct TFormNil {};
/// The name of something: an enumeration's value, a colour, a component, a method.
struct TFormIdent {
    String Name;
};
/// The name of an element of a set.
struct TFormSetElement {
    String Name;
    TFormPosition Position;
};
/// `[akLeft, akTop]`
struct TFormSet {
    std::vector<TFormSetElement> Elements;
};
/// Values between parentheses, one behind the other.
struct TFormList {
    std::vector<TFormValue> Values;
};
/// Bytes between braces.
struct TFormBinary {
    std::vector<std::byte> Bytes;
};
/// Items between angle brackets.
struct TFormCollection {
    std::vector<TFormItem> Items;
};

/// The value of a property.
struct TFormValue {
    using TContent = std::variant<TFormNull, TFormNil, bool, std::int64_t, TFormFloat, String, TFormIdent,
                                  TFormSet, TFormList, TFormBinary, TFormCollection>;
    TContent Content;
    TFormPosition Position;

    [[nodiscard]] TValueKind Kind() const;
    /// The content when it is of type `T`, else null.
    template <class T>
    [[nodiscard]] const T* As() const {
        return std::get_if<T>(&Content);
    }
    friend bool operator==(const TFormValue& a, const TFormValue& b);
};

/// A property of an object or item: `Font.Name = 'Tahoma'`.
struct TFormProperty {
    String Name;  ///< With the names of the objects that it lies in: "Font.Name".
    TFormValue Value;
    TFormPosition Position;

    friend bool operator==(const TFormProperty& a, const TFormProperty& b);
};

/// An item of a collection.
struct TFormItem {
    std::optional<std::int32_t> Order;  ///< The number in `item [n]`.
    std::vector<TFormProperty> Properties;
    TFormPosition Position;

    friend bool operator==(const TFormItem& a, const TFormItem& b);
};

enum class TFormObjectKind {
    Object,     ///< A component to be made.
    Inherited,  ///< One that an ancestor of the form, or the class of the frame, has brought along.
    Inline,     ///< A frame to be made.
};

/// A component.
struct TFormObject {
    TFormObjectKind Kind = TFormObjectKind::Object;
    String Name;  ///< May be empty.
    String ClassName;
    std::optional<std::int32_t> ChildPos;  ///< The place among its siblings.
    std::vector<TFormProperty> Properties;
    std::vector<TFormObject> Children;
    TFormPosition Position;

    /// The property of that name, or null; ignores case.
    [[nodiscard]] const TFormProperty* FindProperty(StringView name) const;
    /// The first object of that name in the tree below, or null; ignores case.
    [[nodiscard]] const TFormObject* FindObject(StringView name) const;
    friend bool operator==(const TFormObject& a, const TFormObject& b);
};

/// A form file.
struct TFormDocument {
    TFormObject Root;
    String FileName;  ///< For messages; may be empty.

    friend bool operator==(const TFormDocument& a, const TFormDocument& b) { return a.Root == b.Root; }
};

/// What a kind of value is called in messages: "a whole number", "a string" ...
[[nodiscard]] const wchar_t* ValueKindText(TValueKind kind);

}  // namespace vcl
