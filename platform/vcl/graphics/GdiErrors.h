#pragma once

#include <windows.h>

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// The system's text for an error code, without line breaks at its end; "Out of system resources" for code 0.
[[nodiscard]] String SystemErrorText(DWORD code);

/// Raises EOutOfResources with the system's text for `code`.
[[noreturn]] void RaiseOutOfResources(DWORD code = ::GetLastError());

/// Returns the handle, or raises EOutOfResources when it is null.
template <class H>
H CheckHandle(H handle) {
    if (!handle) RaiseOutOfResources();
    return handle;
}

}  // namespace vcl
