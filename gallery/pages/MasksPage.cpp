#include <array>
#include <memory>

#include "gallery/Drawing.h"
#include "gallery/PaintArea.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Gradients.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinClasses.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/UnitQV7SkinMasking.h"

namespace gallery {
namespace {

/// The container is a base class for controls of the package; as it stands it is a white rounded panel.
class TContainer : public TCustomQV7SkinContainer {
public:
    using TCustomQV7SkinContainer::TCustomQV7SkinContainer;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        using C = TContainer;
        static const TMetaClass meta =
            DefineClass<C>(L"TContainer", TCustomQV7SkinContainer::StaticClass())
                .Property(L"Caption", &C::GetCaption, &C::SetCaption)
                .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
                .Property(L"WhiteBackground", &C::GetWhiteBackground, &C::SetWhiteBackground, false);
        return meta;
    }
};

/// Panels masked in each of the three ways, a container, and a skinner around a text field.
class TMasksPage : public TGalleryPage {
public:
    explicit TMasksPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        RegisterClasses({&TContainer::StaticClass(), &TPaintArea::StaticClass(),
                         &TMaskingPanelImagesFromResource::StaticClass(), &TMaskingPanelImages::StaticClass(),
                         &TMaskingPanelEllipse::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
        AddImages();
        FSkinner = std::make_unique<TSkinner>(FMemo);
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        using C = TMasksPage;
        static const TMetaClass meta = DefineClass<C>(L"TMasksPage", TGalleryPage::StaticClass())
                                           .Component<&C::FGreenMask>(L"GreenMask")
                                           .Component<&C::FMemo>(L"Memo")
                                           .Method<&C::PaintGradient>(L"PaintGradient");
        return meta;
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
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
        for (int i = 0; i < GetComponentCount(); ++i)
            if (auto* mask = dynamic_cast<TCustomMaskingPanel*>(GetComponent(i))) mask->Mask();
        FSkinner->Resize();
    }

private:
    struct TPlace {
        TRect Outer;
        TRect Title;
    };
    static TPlace Place(int index) {
        const TRect outer = TRect::OfSize(16 + index % 2 * 370, 16 + index / 2 * 200, 358, 188);
        return {outer, {outer.Left + 16, outer.Top + 10, outer.Right - 16, outer.Top + 26}};
    }

    void PaintGradient(TCanvas& canvas, const TRect& rect) {
        FillGradient(canvas, rect, GetQV7SkinColorLinkText(), 0x00F7E3CE, gdVertical);
    }

    /// The eight pieces of a frame, as a host would put pictures of its own on a form.
    void AddImages() {
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
            FGreenMask->*fields[i] = image;
        }
    }

    TMaskingPanelImages* FGreenMask = nullptr;
    TMemo* FMemo = nullptr;
    std::unique_ptr<TSkinner> FSkinner;
};

}  // namespace

TGalleryPage* CreateMasksPage(TComponent* owner) {
    return new TMasksPage(owner);
}

}  // namespace gallery
