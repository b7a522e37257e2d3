#pragma once

#include <set>

#include <windows.h>

namespace test {

/// Wine's month calendar makes a bold font for each font that it is given and forgets it. A fixture that
/// makes calendars has one of these as a member: before the ledger counts what is left, it deletes the bold
/// fonts that came since it was made. What it deletes is nobody's: all controls are gone by then.
class CalendarFonts {
public:
    CalendarFonts();
    ~CalendarFonts();
    CalendarFonts(const CalendarFonts&) = delete;
    CalendarFonts& operator=(const CalendarFonts&) = delete;

private:
    static void SweepAll();
    void Sweep() const;

    std::set<HGDIOBJ> FBefore;
};

/// And it makes a menu for each right click, and for each click on the month.
class CalendarMenus {
public:
    CalendarMenus();
    /// Destroys the menus of calendars that came since the object was made. For the end of a test, when all
    /// its controls are gone.
    void Sweep() const;

private:
    std::set<HMENU> FBefore;
};

}  // namespace test
