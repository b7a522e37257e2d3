#include <gtest/gtest.h>

#include "header/UnitQV7SkinHeader.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::Pixels;
using test::SamePixels;

class HeaderFormFile : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        RegisterClasses({&TQV7SkinTabControl::StaticClass(), &TQV7SkinToolbar::StaticClass(),
                         &TQV7SkinHeader::StaticClass(), &TPopupMenu::StaticClass()});
    }
    /// Reads the objects onto the form and returns the one of the name.
    template <class Control>
    Control& Read(const String& objects, const String& name) {
        TReader(ParseFormText(L"object Form: TForm\n" + objects + L"\nend")).ReadRootComponent(&Form());
        auto* control = dynamic_cast<Control*>(Form().FindComponent(name));
        EXPECT_NE(control, nullptr);
        return *control;
    }
};

TEST_F(HeaderFormFile, ATabControlIsLoadedWithItsPieces) {
    auto& tabs = Read<TQV7SkinTabControl>(
        LR"(
object Menu: TPopupMenu
end
object Tabs: TQV7SkinTabControl
  Left = 10
  Top = 20
  Width = 200
  Height = 24
  AllowItemDrag = False
  ChevronDropDown = Menu
  HorzOffset = 4
  TabBackground = bckgrndWhite
end)",
        L"Tabs");
    EXPECT_EQ(tabs.GetBoundsRect(), TRect::OfSize(10, 20, 200, 24));
    EXPECT_FALSE(tabs.GetAllowItemDrag());
    EXPECT_EQ(tabs.GetChevronDropDown(), Form().FindComponent(L"Menu"));
    EXPECT_EQ(tabs.GetHorzOffset(), 4);
    EXPECT_EQ(tabs.TabBackground, bckgrndWhite);
    EXPECT_TRUE(tabs.GetAnimationTimer().GetEnabled());
    TBitmap background(60, 24, pf24bit);
    tabs.DrawBackground(background, 2);
    EXPECT_TRUE(SamePixels(test::ReadBitmap(background.GetHandle()),
                           ComposedTab(L"WHITETABPRESSED", clWhite, 60, 24)));
}

TEST_F(HeaderFormFile, ATabControlThatFoldsUpDoesSoWhenItIsLoaded) {
    auto& tabs = Read<TQV7SkinTabControl>(
        LR"(
object Tabs: TQV7SkinTabControl
  MinimizeIfItemCountZero = True
  Width = 200
  Height = 24
end)",
        L"Tabs");
    EXPECT_TRUE(tabs.GetMinimizeIfItemCountZero());
    EXPECT_EQ(tabs.GetHeight(), 0);
    tabs.GetItems().Add(new TQV7SkinHeaderItemTab(bckgrndStandard, L"A"));
    EXPECT_EQ(tabs.GetHeight(), 24) << "the height of the file, whatever came first in it";
}

TEST_F(HeaderFormFile, ToolbarAndCaptionHeaderKeepWhatTheyWereGiven) {
    auto& header = Read<TQV7SkinHeader>(
        LR"(
object Bar: TQV7SkinToolbar
  Width = 300
  Height = 40
  HideClippedItems = False
  HorzOffset = 0
end
object Title: TQV7SkinHeader
  Width = 120
  Height = 22
  Grey = False
  LeftTextOffset = 12
  Font.Color = clRed
  Caption = 'Konten'
  UseSkinFont = False
end)",
        L"Title");
    const auto& bar = dynamic_cast<TQV7SkinToolbar&>(*Form().FindComponent(L"Bar"));
    EXPECT_EQ(bar.GetHeight(), 40);
    EXPECT_FALSE(bar.GetHideClippedItems());
    EXPECT_EQ(bar.GetHorzOffset(), 0);
    EXPECT_FALSE(header.GetGrey());
    EXPECT_EQ(header.GetLeftTextOffset(), 12);
    EXPECT_EQ(header.GetCaption(), L"Konten");
    EXPECT_EQ(header.GetFont().GetColor(), clRed);
    EXPECT_FALSE(header.GetUseSkinFont());
}

TEST_F(HeaderFormFile, PropertiesWithoutADefaultAreAlwaysWritten) {
    Read<TQV7SkinTabControl>(L"object Tabs: TQV7SkinTabControl\nend", L"Tabs");
    const std::string written = FormToText(TWriter().WriteRootComponent(Form()));
    for (const char* line : {"AllowItemDrag = True", "HideClippedItems = False", "HorzOffset = 0",
                             "TabBackground = bckgrndStandard", "MinimizeIfItemCountZero = False"})
        EXPECT_NE(written.find(line), std::string::npos) << line << " in " << written;
}

}  // namespace
}  // namespace qv7skin
