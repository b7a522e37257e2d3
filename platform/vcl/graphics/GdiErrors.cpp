#include "platform/vcl/graphics/GdiErrors.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/OsErrors.h"

namespace vcl {

void RaiseOutOfResources(DWORD code) {
    const String text = code ? SysErrorMessage(code) : String();
    throw EOutOfResources(text.empty() ? String(L"Out of system resources") : text);
}

}  // namespace vcl
