#pragma once

#include "indicators/UnitQV7SkinGauges.h"
#include "platform/vcl/graphics/Canvas.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {

/// A gauge that counts how often it is painted.
class ProbeGauge : public qv7skin::TQV7SkinGauge {
public:
    using TQV7SkinGauge::TQV7SkinGauge;
    int Paints = 0;

protected:
    void Paint() override {
        ++Paints;
        TQV7SkinGauge::Paint();
    }
};

/// What the gauge draws in that size.
[[nodiscard]] inline Pixels PictureOf(qv7skin::TQV7SkinGauge& gauge, int width, int height) {
    vcl::TBitmap bitmap(width, height, vcl::pf32bit);
    gauge.PaintTo(bitmap.GetCanvas(), vcl::TRect::OfSize(0, 0, width, height));
    return ReadBitmap(bitmap.GetHandle());
}

inline constexpr vcl::TSize GaugeSizes[] = {{100, 100}, {200, 20}, {20, 200}, {37, 53}, {7, 9}, {3, 3}};

/// Colours that no two parts of a gauge share.
inline constexpr COLORREF Fore = RGB(200, 30, 40), Back = RGB(20, 180, 60), Ground = RGB(30, 60, 210);

class GaugeTest : public FormTest {
protected:
    /// A gauge in the colours above, without text.
    [[nodiscard]] static std::unique_ptr<ProbeGauge> Bare(qv7skin::TQV7SkinGaugeKind kind) {
        auto gauge = std::make_unique<ProbeGauge>(nullptr);
        gauge->SetKind(kind);
        gauge->SetForeColor(Fore);
        gauge->SetBackColor(Back);
        gauge->SetColor(Ground);
        gauge->SetShowText(false);
        return gauge;
    }
    /// A gauge of 100 x 100 pixels on the form, painted once.
    ProbeGauge* MakeGauge() {
        auto* gauge = Make<ProbeGauge>({20, 10, 120, 110});
        PumpAll();
        gauge->Paints = 0;
        return gauge;
    }
};

}  // namespace test
