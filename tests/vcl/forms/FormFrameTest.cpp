#include <memory>

#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/graphics/Icon.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class FormFrameTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Window = std::make_unique<TForm>(nullptr);
        Window->SetBounds(120, 130, 300, 200);
    }
    void TearDown() override {
        Window.reset();
        FormTest::TearDown();
    }
    DWORD Style() { return static_cast<DWORD>(GetWindowLongW(Window->GetHandle(), GWL_STYLE)); }
    DWORD ExStyle() { return static_cast<DWORD>(GetWindowLongW(Window->GetHandle(), GWL_EXSTYLE)); }
    static HWND OwnerOf(const TForm& form) { return GetWindow(form.WindowHandle(), GW_OWNER); }
    std::unique_ptr<TForm> Window;
};

TEST_F(FormFrameTest, BorderStylesGiveTheWindowItsFrame) {
    struct Case {
        TFormBorderStyle Style;
        DWORD Present, Absent, Extended;
    };
    const Case cases[] = {
        {bsNone, WS_POPUP, WS_CAPTION | WS_THICKFRAME, 0},
        {bsSingle, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX, WS_THICKFRAME, 0},
        {bsSizeable, WS_CAPTION | WS_THICKFRAME | WS_MAXIMIZEBOX, 0, 0},
        {bsDialog, WS_CAPTION | WS_SYSMENU, WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX,
         WS_EX_DLGMODALFRAME},
        {bsToolWindow, WS_CAPTION, WS_THICKFRAME | WS_MAXIMIZEBOX, WS_EX_TOOLWINDOW},
        {bsSizeToolWin, WS_CAPTION | WS_THICKFRAME, WS_MAXIMIZEBOX, WS_EX_TOOLWINDOW},
    };
    for (const Case& c : cases) {
        Window->SetBorderStyle(c.Style);
        EXPECT_EQ(Style() & c.Present, c.Present) << static_cast<int>(c.Style);
        EXPECT_EQ(Style() & c.Absent, 0U) << static_cast<int>(c.Style);
        EXPECT_EQ(ExStyle() & c.Extended, c.Extended) << static_cast<int>(c.Style);
        EXPECT_EQ(Style() & WS_CHILD, 0U);
    }
}

TEST_F(FormFrameTest, BorderIconsAreBoxesInTheCaption) {
    Window->SetBorderIcons({biSystemMenu, biMinimize});
    EXPECT_EQ(Style() & (WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX), DWORD{WS_SYSMENU | WS_MINIMIZEBOX});
    Window->SetBorderIcons({});
    EXPECT_EQ(Style() & (WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX), 0U);
}

TEST_F(FormFrameTest, TheClientSizeIsTheSameBeforeAndAfterTheWindowIsMade) {
    for (const TFormBorderStyle style :
         {bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin}) {
        TForm form(nullptr);
        form.SetBorderStyle(style);
        form.SetClientWidth(222);
        form.SetClientHeight(111);
        EXPECT_EQ(form.GetClientWidth(), 222);
        form.HandleNeeded();
        EXPECT_EQ(form.GetClientWidth(), 222) << static_cast<int>(style);
        EXPECT_EQ(form.GetClientHeight(), 111) << static_cast<int>(style);
    }
}

TEST_F(FormFrameTest, PositionsPlaceTheForm) {
    const TRect work = Screen().GetWorkAreaRect();
    Window->SetPosition(poScreenCenter);
    Window->Show();
    EXPECT_EQ(Window->GetLeft(), (work.Width() - 300) / 2);
    EXPECT_EQ(Window->GetTop(), (work.Height() - 200) / 2);
    TForm owned(Window.get());
    owned.SetBounds(0, 0, 200, 100);
    owned.SetPosition(poOwnerFormCenter);
    owned.Show();
    EXPECT_EQ(owned.GetLeft(), Window->GetLeft() + 50);
    EXPECT_EQ(owned.GetTop(), Window->GetTop() + 50);
    // The place is chosen once; afterwards the form stays where it is put.
    owned.Hide();
    owned.SetLeft(7);
    owned.Show();
    EXPECT_EQ(owned.GetLeft(), 7);
}

TEST_F(FormFrameTest, OnShowMayChangeTheSizeThatIsCentred) {
    Window->SetPosition(poScreenCenter);
    Window->OnShow = [&](TObject*) { Window->SetWidth(400); };
    Window->Show();
    EXPECT_EQ(Window->GetLeft(), (Screen().GetWorkAreaRect().Width() - 400) / 2);
}

