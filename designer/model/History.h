#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "designer/Namespace.h"
#include "designer/model/TextChange.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// The edits of a form file, to be undone and redone without limit. It keeps what changed in the text, so
/// that an edit costs no more memory than what it changed.
class THistory {
public:
    /// Adds an edit behind the present state; what could be redone is given up.
    void Add(const String& label, TTextChange change);
    void Clear();

    [[nodiscard]] bool CanUndo() const { return FPosition > 0; }
    [[nodiscard]] bool CanRedo() const { return FPosition < FSteps.size(); }
    /// What the user called the edit, such as "Verschieben"; only when there is one.
    [[nodiscard]] const String& UndoLabel() const { return FSteps[FPosition - 1].Label; }
    [[nodiscard]] const String& RedoLabel() const { return FSteps[FPosition].Label; }
    /// The text before the last edit; only when there is one. `StepBack` then goes there.
    [[nodiscard]] std::string Undone(std::string_view text) const;
    /// The text after the next edit; only when there is one.
    [[nodiscard]] std::string Redone(std::string_view text) const;
    void StepBack() { --FPosition; }
    void StepForward() { ++FPosition; }

    /// The present state is the one in the file.
    void MarkSaved() { FSaved = FPosition; }
    /// No state is the one in the file any more.
    void MarkUnsaved() { FSaved.reset(); }
    [[nodiscard]] bool IsSaved() const { return FSaved == FPosition; }
    [[nodiscard]] std::size_t Count() const { return FSteps.size(); }
    /// How many of the edits are done and not undone.
    [[nodiscard]] std::size_t Position() const { return FPosition; }

private:
    struct TStep {
        String Label;
        TTextChange Change;
    };
    std::vector<TStep> FSteps;
    std::size_t FPosition = 0;              ///< How many of the steps are done.
    std::optional<std::size_t> FSaved = 0;  ///< None when that state can't be reached any more.
};

}  // namespace designer
