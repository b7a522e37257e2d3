#include <array>

#include "buttons/MessageIcons.h"
#include "gallery/ClickCounter.h"
#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "indicators/UnitQV7SkinLinkLabel.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"

namespace gallery {
namespace {

/// A sheet of paper with a folded corner, 16 x 16 pixels on magenta.
void DrawSheet(TBitmap& bitmap) {
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(16, 16);
    TCanvas& canvas = bitmap.GetCanvas();
    Fill(canvas, {0, 0, 16, 16}, clFuchsia);
    canvas.GetPen().SetColor(0x00606060);
    canvas.GetBrush().SetColor(clWhite);
    canvas.Polygon(std::array{TPoint{2, 0}, TPoint{9, 0}, TPoint{13, 4}, TPoint{13, 15}, TPoint{2, 15}});
    canvas.GetBrush().SetColor(0x00D8D8D8);
    canvas.Polygon(std::array{TPoint{9, 0}, TPoint{9, 4}, TPoint{13, 4}});
    for (const int y : {7, 9, 11})
        Fill(canvas, {4, y, 12, y + 1}, 0x00D78112);
}

/// A link label with that picture.
class TSheetLinkLabel : public TQV7SkinLinkLabel {
public:
    explicit TSheetLinkLabel(TComponent* AOwner) : TQV7SkinLinkLabel(AOwner) {
        TBitmap sheet;
        DrawSheet(sheet);
        GetPicture().SetBitmap(&sheet);
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TSheetLinkLabel>(L"TSheetLinkLabel", TQV7SkinLinkLabel::StaticClass());
        return meta;
    }
};

/// Link labels with and without picture, in every way of shortening them, and disabled.
class TLinkLabelsPage : public TGalleryPage {
public:
    explicit TLinkLabelsPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        RegisterClasses({&TClickCounter::StaticClass(), &TQV7SkinLinkLabel::StaticClass(),
                         &TSheetLinkLabel::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
        TBitmap icon;
        DrawMessageIcon(icon, msgiInformation, clWhite);
        FNews->GetPicture().SetBitmap(&icon);
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TLinkLabelsPage>(L"TLinkLabelsPage", TGalleryPage::StaticClass())
                .Component<&TLinkLabelsPage::FCounter>(L"Counter")
                .Component<&TLinkLabelsPage::FNews>(L"News")
                .Method<&TLinkLabelsPage::LinkClick>(L"LinkClick");
        return meta;
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        DrawPartHeading(16, L"Zustände");
        DrawPartHeading(150, L"Mit Bild");
        DrawPartHeading(304, L"Zu lange Texte");
        DrawPartHeading(516, L"Zum Anfassen: jeder Link zählt mit");
        Note(50, L"Normal");
        Note(76, L"Unter der Maus");
        Note(102, L"Gesperrt");
        Note(184, L"ohne durchsichtige Farbe");
        Note(212, L"Magenta ist durchsichtig");
        Note(240, L"gesperrt");
        Note(268, L"großes Bild, zwei Zeilen");
        for (int i = 0; i < 3; ++i) {
            const int top = 342 + i * 56;
            Note(top, EllipsNames[static_cast<std::size_t>(i)]);
            Outline(canvas, {FirstLink - 3, top - 3, FirstLink + 223, top + 19}, 0x00F0EAE7);
            Outline(canvas, {FirstLink - 3, top + 21, FirstLink + 223, top + 43}, 0x00F0EAE7);
        }
    }

private:
    static constexpr int FirstLink = 214;
    static constexpr std::array EllipsNames{L"etNone: abgeschnitten", L"etEndEllips: Punkte am Ende",
                                            L"etPathEllips: Punkte im Pfad"};

    void Note(int top, const wchar_t* text) {
        DrawNote(GetCanvas(), TRect::OfSize(Margin, top, FirstLink - Margin - 8, 16), text);
    }

    void LinkClick(TObject* sender) { FCounter->Count(sender); }

    TClickCounter* FCounter = nullptr;
    TQV7SkinLinkLabel* FNews = nullptr;
};

}  // namespace

TGalleryPage* CreateLinkLabelsPage(TComponent* owner) {
    return new TLinkLabelsPage(owner);
}

}  // namespace gallery
