#pragma once

#include <memory>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/GraphicsObject.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// How a line is drawn; the values are those of the Windows PS_... styles.
enum class TPenStyle { psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame };
/// How the pen's colour meets the colour that lies there.
enum class TPenMode {
    pmBlack,
    pmWhite,
    pmNop,
    pmNot,
    pmCopy,
    pmNotCopy,
    pmMergePenNot,
    pmMaskPenNot,
    pmMergeNotPen,
    pmMaskNotPen,
    pmMerge,
    pmNotMerge,
    pmMask,
    pmNotMask,
    pmXor,
    pmNotXor
};
using enum TPenStyle;
using enum TPenMode;

template <>
struct TEnumNames<TPenStyle> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TPenMode> {
    static std::span<const wchar_t* const> Names();
};

/// A pen handle shared by all pens and canvases of the process that look alike.
using TSharedPen = std::shared_ptr<const TPenHandle>;

/// Draws lines and outlines. A new pen is black, solid, one pixel wide and copies its colour. Patterns exist
/// for a width of 1 only; wider pens draw solid lines.
class TPen : public TGraphicsObject {
public:
    TPen() = default;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    void Assign(const TPersistent* source) override;

    [[nodiscard]] TColor GetColor() const { return FColor; }
    void SetColor(TColor value);
    /// In pixels; 0 draws one pixel, negative values are ignored.
    [[nodiscard]] int GetWidth() const { return FWidth; }
    void SetWidth(int value);
    [[nodiscard]] TPenStyle GetStyle() const { return FStyle; }
    void SetStyle(TPenStyle value);
    [[nodiscard]] TPenMode GetMode() const { return FMode; }
    void SetMode(TPenMode value);

    /// The system's handle, shared and made on first use. Raises EOutOfResources.
    [[nodiscard]] HPEN GetHandle() const { return GetShared()->Get(); }
    [[nodiscard]] const TSharedPen& GetShared() const;

private:
    TColor FColor = clBlack;
    int FWidth = 1;
    TPenStyle FStyle = psSolid;
    TPenMode FMode = pmCopy;
    mutable TSharedPen FShared;
    mutable TColor FSharedColor = clInvalid;
};

}  // namespace vcl
