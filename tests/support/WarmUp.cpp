#include "tests/support/WarmUp.h"

#include <windows.h>

#include <uxtheme.h>

#include <iterator>
#include <utility>

#include "platform/vcl/controls/AppServices.h"
#include "tests/support/Pump.h"

namespace test {
namespace {

constexpr int HighestPart = 16;
constexpr int HighestState = 12;

void LoadThemePictures() {
    const HDC dc = CreateCompatibleDC(nullptr);
    for (const wchar_t* name : {L"BUTTON", L"COMBOBOX", L"EDIT", L"HEADER", L"LISTVIEW", L"MENU", L"PROGRESS",
                                L"SCROLLBAR", L"SPIN", L"TOOLTIP", L"TRACKBAR", L"TREEVIEW"}) {
        const HTHEME theme = OpenThemeData(nullptr, name);
        if (!theme) continue;
        const RECT rect{0, 0, 1, 1};
        for (int part = 1; part <= HighestPart; ++part) {
            if (!IsThemePartDefined(theme, part, 0)) continue;
            for (int state = 0; state <= HighestState; ++state)
                DrawThemeBackground(theme, dc, part, state, &rect, nullptr);
        }
        CloseThemeData(theme);
    }
    DeleteDC(dc);
}

void LoadSystemPictures() {
    for (const wchar_t* icon : {IDI_APPLICATION, IDI_HAND, IDI_QUESTION, IDI_EXCLAMATION, IDI_ASTERISK})
        LoadIconW(nullptr, icon);
    vcl::TAppServices builtIn;
    for (vcl::TCursor cursor = vcl::crSizeAll; cursor <= vcl::crArrow; ++cursor)
        (void)builtIn.CursorHandle(cursor);
}

void MakeSystemBrushes() {
    for (int color = 0; color <= COLOR_MENUBAR; ++color)
        GetSysColorBrush(color);
}

void OpenAMenu(HWND owner) {
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, 1, L"x");
    // The pens of its line, and of grey texts.
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu, MF_STRING | MF_GRAYED, 2, L"y");
    Later([] { EndMenu(); });
    TrackPopupMenu(menu, 0, 0, 0, 0, owner, nullptr);
    DestroyMenu(menu);
}

void ShowWindows() {
    const HWND top = CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 200,
                                     nullptr, nullptr, nullptr, nullptr);
    // Many at a time: Wine keeps a region for each of the windows that were painted at once.
    constexpr int count = 90;
    const wchar_t* const names[] = {L"Button", L"Edit", L"ListBox", L"ComboBox", L"Static", L"ScrollBar"};
    for (int i = 0; i < count; ++i)
        CreateWindowExW(0, names[i % std::size(names)], L"x", WS_CHILD | WS_VISIBLE, i % 30 * 12, i / 30 * 50,
                        12, 40, top, nullptr, nullptr, nullptr);
    RedrawWindow(top, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    PumpAll();
    OpenAMenu(top);
    DestroyWindow(top);
    PumpAll();
}

}  // namespace

void WarmUpSystem() {
    static bool done = false;
    if (std::exchange(done, true)) return;
    MakeSystemBrushes();
    LoadSystemPictures();
    LoadThemePictures();
    ShowWindows();
}

}  // namespace test
