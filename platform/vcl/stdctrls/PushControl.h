#pragma once

#include <optional>

#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/stdctrls/FaceCache.h"

namespace vcl {

/// How a control that can be pressed stands to the user at this moment. The order is that in which control
/// sets keep the pictures of their buttons.
enum class TPushState {
    pshNormal,
    pshDisabled,
    pshPressed,  ///< Held down by the mouse, which is on it, or by the space bar.
    pshHot,      ///< The mouse is on it.
    pshDown,     ///< Switched on.
    pshDownHot,  ///< Switched on, and the mouse is on it.
};
using enum TPushState;

/// What all controls have in common that are pressed: mouse, keyboard, default and cancel keys, modal
/// results, switching on and off, and painting without flicker. It has no look of its own; descendants
/// override `Paint`.
///
/// - A press of the left mouse button gives it the focus and captures the mouse: off the control it looks
///   released, back on it pressed again; a release on it is a click.
/// - The space bar presses and its release clicks; Enter clicks while the control has the focus, or from
///   everywhere on the form when it is the `Default` one; Esc clicks a `Cancel` one; the letter after `&` in
///   the caption clicks.
/// - `Click` switches a control that `Toggles` over, gives the form its `ModalResult`, and then runs the
///   action that is linked or raises `OnClick`.
///
/// Painting: `Paint` draws one state, as a whole, over the background that `EraseFace` left. Its picture is
/// kept until the control is marked for painting (`Invalidate`, `Repaint`), so that a change of state reaches
/// the screen at once and costs one copy.
class TPushControl : public TCustomControl {
public:
    explicit TPushControl(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// True when Enter clicks the control wherever the focus is on the form, unless a button has it.
    [[nodiscard]] bool GetDefault() const { return FDefault; }
    void SetDefault(bool value) { FDefault = value; }
    /// True when Esc clicks the control wherever the focus is on the form.
    [[nodiscard]] bool GetCancel() const { return FCancel; }
    void SetCancel(bool value) { FCancel = value; }
    /// True while it is switched on.
    [[nodiscard]] bool GetDown() const { return FDown; }
    void SetDown(bool value);
    /// What a click makes the result of its form, which closes a modal form; mrNone leaves that open.
    [[nodiscard]] TModalResult GetModalResult() const { return FModalResult; }
    void SetModalResult(TModalResult value) { FModalResult = value; }

    /// False while the linked action decides whether the control is checked.
    [[nodiscard]] bool IsCheckedStored() const;

    [[nodiscard]] TPushState GetPushState() const { return FState; }
    /// Does all that a click of the user does.
    void Click() override;

    void Repaint() override;

protected:
    void Dispatch(TMessage& message) override;
    void PaintWindow(HDC dc) override;
    void CreateParams(TCreateParams& params) override;
    void DestroyWnd() override;
    void Loaded() override;
    void MouseEnter() override;
    void MouseLeave() override;
    void KeyDown(WORD& key, TShiftState shift) override;
    void KeyUp(WORD& key, TShiftState shift) override;
    void ActionChange(TObject* sender, bool checkDefaults) override;
    [[nodiscard]] std::unique_ptr<TBasicActionLink> CreateActionLink() override;

    // --- for descendants to decide
    /// Called after the state changed and shows on the screen; not while the control is being loaded.
    virtual void StateChanged() {}
    /// Whether a click switches the control over.
    [[nodiscard]] virtual bool Toggles() const { return false; }
    /// For the linked action: whether the control follows its `Checked` at all, whether it is checked, and a
    /// way to check it that is no click. A control that toggles is checked while it is `Down`.
    [[nodiscard]] virtual bool CanBeChecked() const { return Toggles(); }
    [[nodiscard]] virtual bool IsChecked() const { return FDown; }
    virtual void Check(bool value) { SetDown(value); }
    /// Whether the second press of two quick ones is a double click rather than a press of its own.
    [[nodiscard]] virtual bool WantsDoubleClicks() const { return false; }
    /// Whether the space bar presses the control.
    [[nodiscard]] virtual bool WantsSpace() const { return true; }
    /// Whether the control looks as if the mouse were on it while it has the focus.
    [[nodiscard]] virtual bool IsHotWhenFocused() const { return false; }
    /// Whether the focus shows.
    [[nodiscard]] virtual bool ShowsFocus() const { return true; }
    /// Fills what lies behind the control before `Paint`: with its colour, or as the parent paints itself
    /// when the control has `ParentBackground`.
    virtual void EraseFace(HDC dc);

    /// The pixels under the canvas while `Paint` draws, for descendants that reckon theirs; empty at other
    /// times.
    [[nodiscard]] TBitmapBits FaceBits() const { return FFaces.Bits(); }
    /// True when `Paint` has to show the focus.
    [[nodiscard]] bool IsFocusShown() const { return FHasFocus && ShowsFocus(); }
    /// Brings state and screen in line with what decides about them; false when a handler freed the control.
    bool UpdateState();

private:
    class TActionLink;

    [[nodiscard]] TPushState StateNow() const;
    [[nodiscard]] int LookNow() const;
    void ShowFace();
    [[nodiscard]] HDC WindowDC();
    [[nodiscard]] bool TakesDialogKey(WORD key);
    // Handlers of the message map; those that tell say whether the control still lives.
    void WmPaint(TMessage& message);
    bool FocusChanged(bool focused);
    bool EndPress();
    void WmLButtonDown(TMessage& message);
    void WmLButtonUp(TMessage& message);
    void WmMouseMove(TMessage& message);
    void CmEnabledChanged(TMessage& message);
    void CmChildKey(TMessage& message);
    void CmDialogKey(TMessage& message);
    void CmDialogChar(TMessage& message);

    TFaceCache FFaces;
    std::optional<TWindowDC> FWindowDC;  ///< The window's own, kept from the first painting on.
    TModalResult FModalResult = mrNone;
    TPushState FState = pshNormal;
    bool FDefault = false;
    bool FCancel = false;
    bool FDown = false;
    bool FHasFocus = false;
    bool FMouseOn = false;     ///< The mouse is on the control.
    bool FMousePress = false;  ///< The left button went down here and is still held.
    bool FPressIsOn = false;   ///< During such a press: the mouse is on the control.
    bool FSpacePress = false;  ///< The space bar is held.
};

}  // namespace vcl
