#include <shellapi.h>

#include <cstdio>
#include <span>

#include "gallery/MainForm.h"
#include "gallery/Shots.h"
#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/graphics/Handles.h"

namespace gallery {
namespace {

/// What the program was asked to do.
struct TOptions {
    String ShotFolder;  ///< Not empty: write pictures of all pages there and end.
    bool Valid = true;
};

TOptions ParseOptions(std::span<wchar_t* const> arguments) {
    TOptions options;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (StringView(arguments[i]) == L"--shots" && i + 1 < arguments.size())
            options.ShotFolder = arguments[++i];
        else
            options.Valid = false;
    }
    return options;
}

int Run(const TOptions& options) {
    RegisterStandardClasses();
    qv7skin::Register();
    TMainForm* form = Application().CreateForm<TMainForm>();
    if (options.ShotFolder.empty()) {
        Application().Run();
        return 0;
    }
    form->Show();
    WriteShots(*form, options.ShotFolder);
    return 0;
}

}  // namespace
}  // namespace gallery

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    int count = 0;
    wchar_t** list = CommandLineToArgvW(GetCommandLineW(), &count);
    const auto options = gallery::ParseOptions({list, static_cast<std::size_t>(count)});
    LocalFree(list);
    if (!options.Valid) {
        std::fputs("gallery [--shots FOLDER]\n", stderr);
        return 2;
    }
    try {
        return gallery::Run(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "gallery: %s\n", error.what());
        return 1;
    }
}
