#include "platform/vcl/forms/Screen.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/streaming/GlobalComponents.h"

namespace vcl {
namespace {

TRect SystemRect(UINT which) {
    RECT rect{};
    ::SystemParametersInfoW(which, 0, &rect, 0);
    return rect;
}

int CALLBACK AddFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM list) {
    // Names with @ are the upright twins for vertical writing.
    if (font->lfFaceName[0] != L'@') reinterpret_cast<TStringList*>(list)->Add(font->lfFaceName);
    return 1;
}

/// Lets form files name the components of all forms of the program.
TComponent* FindForm(StringView name) {
    for (TCustomForm* form : Screen().Forms()) {
        if (SameText(form->GetName(), name)) return form;
    }
    return nullptr;
}

}  // namespace

const TMetaClass& TScreen::StaticClass() {
    static const TMetaClass meta = DefineClass<TScreen>(L"TScreen", TComponent::StaticClass());
    return meta;
}

TScreen::TScreen() : TComponent(nullptr) {
    RegisterFindGlobalComponent(&FindForm);
}

TScreen::~TScreen() {
    UnRegisterFindGlobalComponent(&FindForm);
}

// --- measures

int TScreen::GetWidth() const {
    return ::GetSystemMetrics(SM_CXSCREEN);
}

int TScreen::GetHeight() const {
    return ::GetSystemMetrics(SM_CYSCREEN);
}

TRect TScreen::GetDesktopRect() const {
    return TRect::OfSize(::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN),
                         ::GetSystemMetrics(SM_CXVIRTUALSCREEN), ::GetSystemMetrics(SM_CYVIRTUALSCREEN));
}

TRect TScreen::GetWorkAreaRect() const {
    return SystemRect(SPI_GETWORKAREA);
}

TRect TScreen::GetWorkAreaRect(const TRect& nearest) const {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    const HMONITOR monitor = ::MonitorFromRect(nearest.AsRect(), MONITOR_DEFAULTTONEAREST);
    return ::GetMonitorInfoW(monitor, &info) ? TRect(info.rcWork) : GetWorkAreaRect();
}

int TScreen::GetPixelsPerInch() const {
    return ScreenPixelsPerInch();
}

const TStrings& TScreen::GetFonts() {
    if (!FFonts) {
        FFonts = std::make_unique<TStringList>();
        FFonts->SetSorted(true);
        LOGFONTW all{};
        all.lfCharSet = DEFAULT_CHARSET;
        const TWindowDC screen(nullptr);
        ::EnumFontFamiliesExW(screen.Get(), &all, AddFont, reinterpret_cast<LPARAM>(FFonts.get()), 0);
    }
    return *FFonts;
}

// --- forms and focus

TCustomForm* TScreen::GetForm(int index) const {
    if (index < 0 || index >= GetFormCount())
        throw EListError(Format(L"List index out of bounds (%d)", index));
    return FForms[static_cast<std::size_t>(index)];
}

bool TScreen::HasForm(const TCustomForm* form) const {
    return std::ranges::find(FForms, form) != FForms.end();
}

void TScreen::AddForm(TCustomForm* form) {
    FForms.push_back(form);
}

void TScreen::RemoveForm(TCustomForm* form) {
    std::erase(FForms, form);
    FocusLost(form);
    if (FFocusedForm == form) FFocusedForm = nullptr;
    if (FActiveForm != form) return;
    FActiveForm = nullptr;
    Tell(OnActiveFormChange);
}

void TScreen::Tell(const TNotifyEvent& event) {
    try {
        event(this);
    } catch (...) {
        AppServices().HandleException(std::current_exception());
    }
}

void TScreen::FocusMoved(TCustomForm* form, TWinControl* control) {
    // The focus may move about in a form that goes; it has been taken out for good.
    if (!HasForm(form)) return;
    const bool otherForm = std::exchange(FActiveForm, form) != form;
    const bool otherControl = std::exchange(FActiveControl, control) != control;
    std::erase(FForms, form);
    FForms.insert(FForms.begin(), form);
    if (otherControl) Tell(OnActiveControlChange);
    if (otherForm) Tell(OnActiveFormChange);
}

void TScreen::FocusLost(const TWinControl* control) {
    if (!FActiveControl || !control->ContainsControl(FActiveControl)) return;
    FActiveControl = nullptr;
    Tell(OnActiveControlChange);
}

// --- cursors

HCURSOR TScreen::GetCursorHandle(TCursor index) const {
    const auto own = FCursors.find(index);
    return own != FCursors.end() ? own->second.Get() : TAppServices().CursorHandle(index);
}

void TScreen::SetCursorHandle(TCursor index, HCURSOR handle) {
    if (handle)
        FCursors[index].Reset(handle);
    else
        FCursors.erase(index);
    if (FCursor == index) ApplyCursor();
}

void TScreen::SetCursor(TCursor value) {
    if (value == FCursor) return;
    FCursor = value;
    ApplyCursor();
}

void TScreen::ApplyCursor() const {
    if (FCursor != crDefault) {
        ::SetCursor(GetCursorHandle(FCursor));
        return;
    }
    // The window under the pointer knows its own.
    POINT pointer{};
    ::GetCursorPos(&pointer);
    const HWND window = ::WindowFromPoint(pointer);
    if (!window || ::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId()) return;
    const LRESULT hit = ::SendMessageW(window, WM_NCHITTEST, 0, TMessage::PackPoint(pointer));
    ::SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                   MAKELPARAM(static_cast<WORD>(hit), WM_MOUSEMOVE));
}

// --- the one of the process

namespace {

/// Freed by `DoneScreen`, not by itself, like the application.
TScreen*& Instance() {
    static TScreen* instance = nullptr;
    return instance;
}

}  // namespace

TScreen& Screen() {
    TScreen*& instance = Instance();
    if (!instance) instance = new TScreen;
    return *instance;
}

void DoneScreen() {
    delete std::exchange(Instance(), nullptr);
}

}  // namespace vcl
