#pragma once

#include <initializer_list>

#include "platform/vcl/menus/MenuItem.h"

namespace vcl {

class TMainMenu;
class TPopupMenu;

// Making menus in code. Items get no owner: the item or menu that they are put into frees them.

/// An item with what most items need; an empty name names none.
[[nodiscard]] TMenuItem* NewItem(const String& caption, TShortCut shortCut, bool checked, bool enabled,
                                 const TNotifyEvent& onClick, int helpContext = 0, const String& name = {});
[[nodiscard]] TMenuItem* NewLine();
/// An item with a submenu of these items.
[[nodiscard]] TMenuItem* NewSubMenu(const String& caption, int helpContext, const String& name,
                                    std::initializer_list<TMenuItem*> items, bool enabled = true);
/// A main menu of these items.
[[nodiscard]] TMainMenu* NewMenu(TComponent* owner, const String& name,
                                 std::initializer_list<TMenuItem*> items);
/// A popup menu of these items.
[[nodiscard]] TPopupMenu* NewPopupMenu(TComponent* owner, const String& name, TPopupAlignment alignment,
                                       bool autoPopup, std::initializer_list<TMenuItem*> items);

}  // namespace vcl
