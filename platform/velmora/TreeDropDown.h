#pragma once

#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/stdctrls/TreeView.h"
#include "platform/velmora/Namespace.h"

namespace velmora {

/// The window that a tree combo box drops down: a tree with a line around it. It has the focus while it
/// shows, so that keys, wheel and screen readers work as in every tree.
///
/// Enter, F4, Alt+Up, Alt+Down, Tab and a click on a node take the selected node; Escape, closing the window
/// and another window becoming active cancel.
class TTreeDropDown : public TCustomForm {
public:
    TTreeDropDown();
    ~TTreeDropDown() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after the window was hidden: whether the user cancelled.
    TEvent<void(bool)> OnDone;
    /// Raised after that when it was Tab that took the node: whether the focus goes forward.
    TEvent<void(bool)> OnTab;

    [[nodiscard]] TCustomTreeView& GetTree() const { return *FTree; }
    /// The line around the tree.
    void SetLineColor(TColor value) { SetColor(value); }
    /// Shows the window below the control, or above where there is more room, as wide as that and with that
    /// many rows. The control's form keeps the look of the active one.
    void ShowAt(TWinControl& control, int rows);
    /// Hides the window and tells.
    void Finish(bool cancelled);
    /// Frees the window, later when its tree is at work.
    void FreeWhenIdle();

protected:
    void CreateParams(TCreateParams& params) override;
    [[nodiscard]] TRect GetFrameInsets() const override { return {}; }
    void Dispatch(TMessage& message) override;
    void DoClose(TCloseAction& action) override;
    void Deactivate() override;
    void KeyDown(WORD& key, TShiftState shift) override;
    void KeyPress(wchar_t& key) override;

private:
    class TTree;

    TCustomTreeView* FTree;
};

}  // namespace velmora
