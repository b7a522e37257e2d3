#pragma once

#include <vector>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "gallery/GalleryPage.h"

namespace qv7skin {
class TQV7SkinExplorerItemLink;
}

namespace gallery {

/// The list of pages at the left edge: an explorer bar with a group for each section and a link for each
/// page.
class TNavigation : public TQV7SkinExplorerBar {
public:
    explicit TNavigation(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// Raised after another page was chosen, by the user or by `SelectPage`.
    TNotifyEvent OnChange;
    [[nodiscard]] int GetPageIndex() const { return FPageIndex; }
    /// Numbers outside the list are ignored.
    void SelectPage(int index);

private:
    std::vector<TQV7SkinExplorerItemLink*> FLinks;
    int FPageIndex = -1;
};

}  // namespace gallery
