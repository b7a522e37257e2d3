#include "platform/vcl/streaming/FormBytes.h"

#include "platform/vcl/core/TextEncoding.h"

#include <utility>

namespace vcl {

void TFormBytes::Fail(TFormProblemKind kind, std::size_t offset, String text) const {
    FPlace.Fail(kind, TFormPosition::AtOffset(offset), std::move(text));
}

std::uint8_t TFormBytes::Peek() {
    if (AtEnd()) Fail(TFormProblemKind::Truncated, FOffset, L"Unexpected end of the file");
    return std::to_integer<std::uint8_t>(FBytes[FOffset]);
}

std::span<const std::byte> TFormBytes::Take(std::uint64_t count, std::size_t start) {
    const std::size_t left = FBytes.size() - FOffset;
    if (count > left)
        Fail(TFormProblemKind::Truncated, start,
             Format(L"Unexpected end of the file: %u bytes are needed, %u are left", count, left));
    const auto taken = FBytes.subspan(FOffset, static_cast<std::size_t>(count));
    FOffset += taken.size();
    return taken;
}

String TFormBytes::ReadShortText() {
    const std::size_t start = FOffset;
    const auto length = Read<std::uint8_t>();
    const auto bytes = Take(length, start);
    if (auto text = DecodeUtf8(bytes)) return *std::move(text);
    return DecodeAnsi(bytes);
}

void TFormBytes::Limit(std::uint64_t count) {
    const std::size_t start = FOffset;
    (void)Take(count, start);
    FBytes = FBytes.first(FOffset);
    FOffset = start;
}

}  // namespace vcl
