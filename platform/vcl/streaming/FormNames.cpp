#include "platform/vcl/streaming/FormNames.h"

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {
namespace {

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

}  // namespace

bool StartsFormName(wchar_t c) {
    if (c < 0x80) return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'_';
    return IsCharAlphaW(c) != FALSE;
}

bool ContinuesFormName(wchar_t c) {
    if (c < 0x80) return StartsFormName(c) || IsDigit(c);
    return IsCharAlphaNumericW(c) != FALSE;
}

bool IsDottedFormName(StringView text) {
    bool start = true;
    for (const wchar_t c : text) {
        if (!start && c == L'.') {
            start = true;
            continue;
        }
        if (start ? !StartsFormName(c) : !ContinuesFormName(c)) return false;
        start = false;
    }
    return !start;
}

}  // namespace vcl
