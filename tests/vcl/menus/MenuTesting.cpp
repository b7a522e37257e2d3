#include "tests/vcl/menus/MenuTesting.h"

namespace test {

HWND OpenMenuWindow() {
    const HWND window = ::FindWindowW(MAKEINTRESOURCEW(32768), nullptr);
    return window && ::IsWindowVisible(window) ? window : nullptr;
}

HMENU OpenMenu() {
    constexpr UINT getMenuHandle = 0x01E1;
    const HWND window = OpenMenuWindow();
    return window ? reinterpret_cast<HMENU>(::SendMessageW(window, getMenuHandle, 0, 0)) : nullptr;
}

UINT EntryState(HMENU menu, int index) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STATE;
    ::GetMenuItemInfoW(menu, static_cast<UINT>(index), TRUE, &info);
    return info.fState;
}

int HighlightedEntry(HMENU menu) {
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i)
        if (EntryState(menu, i) & MFS_HILITE) return i;
    return -1;
}

std::vector<std::wstring> EntryTexts(HMENU menu) {
    std::vector<std::wstring> texts;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        wchar_t text[200] = L"";
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = 200;
        ::GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info);
        texts.push_back(info.fType & MFT_SEPARATOR ? L"-" : text);
    }
    return texts;
}

POINT EntryCenter(HMENU menu, int index) {
    RECT r{};
    ::GetMenuItemRect(nullptr, menu, static_cast<UINT>(index), &r);
    return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

void MenuTest::TearDown() {
    Clicked.clear();
    FormTest::TearDown();
}

vcl::TMenuItem* MenuTest::AddItem(vcl::TMenuItem& parent, const std::wstring& caption) {
    auto* item = new vcl::TMenuItem(nullptr);
    item->SetCaption(caption);
    item->OnClick = {this, &MenuTest::NoteClick};
    parent.Add(item);
    return item;
}

void MenuTest::NoteClick(vcl::TObject* sender) {
    Clicked.push_back(vcl::StripHotkey(dynamic_cast<vcl::TMenuItem&>(*sender).GetCaption()));
}

void MenuTest::WhenOpen(std::function<void()> step) {
    When([] { return OpenMenuWindow() != nullptr; }, std::move(step));
}

void MenuTest::WhenHighlighted(int index, std::function<void()> step) {
    When([index] { return OpenMenu() && HighlightedEntry(OpenMenu()) == index; }, std::move(step));
}

void MenuTest::Keys(std::vector<WORD> keys) {
    WhenOpen([] {});
    for (const WORD key : keys)
        Later([this, key] { Input.KeyPress(key); });
}

}  // namespace test
