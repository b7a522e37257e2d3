#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/core/Streams.h"

#include <algorithm>
#include <cstring>

namespace vcl {

const TMetaClass& TCustomMemoryStream::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomMemoryStream>(L"TCustomMemoryStream", TStream::StaticClass());
    return meta;
}

std::size_t TCustomMemoryStream::Read(void* buffer, std::size_t count) {
    if (FPosition >= FBytes.size()) return 0;
    const std::size_t present = std::min(count, FBytes.size() - FPosition);
    std::memcpy(buffer, FBytes.data() + FPosition, present);
    FPosition += present;
    return present;
}

std::size_t TCustomMemoryStream::Write(const void*, std::size_t) {
    throw EStreamError(L"The stream is read-only");
}

void TCustomMemoryStream::SetSize(std::int64_t) {
    throw EStreamError(L"The stream is read-only");
}

std::int64_t TCustomMemoryStream::Seek(std::int64_t offset, TSeekOrigin origin) {
    const std::int64_t base = origin == soBeginning ? 0
                              : origin == soEnd     ? GetSize()
                                                    : static_cast<std::int64_t>(FPosition);
    if (base + offset < 0) throw EStreamError(L"Stream position before the beginning");
    FPosition = static_cast<std::size_t>(base + offset);
    return base + offset;
}

void TCustomMemoryStream::SaveToStream(TStream& stream) const {
    stream.WriteBuffer(FBytes.data(), FBytes.size());
}

void TCustomMemoryStream::SaveToFile(const String& fileName) const {
    TFileStream file(fileName, fmCreate);
    SaveToStream(file);
}

const TMetaClass& TMemoryStream::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TMemoryStream>(L"TMemoryStream", TCustomMemoryStream::StaticClass());
    return meta;
}

std::size_t TMemoryStream::Write(const void* buffer, std::size_t count) {
    if (count == 0) return 0;
    const std::size_t end = FPosition + count;
    if (end > FStorage.size()) {
        FStorage.resize(end);
        SetBytes(FStorage);
    }
    std::memcpy(FStorage.data() + FPosition, buffer, count);
    FPosition = end;
    return count;
}

void TMemoryStream::SetSize(std::int64_t size) {
    if (size < 0) throw EStreamError(L"Negative stream size");
    FStorage.resize(static_cast<std::size_t>(size));
    SetBytes(FStorage);
    FPosition = std::min(FPosition, FStorage.size());
}

void TMemoryStream::LoadFromStream(TStream& stream) {
    if (&stream != this) {
        SetSize(stream.GetSize());
        stream.SetPosition(0);
        stream.ReadBuffer(FStorage.data(), FStorage.size());
    }
    FPosition = 0;
}

void TMemoryStream::LoadFromFile(const String& fileName) {
    TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
    LoadFromStream(file);
}

const TMetaClass& TResourceStream::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TResourceStream>(L"TResourceStream", TCustomMemoryStream::StaticClass());
    return meta;
}

TResourceStream::TResourceStream(HINSTANCE module, const String& name, const wchar_t* type) {
    SetBytes(FindResourceBytes(module, name, type));
}

}  // namespace vcl
