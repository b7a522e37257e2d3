#pragma once

#include "explorerbar/UnitQV7SkinPopupForm.h"
#include "explorerbar/items/ExplorerItemLink.h"
#include "platform/vcl/core/LifeGuard.h"

namespace qv7skin {

/// What opens below a link when the mouse rests on it. Hosts derive theirs and say what locked means: a pin
/// on the form, for instance, that keeps it open when the mouse leaves.
class TQV7SkinExplorerItemPopupWindow : public TQV7SkinPopupForm {
public:
    explicit TQV7SkinExplorerItemPopupWindow(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised when the mouse left the form while it is attached; the item sets it.
    TNotifyEvent OnLeaveWindow;

    [[nodiscard]] virtual bool GetLocked() const = 0;
    virtual void SetLocked(bool Value) = 0;

protected:
    void MouseLeave() override;
};

/// A link that opens a popup window below itself while the mouse is on one of the two. It does not own the
/// window, which must outlive it or be taken away before.
class TQV7SkinExplorerItemWithPopupWindow : public TQV7SkinExplorerItemLink, public TGuarded {
public:
    explicit TQV7SkinExplorerItemWithPopupWindow(TQV7SkinExplorerItemPopupWindow* PopupWindow);
    ~TQV7SkinExplorerItemWithPopupWindow() override;

    /// Opens the window.
    void ShowWindow() { DoShowWindow(); }
    /// Return opens the window instead of clicking.
    void ReturnPressed() override { DoShowWindow(); }
    void DoEnter(TCursor& Cursor) override;
    void DoLeave(TCursor& Cursor) override;

    /// False without a window.
    [[nodiscard]] virtual bool GetWindowLocked() const;
    [[nodiscard]] virtual TQV7SkinExplorerItemPopupWindow* GetPopupWindow() const { return FPopupWindow; }
    virtual void SetWindowLocked(bool Value);
    /// Null takes the window away. Raises EInvalidOperation "<class> found but
    /// TQV7SkinExplorerItemPopupWindow expected" for a form of another class.
    virtual void SetPopupWindow(TCustomForm* Form);

private:
    void DoShowWindow();
    void DoLeaveWindow(TObject* Sender);
    [[nodiscard]] bool IsAt(TPoint Place) const;

    TQV7SkinExplorerItemPopupWindow* FPopupWindow;
};

}  // namespace qv7skin
