#include "tests/support/Program.h"

#include <filesystem>
#include <iterator>

#include "platform/vcl/core/WindowsApi.h"
#include "tests/support/TempDir.h"

namespace test {
namespace {

std::wstring DesktopName() {
    wchar_t name[256] = {};
    GetUserObjectInformationW(GetThreadDesktop(GetCurrentThreadId()), UOI_NAME, name, sizeof name, nullptr);
    return name;
}

/// Where the test program stands, and all programs.
std::filesystem::path OwnFolder() {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    return std::filesystem::path(self).parent_path();
}

std::wstring CommandLine(std::wstring_view name, std::wstring_view arguments) {
    return L"\"" + (OwnFolder() / name).wstring() + L"\" " + std::wstring(arguments);
}

/// A file that a program can inherit and write to.
HANDLE InheritedFile(const std::wstring& path) {
    SECURITY_ATTRIBUTES security{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &security, CREATE_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Starts a program in a folder (null: that of the test); its handle for the process is null when that fails.
PROCESS_INFORMATION Start(std::wstring_view name, std::wstring_view arguments, const wchar_t* folder,
                          STARTUPINFOW& startup) {
    std::wstring desktop = DesktopName();
    std::wstring commandLine = CommandLine(name, arguments);
    startup.cb = sizeof startup;
    startup.lpDesktop = desktop.data();
    PROCESS_INFORMATION process{};
    CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, folder, &startup,
                   &process);
    return process;
}

std::wstring TextOf(HWND window) {
    // Unlike a message, this asks the system: a program that hangs or ends does not hold it up.
    wchar_t text[512] = {};
    InternalGetWindowText(window, text, static_cast<int>(std::size(text)));
    return text;
}

/// What to look for among the windows of a program, and what was found.
struct WindowSearch {
    DWORD Process;
    std::wstring_view ClassName;
    std::wstring_view TextPart;
    HWND Found = nullptr;
};

BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.Process || !IsWindowVisible(window)) return TRUE;
    wchar_t className[256] = {};
    GetClassNameW(window, className, static_cast<int>(std::size(className)));
    if (search.ClassName == className && TextOf(window).find(search.TextPart) != std::wstring::npos)
        search.Found = window;
    else if (!search.Found)
        EnumChildWindows(window, LookAt, parameter);
    return search.Found == nullptr;
}

}  // namespace

std::wstring ProgramFolder() {
    return OwnFolder().wstring();
}

ProgramRun RunProgram(std::wstring_view name, std::wstring_view arguments) {
    const TempDir folder;
    ProgramRun run;
    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = InheritedFile(folder.File(L"output"));
    startup.hStdError = InheritedFile(folder.File(L"errors"));
    const PROCESS_INFORMATION process = Start(name, arguments, nullptr, startup);
    if (process.hProcess) {
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

RunningProgram::RunningProgram(std::wstring_view name, std::wstring_view arguments) {
    STARTUPINFOW startup{};
    const PROCESS_INFORMATION process = Start(name, arguments, OwnFolder().c_str(), startup);
    FProcess = process.hProcess;
    FId = process.dwProcessId;
    if (process.hThread) CloseHandle(process.hThread);
}

RunningProgram::~RunningProgram() {
    if (!FProcess) return;
    Kill();
    CloseHandle(FProcess);
}

bool RunningProgram::IsRunning() const {
    return FProcess && WaitForSingleObject(FProcess, 0) == WAIT_TIMEOUT;
}

bool RunningProgram::HasEndedWith(DWORD code) const {
    DWORD actual = STILL_ACTIVE;
    return !IsRunning() && GetExitCodeProcess(FProcess, &actual) && actual == code;
}

void RunningProgram::Kill() {
    if (!FProcess) return;
    TerminateProcess(FProcess, 1);
    WaitForSingleObject(FProcess, INFINITE);
}

HWND RunningProgram::Window(std::wstring_view className, std::wstring_view textPart) const {
    WindowSearch search{FId, className, textPart};
    EnumDesktopWindows(GetThreadDesktop(GetCurrentThreadId()), LookAt, reinterpret_cast<LPARAM>(&search));
    return search.Found;
}

}  // namespace test
