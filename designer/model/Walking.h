#pragma once

#include <vector>

#include "designer/model/DesignDocument.h"

namespace designer {

// Ways through the components of a form by keys.

/// All components of the form, those in another one right behind it.
[[nodiscard]] std::vector<TComponent*> ComponentsInOrder(const TDesignDocument& document);
/// Chooses the component `step` places behind the leader; the form itself stands before the first and behind
/// the last.
void ChooseNext(TDesignDocument& document, int step);
/// Chooses what the leader stands in.
void ChooseParent(TDesignDocument& document);

}  // namespace designer
