#include "inputs/UnitQV7SkinTreeComboBox.h"

#include <algorithm>

#include "inputs/DropButton.h"
#include "inputs/InputColors.h"
#include "platform/vcl/controls/InnerEditor.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"

namespace qv7skin {
namespace {

constexpr int InnerLeft = 2;
constexpr int InnerTop = 2;
constexpr int InnerFontSize = 8;

}  // namespace

// --- the inner control

const TMetaClass& TOwnAdvTreeComboBoxExCustomButtonPaint::StaticClass() {
    static const TMetaClass meta = DefineClass<TOwnAdvTreeComboBoxExCustomButtonPaint>(
        L"TOwnAdvTreeComboBoxExCustomButtonPaint", TOwnAdvTreeComboBoxEx::StaticClass());
    return meta;
}

TOwnAdvTreeComboBoxExCustomButtonPaint::TOwnAdvTreeComboBoxExCustomButtonPaint(TComponent* AOwner)
    : TOwnAdvTreeComboBoxEx(AOwner) {}

void TOwnAdvTreeComboBoxExCustomButtonPaint::PaintButton() {
    const TRect rect = GetButtonRect();
    TDropButtonLook look{GetColors(FaceColorIndex), GetColors(BorderColorIndex), GetColors(ArrowColorIndex),
                         GetEnabled(), GetDroppedDown()};
    if (look.Face == look.Border) look.LineBottom = rect.Bottom;
    DrawDropButton(GetCanvas(), rect, look);
}

// --- the frame

/// The rows stand here, since the class for forms adds nothing.
const TMetaClass& TCustomQV7SkinTreeComboBox::StaticClass() {
    using C = TCustomQV7SkinTreeComboBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TCustomQV7SkinTreeComboBox", TCustomQV7SkinContainer::StaticClass())
            .With(AnchorsRow)
            .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
            .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
            .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
            .Property(L"Visible", &C::GetVisible, &C::SetVisible, true)
            .Property(L"Items", &C::GetItems, &C::SetItems)
            .Property(L"Sorted", &C::GetSorted, &C::SetSorted, false)
            .Property(L"Style", &C::GetStyle, &C::SetStyle, csDropDown)
            .Property(L"ItemIndex", &C::GetItemIndex, &C::SetItemIndex, -1)
            .Property(L"Text", &C::GetText, &C::SetText)
            .Property(L"WhiteBackground", &C::GetWhiteBackground, &C::SetWhiteBackground, false)
            .Event(L"OnChange", &C::OnChange)
            .Event(L"OnClick", &C::OnClick)
            .Event(L"OnDropUp", &C::OnDropUp)
            .Event(L"OnKeyPress", &C::OnKeyPress)
            .Event(L"OnTreeExpanding", &C::OnTreeExpanding);
    return meta;
}

TCustomQV7SkinTreeComboBox::TCustomQV7SkinTreeComboBox(TComponent* AOwner)
    : TCustomQV7SkinContainer(AOwner), FItems(std::make_unique<TStringList>()) {
    FItems->Duplicates = dupAccept;
    SetParentFont(true);
    ControlStyle.Exclude(csAcceptsControls);
    FIsWhole = true;
}

TCustomQV7SkinTreeComboBox::~TCustomQV7SkinTreeComboBox() {
    FIsWhole = false;
    delete std::exchange(FComboBox, nullptr);
}

void TCustomQV7SkinTreeComboBox::Loaded() {
    TCustomQV7SkinContainer::Loaded();
    CreateComboBox();
}

void TCustomQV7SkinTreeComboBox::CreateWnd() {
    CreateComboBox();
    TCustomQV7SkinContainer::CreateWnd();
}

void TCustomQV7SkinTreeComboBox::CreateComboBox() {
    if (FComboBox || IsInState(csDesigning)) return;
    auto* inner = new TOwnAdvTreeComboBoxExCustomButtonPaint(nullptr);
    FComboBox = inner;
    inner->SetParent(this);
    inner->SetParentFont(true);
    inner->GetFont().SetName(L"Tahoma");
    inner->GetFont().SetSize(InnerFontSize);
    inner->SetColor(InputGround);
    inner->SetColors(TOwnAdvTreeComboBoxEx::BorderColorIndex, InputGround);
    inner->SetColors(TOwnAdvTreeComboBoxEx::FaceColorIndex, InputGround);
    inner->SetEnabled(GetEnabled());
    inner->GetFont().SetColor(InputTextColor(GetEnabled()));
    inner->SetBounds(InnerLeft, InnerTop, GetWidth() - InnerLeft, inner->GetHeight());
    SetHeight(std::max(InputMinHeight, inner->GetHeight() + 1));
    inner->SetAnchors({akLeft, akTop, akRight});
    inner->SetItems(*FItems);
    inner->SetSorted(FSorted);
    inner->SetText(TCustomQV7SkinContainer::GetTextBuf());
    inner->SetStyle(FStyle);
    if (FItemIndex >= 0) inner->SetItemIndex(FItemIndex);
    using C = TCustomQV7SkinTreeComboBox;
    inner->OnChange = {this, &C::DoChange};
    inner->OnClick = {this, &C::DoClick};
    inner->OnKeyPress = {this, &C::DoKeyPress};
    inner->OnTreeExpanding = {this, &C::DoTreeExpanding};
    inner->OnDropUp = {this, &C::DoDropUp};
}

TOwnAdvTreeComboBoxExCustomButtonPaint* TCustomQV7SkinTreeComboBox::GetComboBox() const {
    if (!FComboBox && FIsWhole) const_cast<TCustomQV7SkinTreeComboBox*>(this)->CreateComboBox();
    return FComboBox;
}

TOwnAdvTreeComboBoxExCustomButtonPaint& TCustomQV7SkinTreeComboBox::NeedComboBox() const {
    if (!GetComboBox()) throw EInvalidOperation(String(ClassName()) + L" has no inner control yet");
    return *FComboBox;
}

// --- properties: the inner control's, or the frame's own as long as there is none

String TCustomQV7SkinTreeComboBox::GetTextBuf() const {
    return GetComboBox() ? FComboBox->GetText() : TCustomQV7SkinContainer::GetTextBuf();
}

void TCustomQV7SkinTreeComboBox::SetTextBuf(const String& value) {
    if (GetComboBox())
        FComboBox->SetText(value);
    else
        TCustomQV7SkinContainer::SetTextBuf(value);
}

TComboBoxStyle TCustomQV7SkinTreeComboBox::GetStyle() const {
    return GetComboBox() ? FComboBox->GetStyle() : FStyle;
}

void TCustomQV7SkinTreeComboBox::SetStyle(TComboBoxStyle Value) {
    FStyle = Value;
    if (GetComboBox()) FComboBox->SetStyle(Value);
}

int TCustomQV7SkinTreeComboBox::GetItemIndex() const {
    return GetComboBox() ? FComboBox->GetItemIndex() : FItemIndex;
}

void TCustomQV7SkinTreeComboBox::SetItemIndex(int Value) {
    if (GetComboBox()) FComboBox->SetItemIndex(Value);
    FItemIndex = Value;
}

TStrings& TCustomQV7SkinTreeComboBox::GetItems() const {
    if (GetComboBox()) return FComboBox->GetItems();
    return *FItems;
}

void TCustomQV7SkinTreeComboBox::SetItems(const TStrings& Value) {
    if (GetComboBox()) FComboBox->SetItems(Value);
    FItems->Assign(&Value);
}

bool TCustomQV7SkinTreeComboBox::GetSorted() const {
    return GetComboBox() ? FComboBox->GetSorted() : FSorted;
}

void TCustomQV7SkinTreeComboBox::SetSorted(bool Value) {
    if (GetComboBox()) FComboBox->SetSorted(Value);
    FSorted = Value;
}

int TCustomQV7SkinTreeComboBox::GetDropDownCount() const {
    return NeedComboBox().GetDropDownCount();
}

void TCustomQV7SkinTreeComboBox::SetDropDownCount(int Value) {
    NeedComboBox().SetDropDownCount(Value);
}

TTreeNode* TCustomQV7SkinTreeComboBox::GetSelected() const {
    return GetComboBox() ? FComboBox->GetSelected() : nullptr;
}

TTreeNodes& TCustomQV7SkinTreeComboBox::GetTreeItems() const {
    return NeedComboBox().GetTreeItems();
}

void TCustomQV7SkinTreeComboBox::SetNewText(const String& Value) {
    if (GetComboBox()) FComboBox->SetNewText(Value);
}

void TCustomQV7SkinTreeComboBox::SelectAll() {
    if (GetComboBox()) FComboBox->SelectAll();
}

void TCustomQV7SkinTreeComboBox::SetFocus() {
    const TLifeGuard guard(*this);
    TCustomQV7SkinContainer::SetFocus();
    if (guard.IsAlive() && GetComboBox()) HandFocusIn(*this, *FComboBox);
}

void TCustomQV7SkinTreeComboBox::SetEnabled(bool Value) {
    const TLifeGuard guard(*this);
    TCustomQV7SkinContainer::SetEnabled(Value);
    if (!guard.IsAlive() || !FComboBox) return;
    FComboBox->SetEnabled(Value);
    if (guard.IsAlive()) FComboBox->GetFont().SetColor(InputTextColor(Value));
}

// --- events

void TCustomQV7SkinTreeComboBox::DoChange(TObject*) {
    OnChange(this);
}

void TCustomQV7SkinTreeComboBox::DoClick(TObject*) {
    OnClick(this);
}

void TCustomQV7SkinTreeComboBox::DoKeyPress(TObject*, wchar_t& Key) {
    OnKeyPress(this, Key);
}

void TCustomQV7SkinTreeComboBox::DoTreeExpanding(TObject* Sender, TTreeNode* Node, bool& AllowExpansion) {
    OnTreeExpanding(Sender, Node, AllowExpansion);
}

void TCustomQV7SkinTreeComboBox::DoDropUp(TObject* Sender, bool Cancelled) {
    OnDropUp(Sender, Cancelled);
}

const TMetaClass& TQV7SkinTreeComboBox::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7SkinTreeComboBox>(L"TQV7SkinTreeComboBox", TCustomQV7SkinTreeComboBox::StaticClass());
    return meta;
}

}  // namespace qv7skin
