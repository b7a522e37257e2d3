#include "platform/vcl/graphics/Color.h"

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

TColor ColorToRGB(TColor color) {
    return color >> 24 == 0xFF ? ::GetSysColor(static_cast<int>(color & 0xFF)) : color & 0x00FFFFFF;
}

TColor BlendColors(TColor a, TColor b, int weightOfB) {
    const TColor from = ColorToRGB(a);
    const TColor to = ColorToRGB(b);
    const auto mix = [weightOfB](int x, int y) {
        return static_cast<std::uint8_t>((x * (255 - weightOfB) + y * weightOfB + 127) / 255);
    };
    return RGBToColor(mix(RedOf(from), RedOf(to)), mix(GreenOf(from), GreenOf(to)),
                      mix(BlueOf(from), BlueOf(to)));
}

std::span<const TIdentifier> ColorIdentifiers() {
    static constexpr TIdentifier identifiers[] = {
        {L"clBlack", clBlack},
        {L"clMaroon", clMaroon},
        {L"clGreen", clGreen},
        {L"clOlive", clOlive},
        {L"clNavy", clNavy},
        {L"clPurple", clPurple},
        {L"clTeal", clTeal},
        {L"clGray", clGray},
        {L"clSilver", clSilver},
        {L"clRed", clRed},
        {L"clLime", clLime},
        {L"clYellow", clYellow},
        {L"clBlue", clBlue},
        {L"clFuchsia", clFuchsia},
        {L"clAqua", clAqua},
        {L"clWhite", clWhite},
        {L"clMoneyGreen", clMoneyGreen},
        {L"clSkyBlue", clSkyBlue},
        {L"clCream", clCream},
        {L"clMedGray", clMedGray},
        {L"clScrollBar", clScrollBar},
        {L"clBackground", clBackground},
        {L"clActiveCaption", clActiveCaption},
        {L"clInactiveCaption", clInactiveCaption},
        {L"clMenu", clMenu},
        {L"clWindow", clWindow},
        {L"clWindowFrame", clWindowFrame},
        {L"clMenuText", clMenuText},
        {L"clWindowText", clWindowText},
        {L"clCaptionText", clCaptionText},
        {L"clActiveBorder", clActiveBorder},
        {L"clInactiveBorder", clInactiveBorder},
        {L"clAppWorkSpace", clAppWorkSpace},
        {L"clHighlight", clHighlight},
        {L"clHighlightText", clHighlightText},
        {L"clBtnFace", clBtnFace},
        {L"clBtnShadow", clBtnShadow},
        {L"clGrayText", clGrayText},
        {L"clBtnText", clBtnText},
        {L"clInactiveCaptionText", clInactiveCaptionText},
        {L"clBtnHighlight", clBtnHighlight},
        {L"cl3DDkShadow", cl3DDkShadow},
        {L"cl3DLight", cl3DLight},
        {L"clInfoText", clInfoText},
        {L"clInfoBk", clInfoBk},
        {L"clHotLight", clHotLight},
        {L"clGradientActiveCaption", clGradientActiveCaption},
        {L"clGradientInactiveCaption", clGradientInactiveCaption},
        {L"clMenuHighlight", clMenuHighlight},
        {L"clMenuBar", clMenuBar},
        {L"clNone", clNone},
        {L"clDefault", clDefault},
        // Second names of colours above; read, never written.
        {L"clLtGray", clLtGray},
        {L"clDkGray", clDkGray},
    };
    return identifiers;
}

String ColorToString(TColor color) {
    for (const TIdentifier& identifier : ColorIdentifiers())
        if (identifier.Value == static_cast<std::int64_t>(color)) return identifier.Name;
    return Format(L"$%08X", color);
}

}  // namespace vcl
