#pragma once

#include <functional>
#include <string>

namespace bench {

/// A small program inside the bench program, for measuring what a whole process takes. `bench --scene NAME`
/// runs it and nothing else. Registered by a variable in the source file that holds it.
class Scene {
public:
    /// `run` shows its window; the process ends when all of it has been painted.
    Scene(const char* name, void (*run)());
    /// Runs the scene and ends the process; returns only when there is none of that name.
    static void Play(const std::string& name);
    /// Work that starts a process with the scene and waits for its end.
    [[nodiscard]] static std::function<void()> InProcess(const std::string& name);
};

}  // namespace bench
