#include "gallery/PaintArea.h"

namespace gallery {

TPaintArea::TPaintArea(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle.Include(csOpaque);
    SetColor(clWhite);
    SetDoubleBuffered(true);
}

void TPaintArea::Dispatch(TMessage& message) {
    if (message.Msg == WM_ERASEBKGND && !message.WParam) {
        message.Result = 1;
        return;
    }
    TCustomControl::Dispatch(message);
}

}  // namespace gallery
