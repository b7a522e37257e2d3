#pragma once

#include "designer/inspector/InspectorGrid.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinTabControl.h"

namespace designer {

/// A tab with nothing but its caption, which keeps away from the edge.
[[nodiscard]] TQV7SkinHeaderItemTabExt* MakeTab(const String& caption);

/// Gives the control two tabs, of which one lets the grid show the properties and one the events; chooses the
/// first. The lists must outlive the grid's use of them.
void AddInspectorPages(TQV7SkinSimpleTabControl& tabs, TInspectorGrid& grid, TPropertyList& properties,
                       TPropertyList& events);

}  // namespace designer
