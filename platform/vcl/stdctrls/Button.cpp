#include "platform/vcl/stdctrls/Button.h"

#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TButtonControl::StaticClass() {
    static const TMetaClass meta = DefineClass<TButtonControl>(L"TButtonControl", TWinControl::StaticClass());
    return meta;
}

TButtonControl::TButtonControl(TComponent* AOwner) : TWinControl(AOwner) {
    // The system's button reports clicks itself.
    ControlStyle = {csSetCaption, csDoubleClicks};
    SetTabStop(true);
}

void TButtonControl::SetWordWrap(bool value) {
    if (value == FWordWrap) return;
    FWordWrap = value;
    RecreateWnd();
}

void TButtonControl::CreateParams(TCreateParams& params) {
    TWinControl::CreateParams(params);
    CreateSubClass(params, L"BUTTON");
    if (FWordWrap) params.Style |= BS_MULTILINE;
}

const TMetaClass& TCustomButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomButton>(L"TCustomButton", TButtonControl::StaticClass());
    return meta;
}

TCustomButton::TCustomButton(TComponent* AOwner) : TButtonControl(AOwner) {
    SetBounds(0, 0, 75, 25);
}

void TCustomButton::CreateParams(TCreateParams& params) {
    TButtonControl::CreateParams(params);
    params.Style |= FDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

void TCustomButton::CreateWnd() {
    TButtonControl::CreateWnd();
    FActive = FDefault;
}

void TCustomButton::SetDefault(bool value) {
    if (value == FDefault) return;
    FDefault = value;
    if (!HandleAllocated()) return;
    // All buttons of the form learn anew which of them Enter clicks.
    if (TParentForm* form = GetParentForm(this))
        form->FormControl().Perform(CM_FOCUSCHANGED, 0, form->GetActiveControl());
}

void TCustomButton::Click() {
    if (TParentForm* form = GetParentForm(this)) form->SetModalResult(FModalResult);
    TButtonControl::Click();
}

void TCustomButton::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_COMMAND:
            if (message.WParamHi() == BN_CLICKED) Click();
            break;
        case CM_FOCUSCHANGED: {
            const TLifeGuard guard(*this);
            FocusChanged(message.As<TWinControl>());
            if (guard.IsAlive()) TButtonControl::Dispatch(message);
            break;
        }
        case CM_DIALOGKEY:
            if (WantsDialogKey(message)) {
                message.Result = 1;
                Click();
            } else {
                TButtonControl::Dispatch(message);
            }
            break;
        case CM_DIALOGCHAR:
            if (IsAccel(static_cast<wchar_t>(message.CharCode()), GetCaption()) && CanFocus()) {
                message.Result = 1;
                Click();
            } else {
                TButtonControl::Dispatch(message);
            }
            break;
        default:
            TButtonControl::Dispatch(message);
    }
}

/// Enter goes to the button with the focus; without one among the buttons, to the default button.
void TCustomButton::FocusChanged(TWinControl* focused) {
    FActive = dynamic_cast<TCustomButton*>(focused) ? focused == this : FDefault;
    SetButtonStyle(FActive);
}

bool TCustomButton::WantsDialogKey(const TMessage& message) const {
    const bool isMine =
        (message.CharCode() == VK_RETURN && FActive) || (message.CharCode() == VK_ESCAPE && FCancel);
    return isMine && KeyDataToShiftState(message.KeyData()).IsEmpty() && CanFocus();
}

void TCustomButton::SetButtonStyle(bool isDefault) {
    if (!HandleAllocated()) return;
    const LONG_PTR style = ::GetWindowLongPtrW(WindowHandle(), GWL_STYLE) & BS_TYPEMASK;
    const LONG_PTR wanted = isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if (style != wanted) ::SendMessageW(WindowHandle(), BM_SETSTYLE, static_cast<WPARAM>(wanted), TRUE);
}

const TMetaClass& TButton::StaticClass() {
    using C = TButton;
    static const TMetaClass meta =
        DefineClass<C>(L"TButton", TCustomButton::StaticClass())
            .With(PlacementRows)
            .With(FontRows)
            .With(StateRows)
            .With(TabRows)
            .With(ActionRows)
            .Property(L"Cancel", &C::GetCancel, &C::SetCancel, false)
            .Property(L"Default", &C::GetDefault, &C::SetDefault, false)
            .Property(L"ModalResult", &C::GetModalResult, &C::SetModalResult, mrNone)
            .Identifiers(ModalResultIdentifiers())
            .Property(L"WordWrap", &C::GetWordWrap, &C::SetWordWrap, false)
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows)
            .With(KeyRows);
    return meta;
}

}  // namespace vcl
