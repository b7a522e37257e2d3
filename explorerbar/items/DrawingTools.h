#pragma once

#include "platform/vcl/graphics/Canvas.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// Puts a solid pen on a canvas for the length of a scope; at its end pen and brush have their former colours
/// and styles, so that what is drawn next does not depend on what was drawn here.
class [[nodiscard]] TDrawingTools {
public:
    explicit TDrawingTools(TCanvas& canvas)
        : FCanvas(canvas),
          FPenColor(canvas.GetPen().GetColor()),
          FPenStyle(canvas.GetPen().GetStyle()),
          FBrushColor(canvas.GetBrush().GetColor()),
          FBrushStyle(canvas.GetBrush().GetStyle()) {
        canvas.GetPen().SetStyle(psSolid);
    }
    ~TDrawingTools() {
        FCanvas.GetPen().SetColor(FPenColor);
        FCanvas.GetPen().SetStyle(FPenStyle);
        FCanvas.GetBrush().SetColor(FBrushColor);
        FCanvas.GetBrush().SetStyle(FBrushStyle);
    }
    TDrawingTools(const TDrawingTools&) = delete;
    TDrawingTools& operator=(const TDrawingTools&) = delete;

private:
    TCanvas& FCanvas;
    TColor FPenColor;
    TPenStyle FPenStyle;
    TColor FBrushColor;
    TBrushStyle FBrushStyle;
};

}  // namespace qv7skin
