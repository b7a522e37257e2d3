#include "inputs/UnitQV7SkinComboBox.h"

#include <algorithm>
#include <cmath>

#include "inputs/DropButton.h"
#include "inputs/InputColors.h"
#include "inputs/InputNumbers.h"
#include "platform/tms/CurvyRows.h"
#include "platform/vcl/controls/InnerEditor.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {
namespace {

constexpr int DropButtonWidth = 15;
/// Pixels between the frame's edge and the inner control.
constexpr int Inset = 3;
constexpr int InsetOfList = 2;
/// Where the inner control stands out of sight while it is being set up.
constexpr int OutOfSight = -200;
constexpr int SkinDropDownCount = 14;

/// A number as text: at most 15 digits, and an exponent without leading zeros for what is very large or
/// small.
String NumberText(double value) {
    String text = UpperCase(Format(L"%.15g", value));
    const std::size_t exponent = text.find(L'E');
    if (exponent == String::npos || !std::isfinite(value)) return text;
    return text.substr(0, exponent + 1) + IntToStr(StrToIntDef(text.substr(exponent + 1), 0));
}

}  // namespace

// --- the inner control

const TMetaClass& TFlatComboBoxExt::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TFlatComboBoxExt>(L"TFlatComboBoxExt", TFlatComboBox::StaticClass());
    return meta;
}

TFlatComboBoxExt::TFlatComboBoxExt(TComponent* AOwner) : TFlatComboBox(AOwner) {
    SetButtonWidth(DropButtonWidth);
    SetParentBackground(false);
    SetParentDoubleBuffered(false);
    SetDoubleBuffered(true);
}

void TFlatComboBoxExt::SetDrawButtonLine(bool Value) {
    if (Value == FDrawButtonLine) return;
    FDrawButtonLine = Value;
    Invalidate();
}

void TFlatComboBoxExt::PaintButton() {
    TCanvas& canvas = GetCanvas();
    const TRect rect = GetButtonRect();
    TDropButtonLook look{GetColorArrowBackground(), GetColorBorder(), GetColorArrow(), GetEnabled(),
                         IsShownOpen()};
    if (FDrawButtonLine && look.Face == look.Border) look.LineBottom = rect.Bottom - 1;
    DrawDropButton(canvas, rect, look);
    // What is painted later leaves the button alone.
    const int width = GetClientWidth();
    ::ExcludeClipRect(canvas.GetHandle(), width - GetButtonWidth(), 0, width, GetClientHeight());
}

// --- the frame

const TMetaClass& TCustomQV7SkinComboBox::StaticClass() {
    using C = TCustomQV7SkinComboBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TCustomQV7SkinComboBox", TCurvyPanel::StaticClass())
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .NotStored()
            .Property(L"Rounding", &C::GetRounding, &C::SetRounding, InputRounding);
    return meta;
}

TCustomQV7SkinComboBox::TCustomQV7SkinComboBox(TComponent* AOwner)
    : TCurvyPanel(AOwner), FItems(std::make_unique<TStringList>()) {
    FItems->Duplicates = dupAccept;
    SetRounding(InputRounding);
    ControlStyle.Exclude(csAcceptsControls);
}

TCustomQV7SkinComboBox::~TCustomQV7SkinComboBox() {
    delete std::exchange(FComboBox, nullptr);
}

void TCustomQV7SkinComboBox::Loaded() {
    TCurvyPanel::Loaded();
    CreateComboBox();
}

void TCustomQV7SkinComboBox::CreateComboBox() {
    if (FComboBox || IsInState(csDesigning)) return;
    const String text = GetCaption();
    auto* inner = new TFlatComboBoxExt(this);
    inner->SetParent(this);
    inner->SetColor(InputGround);
    inner->SetColors(TFlatComboBox::FaceColorIndex, InputGround);
    inner->SetColors(TFlatComboBox::BorderColorIndex, InputGround);
    inner->SetEnabled(GetEnabled());
    inner->GetFont().SetColor(InputTextColor(GetEnabled()));
    inner->SetBounds(Inset, OutOfSight, GetWidth() - 2 * Inset, inner->GetHeight());
    SetHeight(std::max(InputMinHeight, inner->GetHeight()));
    inner->SetAnchors({akLeft, akTop, akRight});
    inner->SetDropDownCount(SkinDropDownCount);
    inner->SetText(text);
    inner->SetStyle(FStyle);
    inner->SetItems(*FItems);
    if (FItemIndex >= 0) inner->SetItemIndex(FItemIndex);
    inner->SetSorted(FSorted);
    inner->OnChange = {this, &TCustomQV7SkinComboBox::DoChange};
    inner->OnClick = {this, &TCustomQV7SkinComboBox::DoClick};
    inner->OnKeyPress = {this, &TCustomQV7SkinComboBox::DoKeyPress};
    FComboBox = inner;
    // The least height counts from now on, whatever the greatest one is.
    SetHeight(GetHeight());
    AdjustComboBoxTopForCurrentStyle();
}

void TCustomQV7SkinComboBox::ConstrainedResize(int& minWidth, int& minHeight, int& maxWidth, int& maxHeight) {
    TCurvyPanel::ConstrainedResize(minWidth, minHeight, maxWidth, maxHeight);
    if (FComboBox) minHeight = std::max(minHeight, InputMinHeight);
}

