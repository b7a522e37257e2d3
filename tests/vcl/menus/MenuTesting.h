#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/vcl/menus/Menu.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "tests/support/FormTest.h"

namespace test {

/// The window of the menu that was opened last; null while none is open.
[[nodiscard]] HWND OpenMenuWindow();
/// The menu that is shown in it.
[[nodiscard]] HMENU OpenMenu();
/// The entry that is highlighted in the menu, or -1.
[[nodiscard]] int HighlightedEntry(HMENU menu);
/// The state bits (MFS_) of an entry.
[[nodiscard]] UINT EntryState(HMENU menu, int index);
/// The texts of the entries, "-" for separators.
[[nodiscard]] std::vector<std::wstring> EntryTexts(HMENU menu);
/// The middle of an entry in screen pixels.
[[nodiscard]] POINT EntryCenter(HMENU menu, int index);

/// Tests that open menus and work them with the keyboard and the mouse. Menus are driven with `WhenOpen`,
/// whose steps run in the menu's own loop.
class MenuTest : public FormTest {
protected:
    void TearDown() override;

    /// A new item of `parent` that notes its caption in `Clicked` when it is clicked.
    vcl::TMenuItem* AddItem(vcl::TMenuItem& parent, const std::wstring& caption);
    /// Runs the step once a menu with `count` levels is on the screen and its topmost one has a window.
    void WhenOpen(std::function<void()> step);
    /// Runs the step once the menu shows that entry as the highlighted one.
    void WhenHighlighted(int index, std::function<void()> step);
    /// Presses the keys one after the other, each once the menu has taken the one before.
    void Keys(std::vector<WORD> keys);
    void NoteClick(vcl::TObject* sender);

    std::vector<std::wstring> Clicked;
};

}  // namespace test
