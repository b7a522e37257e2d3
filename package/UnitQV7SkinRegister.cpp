#include "package/UnitQV7SkinRegister.h"

#include "buttons/UnitQV7SkinButton.h"
#include "buttons/UnitQV7SkinButtonMsgDlg.h"
#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "header/UnitQV7SkinHeader.h"
#include "header/UnitQV7SkinTabControl.h"
#include "header/UnitQV7SkinToolbar.h"
#include "indicators/UnitQV7SkinGauges.h"
#include "indicators/UnitQV7SkinLinkLabel.h"
#include "indicators/UnitQV7SkinSplitter.h"
#include "inputs/UnitQV7SkinCheckBox.h"
#include "inputs/UnitQV7SkinComboBox.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "inputs/UnitQV7SkinDateTimePicker.h"
#include "inputs/UnitQV7SkinEdit.h"
#include "inputs/UnitQV7SkinGroupBox.h"
#include "inputs/UnitQV7SkinPanel.h"
#include "inputs/UnitQV7SkinRadioButton.h"
#include "inputs/UnitQV7SkinSpinEdit.h"
#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace qv7skin {

std::span<const TPaletteEntry> PaletteEntries() {
    static constexpr TPaletteEntry entries[] = {
        {L"TQV7SkinButton", &TQV7SkinButton::StaticClass},
        {L"TQV7SkinButtonMsgDlg", &TQV7SkinButtonMsgDlg::StaticClass},
        {L"TQV7SkinEdit", &TQV7SkinEdit::StaticClass},
        {L"TQV7SkinComboBox", &TQV7SkinComboBox::StaticClass},
        {L"TQV7SkinComboBoxCustomDropDown", &TQV7SkinComboBoxCustomDropDown::StaticClass},
        {L"TQV7SkinTreeComboBox", &TQV7SkinTreeComboBox::StaticClass},
        {L"TQV7SkinExplorerBar", &TQV7SkinExplorerBar::StaticClass},
        {L"TQV7SkinSimpleTabControl", &TQV7SkinSimpleTabControl::StaticClass},
        {L"TQV7SkinTabControl", &TQV7SkinTabControl::StaticClass},
        {L"TQV7SkinToolbar", &TQV7SkinToolbar::StaticClass},
        {L"TQV7SkinCheckBox", &TQV7SkinCheckBox::StaticClass},
        {L"TQV7SkinRadioButton", &TQV7SkinRadioButton::StaticClass},
        {L"TQV7SkinPanel", &TQV7SkinPanel::StaticClass},
        {L"TQV7SkinGroupBox", &TQV7SkinGroupBox::StaticClass},
        {L"TQV7SkinPopupMenu", &TQV7SkinPopupMenu::StaticClass},
        {L"TQV7SkinMainMenu", &TQV7SkinMainMenu::StaticClass},
        {L"TQV7SkinHeader", &TQV7SkinHeader::StaticClass},
        {L"TQV7SkinSpinEdit", &TQV7SkinSpinEdit::StaticClass},
        {L"TQV7SkinDateTimePicker", &TQV7SkinDateTimePicker::StaticClass},
        {L"TQV7SkinGauge", &TQV7SkinGauge::StaticClass},
        {L"TQV7SkinLinkLabel", &TQV7SkinLinkLabel::StaticClass},
        {L"TQV7SkinSplitter", &TQV7SkinSplitter::StaticClass},
    };
    return entries;
}

extern "C" void Register() {
    for (const TPaletteEntry& entry : PaletteEntries())
        RegisterComponents(L"QV7", {&entry.Class()});
}

}  // namespace qv7skin
