#pragma once

#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// The form files that were opened or saved last, kept in a file of the user's folder for the next start.
/// Several designers share the list.
class TRecentFiles {
public:
    static constexpr std::size_t MaxCount = 9;

    /// Keeps the list in that folder, which exists.
    explicit TRecentFiles(const String& folder) : FListName(folder + L"\\zuletzt.txt") {}

    /// The full names, the latest first. Empty when the list can't be read.
    [[nodiscard]] std::vector<String> Names() const;
    /// Puts a file at the start of the list. A list that can't be written stays as it is: nobody wants to be
    /// stopped by that.
    void Add(const String& name);
    void Remove(const String& name);

private:
    void Write(const std::vector<String>& names) const;

    String FListName;
};

}  // namespace designer
