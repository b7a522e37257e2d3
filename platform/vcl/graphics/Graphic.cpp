#include "platform/vcl/graphics/Graphic.h"

#include <windows.h>

#include <istream>
#include <iterator>
#include <limits>
#include <ostream>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/GdiErrors.h"

namespace vcl {
namespace {

/// A file of the system, closed at the end of the scope.
class TFile {
public:
    TFile(const String& name, DWORD access, DWORD share, DWORD disposition)
        : FName(name),
          FHandle(::CreateFileW(name.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                                nullptr)) {
        if (FHandle == INVALID_HANDLE_VALUE) Fail(access == GENERIC_READ ? L"open" : L"create");
    }
    TFile(const TFile&) = delete;
    TFile& operator=(const TFile&) = delete;
    ~TFile() { ::CloseHandle(FHandle); }

    [[nodiscard]] std::vector<std::byte> ReadAll() const {
        LARGE_INTEGER size{};
        if (!::GetFileSizeEx(FHandle, &size) || size.QuadPart > std::numeric_limits<int>::max())
            Fail(L"read");
        std::vector<std::byte> bytes(static_cast<std::size_t>(size.QuadPart));
        DWORD done = 0;
        if (!::ReadFile(FHandle, bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr))
            Fail(L"read");
        bytes.resize(done);
        return bytes;
    }
    void Write(std::span<const std::byte> bytes) const {
        DWORD done = 0;
        if (!::WriteFile(FHandle, bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr) ||
            done != bytes.size())
            Fail(L"write");
    }

private:
    [[noreturn]] void Fail(const wchar_t* what) const {
        const String reason = SystemErrorText(::GetLastError());
        throw EFOpenError(Format(L"Cannot %s file \"%s\". %s", what, FName.c_str(), reason.c_str()));
    }
    const String& FName;
    HANDLE FHandle;
};

}  // namespace

const TMetaClass& TGraphic::StaticClass() {
    static const TMetaClass meta = DefineClass<TGraphic>(L"TGraphic", TPersistent::StaticClass());
    return meta;
}

void TGraphic::SetTransparent(bool value) {
    if (FTransparent == value) return;
    FTransparent = value;
    Changed();
}

void TGraphic::SetModified(bool value) {
    if (value)
        Changed();
    else
        FModified = false;
}

void TGraphic::LoadFromStream(std::istream& stream) {
    const std::vector<char> bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    LoadFromBytes(std::as_bytes(std::span(bytes)));
}

void TGraphic::SaveToStream(std::ostream& stream) const {
    const std::vector<std::byte> bytes = SaveToBytes();
    stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void TGraphic::LoadFromFile(const String& fileName) {
    const std::vector<std::byte> bytes =
        TFile(fileName, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING).ReadAll();
    LoadFromBytes(bytes);
}

void TGraphic::SaveToFile(const String& fileName) const {
    const std::vector<std::byte> bytes = SaveToBytes();
    TFile(fileName, GENERIC_WRITE, 0, CREATE_ALWAYS).Write(bytes);
}

void TGraphic::Changed() {
    FModified = true;
    OnChange(this);
}

}  // namespace vcl
