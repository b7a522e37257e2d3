#include "platform/vcl/forms/FormTypes.h"

#include <array>

namespace vcl {
namespace {

constexpr std::array BorderIconNames{L"biSystemMenu", L"biMinimize", L"biMaximize", L"biHelp"};
constexpr std::array FormStyleNames{L"fsNormal", L"fsStayOnTop"};
constexpr std::array PositionNames{L"poDesigned",        L"poDefault",        L"poDefaultPosOnly",
                                   L"poDefaultSizeOnly", L"poScreenCenter",   L"poDesktopCenter",
                                   L"poMainFormCenter",  L"poOwnerFormCenter"};
constexpr std::array WindowStateNames{L"wsNormal", L"wsMinimized", L"wsMaximized"};
constexpr std::array PopupModeNames{L"pmNone", L"pmAuto", L"pmExplicit"};

}  // namespace

std::span<const wchar_t* const> TEnumNames<TBorderIcon>::Names() {
    return BorderIconNames;
}
std::span<const wchar_t* const> TEnumNames<TFormStyle>::Names() {
    return FormStyleNames;
}
std::span<const wchar_t* const> TEnumNames<TPosition>::Names() {
    return PositionNames;
}
std::span<const wchar_t* const> TEnumNames<TWindowState>::Names() {
    return WindowStateNames;
}
std::span<const wchar_t* const> TEnumNames<TPopupMode>::Names() {
    return PopupModeNames;
}

}  // namespace vcl
