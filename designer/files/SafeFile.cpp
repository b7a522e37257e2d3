#include "designer/files/SafeFile.h"

#include <algorithm>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/OsErrors.h"
#include "platform/vcl/core/Streams.h"

namespace designer {
namespace {

/// A file handle that is closed at the end.
class TFileHandle {
public:
    explicit TFileHandle(HANDLE handle) : FHandle(handle) {}
    ~TFileHandle() { Close(); }
    TFileHandle(const TFileHandle&) = delete;
    TFileHandle& operator=(const TFileHandle&) = delete;
    [[nodiscard]] bool IsOpen() const { return FHandle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const { return FHandle; }
    void Close() {
        if (IsOpen()) ::CloseHandle(FHandle);
        FHandle = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE FHandle;
};

/// What the user is told, with the system's reason.
String Refusal(const String& fileName, DWORD error) {
    return L"Die Datei „" + fileName + L"“ kann nicht geschrieben werden: " + SysErrorMessage(error);
}

/// Writes the bytes to the disk. Returns the system's error, or ERROR_SUCCESS.
DWORD WriteAll(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        constexpr std::size_t most = 1u << 30;
        DWORD written = 0;
        if (!::WriteFile(file, bytes.data(), static_cast<DWORD>(std::min(bytes.size(), most)), &written,
                         nullptr))
            return ::GetLastError();
        if (written == 0) return ERROR_DISK_FULL;
        bytes.remove_prefix(written);
    }
    return ::FlushFileBuffers(file) ? ERROR_SUCCESS : ::GetLastError();
}

/// Puts the new file in the place of the old one. Who reads the old one just then (a search index, a scanner)
/// is done with it in a moment. Returns the system's error, or ERROR_SUCCESS.
DWORD Replace(const String& beside, const String& fileName) {
    constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    constexpr int tries = 20;
    constexpr DWORD pause = 20;  // milliseconds
    for (int i = 1; !::MoveFileExW(beside.c_str(), fileName.c_str(), flags); ++i) {
        const DWORD error = ::GetLastError();
        if (i == tries || (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED)) return error;
        ::Sleep(pause);
    }
    return ERROR_SUCCESS;
}

bool IsReadOnly(const String& fileName) {
    const DWORD attributes = ::GetFileAttributesW(fileName.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace

void WriteFileSafely(const String& fileName, std::string_view bytes) {
    // Not every system keeps a file from being replaced that must not be written.
    if (IsReadOnly(fileName)) throw EWriteError(L"Die Datei „" + fileName + L"“ ist schreibgeschützt.");
    const String beside = fileName + L".neu";
    TFileHandle file(::CreateFileW(beside.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) throw EFCreateError(Refusal(beside, ::GetLastError()));
    DWORD error = WriteAll(file.Get(), bytes);
    file.Close();
    if (error == ERROR_SUCCESS) error = Replace(beside, fileName);
    if (error == ERROR_SUCCESS) return;
    ::DeleteFileW(beside.c_str());
    throw EWriteError(Refusal(fileName, error));
}

std::string ReadWholeFile(const String& fileName) {
    TMemoryStream stream;
    stream.LoadFromFile(fileName);
    const auto bytes = stream.GetMemory();
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

unsigned long long FileTimeOf(const String& fileName) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(fileName.c_str(), GetFileExInfoStandard, &data)) return 0;
    return static_cast<unsigned long long>(data.ftLastWriteTime.dwHighDateTime) << 32 |
           data.ftLastWriteTime.dwLowDateTime;
}

}  // namespace designer
