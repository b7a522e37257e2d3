#pragma once

#include <map>

#include "designer/model/DesignDocument.h"
#include "explorerbar/UnitQV7SkinExplorerBar.h"

namespace qv7skin {
class TQV7SkinExplorerItemLink;
}

namespace designer {

/// Shows the components of a form in an explorer bar: the form and each control that holds others as a group,
/// with what stands in it as links. A click on a link chooses the component; those that are chosen are bold,
/// those that are inherited italic.
class TStructureBar {
public:
    /// Fills the bar, which must outlive it, as must the document.
    TStructureBar(TQV7SkinExplorerBar& bar, TDesignDocument& document) : FBar(bar), FDocument(document) {}

    /// Shows the components as they are now; groups that were closed stay so.
    void UpdateComponents();
    /// Shows what is chosen now.
    void UpdateSelection();

private:
    struct TGroupContent {
        String Title;
        std::vector<TComponent*> Children;
    };
    [[nodiscard]] std::vector<TGroupContent> Contents() const;
    void AddContents(TComponent& parent, std::vector<TGroupContent>& contents) const;
    void Choose(const String& name);

    TQV7SkinExplorerBar& FBar;
    TDesignDocument& FDocument;
    struct TEntry {
        TQV7SkinExplorerItemLink* Link;
        bool IsInherited;
    };
    std::map<const TComponent*, TEntry> FLinks;  ///< The components may be gone; compare only.
    String FShown;                               ///< The structure that the bar shows, as text.
};

}  // namespace designer
