#include "platform/vcl/controls/InnerEditor.h"

#include "platform/vcl/controls/ParentForm.h"

namespace vcl {

bool TakeTabBack(TWinControl& outer, const TMessage& message) {
    const TShiftState shift = KeyboardShiftState();
    TParentForm* form = GetParentForm(&outer);
    if (message.CharCode() != VK_TAB || !shift.Contains(ssShift) || shift.Contains(ssCtrl) || !form)
        return false;
    form->FormControl().SelectNext(&outer, false, true);
    return true;
}

}  // namespace vcl
