#pragma once

#include "menus/MenuItemPainter.h"
#include "menus/Namespace.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/menus/MainMenu.h"
#include "platform/vcl/menus/PopupMenu.h"

/// The popup and main menus of the skin, drawn by the installed `TQV7SkinMenuItemPainter`.
namespace qv7skin {

/// A popup menu in the skin.
class TQV7SkinPopupMenu : public TPopupMenu {
public:
    using TPopupMenu::TPopupMenu;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Hooks every item below `Item` to the painter, in place of handlers that it has.
    void ApplyCallbacks(TMenuItem& Item);
    void ApplyCustomLayout();
    /// Shows the menu in the skin, or as the system does without an active painter, runs the messages that
    /// wait, among them the click on the item that was chosen, and raises `OnCloseUp`.
    void Popup(int X, int Y) override;
    bool IsShortCut(TMessage& Message) override;

    /// Draws or measures an item with the painter; nothing without an active one.
    void DoCustomDrawItem(TObject* Sender, TCanvas& ACanvas, const TRect& ARect, bool Selected);
    void DoCustomMeasureItem(TObject* Sender, TCanvas& ACanvas, int& Width, int& Height);

    /// Raised when the menu has closed and the click was handled.
    TNotifyEvent OnCloseUp;
    /// Raised around the search for the item of a short cut, the second also when that raises an error.
    TNotifyEvent OnBeforeExecuteShortCut;
    TNotifyEvent OnAfterExecuteShortCut;

protected:
    void DoChange(TMenuItem* Source, bool Rebuild) override;
    virtual void DoCloseUp(TObject* Sender) { OnCloseUp(Sender); }
    virtual void DoBeforeExecuteShortCut(TObject* Sender) { OnBeforeExecuteShortCut(Sender); }
    virtual void DoAfterExecuteShortCut(TObject* Sender) { OnAfterExecuteShortCut(Sender); }

private:
    bool FLaidOut = false;
};

/// A main menu in the skin. One that comes from a form file is laid out when it is complete; one made in code
/// by a call of `ApplyCustomLayout`.
class TQV7SkinMainMenu : public TMainMenu {
public:
    using TMainMenu::TMainMenu;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Hooks every item below `Item` to the painter, in place of handlers that it has.
    void ApplyCallbacks(TMenuItem& Item);
    /// Switches owner drawing on and hooks all items.
    void ApplyCustomLayout();
    bool IsShortCut(TMessage& Message) override;

    /// Draws or measures an item with the painter; nothing without an active one.
    void DoCustomDrawItem(TObject* Sender, TCanvas& ACanvas, const TRect& ARect, bool Selected);
    void DoCustomMeasureItem(TObject* Sender, TCanvas& ACanvas, int& Width, int& Height);

    /// Raised around the search for the item of a short cut, the second also when that raises an error.
    TNotifyEvent OnBeforeExecuteShortCut;
    TNotifyEvent OnAfterExecuteShortCut;

protected:
    void Loaded() override;
    void DoChange(TMenuItem* Source, bool Rebuild) override;
    virtual void DoBeforeExecuteShortCut(TObject* Sender) { OnBeforeExecuteShortCut(Sender); }
    virtual void DoAfterExecuteShortCut(TObject* Sender) { OnAfterExecuteShortCut(Sender); }

private:
    bool FLaidOut = false;
};

}  // namespace qv7skin
