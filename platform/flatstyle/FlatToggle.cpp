#include "platform/flatstyle/FlatToggle.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/TextLayout.h"

namespace flatstyle {
namespace {

constexpr int SignSize = 13;
constexpr int CaptionLeft = 18;

}  // namespace

const TMetaClass& TFlatToggle::StaticClass() {
    static const TMetaClass meta = DefineClass<TFlatToggle>(L"TFlatToggle", TPushControl::StaticClass());
    return meta;
}

TFlatToggle::TFlatToggle(TComponent* AOwner) : TPushControl(AOwner) {
    SetBounds(0, 0, 121, 17);
}

void TFlatToggle::SetColors(int Index, TColor Value) {
    if (FColors.Set(Index, Value)) Invalidate();
}

void TFlatToggle::SetChecked(bool Value) {
    if (Value == FChecked) return;
    const TLifeGuard guard(*this);
    Check(Value);
    if (guard.IsAlive() && !IsInState(csLoading)) TPushControl::Click();
}

void TFlatToggle::Check(bool value) {
    if (value == FChecked) return;
    FChecked = value;
    Invalidate();
    const TLifeGuard guard(*this);
    NotifyAccessible(*this, EVENT_OBJECT_STATECHANGE);
    if (guard.IsAlive()) CheckedChanged();
}

void TFlatToggle::Click() {
    const bool checked = CheckedAfterClick();
    if (checked == FChecked)
        TPushControl::Click();
    else
        SetChecked(checked);
}

TAccessibleFacts TFlatToggle::GetAccessibleFacts() const {
    TAccessibleFacts facts;
    facts.Name = StripHotkey(GetCaption());
    facts.Role = AccessibleRole();
    facts.State = GetChecked() ? STATE_SYSTEM_CHECKED : 0;
    if (GetPushState() == pshPressed) facts.State |= STATE_SYSTEM_PRESSED;
    facts.Action = CheckedAfterClick() ? L"Check" : L"Uncheck";
    return facts;
}

void TFlatToggle::Dispatch(TMessage& message) {
    if (AnswerGetObject(*this, *this, message)) return;
    // Enter is for the form's default button.
    const bool isEnter = message.CharCode() == VK_RETURN;
    if (isEnter && (message.Msg == CM_DIALOGKEY || message.Msg == CM_CHILDKEY))
        return TCustomControl::Dispatch(message);
    if (message.Msg == WM_GETDLGCODE) {
        TCustomControl::Dispatch(message);
        message.Result |= DLGC_BUTTON;
        return;
    }
    TPushControl::Dispatch(message);
}

TRect TFlatToggle::SignRect() const {
    return TRect::OfSize(0, (GetClientHeight() - SignSize) / 2, SignSize, SignSize);
}

TColor TFlatToggle::SignGround() const {
    switch (GetPushState()) {
        case pshPressed:
            return GetColors(DownColorIndex);
        case pshHot:
            return GetColors(FocusedColorIndex);
        default:
            return IsFocusShown() ? GetColors(FocusedColorIndex) : clWindow;
    }
}

TColor TFlatToggle::SignColor() const {
    return GetEnabled() ? GetColors(CheckColorIndex) : clGrayText;
}

void TFlatToggle::Paint() {
    DrawSign();
    DrawCaption();
}

void TFlatToggle::DrawCaption() {
    const String caption = GetCaption();
    if (caption.empty()) return;
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    if (!GetEnabled()) canvas.GetFont().SetColor(clGrayText);
    canvas.GetBrush().SetStyle(bsClear);
    TRect rect = GetClientRect();
    rect.Left = CaptionLeft;
    canvas.TextRect(rect, caption, DT_SINGLELINE | DT_VCENTER | DT_LEFT);
    if (!IsFocusShown()) return;
    const TSize size = MeasureText(canvas, caption, DT_SINGLELINE);
    const int top = (GetClientHeight() - size.Height) / 2;
    canvas.DrawFocusRect({CaptionLeft - 2, top - 1, CaptionLeft + size.Width + 2, top + size.Height + 1});
}

}  // namespace flatstyle
