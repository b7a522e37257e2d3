#include "skin/UnitQV7SkinConsts.h"

#include <gtest/gtest.h>

namespace qv7skin {
namespace {

TEST(ConstsTest, NamesArePrefixStateAndPosition) {
    EXPECT_EQ(FrameResourceName(SkinResourceName(L"SKINBUTTON", ssHovered), fposTopLeft),
              L"SKINBUTTONHOVEREDTOPLEFT");
    EXPECT_EQ(FrameResourceName(L"MASK", fposRightCenter), L"MASKRIGHTCENTER");
    EXPECT_EQ(BandResourceName(SkinResourceName(L"TOOLBUTTON", ssPressed), bpCenter),
              L"TOOLBUTTONPRESSEDCENTER");
}

TEST(ConstsTest, StatesAndPlacesHaveTheirWords) {
    EXPECT_STREQ(SkinStateWord(ssDefault), L"DEFAULT");
    EXPECT_STREQ(SkinStateWord(ssHovered), L"HOVERED");
    EXPECT_STREQ(SkinStateWord(ssPressed), L"PRESSED");
    EXPECT_STREQ(SkinStateWord(ssDisabled), L"DISABLED");
    EXPECT_STREQ(BandPositionWord(bpLeft), L"LEFT");
    EXPECT_STREQ(BandPositionWord(bpCenter), L"CENTER");
    EXPECT_STREQ(BandPositionWord(bpRight), L"RIGHT");
}

TEST(ConstsTest, FramesNameTheirPiecesFromTheTopRowToTheSides) {
    String words;
    for (const TFramePosition position : AllFramePositions)
        words += String(FramePositionWord(position)) + L" ";
    EXPECT_EQ(words,
              L"TOPLEFT TOPCENTER TOPRIGHT BOTTOMLEFT BOTTOMCENTER BOTTOMRIGHT LEFTCENTER RIGHTCENTER ");
}

TEST(ConstsTest, TheStringTableHasItsTexts) {
    EXPECT_EQ(LoadSkinString(65520), L"Wei\u00DF");
    EXPECT_EQ(LoadSkinString(65521), L": zu l\u00F6schendes Objekt nicht in Liste vorhanden");
    EXPECT_EQ(LoadSkinString(65522), L": einzuf\u00FCgendes Objekt bereits in Liste vorhanden");
    EXPECT_EQ(LoadSkinString(65523), L"dd/mm/yyyy");
    EXPECT_EQ(LoadSkinString(65524), L"mm/dd/yyyy");
    EXPECT_EQ(LoadSkinString(65525), L"yyyy/mm/dd");
    EXPECT_EQ(LoadSkinString(65526), L"/");
    EXPECT_EQ(LoadSkinString(65527), L"ddd");
    EXPECT_EQ(LoadSkinString(65528), L",");
    EXPECT_EQ(LoadSkinString(65529), L"");
}

TEST(ConstsTest, ThePackageHasADescription) {
    EXPECT_STREQ(QV7SkinPackageDescription(), L"QV7-Skin-Komponenten");
}

}  // namespace
}  // namespace qv7skin
