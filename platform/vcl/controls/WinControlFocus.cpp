#include <algorithm>

#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {

bool TWinControl::Focused() const {
    return FFocused;
}

bool TWinControl::CanFocus() const {
    for (const TWinControl* c = this; c; c = c->GetParent()) {
        // The form itself comes to front and wakes up on its own.
        if (const_cast<TWinControl*>(c)->AsParentForm()) return true;
        if (!c->GetVisible() || !c->GetEnabled()) return false;
    }
    return true;
}

void TWinControl::SetFocus() {
    if (TParentForm* form = GetParentForm(this)) return form->FocusControl(this);
    const TWinControl* top = this;
    while (top->GetParent())
        top = top->GetParent();
    if (!top->FHandle && !top->FParentWindow) RaiseNoParentWindow();
    if (!CanFocus()) throw EInvalidOperation(L"Cannot focus a disabled or invisible window");
    ::SetFocus(GetHandle());
}

void TWinControl::RemoveFocus(bool removing) {
    if (TParentForm* form = GetParentForm(this)) form->DefocusControl(this, removing);
}

void TWinControl::DoEnter() {
    OnEnter(this);
}

void TWinControl::DoExit() {
    OnExit(this);
}

void TWinControl::SetTabStop(bool value) {
    if (value == FTabStop) return;
    FTabStop = value;
    Perform(CM_TABSTOPCHANGED);
}

TTabOrder TWinControl::GetTabOrder() const {
    if (!GetParent()) return -1;
    const auto& order = GetParent()->FTabList;
    return static_cast<TTabOrder>(std::ranges::find(order, this) - order.begin());
}

void TWinControl::SetTabOrder(TTabOrder value) {
    if (IsInState(csLoading)) {
        // The neighbours are not all there yet.
        FLoadedTabOrder = value;
        return;
    }
    if (!GetParent()) return;
    auto& order = GetParent()->FTabList;
    std::erase(order, this);
    const auto last = static_cast<TTabOrder>(order.size());
    const TTabOrder place = value < 0 ? last : std::min(value, last);
    order.insert(order.begin() + place, this);
}

void TWinControl::ApplyLoadedTabOrders() {
    // Each child stands where its file put it; those without a number keep their places around them.
    const std::vector<TWinControl*> children = FTabList;
    std::vector<TWinControl*> numbered;
    for (TWinControl* child : children) {
        if (child->FLoadedTabOrder >= 0) numbered.push_back(child);
    }
    std::ranges::stable_sort(numbered, {}, &TWinControl::FLoadedTabOrder);
    for (TWinControl* child : numbered) {
        std::erase(FTabList, child);
    }
    for (TWinControl* child : numbered) {
        const auto last = static_cast<TTabOrder>(FTabList.size());
        FTabList.insert(FTabList.begin() + std::min(child->FLoadedTabOrder, last), child);
        child->FLoadedTabOrder = -1;
    }
}

void TWinControl::GetTabOrderList(std::vector<TWinControl*>& list) const {
    for (TWinControl* child : FTabList) {
        list.push_back(child);
        child->GetTabOrderList(list);
    }
}

TWinControl* TWinControl::FindNextControl(TWinControl* current, bool goForward, bool checkTabStop,
                                          bool checkParent) const {
    std::vector<TWinControl*> list;
    GetTabOrderList(list);
    if (list.empty()) return nullptr;
    const std::size_t count = list.size();
    const auto place = static_cast<std::size_t>(std::ranges::find(list, current) - list.begin());
    // Not in the list: the first one looked at is the first or the last.
    const std::size_t start = place < count ? place : (goForward ? count - 1 : 0);
    for (std::size_t step = 1; step <= count; ++step) {
        TWinControl* candidate = list[(start + (goForward ? step : count - step)) % count];
        if (!candidate->CanFocus() || (checkTabStop && !candidate->FTabStop)) continue;
        if (checkParent && candidate->GetParent() != this) continue;
        return candidate;
    }
    return nullptr;
}

void TWinControl::SelectNext(TWinControl* current, bool goForward, bool checkTabStop) {
    TWinControl* next = FindNextControl(current, goForward, checkTabStop, !checkTabStop);
    if (next) next->SetFocus();
}

void TWinControl::SelectFirst() {
    TWinControl* first = FindNextControl(nullptr, true, true, false);
    if (!first) first = FindNextControl(nullptr, true, false, false);
    if (!first) return;
    if (TParentForm* form = GetParentForm(this))
        form->SetActiveControl(first);
    else
        first->SetFocus();
}

}  // namespace vcl
