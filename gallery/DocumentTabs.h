#pragma once

#include <memory>
#include <vector>

#include "gallery/Namespace.h"
#include "gallery/ToolIcons.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinTabControl.h"
#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/menus/PopupMenu.h"

namespace gallery {

/// The control, which gets no border, with a white margin around it.
[[nodiscard]] TControl* WithMargin(TWinControl* control);
/// A memo with these lines, on a margin.
[[nodiscard]] TControl* MakeMemo(std::initializer_list<const wchar_t*> lines);

/// A tab control above the contents of its tabs: a click on a tab shows what belongs to it, closing a tab
/// frees it, Ctrl+Tab switches, and the chevron's menu lists all tabs.
///
/// Form files place it; its tabs are added in code after that.
class TDocumentTabs : public TCustomControl {
public:
    explicit TDocumentTabs(TComponent* AOwner);
    ~TDocumentTabs() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The look of tabs and frame. Plain field, counts when the control is loaded.
    TQV7SkinTabBackground Look = bckgrndStandard;

    [[nodiscard]] TQV7SkinTabControl& Tabs() const { return *FTabs; }
    /// Adds a tab at the end; `content`, which fills the area below while the tab is selected, belongs to it.
    TQV7SkinHeaderItemTabExt* Add(const String& caption, TToolIcon icon, TControl* content);
    /// Selects the tab with that index.
    void Open(int index);
    /// Adds an empty note and opens it.
    void AddNote();

protected:
    void Loaded() override;
    void Paint() override;
    void AlignControls(TControl* control, TRect& rect) override;

private:
    struct TDocument {
        TQV7SkinHeaderItemCustom* Tab;
        std::unique_ptr<TBitmap> Icon;
        TControl* Content;
    };

    void TabClicked(TQV7SkinHeaderItemCustom* tab, TMouseButton, TShiftState, int, int);
    void TabClosed(TQV7SkinHeaderItemCustom* tab);
    void Show(const TQV7SkinHeaderItemCustom* tab);
    void FillMenu(TObject*);

    std::vector<TDocument> FDocuments;
    TQV7SkinTabControl* FTabs;
    TPopupMenu* FMenu;
    int FNotes = 0;
};

}  // namespace gallery
