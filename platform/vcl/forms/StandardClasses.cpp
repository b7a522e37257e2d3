#include "platform/vcl/forms/StandardClasses.h"

#include "platform/vcl/actions/Action.h"
#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/actions/ActionMenuBars.h"
#include "platform/vcl/forms/ApplicationEvents.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/MainMenu.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/stdctrls/Bevel.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "platform/vcl/stdctrls/ComboBox.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/ListBox.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/MonthCalendar.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/stdctrls/ScrollBar.h"
#include "platform/vcl/stdctrls/ScrollBox.h"
#include "platform/vcl/stdctrls/Splitter.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "platform/vcl/stdctrls/TrackBar.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace vcl {

void RegisterStandardClasses() {
    // Forms, menu items and actions are made by their editors, not from the palette.
    RegisterClasses({&TForm::StaticClass(), &TMenuItem::StaticClass(), &TAction::StaticClass()});
    RegisterComponents(L"Standard",
                       {&TMainMenu::StaticClass(), &TPopupMenu::StaticClass(), &TLabel::StaticClass(),
                        &TEdit::StaticClass(), &TMemo::StaticClass(), &TButton::StaticClass(),
                        &TCheckBox::StaticClass(), &TListBox::StaticClass(), &TComboBox::StaticClass(),
                        &TScrollBar::StaticClass(), &TPanel::StaticClass(), &TActionList::StaticClass()});
    RegisterComponents(L"Additional",
                       {&TImage::StaticClass(), &TBevel::StaticClass(), &TScrollBox::StaticClass(),
                        &TSplitter::StaticClass(), &TApplicationEvents::StaticClass(),
                        &TActionManager::StaticClass(), &TActionMainMenuBar::StaticClass()});
    RegisterComponents(
        L"Win32", {&TImageList::StaticClass(), &TTrackBar::StaticClass(), &TMonthCalendar::StaticClass()});
    RegisterComponents(L"System", {&TTimer::StaticClass()});
}

}  // namespace vcl
