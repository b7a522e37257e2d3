#include "platform/vcl/forms/Application.h"

#include <algorithm>
#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/forms/ApplicationHints.h"
#include "platform/vcl/forms/ApplicationServices.h"
#include "platform/vcl/forms/ApplicationWindow.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/MenuMerging.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/forms/TaskWindows.h"
#include "platform/vcl/graphics/Icon.h"

namespace vcl {
namespace {

/// The name under which a program's own icon stands in its resources.
constexpr const wchar_t* ProgramIcon = L"MAINICON";

String ModulePath() {
    String path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

/// The file's name without folder and extension.
String BareName(const String& path) {
    const std::size_t start = path.find_last_of(L"\\/:") + 1;
    return path.substr(start, path.rfind(L'.') - start);
}

}  // namespace

const TMetaClass& TApplication::StaticClass() {
    static const TMetaClass meta = DefineClass<TApplication>(L"TApplication", TComponent::StaticClass());
    return meta;
}

TApplication::TApplication()
    : TComponent(nullptr),
      FServices(std::make_unique<TApplicationServices>(*this)),
      FHints(std::make_unique<TApplicationHints>(*this)),
      FIcon(std::make_unique<TIcon>()),
      FTitle(BareName(ModulePath())) {
    const HMODULE program = ::GetModuleHandleW(nullptr);
    if (HasResource(program, ProgramIcon, RT_GROUP_ICON)) FIcon->LoadFromResourceName(program, ProgramIcon);
    FIcon->OnChange = {this, &TApplication::IconChanged};
    FWindow = std::make_unique<TApplicationWindow>(*this);
}

TApplication::~TApplication() {
    FHints->Cancel();
    Destroying();
    DestroyComponents();
}

void TApplication::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation != opRemove || component != FMainForm) return;
    FMainForm = nullptr;
    if (FRunLevel > 0) Terminate();
}

// --- the program

void TApplication::FormCreated(TCustomForm* form) {
    if (!FMainForm) SetMainForm(form);
    form->EnsureCreated();
}

void TApplication::SetMainForm(TCustomForm* value) {
    if (value == FMainForm) return;
    EndMergingMenus();
    if (FMainForm) FMainForm->RemoveFreeNotification(this);
    FMainForm = value;
    if (!value) return;
    value->FreeNotification(this);
    value->UpdateOwnerWindow();
    ReviewMergedMenus();
}

void TApplication::ReleaseLater(TCustomForm* form) {
    if (std::ranges::find(FReleasedForms, form) != FReleasedForms.end()) return;
    FReleasedForms.push_back(form);
    FWindow->WakeForReleasedForms();
}

void TApplication::FreeReleasedForms() {
    while (!FReleasedForms.empty()) {
        TCustomForm* form = FReleasedForms.front();
        FReleasedForms.erase(FReleasedForms.begin());
        form->Free();
    }
}

String TApplication::GetExeName() const {
    return ModulePath();
}

void TApplication::SetTitle(const String& value) {
    if (value == FTitle) return;
    FTitle = value;
    ::SetWindowTextW(FWindow->Handle(), value.c_str());
}

void TApplication::IconChanged(TObject*) {
    const std::vector<TCustomForm*> forms = Screen().Forms();
    for (TCustomForm* form : forms)
        form->Perform(CM_ICONCHANGED);
}

HWND TApplication::GetHandle() {
    return FWindow->Handle();
}

void TApplication::Minimize() {
    if (FMainForm && FMainForm->HandleAllocated()) FMainForm->Perform(WM_SYSCOMMAND, SC_MINIMIZE);
}

void TApplication::Restore() {
    if (FMainForm && FMainForm->HandleAllocated()) FMainForm->Perform(WM_SYSCOMMAND, SC_RESTORE);
}

void TApplication::BringToFront() {
    TCustomForm* form = Screen().GetActiveForm() ? Screen().GetActiveForm() : FMainForm;
    if (form && form->HandleAllocated()) ::SetForegroundWindow(::GetLastActivePopup(form->WindowHandle()));
}

void TApplication::ActiveChanged(bool active) {
    if (active == FActive) return;
    FActive = active;
    if (!active) CancelHint();
    RaiseActive(active);
}

int TApplication::MessageBox(const String& text, const String& caption, unsigned flags) {
    CancelHint();
    const HWND active = ::GetActiveWindow();
    int answer = 0;
    ModalStarted();
    {
        const TTaskWindowsDisabled disabled(active);
        answer = ::MessageBoxW(active ? active : FWindow->Handle(), text.c_str(), caption.c_str(), flags);
    }
    ModalFinished();
    if (active && ::IsWindow(active)) ::SetActiveWindow(active);
    return answer;
}

void TApplication::ModalStarted() {
    if (FModalLevel++ > 0) return;
    try {
        RaiseModal(true);
    } catch (...) {
        FModalLevel = 0;
        throw;
    }
}

void TApplication::ModalFinished() {
    if (--FModalLevel == 0) RaiseModal(false);
}

// --- hints

void TApplication::SetHint(const String& value) {
    if (value == FHint) return;
    FHint = value;
    RaiseHint();
}

void TApplication::SetShowHint(bool value) {
    if (value == FShowHint) return;
    FShowHint = value;
    if (!value) CancelHint();
}

void TApplication::CancelHint() {
    FHints->Cancel();
}

void TApplication::ActivateHint(TPoint cursorPos) {
    FHints->Show(cursorPos);
}

// --- the one of the process

namespace {

/// Not freed by itself: at the end of the process the tables that windows and handles are entered in go
/// first.
TApplication*& Instance() {
    static TApplication* instance = nullptr;
    return instance;
}

}  // namespace

TApplication& Application() {
    TApplication*& instance = Instance();
    if (!instance) {
        (void)Screen();
        instance = new TApplication;
    }
    return *instance;
}

void DoneApplication() {
    // Forms that end meanwhile still find the application.
    if (Instance()) Instance()->DestroyComponents();
    delete std::exchange(Instance(), nullptr);
    DoneScreen();
}

}  // namespace vcl
