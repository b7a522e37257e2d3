#include "platform/vcl/core/Streams.h"

#include "platform/vcl/core/DefineClass.h"

#include <algorithm>
#include <array>

namespace vcl {

const TMetaClass& TStream::StaticClass() {
    static const TMetaClass meta = DefineClass<TStream>(L"TStream", TObject::StaticClass());
    return meta;
}

std::int64_t TStream::GetPosition() const {
    // Seeking nowhere changes nothing.
    return const_cast<TStream*>(this)->Seek(0, soCurrent);
}

void TStream::ReadBuffer(void* buffer, std::size_t count) {
    if (Read(buffer, count) != count) throw EReadError(L"Stream read error");
}

void TStream::WriteBuffer(const void* buffer, std::size_t count) {
    if (Write(buffer, count) != count) throw EWriteError(L"Stream write error");
}

std::int64_t TStream::CopyFrom(TStream& source, std::int64_t count) {
    if (count <= 0) {
        source.SetPosition(0);
        count = source.GetSize();
    }
    std::array<std::byte, 16384> buffer;
    for (std::int64_t left = count; left > 0;) {
        const auto piece = static_cast<std::size_t>(std::min<std::int64_t>(left, buffer.size()));
        source.ReadBuffer(buffer.data(), piece);
        WriteBuffer(buffer.data(), piece);
        left -= static_cast<std::int64_t>(piece);
    }
    return count;
}

}  // namespace vcl
