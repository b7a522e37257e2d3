#pragma once

#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/menus/Menu.h"

namespace vcl {

/// The menu in the bar of a form (its `Menu`).
class TMainMenu : public TWindowMenu, public TMenu {
public:
    explicit TMainMenu(TComponent* AOwner);
    ~TMainMenu() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Whether the menu of a form other than the main one is merged into the main form's while the form is in
    /// use, instead of standing in a bar of its own. False for the main form's own menu.
    [[nodiscard]] bool GetAutoMerge() const override { return FAutoMerge; }
    void SetAutoMerge(bool value);
    /// Shows the items of another menu beside its own, by their `GroupIndex`: those of one number take the
    /// place of its own of that number. Null and `Unmerge` end it.
    void Merge(TMainMenu* other);
    void Unmerge(TMainMenu* other);
    void MergeMenu(TWindowMenu* other) override { Merge(dynamic_cast<TMainMenu*>(other)); }
    [[nodiscard]] TWindowMenu* GetMergedMenu() const override;
    /// The window in whose bar it stands; 0 when in none.
    [[nodiscard]] HWND GetWindowHandle() const { return FWindow; }

    // --- for the form
    [[nodiscard]] HMENU GetMenuHandle() override;
    void SetWindowHandle(HWND window) override;
    bool IsShortCut(TMessage& message) override { return RunShortCut(message); }
    bool HandleMenuMessage(TMessage& message) override;

    [[nodiscard]] bool IsMenuBar() const override { return true; }
    [[nodiscard]] bool IsInWindow() const override { return FWindow != nullptr; }
    void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) override;
    void SetChildOrder(TComponent* child, int order) override;

protected:
    void Notification(TComponent* component, TOperation operation) override;
    void Loaded() override;
    void DoChange(TMenuItem* source, bool rebuild) override;

private:
    void EndLoop();

    HWND FWindow = nullptr;
    bool FAutoMerge = false;
};

}  // namespace vcl
