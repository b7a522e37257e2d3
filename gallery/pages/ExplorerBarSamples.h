#pragma once

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "gallery/Namespace.h"

namespace qv7skin {
class TQV7SkinExplorerItemBmp;
class TQV7SkinExplorerItemProgressBar;
class TQV7SkinExplorerItemStaticText;
}  // namespace qv7skin

namespace gallery {

/// The items of the bar of an application that change while it runs; the bar owns them.
struct TTaskBarItems {
    TQV7SkinExplorerItemBmp* Preview;
    TQV7SkinExplorerItemStaticText* CopyText;
    TQV7SkinExplorerItemProgressBar* CopyProgress;
};

/// A bar as the window of a picture folder would have one: tasks, details of the chosen file, options, and
/// a copy that is under way. Clicks on links are told to `Clicked`.
[[nodiscard]] TTaskBarItems FillTaskBar(TQV7SkinExplorerBar& bar, const TNotifyEvent& Clicked);

/// Groups of forty links each.
void FillLongBar(TQV7SkinExplorerBar& bar, int groups);

/// Long captions, wrapped and cut, with line breaks in them; separators and hidden items.
void FillTextBar(TQV7SkinExplorerBar& bar, const TNotifyEvent& Clicked);

}  // namespace gallery
