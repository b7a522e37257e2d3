#pragma once

#include <memory>

#include "header/items/HeaderItem.h"

namespace qv7skin {

/// A button of a toolbar: picture and caption on a background that the toolbar paints for the button's state.
/// A click raises `OnClick` and selects nothing.
class TQV7SkinToolbutton : public TQV7SkinHeaderItemCustom {
public:
    /// The bitmaps are not owned and may be null; they must live as long as the button shows them.
    explicit TQV7SkinToolbutton(const String& ACaption = {}, TBitmap* AImage = nullptr,
                                TBitmap* AImageSelected = nullptr);
    ~TQV7SkinToolbutton() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The picture before the caption, drawn without its magenta pixels.
    [[nodiscard]] TBitmap* GetImage() const { return FImage; }
    void SetImage(TBitmap* Value);
    /// Stands in for the picture while the button is selected.
    [[nodiscard]] TBitmap* GetImageSelected() const { return FImageSelected; }
    void SetImageSelected(TBitmap* Value);

    /// 2 on a selected button, else 1 under the mouse, else 0.
    [[nodiscard]] int GetBackgroundState() const;
    /// True when the background is to be rendered before the button is painted next.
    [[nodiscard]] bool GetNeedsRender() const { return FNeedsRender; }
    void SetNeedsRender() { FNeedsRender = true; }

    void SetSelected(bool Value) override;
    void Click(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void Draw(TCanvas& Canvas, int& X, int Height) override;
    void Measure(TCanvas& Canvas, int& Width) override;

private:
    void NeedBackground(int Width, int Height);
    void RefreshBackground(int State);
    void DrawContent(TCanvas& Canvas, int X, int Width, int Height);

    TBitmap* FImage;
    TBitmap* FImageSelected;
    std::unique_ptr<TBitmap> FBackground;
    int FRenderedState = -1;
    int FRenderedLook = 0;
    bool FNeedsRender = true;
};

}  // namespace qv7skin
