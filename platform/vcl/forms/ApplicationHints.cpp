#include "platform/vcl/forms/ApplicationHints.h"

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Timer.h"

namespace vcl {
namespace {

/// The first control from here upwards that shows hints.
TControl* HintingControl(TControl* control) {
    while (control && !control->GetShowHint())
        control = control->GetParent();
    return control && !control->IsInState(csDesigning) ? control : nullptr;
}

/// The text of the first control from here upwards that has one.
String HintOf(const TControl* control) {
    while (control && control->GetHint().empty())
        control = control->GetParent();
    return control ? control->GetHint() : String();
}

/// Pixels from the pointer's hot spot to below its picture.
int RoomBelowPointer() {
    return ::GetSystemMetrics(SM_CYCURSOR) * 2 / 3;
}

}  // namespace

void TControlReference::Set(TControl* control) {
    FControl = control;
    FGuard.reset();
    if (control) FGuard.emplace(*control);
}

TApplicationHints::TApplicationHints(TApplication& application)
    : FApplication(application), FTimer(std::make_unique<TTimer>(nullptr)) {
    FTimer->SetEnabled(false);
    FTimer->OnTimer = {this, &TApplicationHints::TimerElapsed};
}

TApplicationHints::~TApplicationHints() = default;

// --- what the pointer does

void TApplicationHints::MouseMessage(TControl* control, const TMessage& message) {
    if (message.Msg != WM_MOUSEMOVE) return;
    if (control != FPointed.Get()) {
        FPointed.Set(control);
        const TLifeGuard guard(*control);
        FApplication.SetHint(GetLongHint(HintOf(control)));
        if (!guard.IsAlive()) return;
    }
    TControl* hinting = FApplication.GetShowHint() ? HintingControl(control) : nullptr;
    if (!hinting)
        Cancel();
    else if (hinting != FControl.Get() ||
             !FCursorRect.Contains(hinting->ScreenToClient(control->ClientToScreen(message.Pos()))))
        PointerOn(hinting, control->ClientToScreen(message.Pos()));
}

/// The pointer came to a control, or to another part of it, whose hint is not known yet.
void TApplicationHints::PointerOn(TControl* control, TPoint screenPos) {
    const bool wasShown = FShown;
    Hide();
    FControl.Set(control);
    FCursorRect = control->GetClientRect();
    int pause = wasShown ? FApplication.GetHintShortPause() : FApplication.GetHintPause();
    control->Perform(CM_HINTSHOWPAUSE, wasShown, &pause);
    if (!FControl.Get()) return;
    if (wasShown && pause == 0)
        Show(screenPos);
    else
        Wait(pause);
}

void TApplicationHints::QueueMessage(const MSG& message) {
    if (FWindow && FWindow->IsHintMsg(message)) Cancel();
}

void TApplicationHints::Idle() {
    if (!FPointed.IsSet() || (FPointed.Get() && GetMouseControl())) return;
    FPointed.Set(nullptr);
    FApplication.SetHint(String());
    Cancel();
}

// --- time

void TApplicationHints::Wait(int milliseconds) {
    FTimer->SetEnabled(false);
    FTimer->SetInterval(static_cast<unsigned>(milliseconds > 0 ? milliseconds : 1));
    FTimer->SetEnabled(true);
}

void TApplicationHints::TimerElapsed(TObject*) {
    FTimer->SetEnabled(false);
    if (FShown && !FReshow)
        Hide();
    else
        Show(Mouse().GetCursorPos());
}

// --- showing

void TApplicationHints::Show(TPoint cursorPos) {
    TControl* control = HintingControl(FindDragTarget(cursorPos, true));
    if (!control || !FApplication.GetShowHint() || !FApplication.GetActive()) return Cancel();
    ShowFor(*control, cursorPos);
}

void TApplicationHints::ShowFor(TControl& control, TPoint cursorPos) {
    THintInfo info;
    info.HintControl = &control;
    info.HintPos = {cursorPos.X, cursorPos.Y + RoomBelowPointer()};
    info.HintMaxWidth = Screen().GetWidth();
    info.HintColor = FApplication.GetHintColor();
    info.CursorRect = control.GetClientRect();
    info.CursorPos = control.ScreenToClient(cursorPos);
    info.HideTimeout = FApplication.GetHintHidePause();
    info.HintStr = GetShortHint(HintOf(&control));
    FControl.Set(&control);
    const bool wanted = Ask(control, info);
    if (!FControl.Get()) return Cancel();
    FCursorRect = info.CursorRect;
    if (!wanted || info.HintStr.empty()) return Hide();
    Open(info);
}

/// Lets the control, then the host, change what is shown; false when one of them wants none.
bool TApplicationHints::Ask(TControl& control, THintInfo& info) {
    const TLifeGuard guard(control);
    if (control.Perform(CM_HINTSHOW, 0, &info) != 0 || !guard.IsAlive()) return false;
    bool wanted = true;
    FApplication.RaiseShowHint(info.HintStr, wanted, info);
    return wanted;
}

void TApplicationHints::Open(THintInfo& info) {
    FWindow = std::make_unique<THintWindow>(nullptr);
    FWindow->SetColor(info.HintColor);
    TRect rect = FWindow->CalcHintRect(info.HintMaxWidth, info.HintStr);
    rect.Offset(info.HintPos.X, info.HintPos.Y);
    FWindow->ActivateHint(rect, info.HintStr);
    FShown = true;
    FReshow = info.ReshowTimeout > 0;
    Wait(FReshow ? info.ReshowTimeout : info.HideTimeout);
}

void TApplicationHints::Hide() {
    FTimer->SetEnabled(false);
    FWindow.reset();
    FShown = false;
}

void TApplicationHints::Cancel() {
    if (!FControl.IsSet() && !FShown) return;
    Hide();
    FControl.Set(nullptr);
}

}  // namespace vcl
