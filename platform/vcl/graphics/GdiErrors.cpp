#include "platform/vcl/graphics/GdiErrors.h"

#include "platform/vcl/core/Exceptions.h"

namespace vcl {

String SystemErrorText(DWORD code) {
    wchar_t text[512];
    const DWORD length =
        code ? ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                                text, static_cast<DWORD>(std::size(text)), nullptr)
             : 0;
    return length ? Trim(StringView(text, length)) : String(L"Out of system resources");
}

void RaiseOutOfResources(DWORD code) {
    throw EOutOfResources(SystemErrorText(code));
}

}  // namespace vcl
