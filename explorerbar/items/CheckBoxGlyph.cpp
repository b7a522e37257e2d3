#include "explorerbar/items/CheckBoxGlyph.h"

#include "explorerbar/items/DrawingTools.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Handles.h"

namespace qv7skin {
namespace {

constexpr int BoxSide = 16;
constexpr WORD CheckBoxesBitmap = 32759;  // OBM_CHECKBOXES
constexpr TSize UsualGlyph{13, 13};       // where the system has no such collection

TSize ReadGlyphSize() {
    const TBitmapHandle bitmap(::LoadBitmapW(nullptr, MAKEINTRESOURCEW(CheckBoxesBitmap)));
    BITMAP info{};
    if (!bitmap || !::GetObjectW(bitmap.Get(), sizeof info, &info)) return UsualGlyph;
    return {info.bmWidth / 4, info.bmHeight / 3};
}

UINT FrameState(TCheckBoxState state, bool enabled) {
    UINT flags = DFCS_BUTTONCHECK;
    if (state == cbChecked) flags |= DFCS_CHECKED;
    if (state == cbGrayed) flags = DFCS_BUTTON3STATE | DFCS_CHECKED;
    return enabled ? flags : flags | DFCS_INACTIVE;
}

}  // namespace

TSize CheckBoxGlyphSize() {
    static const TSize size = ReadGlyphSize();
    return size;
}

void DrawCheckBoxGlyph(TCanvas& Canvas, int Left, int Top, TCheckBoxState State, bool Enabled, bool Flat) {
    const TSize glyph = CheckBoxGlyphSize();
    TRect box = TRect::OfSize(Left + (BoxSide - glyph.Width) / 2, Top + (BoxSide - glyph.Height) / 2,
                              glyph.Width, glyph.Height);
    Canvas.DrawDirectly(
        [&](HDC dc) { ::DrawFrameControl(dc, box.AsRect(), DFC_BUTTON, FrameState(State, Enabled)); });
    if (!Flat) return;
    const TDrawingTools tools(Canvas);
    Canvas.GetBrush().SetStyle(bsClear);
    Canvas.GetPen().SetColor(clBtnShadow);
    box.Inflate(-1, -1);
    Canvas.Rectangle(box);
}

}  // namespace qv7skin
