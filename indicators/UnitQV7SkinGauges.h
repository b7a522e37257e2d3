#pragma once

#include <span>

#include "platform/vcl/controls/GraphicControl.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

/// The progress indicator of the skin.
namespace qv7skin {

/// How a gauge shows its progress; `gkText` shows the text alone.
enum class TQV7SkinGaugeKind { gkText, gkHorizontalBar, gkVerticalBar, gkPie, gkNeedle };
/// What a gauge writes over it: "42%", "42 / 100", or its own text.
enum class TQV7SkinGaugeTextKind { gtkPercentage, gtkProgress, gtkText };

using enum TQV7SkinGaugeKind;
using enum TQV7SkinGaugeTextKind;

/// A bitmap that can be made like another one.
class TBltBitmap : public TBitmap {
public:
    using TBitmap::TBitmap;
    /// Takes over the size of the other bitmap and fills itself with the colour of window frames.
    void MakeLike(const TBitmap& Source);
};

/// Shows how far something has come: as a bar, a pie, a needle or a text, without flicker. The text over it
/// has the inverse colour of each pixel that it lies on.
///
/// All that changes the picture paints it at once, so that it moves while the program is busy.
class TQV7SkinGauge : public TGraphicControl {
public:
    /// 100 x 100 pixels.
    explicit TQV7SkinGauge(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TQV7SkinGaugeKind GetKind() const { return FKind; }
    void SetKind(TQV7SkinGaugeKind Value) { Change(FKind, Value); }
    /// The ends of the scale, 0 and 100 at first. A lower end above the upper one raises EInvalidOperation
    /// "Value must be between -2147483647 and <upper end - 1>", an upper end below the lower one "Value must
    /// be between <lower end + 1> and 2147483647"; not while a form is being loaded. Progress that comes to
    /// lie outside moves to the new end.
    [[nodiscard]] int GetMinValue() const { return FMinValue; }
    void SetMinValue(int Value);
    [[nodiscard]] int GetMaxValue() const { return FMaxValue; }
    void SetMaxValue(int Value);
    /// The present value; a new one is moved into the scale, and painted when it moves the percentage.
    [[nodiscard]] int GetProgress() const { return FProgress; }
    void SetProgress(int Value);
    /// Adds to the progress, and paints in any case.
    void AddProgress(int Value);
    /// The progress in hundredths of the scale, without fraction; 0 for a scale of no length.
    [[nodiscard]] int GetPercentDone() const;
    /// Whether the text shows.
    [[nodiscard]] bool GetShowText() const { return FShowText; }
    void SetShowText(bool Value) { Change(FShowText, Value); }
    /// What the text says. Of `gtkText` it is `Text`.
    [[nodiscard]] TQV7SkinGaugeTextKind GetTextKind() const { return FTextKind; }
    void SetTextKind(TQV7SkinGaugeTextKind Value) { Change(FTextKind, Value); }
    [[nodiscard]] String GetTextToPaint() const;
    /// With bsSingle (at first) a black line of one pixel surrounds the gauge.
    [[nodiscard]] TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value) { Change(FBorderStyle, Value); }
    /// The colour of bar, pie, needle and outlines, and that of what they stand on.
    [[nodiscard]] TColor GetForeColor() const { return FForeColor; }
    void SetForeColor(TColor Value) { Change(FForeColor, Value); }
    [[nodiscard]] TColor GetBackColor() const { return FBackColor; }
    void SetBackColor(TColor Value) { Change(FBackColor, Value); }

    /// Draws the gauge as it would look in the size of the rectangle, at the rectangle's place. The control
    /// itself stays as it is and needs no parent.
    void PaintTo(TCanvas& Canvas, const TRect& Rect);

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;

    // The parts of a picture; `Rect` is the bitmap without its border.
    void PaintBackground(TBitmap& Image) const;
    void PaintAsText(TBitmap& Image, const TRect& Rect) const;
    void PaintAsNothing(TBitmap& Image, const TRect& Rect) const;
    void PaintAsBar(TBitmap& Image, const TRect& Rect) const;
    void PaintAsPie(TBitmap& Image, const TRect& Rect) const;
    void PaintAsNeedle(TBitmap& Image, const TRect& Rect) const;

private:
    void Compose(TBitmap& Image) const;
    template <class T>
    void Change(T& field, T value) {
        if (field == value) return;
        field = value;
        Refresh();
    }

    TQV7SkinGaugeKind FKind = gkHorizontalBar;
    int FMinValue = 0;
    int FMaxValue = 100;
    int FProgress = 0;
    bool FShowText = true;
    TQV7SkinGaugeTextKind FTextKind = gtkPercentage;
    TBorderStyle FBorderStyle = bsSingle;
    TColor FForeColor = clBlack;
    TColor FBackColor = clWhite;
};

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::TQV7SkinGaugeKind> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct vcl::TEnumNames<qv7skin::TQV7SkinGaugeTextKind> {
    static std::span<const wchar_t* const> Names();
};
