#pragma once

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Geometry.h"

namespace vcl {

struct TMessage;

/// What a control needs of the menu in its `PopupMenu` property; `menus/` derives TPopupMenu from it.
class TContextMenu : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Shows the menu at the point (screen pixels) and returns when it is closed.
    virtual void Popup(int x, int y) = 0;
    /// True when a right click or the menu key opens it by itself.
    [[nodiscard]] virtual bool GetAutoPopup() const { return true; }
    /// Runs the item whose short cut the key message is; false when there is none.
    virtual bool IsShortCut(TMessage&) { return false; }
    /// The component for which it was opened last; not owned.
    [[nodiscard]] TComponent* GetPopupComponent() const { return FPopupComponent; }
    void SetPopupComponent(TComponent* value);

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    TComponent* FPopupComponent = nullptr;
};

}  // namespace vcl
