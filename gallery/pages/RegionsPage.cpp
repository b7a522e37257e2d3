#include <tuple>
#include <vector>

#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Handles.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/UnitQV7SkinMasking.h"

namespace gallery {
namespace {

constexpr TColor Magenta = 0x00FF00FF;

/// A ring with a bar in it, on magenta.
void DrawSign(TBitmap& bitmap) {
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(110, 110);
    TCanvas& canvas = bitmap.GetCanvas();
    Fill(canvas, {0, 0, 110, 110}, Magenta);
    canvas.GetPen().SetStyle(psClear);
    canvas.GetBrush().SetColor(GetQV7SkinColorLinkText());
    canvas.Ellipse(0, 0, 111, 111);
    canvas.GetBrush().SetColor(Magenta);
    canvas.Ellipse(16, 16, 95, 95);
    Fill(canvas, {28, 46, 82, 64}, GetQV7SkinColorColumnHeaderBG());
    canvas.GetPen().SetStyle(psSolid);
}

/// A frame of the skin, enlarged, with its magenta corners.
void DrawFrameSample(TBitmap& bitmap) {
    TBitmap frame(55, 55, pf24bit);
    ComposeNinePartFrame(frame, TNinePartBitmaps(L"SKINBUTTONHOVERED").Pieces(), clBlack);
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(110, 110);
    bitmap.GetCanvas().StretchDraw({0, 0, 110, 110}, &frame);
}

/// Points of noise: many small rectangles.
void DrawNoise(TBitmap& bitmap) {
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(110, 110);
    Fill(bitmap.GetCanvas(), {0, 0, 110, 110}, Magenta);
    const auto bits = bitmap.WriteBits();
    std::uint32_t state = 20;
    for (int y = 0; y < 110; ++y)
        for (int x = 0; x < 110; ++x) {
            state = state * 1664525u + 1013904223u;
            if (state >> 24 < 96u) bits.SetColor(x, y, GetQV7SkinColorColumnHeaderBG());
        }
}

/// Bitmaps, the regions made of them, and a window cut to one.
class TRegionsPage : public TGalleryPage {
public:
    explicit TRegionsPage(TComponent* AOwner) : TGalleryPage(AOwner), FSamples(3) {
        DrawSign(FSamples[0]);
        DrawFrameSample(FSamples[1]);
        DrawNoise(FSamples[2]);
        FWindow = new TShapedArea(this);
        FWindow->SetBounds(Left(3), RowsTop + 18, 110, 110);
        FWindow->SetParent(this);
        FWindow->Shape.Assign(&FSamples[0]);
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        const int top = DrawPartHeading(RowsTop - 29, L"Bitmap und Region");
        const wchar_t* rows[] = {L"Bitmap", L"Region", L"Region, umgekehrt"};
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column) {
                const int y = top + row * RowHeight;
                DrawChecker(canvas, TRect::OfSize(Left(column), y + 18, 110, 110));
                DrawNote(canvas, TRect::OfSize(Left(column), y, 150, 16), rows[row]);
                DrawSample(row, FSamples[static_cast<std::size_t>(column)], Left(column), y + 18);
            }
        DrawChecker(canvas, TRect::OfSize(Left(3), top + 18, 110, 110));
        DrawNote(canvas, TRect::OfSize(Left(3), top, 150, 16), L"Fenster in dieser Form");
    }

private:
    static constexpr int RowsTop = 51;
    static constexpr int RowHeight = 156;

    /// A window that takes the shape of a bitmap as soon as it exists.
    class TShapedArea : public TCustomControl {
    public:
        explicit TShapedArea(TComponent* AOwner) : TCustomControl(AOwner) {
            SetCursor(crHandPoint);
            SetHint(L"Der Zeiger ändert sich nur über der Form.");
            SetShowHint(true);
        }
        TBitmap Shape;

    protected:
        void CreateWnd() override {
            TCustomControl::CreateWnd();
            TRegionHandle region = BitmapToRegion(&Shape, false);
            // The window owns its region from then on.
            if (SetWindowRgn(GetHandle(), region.Get(), TRUE)) std::ignore = region.Release();
        }
        void Paint() override { GetCanvas().Draw(0, 0, &Shape); }
    };

    [[nodiscard]] static int Left(int column) { return Margin + column * 178; }

    void DrawSample(int row, TBitmap& sample, int left, int top) {
        TCanvas& canvas = GetCanvas();
        if (row == 0) {
            canvas.Draw(left, top, &sample);
            return;
        }
        const TRegionHandle region = BitmapToRegion(&sample, row == 2);
        OffsetRgn(region.Get(), left, top);
        canvas.GetBrush().SetStyle(bsSolid);
        canvas.GetBrush().SetColor(row == 1 ? GetQV7SkinColorLinkText() : GetQV7SkinColorLinkVisited());
        FillRgn(canvas.GetHandle(), region.Get(), canvas.GetBrush().GetHandle());
    }

    std::vector<TBitmap> FSamples;
    TShapedArea* FWindow;
};

}  // namespace

TGalleryPage* CreateRegionsPage(TComponent* owner) {
    return new TRegionsPage(owner);
}

}  // namespace gallery
