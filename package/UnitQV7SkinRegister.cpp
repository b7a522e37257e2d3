#include "package/UnitQV7SkinRegister.h"

#include "buttons/UnitQV7SkinButton.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace qv7skin {

std::span<const TPaletteEntry> PaletteEntries() {
    static constexpr TPaletteEntry entries[] = {
        {L"TQV7SkinButton", &TQV7SkinButton::StaticClass},
        {L"TQV7SkinButtonMsgDlg", nullptr},
        {L"TQV7SkinEdit", nullptr},
        {L"TQV7SkinComboBox", nullptr},
        {L"TQV7SkinComboBoxCustomDropDown", nullptr},
        {L"TQV7SkinTreeComboBox", nullptr},
        {L"TQV7SkinExplorerBar", nullptr},
        {L"TQV7SkinSimpleTabControl", nullptr},
        {L"TQV7SkinTabControl", nullptr},
        {L"TQV7SkinToolbar", nullptr},
        {L"TQV7SkinCheckBox", nullptr},
        {L"TQV7SkinRadioButton", nullptr},
        {L"TQV7SkinPanel", nullptr},
        {L"TQV7SkinGroupBox", nullptr},
        {L"TQV7SkinPopupMenu", nullptr},
        {L"TQV7SkinMainMenu", nullptr},
        {L"TQV7SkinHeader", nullptr},
        {L"TQV7SkinSpinEdit", nullptr},
        {L"TQV7SkinDateTimePicker", nullptr},
        {L"TQV7SkinGauge", nullptr},
        {L"TQV7SkinLinkLabel", nullptr},
        {L"TQV7SkinSplitter", nullptr},
    };
    return entries;
}

extern "C" void Register() {
    for (const TPaletteEntry& entry : PaletteEntries())
        if (entry.Class) RegisterComponents(L"QV7", {&entry.Class()});
}

}  // namespace qv7skin
