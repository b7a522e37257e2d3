#include "platform/vcl/core/Identifiers.h"

#include "platform/vcl/core/WindowsApi.h"

#include <algorithm>

namespace vcl {

bool IsValidIdent(StringView text) {
    const auto isWordCharacter = [](wchar_t c) { return c == L'_' || IsCharAlphaNumericW(c); };
    if (text.empty() || !std::ranges::all_of(text, isWordCharacter)) return false;
    return text.front() == L'_' || IsCharAlphaW(text.front());
}

}  // namespace vcl