void TCustomQV7SkinComboBox::AdjustComboBoxTopForCurrentStyle() {
    if (FComboBox) FComboBox->SetTop(FComboBox->GetStyle() == csDropDownList ? InsetOfList : Inset);
}

TFlatComboBoxExt& TCustomQV7SkinComboBox::NeedComboBox() const {
    if (!FComboBox) throw EInvalidOperation(String(ClassName()) + L" has no inner control yet");
    return *FComboBox;
}

// --- properties: the inner control's, or the frame's own as long as there is none

String TCustomQV7SkinComboBox::GetTextBuf() const {
    return FComboBox ? FComboBox->GetText() : TCurvyPanel::GetTextBuf();
}

void TCustomQV7SkinComboBox::SetTextBuf(const String& value) {
    if (FComboBox)
        FComboBox->SetText(value);
    else
        TCurvyPanel::SetTextBuf(value);
}

TComboBoxStyle TCustomQV7SkinComboBox::GetStyle() const {
    return FComboBox ? FComboBox->GetStyle() : FStyle;
}

void TCustomQV7SkinComboBox::SetStyle(TComboBoxStyle Value) {
    FStyle = Value;
    if (!FComboBox) return;
    FComboBox->SetStyle(Value);
    AdjustComboBoxTopForCurrentStyle();
}

int TCustomQV7SkinComboBox::GetItemIndex() const {
    return FComboBox ? FComboBox->GetItemIndex() : FItemIndex;
}

void TCustomQV7SkinComboBox::SetItemIndex(int Value) {
    if (FComboBox) FComboBox->SetItemIndex(Value);
    FItemIndex = Value;
}

TStrings& TCustomQV7SkinComboBox::GetItems() const {
    return FComboBox ? FComboBox->GetItems() : *FItems;
}

void TCustomQV7SkinComboBox::SetItems(const TStrings& Value) {
    if (FComboBox) FComboBox->SetItems(Value);
    FItems->Assign(&Value);
}

bool TCustomQV7SkinComboBox::GetSorted() const {
    return FComboBox ? FComboBox->GetSorted() : FSorted;
}

void TCustomQV7SkinComboBox::SetSorted(bool Value) {
    if (FComboBox) FComboBox->SetSorted(Value);
    FSorted = Value;
}

int TCustomQV7SkinComboBox::GetDropDownCount() const {
    return NeedComboBox().GetDropDownCount();
}

void TCustomQV7SkinComboBox::SetDropDownCount(int Value) {
    NeedComboBox().SetDropDownCount(Value);
}

void TCustomQV7SkinComboBox::SelectAll() {
    if (FComboBox) FComboBox->SelectAll();
}

void TCustomQV7SkinComboBox::SetFocus() {
    const TLifeGuard guard(*this);
    TCurvyPanel::SetFocus();
    if (guard.IsAlive() && FComboBox) HandFocusIn(*this, *FComboBox);
}

void TCustomQV7SkinComboBox::SetEnabled(bool Value) {
    const TLifeGuard guard(*this);
    TCurvyPanel::SetEnabled(Value);
    if (!guard.IsAlive() || !FComboBox) return;
    FComboBox->SetEnabled(Value);
    if (guard.IsAlive()) FComboBox->GetFont().SetColor(InputTextColor(Value));
}

// --- choosing by number

int TCustomQV7SkinComboBox::IndexOfText(const String& text) const {
    const TStrings& items = GetItems();
    for (int i = 0; i < items.GetCount(); ++i)
        if (items.Get(i) == text) return i;
    return -1;
}

void TCustomQV7SkinComboBox::SetValue(double Value) {
    const String text = NumberText(Value);
    SetItemIndex(IndexOfText(text));
    if (GetItemIndex() == -1) SetText(text);
}

void TCustomQV7SkinComboBox::SetNearestIndexForValue(int Value, int DefaultIndex) {
    SetItemIndex(IndexOfText(IntToStr(Value)));
    if (GetItemIndex() > -1) return;
    const TStrings& items = GetItems();
    for (int i = items.GetCount() - 1; i >= 0; --i)
        if (IntegerOfText(items.Get(i)) <= Value) return SetItemIndex(i);
    SetItemIndex(DefaultIndex);
}

// --- events

void TCustomQV7SkinComboBox::DoChange(TObject*) {
    OnChange(this);
}

void TCustomQV7SkinComboBox::DoClick(TObject*) {
    OnClick(this);
}

void TCustomQV7SkinComboBox::DoKeyPress(TObject*, wchar_t& Key) {
    OnKeyPress(this, Key);
}

const TMetaClass& TQV7SkinComboBox::StaticClass() {
    using C = TQV7SkinComboBox;
    static const TMetaClass meta = DefineClass<C>(L"TQV7SkinComboBox", TCustomQV7SkinComboBox::StaticClass())
                                       .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
                                       .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
                                       .With(AnchorsRow)
                                       .Property(L"Items", &C::GetItems, &C::SetItems)
                                       .Property(L"ItemIndex", &C::GetItemIndex, &C::SetItemIndex)
                                       .Property(L"Sorted", &C::GetSorted, &C::SetSorted)
                                       .Property(L"Text", &C::GetText, &C::SetText)
                                       .Property(L"Style", &C::GetStyle, &C::SetStyle)
                                       .Event(L"OnChange", &C::OnChange)
                                       .Event(L"OnClick", &C::OnClick)
                                       .Event(L"OnKeyPress", &C::OnKeyPress);
    return meta;
}

}  // namespace qv7skin
