#pragma once

#include <memory>
#include <vector>

#include "platform/vcl/controls/MessageFilter.h"
#include "platform/vcl/core/Geometry.h"

namespace vcl {

class TActionMainMenuBar;
class TActionPopupMenu;
class TBasicAction;
class TCustomActionBar;
class TCustomActionControl;

/// Works the menus of a bar: sees mouse and keyboard before everybody else while one is open.
class TActionMenuLoop : public TMessageFilter {
public:
    explicit TActionMenuLoop(TActionMainMenuBar& bar);
    ~TActionMenuLoop() override;

    [[nodiscard]] bool IsActive() const { return IsInstalled(); }
    [[nodiscard]] std::vector<TActionPopupMenu*> OpenMenus() const;
    void Enter(TCustomActionControl* control, bool open, bool byKeyboard);
    /// Ends it; runs the action of `chosen` when there is one.
    void Leave(TCustomActionControl* chosen);
    /// A bar frees its controls.
    void ControlsGoing(const TCustomActionBar& bar);
    /// What a menu shows is gone.
    void MenuGone(const TActionPopupMenu& menu);
    /// The highlighted control of a bar or menu, or null.
    [[nodiscard]] static TCustomActionControl* SelectedIn(const TCustomActionBar& bar);

    bool FilterMessage(MSG& message) override;
    /// The bar's window got this timer; true when it was the one of the delay.
    bool HandleTimer(UINT_PTR id);

private:
    using Menus = std::vector<std::unique_ptr<TActionPopupMenu>>;

    [[nodiscard]] TCustomActionBar& Deepest() const;
    void Select(TCustomActionBar& bar, TCustomActionControl* control);
    /// Closes the menus from that level on.
    void CloseFrom(std::size_t level);
    /// Drops the items of a control down; false when there are none or the bar is gone.
    bool Open(TCustomActionBar& bar, TCustomActionControl& control, bool selectFirst);
    void Choose(TCustomActionControl& control);
    /// Runs the action for the bar.
    void Execute(TBasicAction& action);
    // mouse
    [[nodiscard]] TCustomActionControl* ControlAt(TPoint screen, TCustomActionBar*& bar) const;
    void MouseMove(TPoint screen);
    void MoveInto(std::size_t level, TCustomActionControl& control);
    /// Opens and closes submenus below that level for what is highlighted there, after the system's delay.
    void SettleLater(std::size_t level);
    /// Does so now, if it is still to be done.
    void Settle();
    /// Does only the closing now, if it is still to be done.
    void CloseUnsettled();
    bool MouseDown(MSG& message, TPoint screen);
    void MouseUp(TPoint screen);
    // keyboard
    bool KeyDown(MSG& message);
    /// The control that follows the highlighted one (step 1) or stands before it (-1), past separators and
    /// round the ends; without a highlighted one the first or the last. Null when there are only separators.
    [[nodiscard]] static TCustomActionControl* Beside(const TCustomActionBar& bar, int step);
    void MoveAlongBar(int step, bool open);
    void MoveInMenu(int step);
    void SelectEdge(bool last);
    void StepRight();
    void StepLeft();
    void StepBack();
    void OpenOrChoose();
    void Letter(wchar_t letter);

    TActionMainMenuBar& FBar;
    Menus FMenus;
    TPoint FLastMouse{-1, -1};
    std::size_t FUnsettledLevel = 0;
    bool FUnsettled = false;    ///< The mouse has moved to an item whose submenu is to open later.
    bool FPressOnOpen = false;  ///< The press that is under way opened the menu on which it lies.
};

}  // namespace vcl
