#include "platform/vcl/controls/AppServices.h"

#include <array>
#include <map>
#include <utility>

#include "platform/vcl/controls/DragSession.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Resources.h"

namespace vcl {
namespace {

TAppServices*& InstalledServices() {
    static TAppServices* services = nullptr;
    return services;
}

/// The system's shape for each framework cursor from crArrow (-2) downwards. Where the system has no such
/// shape, the nearest one stands in.
const wchar_t* SystemCursorName(TCursor cursor) {
    static const std::array names{
        IDC_ARROW,  IDC_CROSS,   IDC_IBEAM, IDC_SIZEALL,     IDC_SIZENESW, IDC_SIZENS, IDC_SIZENWSE,
        IDC_SIZEWE, IDC_UPARROW, IDC_WAIT,  IDC_HAND,        IDC_NO,       IDC_SIZEWE, IDC_SIZENS,
        IDC_HAND,   IDC_WAIT,    IDC_NO,    IDC_APPSTARTING, IDC_HELP,     IDC_HAND,   IDC_SIZEALL,
    };
    const int index = crArrow - cursor;
    return index >= 0 && index < static_cast<int>(names.size()) ? names[static_cast<std::size_t>(index)]
                                                                : IDC_ARROW;
}

}  // namespace

TAppServices& AppServices() {
    static TAppServices builtIn;
    TAppServices* installed = InstalledServices();
    return installed ? *installed : builtIn;
}

TAppServices* SetAppServices(TAppServices* services) {
    return std::exchange(InstalledServices(), services);
}

void TAppServices::HandleException(std::exception_ptr error) {
    try {
        std::rethrow_exception(error);
    } catch (const EAbort&) {
    } catch (const Exception& e) {
        MessageBoxW(nullptr, e.Message().c_str(), nullptr, MB_OK | MB_ICONERROR | MB_TASKMODAL);
    } catch (const std::exception& e) {
        MessageBoxW(nullptr, FromUtf8(e.what()).c_str(), nullptr, MB_OK | MB_ICONERROR | MB_TASKMODAL);
    } catch (...) {
        MessageBoxW(nullptr, L"Unknown error", nullptr, MB_OK | MB_ICONERROR | MB_TASKMODAL);
    }
}

HCURSOR TAppServices::CursorHandle(TCursor cursor) {
    if (cursor == crNone) return nullptr;
    static std::map<const wchar_t*, HCURSOR> loaded;
    HCURSOR& handle = loaded[SystemCursorName(cursor)];
    if (!handle) handle = ::LoadCursorW(nullptr, SystemCursorName(cursor));
    return handle;
}

bool TAppServices::ProcessMessages() {
    bool any = false;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        any = true;
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (OfferKeyMessage(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return any;
}

HINSTANCE TAppServices::Instance() const {
    return GetModuleHandleW(nullptr);
}

bool OfferKeyMessage(const MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
    if (OfferKeyToDrag(message)) return true;
    if (const HWND capturer = ::GetCapture()) {
        // The pointer is busy: keys are no dialog keys, but may end what a control without a window does.
        const TControl* holder = message.message == WM_KEYDOWN ? GetCaptureControl() : nullptr;
        return holder && !holder->AsWinControl() && FindControl(capturer) == holder->GetParent() &&
               ::SendMessageW(capturer, CN_KEYDOWN, message.wParam, message.lParam) != 0;
    }
    HWND window = message.hwnd;
    TWinControl* control = nullptr;
    // Windows inside a control of the system (the edit of a combo box) belong to that control.
    while (window && !(control = FindControl(window)))
        window = ::GetParent(window);
    if (!control) return false;
    return ::SendMessageW(window, CN_BASE + message.message, message.wParam, message.lParam) != 0;
}

}  // namespace vcl
