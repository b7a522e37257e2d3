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

}  // namespace test
