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
        DrawPartHeading(18, L"Grau und dunkel, mit der Schrift der Skin und mit eigener");
        DrawPartHeading(122, L"Höhen");
        DrawPartHeading(300, L"Zu lang, und weiter eingerückt");
        DrawPartHeading(382, L"Über einer Liste");
    }
};

}  // namespace

TGalleryPage* CreateCaptionHeadersPage(TComponent* owner) {
    return new TCaptionHeadersPage(owner);
}

}  // namespace gallery
