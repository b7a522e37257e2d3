#include "skin/UnitQV7SkinColors.h"

#include "skin/UnitQV7SkinConsts.h"

namespace qv7skin {

TColor GetQV7SkinColorBackground() {
    return 0x00F0EAE7;
}
TColor GetQV7SkinColorBorder() {
    return 0x00F0EAE7;
}
TColor GetQV7SkinColorCaption() {
    return 0x00FFFFFF;
}
TColor GetQV7SkinColorWindowText() {
    return 0x00000000;
}
TColor GetQV7SkinColorLinkText() {
    return 0x00D78112;
}
TColor GetQV7SkinColorLinkVisited() {
    return 0x00D781B6;
}

TColor GetQV7SkinColorButtonCaption() {
    return 0x00FFFFFF;
}
TFontStyles GetQV7SkinStyleButtonCaption() {
    return {fsBold};
}
TColor GetQV7SkinColorButtonCaptionDisabled() {
    return 0x00FFFFFF;
}
TFontStyles GetQV7SkinStyleButtonCaptionDisabled() {
    return {fsBold};
}

TColor GetQV7SkinColorColumnHeaderBG() {
    return 0x00515151;
}
TColor GetQV7SkinColorColumnHeaderCaption() {
    return 0x00FFFFFF;
}
TFontStyles GetQV7SkinStyleColumnHeaderCaption() {
    return {};
}
TColor GetQV7SkinColorColumnHeaderSpacer() {
    return 0x00F0EAE7;
}

TColor GetQV7SkinColorExplorerBarHeaderCaption() {
    return 0x00FFFFFF;
}
TFontStyles GetQV7SkinStyleExplorerBarHeaderCaption() {
    return {};
}
TColor GetQV7SkinColorExplorerBarHeaderCaption2() {
    return 0x00FFFFFF;
}
TFontStyles GetQV7SkinStyleExplorerBarHeaderCaption2() {
    return {};
}

String GetQV7SkinSelectionName() {
    return LoadSkinString(resQV7SkinSelection);
}
String GetCurrentSkinSelectionAsName() {
    return GetQV7SkinSelectionName();
}

}  // namespace qv7skin
