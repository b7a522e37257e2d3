#include "designer/surface/DragPicture.h"

#include <utility>

#include "designer/surface/UnclippedDC.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Regions.h"

namespace designer {
namespace {

/// How much of the ground lies over what the pieces leave behind, of 255.
constexpr int PaleWeight = 176;

void SetUp(TBitmap& bitmap, const TRect& area) {
    bitmap.SetPixelFormat(pf32bit);
    bitmap.SetSize(area.Width(), area.Height());
}

}  // namespace

class TDragPicture::TWindow final : public TOverlay {
public:
    TWindow(HWND formWindow, const TBitmap& picture)
        : TOverlay(formWindow, clBlack, clBlack), FPicture(picture) {}

    /// Paints these parts at once.
    void Show(const std::vector<TRect>& areas) {
        const TRegionHandle touched = UnionOfRects(std::vector<RECT>(areas.begin(), areas.end()));
        ::RedrawWindow(WindowHandle(), nullptr, touched.Get(), RDW_INVALIDATE | RDW_NOERASE | RDW_UPDATENOW);
    }

protected:
    void Paint() override {
        const TRect area = GetCanvas().GetClipRect();
        GetCanvas().CopyRect(area, FPicture, area);
    }

private:
    const TBitmap& FPicture;
};

TDragPicture::TDragPicture(TColor guideColor) : FGuideColor(guideColor) {}
TDragPicture::~TDragPicture() = default;

TRect TDragPicture::PlaceAt(const TPiece& piece, TPoint distance) {
    TRect place = piece.Place;
    place.Offset(distance.X, distance.Y);
    return place;
}

std::unique_ptr<TBitmap> TDragPicture::PictureOf(const TPiece& piece) {
    auto* window = dynamic_cast<TWinControl*>(piece.Control);
    if (!window) return nullptr;
    auto picture = std::make_unique<TBitmap>();
    SetUp(*picture, piece.Place);
    picture->GetCanvas().DrawDirectly([&](HDC dc) { window->PaintTo(dc, 0, 0); });
    return picture;
}

void TDragPicture::Begin(TWinControl& form, const std::vector<TPiece>& pieces) {
    const TRect client = form.GetClientRect();
    FPieces.clear();
    for (const TPiece& piece : pieces)
        FPieces.push_back({piece, piece.Place, PictureOf(piece)});
    TakeForm(form.WindowHandle(), client);
    for (const TPainted& painted : FPieces)
        Pale(painted.Left.Intersect(painted.Piece.Shown), form.GetColor());
    FShown.Assign(&FForm);
    FDrawn.clear();
    FWindow = std::make_unique<TWindow>(form.WindowHandle(), FShown);
    FWindow->ShowAt(client);
}

/// The pixels of the form with all that stands in it.
void TDragPicture::TakeForm(HWND form, const TRect& client) {
    ::RedrawWindow(form, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    SetUp(FForm, client);
    const TUnclippedDC source(form);
    FForm.GetCanvas().CopyFrom(client, source.Get(), client, cmSrcCopy);
}

void TDragPicture::Pale(const TRect& area, TColor ground) {
    const TRect inside = area.Intersect({0, 0, FForm.GetWidth(), FForm.GetHeight()});
    const TBitmapBits bits = FForm.WriteBits();
    for (int y = inside.Top; y < inside.Bottom; ++y)
        for (int x = inside.Left; x < inside.Right; ++x)
            bits.SetColor(x, y, BlendColors(bits.GetColor(x, y), ground, PaleWeight));
}

void TDragPicture::Draw(TPainted& painted, TPoint distance) {
    const TRect place = PlaceAt(painted.Piece, distance);
    TCanvas& canvas = FShown.GetCanvas();
    const TClipScope clip(canvas, painted.Piece.Shown);
    if (painted.Picture) return canvas.Draw(place.Left, place.Top, painted.Picture.get());
    canvas.DrawDirectly([&](HDC dc) {
        ::IntersectClipRect(dc, place.Left, place.Top, place.Right, place.Bottom);
        ::OffsetViewportOrgEx(dc, place.Left, place.Top, nullptr);
        painted.Piece.Control->Perform(WM_PAINT, reinterpret_cast<WPARAM>(dc));
    });
}

void TDragPicture::TakeAgain(const TRect& place) {
    FPieces.front().Piece.Place = place;
    FPieces.front().Picture = PictureOf(FPieces.front().Piece);
}

void TDragPicture::Show(TPoint distance, std::vector<TRect> guides) {
    std::vector<TRect> touched = std::exchange(FDrawn, std::move(guides));
    TCanvas& canvas = FShown.GetCanvas();
    for (const TRect& area : touched)
        canvas.CopyRect(area, FForm, area);
    canvas.GetBrush().SetColor(FGuideColor);
    for (TPainted& painted : FPieces)
        Draw(painted, distance);
    for (const TRect& guide : FDrawn)
        canvas.FillRect(guide);
    for (const TPainted& painted : FPieces)
        FDrawn.push_back(PlaceAt(painted.Piece, distance).Intersect(painted.Piece.Shown));
    touched.insert(touched.end(), FDrawn.begin(), FDrawn.end());
    FWindow->Show(touched);
}

void TDragPicture::End() {
    FWindow.reset();
    FPieces.clear();
    FDrawn.clear();
}

std::vector<TRect> TDragPicture::Touched() const {
    std::vector<TRect> areas = FDrawn;
    for (const TPainted& painted : FPieces)
        areas.push_back(painted.Left);
    return areas;
}

}  // namespace designer
