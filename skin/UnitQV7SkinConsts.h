#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include <array>

#include "platform/vcl/core/Strings.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The look that a piece of the skin belongs to; stands in resource names as "DEFAULT", "HOVERED" ...
enum class TSkinState { ssDefault, ssHovered, ssPressed, ssDisabled };
/// The place of a piece in a frame, in the order in which frames load their pieces.
enum class TFramePosition {
    fposTopLeft,
    fposTopCenter,
    fposTopRight,
    fposBottomLeft,
    fposBottomCenter,
    fposBottomRight,
    fposLeftCenter,
    fposRightCenter,
};
/// The place of a piece in a band of three.
enum class TBandPosition { bpLeft, bpCenter, bpRight };
using enum TSkinState;
using enum TFramePosition;
using enum TBandPosition;

inline constexpr std::array AllFramePositions{fposTopLeft,    fposTopCenter,    fposTopRight,
                                              fposBottomLeft, fposBottomCenter, fposBottomRight,
                                              fposLeftCenter, fposRightCenter};

/// "DEFAULT", "HOVERED", "PRESSED" or "DISABLED".
[[nodiscard]] const wchar_t* SkinStateWord(TSkinState state);
/// "TOPLEFT", "TOPCENTER", "TOPRIGHT", "BOTTOMLEFT", "BOTTOMCENTER", "BOTTOMRIGHT", "LEFTCENTER" or
/// "RIGHTCENTER".
[[nodiscard]] const wchar_t* FramePositionWord(TFramePosition position);
/// "LEFT", "CENTER" or "RIGHT".
[[nodiscard]] const wchar_t* BandPositionWord(TBandPosition position);

/// What stands before the position word: "SKINBUTTON" and `ssHovered` make "SKINBUTTONHOVERED".
[[nodiscard]] String SkinResourceName(StringView prefix, TSkinState state);
/// The name of one piece of a frame: "SKINBUTTONHOVERED" and `fposTopLeft` make "SKINBUTTONHOVEREDTOPLEFT".
[[nodiscard]] String FrameResourceName(StringView prefix, TFramePosition position);
/// The name of one piece of a band: "TOOLBUTTONPRESSED" and `bpLeft` make "TOOLBUTTONPRESSEDLEFT".
[[nodiscard]] String BandResourceName(StringView prefix, TBandPosition position);

/// Entries of the package's string table.
enum TSkinStringId : unsigned {
    resQV7SkinSelection = 65520,        ///< The name of the skin.
    resObjectNotInList = 65521,         ///< Follows the class name of a list.
    resObjectAlreadyInList = 65522,     ///< Follows the class name of a list.
    resDateFormatDayFirst = 65523,      ///< "dd/mm/yyyy"
    resDateFormatMonthFirst = 65524,    ///< "mm/dd/yyyy"
    resDateFormatYearFirst = 65525,     ///< "yyyy/mm/dd"
    resDateFormatSeparator = 65526,     ///< The separator in the three formats.
    resDateFormatWeekday = 65527,       ///< "ddd"
    resDateFormatWeekdayComma = 65528,  ///< What stands between weekday and date.
};
/// A text of the string table; empty for an unknown number.
[[nodiscard]] String LoadSkinString(unsigned id);

/// The description of the package.
[[nodiscard]] const wchar_t* QV7SkinPackageDescription();

/// The module that carries the skin's resources: the package's DLL, or the program in a static build.
[[nodiscard]] HINSTANCE QV7SkinModule();

}  // namespace qv7skin
