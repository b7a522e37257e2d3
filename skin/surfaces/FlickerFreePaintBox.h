#pragma once

#include <memory>

#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// Sender, and the buffer to paint on.
using TFFPaintEvent = TEvent<void(TObject*, TBitmap*)>;

/// A surface without flicker: its owner paints into a buffer through `OnFFPaint`, and the buffer reaches the
/// screen in one piece, on demand scaled and faded toward the control's colour.
///
/// The buffer is made anew, and painted with the next paint, when the size changes. Owners that change what
/// they draw call `Repaint`. `OnMouseEnter` and `OnMouseLeave` tell when the pointer comes and goes.
class TFlickerFreePaintBox : public TCustomControl {
public:
    explicit TFlickerFreePaintBox(TComponent* AOwner);
    ~TFlickerFreePaintBox() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Paint into the buffer, which is filled with the control's colour and has the control's font.
    TFFPaintEvent OnFFPaint;

    /// The back buffer: 24 bits per pixel, the control's size. A new one takes its place when the size
    /// changes.
    [[nodiscard]] TBitmap& GetBuffer() const { return *FBuffer; }
    /// True while the buffer is being copied to the screen.
    [[nodiscard]] bool GetPainting() const { return FPainting; }
    /// True while the buffer waits for being painted by the owner.
    [[nodiscard]] bool GetNeedsPaint() const { return FNeedsPaint; }
    [[nodiscard]] bool GetDeformed() const { return FDeformed; }

    /// Raises `OnFFPaint` with the buffer.
    virtual void DoFFPaint();
    /// Gives the control's font to the buffer's canvas.
    virtual void ReAssignBufferFont();

    /// Paints the buffer anew and shows it at once; nothing at design time.
    void Repaint() override;
    /// Shows the buffer scaled by ScaleX and ScaleY in the top left corner, faded by Alpha (1: as it is, 0:
    /// the control's colour), at once and with each paint until `NoDeform`.
    void ApplyDeform(long double ScaleX, long double ScaleY, long double Alpha);
    void NoDeform();

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void Resize() override;

private:
    void MakeBuffer();
    void PaintNow();
    void PaintDesign();
    void ShowBuffer();
    void ShowDeformed();

    std::shared_ptr<TBitmap> FBuffer;  // shared with whoever is painting on it
    bool FPainting = false;
    bool FNeedsPaint = true;
    long double FScaleX = 1;
    long double FScaleY = 1;
    long double FAlpha = 1;
    bool FDeformed = false;
};

}  // namespace qv7skin
