#include "platform/vcl/core/OsErrors.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/WindowsApi.h"

#include <array>

namespace vcl {

String SysErrorMessage(std::uint32_t code) {
    std::array<wchar_t, 1024> text;
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        code, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    return Trim(StringView(text.data(), length));
}

void RaiseLastOSError() {
    const DWORD code = GetLastError();
    throw EOSError(Format(L"System Error.  Code: %u.\r\n%s", code, SysErrorMessage(code)));
}

void Win32Check(bool succeeded) {
    if (!succeeded) RaiseLastOSError();
}

}  // namespace vcl
