#include "buttons/ButtonRows.h"
#include "buttons/UnitQV7SkinButton.h"

namespace qv7skin {

const TMetaClass& TCustomTMSAdvGlowButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomTMSAdvGlowButton>(L"TCustomTMSAdvGlowButton", TAdvGlowButton::StaticClass());
    return meta;
}

TCustomTMSAdvGlowButton::TCustomTMSAdvGlowButton(TComponent* AOwner)
    : TAdvGlowButton(AOwner), FCompatibilityFont(std::make_unique<TFont>()) {
    SetBounds(GetLeft(), GetTop(), 100, 25);
    SetRounded(false);
    GetFont().SetColor(0x00FFFFFF);
    GetFont().SetName(L"Tahoma");
    GetFont().SetHeight(-11);
    GetFont().SetStyle({fsBold});

    TGlowButtonAppearance& appearance = Appearance();
    appearance.SetSystemFont(false);
    TGlowColors disabled{.Border = 0x00808080,
                         .Text = appearance.GetColors(glowDisabled).Text,
                         .Color = 0x00F2F2F2,
                         .ColorTo = 0x00F2F2F2,
                         .ColorMirror = 0x00B6B6B6,
                         .ColorMirrorTo = 0x00F2F2F2};
    const TGlowColors normal{.Border = 0x00000000,
                             .Color = 0x00626262,
                             .ColorTo = 0x00515151,
                             .ColorMirror = 0x00000000,
                             .ColorMirrorTo = 0x00121212};
    const TGlowColors blue{.Border = 0x00800000,
                           .Text = 0x00FFFFFF,
                           .Color = 0x00F2BF86,
                           .ColorTo = 0x00C66021,
                           .ColorMirror = 0x00F7D944,
                           .ColorMirrorTo = 0x00C66021};
    appearance.SetColors(glowNormal, normal);
    appearance.SetColors(glowDisabled, disabled);
    appearance.SetColors(glowDown, blue);
    appearance.SetColors(glowChecked, appearance.GetColors(glowDown));
    appearance.SetColors(glowHot, blue);
}

TCustomTMSAdvGlowButton::~TCustomTMSAdvGlowButton() = default;

void TCustomTMSAdvGlowButton::StateChanged() {
    OnStateChange(this);
}

void TCustomTMSAdvGlowButton::SetAlignment(TAlignment Value) {
    if (FAlignment == Value) return;
    FAlignment = Value;
    Invalidate();
}

TButtonExStyle TCustomTMSAdvGlowButton::GetButtonStyle() const {
    return GetStyle() == absToggle ? bxsToggle : bxsPush;
}

void TCustomTMSAdvGlowButton::SetButtonStyle(TButtonExStyle Value) {
    SetStyle(Value == bxsToggle ? absToggle : absButton);
}

const TMetaClass& TQV7SkinButton::StaticClass() {
    using T = TQV7SkinButton;
    static const TMetaClass meta =
        DefineClass<T>(L"TQV7SkinButton", TCustomTMSAdvGlowButton::StaticClass())
            .With(ButtonRows)
            .Property(L"Alignment", &T::GetAlignment, &T::SetAlignment)
            .Property(L"Cancel", &T::GetCancel, &T::SetCancel, false)
            .Property(L"Default", &T::GetDefault, &T::SetDefault, false)
            .Property(L"Down", &T::GetDown, &T::SetDown, false)
            .Property(L"FontDisabled", &T::GetFontDisabled, &T::SetFontDisabled)
            .Property(L"FontHovered", &T::GetFontHovered, &T::SetFontHovered)
            .Property(L"ModalResult", &T::GetModalResult, &T::SetModalResult, mrNone)
            .Identifiers(ModalResultIdentifiers())
            .Property(L"TextMarginHorizontal", &T::GetTextMarginHorizontal, &T::SetTextMarginHorizontal)
            .Property(L"TextMarginLeft", &T::GetTextMarginLeft, &T::SetTextMarginLeft)
            .Property(L"TextMarginVertical", &T::GetTextMarginVertical, &T::SetTextMarginVertical)
            .Property(L"TextOffsetDownHorizontal", &T::GetTextOffsetDownHorizontal,
                      &T::SetTextOffsetDownHorizontal)
            .Property(L"TextOffsetDownVertical", &T::GetTextOffsetDownVertical, &T::SetTextOffsetDownVertical)
            .Property(L"UseSkinFonts", &T::GetUseSkinFonts, &T::SetUseSkinFonts)
            .Event(L"OnSetButtonSize", &T::OnSetButtonSize);
    return meta;
}

}  // namespace qv7skin
