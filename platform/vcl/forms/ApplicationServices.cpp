#include "platform/vcl/forms/ApplicationServices.h"

#include <algorithm>

#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/ApplicationHints.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/Screen.h"

namespace vcl {

TApplicationServices::TApplicationServices(TApplication& application)
    : FApplication(application), FFormer(SetAppServices(this)) {}

TApplicationServices::~TApplicationServices() {
    SetAppServices(FFormer);
}

void TApplicationServices::HandleException(std::exception_ptr error) {
    FApplication.HandleException(&FApplication, error);
}

void TApplicationServices::HintMouseMessage(TControl* control, TMessage& message) {
    FApplication.FHints->MouseMessage(control, message);
}

void TApplicationServices::CancelHint() {
    FApplication.CancelHint();
}

void TApplicationServices::SetHint(const String& text) {
    FApplication.SetHint(text);
}

HCURSOR TApplicationServices::CursorHandle(TCursor cursor) {
    return Screen().GetCursorHandle(cursor);
}

TCursor TApplicationServices::ScreenCursor() const {
    return Screen().GetCursor();
}

bool TApplicationServices::IsShortCut(TMessage& message) {
    return FApplication.IsShortCut(message);
}

bool TApplicationServices::ExecuteAction(TBasicAction* action) {
    return FApplication.ExecuteAction(action);
}

bool TApplicationServices::UpdateAction(TBasicAction* action) {
    return FApplication.UpdateAction(action);
}

std::vector<TObject*> TApplicationServices::ActionTargets() {
    std::vector<TObject*> targets;
    const auto add = [&](TObject* target) {
        if (target && std::find(targets.begin(), targets.end(), target) == targets.end())
            targets.push_back(target);
    };
    TCustomForm* form = Screen().GetActiveForm();
    if (form && !form->GetShowing()) form = nullptr;
    for (TControl* control = form ? form->GetActiveControl() : nullptr; control;
         control = control->GetParent())
        add(control);
    add(form);
    add(FApplication.GetMainForm());
    add(&FApplication);
    return targets;
}

bool TApplicationServices::IsActive() const {
    return FApplication.GetActive();
}

void TApplicationServices::ModalStarted() {
    FApplication.ModalStarted();
}

void TApplicationServices::ModalFinished() {
    FApplication.ModalFinished();
}

bool TApplicationServices::ProcessMessages() {
    return FApplication.ProcessMessages();
}

}  // namespace vcl
