#include "tools/dfm/Packages.h"

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/OsErrors.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/forms/StandardClasses.h"

namespace dfm {

void RegisterOwnClasses() {
    RegisterStandardClasses();
    qv7skin::Register();
}

void LoadPackage(const String& fileName) {
    const HMODULE module = LoadLibraryW(fileName.c_str());
    if (!module) RaiseLastOSError();
    const auto address = reinterpret_cast<void*>(GetProcAddress(module, "Register"));
    if (!address) throw EFilerError(Format(L"%s registers no classes", fileName));
    reinterpret_cast<void (*)()>(address)();
}

}  // namespace dfm
