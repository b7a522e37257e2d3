#include <gtest/gtest.h>

#include <memory>

#include "buttons/UnitQV7SkinButtonMsgDlg.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace qv7skin;

const wchar_t* const Names[] = {L"Action",
                                L"Anchors",
                                L"AllowDblClick",
                                L"ImageList",
                                L"Default",
                                L"Cancel",
                                L"DrawFocusedRect",
                                L"DrawHoveredIfFocused",
                                L"StretchImage",
                                L"FocusedRectMarginHorizontal",
                                L"FocusedRectMarginVertical",
                                L"ButtonStyle",
                                L"Down",
                                L"ModalResult",
                                L"OnMouseEnter",
                                L"OnMouseLeave",
                                L"OnStateChange",
                                L"Caption",
                                L"ClickOnSpace",
                                L"Description",
                                L"Font",
                                L"TabStop",
                                L"TabOrder",
                                L"Enabled",
                                L"Hint",
                                L"ShowHint",
                                L"Visible",
                                L"OnClick",
                                L"OnDblClick",
                                L"OnMouseDown"};

TEST(MsgDlgButtonPublished, HasTheRowsOfItsTableAndNoOthers) {
    const TMetaClass& meta = TQV7SkinButtonMsgDlg::StaticClass();
    EXPECT_EQ(meta.OwnProperties().size(), std::size(Names));
    for (const wchar_t* name : Names)
        EXPECT_NE(meta.FindProperty(name), nullptr) << ToUtf8(name);
}

TEST(MsgDlgButtonPublished, ANewButtonHasTheDefaults) {
    const TMetaClass& meta = TQV7SkinButtonMsgDlg::StaticClass();
    const TQV7SkinButtonMsgDlg button(nullptr);
    const std::pair<const wchar_t*, std::int64_t> defaults[] = {
        {L"TabStop", 1}, {L"TabOrder", -1}, {L"Enabled", 1}, {L"Visible", 1}};
    for (const auto& [name, value] : defaults) {
        EXPECT_EQ(meta.FindProperty(name)->Default(), TPropertyValue(value)) << ToUtf8(name);
        EXPECT_EQ(meta.FindProperty(name)->Get(button), TPropertyValue(value)) << ToUtf8(name);
    }
}

using MsgDlgButtonFormFile = FormTest;

TEST_F(MsgDlgButtonFormFile, LoadsItsDescription) {
    RegisterClass(TQV7SkinButtonMsgDlg::StaticClass());
    const TFormDocument document = ParseFormText(
        LR"(object Form: TForm
        object Save: TQV7SkinButtonMsgDlg
            Width = 280
            Caption = 'Speichern'
            ModalResult = 6
            Description.Strings = (
                'Eins'
                'Zwei')
        end
    end)");
    TReader(document).ReadRootComponent(&Form());
    auto* button = dynamic_cast<TQV7SkinButtonMsgDlg*>(Form().FindComponent(L"Save"));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetDescription().GetCount(), 2);
    EXPECT_EQ(button->GetDescription().Get(1), L"Zwei");
    EXPECT_EQ(button->GetModalResult(), mrYes);
}

}  // namespace
}  // namespace test
