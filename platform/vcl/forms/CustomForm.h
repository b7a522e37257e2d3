#pragma once

#include <memory>
#include <vector>

#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/ScrollingWinControl.h"
#include "platform/vcl/forms/FormTypes.h"

namespace vcl {

class TCanvas;
class TControlCanvas;
class TIcon;
class TWindowMenu;

/// A window of the program: its frame, its life from creation to closing, and the focus among its controls.
/// `TForm` publishes the properties.
///
/// Creation: a class derived from TForm makes its controls in its constructor or reads its form file there.
/// `OnCreate` is raised once, when the form is finished: by `Application().CreateForm`, or else before the
/// form is first shown. `OnDestroy` is raised while the object is whole, when it is freed through `Free`,
/// `Release`, its owner or the application. With a plain `delete` or at the end of a scope the handler runs
/// only when it belongs to another object, since the form's own class is gone by then.
class TCustomForm : public TScrollingWinControl, public TParentForm {
public:
    explicit TCustomForm(TComponent* AOwner);
    ~TCustomForm() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// Raises `OnCreate` if that has not happened yet.
    void EnsureCreated();

    // --- showing and closing (FormLife.cpp)
    /// Makes the form visible and brings it to the front.
    void Show();
    /// Shows the form, disables all other windows of the thread and handles messages until `ModalResult` is
    /// set or the form is closed; returns the result. Errors raised while it is shown come out of it, those
    /// of message handlers go to the application. Raises EInvalidOperation "Cannot make a visible window
    /// modal". When the form is freed meanwhile, the result is mrCancel.
    virtual int ShowModal();
    /// Asks `CloseQuery`, raises `OnClose` and does what it says; a modal form ends with mrCancel. Closing
    /// the main form ends the program.
    void Close();
    /// Whether the form may be closed; asks `OnCloseQuery`.
    [[nodiscard]] virtual bool CloseQuery();
    /// Frees the form once the message under way has been handled.
    void Release();
    /// Brings the form's window to the front and to the keyboard.
    void BringToFront();
    void SendToBack();
    [[nodiscard]] TFormState GetFormState() const { return FFormState; }
    /// Other than mrNone ends the modal loop.
    void SetModalResult(TModalResult value) override { FModalResult = value; }
    [[nodiscard]] TModalResult GetModalResult() const override { return FModalResult; }

    // --- frame (FormFrame.cpp)
    [[nodiscard]] TFormBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TFormBorderStyle value);
    [[nodiscard]] TBorderIcons GetBorderIcons() const { return FBorderIcons; }
    void SetBorderIcons(TBorderIcons value);
    [[nodiscard]] TPosition GetPosition() const { return FPosition; }
    /// Takes effect when the form is shown next.
    void SetPosition(TPosition value);
    [[nodiscard]] TWindowState GetWindowState() const { return FWindowState; }
    void SetWindowState(TWindowState value);
    [[nodiscard]] TFormStyle GetFormStyle() const { return FFormStyle; }
    void SetFormStyle(TFormStyle value);
    /// The icon of caption and task bar; empty: that of the application.
    [[nodiscard]] TIcon& GetIcon() const { return *FIcon; }
    void SetIcon(const TIcon& value);
    [[nodiscard]] TPopupMode GetPopupMode() const { return FPopupMode; }
    void SetPopupMode(TPopupMode value);
    /// The form above which this one always lies, with pmExplicit; not owned.
    [[nodiscard]] TCustomForm* GetPopupParent() const { return FPopupParent; }
    void SetPopupParent(TCustomForm* value);
    /// The main menu; not owned.
    [[nodiscard]] TWindowMenu* GetMenu() const { return FMenu; }
    void SetMenu(TWindowMenu* value);
    /// Opacity of the whole window: 255 (solid) to 0.
    [[nodiscard]] bool GetAlphaBlend() const { return FAlphaBlend; }
    void SetAlphaBlend(bool value);
    [[nodiscard]] int GetAlphaBlendValue() const { return FAlphaBlendValue; }
    void SetAlphaBlendValue(int value);
    /// The resolution at which the form was designed; forms are not scaled.
    [[nodiscard]] int GetPixelsPerInch() const { return FPixelsPerInch; }
    void SetPixelsPerInch(int value) { FPixelsPerInch = value; }
    [[nodiscard]] TCanvas& GetCanvas() const;

    // --- focus (FormFocus.cpp)
    [[nodiscard]] bool GetActive() const override { return FActive; }
    [[nodiscard]] TWinControl* GetActiveControl() const override { return FActiveControl; }
    /// Raises EInvalidOperation "Cannot focus a disabled or invisible window" for a control that can't have
    /// it.
    void SetActiveControl(TWinControl* control) override;
    void FocusControl(TWinControl* control) override;
    void DefocusControl(TWinControl* control, bool removing) override;
    bool SetFocusedControl(TWinControl* control) override;
    void SetFocus() override;
    [[nodiscard]] bool CanFocus() const override;

