#pragma once

#include <vector>

#include "gallery/GalleryPage.h"
#include "skin/UnitQV7SkinClasses.h"

namespace gallery {

/// The list of pages at the left edge: sections in column header bands, pages below them. Follows the mouse,
/// the arrow keys, Home and End.
class TNavigation : public TCustomControl {
public:
    explicit TNavigation(TComponent* AOwner);
    /// Raised after another page was chosen, by the user or by `SelectPage`.
    TNotifyEvent OnChange;
    [[nodiscard]] int GetPageIndex() const { return FPageIndex; }
    /// Numbers outside the list are ignored.
    void SelectPage(int index);

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    void MouseMove(TShiftState shift, int x, int y) override;
    void MouseLeave() override;
    void KeyDown(WORD& key, TShiftState shift) override;

private:
    /// A row of the list: a page, or with PageIndex -1 a section.
    struct TRow {
        const wchar_t* Text;
        int PageIndex;
        TRect Rect;
    };
    void LayOut();
    void DrawRow(TCanvas& canvas, const TRow& row);
    void SetHotPage(int index);
    [[nodiscard]] int PageAt(TPoint point) const;

    std::vector<TRow> FRows;
    TQV7SkinColumnHeaderPainter FBandPainter;
    int FPageIndex = -1;
    int FHotPage = -1;
};

}  // namespace gallery
