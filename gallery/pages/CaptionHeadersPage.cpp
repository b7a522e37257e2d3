#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "header/UnitQV7SkinHeader.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/ListBox.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr int Left = 24;
constexpr int Right = 736;

/// Caption headers in both bands, with the skin's font and the host's, at several heights, and over lists.
class TCaptionHeadersPage : public TGalleryPage {
public:
    explicit TCaptionHeadersPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        RegisterClasses({&TQV7SkinHeader::StaticClass(), &TPanel::StaticClass(), &TListBox::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TCaptionHeadersPage>(L"TCaptionHeadersPage", TGalleryPage::StaticClass());
        return meta;
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        Fill(canvas, GetClientRect(), GetColor());
        DrawHeading(canvas, Left, 18, Right, L"Grau und dunkel, mit der Schrift der Skin und mit eigener");
        DrawHeading(canvas, Left, 122, Right, L"Höhen");
        DrawHeading(canvas, Left, 300, Right, L"Zu lang, und weiter eingerückt");
        DrawHeading(canvas, Left, 382, Right, L"Über einer Liste");
    }
};

}  // namespace

TGalleryPage* CreateCaptionHeadersPage(TComponent* owner) {
    return new TCaptionHeadersPage(owner);
}

}  // namespace gallery
