#include "platform/vcl/controls/ControlCanvas.h"

#include <algorithm>
#include <vector>

#include "platform/vcl/controls/Control.h"

namespace vcl {
namespace {

/// Canvases that hold a device context of a window, oldest first. The system has few to lend.
std::vector<TControlCanvas*>& Holders() {
    static std::vector<TControlCanvas*> holders;
    return holders;
}

constexpr std::size_t MostHolders = 4;

}  // namespace

TControlCanvas::~TControlCanvas() {
    FreeHandle();
}

void TControlCanvas::SetControl(TControl* control) {
    if (control == FControl) return;
    FreeHandle();
    FControl = control;
}

void TControlCanvas::CreateHandle() {
    if (!FControl) return;
    if (Holders().size() >= MostHolders) Holders().front()->FreeHandle();
    FDeviceContext = FControl->GetDeviceContext(FWindow);
    Holders().push_back(this);
    SetHandle(FDeviceContext);
}

void TControlCanvas::FreeHandle() {
    if (!FDeviceContext) return;
    std::erase(Holders(), this);
    SetHandle(nullptr);
    ::ReleaseDC(FWindow, FDeviceContext);
    FDeviceContext = nullptr;
    FWindow = nullptr;
}

HDC TControlCanvas::Bind(HDC dc) {
    FreeHandle();
    SetHandle(dc);
    return std::exchange(FBound, dc);
}

void FreeControlDeviceContexts() {
    while (!Holders().empty())
        Holders().back()->FreeHandle();
}

}  // namespace vcl
