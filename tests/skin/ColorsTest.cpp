#include "skin/UnitQV7SkinColors.h"

#include <gtest/gtest.h>

namespace qv7skin {
namespace {

TEST(ColorsTest, ThePaletteHasItsColors) {
    EXPECT_EQ(GetQV7SkinColorBackground(), 0x00F0EAE7U);
    EXPECT_EQ(GetQV7SkinColorBorder(), 0x00F0EAE7U);
    EXPECT_EQ(GetQV7SkinColorCaption(), 0x00FFFFFFU);
    EXPECT_EQ(GetQV7SkinColorWindowText(), 0x00000000U);
    EXPECT_EQ(GetQV7SkinColorLinkText(), RGBToColor(18, 129, 215));
    EXPECT_EQ(GetQV7SkinColorLinkVisited(), RGBToColor(182, 129, 215));
    EXPECT_EQ(GetQV7SkinColorButtonCaption(), 0x00FFFFFFU);
    EXPECT_EQ(GetQV7SkinColorColumnHeaderBG(), 0x00515151U);
    EXPECT_EQ(GetQV7SkinColorColumnHeaderCaption(), 0x00FFFFFFU);
    EXPECT_EQ(GetQV7SkinColorColumnHeaderSpacer(), 0x00F0EAE7U);
    EXPECT_EQ(GetQV7SkinColorExplorerBarHeaderCaption(), 0x00FFFFFFU);
    EXPECT_EQ(GetQV7SkinColorExplorerBarHeaderCaption2(), 0x00FFFFFFU);
}

TEST(ColorsTest, OnlyButtonCaptionsAreBold) {
    EXPECT_EQ(GetQV7SkinStyleButtonCaption(), TFontStyles{fsBold});
    EXPECT_EQ(GetQV7SkinStyleColumnHeaderCaption(), TFontStyles{});
    EXPECT_EQ(GetQV7SkinStyleExplorerBarHeaderCaption(), TFontStyles{});
    EXPECT_EQ(GetQV7SkinStyleExplorerBarHeaderCaption2(), TFontStyles{});
}

TEST(ColorsTest, ADisabledButtonCaptionLooksLikeAnEnabledOne) {
    EXPECT_EQ(GetQV7SkinColorButtonCaptionDisabled(), GetQV7SkinColorButtonCaption());
    EXPECT_EQ(GetQV7SkinStyleButtonCaptionDisabled(), GetQV7SkinStyleButtonCaption());
}

TEST(ColorsTest, TheSkinIsCalledWeiss) {
    EXPECT_EQ(GetQV7SkinSelectionName(), L"Wei\u00DF");
    EXPECT_EQ(GetCurrentSkinSelectionAsName(), GetQV7SkinSelectionName());
}

}  // namespace
}  // namespace qv7skin
