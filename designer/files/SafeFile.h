#pragma once

#include <string>
#include <string_view>

#include "designer/Namespace.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// Makes the file hold these bytes: writes them beside it, flushes them to the disk and puts the new file in
/// the place of the old one in a single step, so that at every moment the name leads to a whole file. Raises
/// EFCreateError or EWriteError, for a file that is read-only too; the old file stays then, and nothing
/// beside it.
void WriteFileSafely(const String& fileName, std::string_view bytes);

/// All bytes of the file. Raises EFOpenError.
[[nodiscard]] std::string ReadWholeFile(const String& fileName);

/// When the file was last written, in the system's file time; 0 when there is none.
[[nodiscard]] unsigned long long FileTimeOf(const String& fileName);

}  // namespace designer
