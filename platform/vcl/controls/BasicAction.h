#pragma once

#include <vector>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TBasicAction;

/// What an action hands to the controls and menu items that are linked to it.
struct TActionValues {
    String Caption;
    String Hint;
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false;
    /// Whether running the action checks it, or unchecks it when it has no group.
    bool AutoCheck = false;
    int GroupIndex = 0;
    int HelpContext = 0;
    int ImageIndex = -1;
    WORD ShortCut = 0;
};

/// Ties one client (a control, a menu item) to an action. The action tells the link what changed, the link
/// tells the client; a value that the host changed in the client itself is "not linked" and stays.
class TBasicActionLink : public TObject {
public:
    TBasicActionLink() = default;
    ~TBasicActionLink() override;

    [[nodiscard]] TBasicAction* GetAction() const { return FAction; }
    /// Leaves the old action and registers with the new one (null: none).
    void SetAction(TBasicAction* action);
    /// Runs the action for the client `component` (may be null); true when it was handled.
    virtual bool Execute(TComponent* component = nullptr);
    /// Lets the action bring itself up to date; true when it was handled.
    virtual bool Update();

    virtual void SetCaption(const String&) {}
    virtual void SetHint(const String&) {}
    virtual void SetEnabled(bool) {}
    virtual void SetVisible(bool) {}
    virtual void SetChecked(bool) {}
    virtual void SetAutoCheck(bool) {}
    virtual void SetGroupIndex(int) {}
    virtual void SetHelpContext(int) {}
    virtual void SetImageIndex(int) {}
    virtual void SetShortCut(WORD) {}
    virtual void SetOnExecute(const TNotifyEvent&) {}

    /// Raised with the action when something else in it changed.
    TNotifyEvent OnChange;

protected:
    friend class TBasicAction;
    virtual void Change();

private:
    TBasicAction* FAction = nullptr;
};

/// An operation of the program that controls and menu items share. This base knows its clients; captions,
/// images and lists of actions come with `actions/`.
class TBasicAction : public TComponent, public TGuarded {
public:
    explicit TBasicAction(TComponent* AOwner);
    ~TBasicAction() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// What the action shows in its clients; null when it shows nothing.
    [[nodiscard]] virtual const TActionValues* Values() const { return nullptr; }
    /// Runs the action: raises `OnExecute`. True when it was handled.
    virtual bool Execute();
    /// Raises `OnUpdate`. True when it was handled.
    virtual bool Update();
    /// For actions that act on a target: whether, how, and the state before.
    [[nodiscard]] virtual bool HandlesTarget(TObject*) { return false; }
    virtual void ExecuteTarget(TObject*) {}
    virtual void UpdateTarget(TObject*) {}

    /// The client through which the action is being executed; null outside.
    [[nodiscard]] TComponent* GetActionComponent() const { return FActionComponent; }
    void SetActionComponent(TComponent* value);
    [[nodiscard]] const TNotifyEvent& GetOnExecute() const { return FOnExecute; }
    /// Also sets the event of every client that is still linked to it.
    void SetOnExecute(const TNotifyEvent& value);
    TNotifyEvent OnUpdate;
    TNotifyEvent OnChange;

protected:
    /// Raises `OnChange` and tells every link.
    virtual void Change();
    void Notification(TComponent* component, TOperation operation) override;
    [[nodiscard]] const std::vector<TBasicActionLink*>& Links() const { return FLinks; }

    /// For tables of published properties; everybody else sets it through `SetOnExecute`.
    TNotifyEvent FOnExecute;

private:
    friend class TBasicActionLink;
    std::vector<TBasicActionLink*> FLinks;
    TComponent* FActionComponent = nullptr;
};

}  // namespace vcl
