#include <deque>

#include "gallery/Drawing.h"
#include "gallery/PaintArea.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/stdctrls/TrackBar.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/UnitQV7SkinMasking.h"

namespace gallery {
namespace {

constexpr const wchar_t* Kinds[] = {
    L"SKINBUTTONDEFAULT", L"SKINBUTTONHOVERED", L"SKINBUTTONPRESSED", L"SKINBUTTONDISABLED", L"TABDEFAULT",
    L"TABHOVERED",        L"TABPRESSED",        L"WHITETABDEFAULT",   L"WHITETABPRESSED",    L"MASK",
    L"MASKWHITE",
};

/// The colour that the frame surrounds: that of the innermost pixel of its left edge. Masks surround nothing.
TColor InteriorColor(StringView kind, const TNinePartBitmaps& frame) {
    if (kind.starts_with(L"MASK")) return 0x00FF00FF;
    const TBitmap& edge = frame[fposLeftCenter];
    return edge.ReadBits().GetColor(edge.GetWidth() - 1, 0);
}

/// Frames of every family at a size that two sliders choose.
class TFramesPage : public TGalleryPage {
public:
    explicit TFramesPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        for (const wchar_t* kind : Kinds)
            FFrames.emplace_back(kind);
        FWidthSlider = MakeSlider(20, 24, 220, 100);
        FHeightSlider = MakeSlider(370, 18, 96, 25);
    }
    [[nodiscard]] int ShotCount() const override { return 3; }
    void PrepareShot(int shot) override {
        constexpr TSize sizes[] = {{100, 25}, {210, 25}, {210, 90}};
        FWidthSlider->SetPosition(sizes[shot].Width);
        FHeightSlider->SetPosition(sizes[shot].Height);
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        const int width = FWidthSlider->GetPosition();
        const int height = FHeightSlider->GetPosition();
        DrawNote(canvas, TRect::OfSize(28, 16, 300, 16), L"Breite: " + IntToStr(width) + L" Pixel");
        DrawNote(canvas, TRect::OfSize(378, 16, 300, 16), L"Höhe: " + IntToStr(height) + L" Pixel");
        for (std::size_t i = 0; i < std::size(Kinds); ++i)
            DrawFrame(i, width, height);
    }

private:
    TTrackBar* MakeSlider(int left, int min, int max, int position) {
        auto* slider = new TTrackBar(this);
        slider->SetBounds(left, 34, 300, 32);
        slider->SetParams(position, min, max);
        slider->SetFrequency(10);
        slider->SetParent(this);
        slider->OnChange = {this, &TFramesPage::SliderChanged};
        return slider;
    }
    void SliderChanged(TObject*) { Invalidate(); }

    void DrawFrame(std::size_t index, int width, int height) {
        constexpr int cellWidth = 246;
        constexpr int cellHeight = 126;
        const int left = 20 + static_cast<int>(index) % 3 * cellWidth;
        const int top = 84 + static_cast<int>(index) / 3 * cellHeight;
        DrawNote(GetCanvas(), TRect::OfSize(left, top, 220, 16), Kinds[index]);
        TBitmap frame(width, height, pf24bit);
        ComposeNinePartFrame(frame, FFrames[index].Pieces(), InteriorColor(Kinds[index], FFrames[index]));
        DrawTransparentBitmap(GetCanvas(), &frame, left, top + 18, 0x00FF00FF);
    }

    std::deque<TNinePartBitmaps> FFrames;
    TTrackBar* FWidthSlider;
    TTrackBar* FHeightSlider;
};

}  // namespace

TGalleryPage* CreateFramesPage(TComponent* owner) {
    return new TFramesPage(owner);
}

}  // namespace gallery
