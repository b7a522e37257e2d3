#pragma once

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// Raises EOutOfResources with the system's text for `code`, or "Out of system resources" when it has none.
[[noreturn]] void RaiseOutOfResources(DWORD code = ::GetLastError());

/// Returns the handle, or raises EOutOfResources when it is null.
template <class H>
H CheckHandle(H handle) {
    if (!handle) RaiseOutOfResources();
    return handle;
}

}  // namespace vcl
