#include "tests/designer/DesignerWindowFixture.h"

#include <string_view>
#include <utility>

#include "header/UnitQV7SkinHeaderItems.h"
#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "tests/support/Pump.h"
#include "tests/support/SystemDialogs.h"

namespace designer {
namespace {

/// True when all that is left are bitmaps. Those of ours would stand in the lines of the ledger, too.
bool AreBitmapsOfTheSystem(const std::string& leaks) {
    constexpr std::string_view bitmaps = "  gdi:bitmap ";
    for (std::size_t start = 0; start < leaks.size(); start = leaks.find('\n', start) + 1)
        if (!leaks.substr(start).starts_with(bitmaps)) return false;
    return !leaks.empty();
}

}  // namespace

void DesignerWindowTest::SetUp() {
    RegisterStandardClasses();
    Register();
    FormTest::SetUp();
    Window = MakeWindow();
}

void DesignerWindowTest::TearDown() {
    Window.reset();
    FormTest::TearDown();
}

std::unique_ptr<TDesignerWindow> DesignerWindowTest::MakeWindow() {
    auto window = std::make_unique<TDesignerWindow>(nullptr, MakeDialogs(), Dir.Path() + L"\\kept");
    window->SetBounds(0, 0, 1000, 700);
    window->Show();
    test::PumpAll();
    return window;
}

void DesignerWindowTest::PressTool(const wchar_t* page, const wchar_t* className) {
    auto& tabs = Window->PaletteTabs();
    for (int i = 0; i < tabs.GetItems().GetCount(); ++i) {
        if (tabs.GetItems()[i]->GetCaption() != page) continue;
        tabs.ScrollInView(i);
        const TRect tab = tabs.GetItemRect(i);
        Input.ClickAt(tabs.WindowHandle(), tabs.GetHorzOffset() + tab.Left + 8, 12);
    }
    const TClassList& classes = Window->Strip().Classes();
    for (std::size_t i = 0; i < classes.size(); ++i) {
        if (String(classes[i]->ClassName()) != className) continue;
        const TRect cell = TPaletteStrip::CellOf(static_cast<int>(i));
        Input.ClickAt(Window->Strip().WindowHandle(), cell.Left + 12, cell.Top + 12);
    }
}

void DesignerWindowTest::ChooseLine(const wchar_t* path) {
    Window->Grid().Choose(path);
    Window->Grid().SetFocus();
}

TPropertyList DesignerWindowTest::Lines(TPropertyList::TKind kind) {
    TPropertyList list(Document(), kind);
    list.Refresh();
    return list;
}

void DesignerWindowTest::TypeValue(const String& path, const String& value, TPropertyList::TKind kind) {
    TInspectorGrid& grid = Window->Grid();
    const TPropertyList list = Lines(kind);
    const auto index = list.Find(path) - list.Lines().data();
    const TRect line = grid.LineRect(static_cast<int>(index));
    const TPoint middle{grid.ValueLeft() + 20, (line.Top + line.Bottom) / 2};
    TWinControl& view = *grid.GetParent();
    const auto lineInView = [&] { return view.ScreenToClient(grid.ClientToScreen(middle)).Y; };
    const POINT overGrid = view.ClientToScreen({60, 60});
    for (int turns = 0; turns < 60; ++turns) {
        if (lineInView() >= TInspectorGrid::LineHeight &&
            lineInView() < view.GetClientHeight() - TInspectorGrid::LineHeight)
            break;
        Input.MoveTo(overGrid);
        Input.Wheel(lineInView() < TInspectorGrid::LineHeight ? 1 : -1);
    }
    Input.ClickAt(grid.WindowHandle(), middle.X, middle.Y);
    ASSERT_EQ(grid.GetChosenPath(), path);
    Input.Chord({VK_CONTROL}, 'A');
    Input.KeyPress(VK_DELETE);
    Input.Type(value);
    Input.KeyPress(VK_RETURN);
}

void RealDialogsTest::SetUp() {
    // The system keeps what its dialogs for files show.
    static bool hasSeenDialogs = false;
    if (!std::exchange(hasSeenDialogs, true)) {
        const String there = Dir.Write(L"da.dfm", SampleFile);
        const test::SystemDialogs user([&](test::SystemDialogUser& dialog) {
            for (const String& name : {Dir.File(L"nirgends.dfm"), there}) {
                dialog.WaitForDialog(L"Formular");
                dialog.TypeInstead(name);
                dialog.KeyPress(VK_RETURN);
                dialog.WaitUntilLeft();
                if (name == there) break;
                dialog.WaitForDialog();
                dialog.KeyPress(VK_RETURN);
            }
            dialog.WaitForDialog(L"Formular");
            dialog.KeyPress(VK_ESCAPE);
            dialog.WaitUntilLeft();
        });
        (void)TDesignerDialogs().AskFileToOpen();
        (void)TDesignerDialogs().AskFileToSave({});
    }
    DesignerWindowTest::SetUp();
}

void RealDialogsTest::TearDown() {
    Window.reset();
    // The system keeps pictures of its dialogs, and takes or drops one when it likes.
    if (AreBitmapsOfTheSystem(Leaks())) TakeSnapshot();
    DesignerWindowTest::TearDown();
}

}  // namespace designer
