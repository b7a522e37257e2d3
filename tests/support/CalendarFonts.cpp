#include "tests/support/CalendarFonts.h"

#include <vector>

#include "tests/support/LedgerTest.h"

namespace test {
namespace {

constexpr ULONG_PTR HandleEnd = 65536;

std::set<HGDIOBJ> BoldFonts() {
    std::set<HGDIOBJ> fonts;
    for (ULONG_PTR number = 1; number < HandleEnd; ++number) {
        const auto handle = reinterpret_cast<HGDIOBJ>(number);
        if (GetObjectType(handle) != OBJ_FONT) continue;
        LOGFONTW font{};
        if (GetObjectW(handle, sizeof font, &font) && font.lfWeight == FW_BOLD) fonts.insert(handle);
    }
    return fonts;
}

/// A menu with one item, or with one for each month, counted from 1.
bool IsOfCalendar(HMENU menu) {
    const int count = IsMenu(menu) ? GetMenuItemCount(menu) : 0;
    return (count == 1 || count == 12) && GetMenuItemID(menu, 0) == 1;
}

std::set<HMENU> MenusOfCalendars() {
    std::set<HMENU> menus;
    // Half a handle is enough for the system.
    for (ULONG_PTR number = 0x20; number < HandleEnd; number += 2) {
        const auto menu = reinterpret_cast<HMENU>(number);
        if (IsOfCalendar(menu)) menus.insert(menu);
    }
    return menus;
}

std::vector<const CalendarFonts*>& Living() {
    static std::vector<const CalendarFonts*> living;
    return living;
}

}  // namespace

CalendarFonts::CalendarFonts() : FBefore(BoldFonts()) {
    static const bool registered = [] {
        LedgerTest::BeforeSnapshots(&CalendarFonts::SweepAll);
        return true;
    }();
    (void)registered;
    Living().push_back(this);
}

CalendarFonts::~CalendarFonts() {
    std::erase(Living(), this);
}

void CalendarFonts::SweepAll() {
    for (const CalendarFonts* fonts : Living())
        fonts->Sweep();
}

void CalendarFonts::Sweep() const {
    for (const HGDIOBJ font : BoldFonts())
        if (!FBefore.contains(font)) DeleteObject(font);
}

CalendarMenus::CalendarMenus() : FBefore(MenusOfCalendars()) {}

void CalendarMenus::Sweep() const {
    for (const HMENU menu : MenusOfCalendars())
        if (!FBefore.contains(menu)) DestroyMenu(menu);
}

}  // namespace test
