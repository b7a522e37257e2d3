#include "designer/model/History.h"

#include <utility>

namespace designer {

void THistory::Add(const String& label, TTextChange change) {
    if (FSaved && *FSaved > FPosition) FSaved.reset();
    FSteps.resize(FPosition);
    FSteps.push_back({label, std::move(change)});
    ++FPosition;
}

void THistory::Clear() {
    FSteps.clear();
    FPosition = 0;
    FSaved = 0;
}

std::string THistory::Undone(std::string_view text) const {
    return FSteps[FPosition - 1].Change.Revert(text);
}

std::string THistory::Redone(std::string_view text) const {
    return FSteps[FPosition].Change.Apply(text);
}

}  // namespace designer
