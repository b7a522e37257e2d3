#include "skin/surfaces/ScrolledPaintBox.h"

#include <algorithm>
#include <cmath>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Fade.h"
#include "skin/utils/Rounding.h"

namespace qv7skin {
namespace {

/// Rows that a paint box without a parent keeps, and that a deformed display takes in one go.
constexpr int RowsAtOnce = 4096;

}  // namespace

const TMetaClass& TScrolledPaintBox::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TScrolledPaintBox>(L"TScrolledPaintBox", TFlickerFreePaintBox::StaticClass());
    return meta;
}

TScrolledPaintBox::TScrolledPaintBox(TComponent* AOwner) : TFlickerFreePaintBox(AOwner) {
    // One copy from the buffer covers the window; another buffer on the way could only cost time.
    SetDoubleBuffered(false);
    RenewBuffer();
}

// --- the window and its rows

TRect TScrolledPaintBox::WindowPlace(const TRect& bounds) const {
    TRect place = TFlickerFreePaintBox::WindowPlace(bounds);
    if (!GetParent()) return place;
    const TRect seen = bounds.Intersect(GetParent()->GetClientRect());
    // Without rows that are seen there is still a window, without height.
    if (seen.IsEmpty()) return TRect::OfSize(place.Left, 0, place.Width(), 0);
    return {place.Left, seen.Top, place.Right, seen.Bottom};
}

TRowSpan TScrolledPaintBox::SeenRows() const {
    if (!GetParent()) return {0, std::min(GetHeight(), RowsAtOnce)};
    const TRect place = WindowPlace(GetBoundsRect());
    return {place.Top - GetTop(), place.Bottom - GetTop()};
}

TPoint TScrolledPaintBox::GetClientOrigin() const {
    if (!GetParent()) return TFlickerFreePaintBox::GetClientOrigin();
    const TPoint parent = GetParent()->GetClientOrigin();
    return {parent.X + GetLeft(), parent.Y + GetTop()};
}

std::shared_ptr<TBitmap> TScrolledPaintBox::CreateBuffer() const {
    const TRowSpan seen = SeenRows();
    return std::make_shared<TRowWindowBitmap>(GetWidth(), GetHeight(), seen.Top, seen.Count(), GetColor());
}

void TScrolledPaintBox::SetBounds(int ALeft, int ATop, int AWidth, int AHeight) {
    const TLifeGuard guard(*this);
    TFlickerFreePaintBox::SetBounds(ALeft, ATop, AWidth, AHeight);
    if (guard.IsAlive()) FollowRows();
}

void TScrolledPaintBox::FollowParent() {
    const TLifeGuard guard(*this);
    PlaceWindow();
    if (guard.IsAlive()) FollowRows();
}

/// Moves the buffer to the rows that are seen now; those that it does not have yet are painted.
void TScrolledPaintBox::FollowRows() {
    const TRowSpan seen = SeenRows();
    TRowWindowBitmap& window = Window();
    const TRowSpan kept{window.GetTop(), window.GetBottom()};
    if (seen == kept && window.GetHeight() == GetHeight()) return;
    if (seen.Count() != kept.Count() || window.GetHeight() != GetHeight()) return RenewBuffer();
    if (seen.IsEmpty()) return;
    window.MoveTo(seen.Top);
    if (!GetNeedsPaint()) {
        TRowSpan fresh = seen;
        if (seen.Top > kept.Top)
            fresh.Top = std::max(seen.Top, kept.Bottom);
        else
            fresh.Bottom = std::min(seen.Bottom, kept.Top);
        const std::shared_ptr<TBitmap> painted = ShareBuffer();
        const TRect part(0, fresh.Top, GetWidth(), fresh.Bottom);
        const TPartScope clip(*painted, part);
        if (!PaintBuffer(part)) return;
    }
    PaintNow();
}

// --- painting

void TScrolledPaintBox::CopyPart(const TRect& part) {
    const TRect kept = part.Intersect({0, Window().GetTop(), GetWidth(), Window().GetBottom()});
    if (kept.IsEmpty()) return;
    // The canvas is that of the window, or of a picture of the whole.
    TRect place = kept;
    if (!IsControlState(csPaintCopy)) place.Offset(0, -Window().GetTop());
    CopyToCanvas(place, Window(), kept);
}

void TScrolledPaintBox::ShowDeformed() {
    const TRowSpan seen{Window().GetTop(), Window().GetBottom()};
    const int right = RoundHalfEven(GetWidth() * GetScaleX());
    const int bottom = RoundHalfEven(GetHeight() * GetScaleY());
    const TRowSpan shown = seen.Within({0, bottom});
    const auto rowAt = [&](int row, auto round) {
        return static_cast<int>(std::clamp<long double>(round(row / GetScaleY()), 0, GetHeight()));
    };
    const TLifeGuard guard(*this);
    for (int top = shown.Top; top < shown.Bottom && guard.IsAlive();) {
        const auto step = static_cast<int>(std::min<long double>(RowsAtOnce * GetScaleY(), shown.Count()));
        const TRowSpan dest = TRowSpan{top, top + std::max(step, 1)}.Within(shown);
        TRowSpan source{rowAt(dest.Top, [](long double row) { return std::floor(row); }),
                        rowAt(dest.Bottom, [](long double row) { return std::ceil(row); })};
        source.Bottom = std::min(source.Bottom, source.Top + 2 * RowsAtOnce);
        ShowDeformedSlice(source, dest, right);
        top = dest.Bottom;
    }
    if (guard.IsAlive()) FillBeside(right, bottom - seen.Top);
}

/// Paints more than the buffer has, when the display is scaled down.
void TScrolledPaintBox::ShowDeformedSlice(TRowSpan source, TRowSpan dest, int right) {
    if (source.IsEmpty() || right <= 0) return;
    const TLifeGuard guard(*this);
    const int shift = Window().GetTop();
    TRowWindowBitmap picture(GetWidth(), GetHeight(), source.Top, source.Count(), GetColor());
    picture.GetCanvas().SetFont(GetFont());
    OnFFPaint(this, &picture);
    if (!guard.IsAlive()) return;
    const TRect rows(0, source.Top, GetWidth(), source.Bottom);
    if (GetAlpha() < 1) Fade(picture, GetColor(), 0, source.Top, GetAlpha(), picture, rows);
    CopyToCanvas({0, dest.Top - shift, right, dest.Bottom - shift}, picture, rows);
}

// --- the mouse, in rows of the content

void TScrolledPaintBox::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    TFlickerFreePaintBox::MouseDown(button, shift, x, y + Window().GetTop());
}

void TScrolledPaintBox::MouseMove(TShiftState shift, int x, int y) {
    TFlickerFreePaintBox::MouseMove(shift, x, y + Window().GetTop());
}

void TScrolledPaintBox::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
    TFlickerFreePaintBox::MouseUp(button, shift, x, y + Window().GetTop());
}

}  // namespace qv7skin
