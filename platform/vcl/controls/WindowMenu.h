#pragma once

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

struct TMessage;

/// What a form needs of its main menu; `menus/` derives TMainMenu from it.
class TWindowMenu : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The system's menu to show in the window's bar; 0 while it is empty. Owned by this object, also while a
    /// window shows it.
    [[nodiscard]] virtual HMENU GetMenuHandle() = 0;
    /// Tells to which window the menu belongs (0: to none), so that changes can redraw its bar. A menu that
    /// is empty and gets items sends that window CM_MENUCHANGED.
    virtual void SetWindowHandle(HWND window) = 0;
    /// Whether the menu of a form other than the main one is shown in the main form's bar.
    [[nodiscard]] virtual bool GetAutoMerge() const { return false; }
    /// Shows the items of another menu beside its own; null ends it.
    virtual void MergeMenu(TWindowMenu*) {}
    /// The menu that is merged into this one; not owned.
    [[nodiscard]] virtual TWindowMenu* GetMergedMenu() const { return nullptr; }
    /// Runs the item whose short cut the key message is; false when there is none.
    virtual bool IsShortCut(TMessage& message) = 0;
    /// Answers a menu message of the window (WM_COMMAND, WM_INITMENUPOPUP, WM_MEASUREITEM ...); false leaves
    /// it to the window.
    virtual bool HandleMenuMessage(TMessage& message) = 0;
};

}  // namespace vcl
