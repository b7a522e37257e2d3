#pragma once

#include "platform/vcl/controls/GraphicControl.h"

namespace vcl {

enum class TBevelStyle { bsLowered, bsRaised };
enum class TBevelShape { bsBox, bsFrame, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine, bsSpacer };
using enum TBevelStyle;
using enum TBevelShape;

template <>
struct TEnumNames<TBevelStyle> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TBevelShape> {
    static std::span<const wchar_t* const> Names();
};

/// A sunken or raised box, frame or line that divides a form.
class TBevel : public TGraphicControl {
public:
    explicit TBevel(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TBevelStyle GetStyle() const { return FStyle; }
    void SetStyle(TBevelStyle value);
    [[nodiscard]] TBevelShape GetShape() const { return FShape; }
    void SetShape(TBevelShape value);

protected:
    void Paint() override;

private:
    TBevelStyle FStyle = TBevelStyle::bsLowered;
    TBevelShape FShape = TBevelShape::bsBox;
};

}  // namespace vcl