TEST_F(FormFrameTest, WindowStateFollowsTheWindowAndTheOtherWayRound) {
    Window->SetWindowState(wsMaximized);
    Window->Show();
    EXPECT_TRUE(IsZoomed(Window->WindowHandle()));
    Window->SetWindowState(wsMinimized);
    EXPECT_TRUE(IsIconic(Window->WindowHandle()));
    Window->SetWindowState(wsNormal);
    ShowWindow(Window->WindowHandle(), SW_MAXIMIZE);
    EXPECT_EQ(Window->GetWindowState(), wsMaximized);
    ShowWindow(Window->WindowHandle(), SW_RESTORE);
    EXPECT_EQ(Window->GetWindowState(), wsNormal);
    EXPECT_EQ(Window->GetBoundsRect(), TRect::OfSize(120, 130, 300, 200));
}

TEST_F(FormFrameTest, StayOnTopIsTopmost) {
    Window->Show();
    Window->SetFormStyle(fsStayOnTop);
    EXPECT_TRUE(ExStyle() & WS_EX_TOPMOST);
    Window->RecreateWnd();
    EXPECT_TRUE(ExStyle() & WS_EX_TOPMOST);
    Window->SetFormStyle(fsNormal);
    EXPECT_FALSE(ExStyle() & WS_EX_TOPMOST);
}

TEST_F(FormFrameTest, ConstraintsLimitWhatTheUserCanDo) {
    Window->GetConstraints().SetMinWidth(250);
    Window->GetConstraints().SetMaxHeight(210);
    Window->Show();
    MINMAXINFO info{};
    SendMessageW(Window->WindowHandle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 250);
    EXPECT_EQ(info.ptMaxTrackSize.y, 210);
    Window->SetWidth(10);
    EXPECT_EQ(Window->GetWidth(), 250);
}

TEST_F(FormFrameTest, TheCaptionIsTheWindowsText) {
    Window->SetCaption(L"Größe");
    Window->Show();
    wchar_t text[20];
    GetWindowTextW(Window->WindowHandle(), text, 20);
    EXPECT_STREQ(text, L"Größe");
    Window->SetCaption(L"Neu");
    GetWindowTextW(Window->WindowHandle(), text, 20);
    EXPECT_STREQ(text, L"Neu");
    EXPECT_EQ(Window->GetCaption(), L"Neu");
}

TEST_F(FormFrameTest, TheWindowShowsTheFormsIconOrTheApplications) {
    Window->Show();
    const auto shown = [&] {
        return reinterpret_cast<HICON>(SendMessageW(Window->WindowHandle(), WM_GETICON, ICON_BIG, 0));
    };
    EXPECT_EQ(shown(), Application().GetIcon().GetHandle());
    TIcon icon;
    const BYTE bits[32] = {};
    icon.SetHandle(CreateIcon(nullptr, 16, 16, 1, 1, bits, bits));
    Window->SetIcon(icon);
    EXPECT_EQ(shown(), Window->GetIcon().GetHandle());
    EXPECT_NE(shown(), nullptr);
}

TEST_F(FormFrameTest, OwnersFollowThePopupMode) {
    Form();
    Window->HandleNeeded();
    EXPECT_EQ(OwnerOf(*Window), Application().GetHandle());
    Window->SetPopupParent(&Form());
    EXPECT_EQ(Window->GetPopupMode(), pmExplicit);
    EXPECT_EQ(OwnerOf(*Window), Form().WindowHandle());
    Window->SetPopupParent(nullptr);
    EXPECT_EQ(OwnerOf(*Window), Application().GetHandle());
    Window->SetPopupMode(pmAuto);
    EXPECT_EQ(OwnerOf(*Window), Form().WindowHandle());
}

TEST_F(FormFrameTest, ANewWindowOfTheOwnerKeepsTheOwnedOnes) {
    Window->SetPopupParent(&Form());
    Window->Show();
    const HWND before = Window->WindowHandle();
    const HWND oldOwner = Form().WindowHandle();
    Form().RecreateWnd();
    EXPECT_NE(Form().WindowHandle(), oldOwner);
    EXPECT_EQ(Window->WindowHandle(), before);
    EXPECT_TRUE(IsWindow(before));
    EXPECT_EQ(OwnerOf(*Window), Form().WindowHandle());
}

