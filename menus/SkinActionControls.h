#pragma once

#include "menus/Namespace.h"
#include "platform/vcl/actions/ActionMenuItems.h"
#include "platform/vcl/menus/MenuItem.h"

namespace qv7skin {

/// The menu item that an action client stands for; null when there is none or it was freed.
[[nodiscard]] TMenuItem* MenuItemOf(const TActionClientItem* Client);
/// Notes the menu item in the client's `Tag`.
void SetMenuItemOf(TActionClientItem& Client, TMenuItem* Item);

// The menu controls of the skin. They are painted by the installed menu item painter, and as those that they
// replace while there is no active one or no menu item behind their client.

/// An item of a menu that drops down.
class TQV7StyleMenuItem : public TXPStyleMenuItem {
public:
    using TXPStyleMenuItem::TXPStyleMenuItem;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void CalcBounds() override;

protected:
    void Paint() override;
};

/// A caption in the bar.
class TQV7StyleMenuButton : public TXPStyleMenuButton {
public:
    using TXPStyleMenuButton::TXPStyleMenuButton;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void Paint() override;
};

/// `TQV7StyleMenuItem` in place of a themed item.
class TQV7StyleThemedMenuItem : public TThemedMenuItem {
public:
    using TThemedMenuItem::TThemedMenuItem;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void CalcBounds() override;

protected:
    void Paint() override;
};

/// `TQV7StyleMenuButton` in place of a themed button.
class TQV7StyleThemedMenuButton : public TThemedMenuButton {
public:
    using TThemedMenuButton::TThemedMenuButton;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void Paint() override;
};

}  // namespace qv7skin
