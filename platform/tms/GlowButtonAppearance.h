#pragma once

#include <array>

#include "platform/tms/Namespace.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Persistent.h"
#include "platform/vcl/graphics/Color.h"

namespace tms {

/// The way from the first to the second colour of an area: none (the first colour everywhere), from top to
/// bottom, from left to right, or from the top left to the bottom right corner.
enum class TGDIPGradient { gdpPlain, gdpVertical, gdpHorizontal, gdpDiagonal };
using enum TGDIPGradient;

/// The looks of a glow button: at rest, disabled, pressed, switched on, under the mouse.
enum class TGlowGroup { glowNormal, glowDisabled, glowDown, glowChecked, glowHot };
inline constexpr int GlowGroupCount = 5;
using enum TGlowGroup;

/// The colours of one look. The face is made of two gradients: one over the upper half, and the mirror
/// gradient over the lower half.
struct TGlowColors {
    TColor Border = clBlack;
    TColor Text = clDefault;  ///< `clDefault`: the colour of the font.
    TGDIPGradient Gradient = gdpVertical;
    TColor Color = clWhite;
    TColor ColorTo = clWhite;
    TGDIPGradient GradientMirror = gdpVertical;
    TColor ColorMirror = clWhite;
    TColor ColorMirrorTo = clWhite;

    friend bool operator==(const TGlowColors&, const TGlowColors&) = default;
};

/// What a glow button looks like.
class TGlowButtonAppearance : public TPersistent {
public:
    /// Light grey faces that turn light blue.
    TGlowButtonAppearance();
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void Assign(const TPersistent* source) override;

    [[nodiscard]] const TGlowColors& GetColors(TGlowGroup group) const {
        return FColors[static_cast<std::size_t>(group)];
    }
    void SetColors(TGlowGroup group, const TGlowColors& value);
    /// Whether the caption is in the font of the system's messages (true at first) instead of the button's;
    /// the colour is the same either way.
    [[nodiscard]] bool GetSystemFont() const { return FSystemFont; }
    void SetSystemFont(bool value);

    /// Raised after each change.
    TNotifyEvent OnChange;

private:
    std::array<TGlowColors, GlowGroupCount> FColors;
    bool FSystemFont = true;
};

}  // namespace tms
