#include "gallery/Navigation.h"

#include <string_view>

#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/core/DefineClass.h"

namespace gallery {

const TMetaClass& TNavigation::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TNavigation>(L"TNavigation", TQV7SkinExplorerBar::StaticClass())
            .Event(L"OnChange", &TNavigation::OnChange);
    return meta;
}

TNavigation::TNavigation(TComponent* AOwner) : TQV7SkinExplorerBar(AOwner) {
    BeginUpdate();
    std::wstring_view section;
    TQV7SkinExplorerGroup* group = nullptr;
    for (const TPageInfo& page : GalleryPages()) {
        if (!group || section != page.Section) group = GetGroups().Add(page.Section, false);
        section = page.Section;
        auto* link = new TQV7SkinExplorerItemLink(page.Title, {});
        link->OnClick = [this, index = static_cast<int>(FLinks.size())](TObject*) { SelectPage(index); };
        group->GetItems().Add(link);
        FLinks.push_back(link);
    }
    EndUpdate();
}

void TNavigation::SelectPage(int index) {
    if (index == FPageIndex || index < 0 || index >= static_cast<int>(FLinks.size())) return;
    if (FPageIndex >= 0) FLinks[static_cast<std::size_t>(FPageIndex)]->SetFontStyle({});
    FPageIndex = index;
    TQV7SkinExplorerItemLink* link = FLinks[static_cast<std::size_t>(index)];
    link->SetFontStyle({fsBold});
    ScrollIntoView(link);
    OnChange(this);
}

}  // namespace gallery
