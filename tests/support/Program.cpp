#include "tests/support/Program.h"

#include <filesystem>

#include "platform/vcl/core/WindowsApi.h"
#include "tests/support/TempDir.h"

namespace test {
namespace {

std::wstring DesktopName() {
    wchar_t name[256] = {};
    GetUserObjectInformationW(GetThreadDesktop(GetCurrentThreadId()), UOI_NAME, name, sizeof name, nullptr);
    return name;
}

std::wstring CommandLine(std::wstring_view name, std::wstring_view arguments) {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    const auto program = std::filesystem::path(self).parent_path() / name;
    return L"\"" + program.wstring() + L"\" " + std::wstring(arguments);
}

/// A file that a program can inherit and write to.
HANDLE InheritedFile(const std::wstring& path) {
    SECURITY_ATTRIBUTES security{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &security, CREATE_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

ProgramRun RunProgram(std::wstring_view name, std::wstring_view arguments) {
    const TempDir folder;
    ProgramRun run;
    std::wstring desktop = DesktopName();
    std::wstring commandLine = CommandLine(name, arguments);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.lpDesktop = desktop.data();
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = InheritedFile(folder.File(L"output"));
    startup.hStdError = InheritedFile(folder.File(L"errors"));
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                       &process)) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &run.Code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    } else {
        run.Code = GetLastError();
    }
    CloseHandle(startup.hStdOutput);
    CloseHandle(startup.hStdError);
    run.Output = folder.Read(L"output");
    run.Errors = folder.Read(L"errors");
    return run;
}

}  // namespace test
