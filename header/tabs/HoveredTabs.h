#pragma once

namespace qv7skin {

class TQV7SkinHeaderControl;

/// Has the tab under the mouse and the one that comes under it (by index; -1: none) rendered anew, since they
/// change their state. Items that are no tabs see to that themselves.
void RenderHoveredTabs(const TQV7SkinHeaderControl& Control, int NewIndex);

}  // namespace qv7skin
