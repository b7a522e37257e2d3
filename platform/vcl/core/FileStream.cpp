#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/OsErrors.h"
#include "platform/vcl/core/Streams.h"

#include <algorithm>
#include <limits>

namespace vcl {
namespace {

bool IsCreating(unsigned mode) {
    return (mode & fmCreate) == fmCreate;
}

DWORD AccessOf(unsigned mode) {
    if (IsCreating(mode)) return GENERIC_READ | GENERIC_WRITE;
    switch (mode & 0x0F) {
        case fmOpenWrite:
            return GENERIC_WRITE;
        case fmOpenReadWrite:
            return GENERIC_READ | GENERIC_WRITE;
        default:
            return GENERIC_READ;
    }
}

DWORD SharingOf(unsigned mode) {
    switch (mode & 0xF0) {
        case fmShareDenyWrite:
            return FILE_SHARE_READ;
        case fmShareDenyRead:
            return FILE_SHARE_WRITE;
        case fmShareDenyNone:
            return FILE_SHARE_READ | FILE_SHARE_WRITE;
        default:
            return 0;
    }
}

String FullPath(const String& fileName) {
    const DWORD room = GetFullPathNameW(fileName.c_str(), 0, nullptr, nullptr);
    if (room == 0) return fileName;
    String path(room, L'\0');
    path.resize(GetFullPathNameW(fileName.c_str(), room, path.data(), nullptr));
    return path;
}

HANDLE OpenFileHandle(const String& fileName, unsigned mode) {
    HANDLE handle =
        CreateFileW(fileName.c_str(), AccessOf(mode), SharingOf(mode), nullptr,
                    IsCreating(mode) ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) return handle;
    const String reason = SysErrorMessage(GetLastError());
    if (IsCreating(mode))
        throw EFCreateError(Format(L"Cannot create file \"%s\". %s", FullPath(fileName), reason));
    throw EFOpenError(Format(L"Cannot open file \"%s\". %s", FullPath(fileName), reason));
}

/// One call of the system takes no more than this.
DWORD Piece(std::size_t count) {
    return static_cast<DWORD>(std::min<std::size_t>(count, std::numeric_limits<DWORD>::max()));
}

}  // namespace

const TMetaClass& TFileStream::StaticClass() {
    static const TMetaClass meta = DefineClass<TFileStream>(L"TFileStream", TStream::StaticClass());
    return meta;
}

TFileStream::TFileStream(const String& fileName, unsigned mode)
    : FFileName(fileName), FHandle(OpenFileHandle(fileName, mode)) {
    TLedger::Count("file", 1);
}

TFileStream::~TFileStream() {
    CloseHandle(FHandle);
    TLedger::Count("file", -1);
}

std::size_t TFileStream::Read(void* buffer, std::size_t count) {
    DWORD done = 0;
    return ReadFile(FHandle, buffer, Piece(count), &done, nullptr) ? done : 0;
}

std::size_t TFileStream::Write(const void* buffer, std::size_t count) {
    DWORD done = 0;
    return WriteFile(FHandle, buffer, Piece(count), &done, nullptr) ? done : 0;
}

std::int64_t TFileStream::Seek(std::int64_t offset, TSeekOrigin origin) {
    const DWORD method = origin == soBeginning ? FILE_BEGIN : origin == soEnd ? FILE_END : FILE_CURRENT;
    LARGE_INTEGER distance;
    LARGE_INTEGER position;
    distance.QuadPart = offset;
    if (!SetFilePointerEx(FHandle, distance, &position, method))
        throw EStreamError(L"Stream position before the beginning");
    return position.QuadPart;
}

std::int64_t TFileStream::GetSize() const {
    LARGE_INTEGER size;
    Win32Check(GetFileSizeEx(FHandle, &size) != FALSE);
    return size.QuadPart;
}

void TFileStream::SetSize(std::int64_t size) {
    const std::int64_t position = GetPosition();
    SetPosition(size);
    Win32Check(SetEndOfFile(FHandle) != FALSE);
    SetPosition(std::min(position, size));
}

}  // namespace vcl
