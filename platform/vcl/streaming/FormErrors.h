#pragma once

#include <vector>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

/// What is wrong in a form file.
enum class TFormProblemKind {
    Syntax,            ///< A text that can't be parsed, or a binary file of unknown structure.
    Truncated,         ///< The file ends too early, or a string or blob has no end.
    TooDeep,           ///< Objects, lists or items stand more than `MaxFormNesting` deep in each other.
    OutOfRange,        ///< A number, string or character code is too big.
    UnknownClass,      ///< No class of that name is registered, or none that can be made.
    UnknownProperty,   ///< The class does not publish it.
    WrongType,         ///< The property holds another kind of value.
    UnknownValue,      ///< A name that is none of an enumeration, set or list of numbers.
    InvalidValue,      ///< The property refuses the value.
    UnknownReference,  ///< A component that is not there, or that is of the wrong class.
    UnknownMethod,     ///< The form does not publish it, or it does not fit the event.
    DuplicateName,     ///< A component of that name exists.
    MissingAncestor,   ///< An `inherited` object that nothing brought along.
    Failed,            ///< A component raised an error while it was made or completed.
};

/// One thing that is wrong in a form file, and where.
struct TFormProblem {
    TFormProblemKind Kind = TFormProblemKind::Syntax;
    String FileName;  ///< May be empty.
    TFormPosition Position;
    String Path;      ///< The component: "MainForm.Panel1.OkButton"; may be empty.
    String Property;  ///< The property: "Font.Style", "Columns[2].Width"; may be empty.
    String Text;      ///< What is wrong, without place.

    /// `File.dfm(12,5): MainForm.OkButton.Font.Style: text`, in binary files `File.dfm(offset 117): ...`.
    [[nodiscard]] String Message() const;
};

/// A form file can't be read. Its message is the problem's.
class EFormError : public EReadError {
public:
    explicit EFormError(TFormProblem problem);
    [[nodiscard]] const wchar_t* ClassName() const override { return L"EFormError"; }
    [[nodiscard]] const TFormProblem& Problem() const { return FProblem; }

private:
    TFormProblem FProblem;
};

}  // namespace vcl
