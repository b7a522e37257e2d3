#include "designer/palette/PaletteStrip.h"

#include <algorithm>
#include <utility>

#include "designer/palette/PaletteIcons.h"
#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Pen.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {
namespace {

constexpr int CellSize = 30;
constexpr int CellTop = 3;
constexpr int FirstLeft = 6;
/// Pixels between the arrow and the first class.
constexpr int ArrowGap = 8;
constexpr TColor PressedGround = 0x00F0E7EA;

void DrawArrow(TCanvas& canvas, const TRect& cell) {
    const int x = cell.Left + 10;
    const int y = cell.Top + 6;
    const TPoint shape[] = {{x, y},          {x, y + 14},     {x + 3, y + 11}, {x + 6, y + 16},
                            {x + 8, y + 15}, {x + 5, y + 10}, {x + 10, y + 10}};
    canvas.GetPen().SetColor(GetQV7SkinColorCaption());
    canvas.GetBrush().SetColor(GetQV7SkinColorWindowText());
    canvas.Polygon(shape);
}

}  // namespace

const TMetaClass& TPaletteStrip::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TPaletteStrip>(L"TPaletteStrip", TCustomControl::StaticClass())
            .Property(L"Align", &TPaletteStrip::GetAlign, &TPaletteStrip::SetAlign, alNone)
            .Property(L"ShowHint", &TPaletteStrip::GetShowHint, &TPaletteStrip::SetShowHint, false)
            .Event(L"OnChoose", &TPaletteStrip::OnChoose)
            .Event(L"OnPlace", &TPaletteStrip::OnPlace);
    return meta;
}

TPaletteStrip::TPaletteStrip(TComponent* AOwner) : TCustomControl(AOwner) {
    SetColor(GetQV7SkinColorCaption());
    ControlStyle = ControlStyle + TControlStyle{csOpaque};
    SetDoubleBuffered(true);
    SetHeight(CellSize + 2 * CellTop);
}

void TPaletteStrip::SetClasses(TClassList classes) {
    FClasses = std::move(classes);
    FChosen = -1;
    FKeeps = false;
    FHot = None;
    Invalidate();
}

const TMetaClass* TPaletteStrip::GetChosen() const {
    return FChosen < 0 ? nullptr : FClasses[static_cast<std::size_t>(FChosen)];
}

void TPaletteStrip::SetChosen(const TMetaClass* value) {
    const auto place = std::ranges::find(FClasses, value);
    FChosen = place == FClasses.end() ? -1 : static_cast<int>(place - FClasses.begin());
    FKeeps = false;
    Invalidate();
}

TRect TPaletteStrip::CellOf(int index) {
    const int left = index < 0 ? FirstLeft : FirstLeft + CellSize + ArrowGap + index * CellSize;
    return TRect::OfSize(left, CellTop, CellSize, CellSize);
}

int TPaletteStrip::IndexAt(int x, int y) const {
    for (int i = -1; i < static_cast<int>(FClasses.size()); ++i)
        if (CellOf(i).Contains({x, y})) return i;
    return None;
}

void TPaletteStrip::Paint() {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(GetColor());
    canvas.FillRect(GetClientRect());
    for (int i = -1; i < static_cast<int>(FClasses.size()); ++i)
        DrawCell(i);
    canvas.GetPen().SetColor(GetQV7SkinColorBackground());
    canvas.MoveTo(0, GetHeight() - 1);
    canvas.LineTo(GetWidth(), GetHeight() - 1);
}

void TPaletteStrip::DrawCell(int index) {
    TCanvas& canvas = GetCanvas();
    const TRect cell = CellOf(index);
    if (index == FChosen || index == FHot) {
        canvas.GetBrush().SetColor(index == FChosen ? PressedGround : GetQV7SkinColorCaption());
        canvas.GetPen().SetColor(index == FChosen ? GetQV7SkinColorLinkText() : GetQV7SkinColorBackground());
        canvas.RoundRect(cell, 4, 4);
    }
    if (index < 0) return DrawArrow(canvas, cell);
    constexpr int margin = (CellSize - PaletteIconSize) / 2;
    DrawPaletteIcon(canvas, cell.Left + margin, cell.Top + margin,
                    *FClasses[static_cast<std::size_t>(index)]);
}

void TPaletteStrip::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseDown(button, shift, x, y);
    // The second press of two has placed already.
    if (!guard.IsAlive() || button != mbLeft || shift.Contains(ssDouble)) return;
    const int index = IndexAt(x, y);
    if (index == None) return;
    FChosen = index;
    FKeeps = shift.Contains(ssShift);
    Invalidate();
    OnChoose(this);
}

void TPaletteStrip::DblClick() {
    const TLifeGuard guard(*this);
    TCustomControl::DblClick();
    if (guard.IsAlive() && GetChosen()) OnPlace(this);
}

void TPaletteStrip::MouseMove(TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseMove(shift, x, y);
    if (guard.IsAlive()) SetHot(IndexAt(x, y));
}

void TPaletteStrip::MouseLeave() {
    const TLifeGuard guard(*this);
    TCustomControl::MouseLeave();
    if (guard.IsAlive()) SetHot(None);
}

void TPaletteStrip::SetHot(int index) {
    if (index == FHot) return;
    FHot = index;
    Invalidate();
}

/// Each cell has a hint of its own: the name of the class.
void TPaletteStrip::Dispatch(TMessage& message) {
    TCustomControl::Dispatch(message);
    if (message.Msg != CM_HINTSHOW) return;
    auto& info = *reinterpret_cast<THintInfo*>(message.LParam);
    const int index = IndexAt(info.CursorPos.X, info.CursorPos.Y);
    info.CursorRect = CellOf(index);
    info.HintStr = index < 0 ? String(index == None ? L"" : L"Auswählen")
                             : String(FClasses[static_cast<std::size_t>(index)]->ClassName());
}

}  // namespace designer
