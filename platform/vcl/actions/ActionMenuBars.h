#pragma once

#include <memory>

#include "platform/vcl/actions/ActionBar.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

class TActionMainMenuBar;
class TActionMenuLoop;

/// The look of the menu controls that a bar makes by itself.
enum class TActionMenuStyle { amsXPStyle, amsThemed };
using enum TActionMenuStyle;

template <>
struct TEnumNames<TActionMenuStyle> {
    static std::span<const wchar_t* const> Names();
};

/// The bar, and the control whose items are going to be shown.
using TMenuPopupEvent = TEvent<void(TObject*, TCustomActionControl*)>;
/// The bar, and whether nothing was chosen.
using TExitMenuEvent = TEvent<void(TObject*, bool)>;

/// A menu that has dropped down: the items of a client one below the other in a window of its own. It belongs
/// to its bar.
class TActionPopupMenu : public TCustomActionBar {
public:
    TActionPopupMenu(TActionMainMenuBar& root, TActionClientItem& client);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Shows the menu beside the rectangle (screen pixels): below it, or to its right.
    void ShowBeside(const TRect& place, bool below);
    void ArrangeControls() override;
    /// Scrolls a menu that is higher than the screen until the control can be seen.
    void Reveal(const TCustomActionControl& control);
    /// The control whose items are shown; null when it is gone.
    [[nodiscard]] TCustomActionControl* GetParentControl() const;

protected:
    [[nodiscard]] const TMetaClass& DefaultControlClass(const TActionClientItem& item) const override;
    [[nodiscard]] const TMetaClass& GetControlClass(TActionClientItem& item) override;
    void ControlsGoing() override;
    void ClientGoing() override;
    void CreateParams(TCreateParams& params) override;
    void Dispatch(TMessage& message) override;
    void Paint() override;

private:
    TActionMainMenuBar& FRoot;
    int FContentHeight = 0;
    int FScrolled = 0;
    bool FPlaced = false;
};

/// The main menu of a form as a bar of actions: an entry of an action manager whose items drop down. Mouse
/// and keyboard work it as they work a menu of the system: a press opens, moving along the bar slides, Alt,
/// F10 and Alt with a letter reach it from the keyboard, arrows walk, letters and Enter choose, Escape goes
/// back.
class TActionMainMenuBar : public TCustomActionBar {
public:
    explicit TActionMainMenuBar(TComponent* AOwner);
    ~TActionMainMenuBar() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TActionMenuStyle GetStyle() const { return FStyle; }
    void SetStyle(TActionMenuStyle value);
    /// True while the user works the menu.
    [[nodiscard]] bool GetInMenuLoop() const;
    /// The menus that have dropped down, the one from the bar first.
    [[nodiscard]] std::vector<TActionPopupMenu*> OpenMenus() const;
    /// Begins to work the menu with an item of the bar highlighted, and opened when `open`.
    void EnterMenuLoop(int index, bool open);
    /// Closes all that is open; nothing is chosen.
    void CloseMenu();
    void ArrangeControls() override;

    /// Raised before the items of a control drop down; the handler may change them.
    TMenuPopupEvent OnPopup;
    /// Raised when the user has left the menu and what was chosen has run.
    TExitMenuEvent OnExitMenuLoop;

protected:
    friend class TActionMenuLoop;
    friend class TActionPopupMenu;

    void WndProc(TMessage& message) override;
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void Resize() override;
    [[nodiscard]] const TMetaClass& DefaultControlClass(const TActionClientItem& item) const override;
    void ControlsGoing() override;
    void ClientGoing() override;

private:
    void ShowHot(TCustomActionControl* control);
    [[nodiscard]] bool CanBeWorked() const;
    void CmDialogChar(TMessage& message);
    void CmAppSysCommand(TMessage& message);

    std::unique_ptr<TActionMenuLoop> FLoop;
    TActionMenuStyle FStyle = amsXPStyle;
    bool FArranging = false;
};

}  // namespace vcl
