#include "designer/inspector/ValueEdit.h"

#include "platform/vcl/controls/Messages.h"

namespace designer {

TValueEdit::TValueEdit(TWinControl& owner) : TEdit(&owner) {
    SetBorderStyle(bsNone);
    SetAutoSize(false);
    SetVisible(false);
    SetParent(&owner);
}

void TValueEdit::CreateWnd() {
    TEdit::CreateWnd();
    Perform(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
}

void TValueEdit::Dispatch(TMessage& message) {
    TEdit::Dispatch(message);
    if (message.Msg == CM_WANTSPECIALKEY &&
        (message.CharCode() == VK_RETURN || message.CharCode() == VK_ESCAPE))
        message.Result = 1;
}

}  // namespace designer
