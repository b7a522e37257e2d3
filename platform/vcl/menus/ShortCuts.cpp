#include "platform/vcl/menus/ShortCuts.h"

#include <array>

#include "platform/vcl/controls/Messages.h"

namespace vcl {
namespace {

struct TKeyName {
    WORD Key;
    const wchar_t* Name;
};

/// Keys that have no character, in the words that menus use.
constexpr std::array KeyNames{
    TKeyName{VK_BACK, L"BkSp"},      TKeyName{VK_TAB, L"Tab"},      TKeyName{VK_ESCAPE, L"Esc"},
    TKeyName{VK_RETURN, L"Enter"},   TKeyName{VK_SPACE, L"Space"},  TKeyName{VK_PRIOR, L"PgUp"},
    TKeyName{VK_NEXT, L"PgDn"},      TKeyName{VK_END, L"End"},      TKeyName{VK_HOME, L"Home"},
    TKeyName{VK_LEFT, L"Left"},      TKeyName{VK_UP, L"Up"},        TKeyName{VK_RIGHT, L"Right"},
    TKeyName{VK_DOWN, L"Down"},      TKeyName{VK_INSERT, L"Ins"},   TKeyName{VK_DELETE, L"Del"},
    TKeyName{VK_MULTIPLY, L"Num *"}, TKeyName{VK_ADD, L"Num +"},    TKeyName{VK_SUBTRACT, L"Num -"},
    TKeyName{VK_DIVIDE, L"Num /"},   TKeyName{VK_OEM_PLUS, L"="},   TKeyName{VK_OEM_COMMA, L","},
    TKeyName{VK_OEM_MINUS, L"-"},    TKeyName{VK_OEM_PERIOD, L"."}, TKeyName{VK_OEM_1, L";"},
    TKeyName{VK_OEM_2, L"/"},        TKeyName{VK_OEM_3, L"`"},      TKeyName{VK_OEM_4, L"["},
    TKeyName{VK_OEM_5, L"\\"},       TKeyName{VK_OEM_6, L"]"},      TKeyName{VK_OEM_7, L"'"},
};

struct THeldKey {
    TShortCut Bit;
    TShiftKey Key;
    StringView Name;
};
/// In the order in which they are written.
constexpr std::array HeldKeys{THeldKey{scShift, ssShift, L"Shift+"}, THeldKey{scCtrl, ssCtrl, L"Ctrl+"},
                              THeldKey{scAlt, ssAlt, L"Alt+"}};

String NameOfKey(WORD key) {
    for (const TKeyName& known : KeyNames)
        if (known.Key == key) return known.Name;
    if ((key >= L'0' && key <= L'9') || (key >= L'A' && key <= L'Z'))
        return String(1, static_cast<wchar_t>(key));
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9) return L"Num " + IntToStr(key - VK_NUMPAD0);
    if (key >= VK_F1 && key <= VK_F24) return L"F" + IntToStr(key - VK_F1 + 1);
    return {};
}

WORD KeyOfName(StringView name) {
    for (WORD key = 1; key < 0xFF; ++key)
        if (SameText(NameOfKey(key), name)) return key;
    return 0;
}

bool StartsWith(StringView text, StringView start) {
    return text.size() >= start.size() && SameText(text.substr(0, start.size()), start);
}

}  // namespace

TShortCut ShortCut(WORD key, TShiftState shift) {
    if ((key & 0xFF) == 0) return scNone;
    auto result = static_cast<TShortCut>(key & 0xFF);
    for (const THeldKey& held : HeldKeys)
        if (shift.Contains(held.Key)) result |= held.Bit;
    return result;
}

void ShortCutToKey(TShortCut shortCut, WORD& key, TShiftState& shift) {
    key = shortCut & 0xFF;
    shift = {};
    for (const THeldKey& held : HeldKeys)
        if ((shortCut & held.Bit) != 0) shift.Include(held.Key);
}

String ShortCutToText(TShortCut shortCut) {
    const String name = NameOfKey(shortCut & 0xFF);
    if (name.empty()) return {};
    String text;
    for (const THeldKey& held : HeldKeys)
        if ((shortCut & held.Bit) != 0) text += held.Name;
    return text + name;
}

TShortCut TextToShortCut(StringView text) {
    TShortCut held = 0;
    for (bool found = true; found;) {
        found = false;
        for (const THeldKey& known : HeldKeys) {
            if (!StartsWith(text, known.Name)) continue;
            held |= known.Bit;
            text.remove_prefix(known.Name.size());
            found = true;
        }
        if (!text.empty() && text.front() == L'^') {
            held |= scCtrl;
            text.remove_prefix(1);
            found = true;
        }
    }
    const WORD key = text.empty() ? WORD{0} : KeyOfName(text);
    return key == 0 ? scNone : static_cast<TShortCut>(key | held);
}

TShortCut ShortCutFromMessage(const TMessage& message) {
    return ShortCut(message.CharCode(), KeyDataToShiftState(message.KeyData()));
}

wchar_t GetHotkey(StringView caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != cHotkeyPrefix) continue;
        ++i;
        if (caption[i] != cHotkeyPrefix) return UpperCase(caption.substr(i, 1)).front();
    }
    return 0;
}

bool SameCaption(StringView a, StringView b) {
    return CompareText(StripHotkey(a), StripHotkey(b)) == 0;
}

}  // namespace vcl
