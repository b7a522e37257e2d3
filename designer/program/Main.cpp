#include <windows.h>

#include <shellapi.h>

#include <memory>

#include "designer/window/DesignerWindow.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/StandardClasses.h"

namespace {

/// Loads the package and lets it show its classes. Without it the designer works on the standard controls.
void LoadPackage() {
    const HMODULE package = ::LoadLibraryW(L"QV7Skin.dll");
    if (!package) return;
    const auto show =
        reinterpret_cast<void (*)()>(reinterpret_cast<void*>(::GetProcAddress(package, "Register")));
    if (show) show();
}

vcl::String FileFromCommandLine() {
    int count = 0;
    wchar_t** arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    vcl::String file = count > 1 ? arguments[1] : L"";
    ::LocalFree(arguments);
    return file;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace designer;
    LoadPackage();
    RegisterStandardClasses();
    Application().SetTitle(L"QV7 Designer");
    auto* window =
        new TDesignerWindow(&Application(), std::make_unique<TDesignerDialogs>(), TAutoSave::DefaultFolder());
    Application().SetMainForm(window);
    if (const String file = FileFromCommandLine(); !file.empty()) window->OpenFile(file);
    window->Show();
    window->OfferLeftWork();
    Application().Run();
    return 0;
}
