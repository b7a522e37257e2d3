#pragma once

#include <memory>

#include "platform/vcl/controls/GraphicControl.h"

namespace vcl {

class TPicture;

/// Shows a picture. It has no window.
class TImage : public TGraphicControl {
public:
    explicit TImage(TComponent* AOwner);
    ~TImage() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The picture, owned by the control; change it in place or assign another.
    [[nodiscard]] TPicture& GetPicture() const { return *FPicture; }
    void SetPicture(const TPicture& value);
    /// The surface of the picture itself, for drawing that lasts: an empty picture becomes a bitmap of the
    /// control's size. Raises EInvalidOperation "Can only modify an image if it contains a bitmap" for a
    /// picture of another kind.
    [[nodiscard]] TCanvas& GetCanvas();

    [[nodiscard]] bool GetStretch() const { return FStretch; }
    /// Whether the picture takes the control's size.
    void SetStretch(bool value);
    [[nodiscard]] bool GetCenter() const { return FCenter; }
    void SetCenter(bool value);
    [[nodiscard]] bool GetProportional() const { return FProportional; }
    /// Whether width and height of the picture keep their ratio; it then shrinks when it is too large, and
    /// grows only together with `Stretch`.
    void SetProportional(bool value);
    [[nodiscard]] bool GetTransparent() const { return FTransparent; }
    /// Whether pixels of the picture's transparent colour are left out.
    void SetTransparent(bool value);
    /// Whether changes of the picture repaint the control at once instead of with the next paint message.
    [[nodiscard]] bool GetIncrementalDisplay() const { return FIncrementalDisplay; }
    void SetIncrementalDisplay(bool value) { FIncrementalDisplay = value; }
    /// The place of the picture in client pixels, by the rules above.
    [[nodiscard]] TRect DestRect() const;

protected:
    bool CanAutoSize(int& newWidth, int& newHeight) override;
    void Paint() override;
    void Resize() override;
    void Loaded() override;

private:
    void PictureChanged(TObject* sender);
    void UpdateOpacity();

    std::unique_ptr<TPicture> FPicture;
    bool FStretch = false;
    bool FCenter = false;
    bool FProportional = false;
    bool FTransparent = false;
    bool FIncrementalDisplay = false;
    bool FDrawing = false;
};

}  // namespace vcl
