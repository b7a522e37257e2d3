#include "platform/vcl/menus/MenuTypes.h"

namespace vcl {

std::span<const wchar_t* const> TEnumNames<TMenuBreak>::Names() {
    static constexpr const wchar_t* names[] = {L"mbNone", L"mbBreak", L"mbBarBreak"};
    return names;
}

std::span<const wchar_t* const> TEnumNames<TMenuItemAutoFlag>::Names() {
    static constexpr const wchar_t* names[] = {L"maAutomatic", L"maManual", L"maParent"};
    return names;
}

std::span<const wchar_t* const> TEnumNames<TPopupAlignment>::Names() {
    static constexpr const wchar_t* names[] = {L"paLeft", L"paRight", L"paCenter"};
    return names;
}

std::span<const wchar_t* const> TEnumNames<TTrackButton>::Names() {
    static constexpr const wchar_t* names[] = {L"tbRightButton", L"tbLeftButton"};
    return names;
}

std::span<const wchar_t* const> TEnumNames<TMenuAnimation>::Names() {
    static constexpr const wchar_t* names[] = {L"maLeftToRight", L"maRightToLeft", L"maTopToBottom",
                                               L"maBottomToTop", L"maNone"};
    return names;
}

}  // namespace vcl
