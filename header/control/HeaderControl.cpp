#include "header/control/HeaderControl.h"

#include <algorithm>

#include "header/chevrons/HeaderChevronBase.h"
#include "header/items/HeaderItems.h"
#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace qv7skin {
namespace {

constexpr int DefaultWidth = 200;
constexpr int DefaultHeight = 21;

/// The smallest rectangle around two of the same row.
TRect Around(const TRect& a, const TRect& b) {
    if (a.IsEmpty()) return b;
    if (b.IsEmpty()) return a;
    return {std::min(a.Left, b.Left), a.Top, std::max(a.Right, b.Right), a.Bottom};
}

}  // namespace

const TMetaClass& TQV7SkinHeaderControl::StaticClass() {
    using C = TQV7SkinHeaderControl;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinHeaderControl", TCustomControl::StaticClass())
            .Property(L"AllowItemDrag", &C::GetAllowItemDrag, &C::SetAllowItemDrag)
            .Property(L"PopupMenu", &C::GetPopupMenu, &C::SetPopupMenu)
            .With(AnchorsRow)
            .Property(L"Align", &C::GetAlign, &C::SetAlign, alNone)
            .Property(L"HideClippedItems", &C::GetHideClippedItems, &C::SetHideClippedItems)
            .Property(L"ChevronDropDown", &C::GetChevronDropDown, &C::SetChevronDropDown)
            .Property(L"HorzOffset", &C::GetHorzOffset, &C::SetHorzOffset);
    return meta;
}

TQV7SkinHeaderControl::TQV7SkinHeaderControl(TComponent* AOwner)
    : TCustomControl(AOwner),
      FPaintBox(std::make_unique<TFlickerFreePaintBox>(this)),
      FItems(std::make_unique<TQV7SkinHeaderItems>(this)) {
    SetColor(GetQV7SkinColorBackground());
    SetDoubleBuffered(true);
    SetParentFont(true);
    ConnectPaintBox();
    SetBounds(GetLeft(), GetTop(), DefaultWidth, DefaultHeight);
}

TQV7SkinHeaderControl::~TQV7SkinHeaderControl() {
    // The paint box goes while there are items: its window tells when the mouse is off it.
    FUpdating = true;
    FIndexOfItemMouseOver = -1;
    FPaintBox.reset();
    FItems.reset();
}

void TQV7SkinHeaderControl::ConnectPaintBox() {
    using C = TQV7SkinHeaderControl;
    FPaintBox->SetParent(this);
    FPaintBox->SetAlign(alClient);
    FPaintBox->OnFFPaint = {this, &C::PaintRow};
    FPaintBox->OnMouseEnter = {this, &C::DoPaintboxMouseEnter};
    FPaintBox->OnMouseLeave = {this, &C::DoPaintboxMouseLeave};
    FPaintBox->OnMouseMove = {this, &C::DoPaintboxMouseMove};
    FPaintBox->OnMouseDown = {this, &C::DoPaintboxMouseDown};
    FPaintBox->OnMouseUp = {this, &C::DoPaintboxMouseUp};
    ConnectDragging();
}

// --- properties

void TQV7SkinHeaderControl::SetAllowItemDrag(bool Value) {
    FAllowItemDrag = Value;
}

void TQV7SkinHeaderControl::SetAllowItemUndock(bool Value) {
    FAllowItemUndock = Value;
}

void TQV7SkinHeaderControl::SetHideClippedItems(bool Value) {
    if (FHideClippedItems == Value) return;
    FHideClippedItems = Value;
    Repaint();
}

void TQV7SkinHeaderControl::SetHorzOffset(int Value) {
    if (FHorzOffset == Value) return;
    FHorzOffset = Value;
    FNeedsMeasuring = true;
    Repaint();
}

void TQV7SkinHeaderControl::SetChevronDropDown(TContextMenu* Value) {
    if (FChevronDropDown == Value) return;
    if (FChevronDropDown) FChevronDropDown->RemoveFreeNotification(this);
    FChevronDropDown = Value;
    if (Value) Value->FreeNotification(this);
}

void TQV7SkinHeaderControl::Notification(TComponent* component, TOperation operation) {
    TCustomControl::Notification(component, operation);
    if (operation != opRemove) return;
    if (component == FChevronDropDown) FChevronDropDown = nullptr;
    if (component == FChevron) FChevron = nullptr;
}

// --- painting

void TQV7SkinHeaderControl::BeginUpdate() {
    ++FUpdateCount;
    FUpdating = true;
}

void TQV7SkinHeaderControl::EndUpdate() {
    if (FUpdateCount == 0 || --FUpdateCount > 0) return;
    FUpdating = false;
    Repaint();
}

void TQV7SkinHeaderControl::Invalidate() {
    FNeedsMeasuring = true;
    TCustomControl::Invalidate();
    if (!FUpdating) FPaintBox->InvalidateBuffer();
}

void TQV7SkinHeaderControl::Repaint() {
    if (FUpdating) return;
    const TLifeGuard guard(*this);
    if (FFirstVisibleIndex >= FItems->GetCount()) FFirstVisibleIndex = 0;
    if (FIndexOfItemMouseOver >= FItems->GetCount()) SetIndexOfItemMouseOver(-1);
    // The paint box covers the control, which shows itself at design time only.
    if (guard.IsAlive() && IsInState(csDesigning)) TCustomControl::Repaint();
    if (guard.IsAlive() && FNeedsMeasuring) Measure();
    if (!guard.IsAlive()) return;
    FNeedsMeasuring = false;
    FPaintBox->Repaint();
    if (guard.IsAlive()) DrawChevron();
}

