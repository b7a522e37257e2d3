#include "platform/flatstyle/FlatRadioButton.h"

#include <algorithm>

#include "platform/flatstyle/FlatToggleRows.h"
#include "platform/vcl/graphics/Canvas.h"

namespace flatstyle {
namespace {

bool IsArrow(WORD key) {
    return key == VK_LEFT || key == VK_UP || key == VK_RIGHT || key == VK_DOWN;
}

}  // namespace

const TMetaClass& TFlatRadioButton::StaticClass() {
    using C = TFlatRadioButton;
    static const TMetaClass meta = DefineClass<C>(L"TFlatRadioButton", TFlatToggle::StaticClass())
                                       .With(FlatToggleRows)
                                       .Property(L"GroupIndex", &C::GetGroupIndex, &C::SetGroupIndex, 0);
    return meta;
}

void TFlatRadioButton::SetGroupIndex(int Value) {
    if (Value == FGroupIndex) return;
    FGroupIndex = Value;
    if (GetChecked()) UncheckOthers();
}

void TFlatRadioButton::CheckedChanged() {
    if (GetChecked()) UncheckOthers();
}

void TFlatRadioButton::UncheckOthers() {
    if (!GetParent()) return;
    const TLifeGuard guard(*this);
    // Handlers may take siblings away.
    const std::vector<TWinControl*> siblings = GetParent()->WinControls();
    for (TWinControl* sibling : siblings) {
        if (!guard.IsAlive() || !GetParent()) return;
        const auto& present = GetParent()->WinControls();
        if (sibling == this || std::ranges::find(present, sibling) == present.end()) continue;
        auto* radio = dynamic_cast<TFlatRadioButton*>(sibling);
        if (radio && radio->FGroupIndex == FGroupIndex) radio->Check(false);
    }
}

/// The next one of the group in tab order that can have the focus, round the end.
TFlatRadioButton* TFlatRadioButton::Neighbour(bool forward) const {
    if (!GetParent()) return nullptr;
    std::vector<TFlatRadioButton*> group;
    for (TWinControl* sibling : GetParent()->TabList()) {
        auto* radio = dynamic_cast<TFlatRadioButton*>(sibling);
        if (radio && radio->FGroupIndex == FGroupIndex && (radio == this || radio->CanFocus()))
            group.push_back(radio);
    }
    const auto at = static_cast<std::size_t>(std::ranges::find(group, this) - group.begin());
    return group[(at + (forward ? 1 : group.size() - 1)) % group.size()];
}

void TFlatRadioButton::Dispatch(TMessage& message) {
    if (message.Msg == CM_WANTSPECIALKEY && IsArrow(message.CharCode()))
        message.Result = 1;
    else
        TFlatToggle::Dispatch(message);
}

void TFlatRadioButton::KeyDown(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TFlatToggle::KeyDown(key, shift);
    if (!guard.IsAlive() || !IsArrow(key)) return;
    TFlatRadioButton* next = Neighbour(key == VK_RIGHT || key == VK_DOWN);
    key = 0;
    if (!next || next == this) return;
    const TLifeGuard nextGuard(*next);
    next->SetFocus();
    if (nextGuard.IsAlive()) next->SetChecked(true);
}

void TFlatRadioButton::DrawRadio() {
    TCanvas& canvas = GetCanvas();
    TRect sign = SignRect();
    canvas.GetPen().SetStyle(psSolid);
    canvas.GetPen().SetWidth(1);
    canvas.GetPen().SetColor(GetColors(BorderColorIndex));
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(SignGround());
    canvas.Ellipse(sign);
    if (!GetChecked()) return;
    sign.Inflate(-4, -4);
    canvas.GetPen().SetColor(SignColor());
    canvas.GetBrush().SetColor(SignColor());
    canvas.Ellipse(sign);
}

}  // namespace flatstyle
