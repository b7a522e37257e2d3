#include "menus/UnitQV7SkinMenus.h"

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {
namespace {

/// The painter when it draws the menus, else null.
TQV7SkinMenuItemPainter* ActivePainter() {
    TQV7SkinMenuItemPainter* painter = QV7SkinMenuItemPainter();
    return painter && painter->GetActive() ? painter : nullptr;
}

void DrawWithPainter(TObject* sender, TCanvas& canvas, const TRect& rect, bool selected) {
    TQV7SkinMenuItemPainter* painter = ActivePainter();
    auto* item = dynamic_cast<TMenuItem*>(sender);
    // Menus of the system draw the arrow of a submenu themselves.
    if (painter && item) painter->DrawItem(*item, canvas, rect, selected, false);
}

void MeasureWithPainter(TObject* sender, TCanvas& canvas, int& width, int& height) {
    TQV7SkinMenuItemPainter* painter = ActivePainter();
    auto* item = dynamic_cast<TMenuItem*>(sender);
    if (painter && item) painter->MeasureItem(*item, canvas, width, height);
}

template <class Menu>
void HookItems(Menu& menu, TMenuItem& parent) {
    for (int i = 0; i < parent.GetCount(); ++i) {
        TMenuItem& item = *parent.GetItem(i);
        item.OnDrawItem = {&menu, &Menu::DoCustomDrawItem};
        item.OnMeasureItem = {&menu, &Menu::DoCustomMeasureItem};
        HookItems(menu, item);
    }
}

/// Takes the menu's handlers from every item below: an item with a picture is asked to draw itself although
/// the menu leaves drawing to the system, and would stay empty.
void ReleaseItems(const TMenu& menu, const TMenuItem& parent) {
    const auto release = [&menu](auto& event) {
        if (event.ObjectPart() == dynamic_cast<const void*>(&menu)) event.Clear();
    };
    for (int i = 0; i < parent.GetCount(); ++i) {
        TMenuItem& item = *parent.GetItem(i);
        release(item.OnDrawItem);
        release(item.OnMeasureItem);
        ReleaseItems(menu, item);
    }
}

/// Runs the search, and then in any case `after`, unless the menu is gone by then.
template <class Search, class After>
bool SearchBetween(const TMenu& menu, Search search, After after) {
    const TLifeGuard guard(menu);
    bool found = false;
    try {
        found = search();
    } catch (...) {
        if (guard.IsAlive()) after();
        throw;
    }
    if (guard.IsAlive()) after();
    return found;
}

}  // namespace

// --- popup menu

const TMetaClass& TQV7SkinPopupMenu::StaticClass() {
    using C = TQV7SkinPopupMenu;
    static const TMetaClass meta = DefineClass<C>(L"TQV7SkinPopupMenu", TPopupMenu::StaticClass())
                                       .Event(L"OnAfterExecuteShortCut", &C::OnAfterExecuteShortCut)
                                       .Event(L"OnBeforeExecuteShortCut", &C::OnBeforeExecuteShortCut)
                                       .Event(L"OnCloseUp", &C::OnCloseUp);
    return meta;
}

void TQV7SkinPopupMenu::ApplyCallbacks(TMenuItem& Item) {
    HookItems(*this, Item);
}

void TQV7SkinPopupMenu::ApplyCustomLayout() {
    FLaidOut = true;
    ApplyCallbacks(GetItems());
}

void TQV7SkinPopupMenu::DoChange(TMenuItem* Source, bool Rebuild) {
    // Handlers may add items while the menu opens.
    if (FLaidOut && Rebuild && Source) ApplyCallbacks(*Source);
    TPopupMenu::DoChange(Source, Rebuild);
}

void TQV7SkinPopupMenu::Popup(int X, int Y) {
    const TLifeGuard guard(*this);
    const bool isInSkin = ActivePainter() != nullptr;
    // What changes from here on keeps the handlers of the host.
    if (!isInSkin) FLaidOut = false;
    SetOwnerDraw(isInSkin);
    if (!guard.IsAlive()) return;
    if (isInSkin)
        ApplyCustomLayout();
    else
        ReleaseItems(*this, GetItems());
    TPopupMenu::Popup(X, Y);
    AppServices().ProcessMessages();
    if (guard.IsAlive()) DoCloseUp(this);
}

bool TQV7SkinPopupMenu::IsShortCut(TMessage& Message) {
    const TLifeGuard guard(*this);
    DoBeforeExecuteShortCut(this);
    if (!guard.IsAlive()) return true;
    return SearchBetween(
        *this, [&] { return TPopupMenu::IsShortCut(Message); }, [this] { DoAfterExecuteShortCut(this); });
}

void TQV7SkinPopupMenu::DoCustomDrawItem(TObject* Sender, TCanvas& ACanvas, const TRect& ARect,
                                         bool Selected) {
    DrawWithPainter(Sender, ACanvas, ARect, Selected);
}

void TQV7SkinPopupMenu::DoCustomMeasureItem(TObject* Sender, TCanvas& ACanvas, int& Width, int& Height) {
    MeasureWithPainter(Sender, ACanvas, Width, Height);
}

// --- main menu

const TMetaClass& TQV7SkinMainMenu::StaticClass() {
    using C = TQV7SkinMainMenu;
    static const TMetaClass meta = DefineClass<C>(L"TQV7SkinMainMenu", TMainMenu::StaticClass())
                                       .Event(L"OnAfterExecuteShortCut", &C::OnAfterExecuteShortCut)
                                       .Event(L"OnBeforeExecuteShortCut", &C::OnBeforeExecuteShortCut);
    return meta;
}

void TQV7SkinMainMenu::ApplyCallbacks(TMenuItem& Item) {
    HookItems(*this, Item);
}

void TQV7SkinMainMenu::ApplyCustomLayout() {
    FLaidOut = true;
    SetOwnerDraw(true);
    ApplyCallbacks(GetItems());
}

void TQV7SkinMainMenu::Loaded() {
    TMainMenu::Loaded();
    if (!IsInState(csDesigning) && ActivePainter()) ApplyCustomLayout();
}

void TQV7SkinMainMenu::DoChange(TMenuItem* Source, bool Rebuild) {
    if (FLaidOut && Rebuild && Source) ApplyCallbacks(*Source);
    TMainMenu::DoChange(Source, Rebuild);
}

bool TQV7SkinMainMenu::IsShortCut(TMessage& Message) {
    const TLifeGuard guard(*this);
    DoBeforeExecuteShortCut(this);
    if (!guard.IsAlive()) return true;
    return SearchBetween(
        *this, [&] { return TMainMenu::IsShortCut(Message); }, [this] { DoAfterExecuteShortCut(this); });
}

void TQV7SkinMainMenu::DoCustomDrawItem(TObject* Sender, TCanvas& ACanvas, const TRect& ARect,
                                        bool Selected) {
    DrawWithPainter(Sender, ACanvas, ARect, Selected);
}

void TQV7SkinMainMenu::DoCustomMeasureItem(TObject* Sender, TCanvas& ACanvas, int& Width, int& Height) {
    MeasureWithPainter(Sender, ACanvas, Width, Height);
}

}  // namespace qv7skin
