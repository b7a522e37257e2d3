#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/menus/MainMenu.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/vcl/menus/MenuTesting.h"

namespace test {
namespace {

using namespace vcl;

/// A form whose file names a method of it.
class TMenuForm : public TForm {
public:
    using TForm::TForm;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TMenuForm>(L"TMenuForm", TForm::StaticClass())
                                           .Method<&TMenuForm::SaveClick>(L"SaveClick");
        return meta;
    }
    void SaveClick(TObject* sender) { Sender = sender; }
    TObject* Sender = nullptr;
};

const char* const MenuText =
    "  object MainMenu: TMainMenu\r\n"
    "    AutoLineReduction = maManual\r\n"
    "    Left = 16\r\n"
    "    Top = 24\r\n"
    "    object FileItem: TMenuItem\r\n"
    "      Caption = '&File'\r\n"
    "      object SaveItem: TMenuItem\r\n"
    "        Caption = '&Save'\r\n"
    "        Checked = True\r\n"
    "        Default = True\r\n"
    "        GroupIndex = 3\r\n"
    "        Hint = 'Saves|Saves the text'\r\n"
    "        ImageIndex = 2\r\n"
    "        RadioItem = True\r\n"
    "        ShortCut = 16467\r\n"
    "        OnClick = SaveClick\r\n"
    "      end\r\n"
    "      object Line: TMenuItem\r\n"
    "        Caption = '-'\r\n"
    "      end\r\n"
    "      object DeepItem: TMenuItem\r\n"
    "        Break = mbBarBreak\r\n"
    "        Caption = '&Deep'\r\n"
    "        object DeeperItem: TMenuItem\r\n"
    "          Caption = '&Deeper'\r\n"
    "          Visible = False\r\n"
    "        end\r\n"
    "      end\r\n"
    "    end\r\n"
    "  end\r\n"
    "  object Popup: TPopupMenu\r\n"
    "    Alignment = paRight\r\n"
    "    TrackButton = tbLeftButton\r\n"
    "    Left = 64\r\n"
    "    Top = 24\r\n"
    "    object CutItem: TMenuItem\r\n"
    "      AutoHotkeys = maManual\r\n"
    "      Caption = 'C&ut'\r\n"
    "    end\r\n"
    "  end\r\n";

class MenuFormFileTest : public MenuTest {
protected:
    void SetUp() override {
        RegisterClasses({&TMainMenu::StaticClass(), &TPopupMenu::StaticClass(), &TMenuItem::StaticClass()});
        MenuTest::SetUp();
        Loaded = std::make_unique<TMenuForm>(nullptr);
        const std::string text =
            "object MenuForm: TMenuForm\r\n  Menu = MainMenu\r\n" + std::string(MenuText) + "end\r\n";
        const TFormDocument document = ParseFormText(FromUtf8(text));
        TReader(document).ReadRootComponent(Loaded.get());
    }
    void TearDown() override {
        Loaded.reset();
        MenuTest::TearDown();
        for (const TMetaClass* meta :
             {&TMainMenu::StaticClass(), &TPopupMenu::StaticClass(), &TMenuItem::StaticClass()})
            UnRegisterClass(*meta);
    }
    template <class T>
    T* Get(const wchar_t* name) {
        return dynamic_cast<T*>(Loaded->FindComponent(name));
    }
    std::unique_ptr<TMenuForm> Loaded;
};

TEST_F(MenuFormFileTest, NestedItemsComeIntoTheirMenus) {
    auto* menu = Get<TMainMenu>(L"MainMenu");
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(Loaded->GetMenu(), menu);
    ASSERT_EQ(menu->GetItems().GetCount(), 1);
    TMenuItem* file = menu->GetItems().GetItem(0);
    EXPECT_EQ(file, Get<TMenuItem>(L"FileItem"));
    EXPECT_EQ(file->GetParentComponent(), menu);
    EXPECT_EQ(file->GetCount(), 3);
    EXPECT_EQ(Get<TMenuItem>(L"DeeperItem")->GetParent(), Get<TMenuItem>(L"DeepItem"));
    EXPECT_EQ(Get<TPopupMenu>(L"Popup")->GetItems().GetCount(), 1);
}

TEST_F(MenuFormFileTest, ShortCutsMethodsAndMarksAreRead) {
    auto* save = Get<TMenuItem>(L"SaveItem");
    EXPECT_EQ(ShortCutToText(save->GetShortCut()), L"Ctrl+S");
    EXPECT_TRUE(save->GetChecked());
    EXPECT_TRUE(save->GetRadioItem());
    EXPECT_EQ(save->GetImageIndex(), 2);
    save->Click();
    EXPECT_EQ(Loaded->Sender, save);
}

TEST_F(MenuFormFileTest, WhatWasReadIsWrittenAgain) {
    // Showing the menu must not leave traces in the file.
    const std::string text = FormToText(TWriter().WriteRootComponent(*Loaded));
    EXPECT_NE(text.find("  Menu = MainMenu\r\n"), std::string::npos);
    const std::size_t start = text.find("  object MainMenu");
    ASSERT_NE(start, std::string::npos) << text;
    EXPECT_EQ(text.substr(start), std::string(MenuText) + "end\r\n");
}

}  // namespace
}  // namespace test
