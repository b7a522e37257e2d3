#pragma once

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Font.h"
#include "skin/Namespace.h"

/// The palette of the skin: colours 0x00BBGGRR and font styles, constant and callable from any thread. What
/// has the same value today may differ in a later skin; ask for what you mean.
namespace qv7skin {

/// Behind everything: a very light blue-grey.
[[nodiscard]] TColor GetQV7SkinColorBackground();
[[nodiscard]] TColor GetQV7SkinColorBorder();
[[nodiscard]] TColor GetQV7SkinColorCaption();
[[nodiscard]] TColor GetQV7SkinColorWindowText();
/// The blue of links and hovered texts.
[[nodiscard]] TColor GetQV7SkinColorLinkText();
[[nodiscard]] TColor GetQV7SkinColorLinkVisited();

[[nodiscard]] TColor GetQV7SkinColorButtonCaption();
[[nodiscard]] TFontStyles GetQV7SkinStyleButtonCaption();
/// A disabled button shows by its frame, not by its caption.
[[nodiscard]] TColor GetQV7SkinColorButtonCaptionDisabled();
[[nodiscard]] TFontStyles GetQV7SkinStyleButtonCaptionDisabled();

[[nodiscard]] TColor GetQV7SkinColorColumnHeaderBG();
[[nodiscard]] TColor GetQV7SkinColorColumnHeaderCaption();
[[nodiscard]] TFontStyles GetQV7SkinStyleColumnHeaderCaption();
/// The lines between and below column headers.
[[nodiscard]] TColor GetQV7SkinColorColumnHeaderSpacer();

[[nodiscard]] TColor GetQV7SkinColorExplorerBarHeaderCaption();
[[nodiscard]] TFontStyles GetQV7SkinStyleExplorerBarHeaderCaption();
[[nodiscard]] TColor GetQV7SkinColorExplorerBarHeaderCaption2();
[[nodiscard]] TFontStyles GetQV7SkinStyleExplorerBarHeaderCaption2();

/// The name of the skin, "Weiß" unless the string table was translated.
[[nodiscard]] String GetQV7SkinSelectionName();
/// The name of the skin in use, for a host that shows it: the only one there is.
[[nodiscard]] String GetCurrentSkinSelectionAsName();

}  // namespace qv7skin
