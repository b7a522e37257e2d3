#include "tools/dfm/Check.h"

#include <algorithm>
#include <memory>

#include "platform/vcl/forms/Form.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/Reader.h"

namespace dfm {
namespace {

std::unique_ptr<TComponent> MakeRoot(const String& className) {
    const TMetaClass* known = GetClass(className);
    const TMetaClass& meta = known && known->CanCreate() ? *known : TForm::StaticClass();
    std::unique_ptr<TComponent> root(meta.Create(nullptr));
    root->SetDesigning(true);
    return root;
}

int CountObjects(const TFormObject& object) {
    int count = 1;
    for (const TFormObject& child : object.Children)
        count += CountObjects(child);
    return count;
}

void ReadInto(TComponent& root, const TFormDocument& document, std::vector<TFormProblem>& problems) {
    TReader reader(document);
    reader.CollectProblems = true;
    reader.ReadRootComponent(&root);
    const auto& found = reader.GetProblems();
    problems.insert(problems.end(), found.begin(), found.end());
}

}  // namespace

TCheckResult CheckForm(const TFormDocument& document, const TCheckOptions& options) {
    TCheckResult result;
    result.Components = CountObjects(document.Root);
    const auto root = MakeRoot(document.Root.ClassName);
    for (const TFormDocument& ancestor : options.Ancestors)
        ReadInto(*root, ancestor, result.Problems);
    ReadInto(*root, document, result.Problems);
    if (options.Foreign)
        std::erase_if(result.Problems, [](const TFormProblem& problem) {
            return problem.Kind == TFormProblemKind::UnknownClass;
        });
    return result;
}

}  // namespace dfm
