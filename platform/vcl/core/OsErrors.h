#pragma once

#include <cstdint>

#include "platform/vcl/core/Strings.h"

namespace vcl {

/// The system's text for an error code, without the line break at its end; empty for an unknown code.
[[nodiscard]] String SysErrorMessage(std::uint32_t code);
/// Raises EOSError with the code of the thread's last error and its text.
[[noreturn]] void RaiseLastOSError();
/// Raises EOSError when a call of the system reports failure; to be called before anything else changes the
/// last error.
void Win32Check(bool succeeded);

}  // namespace vcl
