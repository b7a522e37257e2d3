#include "designer/files/AutoSave.h"

#include <shlobj.h>

#include <algorithm>
#include <utility>

#include "designer/files/SafeFile.h"
#include "platform/vcl/core/Exceptions.h"

namespace designer {
namespace {

constexpr wchar_t WorkExtension[] = L".arbeit";
constexpr wchar_t LockExtension[] = L".sperre";

/// A file in this format: the name of the form file in UTF-8, a line end, the text.
std::string Packed(const String& fileName, std::string_view text) {
    std::string bytes = ToUtf8(fileName) + '\n';
    bytes.append(text);
    return bytes;
}

TLeftWork Unpacked(std::string bytes, unsigned long long savedAt) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    TLeftWork work;
    work.FileName = FromUtf8(std::string_view(bytes).substr(0, end));
    work.Text = bytes.substr(std::min(end + 1, bytes.size()));
    work.SavedAt = savedAt;
    return work;
}

std::vector<String> FilesLike(const String& pattern) {
    std::vector<String> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do
        names.emplace_back(found.cFileName);
    while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return names;
}

void MakeFolder(const String& folder) {
    const int error = ::SHCreateDirectoryExW(nullptr, folder.c_str(), nullptr);
    if (error != ERROR_SUCCESS && error != ERROR_ALREADY_EXISTS && error != ERROR_FILE_EXISTS)
        throw EFCreateError(Format(L"Cannot create folder \"%s\"", folder));
}

}  // namespace

/// A file that nobody else can open and that goes with its holder.
class TAutoSave::TLock {
public:
    explicit TLock(const String& path)
        : FHandle(::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr)) {}
    ~TLock() {
        if (IsHeld()) ::CloseHandle(FHandle);
    }
    TLock(const TLock&) = delete;
    TLock& operator=(const TLock&) = delete;
    [[nodiscard]] bool IsHeld() const { return FHandle != INVALID_HANDLE_VALUE; }

private:
    HANDLE FHandle;
};

TAutoSave::TAutoSave(String folder) : FFolder(std::move(folder)) {
    MakeFolder(FFolder);
    static unsigned count = 0;
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    FName = Format(L"%u-%x%.8x-%u", ::GetCurrentProcessId(), now.dwHighDateTime, now.dwLowDateTime, ++count);
    FLock = std::make_unique<TLock>(PathOf(FName + LockExtension));
    if (!FLock->IsHeld())
        throw EFCreateError(Format(L"Cannot create file \"%s\"", PathOf(FName + LockExtension)));
}

TAutoSave::~TAutoSave() {
    Discard();
}

void TAutoSave::Keep(const String& fileName, std::string_view text) {
    WriteFileSafely(PathOf(FName + WorkExtension), Packed(fileName, text));
}

void TAutoSave::Discard() {
    ::DeleteFileW(PathOf(FName + WorkExtension).c_str());
}

std::vector<TLeftWork> TAutoSave::LeftWork() const {
    std::vector<TLeftWork> left;
    for (const String& name : FilesLike(PathOf(String(L"*") + WorkExtension))) {
        const String stem = name.substr(0, name.size() - std::size(WorkExtension) + 1);
        if (stem == FName) continue;
        // Whoever gets the lock may take the work; the lock of a living program can't be had.
        auto lock = std::make_shared<TLock>(PathOf(stem + LockExtension));
        if (!lock->IsHeld()) continue;
        const String path = PathOf(name);
        try {
            TLeftWork work = Unpacked(ReadWholeFile(path), FileTimeOf(path));
            work.Path = path;
            work.Lock = std::move(lock);
            left.push_back(std::move(work));
        } catch (const EFOpenError&) {
            // Somebody has just taken or locked it; the next start may see it again.
            continue;
        }
    }
    std::ranges::sort(left, std::greater(), &TLeftWork::SavedAt);
    return left;
}

void TAutoSave::Forget(const TLeftWork& work) {
    ::DeleteFileW(work.Path.c_str());
}

String TAutoSave::DefaultFolder() {
    wchar_t path[MAX_PATH]{};
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr,
                                  SHGFP_TYPE_CURRENT, path)))
        throw EFCreateError(L"The user has no folder for application data");
    return String(path) + L"\\QV7 Skin\\Designer";
}

}  // namespace designer
