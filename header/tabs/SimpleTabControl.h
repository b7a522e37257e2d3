#pragma once

#include <memory>

#include "header/control/HeaderControl.h"
#include "header/items/HeaderItemTab.h"

namespace qv7skin {

class TTabPieces;

/// Sender, and whether Ctrl+Tab may switch to another tab; true when the handler is called.
using TQueryTabSwitchEvent = TEvent<void(TObject*, bool&)>;

/// A header control whose items are tabs. It paints their backgrounds in one of two looks and switches tabs
/// with Ctrl+Tab when the host allows that.
///
/// The pieces of the tabs are loaded when the control has been read from a form file. Whoever makes one in
/// code calls `Loaded` after setting its properties; without that, tabs are plain rectangles.
class TQV7SkinSimpleTabControl : public TQV7SkinHeaderControl, public THeaderBackgroundPainter {
public:
    /// Items may be dragged.
    explicit TQV7SkinSimpleTabControl(TComponent* AOwner);
    ~TQV7SkinSimpleTabControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The look that the pieces are loaded for, and that tabs are filled in. Plain field: a change after
    /// loading keeps the pieces. The margins and text colours of a tab are its own.
    TQV7SkinTabBackground TabBackground = bckgrndStandard;
    /// Asked whether Ctrl+Tab may switch tabs. Unset: it does not.
    TQueryTabSwitchEvent OnQueryTabSwitch;

    /// Loads the pieces.
    void Loaded() override;

    /// The fill behind the pieces of default, hovered and pressed tabs.
    [[nodiscard]] TColor GetBkColorTabDefault() const;
    [[nodiscard]] TColor GetBkColorTabHovered() const;
    [[nodiscard]] TColor GetBkColorTabPressed() const;

    /// The next visible item after the selected one, or before it, round the ends; null when there is none
    /// but the selected one. With none selected it is the first visible one from the end that the walk
    /// begins at.
    [[nodiscard]] TQV7SkinHeaderItemCustom* GetNextHeaderItem(bool Forward) const;
    /// Clicks that item, as with the left button at its point (1, 1), unless it is selected already.
    void SelectNextTab(bool Forward);
    /// Gives the focus to the first control on `Control`, in tab order, that can take it.
    static void FocusFirstChild(TWinControl* Control);

    void SetIndexOfItemMouseOver(int Index) override;
    /// Also a line along the lower edge in the white look.
    void PaintBackground(TBitmap& Bitmap) override;
    /// State 0 default, 1 hovered, 2 pressed.
    void DrawBackground(TBitmap& Bitmap, int State) override;
    [[nodiscard]] int GetBackgroundLook() const override;

protected:
    void Dispatch(TMessage& message) override;

private:
    void LoadBitmapsFromResources();
    [[nodiscard]] bool IsSwitchAllowed();
    void CmDialogKey(TMessage& message);

    std::unique_ptr<TTabPieces> FPieces;
    int FLoads = 0;
};

}  // namespace qv7skin
