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
                          "kwwddwddwddwwk",  //
                          "kwwddwddwddwwk",  //
                          "kwwwwwwwwwwwwk",  //
                          "kwwddwoowddwwk",  //
                          "kwwddwoowddwwk",  //
                          "kwwwwwwwwwwwwk",  //
                          "wkkkkkkkkkkkkw",  //
                          "wwwwwwwwwwwwww",  //
                          "wwwwwwwwwwwwww",  //
                          "wwwwkkkkkkwwww",  //
                          "wwwwwkkkkwwwww",  //
                          "wwwwwwkkwwwwww"},
                         {{'w', palette::kWhite},
                          {'b', Grey(0x12)},
                          {'k', Grey(0x62)},
                          {'A', Mix(palette::kAccent, palette::kWhite, 1, 4)},
                          {'a', palette::kAccent},
                          {'d', Grey(0xA4)},
                          {'o', palette::kAccent}}));
}

}  // namespace skinart
