#include "platform/vcl/controls/InnerEditor.h"

#include <algorithm>

#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/graphics/Font.h"

namespace vcl {

bool TakeTabBack(TWinControl& outer, const TMessage& message) {
    const TShiftState shift = KeyboardShiftState();
    TParentForm* form = GetParentForm(&outer);
    if (message.CharCode() != VK_TAB || !shift.Contains(ssShift) || shift.Contains(ssCtrl) || !form)
        return false;
    form->FormControl().SelectNext(&outer, false, true);
    return true;
}

int EditorLineHeight(const TFont& font) {
    const int size = font.GetHeight();
    return std::max(size < 0 ? -size * 5 / 4 : size, 1);
}

void HandFocusIn(TWinControl& outer, TWinControl& inner) {
    TParentForm* form = GetParentForm(&outer);
    if (form && (form->GetActiveControl() != &outer || !form->FormControl().CanFocus())) return;
    if (inner.CanFocus()) inner.SetFocus();
}

}  // namespace vcl
