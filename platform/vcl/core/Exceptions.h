#pragma once

#include <exception>
#include <string>

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// Base of all errors that the framework and the controls raise: a class name and a text for the user.
class Exception : public std::exception {
public:
    explicit Exception(String message);
    /// The text shown to the user.
    [[nodiscard]] const String& Message() const { return FMessage; }
    /// The name of the error's class, such as "EResNotFound".
    [[nodiscard]] virtual const wchar_t* ClassName() const { return L"Exception"; }
    /// The message in UTF-8.
    [[nodiscard]] const char* what() const noexcept override { return FUtf8.c_str(); }

private:
    String FMessage;
    std::string FUtf8;
};

/// A caller asked for something that the object's present state forbids.
class EInvalidOperation : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EInvalidOperation"; }
};

/// A graphic object was used in a way it does not allow, or its data are damaged.
class EInvalidGraphic : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EInvalidGraphic"; }
};

/// A graphic was asked for something impossible (pixel format, scan line out of range).
class EInvalidGraphicOperation : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EInvalidGraphicOperation"; }
};

/// The system has no more graphic or window resources.
class EOutOfResources : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EOutOfResources"; }
};

/// A resource name is unknown in its module; the name stands in the text.
class EResNotFound : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EResNotFound"; }
};

/// An index lies outside a list.
class EListError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EListError"; }
};

/// An index lies outside a string list.
class EStringListError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EStringListError"; }
};

/// A component's name is no identifier or is taken.
class EComponentError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EComponentError"; }
};

/// A value can't be converted (assigning unlike objects, reading numbers from text).
class EConvertError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EConvertError"; }
};

/// Base of the errors of streams.
class EStreamError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EStreamError"; }
};

/// A file can't be opened.
class EFOpenError : public EStreamError {
public:
    using EStreamError::EStreamError;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EFOpenError"; }
};

/// A file can't be created.
class EFCreateError : public EStreamError {
public:
    using EStreamError::EStreamError;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EFCreateError"; }
};

/// Base of the errors of reading and writing; raised itself when classes and form files do not fit together.
class EFilerError : public EStreamError {
public:
    using EStreamError::EStreamError;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EFilerError"; }
};

/// A stream ended before all that was asked for could be read, or what it holds can't be used.
class EReadError : public EFilerError {
public:
    using EFilerError::EFilerError;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EReadError"; }
};

/// A stream can't take what was written.
class EWriteError : public EFilerError {
public:
    using EFilerError::EFilerError;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EWriteError"; }
};

/// A class name of a form file is not registered.
class EClassNotFound : public EFilerError {
public:
    using EFilerError::EFilerError;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EClassNotFound"; }
};

/// A call of the operating system failed.
class EOSError : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EOSError"; }
};

/// A condition that the code takes for granted does not hold.
class EAssertionFailed : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EAssertionFailed"; }
};

/// Ends an operation without a message: `Application` shows nothing for it.
class EAbort : public Exception {
public:
    using Exception::Exception;
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EAbort"; }
};

/// Raises EAbort.
[[noreturn]] void Abort();
/// Raises EAssertionFailed with the text "message (source, line n)" when the condition does not hold.
void Assert(bool condition, const wchar_t* message, const wchar_t* source, int line);

}  // namespace vcl
