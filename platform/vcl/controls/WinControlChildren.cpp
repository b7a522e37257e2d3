#include <algorithm>

#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {

TControl* TWinControl::GetControl(int index) const {
    if (index < 0 || index >= GetControlCount())
        throw EListError(Format(L"List index out of bounds (%d)", index));
    const auto i = static_cast<std::size_t>(index);
    return i < FGraphicControls.size() ? FGraphicControls[i] : FWinControls[i - FGraphicControls.size()];
}

bool TWinControl::HasChild(const TControl* control) const {
    return std::ranges::find(FGraphicControls, control) != FGraphicControls.end() ||
           std::ranges::find(FWinControls, control) != FWinControls.end();
}

void TWinControl::InsertControl(TControl* control) {
    if (control->FParent == this) return;
    ValidateInsert(control);
    const TLifeGuard guard(*this);
    const TLifeGuard childGuard(*control);
    const auto bothLive = [&] { return guard.IsAlive() && childGuard.IsAlive() && control->FParent == this; };
    TWinControl* window = control->AsWinControl();
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<WPARAM>(control), 1);
    if (!guard.IsAlive() || !childGuard.IsAlive()) return;
    if (window) {
        FWinControls.push_back(window);
        FTabList.push_back(window);
    } else {
        FGraphicControls.push_back(control);
    }
    control->FParent = this;
    control->UpdateAnchorBase();
    for (const UINT msg : {CM_PARENTCOLORCHANGED, CM_PARENTFONTCHANGED, CM_PARENTSHOWHINTCHANGED,
                           CM_PARENTCTL3DCHANGED, CM_PARENTDOUBLEBUFFEREDCHANGED}) {
        control->Perform(msg);
        if (!bothLive()) return;
    }
    if (window)
        window->UpdateControlState();
    else
        control->Invalidate();
    if (bothLive()) AlignControl(control);
    if (bothLive()) Perform(CM_CONTROLCHANGE, reinterpret_cast<WPARAM>(control), 1);
}

void TWinControl::TakeOut(TControl* control) {
    std::erase(FGraphicControls, control);
    std::erase(FTabList, control);
    std::erase(FWinControls, control);
    control->FParent = nullptr;
}

void TWinControl::RemoveControl(TControl* control) {
    if (!control || control->FParent != this) return;
    const TLifeGuard guard(*this);
    const TLifeGuard childGuard(*control);
    const auto bothLive = [&] { return guard.IsAlive() && childGuard.IsAlive() && control->FParent == this; };
    Perform(CM_CONTROLCHANGE, reinterpret_cast<WPARAM>(control), 0);
    if (!bothLive()) return;
    PointerLosesControl(*control);
    if (!bothLive()) return;
    // Looked up, not asked: the control may be half destroyed.
    const auto place = std::ranges::find(FWinControls, control);
    if (place != FWinControls.end()) {
        TWinControl* window = *place;
        window->RemoveFocus(true);
        if (bothLive()) window->DestroyHandle();
    } else {
        control->InvalidateControl(control->FVisible, false);
    }
    if (!bothLive()) return;
    TakeOut(control);
    if (IsInState(csDestroying)) return;
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<WPARAM>(control), 0);
    if (guard.IsAlive()) Realign();
}

bool TWinControl::ContainsControl(const TControl* control) const {
    while (control && control != this)
        control = control->GetParent();
    return control != nullptr;
}

bool TWinControl::IsHit(TControl& child, TPoint pos, bool allowDisabled) {
    const bool designing = child.IsInState(csDesigning);
    if (!child.IsShown() || !child.GetBoundsRect().Contains(pos)) return false;
    if (!allowDisabled && !designing && !child.GetEnabled()) return false;
    const TPoint inside{pos.X - child.GetLeft(), pos.Y - child.GetTop()};
    return child.Perform(CM_HITTEST, 0, TMessage::PackPoint(inside)) != 0;
}

TControl* TWinControl::ControlAtPos(TPoint pos, bool allowDisabled, bool allowWinControls,
                                    bool allLevels) const {
    if (!GetClientRect().Contains(pos)) return nullptr;
    if (allowWinControls) {
        for (auto child = FWinControls.rbegin(); child != FWinControls.rend(); ++child) {
            TWinControl& window = **child;
            if (!IsHit(window, pos, allowDisabled)) continue;
            TControl* deeper =
                allLevels ? window.ControlAtPos(window.InsideOf(pos), allowDisabled, true, true) : nullptr;
            return deeper ? deeper : &window;
        }
    }
    for (auto child = FGraphicControls.rbegin(); child != FGraphicControls.rend(); ++child) {
        if (IsHit(**child, pos, allowDisabled)) return *child;
    }
    return nullptr;
}

TPoint TWinControl::InsideOf(TPoint parentPoint) const {
    if (!FHandle || !GetParent() || !GetParent()->FHandle)
        return {parentPoint.X - GetLeft(), parentPoint.Y - GetTop()};
    return ScreenToClient(GetParent()->ClientToScreen(parentPoint));
}

TControl* TWinControl::FindChildControl(StringView name) const {
    for (int i = 0; i < GetControlCount(); ++i) {
        if (SameText(GetControl(i)->GetName(), name)) return GetControl(i);
    }
    return nullptr;
}

void TWinControl::Broadcast(TMessage& message) {
    const TLifeGuard guard(*this);
    for (int i = 0; guard.IsAlive() && i < GetControlCount(); ++i) {
        GetControl(i)->SendTo(message);
        if (message.Result != 0) return;
    }
}

void TWinControl::NotifyControls(UINT msg) {
    const TLifeGuard guard(*this);
    for (int i = 0; guard.IsAlive() && i < GetControlCount(); ++i)
        GetControl(i)->Perform(msg);
}

void TWinControl::GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) {
    for (int i = 0; i < GetControlCount(); ++i) {
        TControl* control = GetControl(i);
        if (control->GetOwner() == root) visit(control);
    }
}

namespace {

/// Moves an entry of a list to another place, or to the end that is nearer.
template <class T>
void MoveTo(std::vector<T*>& list, T* entry, int place) {
    const auto found = std::ranges::find(list, entry);
    if (found == list.end()) return;
    list.erase(found);
    list.insert(list.begin() + std::clamp(place, 0, static_cast<int>(list.size())), entry);
}

}  // namespace

void TWinControl::SetChildOrder(TComponent* child, int order) {
    auto* control = dynamic_cast<TControl*>(child);
    if (!control || control->GetParent() != this) return;
    TWinControl* moved = control->AsWinControl();
    if (!moved) {
        MoveTo(FGraphicControls, control, order);
        control->Invalidate();
        return;
    }
    MoveTo(FWinControls, moved, order - static_cast<int>(FGraphicControls.size()));
    for (TWinControl* window : FWinControls) {
        if (window->FHandle)
            ::SetWindowPos(window->FHandle, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

void TWinControl::SetZOrder(bool topmost) {
    TWinControl* parent = GetParent();
    if (parent) {
        auto& siblings = parent->FWinControls;
        const auto place = std::ranges::find(siblings, this);
        if (place != siblings.end()) {
            siblings.erase(place);
            siblings.insert(topmost ? siblings.end() : siblings.begin(), this);
        }
    }
    if (FHandle)
        ::SetWindowPos(FHandle, topmost ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void TWinControl::ShowControl(TControl*) {
    if (GetParent()) GetParent()->ShowControl(this);
}

}  // namespace vcl
