#include "platform/vcl/controls/WindowTable.h"

#include <list>
#include <unordered_map>

#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/controls/MouseState.h"
#include "platform/vcl/controls/PaintBuffer.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/Resources.h"

namespace vcl {
namespace {

std::unordered_map<HWND, TWinControl*>& Windows() {
    static std::unordered_map<HWND, TWinControl*> windows;
    return windows;
}

TWinControl*& Creating() {
    thread_local TWinControl* creating = nullptr;
    return creating;
}

HINSTANCE OwnModule() {
    static const HINSTANCE module = ModuleOfAddress(reinterpret_cast<const void*>(&RegisterControlClass));
    return module;
}

/// A window class that stays registered as long as the module is loaded.
struct TRegisteredClass {
    String ControlClass;  ///< The framework class it was made for.
    WNDPROC Base;         ///< The procedure behind ours: that of the system's class it builds on.
    UINT Style;
    HBRUSH Background;
    HCURSOR Cursor;
    String Name;
};

class TClassRegistry {
public:
    ~TClassRegistry() {
        for (const TRegisteredClass& entry : FClasses)
            ::UnregisterClassW(entry.Name.c_str(), OwnModule());
    }
    const wchar_t* NameFor(const TCreateParams& params, WNDPROC procedure);

private:
    std::list<TRegisteredClass> FClasses;
};

const wchar_t* TClassRegistry::NameFor(const TCreateParams& params, WNDPROC procedure) {
    const WNDCLASSW& wanted = params.WindowClass;
    int sameName = 0;
    for (const TRegisteredClass& entry : FClasses) {
        if (entry.ControlClass != params.WinClassName) continue;
        if (entry.Base == wanted.lpfnWndProc && entry.Style == wanted.style &&
            entry.Background == wanted.hbrBackground && entry.Cursor == wanted.hCursor)
            return entry.Name.c_str();
        ++sameName;
    }
    TRegisteredClass entry{params.WinClassName,  wanted.lpfnWndProc, wanted.style,
                           wanted.hbrBackground, wanted.hCursor,     params.WinClassName};
    if (sameName > 0) entry.Name += L"." + IntToStr(sameName + 1);
    WNDCLASSW windowClass = wanted;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = OwnModule();
    windowClass.lpszClassName = entry.Name.c_str();
    if (!::RegisterClassW(&windowClass))
        throw EOSError(Format(L"Window class %s can't be registered (error %d)", entry.Name,
                              static_cast<int>(::GetLastError())));
    FClasses.push_back(std::move(entry));
    return FClasses.back().Name.c_str();
}

}  // namespace

TWinControl* FindControl(HWND window) {
    const auto found = Windows().find(window);
    return found == Windows().end() ? nullptr : found->second;
}

void AttachWindow(HWND window, TWinControl* control) {
    Windows()[window] = control;
    TLedger::Count("window", +1);
}

void DetachWindow(HWND window) {
    if (Windows().erase(window) == 0) return;
    TLedger::Count("window", -1);
    ForgetWindow(window);
    if (!Windows().empty()) return;
    FreeControlDeviceContexts();
    FreePaintBuffers();
}

const wchar_t* RegisterControlClass(const TCreateParams& params, WNDPROC procedure) {
    static TClassRegistry registry;
    return registry.NameFor(params, procedure);
}

TWindowCreation::TWindowCreation(TWinControl* control) : FOuter(std::exchange(Creating(), control)) {}

TWindowCreation::~TWindowCreation() {
    Creating() = FOuter;
}

TWinControl* TWindowCreation::Take() {
    return std::exchange(Creating(), nullptr);
}

}  // namespace vcl
