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
    /// The same for a rectangle: what the owner paints is cut to it.
    void RepaintPart(const TRect& Part);
    /// Shows a part of the buffer as it is, for owners that painted into it by themselves.
    void ShowPart(const TRect& Part);
    /// Has the buffer painted anew, and shown, with the next paint message.
    void InvalidateBuffer();
    /// Shows the buffer scaled by ScaleX and ScaleY in the top left corner, faded by Alpha (1: as it is, 0:
    /// the control's colour), at once and with each paint until `NoDeform`.
    void ApplyDeform(long double ScaleX, long double ScaleY, long double Alpha);
    void NoDeform();

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void Resize() override;

    /// A new buffer for the control as it is.
    [[nodiscard]] virtual std::shared_ptr<TBitmap> CreateBuffer() const;
    /// Copies the buffer to the canvas, scaled and faded.
    virtual void ShowDeformed();
    /// Takes a new buffer, which waits for being painted.
    void RenewBuffer();
    /// The buffer, kept alive for whoever paints on it.
    [[nodiscard]] std::shared_ptr<TBitmap> ShareBuffer() const { return FBuffer; }
    /// Copies from the bitmap to the canvas; `GetPainting` is true meanwhile.
    void CopyToCanvas(const TRect& dest, const TBitmap& source, const TRect& sourceRect);
    /// Copies a part of the buffer to its place on the canvas.
    virtual void CopyPart(const TRect& part);
    /// Paints without the way round through the message queue, when there is a window to paint on.
    void PaintNow();
    /// Cuts drawing on a buffer to a part for the length of a scope, without the cost of keeping all of the
    /// canvas' state.
    class [[nodiscard]] TPartScope {
    public:
        TPartScope(TBitmap& buffer, const TRect& part);
        ~TPartScope();
        TPartScope(const TPartScope&) = delete;
        TPartScope& operator=(const TPartScope&) = delete;

    private:
        TBitmap& FBuffer;
    };

    /// Lets the owner paint the buffer on the control's colour; false when that is not to be shown now.
    [[nodiscard]] bool PaintBuffer(const TRect& part);
    [[nodiscard]] long double GetScaleX() const { return FScaleX; }
    [[nodiscard]] long double GetScaleY() const { return FScaleY; }
    [[nodiscard]] long double GetAlpha() const { return FAlpha; }
    /// Fills what a deformed picture of that size leaves free at its right and below it.
    void FillBeside(int right, int bottom);

private:
    void PaintDesign();
    void ShowBuffer();

    std::shared_ptr<TBitmap> FBuffer;  // shared with whoever is painting on it
    bool FPainting = false;
    bool FNeedsPaint = true;
    long double FScaleX = 1;
    long double FScaleY = 1;
    long double FAlpha = 1;
    bool FDeformed = false;
};

}  // namespace qv7skin
