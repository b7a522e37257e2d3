#include "platform/vcl/controls/ControlTypes.h"

#include <array>
#include <cwctype>

namespace vcl {
namespace {

constexpr std::array AlignNames{L"alNone",  L"alTop",    L"alBottom", L"alLeft",
                                L"alRight", L"alClient", L"alCustom"};
constexpr std::array AnchorNames{L"akLeft", L"akTop", L"akRight", L"akBottom"};
constexpr std::array ButtonNames{L"mbLeft", L"mbRight", L"mbMiddle"};
constexpr std::array ShiftNames{L"ssShift", L"ssAlt",    L"ssCtrl",  L"ssLeft",
                                L"ssRight", L"ssMiddle", L"ssDouble"};
constexpr std::array BevelCutNames{L"bvNone", L"bvLowered", L"bvRaised", L"bvSpace"};
constexpr std::array BevelKindNames{L"bkNone", L"bkTile", L"bkSoft", L"bkFlat"};
constexpr std::array BevelEdgeNames{L"beLeft", L"beTop", L"beRight", L"beBottom"};
constexpr std::array BorderNames{L"bsNone",   L"bsSingle",     L"bsSizeable",
                                 L"bsDialog", L"bsToolWindow", L"bsSizeToolWin"};

constexpr std::array Cursors{
    TIdentifier{L"crDefault", crDefault},     TIdentifier{L"crNone", crNone},
    TIdentifier{L"crArrow", crArrow},         TIdentifier{L"crCross", crCross},
    TIdentifier{L"crIBeam", crIBeam},         TIdentifier{L"crSizeNESW", crSizeNESW},
    TIdentifier{L"crSizeNS", crSizeNS},       TIdentifier{L"crSizeNWSE", crSizeNWSE},
    TIdentifier{L"crSizeWE", crSizeWE},       TIdentifier{L"crUpArrow", crUpArrow},
    TIdentifier{L"crHourGlass", crHourGlass}, TIdentifier{L"crDrag", crDrag},
    TIdentifier{L"crNoDrop", crNoDrop},       TIdentifier{L"crHSplit", crHSplit},
    TIdentifier{L"crVSplit", crVSplit},       TIdentifier{L"crMultiDrag", crMultiDrag},
    TIdentifier{L"crSQLWait", crSQLWait},     TIdentifier{L"crNo", crNo},
    TIdentifier{L"crAppStart", crAppStart},   TIdentifier{L"crHelp", crHelp},
    TIdentifier{L"crHandPoint", crHandPoint}, TIdentifier{L"crSizeAll", crSizeAll},
};

constexpr std::array ModalResults{
    TIdentifier{L"mrNone", mrNone},         TIdentifier{L"mrOk", mrOk},
    TIdentifier{L"mrCancel", mrCancel},     TIdentifier{L"mrAbort", mrAbort},
    TIdentifier{L"mrRetry", mrRetry},       TIdentifier{L"mrIgnore", mrIgnore},
    TIdentifier{L"mrYes", mrYes},           TIdentifier{L"mrNo", mrNo},
    TIdentifier{L"mrClose", mrClose},       TIdentifier{L"mrHelp", mrHelp},
    TIdentifier{L"mrTryAgain", mrTryAgain}, TIdentifier{L"mrContinue", mrContinue},
    TIdentifier{L"mrAll", mrAll},           TIdentifier{L"mrNoToAll", mrNoToAll},
    TIdentifier{L"mrYesToAll", mrYesToAll},
};

bool IsDown(int virtualKey) {
    return GetKeyState(virtualKey) < 0;
}

}  // namespace

std::span<const TIdentifier> CursorIdentifiers() {
    return Cursors;
}

std::span<const TIdentifier> ModalResultIdentifiers() {
    return ModalResults;
}

TShiftState KeysToShiftState(WORD keys) {
    TShiftState shift;
    shift.Put(ssShift, (keys & MK_SHIFT) != 0);
    shift.Put(ssCtrl, (keys & MK_CONTROL) != 0);
    shift.Put(ssLeft, (keys & MK_LBUTTON) != 0);
    shift.Put(ssRight, (keys & MK_RBUTTON) != 0);
    shift.Put(ssMiddle, (keys & MK_MBUTTON) != 0);
    shift.Put(ssAlt, IsDown(VK_MENU));
    return shift;
}

TShiftState KeyDataToShiftState(LPARAM keyData) {
    constexpr LPARAM AltIsDown = 0x20000000;
    TShiftState shift;
    shift.Put(ssShift, IsDown(VK_SHIFT));
    shift.Put(ssCtrl, IsDown(VK_CONTROL));
    shift.Put(ssAlt, (keyData & AltIsDown) != 0);
    return shift;
}

TShiftState KeyboardShiftState() {
    BYTE keys[256] = {};
    if (!GetKeyboardState(keys)) return {};
    const auto isDown = [&](int key) { return (keys[key] & 0x80) != 0; };
    TShiftState shift;
    shift.Put(ssShift, isDown(VK_SHIFT));
    shift.Put(ssCtrl, isDown(VK_CONTROL));
    shift.Put(ssAlt, isDown(VK_MENU));
    shift.Put(ssLeft, isDown(VK_LBUTTON));
    shift.Put(ssRight, isDown(VK_RBUTTON));
    shift.Put(ssMiddle, isDown(VK_MBUTTON));
    return shift;
}

bool IsAccel(wchar_t character, StringView caption) {
    if (!character) return false;
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&') continue;
        // Doubled, it stands for itself.
        if (caption[i + 1] == L'&')
            ++i;
        else
            return SameText(caption.substr(i + 1, 1), StringView(&character, 1));
    }
    return false;
}

std::span<const wchar_t* const> TEnumNames<TAlign>::Names() {
    return AlignNames;
}
std::span<const wchar_t* const> TEnumNames<TAnchorKind>::Names() {
    return AnchorNames;
}
std::span<const wchar_t* const> TEnumNames<TMouseButton>::Names() {
    return ButtonNames;
}
std::span<const wchar_t* const> TEnumNames<TShiftKey>::Names() {
    return ShiftNames;
}
std::span<const wchar_t* const> TEnumNames<TBevelCut>::Names() {
    return BevelCutNames;
}
std::span<const wchar_t* const> TEnumNames<TBevelKind>::Names() {
    return BevelKindNames;
}
std::span<const wchar_t* const> TEnumNames<TBevelEdge>::Names() {
    return BevelEdgeNames;
}
std::span<const wchar_t* const> TEnumNames<TFormBorderStyle>::Names() {
    return BorderNames;
}

}  // namespace vcl
