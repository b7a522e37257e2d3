#include "platform/tms/GlowButtonAppearance.h"

#include "platform/vcl/core/DefineClass.h"

namespace tms {
namespace {

TGlowColors VerticalColors(TColor border, TColor text, TColor color, TColor colorTo, TColor mirror,
                           TColor mirrorTo) {
    return {border, text, gdpVertical, color, colorTo, gdpVertical, mirror, mirrorTo};
}

}  // namespace

const TMetaClass& TGlowButtonAppearance::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TGlowButtonAppearance>(L"TGlowButtonAppearance", TPersistent::StaticClass());
    return meta;
}

TGlowButtonAppearance::TGlowButtonAppearance()
    : FColors{VerticalColors(0x00ADADAD, clDefault, 0x00FCFCFC, 0x00F0F0F0, 0x00E6E6E6, 0x00DADADA),
              VerticalColors(0x00C8C8C8, 0x00808080, 0x00F6F6F6, 0x00F2F2F2, 0x00EEEEEE, 0x00EAEAEA),
              VerticalColors(0x00B0802C, clDefault, 0x00F4DCC0, 0x00ECCBA2, 0x00E6BE8C, 0x00F4DCB4),
              VerticalColors(0x00B0802C, clDefault, 0x00F9EBDA, 0x00F4DEC2, 0x00EFD2AC, 0x00F7E4C8),
              VerticalColors(0x00C89B46, clDefault, 0x00FEF8F0, 0x00FBEEDC, 0x00F7E2C6, 0x00FCF0DE)} {}

void TGlowButtonAppearance::Assign(const TPersistent* source) {
    const auto* other = dynamic_cast<const TGlowButtonAppearance*>(source);
    if (!other) return TPersistent::Assign(source);
    FColors = other->FColors;
    FSystemFont = other->FSystemFont;
    OnChange(this);
}

void TGlowButtonAppearance::SetColors(TGlowGroup group, const TGlowColors& value) {
    TGlowColors& colors = FColors[static_cast<std::size_t>(group)];
    if (colors == value) return;
    colors = value;
    OnChange(this);
}

void TGlowButtonAppearance::SetSystemFont(bool value) {
    if (FSystemFont == value) return;
    FSystemFont = value;
    OnChange(this);
}

}  // namespace tms
