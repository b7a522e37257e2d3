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

    /// For programs that merge the menus of their forms into that of the main form: whether this one takes
    /// part. The menus themselves do nothing by it.
    [[nodiscard]] bool GetAutoMerge() const override { return FAutoMerge; }
    void SetAutoMerge(bool value);
    /// Shows the items of another menu beside its own, by their `GroupIndex`: those of one number take the
    /// place of its own of that number. Null and `Unmerge` end it.
    void Merge(TMainMenu* other);
    void Unmerge(TMainMenu* other);
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
