#include "platform/vcl/graphics/DeviceContexts.h"

#include "platform/vcl/graphics/GdiErrors.h"

namespace vcl {

TMemoryDC CreateMemoryDC(HDC like) {
    return TMemoryDC(CheckHandle(::CreateCompatibleDC(like)));
}

TWindowDC::TWindowDC(HWND window) : TWindowDC(window, ::GetDC(window)) {}

TWindowDC::TWindowDC(HWND window, HDC dc) : FWindow(window), FDC(CheckHandle(dc)) {
    TLedger::Count("window dc", +1);
}

TWindowDC TWindowDC::OfWholeWindow(HWND window) {
    return TWindowDC(window, ::GetWindowDC(window));
}

TWindowDC::~TWindowDC() {
    if (!FDC) return;
    ::ReleaseDC(FWindow, FDC);
    TLedger::Count("window dc", -1);
}

TPaintDC::TPaintDC(HWND window) : FWindow(window) {
    CheckHandle(::BeginPaint(window, &FPaint));
    TLedger::Count("paint dc", +1);
}

TPaintDC::~TPaintDC() {
    ::EndPaint(FWindow, &FPaint);
    TLedger::Count("paint dc", -1);
}

}  // namespace vcl
