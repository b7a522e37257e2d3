#include "platform/velmora/TreeDropDown.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/forms/Screen.h"

namespace velmora {
namespace {

constexpr int LineWidth = 1;

}  // namespace

/// The tree inside: tells when a node was clicked.
class TTreeDropDown::TTree final : public TCustomTreeView {
public:
    explicit TTree(TTreeDropDown& dropDown) : TCustomTreeView(nullptr), FDropDown(dropDown) {}

protected:
    void Dispatch(TMessage& message) override {
        const bool isPress = message.Msg == WM_LBUTTONDOWN || message.Msg == WM_LBUTTONDBLCLK;
        if (isPress) FPressed = NodeAt(message);
        const bool wasPressed = FPressed != nullptr;
        const TPoint at = message.Pos();
        const TLifeGuard guard(*this);
        TCustomTreeView::Dispatch(message);
        if (!guard.IsAlive() || !wasPressed) return;
        // The system may handle press and release in one go.
        const bool isReleased = message.Msg == WM_LBUTTONUP || (isPress && ::GetKeyState(VK_LBUTTON) >= 0);
        if (!isReleased) return;
        const TTreeNode* pressed = std::exchange(FPressed, nullptr);
        if (GetNodeAt(at.X, at.Y) == pressed && GetSelected() == pressed) FDropDown.Finish(false);
    }

private:
    [[nodiscard]] const TTreeNode* NodeAt(const TMessage& message) const {
        return GetNodeAt(message.Pos().X, message.Pos().Y);
    }

    TTreeDropDown& FDropDown;
    const TTreeNode* FPressed = nullptr;  ///< To compare, not to use.
};

const TMetaClass& TTreeDropDown::StaticClass() {
    static const TMetaClass meta = DefineClass<TTreeDropDown>(L"TTreeDropDown", TCustomForm::StaticClass());
    return meta;
}

TTreeDropDown::TTreeDropDown() : TCustomForm(nullptr), FTree(new TTree(*this)) {
    SetBorderStyle(bsNone);
    SetKeyPreview(true);
    SetPopupMode(pmExplicit);
    SetBorderWidth(LineWidth);
    FTree->SetBorderStyle(bsNone);
    FTree->SetAlign(alClient);
    FTree->SetParent(this);
}

TTreeDropDown::~TTreeDropDown() {
    delete FTree;
}

void TTreeDropDown::CreateParams(TCreateParams& params) {
    TCustomForm::CreateParams(params);
    params.Style |= WS_POPUP;
    params.ExStyle |= WS_EX_TOOLWINDOW;
}

void TTreeDropDown::FreeWhenIdle() {
    OnDone.Clear();
    OnTab.Clear();
    if (!FTree->IsInMessage()) return Free();
    Hide();
    Release();
}

// --- showing and hiding

void TTreeDropDown::ShowAt(TWinControl& control, int rows) {
    TParentForm* form = GetParentForm(&control);
    auto* owner = form ? dynamic_cast<TCustomForm*>(&form->FormControl()) : nullptr;
    SetPopupParent(owner);
    const int height = std::max(rows, 1) * FTree->GetItemHeight() + 2 * LineWidth;
    const TPoint top = control.ClientToScreen({0, 0});
    const int below = top.Y + control.GetHeight();
    const TRect area = Screen().GetWorkAreaRect(TRect::OfSize(top.X, top.Y, 1, 1));
    const int roomBelow = area.Bottom - below;
    const int roomAbove = top.Y - area.Top;
    const bool goesUp = roomBelow < height && roomAbove > roomBelow;
    const int fitting = std::clamp(goesUp ? roomAbove : roomBelow, 1, height);
    SetBounds(top.X, goesUp ? top.Y - fitting : below, control.GetWidth(), fitting);
    const TLifeGuard guard(*this);
    if (TTreeNode* selected = FTree->GetSelected()) selected->MakeVisible();
    if (guard.IsAlive()) Show();
    if (guard.IsAlive() && FTree->CanFocus()) FTree->SetFocus();
    if (guard.IsAlive() && owner && owner->HandleAllocated())
        ::SendMessageW(owner->WindowHandle(), WM_NCACTIVATE, TRUE, 0);
}

void TTreeDropDown::Finish(bool cancelled) {
    if (!GetVisible()) return;
    const TLifeGuard guard(*this);
    Hide();
    if (guard.IsAlive()) OnDone(cancelled);
}

void TTreeDropDown::Deactivate() {
    const TLifeGuard guard(*this);
    TCustomForm::Deactivate();
    // A window that is made anew loses the activation for a moment, too.
    if (guard.IsAlive() && !IsControlState(csRecreating)) Finish(true);
}

void TTreeDropDown::DoClose(TCloseAction& action) {
    const TLifeGuard guard(*this);
    TCustomForm::DoClose(action);
    if (!guard.IsAlive() || action == caNone) return;
    action = caNone;
    Finish(true);
}

// --- keys

void TTreeDropDown::Dispatch(TMessage& message) {
    if (message.Msg != CM_DIALOGKEY || message.CharCode() != VK_TAB) return TCustomForm::Dispatch(message);
    message.Result = 1;
    const TLifeGuard guard(*this);
    const bool forward = !KeyboardShiftState().Contains(ssShift);
    Finish(false);
    if (guard.IsAlive()) OnTab(forward);
}

void TTreeDropDown::KeyDown(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TCustomForm::KeyDown(key, shift);
    if (!guard.IsAlive()) return;
    const bool alt = shift.Contains(ssAlt);
    const bool takes = alt ? key == VK_UP || key == VK_DOWN : key == VK_RETURN || key == VK_F4;
    const bool cancels = key == VK_ESCAPE || (alt && key == VK_F4);
    if (!takes && !cancels) return;
    key = 0;
    Finish(cancels);
}

void TTreeDropDown::KeyPress(wchar_t& key) {
    const TLifeGuard guard(*this);
    TCustomForm::KeyPress(key);
    // The tree would look for nodes that begin with them.
    if (guard.IsAlive() && (key == VK_RETURN || key == VK_ESCAPE)) key = 0;
}

}  // namespace velmora
