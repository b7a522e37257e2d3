#include "explorerbar/FormQV7SkinPopupFormBase.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"

namespace qv7skin {
namespace {

constexpr wchar_t Escape = 27;
/// What makes a window without a border a popup with a thin line around it.
constexpr DWORD PopupStyle = WS_POPUP | WS_BORDER | WS_SYSMENU;
static_assert(PopupStyle == 0x80880000);

}  // namespace

const TMetaClass& TfrmQV7SkinPopupFormBase::StaticClass() {
    using C = TfrmQV7SkinPopupFormBase;
    static const TMetaClass meta = DefineClass<C>(L"TfrmQV7SkinPopupFormBase", TForm::StaticClass())
                                       .Component<&C::imgCloseWindow>(L"imgCloseWindow")
                                       .Component<&C::imgExcludeWindow>(L"imgExcludeWindow")
                                       .Component<&C::imgIncludeWindow>(L"imgIncludeWindow")
                                       .Method<&C::imgCloseWindowClick>(L"imgCloseWindowClick")
                                       .Method<&C::imgExcludeWindowClick>(L"imgExcludeWindowClick")
                                       .Method<&C::imgIncludeWindowClick>(L"imgIncludeWindowClick");
    return meta;
}

TfrmQV7SkinPopupFormBase::TfrmQV7SkinPopupFormBase(TComponent* AOwner) : TForm(AOwner) {
    SetAttachedTo(dynamic_cast<TCustomForm*>(AOwner));
    RegisterClass(TImage::StaticClass());
    InitInheritedComponent(*this, TForm::StaticClass());
}

TfrmQV7SkinPopupFormBase::~TfrmQV7SkinPopupFormBase() {
    if (FAttachedTo) FAttachedTo->RemoveFreeNotification(this);
}

void TfrmQV7SkinPopupFormBase::SetAttachedTo(TCustomForm* Value) {
    if (FAttachedTo != Value) {
        if (FAttachedTo) FAttachedTo->RemoveFreeNotification(this);
        FAttachedTo = Value;
        if (Value) Value->FreeNotification(this);
    }
    RecreateWnd();
}

void TfrmQV7SkinPopupFormBase::Notification(TComponent* component, TOperation operation) {
    TForm::Notification(component, operation);
    if (operation == opRemove && component == FAttachedTo) FAttachedTo = nullptr;
}

// --- buttons

bool TfrmQV7SkinPopupFormBase::GetShowCloseButton() const {
    return imgCloseWindow->GetVisible();
}

void TfrmQV7SkinPopupFormBase::SetShowCloseButton(bool Value) {
    imgCloseWindow->SetVisible(Value);
}

bool TfrmQV7SkinPopupFormBase::GetShowIncludeExcludeButtons() const {
    return imgExcludeWindow->GetVisible() && imgIncludeWindow->GetVisible();
}

void TfrmQV7SkinPopupFormBase::SetShowIncludeExcludeButtons(bool) {
    imgExcludeWindow->SetVisible(false);
    imgIncludeWindow->SetVisible(false);
}

void TfrmQV7SkinPopupFormBase::HideAllButtons() {
    SetShowCloseButton(false);
    SetShowIncludeExcludeButtons(false);
}

void TfrmQV7SkinPopupFormBase::ShowAllButtons() {
    SetShowCloseButton(true);
    SetShowIncludeExcludeButtons(true);
}

void TfrmQV7SkinPopupFormBase::imgCloseWindowClick(TObject*) {
    Close();
}

void TfrmQV7SkinPopupFormBase::imgExcludeWindowClick(TObject*) {
    const TLifeGuard guard(*this);
    SetShowBorder(true);
    if (guard.IsAlive()) DoExcludeWindowClick();
}

void TfrmQV7SkinPopupFormBase::imgIncludeWindowClick(TObject*) {
    const TLifeGuard guard(*this);
    SetShowBorder(false);
    if (guard.IsAlive()) DoIncludeWindowClick();
}

void TfrmQV7SkinPopupFormBase::DoIncludeWindowClick() {
    OnIncludeWindowClick(this);
}

void TfrmQV7SkinPopupFormBase::DoExcludeWindowClick() {
    OnExcludeWindowClick(this);
}

// --- border

bool TfrmQV7SkinPopupFormBase::GetShowBorder() const {
    return GetBorderStyle() != bsNone;
}

void TfrmQV7SkinPopupFormBase::SetShowBorder(bool Value) {
    const TLifeGuard guard(*this);
    const int height = GetClientHeight();
    SetBorderStyle(Value ? bsSizeToolWin : bsNone);
    if (guard.IsAlive()) SetClientHeight(height);
}

void TfrmQV7SkinPopupFormBase::CreateParams(TCreateParams& params) {
    TForm::CreateParams(params);
    if (IsInState(csDesigning)) return;
    params.Style |= PopupStyle;
    for (TImage* button : {imgCloseWindow, imgExcludeWindow, imgIncludeWindow})
        if (button) button->SetVisible(false);
}

HWND TfrmQV7SkinPopupFormBase::GetOwnerWindow() const {
    if (FAttachedTo && !IsInState(csDesigning)) return FAttachedTo->GetHandle();
    return TForm::GetOwnerWindow();
}

TRect TfrmQV7SkinPopupFormBase::GetFrameInsets() const {
    if (GetBorderStyle() != bsNone || IsInState(csDesigning)) return TForm::GetFrameInsets();
    RECT frame{};
    ::AdjustWindowRectEx(&frame, PopupStyle, FALSE, 0);
    return {-frame.left, -frame.top, frame.right, frame.bottom};
}

// --- keys

void TfrmQV7SkinPopupFormBase::KeyPress(wchar_t& key) {
    const TLifeGuard guard(*this);
    TForm::KeyPress(key);
    if (guard.IsAlive() && key == Escape && FCloseOnEscape) Close();
}

}  // namespace qv7skin
