#include "platform/vcl/stdctrls/WindowBorder.h"

namespace vcl {

void AddWindowBorder(TCreateParams& params, bool ctl3D) {
    if (ctl3D)
        params.ExStyle |= WS_EX_CLIENTEDGE;
    else
        params.Style |= WS_BORDER;
}

TRect WithWindowBorder(const TRect& insets, bool ctl3D) {
    const int width = ::GetSystemMetrics(ctl3D ? SM_CXEDGE : SM_CXBORDER);
    return {insets.Left + width, insets.Top + width, insets.Right + width, insets.Bottom + width};
}

}  // namespace vcl
