#pragma once

#include <memory>

#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/GraphicsObject.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

class TBitmap;

enum class TBrushStyle {
    bsSolid,
    bsClear,
    bsHorizontal,
    bsVertical,
    bsFDiagonal,
    bsBDiagonal,
    bsCross,
    bsDiagCross
};
using enum TBrushStyle;

template <>
struct TEnumNames<TBrushStyle> {
    static std::span<const wchar_t* const> Names();
};

/// A brush handle shared by all brushes and canvases of the process that look alike.
using TSharedBrush = std::shared_ptr<const TBrushHandle>;

/// Fills areas, and the ground behind text and between the dashes of lines (not with `bsClear`). A new brush
/// is solid white.
class TBrush : public TGraphicsObject {
public:
    TBrush() = default;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    void Assign(const TPersistent* source) override;

    [[nodiscard]] TColor GetColor() const { return FColor; }
    /// Sets the colour; a clear brush becomes solid by it.
    void SetColor(TColor value);
    [[nodiscard]] TBrushStyle GetStyle() const { return FStyle; }
    void SetStyle(TBrushStyle value);
    /// A picture repeated over the filled area instead of colour and style; not owned, read once when the
    /// brush is next used.
    [[nodiscard]] const TBitmap* GetBitmap() const { return FBitmap; }
    void SetBitmap(const TBitmap* value);

    /// The system's handle, shared and made on first use; of a clear brush the system's hollow one. Raises
    /// EOutOfResources.
    [[nodiscard]] HBRUSH GetHandle() const;
    /// The shared handle; null for a clear brush.
    [[nodiscard]] const TSharedBrush& GetShared() const;

private:
    TColor FColor = clWhite;
    TBrushStyle FStyle = bsSolid;
    const TBitmap* FBitmap = nullptr;
    mutable TSharedBrush FShared;
    mutable TColor FSharedColor = clInvalid;
};

}  // namespace vcl
