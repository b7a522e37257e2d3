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

struct TFrameKind {
    const wchar_t* Prefix;
    TColor Interior;
};

constexpr TFrameKind Kinds[] = {
    {L"SKINBUTTONDEFAULT", 0x00000000}, {L"SKINBUTTONHOVERED", 0x00000000}, {L"SKINBUTTONPRESSED", 0x00C66021},
    {L"SKINBUTTONDISABLED", 0x00939393}, {L"TABDEFAULT", 0x00FF00FF},       {L"TABHOVERED", 0x00FF00FF},
    {L"TABPRESSED", 0x00FF00FF},         {L"WHITETABDEFAULT", 0x00FFFFFF},  {L"WHITETABPRESSED", 0x00FFFFFF},
    {L"MASK", 0x00FF00FF},               {L"MASKWHITE", 0x00FF00FF},
};

/// Frames of every family at a size that two sliders choose.
class TFramesPage : public TGalleryPage {
public:
    explicit TFramesPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        for (const TFrameKind& kind : Kinds)
            FFrames.emplace_back(kind.Prefix);
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
        Fill(canvas, GetClientRect(), GetQV7SkinColorBackground());
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
        DrawNote(GetCanvas(), TRect::OfSize(left, top, 220, 16), Kinds[index].Prefix);
        TBitmap frame(width, height, pf24bit);
        ComposeNinePartFrame(frame, FFrames[index].Pieces(), Kinds[index].Interior);
        DrawTransparentBitmap(GetCanvas(), &frame, left, top + 18, 0x00FF00FF);
    }

    std::deque<TNinePartBitmaps> FFrames;
    TTrackBar* FWidthSlider;
    TTrackBar* FHeightSlider;
};

}  // namespace

TGalleryPage* CreateFramesPage(TComponent* owner) { return new TFramesPage(owner); }

}  // namespace gallery
