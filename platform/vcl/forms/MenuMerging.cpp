#include "platform/vcl/forms/MenuMerging.h"

#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/CustomForm.h"
#include "platform/vcl/forms/Screen.h"

namespace vcl {
namespace {

/// The menu in whose bar others are merged, or null.
TWindowMenu* MainMenuOfProgram() {
    const TCustomForm* main = Application().GetMainForm();
    TWindowMenu* menu = main && !main->IsInState(csDestroying) ? main->GetMenu() : nullptr;
    return menu && !menu->IsInState(csDestroying) ? menu : nullptr;
}

}  // namespace

bool MergesIntoMainForm(const TCustomForm& form) {
    const TWindowMenu* menu = form.GetMenu();
    if (!menu || !menu->GetAutoMerge() || form.IsInState(csDesigning) || form.GetParent()) return false;
    if (form.GetFormState().Contains(fsModal) || Application().GetMainForm() == &form) return false;
    const TWindowMenu* host = MainMenuOfProgram();
    return host && host != menu;
}

void MergeFormMenu(const TCustomForm& form) {
    if (MergesIntoMainForm(form)) MainMenuOfProgram()->MergeMenu(form.GetMenu());
}

void UnmergeFormMenu(const TWindowMenu* menu) {
    TWindowMenu* host = MainMenuOfProgram();
    if (menu && host && host->GetMergedMenu() == menu) host->MergeMenu(nullptr);
}

void EndMergingMenus() {
    TWindowMenu* host = MainMenuOfProgram();
    const TWindowMenu* guest = host ? host->GetMergedMenu() : nullptr;
    if (guest && guest->GetAutoMerge()) host->MergeMenu(nullptr);
}

void ReviewMergedMenus() {
    for (TCustomForm* form : std::vector(Screen().Forms()))
        if (Screen().HasForm(form) && form->GetMenu() && form->GetMenu()->GetAutoMerge())
            form->Perform(CM_MENUCHANGED, 0, 0);
}

}  // namespace vcl
