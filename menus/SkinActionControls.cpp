#include "menus/SkinActionControls.h"

#include "menus/MenuItemPainter.h"
#include "platform/vcl/actions/ActionClients.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/MenuCommands.h"
#include "platform/vcl/menus/PopupMenu.h"

namespace qv7skin {
namespace {

/// What the system adds to items of its own menus for the arrow of a submenu.
constexpr int ArrowRoom = 12;

TQV7SkinMenuItemPainter* ActivePainter() {
    TQV7SkinMenuItemPainter* painter = QV7SkinMenuItemPainter();
    return painter && painter->GetActive() ? painter : nullptr;
}

/// Draws an item as a disabled one that is enabled by itself: on a copy, since the item must not change.
void DrawDisabled(TQV7SkinMenuItemPainter& painter, const TMenuItem& item, TCanvas& canvas, const TRect& rect,
                  bool selected) {
    TPopupMenu menu(nullptr);
    menu.SetImages(item.GetImageList());
    auto* copy = new TMenuItem(nullptr);
    menu.GetItems().Add(copy);
    copy->SetCaption(item.GetCaption());
    copy->SetHint(item.GetHint());
    copy->SetShortCut(item.GetShortCut());
    copy->SetRadioItem(item.GetRadioItem());
    copy->SetChecked(item.GetChecked());
    copy->SetDefault(item.GetDefault());
    copy->SetImageIndex(item.GetImageIndex());
    copy->SetEnabled(false);
    if (item.GetCount() > 0) copy->Add(new TMenuItem(nullptr));
    painter.DrawItem(*copy, canvas, rect, selected, true);
}

/// Measures with the painter; false when the control has to do it.
bool MeasureInSkin(TCustomActionControl& control) {
    TQV7SkinMenuItemPainter* painter = ActivePainter();
    TMenuItem* item = MenuItemOf(control.GetActionClient());
    if (!painter || !item) return false;
    int width = 0;
    int height = 0;
    painter->MeasureItem(*item, control.GetCanvas(), width, height);
    control.SetBounds(control.GetLeft(), control.GetTop(), width + ArrowRoom, height);
    return true;
}

/// Draws an item of a menu with the painter; false when the control has to do it.
bool DrawItemInSkin(TCustomActionControl& control) {
    TQV7SkinMenuItemPainter* painter = ActivePainter();
    TMenuItem* item = MenuItemOf(control.GetActionClient());
    if (!painter || !item) return false;
    const TRect rect = control.GetClientRect();
    if (item->GetEnabled() && !control.IsItemEnabled())
        DrawDisabled(*painter, *item, control.GetCanvas(), rect, control.GetSelected());
    else
        painter->DrawItem(*item, control.GetCanvas(), rect, control.GetSelected(), true);
    return true;
}

/// Draws a caption of the bar with the painter; false when the control has to do it.
bool DrawButtonInSkin(TCustomActionControl& control) {
    TQV7SkinMenuItemPainter* painter = ActivePainter();
    if (!painter || control.IsSeparator()) return false;
    // The ground is the bar's, which has been painted.
    painter->DrawMainMenuRootItem(control.ItemCaption(), control.GetCanvas(), control.GetClientRect(),
                                  control.GetSelected(), control.IsItemEnabled());
    return true;
}

}  // namespace

TMenuItem* MenuItemOf(const TActionClientItem* Client) {
    // The number of a freed item finds none.
    const std::intptr_t number = Client ? Client->GetTag() : 0;
    return number > 0 && number <= 0xFFFF ? FindMenuCommand(static_cast<WORD>(number)) : nullptr;
}

void SetMenuItemOf(TActionClientItem& Client, TMenuItem* Item) {
    Client.SetTag(Item ? Item->GetCommand() : 0);
}

const TMetaClass& TQV7StyleMenuItem::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7StyleMenuItem>(L"TQV7StyleMenuItem", TXPStyleMenuItem::StaticClass());
    return meta;
}

void TQV7StyleMenuItem::CalcBounds() {
    if (!MeasureInSkin(*this)) TXPStyleMenuItem::CalcBounds();
}

void TQV7StyleMenuItem::Paint() {
    if (!DrawItemInSkin(*this)) TXPStyleMenuItem::Paint();
}

const TMetaClass& TQV7StyleMenuButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7StyleMenuButton>(L"TQV7StyleMenuButton", TXPStyleMenuButton::StaticClass());
    return meta;
}

void TQV7StyleMenuButton::Paint() {
    if (!DrawButtonInSkin(*this)) TXPStyleMenuButton::Paint();
}

const TMetaClass& TQV7StyleThemedMenuItem::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7StyleThemedMenuItem>(L"TQV7StyleThemedMenuItem", TThemedMenuItem::StaticClass());
    return meta;
}

void TQV7StyleThemedMenuItem::CalcBounds() {
    if (!MeasureInSkin(*this)) TThemedMenuItem::CalcBounds();
}

void TQV7StyleThemedMenuItem::Paint() {
    if (!DrawItemInSkin(*this)) TThemedMenuItem::Paint();
}

const TMetaClass& TQV7StyleThemedMenuButton::StaticClass() {
    static const TMetaClass meta = DefineClass<TQV7StyleThemedMenuButton>(L"TQV7StyleThemedMenuButton",
                                                                          TThemedMenuButton::StaticClass());
    return meta;
}

void TQV7StyleThemedMenuButton::Paint() {
    if (!DrawButtonInSkin(*this)) TThemedMenuButton::Paint();
}

}  // namespace qv7skin
