#include "designer/inspector/InspectorPages.h"

namespace designer {

TQV7SkinHeaderItemTabExt* MakeTab(const String& caption) {
    auto* tab = new TQV7SkinHeaderItemTabExt(bckgrndStandard, caption);
    tab->SetStyle({});
    return tab;
}

void AddInspectorPages(TQV7SkinSimpleTabControl& tabs, TInspectorGrid& grid, TPropertyList& properties,
                       TPropertyList& events) {
    const auto add = [&](const wchar_t* caption, TPropertyList& list) {
        auto* tab = MakeTab(caption);
        tab->OnClick = [&grid, &list](TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int) {
            grid.SetList(&list);
        };
        tabs.GetItems().Add(tab);
    };
    add(L"Eigenschaften", properties);
    add(L"Ereignisse", events);
    tabs.GetItems()[0]->Click(mbLeft, {}, 1, 1);
}

}  // namespace designer
