#pragma once

#include <memory>

#include "header/control/HeaderControl.h"

namespace qv7skin {

class TToolbarPieces;

/// A header control whose items are toolbuttons, on a bar of its own. Buttons that do not fit are left out,
/// and a chevron at the right edge opens the menu in `ChevronDropDown`.
class TQV7SkinToolbar : public TQV7SkinHeaderControl, public THeaderBackgroundPainter {
public:
    /// As high as the bar's picture, 34 pixels, with margins of 10.
    explicit TQV7SkinToolbar(TComponent* AOwner);
    ~TQV7SkinToolbar() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    void SetIndexOfItemMouseOver(int Index) override;
    [[nodiscard]] TQV7SkinHeaderChevronBase* CreateChevron() override;
    void DoPaintboxPaint(TObject* Sender, TBitmap* Bitmap) override;
    /// State 0: the bar, so that a resting button does not show; 1 hovered, 2 pressed.
    void DrawBackground(TBitmap& Bitmap, int State) override;
    [[nodiscard]] int GetBackgroundLook() const override { return 0; }

private:
    std::shared_ptr<const TToolbarPieces> FPieces;
};

}  // namespace qv7skin
