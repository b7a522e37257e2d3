#include <array>

#include "gallery/DocumentTabs.h"
#include "gallery/Drawing.h"
#include "gallery/TabPictures.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

struct TPose {
    const wchar_t* Name;
    THeaderItemTabExtStates State;
};
const std::array Poses{
    TPose{L"Ruhend, auch unter der Maus", {tesHovered}},
    TPose{L"Gewählt", {tesSelected}},
    TPose{L"Gesperrt", {tesLocked}},
    TPose{L"Beschäftigt", {tesAnimated, tesSelected}},
};

/// Tabs in the white look: with content, and every state at two heights.
class TWhiteTabsPage : public TGalleryPage {
public:
    explicit TWhiteTabsPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        RegisterClass(TDocumentTabs::StaticClass());
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
        for (const wchar_t* name : {L"Allgemein", L"Anzeige", L"Drucken", L"Erweitert"})
            FDocuments->Add(name, TToolIcon::Note, MakeMemo({name, L"", L"Einstellungen dieser Seite."}))
                ->SetStyle({});
        FDocuments->Add(L"Protokoll", TToolIcon::Chart, MakeMemo({L"Protokoll", L"", L"12:04  bereit"}));
        FDocuments->Open(0);
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TWhiteTabsPage>(L"TWhiteTabsPage", TGalleryPage::StaticClass())
                .Component<&TWhiteTabsPage::FDocuments>(L"Documents");
        return meta;
    }

protected:
    void Paint() override {
        DrawPartHeading(18, L"Weiße Reiter über weißem Inhalt");
        DrawPartHeading(262, L"Alle Zustände");
        int top = 296;
        for (const int height : {21, 27}) {
            DrawRow(top, height);
            top += height + 14;
        }
        DrawMagnifiedRow(top + 8);
    }

private:
    void DrawRow(int top, int height) {
        int left = Margin;
        for (const TPose& pose : Poses) {
            TBitmap tab;
            DrawTabPicture(tab, {bckgrndWhite, pose.State, height, L"Reiter"});
            GetCanvas().Draw(left, top, &tab);
            left += 178;
        }
    }

    void DrawMagnifiedRow(int top) {
        int left = Margin;
        for (const TPose& pose : Poses) {
            TBitmap tab;
            DrawTabPicture(tab, {bckgrndWhite, pose.State, 21, L""});
            DrawMagnified(GetCanvas(), left, top, tab, 2, clNone);
            DrawNote(GetCanvas(), TRect::OfSize(left, top + 48, 176, 16), pose.Name);
            left += 178;
        }
    }

    TDocumentTabs* FDocuments = nullptr;
};

}  // namespace

TGalleryPage* CreateWhiteTabsPage(TComponent* owner) {
    return new TWhiteTabsPage(owner);
}

}  // namespace gallery
