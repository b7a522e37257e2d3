#include "platform/vcl/controls/ControlParts.h"

#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {

TWinControl* WholeOf(const TControl& part) {
    TWinControl* parent = part.GetParent();
    if (!parent || parent->AsParentForm()) return nullptr;
    const bool isPart = part.GetOwner() == parent || !parent->ControlStyle.Contains(csAcceptsControls);
    return isPart ? parent : nullptr;
}

TControl* MenuHolderOf(TControl& control) {
    TControl* holder = &control;
    while (holder && !holder->GetPopupMenu())
        holder = WholeOf(*holder);
    return holder;
}

}  // namespace vcl
