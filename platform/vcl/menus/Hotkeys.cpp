#include "platform/vcl/menus/Hotkeys.h"

#include <cwctype>

#include "platform/vcl/menus/ShortCuts.h"

namespace vcl {
namespace {

bool CanBeHotkey(wchar_t character) {
    return std::iswalnum(character) != 0;
}

/// The caption with the mark before the first character that is free; the caption itself when none is.
String WithHotkey(const String& caption, String& taken) {
    const StringView text = CaptionText(caption);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == cHotkeyPrefix) {
            ++i;
            continue;
        }
        const wchar_t key = UpperCase(text.substr(i, 1)).front();
        if (!CanBeHotkey(key) || taken.find(key) != String::npos) continue;
        taken += key;
        return caption.substr(0, i) + cHotkeyPrefix + caption.substr(i);
    }
    return caption;
}

/// Without the mark of its mnemonic, but with doubled ones.
String WithoutHotkey(const String& caption) {
    String result;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] != cHotkeyPrefix) {
            result += caption[i];
        } else if (i + 1 < caption.size() && caption[i + 1] == cHotkeyPrefix) {
            result.append(2, cHotkeyPrefix);
            ++i;
        }
    }
    return result;
}

}  // namespace

StringView CaptionText(StringView caption) {
    return caption.substr(0, caption.find(L'\t'));
}

String WithFreeHotkey(const String& caption, String& taken) {
    const wchar_t own = GetHotkey(CaptionText(caption));
    if (own != 0 && taken.find(own) == String::npos) {
        taken += own;
        return caption;
    }
    return WithHotkey(WithoutHotkey(caption), taken);
}

}  // namespace vcl
