#include "tests/designer/SurfaceFixture.h"

#include "designer/palette/PaletteIcons.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {

void SurfaceTest::SetUp() {
    FormTest::SetUp();
    RegisterClasses({&TButton::StaticClass(), &TEdit::StaticClass(), &TLabel::StaticClass(),
                     &TPanel::StaticClass(), &TTimer::StaticClass()});
    Document = std::make_unique<TDesignDocument>();
    Document->Begin(
        ParseFormText(L"object Form1: TForm1 BorderStyle = bsNone ClientWidth = 300 ClientHeight = 200\n"
                      L"object Label1: TLabel Left = 200 Top = 8 Width = 60 Height = 13 AutoSize = False "
                      L"Caption = 'x' end\n"
                      L"object Button1: TButton Left = 16 Top = 16 Width = 80 Height = 24 end\n"
                      L"object Panel1: TPanel Left = 104 Top = 64 Width = 160 Height = 100\n"
                      L"  object Edit1: TEdit Left = 8 Top = 8 Width = 64 Height = 24 end\n"
                      L"end\n"
                      L"end"));
    Surface = new TDesignSurface(nullptr, *Document);
    Surface->SetParent(&Form());
    Surface->Snapping.UseGuides = false;
    Surface->OnMenu = [this](TPoint) { ++Menus; };
    Surface->OnToolUsed = [this] { ++ToolsUsed; };
    Surface->OnOpenItem = [this](TComponent* item) { Opened = item->GetName(); };
    Document->OnChange = [this] { Surface->UpdateMarks(); };
    Document->Selection().OnChange = [this] { Surface->UpdateMarks(); };
    Surface->HandleNeeded();
    Form().Update();
}

void SurfaceTest::TearDown() {
    delete Surface;
    Document.reset();
    ForgetPaletteIcons();
    FormTest::TearDown();
}

String SurfaceTest::Chosen() const {
    String names;
    for (const String& name : Document->Selection().Names())
        names += (names.empty() ? L"" : L",") + name;
    return names;
}

POINT SurfaceTest::Screen(int x, int y) const {
    POINT point{x, y};
    ::ClientToScreen(Window(), &point);
    return point;
}

}  // namespace designer
