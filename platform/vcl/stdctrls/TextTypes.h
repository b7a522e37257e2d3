#pragma once

#include <span>

#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

/// Where a text stands between the left and the right edge.
enum class TAlignment { taLeftJustify, taRightJustify, taCenter };
/// Where a text stands between the upper and the lower edge.
enum class TTextLayout { tlTop, tlCenter, tlBottom };
/// Where dots replace what does not fit: nowhere, in the middle of a path, at the end, after whole words.
enum class TEllipsisPosition { epNone, epPathEllipsis, epEndEllipsis, epWordEllipsis };
/// What an editor does with letters: leave them, or change the case of what is typed.
enum class TEditCharCase { ecNormal, ecUpperCase, ecLowerCase };
enum class TScrollStyle { ssNone, ssHorizontal, ssVertical, ssBoth };
enum class TCheckBoxState { cbUnchecked, cbChecked, cbGrayed };
using TLeftRight = TAlignment;

using enum TAlignment;
using enum TTextLayout;
using enum TEllipsisPosition;
using enum TEditCharCase;
using enum TScrollStyle;
using enum TCheckBoxState;

template <>
struct TEnumNames<TAlignment> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TTextLayout> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TEllipsisPosition> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TEditCharCase> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TScrollStyle> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TCheckBoxState> {
    static std::span<const wchar_t* const> Names();
};

/// The flags of DrawText that stand for the place of a text.
[[nodiscard]] unsigned AlignmentToDrawText(TAlignment alignment);
[[nodiscard]] unsigned EllipsisToDrawText(TEllipsisPosition position);

}  // namespace vcl
