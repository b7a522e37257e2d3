#pragma once

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// The system's clipboard. What opens it raises EInvalidOperation "Cannot open clipboard" while another
/// program has it open.
class TClipboard {
public:
    TClipboard() = default;
    TClipboard(const TClipboard&) = delete;
    TClipboard& operator=(const TClipboard&) = delete;

    /// The text on the clipboard; empty when there is none.
    [[nodiscard]] String GetAsText() const;
    /// Puts a text in the place of all that is there. Raises EOutOfResources when there is no memory for it.
    void SetAsText(const String& value);
    /// Whether something is there in a format of the system (CF_...); does not open the clipboard.
    [[nodiscard]] bool HasFormat(UINT format) const;
    void Clear();
};

/// The clipboard, of which there is one.
[[nodiscard]] TClipboard& Clipboard();

}  // namespace vcl
