#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "designer/inspector/PropertyList.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {
class TFont;
}

namespace designer {

/// Asks the user for values that are not typed in one line. Replaced by tests.
class TValueDialogs {
public:
    /// The extensions of all pictures that can be loaded.
    static constexpr wchar_t AllPictures[] = L"*.bmp;*.png;*.jpg;*.jpeg;*.ico";

    virtual ~TValueDialogs() = default;
    /// Lets the user change the font; false when he changed his mind.
    [[nodiscard]] virtual bool AskFont(TFont& font);
    [[nodiscard]] virtual std::optional<TColor> AskColor(TColor present);
    /// Lines of text.
    [[nodiscard]] virtual std::optional<String> AskLines(const String& present);
    /// The file of a picture of these extensions ("*.bmp;*.png").
    [[nodiscard]] virtual std::optional<String> AskPicture(const String& extensions);
    /// The files of any number of pictures, to be added to others.
    [[nodiscard]] virtual std::vector<String> AskPictures();
};

/// True when the line's value can be edited in a window of its own.
[[nodiscard]] bool HasValueEditor(const TPropertyLine& line);

/// Edits the line's value in a window, as one edit of all chosen components; nothing happens when the user
/// changes his mind. Raises what loading a picture raises; the form is as before then.
void EditValue(TDesignDocument& document, const TPropertyLine& line, TValueDialogs& dialogs);

}  // namespace designer
