#include "bench/Scene.h"

#include <windows.h>

#include <map>
#include <stdexcept>

namespace bench {
namespace {

std::map<std::string, void (*)()>& Scenes() {
    static std::map<std::string, void (*)()> scenes;
    return scenes;
}

void PaintAll() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

std::wstring CommandLineOf(const std::string& name) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return L"\"" + std::wstring(program) + L"\" --scene " + std::wstring(name.begin(), name.end());
}

}  // namespace

Scene::Scene(const char* name, void (*run)()) {
    Scenes().emplace(name, run);
}

void Scene::Play(const std::string& name) {
    const auto found = Scenes().find(name);
    if (found == Scenes().end()) return;
    found->second();
    PaintAll();
    // What the end of a program costs is not part of its start.
    TerminateProcess(GetCurrentProcess(), 0);
}

std::function<void()> Scene::InProcess(const std::string& name) {
    return [commandLine = CommandLineOf(name)] {
        std::wstring line = commandLine;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &process))
            throw std::runtime_error("the process for a scene can't be started");
        WaitForSingleObject(process.hProcess, INFINITE);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    };
}

}  // namespace bench
