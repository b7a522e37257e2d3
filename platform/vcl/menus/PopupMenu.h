#pragma once

#include <optional>

#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/menus/Menu.h"

namespace vcl {

/// A menu that opens at a point: as the `PopupMenu` of a control by a right click, the menu key or Shift+F10,
/// or by `Popup`.
class TPopupMenu : public TContextMenu, public TMenu {
public:
    explicit TPopupMenu(TComponent* AOwner);
    ~TPopupMenu() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Shows the menu at the point (screen pixels) and returns when it is closed. The handler of the item
    /// that was chosen runs afterwards, with the next messages.
    void Popup(int x, int y) override;
    /// Closes the menu of this thread that is open.
    void CloseMenu();
    bool IsShortCut(TMessage& message) override { return RunShortCut(message); }

    [[nodiscard]] TPopupAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TPopupAlignment value) { FAlignment = value; }
    /// Whether controls open it by themselves.
    [[nodiscard]] bool GetAutoPopup() const override { return FAutoPopup; }
    void SetAutoPopup(bool value) { FAutoPopup = value; }
    [[nodiscard]] TTrackButton GetTrackButton() const { return FTrackButton; }
    void SetTrackButton(TTrackButton value) { FTrackButton = value; }
    [[nodiscard]] TMenuAnimations GetMenuAnimation() const { return FMenuAnimation; }
    void SetMenuAnimation(TMenuAnimations value) { FMenuAnimation = value; }
    [[nodiscard]] int GetHelpContext() const { return GetItems().GetHelpContext(); }
    void SetHelpContext(int value) { GetItems().SetHelpContext(value); }
    /// Where it was opened last, in screen pixels; (-1, -1) before the first time.
    [[nodiscard]] TPoint GetPopupPoint() const { return FPopupPoint; }

    void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) override;
    void SetChildOrder(TComponent* child, int order) override;

    /// Raised before the menu is shown; the handler may change the items.
    TNotifyEvent OnPopup;
    /// Raised when the menu was closed, before the handler of the item that was chosen.
    TNotifyEvent OnClose;

protected:
    void Notification(TComponent* component, TOperation operation) override;
    void Loaded() override;
    virtual void DoPopup() { OnPopup(this); }

private:
    [[nodiscard]] UINT TrackFlags() const;

    TPoint FPopupPoint{-1, -1};
    TPopupAlignment FAlignment = paLeft;
    TTrackButton FTrackButton = tbRightButton;
    TMenuAnimations FMenuAnimation;
    bool FAutoPopup = true;
    bool FShown = false;
};

}  // namespace vcl
