#include "platform/vcl/forms/CustomForm.h"

#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/graphics/Icon.h"
#include "platform/vcl/menus/MenuLoop.h"
#include "platform/vcl/streaming/SkippedProperties.h"

namespace vcl {

const TMetaClass& TCustomForm::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomForm>(L"TCustomForm", TScrollingWinControl::StaticClass());
    return meta;
}

TCustomForm::TCustomForm(TComponent* AOwner)
    : TScrollingWinControl(AOwner),
      FCanvas(std::make_unique<TControlCanvas>(this)),
      FIcon(std::make_unique<TIcon>()) {
    // Forms need the program's services from the start.
    (void)Application();
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    SetControlState(csCustomPaint, true);
    SetVisible(false);
    SetParentColor(false);
    SetParentFont(false);
    SetColor(clBtnFace);
    SetBounds(0, 0, 320, 240);
    FIcon->OnChange = {this, &TCustomForm::IconChanged};
    Screen().AddForm(this);
}

TCustomForm::~TCustomForm() {
    RaiseDestroyFromDestructor();
    Destroying();
    Screen().RemoveForm(this);
    std::erase(Application().FReleasedForms, this);
    if (FMenu) FMenu->SetWindowHandle(nullptr);
    if (HandleAllocated()) TCustomForm::DestroyWindowHandle();
}

void TCustomForm::BeforeDestruction() {
    TScrollingWinControl::BeforeDestruction();
    if (FDestroyRaised) return;
    FDestroyRaised = true;
    try {
        DoDestroy();
    } catch (...) {
        Application().HandleException(this);
    }
}

/// A plain `delete` arrives here first. A handler that is a method of the form's own class has lost its
/// object by now; all others are told.
void TCustomForm::RaiseDestroyFromDestructor() {
    const void* handler = OnDestroy.ObjectPart();
    const auto* self = reinterpret_cast<const char*>(this);
    const bool isOwn = handler == dynamic_cast<const void*>(this) ||
                       (handler >= self && handler < self + sizeof(TCustomForm));
    if (isOwn) FDestroyRaised = true;
}

void TCustomForm::Notification(TComponent* component, TOperation operation) {
    TScrollingWinControl::Notification(component, operation);
    if (operation != opRemove) return;
    if (component == FMenu) SetMenu(nullptr);
    if (component == FPopupParent) SetPopupParent(nullptr);
}

void TCustomForm::DefineProperties(TFiler& filer) {
    TScrollingWinControl::DefineProperties(filer);
    // Forms are not scaled and raise OnCreate at one time only.
    SkipProperties(filer, {L"TextHeight", L"OldCreateOrder", L"Scaled"});
}

void TCustomForm::Loaded() {
    const TLifeGuard guard(*this);
    TWinControl* active = std::exchange(FActiveControl, nullptr);
    TScrollingWinControl::Loaded();
    if (!guard.IsAlive()) return;
    if (active && active->CanFocus()) SetActiveControl(active);
    // A form under design waits for the window that its designer puts it in.
    const bool waits = IsInState(csDesigning) && !GetParentWindow();
    if (guard.IsAlive() && !GetParent() && !waits) UpdateControlState();
}

void TCustomForm::GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) {
    TScrollingWinControl::GetChildren(visit, root);
    if (root != this) return;
    for (int i = 0; i < GetComponentCount(); ++i) {
        TComponent* component = GetComponent(i);
        if (!component->HasParent() && !dynamic_cast<TControl*>(component)) visit(component);
    }
}

void TCustomForm::EnsureCreated() {
    if (FCreateRaised) return;
    FCreateRaised = true;
    try {
        DoCreate();
    } catch (...) {
        Application().HandleException(this);
    }
}

void TCustomForm::DoCreate() {
    OnCreate(this);
}

void TCustomForm::DoDestroy() {
    OnDestroy(this);
}

// --- messages

void TCustomForm::WndProc(TMessage& message) {
    // The window itself keeps the focus only while no control can have it.
    if (message.Msg == WM_SETFOCUS && HandFocusOn()) return;
    TScrollingWinControl::WndProc(message);
}

void TCustomForm::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_ACTIVATE:
            return WmActivate(message);
        case WM_ACTIVATEAPP:
            Application().ActiveChanged(message.WParam != 0);
            return DefaultHandler(message);
        case WM_CLOSE:
            return Close();
        case WM_QUERYENDSESSION:
            message.Result = CloseQuery();
            return;
        case WM_SIZE:
            return WmSize(message);
        case WM_GETMINMAXINFO:
            return WmGetMinMaxInfo(message);
        case WM_SYSCOMMAND:
            return WmSysCommand(message);
        case WM_COMMAND:
        case WM_INITMENUPOPUP:
        case WM_UNINITMENUPOPUP:
        case WM_MENUSELECT:
        case WM_MENUCHAR:
        case WM_MEASUREITEM:
        case WM_DRAWITEM:
        case WM_ENTERMENULOOP:
            if (!OfferToMenu(message)) TScrollingWinControl::Dispatch(message);
            return;
        case WM_EXITMENULOOP:
            EndMenuLoop();
            if (!OfferToMenu(message)) TScrollingWinControl::Dispatch(message);
            return;
        case CM_ACTIVATE:
            return CmActivate();
        case CM_DEACTIVATE:
            return CmDeactivate();
        case CM_DIALOGKEY:
            return CmDialogKey(message);
        case CM_SHOWINGCHANGED:
            return CmShowingChanged();
        case CM_MENUCHANGED:
            return ApplyWindowMenu();
        case CM_ICONCHANGED:
            return ApplyIcon();
        case CM_RELEASE:
            return Free();
        case CM_UPDATEACTIONS:
            return UpdateActions();
        default:
            TScrollingWinControl::Dispatch(message);
    }
}

// --- painting

TCanvas& TCustomForm::GetCanvas() const {
    return *FCanvas;
}

void TCustomForm::PaintWindow(HDC dc) {
    const TCanvasBinding binding(*FCanvas, *this, dc);
    if (FDesigner)
        FDesigner->PaintGrid();
    else
        Paint();
}

void TCustomForm::Paint() {
    OnPaint(this);
}

}  // namespace vcl
