#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vcl {

// The layout of binary form files. All numbers have their least significant byte first.
//
//     file       = ["resource header"] "TPF0" object
//     object     = [prefix [position]] class name {property} 0 {object} 0
//     property   = name value
//     collection = {[order] vaList {property} 0} vaNull
//
// Names are UTF-8 after a byte that holds their length; a length of 0 ends a sequence.

/// The byte in front of a value.
enum class TBinaryKind : std::uint8_t {
    vaNull,  ///< Nothing; ends lists and collections.
    vaList,  ///< Values up to vaNull.
    vaInt8,
    vaInt16,
    vaInt32,
    vaExtended,  ///< Ten bytes.
    vaString,    ///< A byte for the length, text in code page 1252.
    vaIdent,     ///< A name.
    vaFalse,
    vaTrue,
    vaBinary,   ///< Four bytes for the length, bytes.
    vaSet,      ///< Names up to an empty one.
    vaLString,  ///< Four bytes for the length, text in code page 1252.
    vaNil,
    vaCollection,
    vaSingle,
    vaCurrency,  ///< Eight bytes counting ten-thousandths.
    vaDate,      ///< As vaDouble.
    vaWString,   ///< Four bytes for the number of UTF-16 units, UTF-16.
    vaInt64,
    vaUTF8String,  ///< Four bytes for the length, UTF-8.
    vaDouble,
};

inline constexpr std::array<std::byte, 4> FormSignature{std::byte{'T'}, std::byte{'P'}, std::byte{'F'},
                                                        std::byte{'0'}};

// The prefix of an object: this in the upper four bits, flags in the lower ones.
inline constexpr unsigned PrefixMark = 0xF0;
inline constexpr unsigned PrefixInherited = 1;
inline constexpr unsigned PrefixChildPos = 2;
inline constexpr unsigned PrefixInline = 4;

// The header of a resource file: the type RCDATA as a number, the name with a closing zero, two bytes of
// memory flags, four bytes for the size of what follows.
inline constexpr std::array<std::byte, 3> ResourceMark{std::byte{0xFF}, std::byte{10}, std::byte{0}};
inline constexpr std::uint16_t ResourceFlags = 0x1030;

}  // namespace vcl
