#include "resources/skinart/Catalogue.h"
#include "resources/skinart/Glyph.h"

namespace skinart {

/// A calendar sheet over the arrow of a drop-down. The button is drawn without transparency on white.
void AddCalendarButton(Catalogue& skin) {
    skin.Add("DATETIMEPICKERBUTTON",
             FromPattern({"wwwbwwwwwwbwww",  //
                          "wkkbkkkkkkbkkw",  //
                          "kAAbAAAAAAbAAk",  //
                          "kaaaaaaaaaaaak",  //
                          "kaaaaaaaaaaaak",  //
                          "kwwwwwwwwwwwwk",  //
                          "kwwwwddwddwddk",  //
                          "kwwwwddwddwddk",  //
                          "kwwwwwwwwwwwwk",  //
                          "kddwddwooweewk",  //
                          "kddwddwooweewk",  //
                          "kwwwwwwwwwwwwk",  //
                          "wkkkkkkkkkkkkw",  //
                          "wwwwwwwwwwwwww",  //
                          "wwwwwwwwwwwwww",  //
                          "wwwwttttttwwww",  //
                          "wwwwwttttwwwww",  //
                          "wwwwwwttwwwwww"},
                         {{'w', palette::kWhite},
                          {'b', Grey(0x12)},
                          {'k', Grey(0x62)},
                          {'A', Mix(palette::kAccent, palette::kWhite, 1, 4)},
                          {'a', palette::kAccent},
                          {'d', Grey(0x93)},
                          {'e', Grey(0x93)},
                          {'o', palette::kAccent},
                          {'t', palette::kBlack}}));
}

}  // namespace skinart
