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

/// designer [--kept FOLDER] [FILE]: where unsaved work is kept, and what to open.
struct TArguments {
    vcl::String KeptFolder;
    vcl::String File;
};

TArguments ReadArguments() {
    int count = 0;
    wchar_t** texts = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    TArguments arguments;
    for (int i = 1; i < count; ++i) {
        const vcl::String text = texts[i];
        if (text == L"--kept" && i + 1 < count)
            arguments.KeptFolder = texts[++i];
        else
            arguments.File = text;
    }
    ::LocalFree(texts);
    if (arguments.KeptFolder.empty()) arguments.KeptFolder = designer::TAutoSave::DefaultFolder();
    return arguments;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace designer;
    const TArguments arguments = ReadArguments();
    LoadPackage();
    RegisterStandardClasses();
    Application().SetTitle(L"QV7 Designer");
    auto* window =
        new TDesignerWindow(&Application(), std::make_unique<TDesignerDialogs>(), arguments.KeptFolder);
    Application().SetMainForm(window);
    if (!arguments.File.empty()) window->OpenFile(arguments.File);
    window->Show();
    window->OfferLeftWork();
    Application().Run();
    return 0;
}
