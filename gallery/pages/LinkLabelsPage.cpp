#include <array>

#include "buttons/MessageIcons.h"
#include "gallery/ClickCounter.h"
#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "indicators/UnitQV7SkinLinkLabel.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Picture.h"

namespace gallery {
namespace {

constexpr int Left = 24;
constexpr int Right = 736;
constexpr TColor Magenta = 0x00FF00FF;

/// A sheet of paper with a folded corner, 16 x 16 pixels on magenta.
void DrawSheet(TBitmap& bitmap) {
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(16, 16);
    TCanvas& canvas = bitmap.GetCanvas();
    Fill(canvas, {0, 0, 16, 16}, Magenta);
    canvas.GetPen().SetColor(0x00606060);
    canvas.GetBrush().SetColor(clWhite);
    canvas.Polygon(std::array{TPoint{2, 0}, TPoint{9, 0}, TPoint{13, 4}, TPoint{13, 15}, TPoint{2, 15}});
    canvas.GetBrush().SetColor(0x00D8D8D8);
    canvas.Polygon(std::array{TPoint{9, 0}, TPoint{9, 4}, TPoint{13, 4}});
    for (const int y : {7, 9, 11})
        Fill(canvas, {4, y, 12, y + 1}, 0x00D78112);
}

/// Link labels with and without picture, in every way of shortening them, and disabled.
class TLinkLabelsPage : public TGalleryPage {
public:
    explicit TLinkLabelsPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        FCounter = new TClickCounter(this);
        FCounter->SetBounds(Left, 556, 500, 16);
        FCounter->SetParent(this);
        AddStates();
        AddPictures();
        AddEllipses();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        Fill(canvas, GetClientRect(), clWhite);
        DrawHeading(canvas, Left, 16, Right, L"Zustände");
        DrawHeading(canvas, Left, 150, Right, L"Mit Bild");
        DrawHeading(canvas, Left, 304, Right, L"Zu lange Texte");
        DrawHeading(canvas, Left, 516, Right, L"Zum Anfassen: jeder Link zählt mit");
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
        DrawNote(GetCanvas(), TRect::OfSize(Left, top, FirstLink - Left - 8, 16), text);
    }

    TQV7SkinLinkLabel* Add(int left, int top, const wchar_t* caption) {
        auto* label = new TQV7SkinLinkLabel(this);
        label->SetCaption(caption);
        label->SetLeft(left);
        label->SetTop(top);
        label->SetParent(this);
        FCounter->CountClicksOf(*label);
        return label;
    }
    static void GivePicture(TQV7SkinLinkLabel& label) {
        TBitmap sheet;
        DrawSheet(sheet);
        label.GetPicture().SetBitmap(&sheet);
    }

    void AddStates() {
        Add(FirstLink, 50, L"Weitere Einstellungen");
        Add(FirstLink, 76, L"Weitere Einstellungen")->GetFont().SetStyle({fsUnderline});
        Add(FirstLink, 102, L"Weitere Einstellungen")->SetEnabled(false);
    }

    void AddPictures() {
        GivePicture(*Add(FirstLink, 184, L"Bericht öffnen"));
        for (const int top : {212, 240}) {
            TQV7SkinLinkLabel* label = Add(FirstLink, top, L"Bericht öffnen");
            GivePicture(*label);
            label->SetTransparentColor(Magenta);
            label->SetEnabled(top != 240);
        }
        TQV7SkinLinkLabel* large = Add(FirstLink, 264, L"Was ist neu?\nDie Änderungen dieser Fassung");
        TBitmap icon;
        DrawMessageIcon(icon, msgiInformation, clWhite);
        large->GetPicture().SetBitmap(&icon);
    }

    void AddEllipses() {
        int top = 342;
        for (const TEllipsType type : {etNone, etEndEllips, etPathEllips}) {
            for (const bool hasPicture : {false, true}) {
                TQV7SkinLinkLabel* label =
                    Add(FirstLink, top, L"C:\\Benutzer\\Anna\\Dokumente\\Angebote\\2024\\Angebot.txt");
                label->SetAutoSize(false);
                label->SetBounds(FirstLink, top, 220, 16);
                label->SetEllipsType(type);
                if (hasPicture) {
                    GivePicture(*label);
                    label->SetTransparentColor(Magenta);
                }
                top += hasPicture ? 32 : 24;
            }
        }
    }

    TClickCounter* FCounter;
};

}  // namespace

TGalleryPage* CreateLinkLabelsPage(TComponent* owner) {
    return new TLinkLabelsPage(owner);
}

}  // namespace gallery