TEST_F(FormFrameTest, AFreedOwnerLeavesTheOwnedWindowAlive) {
    auto owner = std::make_unique<TForm>(nullptr);
    owner->Show();
    Window->SetPopupParent(owner.get());
    Window->Show();
    owner.reset();
    EXPECT_EQ(Window->GetPopupParent(), nullptr);
    EXPECT_TRUE(IsWindow(Window->WindowHandle()));
    EXPECT_EQ(OwnerOf(*Window), Application().GetHandle());
}

TEST_F(FormFrameTest, ANewWindowKeepsPlaceTextFocusAndState) {
    auto* edit = Make<TEdit>({10, 10, 100, 31}, Window.get());
    Window->SetCaption(L"kept");
    Window->Show();
    PumpAll();
    edit->SetText(L"abc");
    Window->SetBorderStyle(bsSingle);
    EXPECT_EQ(Window->GetBoundsRect(), TRect::OfSize(120, 130, 300, 200));
    EXPECT_TRUE(IsWindowVisible(Window->WindowHandle()));
    EXPECT_EQ(edit->GetText(), L"abc");
    EXPECT_EQ(Window->GetCaption(), L"kept");
    Window->SetFocus();
    EXPECT_TRUE(edit->Focused());
}

TEST_F(FormFrameTest, AlphaBlendMakesALayeredWindow) {
    Window->SetAlphaBlendValue(100);
    Window->SetAlphaBlend(true);
    Window->Show();
    BYTE alpha = 0;
    DWORD flags = 0;
    EXPECT_TRUE(GetLayeredWindowAttributes(Window->WindowHandle(), nullptr, &alpha, &flags));
    EXPECT_EQ(alpha, 100);
    Window->SetAlphaBlend(false);
    EXPECT_FALSE(ExStyle() & WS_EX_LAYERED);
}

/// A menu of the system with one item, 77.
class TProbeMenu : public TWindowMenu {
public:
    explicit TProbeMenu(TComponent* AOwner) : TWindowMenu(AOwner), Menu(CreateMenu()) {
        AppendMenuW(Menu, MF_STRING, 77, L"Item");
    }
    ~TProbeMenu() override { DestroyMenu(Menu); }
    HMENU GetMenuHandle() override { return Menu; }
    void SetWindowHandle(HWND window) override { Window = window; }
    bool IsShortCut(TMessage& message) override { return message.CharCode() == VK_F5; }
    bool HandleMenuMessage(TMessage& message) override {
        if (message.Msg == WM_COMMAND) Command = message.WParamLo();
        return message.Msg == WM_COMMAND;
    }
    HMENU Menu;
    HWND Window = nullptr;
    int Command = 0;
};

TEST_F(FormFrameTest, AMenuStandsInTheWindowAndGetsItsCommands) {
    TProbeMenu menu(nullptr);
    Window->SetMenu(&menu);
    Window->SetClientHeight(100);
    Window->Show();
    EXPECT_EQ(GetMenu(Window->WindowHandle()), menu.Menu);
    EXPECT_EQ(menu.Window, Window->WindowHandle());
    EXPECT_EQ(Window->GetClientHeight(), 100);
    SendMessageW(Window->WindowHandle(), WM_COMMAND, 77, 0);
    EXPECT_EQ(menu.Command, 77);
    Window->RecreateWnd();
    EXPECT_EQ(GetMenu(Window->WindowHandle()), menu.Menu);
    Window->SetMenu(nullptr);
    EXPECT_EQ(GetMenu(Window->WindowHandle()), nullptr);
    EXPECT_EQ(menu.Window, nullptr);
}

TEST_F(FormFrameTest, AMenuOutlivesTheFormAndTheFormTheMenu) {
    TProbeMenu menu(nullptr);
    {
        TForm form(nullptr);
        form.SetMenu(&menu);
        form.Show();
    }
    EXPECT_TRUE(IsMenu(menu.Menu));
    EXPECT_EQ(menu.Window, nullptr);
    {
        TProbeMenu second(nullptr);
        Window->SetMenu(&second);
        Window->Show();
    }
    EXPECT_EQ(Window->GetMenu(), nullptr);
    EXPECT_EQ(GetMenu(Window->WindowHandle()), nullptr);
}

}  // namespace
}  // namespace test
