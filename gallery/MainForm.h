#pragma once

#include <vector>

#include "gallery/Navigation.h"
#include "gallery/PaintArea.h"
#include "platform/vcl/forms/Form.h"
#include "skin/UnitQV7SkinClasses.h"

namespace gallery {

/// The gallery's window: title band, navigation and the chosen page.
class TMainForm : public TForm {
public:
    /// Reads the window from its form file and opens the first page.
    explicit TMainForm(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// Opens a page; makes it when it was not open before.
    void OpenPage(int index);
    /// The page that is shown.
    [[nodiscard]] TGalleryPage& CurrentPage() const { return *FPages[static_cast<std::size_t>(FCurrent)]; }

private:
    void NavigationChanged(TObject*);
    void PaintTitle(TCanvas& canvas, const TRect& rect);

    TPaintArea* FTitle = nullptr;
    TNavigation* FNavigation = nullptr;
    std::vector<TGalleryPage*> FPages;
    TQV7SkinColumnHeaderPainter FBandPainter;
    int FCurrent = -1;
};

}  // namespace gallery
