#include "header/items/HeaderItemTabExt.h"

#include "header/items/TabGlyphs.h"
#include "platform/vcl/core/DefineClass.h"
#include "skin/utils/OneShotDrawing.h"

namespace qv7skin {
namespace {

// Where the buttons stand on the tab, in pixels.
constexpr int CloseTop = 4;
constexpr int LockTop = 11;
constexpr int LockOverhang = 4;
constexpr int GapWithoutImage = 7;

constexpr THeaderItemTabExtStates StoredStates{tesAnimated, tesLocked};

}  // namespace

const TMetaClass& TQV7SkinHeaderItemTabExt::StaticClass() {
    static const TMetaClass meta = DefineClass<TQV7SkinHeaderItemTabExt>(
        L"TQV7SkinHeaderItemTabExt", TQV7SkinHeaderItemTab::StaticClass());
    return meta;
}

TQV7SkinHeaderItemTabExt::TQV7SkinHeaderItemTabExt(TQV7SkinTabBackground ATabBackground,
                                                   const String& ACaption, TBitmap* AImage,
                                                   TBitmap* AImageSelected)
    : TQV7SkinHeaderItemTab(ATabBackground, ACaption, AImage, AImageSelected),
      FGlyphs(TTabGlyphs::Shared()) {}

TQV7SkinHeaderItemTabExt::~TQV7SkinHeaderItemTabExt() = default;

void TQV7SkinHeaderItemTabExt::SetStyle(THeaderItemTabExtStyles Value) {
    if (FStyle == Value) return;
    FStyle = Value;
    DropRenderings();
    Invalidate();
}

THeaderItemTabExtStates TQV7SkinHeaderItemTabExt::GetState() const {
    THeaderItemTabExtStates state = FState;
    state.Put(tesSelected, GetSelected());
    state.Put(tesHovered, GetOwner() && GetOwner()->IsUnderMouse(*this));
    return state;
}

void TQV7SkinHeaderItemTabExt::SetState(THeaderItemTabExtStates Value) {
    const THeaderItemTabExtStates stored = Value * StoredStates;
    const bool changed = stored != FState;
    FState = stored;
    if (Value.Contains(tesSelected)) SetSelected(true);
    if (changed) DropRenderings();
    Invalidate();
}

// --- buttons

TRect TQV7SkinHeaderItemTabExt::GetCloseRect(const TRect& ItemRect) const {
    const TBitmap& glyph = FGlyphs->Close(false);
    const int right = ItemRect.Right - GetHorzOffset();
    return {right - glyph.GetWidth(), CloseTop, right, CloseTop + glyph.GetHeight()};
}

TRect TQV7SkinHeaderItemTabExt::GetLockRect(const TRect& ItemRect) const {
    const TBitmap& glyph = FGlyphs->Lock(false, false);
    const int right = ItemRect.Right - GetHorzOffset() + LockOverhang;
    return {right - glyph.GetWidth(), LockTop, right, LockTop + glyph.GetHeight()};
}

bool TQV7SkinHeaderItemTabExt::IsOnClose(const TRect& ItemRect, TPoint Point) const {
    return FStyle.Contains(tesCloseable) && GetCloseRect(ItemRect).Contains(Point);
}

bool TQV7SkinHeaderItemTabExt::IsOnLock(const TRect& ItemRect, TPoint Point) const {
    return FStyle.Contains(tesLockable) && GetLockRect(ItemRect).Contains(Point);
}

bool TQV7SkinHeaderItemTabExt::PtInValidRect(const TRect& Rect, const TPoint& Point, TCursor& Cursor) {
    if (!TQV7SkinHeaderItemTab::PtInValidRect(Rect, Point, Cursor)) return false;
    if (IsOnClose(Rect, Point) || IsOnLock(Rect, Point)) Cursor = crHandPoint;
    return true;
}

void TQV7SkinHeaderItemTabExt::Click(TMouseButton Button, TShiftState Shift, int X, int Y) {
    const TBitmap* const background = GetBackground();
    const TRect rect = background ? TRect(0, 0, background->GetWidth(), background->GetHeight()) : TRect();
    if (IsOnClose(rect, {X, Y})) return Close();
    if (!IsOnLock(rect, {X, Y})) return TQV7SkinHeaderItemTab::Click(Button, Shift, X, Y);
    FState.Put(tesLocked, !FState.Contains(tesLocked));
    DropRenderings();
    Refresh();
}

void TQV7SkinHeaderItemTabExt::Close() {
    THeaderItemHost* const owner = GetOwner();
    const TLifeGuard guard(*this);
    if (!owner) {
        OnClose(this);
    } else {
        const TLifeGuard ownerGuard = owner->HostGuard();
        owner->ReleaseItem(*this);
        if (guard.IsAlive()) OnClose(this);
        if (ownerGuard.IsAlive()) owner->Repaint();
    }
    if (guard.IsAlive()) delete this;
}

// --- measuring and painting

int TQV7SkinHeaderItemTabExt::GetAdditionalWidth(TCanvas& Canvas) {
    int width = TQV7SkinHeaderItemTab::GetAdditionalWidth(Canvas);
    if (FStyle.Contains(tesCloseable) || FStyle.Contains(tesLockable))
        width += FGlyphs->Lock(false, false).GetWidth();
    if (FStyle.Contains(tesAnimation)) width += GetHorzOffset();
    return width;
}

void TQV7SkinHeaderItemTabExt::DrawImage(TCanvas& Canvas, TRect& Rect) {
    const TRect item = Rect;
    const bool selected = GetSelected();
    if (FStyle.Contains(tesAnimation)) {
        if (FState.Contains(tesAnimated)) {
            if (auto* const painter = dynamic_cast<THeaderAnimationPainter*>(GetOwner()))
                painter->DrawAnimation(Canvas, selected ? hisPressed : hisDefault,
                                       Rect.Left + GetHorzOffset());
        }
        Rect.Left += GetHorzOffset();
    }
    TQV7SkinHeaderItemTab::DrawImage(Canvas, Rect);
    if (!GetImage()) Rect.Left += GapWithoutImage;
    const auto drawGlyph = [&](TBitmap& glyph, const TRect& place) {
        DrawTransparentBitmap(Canvas, &glyph, place.Left, place.Top, clFuchsia);
    };
    if (FStyle.Contains(tesCloseable)) drawGlyph(FGlyphs->Close(selected), GetCloseRect(item));
    if (FStyle.Contains(tesLockable))
        drawGlyph(FGlyphs->Lock(selected, FState.Contains(tesLocked)), GetLockRect(item));
}

}  // namespace qv7skin

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::THeaderItemTabExtStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"tesAnimation", L"tesCloseable", L"tesLockable"};
    return names;
}

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::THeaderItemTabExtState>::Names() {
    static constexpr const wchar_t* names[] = {L"tesAnimated", L"tesSelected", L"tesHovered", L"tesLocked"};
    return names;
}
