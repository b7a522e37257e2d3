#include "tests/designer/DesignerWindowFixture.h"

#include <utility>

#include "header/UnitQV7SkinHeaderItems.h"
#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "tests/support/Pump.h"

namespace designer {

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
    auto window = std::make_unique<TDesignerWindow>(nullptr, std::make_unique<TPreparedDialogs>(Answers),
                                                    Dir.Path() + L"\\kept");
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

}  // namespace designer
