#pragma once

#include <optional>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// What the designer asks its user in windows of their own.
class TDesignerDialogs {
public:
    enum class TAnswer { Save, Discard, Cancel };

    virtual ~TDesignerDialogs() = default;
    /// Shall the changes to the form of that title be saved?
    [[nodiscard]] virtual TAnswer AskToSave(const String& title);
    /// The file to open, or to save under; none when the user changed his mind.
    [[nodiscard]] virtual std::optional<String> AskFileToOpen();
    [[nodiscard]] virtual std::optional<String> AskFileToSave(const String& present);
    /// Another program has written the file: read it again?
    [[nodiscard]] virtual bool AskToReload(const String& title);
    /// The same for the file of a form that the present one inherits.
    [[nodiscard]] virtual bool AskToReloadAncestor(const String& title);
    /// Work on that file was left by a run that did not end in good order: take it up?
    [[nodiscard]] virtual bool AskToRecover(const String& title);
    /// Which of these files holds the form that the one to be opened inherits?
    [[nodiscard]] virtual std::optional<String> AskAncestor(const std::vector<String>& files);
    /// The text that was typed is no form, for that reason: give it up?
    [[nodiscard]] virtual bool AskToDiscardText(const String& reason);
    virtual void ShowError(const String& message);
    /// A new name for a component.
    [[nodiscard]] virtual std::optional<String> AskName(const String& present);
};

}  // namespace designer
