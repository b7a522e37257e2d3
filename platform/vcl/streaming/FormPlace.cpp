#include "platform/vcl/streaming/FormPlace.h"

#include <utility>

namespace vcl {
namespace {

void AppendName(String& path, StringView name) {
    if (!path.empty()) path += L'.';
    path += name;
}

}  // namespace

TFormProblem TFormPlace::Problem(TFormProblemKind kind, TFormPosition position, String text) const {
    TFormProblem problem{kind, FFileName, position, {}, {}, std::move(text)};
    for (const TScope::TStep& step : FSteps) {
        if (step.Object)
            AppendName(problem.Path, step.Object->Name.empty() ? step.Object->ClassName : step.Object->Name);
        else if (!step.Property.empty())
            AppendName(problem.Property, step.Property);
        else
            problem.Property += Format(L"[%u]", step.Item);
    }
    return problem;
}

void TFormPlace::Fail(TFormProblemKind kind, TFormPosition position, String text) const {
    throw EFormError(Problem(kind, position, std::move(text)));
}

}  // namespace vcl