/// The paint box paints its buffer: for `Repaint`, or by itself after `Invalidate` and a change of size. Then
/// all of `Repaint` is to be done.
void TQV7SkinHeaderControl::PaintRow(TObject* Sender, TBitmap* Bitmap) {
    if (!FNeedsMeasuring || FUpdating) return DoPaintboxPaint(Sender, Bitmap);
    Repaint();
}

/// Paints the items that the mouse left and came to, when all others show what they should.
void TQV7SkinHeaderControl::RepaintHovered(int Former) {
    const bool showsRow = !FNeedsMeasuring && !FUpdating && !FDragObject && !FPaintBox->GetNeedsPaint();
    const TRect former = showsRow ? PaintedPlaceOf(Former) : TRect();
    const TRect hovered = showsRow ? PaintedPlaceOf(FIndexOfItemMouseOver) : TRect();
    const TRect both = Around(former, hovered);
    if (both.IsEmpty() || !DoAllKeepPictures()) return Repaint();
    const bool hidesOld = DrawOver(Former, former) && DrawOver(FIndexOfItemMouseOver, hovered);
    hidesOld ? FPaintBox->ShowPart(both) : FPaintBox->RepaintPart(both);
}

/// Draws an item where it was painted before; false when that left some of its former picture.
bool TQV7SkinHeaderControl::DrawOver(int Index, const TRect& Place) {
    if (Place.IsEmpty()) return true;
    TQV7SkinHeaderItemCustom& item = *FItems->GetItems(Index);
    int x = Place.Left;
    item.Draw(MeasuringCanvas(), x, GetHeight());
    return item.KeptShape();
}

void TQV7SkinHeaderControl::Resize() {
    FNeedsMeasuring = true;
    const TLifeGuard guard(*this);
    TCustomControl::Resize();
    if (guard.IsAlive()) Refresh();
}

void TQV7SkinHeaderControl::Dispatch(TMessage& message) {
    if (message.Msg == WM_ERASEBKGND)
        message.Result = 1;  // the paint box covers everything
    else
        TCustomControl::Dispatch(message);
}

void TQV7SkinHeaderControl::DoPaintboxPaint(TObject*, TBitmap* Bitmap) {
    if (FUpdating) return;
    const TLifeGuard guard(*this);
    PaintBackground(*Bitmap);
    if (guard.IsAlive()) DrawItems(*Bitmap);
}

void TQV7SkinHeaderControl::PaintBackground(TBitmap& Bitmap) {
    TCanvas& canvas = Bitmap.GetCanvas();
    canvas.GetBrush().SetColor(GetQV7SkinColorBackground());
    canvas.FillRect({0, 0, Bitmap.GetWidth(), Bitmap.GetHeight()});
}

void TQV7SkinHeaderControl::DrawItems(TBitmap& Bitmap) {
    const TLifeGuard guard(*this);
    TCanvas& canvas = Bitmap.GetCanvas();
    const TRect clip = canvas.GetClipRect();
    const bool isWhole = clip.Left <= 0 && clip.Right >= Bitmap.GetWidth();
    int x = FHorzOffset;
    int sum = 0;
    int i = FFirstVisibleIndex;
    for (; i < FItems->GetCount(); ++i) {
        if (i > FFirstVisibleIndex && GetClippedWidth() < x) break;
        TQV7SkinHeaderItemCustom& item = *FItems->GetItems(i);
        if (!item.GetVisible()) continue;
        if (FHideClippedItems) {
            sum += WidthOf(i);
            if (!guard.IsAlive()) return;
            if (GetClippedWidth() < sum) break;
        }
        if (isWhole || !item.KeepsPicture())
            item.Draw(canvas, x, GetHeight());
        else if (x >= clip.Right)
            break;
        else
            DrawClipped(canvas, clip, i, x);
        if (!guard.IsAlive()) return;
    }
    if (isWhole) {
        FPaintedEnd = i;
        ForgetFarPictures();
    }
    DrawDropMarker(Bitmap);
}

/// Pictures cost handles of the system: only items within a page of those that show keep them.
void TQV7SkinHeaderControl::ForgetFarPictures() {
    const int page = FPaintedEnd - FFirstVisibleIndex;
    const int from = FFirstVisibleIndex - page, end = FPaintedEnd + page;
    for (int i = FKeptFrom; i < std::min(FKeptEnd, FItems->GetCount()); ++i)
        if (i < from || i >= end) FItems->GetItems(i)->ForgetPictures();
    FKeptFrom = std::max(0, from);
    FKeptEnd = end;
}

/// Draws an item that keeps its picture, unless nothing of it would show.
void TQV7SkinHeaderControl::DrawClipped(TCanvas& Canvas, const TRect& Clip, int Index, int& X) {
    const int width = WidthOf(Index);
    if (X + width > Clip.Left)
        FItems->GetItems(Index)->Draw(Canvas, X, GetHeight());
    else
        X += width;
}

}  // namespace qv7skin