    // --- keys (FormKeys.cpp)
    [[nodiscard]] bool GetKeyPreview() const override { return FKeyPreview; }
    void SetKeyPreview(bool value) { FKeyPreview = value; }
    bool PreviewKey(TMessage& message) override;
    bool WantChildKey(TWinControl* child, TMessage& message) override;
    bool IsShortCut(TMessage& message) override;

    [[nodiscard]] TWinControl& FormControl() override { return *this; }
    [[nodiscard]] TParentForm* AsParentForm() override { return GetParent() ? nullptr : this; }
    [[nodiscard]] TDesignHook* GetDesignHook() const override { return FDesigner; }
    /// The designer that works on the form; not owned.
    void SetDesignHook(TDesignHook* value) { FDesigner = value; }

    /// After the controls come the components that the form owns and that stand in no other one.
    void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) override;

    [[nodiscard]] bool IsIconStored() const;

    TNotifyEvent OnActivate;
    TNotifyEvent OnDeactivate;
    TCloseEvent OnClose;
    TCloseQueryEvent OnCloseQuery;
    TNotifyEvent OnCreate;
    TNotifyEvent OnDestroy;
    TNotifyEvent OnShow;
    TNotifyEvent OnHide;
    TNotifyEvent OnPaint;
    TShortCutEvent OnShortCut;

protected:
    friend class TApplication;
    friend class TScreen;

    void WndProc(TMessage& message) override;
    void Dispatch(TMessage& message) override;
    void Notification(TComponent* component, TOperation operation) override;
    void DefineProperties(TFiler& filer) override;
    void Loaded() override;
    void BeforeDestruction() override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    void DestroyWindowHandle() override;
    [[nodiscard]] TRect GetFrameInsets() const override;
    void PaintWindow(HDC dc) override;

    /// Raises `OnPaint`; the surface is `GetCanvas()`.
    virtual void Paint();
    virtual void Activate();
    virtual void Deactivate();
    virtual void DoClose(TCloseAction& action);
    virtual void DoCreate();
    virtual void DoDestroy();
    virtual void DoShow();
    virtual void DoHide();
    /// Called when another control of the form became the active one.
    virtual void ActiveChanged() {}
    /// Brings the actions behind the form's controls up to date; called when the program is idle.
    virtual void UpdateActions();
    /// The window above which this one always lies; 0 for none.
    [[nodiscard]] virtual HWND GetOwnerWindow() const;

private:
    // FormLife.cpp, FormModal.cpp
    void RaiseDestroyFromDestructor();
    void CmShowingChanged();
    void ShowWindowNow();
    void HideWindowNow();
    void CloseModal();
    void CarryOut(TCloseAction action);
    [[nodiscard]] HWND NextActiveWindow() const;
    // FormFrame.cpp
    [[nodiscard]] DWORD FrameStyle() const;
    [[nodiscard]] DWORD FrameExStyle() const;
    void ApplyPosition();
    void CenterIn(const TRect& area);
    void ApplyIcon();
    void ApplyWindowMenu();
    void ApplyAlphaBlend();
    void UpdateOwnerWindow();
    void ReleaseOwnedForms();
    void TakeOwnedFormsBack();
    void IconChanged(TObject* sender);
    void WmSize(TMessage& message);
    void WmGetMinMaxInfo(TMessage& message);
    void WmSysCommand(TMessage& message);
    // FormFocus.cpp
    void WmActivate(TMessage& message);
    void SetActive(bool value);
    void SetWindowFocus();
    [[nodiscard]] bool HandFocusOn();
    [[nodiscard]] bool MoveFocusTo(TWinControl* control);
    void CmActivate();
    void CmDeactivate();
    // FormKeys.cpp
    void CmDialogKey(TMessage& message);
    [[nodiscard]] bool OfferToMenu(TMessage& message);

    std::unique_ptr<TControlCanvas> FCanvas;
    std::unique_ptr<TIcon> FIcon;
    TWindowMenu* FMenu = nullptr;
    TDesignHook* FDesigner = nullptr;
    TWinControl* FActiveControl = nullptr;
    TWinControl* FFocusedControl = nullptr;
    TCustomForm* FPopupParent = nullptr;
    std::vector<TCustomForm*> FReleasedForms;  ///< Owned windows that wait for this window to be made anew.
    TFormState FFormState;
    TFormBorderStyle FBorderStyle = bsSizeable;
    TBorderIcons FBorderIcons{biSystemMenu, biMinimize, biMaximize};
    TPosition FPosition = poDesigned;
    TWindowState FWindowState = wsNormal;
    TFormStyle FFormStyle = fsNormal;
    TPopupMode FPopupMode = pmNone;
    TModalResult FModalResult = mrNone;
    int FPixelsPerInch = 96;
    int FAlphaBlendValue = 255;
    bool FAlphaBlend = false;
    bool FKeyPreview = false;
    bool FActive = false;
    bool FClosing = false;
    bool FCreateRaised = false;
    bool FDestroyRaised = false;
    bool FPositioned = false;
};

}  // namespace vcl
