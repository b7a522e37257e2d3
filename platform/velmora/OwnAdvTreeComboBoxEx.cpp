#include "platform/velmora/OwnAdvTreeComboBoxEx.h"

#include <algorithm>

#include "platform/vcl/controls/InnerEditor.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/ScopedValue.h"
#include "platform/vcl/graphics/Arrows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/velmora/TreeComboItems.h"
#include "platform/velmora/TreeDropDown.h"

namespace velmora {
namespace {

/// Pixels between the edge and the text.
constexpr int TextMargin = 3;
constexpr int ArrowSize = 2;

}  // namespace

/// The editor inside: without editing it is a place to press.
class TOwnAdvTreeComboBoxEx::TInnerEdit final : public TEdit {
public:
    explicit TInnerEdit(TOwnAdvTreeComboBoxEx& box) : TEdit(nullptr), FBox(box) {}

protected:
    void Dispatch(TMessage& message) override {
        if (message.Msg == WM_MOUSEWHEEL) {
            // An editor of the system keeps the wheel for itself, even with a single line.
            message.Result = FBox.Perform(WM_MOUSEWHEEL, message.WParam, message.LParam);
            return;
        }
        if (FBox.HasEditor()) return TEdit::Dispatch(message);
        switch (message.Msg) {
            case WM_LBUTTONDOWN:
            case WM_LBUTTONDBLCLK:
                return FBox.PressedByUser();
            case WM_SETFOCUS: {
                const TLifeGuard guard(*this);
                TEdit::Dispatch(message);
                if (guard.IsAlive() && HandleAllocated()) ::HideCaret(WindowHandle());
                return;
            }
            default:
                TEdit::Dispatch(message);
        }
    }

private:
    TOwnAdvTreeComboBoxEx& FBox;
};

const TMetaClass& TOwnAdvTreeComboBoxEx::StaticClass() {
    using C = TOwnAdvTreeComboBoxEx;
    static const TMetaClass meta =
        DefineClass<C>(L"TOwnAdvTreeComboBoxEx", TCustomControl::StaticClass())
            .With(PlacementRows)
            .With(WindowColorRows)
            .With(FontRows)
            .With(StateRows)
            .With(TabRows)
            .Property(L"Style", &C::GetStyle, &C::SetStyle, csDropDown)
            .Property(L"DropDownCount", &C::GetDropDownCount, &C::SetDropDownCount, 8)
            .Property(L"Items", &C::GetItems, &C::SetItems)
            .Property(L"Sorted", &C::GetSorted, &C::SetSorted, false)
            .Property(L"ItemIndex", &C::GetItemIndex, &C::SetItemIndex, -1)
            .Property(L"Text", &C::GetText, &C::SetText)
            .With(MouseRows)
            .With(KeyRows)
            .Event(L"OnChange", &C::OnChange)
            .Event(L"OnDropDown", &C::OnDropDown)
            .Event(L"OnDropUp", &C::OnDropUp)
            .Event(L"OnTreeExpanding", &C::OnTreeExpanding);
    return meta;
}

TOwnAdvTreeComboBoxEx::TOwnAdvTreeComboBoxEx(TComponent* AOwner)
    : TCustomControl(AOwner),
      FEdit(new TInnerEdit(*this)),
      FDropDown(new TTreeDropDown),
      FItems(std::make_unique<TTreeComboItems>(FDropDown->GetTree().GetItems())) {
    // The tree takes the mouse over while it is still pressed.
    ControlStyle = ControlStyle + TControlStyle{csSetCaption, csOpaque, csFixedHeight};
    ControlStyle = ControlStyle - TControlStyle{csCaptureMouse, csClickEvents};
    SetBounds(0, 0, 145, 21);
    SetColor(clWindow);
    SetTabStop(true);
    SetDoubleBuffered(true);
    FDropDown->SetLineColor(FColors[DropDownLineColorIndex]);
    ConnectEditor();
    ConnectTree();
    PlaceEditor();
}

TOwnAdvTreeComboBoxEx::~TOwnAdvTreeComboBoxEx() {
    FQuiet = true;
    TCustomTreeView& tree = FDropDown->GetTree();
    tree.OnExpanding.Clear();
    tree.OnChange.Clear();
    tree.OnNodeChanged.Clear();
    FItems.reset();
    FDropDown->FreeWhenIdle();
    delete FEdit;
}

void TOwnAdvTreeComboBoxEx::ConnectEditor() {
    FEdit->SetBorderStyle(bsNone);
    FEdit->SetAutoSize(false);
    // The combo box is the stop of the Tab key and passes the focus on.
    FEdit->SetTabStop(false);
    FEdit->SetParentFont(true);
    FEdit->SetParentColor(true);
    FEdit->SetParent(this);
    FEdit->OnChange = [this](TObject*) { EditorChanged(); };
    FEdit->OnDblClick = [this](TObject*) { DblClick(); };
    FEdit->OnKeyDown = [this](TObject*, WORD& key, TShiftState shift) { KeyDown(key, shift); };
    FEdit->OnKeyPress = [this](TObject*, wchar_t& key) { KeyPress(key); };
    FEdit->OnKeyUp = [this](TObject*, WORD& key, TShiftState shift) { KeyUp(key, shift); };
}

void TOwnAdvTreeComboBoxEx::ConnectTree() {
    FDropDown->OnDone = [this](bool cancelled) { Done(cancelled); };
    FDropDown->OnTab = [this](bool forward) {
        if (TParentForm* form = GetParentForm(this)) form->FormControl().SelectNext(this, forward, true);
    };
    TCustomTreeView& tree = FDropDown->GetTree();
    tree.OnExpanding = [this](TObject*, TTreeNode* node, bool& allowed) { allowed = TreeExpanding(*node); };
    tree.OnChange = [this](TObject*, TTreeNode* node) { NodeSelected(node); };
    tree.OnNodeChanged = [this](TObject*, TTreeNode* node) { NodeChanged(*node); };
}

TCustomTreeView& TOwnAdvTreeComboBoxEx::GetTree() const {
    return FDropDown->GetTree();
}

TEdit& TOwnAdvTreeComboBoxEx::GetEdit() const {
    return *FEdit;
}

TTreeNodes& TOwnAdvTreeComboBoxEx::GetTreeItems() const {
    return FDropDown->GetTree().GetItems();
}

// --- properties

TStrings& TOwnAdvTreeComboBoxEx::GetItems() const {
    return *FItems;
}

void TOwnAdvTreeComboBoxEx::SetItems(const TStrings& value) {
    FItems->Assign(&value);
}

int TOwnAdvTreeComboBoxEx::GetItemIndex() const {
    const TTreeNode* node = GetSelected();
    return node ? node->GetAbsoluteIndex() : -1;
}

void TOwnAdvTreeComboBoxEx::SetItemIndex(int value) {
    TTreeNodes& nodes = GetTreeItems();
    SetSelected(value >= 0 && value < nodes.GetCount() ? nodes.GetItem(value) : nullptr);
}

void TOwnAdvTreeComboBoxEx::SetStyle(TComboBoxStyle value) {
    if (value == FStyle) return;
    FStyle = value;
    FEdit->SetReadOnly(!HasEditor());
    FEdit->SetCursor(HasEditor() ? crDefault : crArrow);
    if (const TTreeNode* node = GetSelected(); !HasEditor()) PutText(node ? node->GetText() : String());
}

TColor TOwnAdvTreeComboBoxEx::GetColors(int index) const {
    if (index < 0 || index >= static_cast<int>(FColors.size()))
        throw EListError(Format(L"List index out of bounds (%d)", index));
    return FColors[static_cast<std::size_t>(index)];
}

void TOwnAdvTreeComboBoxEx::SetColors(int index, TColor value) {
    if (value == GetColors(index)) return;
    FColors[static_cast<std::size_t>(index)] = value;
    FDropDown->SetLineColor(FColors[DropDownLineColorIndex]);
    Invalidate();
}

void TOwnAdvTreeComboBoxEx::SetButtonWidth(int value) {
    if (value == FButtonWidth) return;
    FButtonWidth = value;
    PlaceEditor();
    Invalidate();
}

void TOwnAdvTreeComboBoxEx::SetEnabled(bool value) {
    const TLifeGuard guard(*this);
    TCustomControl::SetEnabled(value);
    if (guard.IsAlive()) FEdit->SetEnabled(value);
    if (guard.IsAlive()) Invalidate();
}

// --- text and choice

String TOwnAdvTreeComboBoxEx::GetTextBuf() const {
    return FEdit->GetText();
}

/// Without an editor the text is always that of a node.
void TOwnAdvTreeComboBoxEx::SetTextBuf(const String& value) {
    if (HasEditor())
        PutText(value);
    else if (TTreeNode* node = FindText(value))
        SetSelected(node);
}

void TOwnAdvTreeComboBoxEx::PutText(const String& text) {
    const TScopedValue quiet(FQuiet, true);
    FEdit->SetText(text);
    if (!HasEditor() && FEdit->Focused()) FEdit->SelectAll();
}

TTreeNode* TOwnAdvTreeComboBoxEx::FindText(StringView text) const {
    for (TTreeNode* node = GetTreeItems().GetFirstNode(); node; node = node->GetNext())
        if (CompareText(node->GetText(), text) == 0) return node;
    return nullptr;
}

void TOwnAdvTreeComboBoxEx::SetNewText(const String& value) {
    {
        const TScopedValue quiet(FQuiet, true);
        SetSelected(FindText(value));
    }
    const TTreeNode* node = GetSelected();
    PutText(HasEditor() || !node ? value : node->GetText());
}

void TOwnAdvTreeComboBoxEx::SelectAll() {
    FEdit->SelectAll();
}

void TOwnAdvTreeComboBoxEx::EditorChanged() {
    if (FQuiet) return;
    {
        const TScopedValue quiet(FQuiet, true);
        SetSelected(FindText(FEdit->GetText()));
    }
    Change();
}

/// Another node was selected: it is chosen, unless the user is still looking in the open tree.
void TOwnAdvTreeComboBoxEx::NodeSelected(const TTreeNode* node) {
    if (FQuiet || FDroppedDown) return;
    if (node || !HasEditor()) PutText(node ? node->GetText() : String());
}

void TOwnAdvTreeComboBoxEx::NodeChanged(const TTreeNode& node) {
    if (!FQuiet && !FDroppedDown && node.GetSelected()) PutText(node.GetText());
}

/// The user chose a node.
void TOwnAdvTreeComboBoxEx::Choose(TTreeNode* node) {
    if (!node || node == GetSelected()) return;
    SetSelected(node);
    if (FEdit->Focused()) FEdit->SelectAll();
    const TLifeGuard guard(*this);
    Click();
    if (guard.IsAlive()) Change();
}

void TOwnAdvTreeComboBoxEx::Change() {
    OnChange(this);
}

// --- opening and closing

void TOwnAdvTreeComboBoxEx::SetDroppedDown(bool value) {
    if (value == FDroppedDown) return;
    if (value)
        Open();
    else
        FDropDown->Finish(true);
}

void TOwnAdvTreeComboBoxEx::Open() {
    if (IsInState(csDesigning) || !CanFocus()) return;
    const TLifeGuard guard(*this);
    DropDown();
    if (!guard.IsAlive() || FDroppedDown) return;
    FNodeBefore = GetSelected();
    FNodeBeforeLives.reset();
    if (FNodeBefore) FNodeBeforeLives.emplace(*FNodeBefore);
    FDropDown->GetTree().SetFont(GetFont());
    FDropDown->GetTree().SetColor(GetColor());
    FDroppedDown = true;
    Invalidate();
    FDropDown->ShowAt(*this, FDropDownCount);
}

void TOwnAdvTreeComboBoxEx::Done(bool cancelled) {
    TTreeNode* before = FNodeBeforeLives && FNodeBeforeLives->IsAlive() ? FNodeBefore : nullptr;
    FNodeBeforeLives.reset();
    FNodeBefore = nullptr;
    if (cancelled) SetSelected(before);
    FDroppedDown = false;
    Invalidate();
    TTreeNode* chosen = GetSelected();
    const TLifeGuard guard(*this);
    if (!cancelled && chosen) {
        const bool changes = chosen != before || chosen->GetText() != FEdit->GetText();
        PutText(chosen->GetText());
        FEdit->SelectAll();
        if (changes) Click();
        if (guard.IsAlive() && changes) Change();
    }
    if (guard.IsAlive()) DropUp(cancelled);
}

void TOwnAdvTreeComboBoxEx::DropDown() {
    OnDropDown(this);
}

void TOwnAdvTreeComboBoxEx::DropUp(bool cancelled) {
    OnDropUp(this, cancelled);
}

bool TOwnAdvTreeComboBoxEx::TreeExpanding(TTreeNode& node) {
    bool allowed = true;
    OnTreeExpanding(this, &node, allowed);
    return allowed;
}

/// A press on the button, or anywhere without an editor.
void TOwnAdvTreeComboBoxEx::PressedByUser() {
    if (std::exchange(FPressCloses, false)) return;
    const TLifeGuard guard(*this);
    if (!Focused() && CanFocus()) SetFocus();
    if (guard.IsAlive()) SetDroppedDown(!FDroppedDown);
}

void TOwnAdvTreeComboBoxEx::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseDown(button, shift, x, y);
    if (guard.IsAlive() && button == mbLeft && (!HasEditor() || GetButtonRect().Contains({x, y})))
        PressedByUser();
}

