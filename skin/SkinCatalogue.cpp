#include "skin/SkinCatalogue.h"

#include <array>
#include <initializer_list>
#include <vector>

#include "skin/UnitQV7SkinConsts.h"

namespace qv7skin {
namespace {

using Catalogue = std::vector<TSkinBitmapInfo>;
using FrameSizes = std::array<TSize, AllFramePositions.size()>;  // in the order of TFramePosition

void AddFrame(Catalogue& list, const String& prefix, const FrameSizes& sizes) {
    for (std::size_t i = 0; i < sizes.size(); ++i)
        list.push_back({FrameResourceName(prefix, AllFramePositions[i]), sizes[i]});
}

void AddStates(Catalogue& list, const String& prefix, std::initializer_list<TSkinState> states, TSize size) {
    for (const TSkinState state : states)
        list.push_back({SkinResourceName(prefix, state), size});
}

void AddFrames(Catalogue& list) {
    constexpr FrameSizes button{{{13, 12}, {1, 12}, {13, 12}, {13, 12}, {1, 12}, {13, 12}, {7, 1}, {7, 1}}};
    for (const TSkinState state : {ssDefault, ssHovered, ssPressed, ssDisabled})
        AddFrame(list, SkinResourceName(L"SKINBUTTON", state), button);

    constexpr FrameSizes mask{{{15, 12}, {1, 3}, {15, 12}, {15, 12}, {1, 2}, {15, 12}, {4, 1}, {2, 1}}};
    AddFrame(list, L"MASK", mask);
    AddFrame(list, L"MASKWHITE", mask);

    constexpr FrameSizes tab{{{10, 11}, {1, 11}, {10, 11}, {10, 9}, {1, 9}, {10, 9}, {5, 1}, {5, 1}}};
    FrameSizes restingTab = tab;
    restingTab[0] = {7, 11};  // a resting tab has a narrower corner
    AddFrame(list, L"TABDEFAULT", restingTab);
    AddFrame(list, L"TABHOVERED", tab);
    AddFrame(list, L"TABPRESSED", tab);
    AddFrame(list, L"WHITETABDEFAULT", tab);
    AddFrame(list, L"WHITETABPRESSED", tab);
}

void AddTabPictures(Catalogue& list) {
    for (const wchar_t* frame : {L"TABANIMATION0", L"TABANIMATION1", L"TABANIMATION2"})
        AddStates(list, frame, {ssDefault, ssPressed}, {5, 15});
    AddStates(list, L"TABCLOSE", {ssDefault, ssPressed}, {6, 6});
    AddStates(list, L"TABLOCK", {ssDefault, ssPressed}, {10, 8});
    AddStates(list, L"TABUNLOCK", {ssDefault, ssPressed}, {10, 8});
    list.push_back({L"TABDRAGLEFT", {16, 16}});
    list.push_back({L"TABDRAGRIGHT", {16, 16}});
}

void AddToolbar(Catalogue& list) {
    list.push_back({L"TOOLBARBACKGROUND", {1, 34}});
    for (const TSkinState state : {ssHovered, ssPressed}) {
        const String prefix = SkinResourceName(L"TOOLBUTTON", state);
        list.push_back({BandResourceName(prefix, bpLeft), {2, 34}});
        list.push_back({BandResourceName(prefix, bpCenter), {1, 34}});
        list.push_back({BandResourceName(prefix, bpRight), {2, 34}});
    }
    list.push_back({L"TOOLBUTTONCHEVRONBUTTON", {10, 10}});
    list.push_back({L"TOOLBUTTONCHEVRONBUTTON_OLD_2", {18, 10}});  // drawn by no control
    list.push_back({L"TOOLBUTTONCHEVRONLEFT", {1, 34}});
    for (const wchar_t* button : {L"CHEVRONBUTTONDOWN", L"CHEVRONBUTTONLEFT", L"CHEVRONBUTTONRIGHT"})
        AddStates(list, button, {ssDefault, ssHovered, ssDisabled}, {14, 14});
}

void AddHeaders(Catalogue& list) {
    list.push_back({L"EXPLORERBARHEADERTOP", {1, 9}});
    list.push_back({L"EXPLORERBARHEADERBOTTOM", {1, 10}});
    for (const wchar_t* button : {L"EXPLORERBARBUTTONMAXIMIZE", L"EXPLORERBARBUTTONMINIMIZE"})
        AddStates(list, button, {ssDefault, ssHovered, ssDisabled}, {14, 14});
    list.push_back({L"COLUMNHEADERTOP", {1, 9}});
    list.push_back({L"COLUMNHEADERBOTTOM", {1, 10}});
    list.push_back({L"COLUMNHEADERSORTASCENDING", {6, 6}});
    list.push_back({L"COLUMNHEADERSORTDESCENDING", {6, 6}});
    list.push_back({L"DATETIMEPICKERBUTTON", {14, 18}});
}

Catalogue MakeSkinCatalogue() {
    Catalogue list;
    AddFrames(list);
    AddTabPictures(list);
    AddToolbar(list);
    AddHeaders(list);
    return list;
}

Catalogue MakeIconCatalogue() {
    Catalogue list;
    for (const wchar_t* name :
         {L"TQV7SKINBUTTON", L"TQV7SKINBUTTONWITHIMAGE", L"TQV7SKINCHECKBOX", L"TQV7SKINCOMBOBOX",
          L"TQV7SKINCOMBOBOXCUSTOMDROPDOWN", L"TQV7SKINDATETIMEPICKER", L"TQV7SKINEDIT",
          L"TQV7SKINEXPLORERBAR", L"TQV7SKINGROUPBOX", L"TQV7SKINPANEL", L"TQV7SKINRADIOBUTTON",
          L"TQV7SKINSIMPLETABCONTROL", L"TQV7SKINSPINEDIT", L"TQV7SKINTABCONTROL", L"TQV7SKINTOOLBAR",
          L"TQV7SKINTREECOMBOBOX"})
        list.push_back({name, {24, 24}});
    return list;
}

}  // namespace

std::span<const TSkinBitmapInfo> SkinBitmapCatalogue() {
    static const Catalogue list = MakeSkinCatalogue();
    return list;
}

std::span<const TSkinBitmapInfo> PaletteIconCatalogue() {
    static const Catalogue list = MakeIconCatalogue();
    return list;
}

}  // namespace qv7skin
