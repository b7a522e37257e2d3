#include "platform/vcl/stdctrls/TextTypes.h"

#include "platform/vcl/core/WindowsApi.h"

#include <array>

namespace vcl {
namespace {

constexpr std::array AlignmentNames{L"taLeftJustify", L"taRightJustify", L"taCenter"};
constexpr std::array LayoutNames{L"tlTop", L"tlCenter", L"tlBottom"};
constexpr std::array EllipsisNames{L"epNone", L"epPathEllipsis", L"epEndEllipsis", L"epWordEllipsis"};
constexpr std::array CharCaseNames{L"ecNormal", L"ecUpperCase", L"ecLowerCase"};
constexpr std::array ScrollStyleNames{L"ssNone", L"ssHorizontal", L"ssVertical", L"ssBoth"};
constexpr std::array CheckStateNames{L"cbUnchecked", L"cbChecked", L"cbGrayed"};

}  // namespace

std::span<const wchar_t* const> TEnumNames<TAlignment>::Names() {
    return AlignmentNames;
}
std::span<const wchar_t* const> TEnumNames<TTextLayout>::Names() {
    return LayoutNames;
}
std::span<const wchar_t* const> TEnumNames<TEllipsisPosition>::Names() {
    return EllipsisNames;
}
std::span<const wchar_t* const> TEnumNames<TEditCharCase>::Names() {
    return CharCaseNames;
}
std::span<const wchar_t* const> TEnumNames<TScrollStyle>::Names() {
    return ScrollStyleNames;
}
std::span<const wchar_t* const> TEnumNames<TCheckBoxState>::Names() {
    return CheckStateNames;
}

unsigned AlignmentToDrawText(TAlignment alignment) {
    switch (alignment) {
        case taRightJustify:
            return DT_RIGHT;
        case taCenter:
            return DT_CENTER;
        default:
            return DT_LEFT;
    }
}

unsigned EllipsisToDrawText(TEllipsisPosition position) {
    switch (position) {
        case epPathEllipsis:
            return DT_PATH_ELLIPSIS;
        case epEndEllipsis:
            return DT_END_ELLIPSIS;
        case epWordEllipsis:
            return DT_WORD_ELLIPSIS;
        default:
            return 0;
    }
}

}  // namespace vcl
