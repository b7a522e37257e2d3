#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

#include "platform/vcl/streaming/FormPlace.h"

namespace vcl {

/// Reads the bytes of a binary form file one after the other. Raises EFormError where they end.
class TFormBytes {
    static_assert(std::endian::native == std::endian::little);

public:
    TFormBytes(std::span<const std::byte> bytes, const TFormPlace& place) : FBytes(bytes), FPlace(place) {}

    [[nodiscard]] std::size_t Offset() const { return FOffset; }
    [[nodiscard]] TFormPosition Position() const { return TFormPosition::AtOffset(FOffset); }
    [[nodiscard]] bool AtEnd() const { return FOffset == FBytes.size(); }
    /// The next byte, which stays where it is.
    [[nodiscard]] std::uint8_t Peek();
    template <class T>
    [[nodiscard]] T Read() {
        static_assert(std::is_trivially_copyable_v<T>);
        T value;
        std::memcpy(&value, Take(sizeof(T), FOffset).data(), sizeof(T));
        return value;
    }
    /// That many bytes; `start` is where a message says that what needs them begins.
    [[nodiscard]] std::span<const std::byte> Take(std::uint64_t count, std::size_t start);
    /// A text after the byte that holds its length: UTF-8, or code page 1252 where it is malformed.
    [[nodiscard]] String ReadShortText();
    /// Cuts off what lies behind so many more bytes.
    void Limit(std::uint64_t count);

    [[noreturn]] void Fail(TFormProblemKind kind, std::size_t offset, String text) const;

private:
    std::span<const std::byte> FBytes;
    const TFormPlace& FPlace;
    std::size_t FOffset = 0;
};

}  // namespace vcl
