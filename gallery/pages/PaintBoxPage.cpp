#include <array>

#include "gallery/Drawing.h"
#include "gallery/SamplePicture.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/TrackBar.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinClasses.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr double Steps[] = {0.2, 0.4, 0.6, 0.8, 1.0};

/// The buffered surface as an entrance animation deforms it: five steps, and one that follows a slider.
class TPaintBoxPage : public TGalleryPage {
public:
    explicit TPaintBoxPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        for (std::size_t i = 0; i < FSteps.size(); ++i)
            FSteps[i] = AddBox(TRect::OfSize(24 + static_cast<int>(i) * 145, 69, 132, 160));
        FLive = AddBox({24, 342, 444, 582});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TPaintBoxPage>(L"TPaintBoxPage", TGalleryPage::StaticClass())
                .Component<&TPaintBoxPage::FSlider>(L"Slider")
                .Method<&TPaintBoxPage::SliderChanged>(L"SliderChanged");
        return meta;
    }
    [[nodiscard]] int ShotCount() const override { return 2; }
    void PrepareShot(int shot) override { FSlider->SetPosition(shot == 0 ? 100 : 55); }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        DrawPartHeading(22, L"Verformung: Breite 1, Höhe t, Deckkraft t²");
        for (std::size_t i = 0; i < FSteps.size(); ++i) {
            const TRect box = FSteps[i]->GetBoundsRect();
            DrawNote(canvas, {box.Left, 50, box.Right, 66}, Format(L"t = %.1f", Steps[i]));
        }
        DrawPartHeading(262, L"Am Regler");
        DrawNote(canvas, {470, 350, GetClientWidth() - Margin, 366}, Format(L"t = %.2f", Factor()));
    }
    void ShowSteps() {
        for (std::size_t i = 0; i < FSteps.size(); ++i)
            FSteps[i]->ApplyDeform(1, Steps[i], Steps[i] * Steps[i]);
    }
    void CreateWnd() override {
        TGalleryPage::CreateWnd();
        ShowSteps();
    }

private:
    TFlickerFreePaintBox* AddBox(const TRect& bounds) {
        auto* box = new TFlickerFreePaintBox(this);
        box->SetColor(GetQV7SkinColorBackground());
        box->SetBoundsRect(bounds);
        box->SetParent(this);
        box->OnFFPaint = {this, &TPaintBoxPage::PaintBox};
        return box;
    }

    void PaintBox(TObject*, TBitmap* surface) {
        TBitmap& buffer = *surface;
        TBitmap picture;
        DrawSamplePicture(picture, buffer.GetWidth() - 16, buffer.GetHeight() - 40);
        TCanvas& canvas = buffer.GetCanvas();
        canvas.Draw(8, 8, &picture);
        UseFont(canvas, 9, true);
        canvas.GetBrush().SetStyle(bsClear);
        canvas.TextOut(10, buffer.GetHeight() - 24, L"Zeichenfläche");
        canvas.GetBrush().SetStyle(bsSolid);
        canvas.GetBrush().SetColor(GetQV7SkinColorBackground());
    }

    [[nodiscard]] double Factor() const { return FSlider->GetPosition() / 100.0; }

    void SliderChanged(TObject*) {
        const double t = Factor();
        if (t == 1)
            FLive->NoDeform();
        else
            FLive->ApplyDeform(1, t, t * t);
        Invalidate();
    }

    std::array<TFlickerFreePaintBox*, std::size(Steps)> FSteps{};
    TFlickerFreePaintBox* FLive;
    TTrackBar* FSlider = nullptr;
};

}  // namespace

TGalleryPage* CreatePaintBoxPage(TComponent* owner) {
    return new TPaintBoxPage(owner);
}

}  // namespace gallery
