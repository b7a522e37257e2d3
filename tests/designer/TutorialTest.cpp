// What docs/manual/first-form.md tells its reader to do, step by step, with mouse and keys. The form must be
// that of the example.

#include "designer/files/SafeFile.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/designer/DialogDriver.h"
#include "tests/support/Program.h"
#include "tests/support/Pump.h"
#include "tests/support/SystemDialogs.h"

namespace designer {
namespace {

class TutorialTest : public RealDialogsTest {
protected:
    void PlaceAt(const wchar_t* page, const wchar_t* className, int x, int y) {
        PressTool(page, className);
        Input.ClickAt(FormWindow(), x, y);
    }
    /// Renames what stands at that place of the form.
    void Rename(int x, int y, const wchar_t* name) {
        Input.ClickAt(FormWindow(), x, y);
        InDialog(L"Umbenennen", [name](DialogDriver& dialog) {
            dialog.Input.Type(name);
            dialog.Input.KeyPress(VK_RETURN);
        });
        Input.KeyPress(VK_F2);
    }
    void PressInspectorPage(int index) {
        auto& tabs = dynamic_cast<TQV7SkinSimpleTabControl&>(*Window->FindComponent(L"InspectorTabs"));
        Input.ClickAt(tabs.WindowHandle(), tabs.GetItemRect(index).Left + 12, 12);
    }
    void DragCornerOfForm(int dx, int dy) {
        RECT frame{};
        ::GetWindowRect(FormWindow(), &frame);
        const POINT corner{frame.right - 2, frame.bottom - 2};
        test::FromOtherThread([&] {
            test::EventGenerator input;
            input.Drag(corner, {corner.x + dx, corner.y + dy});
        });
    }
};

/// The text of a property's value.
String ValueText(const TFormValue& value) {
    if (const auto* text = value.As<String>()) return *text;
    if (const auto* ident = value.As<TFormIdent>()) return ident->Name;
    if (const auto* flag = value.As<bool>()) return *flag ? L"True" : L"False";
    return {};
}

/// Everything in the example but places and sizes stands in the file, too.
void ExpectHolds(const TFormObject& made, const TFormObject& example) {
    EXPECT_EQ(made.Name, example.Name);
    EXPECT_EQ(made.ClassName, example.ClassName);
    for (const TFormProperty& property : example.Properties) {
        const String wanted = ValueText(property.Value);
        if (wanted.empty()) continue;
        const TFormProperty* found = made.FindProperty(property.Name);
        ASSERT_TRUE(found) << ToUtf8(example.Name + L"." + property.Name);
        EXPECT_EQ(ValueText(found->Value), wanted) << ToUtf8(example.Name + L"." + property.Name);
    }
    ASSERT_EQ(made.Children.size(), example.Children.size());
    for (std::size_t i = 0; i < example.Children.size(); ++i)
        ExpectHolds(made.Children[i], example.Children[i]);
}

TEST_F(TutorialTest, ItsStepsMakeTheFormOfTheExample) {
    PlaceAt(L"Standard", L"TLabel", 16, 16);
    PlaceAt(L"Standard", L"TEdit", 160, 16);
    PlaceAt(L"QV7", L"TQV7SkinButton", 160, 120);
    POINT from{190, 26};
    ::ClientToScreen(FormWindow(), &from);
    Input.Drag(from, {from.x - 60, from.y});  // the edit, where it belongs

    Rename(20, 20, L"NameLabel");
    Rename(140, 26, L"NameEdit");
    Rename(180, 130, L"GreetButton");

    Input.ClickAt(FormWindow(), 20, 20);
    TypeValue(L"Caption", L"&Name:");
    TypeValue(L"FocusControl", L"NameEdit");
    Input.ClickAt(FormWindow(), 140, 26);
    ASSERT_EQ(Lines().Find(L"Text")->Text, L"NameEdit");
    TypeValue(L"Text", L"");

    Input.ClickAt(FormWindow(), 180, 130);
    TypeValue(L"Caption", L"&Grüßen");
    TypeValue(L"Default", L"True");
    PressInspectorPage(1);
    TypeValue(L"OnClick", L"GreetClick", TPropertyList::TKind::Events);
    PressInspectorPage(0);

    const int width = Document().Root().GetWidth();
    DragCornerOfForm(-16, -24);
    EXPECT_EQ(Document().Root().GetWidth(), width - 16);
    Input.ClickAt(FormWindow(), 20, 90);
    TypeValue(L"Caption", L"Das erste Formular");
    TypeValue(L"BorderStyle", L"bsDialog");
    TypeValue(L"Position", L"poScreenCenter");

    Input.KeyPress(VK_F12);
    Input.Chord({VK_CONTROL}, VK_HOME);
    Input.Chord({VK_SHIFT}, VK_END);
    Input.Type(L"object FirstForm: TFirstForm");
    Input.KeyPress(VK_F12);
    EXPECT_FALSE(Window->ShowsText());

    bool ran = false;
    test::When([&] { return Screen().GetActiveForm() && Screen().GetActiveForm() != Window.get(); },
               [&] {
                   TCustomForm& preview = *Screen().GetActiveForm();
                   EXPECT_EQ(preview.GetCaption(), L"Das erste Formular");
                   Input.Chord({VK_MENU}, 'N');
                   Input.Type(L"Ada");
                   auto* edit = dynamic_cast<TEdit*>(preview.FindComponent(L"NameEdit"));
                   ran = edit && edit->GetText() == L"Ada";
                   Input.Chord({VK_MENU}, VK_F4);
               });
    Input.KeyPress(VK_F9);
    EXPECT_TRUE(ran);

    {
        const test::SystemDialogs user([this](test::SystemDialogUser& dialog) {
            dialog.WaitForDialog(L"Formular");
            dialog.TypeInstead(Dir.File(L"FirstForm.dfm"));
            dialog.KeyPress(VK_RETURN);
            dialog.WaitUntilLeft();
        });
        Input.Chord({VK_CONTROL}, 'S');
    }
    const auto parsed = [](const std::string& text) { return ParseFormText(FromUtf8(text)).Root; };
    const String example = test::ProgramFolder() + L"\\FirstForm.dfm";
    ExpectHolds(parsed(Dir.Read(L"FirstForm.dfm")), parsed(ReadWholeFile(example)));

    for (int i = 0; i < 100 && Document().History().CanUndo(); ++i)
        Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_EQ(Document().Root().GetComponentCount(), 0) << "all the way back";
}

}  // namespace
}  // namespace designer
