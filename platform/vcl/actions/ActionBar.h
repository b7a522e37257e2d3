#pragma once

#include <vector>

#include "platform/vcl/actions/ActionClients.h"
#include "platform/vcl/controls/CustomControl.h"

namespace vcl {

class TCustomActionBar;
class TCustomActionControl;
class TCustomActionManager;

/// The bar, the item that is to be shown, and the class of control that shows it, to be changed.
using TGetControlClassEvent = TEvent<void(TCustomActionBar*, TActionClient*, const TMetaClass*&)>;

/// Shows the items of an action client, a control for each that is visible.
class TCustomActionBar : public TCustomControl {
public:
    explicit TCustomActionBar(TComponent* AOwner);
    ~TCustomActionBar() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The manager whose entry is shown; not owned.
    [[nodiscard]] TCustomActionManager* GetActionManager() const { return FActionManager; }
    void SetActionManager(TCustomActionManager* value);
    /// What is shown; null for nothing.
    [[nodiscard]] TActionClient* GetActionClient() const { return FActionClient; }
    void SetActionClient(TActionClient* value);
    /// Pixels left and right, above and below the controls.
    [[nodiscard]] int GetHorzMargin() const { return FHorzMargin; }
    void SetHorzMargin(int value);
    [[nodiscard]] int GetVertMargin() const { return FVertMargin; }
    void SetVertMargin(int value);
    /// Pixels between controls.
    [[nodiscard]] int GetSpacing() const { return FSpacing; }
    void SetSpacing(int value);
    /// The controls in the order of their items.
    [[nodiscard]] const std::vector<TCustomActionControl*>& ActionControls() const { return FControls; }
    /// The control at the point (client pixels), or null.
    [[nodiscard]] TCustomActionControl* ControlAt(TPoint pos) const;
    /// Makes the controls anew.
    void RecreateControls();
    /// Places the controls and sizes the bar to them.
    virtual void ArrangeControls() = 0;

    /// Chooses the class of control for an item.
    TGetControlClassEvent OnGetControlClass;

protected:
    friend class TActionClient;
    friend class TCustomActionControl;

    void Notification(TComponent* component, TOperation operation) override;
    void Loaded() override;
    /// The class of control for an item, before and after the event was asked.
    [[nodiscard]] virtual const TMetaClass& DefaultControlClass(const TActionClientItem& item) const = 0;
    [[nodiscard]] virtual const TMetaClass& GetControlClass(TActionClientItem& item);
    /// Called before controls are freed.
    virtual void ControlsGoing() {}
    /// The client that is shown is being freed.
    virtual void ClientGoing();

private:
    void FreeControls();
    void ForgetControl(const TCustomActionControl* control);

    TCustomActionManager* FActionManager = nullptr;
    TActionClient* FActionClient = nullptr;
    std::vector<TCustomActionControl*> FControls;
    int FHorzMargin = 0;
    int FVertMargin = 0;
    int FSpacing = 0;
};

}  // namespace vcl
