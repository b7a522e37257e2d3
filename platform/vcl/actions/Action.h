#pragma once

#include <memory>

#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/menus/ShortCuts.h"

namespace vcl {

class TCustomActionList;
class TShortCutList;

/// An action that stands in a list.
class TContainedAction : public TBasicAction {
public:
    explicit TContainedAction(TComponent* AOwner) : TBasicAction(AOwner) {}
    ~TContainedAction() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TCustomActionList* GetActionList() const { return FActionList; }
    /// Moves the action to the end of another list, or out of its own (null).
    void SetActionList(TCustomActionList* value);
    /// The place in the list, or -1.
    [[nodiscard]] int GetIndex() const;
    void SetIndex(int value);
    /// What designers sort actions by.
    [[nodiscard]] const String& GetCategory() const { return FCategory; }
    void SetCategory(const String& value);

    [[nodiscard]] bool HasParent() const override { return FActionList != nullptr; }
    [[nodiscard]] TComponent* GetParentComponent() const override;
    void SetParentComponent(TComponent* value) override;

    /// Asks, until one handles it: the list's `OnExecute`, the application, the action's own `OnExecute`, and
    /// what is active on the screen (`HandlesTarget`).
    bool Execute() override;
    /// The same with `OnUpdate`.
    bool Update() override;

private:
    friend class TCustomActionList;
    TCustomActionList* FActionList = nullptr;
    String FCategory;
};

/// An operation with its caption, picture, short cuts and state, which the controls and menu items that are
/// linked to it show. A value that a client had changed for itself stays as it is there.
class TCustomAction : public TContainedAction {
public:
    explicit TCustomAction(TComponent* AOwner);
    ~TCustomAction() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] const TActionValues* Values() const override { return &FValues; }
    /// Brings itself up to date, checks itself when it does so by itself, and runs. False while disabled or
    /// while its list is suspended.
    bool Execute() override;
    bool Update() override;
    /// Runs the action for a short cut.
    virtual bool HandleShortCut() { return Execute(); }

    [[nodiscard]] const String& GetCaption() const { return FValues.Caption; }
    void SetCaption(const String& value);
    [[nodiscard]] bool GetChecked() const { return FValues.Checked; }
    /// Of actions of a list with the same `GroupIndex` above 0 one is checked: it turns the others off.
    void SetChecked(bool value);
    /// Whether running the action checks it, or unchecks it when it has no group.
    [[nodiscard]] bool GetAutoCheck() const { return FValues.AutoCheck; }
    void SetAutoCheck(bool value);
    [[nodiscard]] bool GetEnabled() const { return FValues.Enabled; }
    void SetEnabled(bool value);
    [[nodiscard]] bool GetVisible() const { return FValues.Visible; }
    void SetVisible(bool value);
    [[nodiscard]] const String& GetHint() const { return FValues.Hint; }
    void SetHint(const String& value);
    [[nodiscard]] int GetImageIndex() const { return FValues.ImageIndex; }
    void SetImageIndex(int value);
    [[nodiscard]] TShortCut GetShortCut() const { return FValues.ShortCut; }
    void SetShortCut(TShortCut value);
    /// Further short cuts, which clients do not show.
    [[nodiscard]] TShortCutList& GetSecondaryShortCuts() const;
    void SetSecondaryShortCuts(const TShortCutList& value);
    [[nodiscard]] bool IsSecondaryShortCutsStored() const;
    [[nodiscard]] int GetGroupIndex() const { return FValues.GroupIndex; }
    void SetGroupIndex(int value);
    [[nodiscard]] int GetHelpContext() const { return FValues.HelpContext; }
    void SetHelpContext(int value);
    /// Whether the action is disabled while nothing would handle it.
    [[nodiscard]] bool GetDisableIfNoHandler() const { return FDisableIfNoHandler; }
    void SetDisableIfNoHandler(bool value) { FDisableIfNoHandler = value; }

private:
    template <class V, class Given>
    void Store(V TActionValues::*field, const V& value, void (TBasicActionLink::*tell)(Given));
    void TurnOthersOff();

    TActionValues FValues;
    std::unique_ptr<TShortCutList> FSecondaryShortCuts;
    bool FDisableIfNoHandler = false;
};

/// The action for forms.
class TAction : public TCustomAction {
public:
    explicit TAction(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