// --- focus

void TOwnAdvTreeComboBoxEx::SetFocus() {
    FEdit->SetFocus();
}

bool TOwnAdvTreeComboBoxEx::Focused() const {
    return FEdit->Focused();
}

void TOwnAdvTreeComboBoxEx::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    if (message.Msg == CM_CHILDKEY && TakeTabBack(*this, message)) {
        message.Result = 1;
        return;
    }
    // A press while the tree shows closes it before it arrives.
    if (message.Msg == WM_MOUSEACTIVATE) FPressCloses = FDroppedDown;
    TCustomControl::Dispatch(message);
    if (!guard.IsAlive()) return;
    switch (message.Msg) {
        case WM_SETFOCUS:
            return HandFocusIn(*this, *FEdit);
        case CM_FONTCHANGED:
            return PlaceEditor();
        case CM_COLORCHANGED:
        case CM_ENABLEDCHANGED:
            return Invalidate();
        default:
            return;
    }
}

// --- look and place

TRect TOwnAdvTreeComboBoxEx::GetButtonRect() const {
    return {GetClientWidth() - FButtonWidth, 0, GetClientWidth(), GetClientHeight()};
}

/// In the middle of the height, up to the button.
void TOwnAdvTreeComboBoxEx::PlaceEditor() {
    const int height = std::min(EditorLineHeight(GetFont()), std::max(GetHeight() - 2, 1));
    FEdit->SetBounds(TextMargin, (GetHeight() - height) / 2,
                     std::max(GetWidth() - TextMargin - FButtonWidth - 1, 0), height);
}

void TOwnAdvTreeComboBoxEx::Resize() {
    PlaceEditor();
    Invalidate();
    TCustomControl::Resize();
}

void TOwnAdvTreeComboBoxEx::Paint() {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetColor());
    canvas.FillRect(GetClientRect());
    canvas.GetBrush().SetColor(FColors[BorderColorIndex]);
    canvas.FrameRect(GetClientRect());
    PaintButton();
}

void TOwnAdvTreeComboBoxEx::PaintButton() {
    TCanvas& canvas = GetCanvas();
    const TRect rect = GetButtonRect();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(FColors[FaceColorIndex]);
    canvas.FillRect(rect);
    canvas.GetBrush().SetColor(FColors[BorderColorIndex]);
    canvas.FrameRect(rect);
    canvas.GetPen().SetStyle(psSolid);
    canvas.GetPen().SetWidth(1);
    canvas.GetPen().SetColor(GetEnabled() ? FColors[ArrowColorIndex] : clGrayText);
    const TPoint at{rect.Left + rect.Width() / 2 - ArrowSize, rect.Top + (rect.Height() - ArrowSize) / 2};
    DrawArrow(canvas, FDroppedDown ? sdUp : sdDown, at, ArrowSize);
}

}  // namespace velmora
