#pragma once

#include <vector>

#include "platform/vcl/streaming/FormErrors.h"
#include "tools/dfm/Namespace.h"

namespace dfm {

struct TCheckOptions {
    std::vector<TFormDocument> Ancestors;  ///< Forms that the checked one inherits, the oldest first.
    bool Foreign = false;                  ///< Unknown classes are no problem.
};

/// What a check found.
struct TCheckResult {
    std::vector<TFormProblem> Problems;
    int Components = 0;  ///< How many components the form has, itself included.
};

/// Builds the form in design state, without a window, and collects what is wrong with it. A root whose class
/// is not registered counts as a TForm with methods of any name.
[[nodiscard]] TCheckResult CheckForm(const TFormDocument& document, const TCheckOptions& options);

}  // namespace dfm
