#include "platform/vcl/graphics/Color.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {
namespace {

TEST(ColorTest, PlainColorsAreThemselves) {
    EXPECT_EQ(ColorToRGB(0x00D78112), 0x00D78112U);
    EXPECT_EQ(ColorToRGB(clFuchsia), 0x00FF00FFU);
}

TEST(ColorTest, SystemColorsAreLookedUp) {
    EXPECT_EQ(ColorToRGB(clBtnFace), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(ColorToRGB(clWindowText), GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(ColorToRGB(clBtnText), GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(ColorToRGB(clGrayText), GetSysColor(COLOR_GRAYTEXT));
    EXPECT_EQ(ColorToRGB(clMenuBar), GetSysColor(COLOR_MENUBAR));
    EXPECT_EQ(clBtnText, 0xFF000012U);
}

TEST(ColorTest, TheMarksHaveTheirValues) {
    EXPECT_EQ(clNone, 0x1FFFFFFFU);
    EXPECT_EQ(clDefault, 0x20000000U);
    EXPECT_EQ(clInvalid, static_cast<TColor>(CLR_INVALID));
}

TEST(ColorTest, ChannelsAreTakenApartAndPutTogether) {
    constexpr TColor color = RGBToColor(18, 129, 215);
    static_assert(color == 0x00D78112);
    EXPECT_EQ(RedOf(color), 18);
    EXPECT_EQ(GreenOf(color), 129);
    EXPECT_EQ(BlueOf(color), 215);
}

TEST(ColorTest, BlendingGoesFromOneColorToTheOther) {
    EXPECT_EQ(BlendColors(clBlack, clWhite, 0), clBlack);
    EXPECT_EQ(BlendColors(clBlack, clWhite, 255), clWhite);
    EXPECT_EQ(BlendColors(clRed, clBlue, 128), RGBToColor(127, 0, 128));
    EXPECT_EQ(BlendColors(clBtnFace, clBtnFace, 99), ColorToRGB(clBtnFace));
}

TEST(ColorTest, EveryNameStandsForOneColor) {
    std::set<String> names;
    for (const TIdentifier& identifier : ColorIdentifiers()) {
        EXPECT_TRUE(names.insert(identifier.Name).second) << ToUtf8(identifier.Name);
        EXPECT_EQ(String(identifier.Name).substr(0, 2), L"cl");
    }
    EXPECT_EQ(names.size(), 54U);
}

TEST(ColorTest, ColorsAreWrittenByTheirFirstName) {
    EXPECT_EQ(ColorToString(clBtnFace), L"clBtnFace");
    EXPECT_EQ(ColorToString(clSilver), L"clSilver");
    EXPECT_EQ(ColorToString(clGray), L"clGray");
    EXPECT_EQ(ColorToString(clNone), L"clNone");
    EXPECT_EQ(ColorToString(0x00D78112), L"$00D78112");
}

}  // namespace
}  // namespace vcl
