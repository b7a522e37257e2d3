#include "platform/vcl/forms/StandardClasses.h"

#include <algorithm>
#include <memory>

#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class StandardClasses : public FormTest {
protected:
    static void SetUpTestSuite() { RegisterStandardClasses(); }
    std::unique_ptr<TForm> Read(const wchar_t* text) {
        auto form = std::make_unique<TForm>(nullptr);
        const TFormDocument document = ParseFormText(text, L"Form.dfm");
        TReader(document).ReadRootComponent(form.get());
        return form;
    }
};

TEST_F(StandardClasses, StandOnTheirPages) {
    RegisterStandardClasses();
    std::vector<String> names;
    for (const TRegisteredPage& page : RegisteredPages())
        names.push_back(page.Name);
    for (const wchar_t* name : {L"Standard", L"Additional", L"Win32", L"System"})
        EXPECT_EQ(std::ranges::count(names, name), 1) << ToUtf8(name);
    EXPECT_EQ(GetClass(L"tbutton"), &TButton::StaticClass());
    EXPECT_EQ(GetClass(L"TForm"), &TForm::StaticClass());
}

TEST_F(StandardClasses, AComboBoxKeepsTheItemHeightThatItWasGiven) {
    auto form = Read(
        LR"(object Form: TForm
      object Own: TComboBox
        Style = csOwnerDrawFixed
        ItemHeight = 31
      end
      object Usual: TComboBox
      end
    end)");
    form->HandleNeeded();
    const TFormDocument written = TWriter().WriteRootComponent(*form);
    const TFormProperty* height = written.Root.FindObject(L"Own")->FindProperty(L"ItemHeight");
    ASSERT_NE(height, nullptr);
    EXPECT_EQ(*height->Value.As<std::int64_t>(), 31);
    EXPECT_EQ(written.Root.FindObject(L"Usual")->FindProperty(L"ItemHeight"), nullptr);
}

TEST_F(StandardClasses, MakeAWholeForm) {
    const auto form = Read(
        LR"(object Login: TForm
      BorderStyle = bsDialog
      ClientWidth = 200
      ClientHeight = 100
      ActiveControl = Ok
      object Box: TPanel
        Align = alClient
        object NameLabel: TLabel
          Left = 8
          Top = 8
          Caption = '&Name'
          FocusControl = NameEdit
        end
        object NameEdit: TEdit
          Left = 80
          Top = 8
          TabOrder = 1
        end
        object Ok: TButton
          Left = 80
          Top = 40
          Default = True
          TabOrder = 0
        end
      end
      object Timer: TTimer
        Enabled = False
        Left = 8
      end
    end)");
    auto& ok = dynamic_cast<TButton&>(*form->FindComponent(L"Ok"));
    EXPECT_EQ(form->GetActiveControl(), &ok);
    EXPECT_EQ(ok.GetTabOrder(), 0);
    EXPECT_EQ(ok.GetParent()->GetBoundsRect(), TRect(0, 0, 200, 100));
    EXPECT_EQ(ok.GetCaption(), L"");
    EXPECT_EQ(form->FindComponent(L"Timer")->GetDesignInfo(), 8);
    EXPECT_FALSE(form->HandleAllocated());
}

TEST_F(StandardClasses, TakeOverWhatIsTheirParentsWhenTheFileSaysSo) {
    const auto form = Read(
        LR"(object Form: TForm
      Color = clYellow
      Font.Height = -20
      ShowHint = True
      object Box: TPanel
        ParentColor = True
        object Inner: TEdit
          ParentColor = True
        end
        object Own: TEdit
          Font.Height = -30
          ShowHint = False
        end
      end
    end)");
    for (const wchar_t* name : {L"Box", L"Inner"}) {
        auto& control = dynamic_cast<TControl&>(*form->FindComponent(name));
        EXPECT_TRUE(control.GetParentColor());
        EXPECT_EQ(control.GetColor(), clYellow);
        EXPECT_EQ(control.GetFont().GetHeight(), -20);
        EXPECT_TRUE(control.GetShowHint());
    }
    auto& own = dynamic_cast<TControl&>(*form->FindComponent(L"Own"));
    EXPECT_FALSE(own.GetParentFont());
    EXPECT_FALSE(own.GetParentShowHint());
    EXPECT_EQ(own.GetFont().GetHeight(), -30);
}

TEST_F(StandardClasses, KeepTheHandlerOfADesignedControlWithAnAction) {
    TForm form(nullptr);
    form.SetDesigning(true);
    const TFormDocument document = ParseFormText(
        LR"(object Form: TForm
          object Actions: TActionList
            object Save: TAction
              Caption = 'Save'
            end
          end
          object Button: TButton
            Action = Save
            OnClick = ButtonClick
          end
        end)");
    TReader(document).ReadRootComponent(&form);
    const TFormDocument written = TWriter().WriteRootComponent(form);
    const TFormObject* button = written.Root.FindObject(L"Button");
    ASSERT_NE(button, nullptr);
    ASSERT_NE(button->FindProperty(L"OnClick"), nullptr);
    EXPECT_EQ(dynamic_cast<TButton&>(*form.FindComponent(L"Button")).GetCaption(), L"Save");
}

TEST_F(StandardClasses, SkipWhatOtherDesignersStore) {
    const auto form = Read(
        LR"(object Form: TForm
      DesignSize = (320 240)
      OldCreateOrder = False
      Scaled = False
      TextHeight = 13
      object Box: TPanel
        ExplicitLeft = -8
        ExplicitWidth = 185
        DesignSize = (
          185
          41)
      end
    end)");
    const std::string written = FormToText(TWriter().WriteRootComponent(*form));
    for (const char* skipped : {"DesignSize", "OldCreateOrder", "Scaled", "TextHeight", "Explicit"})
        EXPECT_EQ(written.find(skipped), std::string::npos) << skipped;
}

}  // namespace
}  // namespace test
