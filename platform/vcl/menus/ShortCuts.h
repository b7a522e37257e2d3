#pragma once

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/TextLayout.h"

namespace vcl {

struct TMessage;

/// A key with the keys held beside it: the virtual key code in the low byte, scShift, scCtrl and scAlt above
/// it; 0 is none. Form files hold the number.
using TShortCut = WORD;
inline constexpr TShortCut scNone = 0;
inline constexpr TShortCut scShift = 0x2000;
inline constexpr TShortCut scCtrl = 0x4000;
inline constexpr TShortCut scAlt = 0x8000;

/// Puts a short cut together; ssShift, ssCtrl and ssAlt count. Key 0 gives 0.
[[nodiscard]] TShortCut ShortCut(WORD key, TShiftState shift);
/// Takes a short cut apart.
void ShortCutToKey(TShortCut shortCut, WORD& key, TShiftState& shift);
/// How the user reads the short cut, such as "Shift+Ctrl+S" or "Del"; empty for none and for keys without a
/// name.
[[nodiscard]] String ShortCutToText(TShortCut shortCut);
/// The short cut that the text names, ignoring case; 0 for anything else.
[[nodiscard]] TShortCut TextToShortCut(StringView text);
/// The short cut that a key message stands for.
[[nodiscard]] TShortCut ShortCutFromMessage(const TMessage& message);

/// The character that marks the mnemonic in captions; doubled it stands for itself.
inline constexpr wchar_t cHotkeyPrefix = L'&';
/// The caption of a separator.
inline constexpr wchar_t cLineCaption[] = L"-";
/// The caption's mnemonic in capitals, or 0.
[[nodiscard]] wchar_t GetHotkey(StringView caption);
/// Equality of captions without regard to case and mnemonics.
[[nodiscard]] bool SameCaption(StringView a, StringView b);

}  // namespace vcl
