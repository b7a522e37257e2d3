#include "inputs/UnitQV7SkinSpinEdit.h"

#include <algorithm>

#include "inputs/InputColors.h"
#include "inputs/InputNumbers.h"
#include "platform/tms/CurvyRows.h"
#include "platform/vcl/controls/PublishedRows.h"

namespace qv7skin {
namespace {

/// The place of the inner control in the frame.
constexpr int EditTop = 3;
constexpr int EditLeft = 4;
constexpr int EditRight = 2;

}  // namespace

const TMetaClass& TCustomQV7SkinSpinEdit::StaticClass() {
    using C = TCustomQV7SkinSpinEdit;
    static const TMetaClass meta =
        DefineClass<C>(L"TCustomQV7SkinSpinEdit", TCurvyPanel::StaticClass())
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .NotStored()
            .Property(L"Rounding", &C::GetRounding, &C::SetRounding, InputRounding);
    return meta;
}

TCustomQV7SkinSpinEdit::TCustomQV7SkinSpinEdit(TComponent* AOwner) : TCurvyPanel(AOwner) {
    SetRounding(InputRounding);
    ControlStyle.Exclude(csAcceptsControls);
    // A name is no number.
    ControlStyle.Exclude(csSetCaption);
}

TCustomQV7SkinSpinEdit::~TCustomQV7SkinSpinEdit() {
    delete std::exchange(FEdit, nullptr);
}

void TCustomQV7SkinSpinEdit::Loaded() {
    TCurvyPanel::Loaded();
    CreateEdit();
}

void TCustomQV7SkinSpinEdit::CreateEdit() {
    if (FEdit || IsInState(csDesigning)) return;
    auto* inner = new TFlatSpinEditInteger(this);
    inner->SetParent(this);
    for (const int index : {TFlatSpinEditInteger::FocusedColorIndex, TFlatSpinEditInteger::BorderColorIndex,
                            TFlatSpinEditInteger::FlatColorIndex})
        inner->SetColors(index, InputGround);
    inner->GetFont().SetColor(InputText);
    inner->SetEnabled(GetEnabled());
    inner->SetMinValue(FMinValue);
    inner->SetMaxValue(FMaxValue);
    inner->SetIncrement(FIncrement);
    inner->SetBounds(EditLeft, EditTop, GetWidth() - EditLeft - EditRight, inner->GetHeight());
    SetHeight(std::max(InputMinHeight, inner->GetHeight() + inner->GetTop()));
    inner->SetAnchors({akLeft, akTop, akRight});
    inner->SetText(GetCaption());
    inner->OnClick = {this, &TCustomQV7SkinSpinEdit::DoClick};
    inner->OnChange = {this, &TCustomQV7SkinSpinEdit::DoChange};
    inner->OnKeyPress = {this, &TCustomQV7SkinSpinEdit::DoKeyPress};
    FEdit = inner;
    // The least height counts from now on, whatever the greatest one is.
    SetHeight(GetHeight());
}

int TCustomQV7SkinSpinEdit::GetValue() const {
    return FEdit ? FEdit->GetValue() : IntegerOfText(GetCaption());
}

void TCustomQV7SkinSpinEdit::SetValue(int Value) {
    if (FEdit)
        FEdit->SetValue(Value);
    else
        SetCaption(IntToStr(Value));
}

void TCustomQV7SkinSpinEdit::SetMinValue(int Value) {
    FMinValue = Value;
    if (FEdit) FEdit->SetMinValue(Value);
}

void TCustomQV7SkinSpinEdit::SetMaxValue(int Value) {
    FMaxValue = Value;
    if (FEdit) FEdit->SetMaxValue(Value);
}

void TCustomQV7SkinSpinEdit::SetIncrement(int Value) {
    FIncrement = Value;
    if (FEdit) FEdit->SetIncrement(Value);
}

void TCustomQV7SkinSpinEdit::ConstrainedResize(int& minWidth, int& minHeight, int& maxWidth, int& maxHeight) {
    TCurvyPanel::ConstrainedResize(minWidth, minHeight, maxWidth, maxHeight);
    if (FEdit) minHeight = std::max(minHeight, InputMinHeight);
}

void TCustomQV7SkinSpinEdit::SelectAll() {
    if (FEdit) FEdit->SelectAll();
}

void TCustomQV7SkinSpinEdit::Clear() {
    if (FEdit) FEdit->Clear();
}

void TCustomQV7SkinSpinEdit::SetFocus() {
    if (FEdit)
        FEdit->SetFocus();
    else
        TCurvyPanel::SetFocus();
}

void TCustomQV7SkinSpinEdit::SetEnabled(bool Value) {
    const TLifeGuard guard(*this);
    TCurvyPanel::SetEnabled(Value);
    if (!guard.IsAlive() || !FEdit) return;
    FEdit->SetEnabled(Value);
    if (guard.IsAlive()) FEdit->GetFont().SetColor(InputTextColor(Value));
}

void TCustomQV7SkinSpinEdit::DoChange(TObject*) {
    OnChange(this);
}

void TCustomQV7SkinSpinEdit::DoClick(TObject*) {
    OnClick(this);
}

void TCustomQV7SkinSpinEdit::DoKeyPress(TObject*, wchar_t& Key) {
    OnKeyPress(this, Key);
}

const TMetaClass& TQV7SkinSpinEdit::StaticClass() {
    using C = TQV7SkinSpinEdit;
    static const TMetaClass meta = DefineClass<C>(L"TQV7SkinSpinEdit", TCustomQV7SkinSpinEdit::StaticClass())
                                       .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
                                       .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
                                       .With(AnchorsRow)
                                       .Property(L"Increment", &C::GetIncrement, &C::SetIncrement, 1)
                                       .Property(L"MaxValue", &C::GetMaxValue, &C::SetMaxValue)
                                       .Property(L"MinValue", &C::GetMinValue, &C::SetMinValue)
                                       .Property(L"Value", &C::GetValue, &C::SetValue)
                                       .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
                                       .Event(L"OnChange", &C::OnChange)
                                       .Event(L"OnClick", &C::OnClick)
                                       .Event(L"OnKeyPress", &C::OnKeyPress);
    return meta;
}

}  // namespace qv7skin
