#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"

#include <algorithm>

#include "inputs/DropButton.h"
#include "platform/tms/CurvyRows.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Label.h"

namespace qv7skin {
namespace {

constexpr int ButtonWidth = 17;
constexpr int ButtonMargin = 3;
constexpr int LabelMargin = 6;
constexpr int LabelHeight = InputMinHeight - 2 * LabelMargin;

bool IsDropKey(WORD key, TShiftState shift) {
    const bool alt = shift.Contains(ssAlt);
    return (key == VK_F4 && !alt) || ((key == VK_DOWN || key == VK_UP) && alt);
}

/// Does the last step also after an error of the first one, as long as there is the guarded control.
template <class First, class Last>
void InAnyCase(const TLifeGuard& guard, const First& first, const Last& last) {
    try {
        first();
    } catch (...) {
        if (guard.IsAlive()) last();
        throw;
    }
    if (guard.IsAlive()) last();
}

}  // namespace

const TMetaClass& TCustomQV7SkinComboBoxCustomDropDown::StaticClass() {
    using C = TCustomQV7SkinComboBoxCustomDropDown;
    static const TMetaClass meta =
        DefineClass<C>(L"TCustomQV7SkinComboBoxCustomDropDown", TCurvyPanel::StaticClass())
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .NotStored()
            .Property(L"Rounding", &C::GetRounding, &C::SetRounding, InputRounding);
    return meta;
}

TCustomQV7SkinComboBoxCustomDropDown::TCustomQV7SkinComboBoxCustomDropDown(TComponent* AOwner)
    : TCurvyPanel(AOwner) {
    SetRounding(InputRounding);
    ControlStyle.Exclude(csAcceptsControls);
}

TCustomQV7SkinComboBoxCustomDropDown::~TCustomQV7SkinComboBoxCustomDropDown() {
    DetachForm();
    delete std::exchange(FButton, nullptr);
    delete std::exchange(FLabel, nullptr);
}

// --- parts

void TCustomQV7SkinComboBoxCustomDropDown::Loaded() {
    TCurvyPanel::Loaded();
    CreateParts();
}

void TCustomQV7SkinComboBoxCustomDropDown::CreateParts() {
    if (FLabel) return;
    CreateButton();
    CreateEdit();
    CreateForm();
    OnMouseUp = {this, &TCustomQV7SkinComboBoxCustomDropDown::DoBackgroundMouseUp};
}

void TCustomQV7SkinComboBoxCustomDropDown::MakeButton(int width, int right) {
    FButton = new TFlickerFreePaintBox(nullptr);
    FButton->SetParent(this);
    FButton->SetBounds(GetWidth() - width - right, ButtonMargin, width, GetHeight() - 2 * ButtonMargin);
    FButton->SetAnchors({akTop, akRight, akBottom});
    FButton->OnFFPaint = {this, &TCustomQV7SkinComboBoxCustomDropDown::DoButtonPaint};
    FButton->OnMouseUp = {this, &TCustomQV7SkinComboBoxCustomDropDown::DoButtonMouseUp};
}

void TCustomQV7SkinComboBoxCustomDropDown::CreateButton() {
    if (!IsInState(csDesigning)) MakeButton(ButtonWidth, ButtonMargin);
}

void TCustomQV7SkinComboBoxCustomDropDown::MakeLabel(int left) {
    const String text = GetCaption();
    auto* label = new TLabel(nullptr);
    label->SetAutoSize(false);
    label->SetParent(this);
    label->SetColor(InputGround);
    label->GetFont().SetColor(InputText);
    label->SetCursor(crDefault);
    // A sign '&' in the text is a letter like all others.
    label->SetShowAccelChar(false);
    const int buttonWidth = FButton ? FButton->GetWidth() : 0;
    label->SetBounds(left, LabelMargin, GetWidth() - left - buttonWidth, LabelHeight);
    SetHeight(std::max(InputMinHeight, label->GetHeight() + 2 * label->GetTop()));
    label->SetAnchors({akLeft, akTop, akRight});
    label->SetCaption(text);
    label->SetEnabled(GetEnabled());
    label->OnMouseUp = {this, &TCustomQV7SkinComboBoxCustomDropDown::DoEditMouseUp};
    FLabel = label;
}

void TCustomQV7SkinComboBoxCustomDropDown::CreateEdit() {
    if (IsInState(csDesigning)) return;
    MakeLabel(LabelMargin);
    FLabel->SetEllipsisPosition(epEndEllipsis);
}

void TCustomQV7SkinComboBoxCustomDropDown::DoButtonPaint(TObject*, TBitmap* Bitmap) {
    const TRect rect = FButton->GetClientRect();
    TDropButtonLook look;
    look.Enabled = GetEnabled();
    look.Open = FDroppedDown;
    look.LineBottom = FDrawButtonLine ? rect.Bottom : 0;
    DrawDropButton(Bitmap->GetCanvas(), rect, look);
}

void TCustomQV7SkinComboBoxCustomDropDown::RepaintParts() {
    NotifyAccessible(*this, EVENT_OBJECT_STATECHANGE);
    if (FButton) FButton->Repaint();
    Invalidate();
}

/// Screen readers are told what of a combo box they are told.
TAccessibleFacts TCustomQV7SkinComboBoxCustomDropDown::GetAccessibleFacts() const {
    TAccessibleFacts facts;
    facts.Role = ROLE_SYSTEM_COMBOBOX;
    facts.Value = GetText();
    facts.State = STATE_SYSTEM_HASPOPUP | (FDroppedDown ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
    return facts;
}

void TCustomQV7SkinComboBoxCustomDropDown::Dispatch(TMessage& message) {
    if (AnswerGetObject(*this, *this, message)) return;
    const TLifeGuard guard(*this);
    TCurvyPanel::Dispatch(message);
    if (!guard.IsAlive() || message.Msg != CM_ENABLEDCHANGED) return;
    if (FLabel) FLabel->SetEnabled(GetEnabled());
    if (FButton) FButton->Repaint();
}

// --- properties

String TCustomQV7SkinComboBoxCustomDropDown::GetTextBuf() const {
    return FLabel ? FLabel->GetCaption() : TCurvyPanel::GetTextBuf();
}

void TCustomQV7SkinComboBoxCustomDropDown::SetTextBuf(const String& value) {
    if (!FLabel) return TCurvyPanel::SetTextBuf(value);
    FLabel->SetCaption(value);
    FLabel->Repaint();
    NotifyAccessible(*this, EVENT_OBJECT_VALUECHANGE);
}

bool TCustomQV7SkinComboBoxCustomDropDown::GetDrawButtonLine() const {
    return FButton && FDrawButtonLine;
}

void TCustomQV7SkinComboBoxCustomDropDown::SetDrawButtonLine(bool Value) {
    if (Value == GetDrawButtonLine()) return;
    FDrawButtonLine = Value;
    if (FButton) FButton->Repaint();
    Invalidate();
}

// --- the form

void TCustomQV7SkinComboBoxCustomDropDown::DetachForm() {
    if (!FDropDownForm) return;
    FDropDownForm->OnClose.Clear();
    FDropDownForm->OnIncludeWindowClick.Clear();
    FDropDownForm->OnExcludeWindowClick.Clear();
    FDropDownForm->RemoveFreeNotification(this);
    FDropDownForm = nullptr;
}

void TCustomQV7SkinComboBoxCustomDropDown::SetDropDownForm(TQV7SkinPopupForm* Value) {
    DetachForm();
    FDropDownForm = Value;
    if (!Value) return;
    using C = TCustomQV7SkinComboBoxCustomDropDown;
    Value->FreeNotification(this);
    Value->OnClose = {this, &C::DoDropDownFormClose};
    Value->OnIncludeWindowClick = {this, &C::DoDropDownFormInclude};
    Value->OnExcludeWindowClick = {this, &C::DoDropDownFormExclude};
    Value->SetShowPopupWithMargin(true);
}

void TCustomQV7SkinComboBoxCustomDropDown::Notification(TComponent* component, TOperation operation) {
    TCurvyPanel::Notification(component, operation);
    if (operation != opRemove || component != FDropDownForm) return;
    FDropDownForm = nullptr;
    if (!IsInState(csDestroying)) PutDroppedDown(false);
}

void TCustomQV7SkinComboBoxCustomDropDown::ShowForm() {
    FDropDownForm->ShowAtControl(this);
}

void TCustomQV7SkinComboBoxCustomDropDown::PutDroppedDown(bool value) {
    FDroppedDown = value;
    RepaintParts();
}

void TCustomQV7SkinComboBoxCustomDropDown::SetDroppedDown(bool Value) {
    if (Value == FDroppedDown) return;
    FDroppedDown = Value;
    if (FButton) FButton->Repaint();
    NotifyAccessible(*this, EVENT_OBJECT_STATECHANGE);
    const TLifeGuard guard(*this);
    if (Value) {
        try {
            OnDropDown(this);
            if (!guard.IsAlive() || !FDropDownForm) return;
            PrepareDropDown();
            if (guard.IsAlive() && FDropDownForm) ShowForm();
        } catch (...) {
            // Nothing dropped down, and the next click is to try again.
            if (guard.IsAlive()) PutDroppedDown(false);
            throw;
        }
    } else {
        InAnyCase(
            guard, [this] { OnCloseUp(this); },
            [this] {
                if (FDropDownForm) ::PostMessageW(FDropDownForm->GetHandle(), WM_CLOSE, 0, 0);
            });
    }
}

bool TCustomQV7SkinComboBoxCustomDropDown::IsMouseOnSelf() const {
    POINT at{};
    if (!HandleAllocated() || !::GetCursorPos(&at)) return false;
    return GetClientRect().Contains(ScreenToClient(at));
}

void TCustomQV7SkinComboBoxCustomDropDown::DoDropDownFormClose(TObject*, TCloseAction&) {
    const TLifeGuard guard(*this);
    FCloseClickedOnSelf = IsMouseOnSelf();
    InAnyCase(
        guard,
        [&] {
            if (std::exchange(FDroppedDown, false)) OnCloseUp(this);
            if (guard.IsAlive()) DropDownClosed();
        },
        [this] { RepaintParts(); });
}

void TCustomQV7SkinComboBoxCustomDropDown::DoDropDownFormInclude(TObject*) {
    PutDroppedDown(true);
    if (FDropDownForm) ShowForm();
}

void TCustomQV7SkinComboBoxCustomDropDown::DoDropDownFormExclude(TObject*) {
    PutDroppedDown(false);
}

// --- mouse and keys

bool TCustomQV7SkinComboBoxCustomDropDown::ToggleByRelease() {
    const TLifeGuard guard(*this);
    if (!FCloseClickedOnSelf) SetDroppedDown(!FDroppedDown);
    if (!guard.IsAlive()) return false;
    FCloseClickedOnSelf = false;
    return true;
}

void TCustomQV7SkinComboBoxCustomDropDown::DoButtonMouseUp(TObject*, TMouseButton, TShiftState, int, int) {
    if (!ToggleByRelease()) return;
    // A form with a border is a free window.
    if (FDroppedDown && FDropDownForm && FDropDownForm->GetShowBorder()) PutDroppedDown(false);
}

void TCustomQV7SkinComboBoxCustomDropDown::DoEditMouseUp(TObject* Sender, TMouseButton Button,
                                                         TShiftState Shift, int X, int Y) {
    DoButtonMouseUp(Sender, Button, Shift, X, Y);
}

void TCustomQV7SkinComboBoxCustomDropDown::DoBackgroundMouseUp(TObject* Sender, TMouseButton Button,
                                                               TShiftState Shift, int X, int Y) {
    DoButtonMouseUp(Sender, Button, Shift, X, Y);
}

void TCustomQV7SkinComboBoxCustomDropDown::KeyDown(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TCurvyPanel::KeyDown(key, shift);
    if (!guard.IsAlive() || !IsDropKey(key, shift)) return;
    key = 0;
    SetDroppedDown(!FDroppedDown);
}

const TMetaClass& TQV7SkinComboBoxCustomDropDown::StaticClass() {
    using C = TQV7SkinComboBoxCustomDropDown;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinComboBoxCustomDropDown", TCustomQV7SkinComboBoxCustomDropDown::StaticClass())
            .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
            .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
            .Property(L"Align", &C::GetAlign, &C::SetAlign, alNone)
            .With(AnchorsRow)
            .Property(L"Text", &C::GetText, &C::SetText)
            .Event(L"OnDropDown", &C::OnDropDown)
            .Event(L"OnCloseUp", &C::OnCloseUp);
    return meta;
}

}  // namespace qv7skin
