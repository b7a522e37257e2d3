#include "header/tabs/HoveredTabs.h"

#include "header/control/HeaderControl.h"
#include "header/items/HeaderItemTab.h"
#include "header/items/HeaderItems.h"

namespace qv7skin {

void RenderHoveredTabs(const TQV7SkinHeaderControl& Control, int NewIndex) {
    const TQV7SkinHeaderItems& items = Control.GetItems();
    for (const int index : {Control.GetIndexOfItemMouseOver(), NewIndex}) {
        if (index < 0 || index >= items.GetCount()) continue;
        if (auto* tab = dynamic_cast<TQV7SkinHeaderItemTab*>(items[index])) tab->SetNeedsRender();
    }
}

}  // namespace qv7skin
