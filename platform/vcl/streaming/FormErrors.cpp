#include "platform/vcl/streaming/FormErrors.h"

#include <utility>

namespace vcl {

String TFormProblem::Message() const {
    String message = FileName;
    if (Position.IsOffset())
        message += Format(L"(offset %u): ", Position.Column);
    else
        message += Format(L"(%u,%u): ", Position.Line, Position.Column);
    String path = Path;
    if (!path.empty() && !Property.empty()) path += L'.';
    path += Property;
    if (!path.empty()) message += path + L": ";
    return message + Text;
}

EFormError::EFormError(TFormProblem problem) : EReadError(problem.Message()), FProblem(std::move(problem)) {}

}  // namespace vcl
