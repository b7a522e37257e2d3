#include <array>
#include <memory>

#include "gallery/Drawing.h"
#include "gallery/PaintArea.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/graphics/Gradients.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinClasses.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/UnitQV7SkinMasking.h"

namespace gallery {
namespace {

/// Panels masked in each of the three ways, a container, and a skinner around a text field.
class TMasksPage : public TGalleryPage {
public:
    explicit TMasksPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        AddResourceMask(0, false);
        AddResourceMask(1, true);
        AddImagesMask();
        AddEllipseMask();
        AddContainer();
        AddSkinnedMemo();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        Fill(canvas, GetClientRect(), GetColor());
        // The variant for white surroundings and the container stand on white.
        for (const int index : {1, 4})
            Fill(canvas, Place(index).Outer, clWhite);
        constexpr std::array titles{L"Maske auf Skin-Hintergrund",
                                    L"Maske auf Weiß",
                                    L"Maske aus acht Bildern",
                                    L"Ellipse",
                                    L"Container",
                                    L"Skinner um ein Textfeld"};
        for (int i = 0; i < static_cast<int>(titles.size()); ++i)
            DrawNote(canvas, Place(i).Title, titles[static_cast<std::size_t>(i)]);
    }

    /// Masks need a window; it is there when the page is.
    void CreateWnd() override {
        TGalleryPage::CreateWnd();
        for (TCustomMaskingPanel* mask : FMasks)
            mask->Mask();
        FSkinner->Resize();
    }

private:
    struct TPlace {
        TRect Outer;
        TRect Title;
        TRect Inner;
    };
    static TPlace Place(int index) {
        const TRect outer = TRect::OfSize(16 + index % 2 * 370, 16 + index / 2 * 200, 358, 188);
        return {outer,
                {outer.Left + 16, outer.Top + 10, outer.Right - 16, outer.Top + 26},
                {outer.Left + 24, outer.Top + 36, outer.Right - 24, outer.Bottom - 16}};
    }

    TPanel* AddPanel(int index, TColor color) {
        auto* panel = new TPanel(this);
        panel->SetBevelOuter(bvNone);
        panel->SetColor(color);
        panel->SetBoundsRect(Place(index).Inner);
        panel->SetParent(this);
        return panel;
    }

    void AddResourceMask(int index, bool white) {
        auto* mask = new TMaskingPanelImagesFromResource(this);
        mask->SetWhiteBackground(white);
        mask->Control = AddPanel(index, 0x00F7E3CE);
        FMasks.push_back(mask);
    }

    void AddEllipseMask() {
        auto* mask = new TMaskingPanelEllipse(this);
        TPanel* panel = AddPanel(3, GetColor());
        auto* picture = new TPaintArea(this);
        picture->SetAlign(alClient);
        picture->SetParent(panel);
        picture->OnPaint = [](TCanvas& canvas, const TRect& rect) {
            FillGradient(canvas, rect, GetQV7SkinColorLinkText(), 0x00F7E3CE, gdVertical);
        };
        mask->Control = panel;
        FMasks.push_back(mask);
    }

    /// The pieces of a hovered tab, as a host would put pictures of its own on a form.
    void AddImagesMask() {
        auto* mask = new TMaskingPanelImages(this);
        constexpr std::array fields{
            &TMaskingPanelImages::ImageTopLeft,      &TMaskingPanelImages::ImageTopMiddle,
            &TMaskingPanelImages::ImageTopRight,     &TMaskingPanelImages::ImageBottomLeft,
            &TMaskingPanelImages::ImageBottomMiddle, &TMaskingPanelImages::ImageBottomRight,
            &TMaskingPanelImages::ImageLeftMiddle,   &TMaskingPanelImages::ImageRightMiddle};
        for (std::size_t i = 0; i < fields.size(); ++i) {
            auto* image = new TImage(this);
            const std::unique_ptr<TBitmap> piece =
                CreateBmp(FrameResourceName(L"MASKWHITE", AllFramePositions[i]));
            ReplaceColor(piece.get(), clWhite, GetColor());
            image->GetPicture().SetGraphic(piece.get());
            mask->*fields[i] = image;
        }
        mask->Control = AddPanel(2, 0x00D8F0D8);
        FMasks.push_back(mask);
    }

    void AddContainer() {
        auto* container = new TContainer(this);
        container->SetWhiteBackground(true);
        container->SetBoundsRect(Place(4).Inner);
        container->SetParent(this);
        container->SetCaption(L"Inhalt");
    }

    void AddSkinnedMemo() {
        auto* memo = new TMemo(this);
        TRect place = Place(5).Inner;
        place.Left += 3;
        memo->SetBoundsRect(place);
        memo->SetBorderStyle(bsNone);
        memo->SetText(L"\r\n   Ein gewöhnliches Textfeld.\r\n   Der Skinner rundet es von außen.");
        memo->SetParent(this);
        FSkinner = std::make_unique<TSkinner>(memo);
    }

    /// The container is a base class for controls of the package; as it stands it is a white rounded panel.
    class TContainer : public TCustomQV7SkinContainer {
    public:
        using TCustomQV7SkinContainer::TCustomQV7SkinContainer;
    };

    std::vector<TCustomMaskingPanel*> FMasks;
    std::unique_ptr<TSkinner> FSkinner;
};

}  // namespace

TGalleryPage* CreateMasksPage(TComponent* owner) {
    return new TMasksPage(owner);
}

}  // namespace gallery
