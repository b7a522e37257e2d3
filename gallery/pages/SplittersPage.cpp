#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "indicators/UnitQV7SkinSplitter.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

/// A panel that says how large it is and how small it may become.
class TMeasuringPanel : public TPanel {
public:
    explicit TMeasuringPanel(TComponent* AOwner) : TPanel(AOwner) {
        SetBevelOuter(bvNone);
        SetColor(GetQV7SkinColorBackground());
        GetFont().SetName(L"Tahoma");
        GetFont().SetColor(0x00535353);
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TMeasuringPanel>(L"TMeasuringPanel", TPanel::StaticClass())
                                           .Field(L"Title", &TMeasuringPanel::Title)
                                           .Field(L"Least", &TMeasuringPanel::Least, 0)
                                           .Field(L"MeasuresHeight", &TMeasuringPanel::MeasuresHeight, false);
        return meta;
    }

    String Title;
    int Least = 0;  ///< Pixels; 0: it may vanish.
    bool MeasuresHeight = false;

protected:
    void Loaded() override {
        TPanel::Loaded();
        ShowMeasure();
    }
    void Resize() override {
        TPanel::Resize();
        ShowMeasure();
    }

private:
    void ShowMeasure() {
        const String least = Least > 0 ? Format(L" (mindestens %d)", Least) : String();
        SetCaption(Title + Format(L": %d Pixel", MeasuresHeight ? GetHeight() : GetWidth()) + least);
    }
};

/// Splitters in both directions, with least sizes on both sides.
class TSplittersPage : public TGalleryPage {
public:
    explicit TSplittersPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        RegisterClasses({&TMeasuringPanel::StaticClass(), &TQV7SkinSplitter::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TSplittersPage>(L"TSplittersPage", TGalleryPage::StaticClass())
                .Component<&TSplittersPage::FUpper>(L"Upper")
                .Component<&TSplittersPage::FLower>(L"Lower");
        return meta;
    }

protected:
    void Paint() override {
        DrawPartHeading(16, L"Senkrechte Teiler: die Flächen folgen sofort (rsUpdate)");
        DrawPartHeading(268, L"Waagerechte Teiler: ein Balken zeigt den Weg (rsPattern), Esc bricht ab");
        for (const TPanel* host : {FUpper, FLower}) {
            TRect frame = host->GetBoundsRect();
            frame.Inflate(1, 1);
            Outline(GetCanvas(), frame, 0x00C8C8C8);
        }
        DrawNote(GetCanvas(), TRect::OfSize(Margin, 606, 700, 16),
                 L"Ohne Mindestmaß schnappt eine Fläche unter 30 Pixeln zu; am Rand lässt sie sich wieder "
                 L"aufziehen.");
    }

private:
    TPanel* FUpper = nullptr;
    TPanel* FLower = nullptr;
};

}  // namespace

TGalleryPage* CreateSplittersPage(TComponent* owner) {
    return new TSplittersPage(owner);
}

}  // namespace gallery
