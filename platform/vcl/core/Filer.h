#pragma once

#include <cstdint>
#include <functional>

#include "platform/vcl/core/Strings.h"

namespace vcl {

class TPersistent;
class TStream;

/// What stands next in a form file.
enum class TValueKind {
    EndOfList,
    Null,
    Nil,
    Boolean,
    Integer,
    Float,
    String,
    Identifier,
    Set,
    List,
    Binary,
    Collection,
};

/// Hands out the value of a property that a class defines itself, piece by piece. Each function raises
/// EReadError when something else stands there or the list has ended; what is left over afterwards is an
/// error too.
class TValueReader {
public:
    [[nodiscard]] virtual TValueKind NextValue() const = 0;
    /// A whole number of 32 bits; `ReadInt64` takes the longer ones.
    [[nodiscard]] virtual std::int32_t ReadInteger() = 0;
    [[nodiscard]] virtual std::int64_t ReadInt64() = 0;
    /// A number, with or without fraction.
    [[nodiscard]] virtual double ReadFloat() = 0;
    [[nodiscard]] virtual bool ReadBoolean() = 0;
    [[nodiscard]] virtual String ReadString() = 0;
    /// A name such as an enumeration's value.
    [[nodiscard]] virtual String ReadIdent() = 0;
    virtual void ReadListBegin() = 0;
    virtual void ReadListEnd() = 0;
    [[nodiscard]] virtual bool EndOfList() const = 0;

protected:
    ~TValueReader() = default;
};

/// Takes the value of a property that a class defines itself: one value, or one list of values and lists.
class TValueWriter {
public:
    virtual void WriteInteger(std::int64_t value) = 0;
    virtual void WriteFloat(double value) = 0;
    virtual void WriteBoolean(bool value) = 0;
    virtual void WriteString(const String& value) = 0;
    virtual void WriteIdent(const String& value) = 0;
    virtual void WriteListBegin() = 0;
    virtual void WriteListEnd() = 0;

protected:
    ~TValueWriter() = default;
};

/// A form file being read or written, as `TPersistent::DefineProperties` sees it: an object names here what
/// form files hold of it beside its published properties. Of each property the half that is needed is called
/// at once: `read` when the file holds the property, `write` when `hasData` says that there is something.
class TFiler {
public:
    virtual void DefineProperty(const wchar_t* name, const std::function<void(TValueReader&)>& read,
                                const std::function<void(TValueWriter&)>& write, bool hasData) = 0;
    /// The same for bytes; the stream holds them and nothing else.
    virtual void DefineBinaryProperty(const wchar_t* name, const std::function<void(TStream&)>& read,
                                      const std::function<void(TStream&)>& write, bool hasData) = 0;
    /// While an inherited form is written: the object of the ancestor form that this one is compared with.
    /// Null while reading, and when there is none. `hasData` is true for what differs from it.
    [[nodiscard]] virtual const TPersistent* GetAncestor() const { return nullptr; }

protected:
    ~TFiler() = default;
};

}  // namespace vcl
