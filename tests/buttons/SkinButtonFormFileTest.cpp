#include "buttons/UnitQV7SkinButton.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/support/FormTest.h"

namespace {

using namespace qv7skin;

class SkinButtonFormFile : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        RegisterClass(TQV7SkinButton::StaticClass());
    }
    TQV7SkinButton& Read(const String& properties) {
        const TFormDocument document =
            ParseFormText(L"object Form: TForm\nobject Ok: TQV7SkinButton\n" + properties + L"\nend\nend");
        TReader(document).ReadRootComponent(&Form());
        auto* button = dynamic_cast<TQV7SkinButton*>(Form().FindComponent(L"Ok"));
        EXPECT_NE(button, nullptr);
        return *button;
    }
};

/// As a designer stored a button of the Velmora family: every property that the other button has too.
const wchar_t* const Stored =
    LR"(
    Left = 12
    Top = 34
    Width = 140
    Height = 30
    Anchors = [akRight, akBottom]
    Caption = '&Weiter'
    Default = True
    ModalResult = 1
    ButtonStyle = bxsToggle
    Down = True
    Alignment = taLeftJustify
    TextMarginHorizontal = 3
    TextMarginVertical = 4
    TextMarginLeft = 5
    TextOffsetDownHorizontal = 6
    TextOffsetDownVertical = 7
    FocusedRectMarginHorizontal = 8
    FocusedRectMarginVertical = 9
    UseSkinFonts = False
    AllowDblClick = False
    DrawFocusedRect = True
    DrawHoveredIfFocused = False
    StretchImage = False
    ClickOnSpace = True
    FontHovered.Color = clRed
    FontHovered.Height = -20
    FontDisabled.Height = -21
    Font.Height = -16
    Hint = 'weiter'
    ShowHint = True
    TabOrder = 0
    Enabled = False)";

TEST_F(SkinButtonFormFile, AButtonOfTheOtherFamilyLoads) {
    TQV7SkinButton& button = Read(Stored);
    EXPECT_EQ(button.GetBoundsRect(), TRect::OfSize(12, 34, 140, 30));
    EXPECT_EQ(button.GetCaption(), L"&Weiter");
    EXPECT_TRUE(button.GetDefault());
    EXPECT_EQ(button.GetModalResult(), mrOk);
    EXPECT_EQ(button.GetStyle(), absToggle);
    EXPECT_TRUE(button.GetDown());
    EXPECT_EQ(button.GetAlignment(), taLeftJustify);
    EXPECT_EQ(button.GetFont().GetHeight(), -16);
    EXPECT_EQ(button.GetFont().GetColor(), 0x00FFFFFFu);
    EXPECT_FALSE(button.GetEnabled());
    EXPECT_EQ(button.GetPushState(), pshDisabled);
    // What was read last is what all of them have.
    EXPECT_EQ(button.GetTextMarginHorizontal(), 9);
    EXPECT_TRUE(button.GetUseSkinFonts());
    EXPECT_EQ(button.GetFontHovered().GetHeight(), -21);
    EXPECT_EQ(button.GetFontDisabled().GetColor(), clRed);
}

TEST_F(SkinButtonFormFile, LoadingTellsNoChangesOfState) {
    TQV7SkinButton& button = Read(L"Enabled = False\nDown = True");
    int changes = 0;
    button.OnStateChange = [&](TObject*) { ++changes; };
    button.SetEnabled(true);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(button.GetPushState(), pshDown);
}

TEST_F(SkinButtonFormFile, WhatIsWrittenReadsTheSame) {
    TQV7SkinButton& button = Read(Stored);
    const std::string written = FormToText(TWriter().WriteRootComponent(Form()));
    button.Free();
    const TFormDocument document = ParseFormText(FromUtf8(written));
    TReader(document).ReadRootComponent(&Form());
    EXPECT_EQ(FormToText(TWriter().WriteRootComponent(Form())), written);
    EXPECT_NE(written.find("ModalResult = mrOk"), std::string::npos) << written;
}

TEST_F(SkinButtonFormFile, DefaultsAreLeftOut) {
    Read(L"");
    const std::string written = FormToText(TWriter().WriteRootComponent(Form()));
    for (const char* name :
         {"Anchors", "Cancel", "Default ", "Down", "Enabled", "Visible", "TabStop", "ModalResult"})
        EXPECT_EQ(written.find(std::string("    ") + name), std::string::npos) << name << " in " << written;
}

}  // namespace
