#pragma once

#include "explorerbar/UnitQV7SkinPopupForm.h"
#include "inputs/Namespace.h"
#include "platform/tms/CurvyPanel.h"
#include "platform/vcl/controls/AccessibleControl.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace vcl {
class TLabel;
}

namespace qv7skin {

/// Looks like a combo box and drops down any popup form: a white frame with round corners, a text that can't
/// be edited, and a drop button. A release of the mouse anywhere on it opens and closes; with the focus on it
/// so do F4, Alt+Down and Alt+Up.
///
/// Text and button are made when the form file has been read (`Loaded`), never at design time; a control made
/// in code gets them by `CreateParts`.
class TCustomQV7SkinComboBoxCustomDropDown : public TCurvyPanel, private TAccessibleControl {
public:
    explicit TCustomQV7SkinComboBoxCustomDropDown(TComponent* AOwner);
    ~TCustomQV7SkinComboBoxCustomDropDown() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised just before the popup shows, and when it closes. Not when the user detaches it or docks it
    /// back.
    TNotifyEvent OnDropDown;
    TNotifyEvent OnCloseUp;

    /// The popup; not owned, null for none. The control takes its `OnClose` and its include and exclude
    /// events.
    [[nodiscard]] TQV7SkinPopupForm* GetDropDownForm() const { return FDropDownForm; }
    void SetDropDownForm(TQV7SkinPopupForm* Value);
    /// Whether the popup counts as open. Closing happens with the next message.
    [[nodiscard]] bool GetDroppedDown() const { return FDroppedDown; }
    void SetDroppedDown(bool Value);
    /// Whether a line stands at the button's left edge; false at first. Counts only while there is a button:
    /// a true that was stored before can't be taken back until then.
    [[nodiscard]] bool GetDrawButtonLine() const;
    void SetDrawButtonLine(bool Value);
    /// The parts of the control; null before they are made.
    [[nodiscard]] TLabel* GetLabel() const { return FLabel; }
    [[nodiscard]] TFlickerFreePaintBox* GetButton() const { return FButton; }

    /// Does for a control made in code what `Loaded` does for one of a form file.
    void CreateParts();
    virtual void CreateEdit();
    virtual void CreateButton();
    virtual void DoDropDownFormClose(TObject* Sender, TCloseAction& Action);
    virtual void DoEditMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void DoButtonPaint(TObject* Sender, TBitmap* Bitmap);
    virtual void DoButtonMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void DoBackgroundMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    void DoDropDownFormInclude(TObject* Sender);
    void DoDropDownFormExclude(TObject* Sender);

protected:
    void Loaded() override;
    void Notification(TComponent* component, TOperation operation) override;
    void Dispatch(TMessage& message) override;
    void KeyDown(WORD& key, TShiftState shift) override;
    [[nodiscard]] String GetTextBuf() const override;
    void SetTextBuf(const String& value) override;

    // --- for descendants
    /// Makes what there is besides button and text.
    virtual void CreateForm() {}
    /// Called before the form shows, after `OnDropDown`.
    virtual void PrepareDropDown() {}
    /// Called when the form closed, after `OnCloseUp`.
    virtual void DropDownClosed() {}
    /// Makes the button of that width, so many pixels from the right edge.
    void MakeButton(int width, int right);
    /// Makes the text, so many pixels from the left edge.
    void MakeLabel(int left);
    /// Opens or closes, unless the press of this release closed the popup; false when the control is gone.
    bool ToggleByRelease();
    /// The state as it is now, without events.
    void PutDroppedDown(bool value);
    void ShowForm();

private:
    [[nodiscard]] TAccessibleFacts GetAccessibleFacts() const override;
    void DoAccessibleAction() override { SetDroppedDown(!FDroppedDown); }
    void DetachForm();
    void RepaintParts();
    [[nodiscard]] bool IsMouseOnSelf() const;

    TLabel* FLabel = nullptr;
    TFlickerFreePaintBox* FButton = nullptr;
    bool FDroppedDown = false;
    TQV7SkinPopupForm* FDropDownForm = nullptr;
    bool FCloseClickedOnSelf = false;
    bool FDrawButtonLine = false;
};

/// The drop-down control for forms.
class TQV7SkinComboBoxCustomDropDown : public TCustomQV7SkinComboBoxCustomDropDown {
public:
    using TCustomQV7SkinComboBoxCustomDropDown::TCustomQV7SkinComboBoxCustomDropDown;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
