#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/core/Strings.h"

namespace designer {

/// Work that a designer left behind when it ended without saving. It stays on the disk until it is forgotten,
/// and nobody else is offered it while this lives.
struct TLeftWork {
    String FileName;  ///< Of the form file; empty when it had none yet.
    std::string Text;
    unsigned long long SavedAt = 0;  ///< In the system's file time.
    String Path;                     ///< Of the file that holds it.
    std::shared_ptr<void> Lock;
};

/// Keeps the unsaved state of a form file in a folder of its own while it is edited, so that the next start
/// can offer it when this program ends at any moment without warning.
///
/// Each program holds a lock file open that the system deletes when the program is gone, however it ended.
/// Work without such a lock is left work.
class TAutoSave {
public:
    /// Begins in that folder, which is made when need be.
    explicit TAutoSave(String folder);
    /// Ends in good order: nothing is left behind.
    ~TAutoSave();
    TAutoSave(const TAutoSave&) = delete;
    TAutoSave& operator=(const TAutoSave&) = delete;

    /// Keeps the state of a form file. Raises EWriteError and EFCreateError.
    void Keep(const String& fileName, std::string_view text);
    /// The state has been saved or given up.
    void Discard();

    /// What other programs have left, the latest first.
    [[nodiscard]] std::vector<TLeftWork> LeftWork() const;
    /// Removes such work, which has been taken up or given up.
    static void Forget(const TLeftWork& work);

    /// The user's folder for it.
    [[nodiscard]] static String DefaultFolder();

private:
    class TLock;
    [[nodiscard]] String PathOf(StringView name) const { return FFolder + L'\\' + String(name); }

    String FFolder;
    String FName;  ///< Of this program's files, without extension.
    std::unique_ptr<TLock> FLock;
};

}  // namespace designer
