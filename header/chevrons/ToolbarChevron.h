#pragma once

#include <memory>

#include "header/chevrons/HeaderChevronBase.h"

namespace qv7skin {

class TQV7SkinHeaderControl;
class TToolbarPieces;

/// The chevron of a toolbar: one button, as high as the toolbar, that opens the menu in `ChevronDropDown`.
class TQV7SkinToolbarChevron : public TQV7SkinHeaderChevronBase {
public:
    /// 15 pixels wide. The owner is the toolbar, whose pieces it is painted with.
    TQV7SkinToolbarChevron(TQV7SkinHeaderControl* AToolbar, std::shared_ptr<const TToolbarPieces> APieces);
    ~TQV7SkinToolbarChevron() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// What its background shows: nothing yet, or one of the three states.
    enum TImageState { isNone = -1, isNormal, isHovered, isPressed };

    [[nodiscard]] TImageState GetImageState() const { return FImageState; }
    /// Where the arrows stand, in client pixels.
    [[nodiscard]] TRect GetButtonRect() const { return FButtonRect; }
    /// Renders the background for the state, unless it shows that already.
    void RefreshImage(TImageState State);

    void DoFFPaint() override;

protected:
    void Dispatch(TMessage& message) override;
    void Resize() override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    void TakePlace();
    void ShowImage(TImageState State);
    void OpenMenu();
    [[nodiscard]] bool IsMouseInside() const;

    TQV7SkinHeaderControl* FToolbar;
    std::shared_ptr<const TToolbarPieces> FPieces;
    std::unique_ptr<TBitmap> FBackground;
    std::unique_ptr<TBitmap> FButton;
    TRect FButtonRect;
    TImageState FImageState = isNone;
};

}  // namespace qv7skin
