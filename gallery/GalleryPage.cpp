#include "gallery/GalleryPage.h"

#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/graphics/Color.h"

namespace gallery {

TGalleryPage::TGalleryPage(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle.Include(csAcceptsControls);
    SetColor(clWhite);
    SetDoubleBuffered(true);
}

int TGalleryPage::DrawPartHeading(int top, StringView text) {
    return DrawHeading(GetCanvas(), Margin, top, GetClientWidth() - Margin, text);
}

void TGalleryPage::TakeShot(int shot, const std::function<void()>& take) {
    Application().ProcessMessages();
    PrepareShot(shot);
    Application().ProcessMessages();
    take();
}

std::span<const TPageInfo> GalleryPages() {
    static const TPageInfo pages[] = {
        {L"Grundlagen", L"Farbpalette", L"palette",
         L"Die Farben und Schriftstile, aus denen alles andere schöpft.", &CreatePalettePage},
        {L"Grundlagen", L"Bitmaps", L"bitmaps",
         L"Alle Bilder der Skin, vergrößert; Magenta ist durchsichtig.", &CreateCataloguePage},
        {L"Grundlagen", L"Rahmen", L"frames", L"Neunteilige Rahmen: Ecken bleiben, Kanten dehnen sich.",
         &CreateFramesPage},
        {L"Grundlagen", L"Masken", L"masks", L"Abgerundete Ecken für fremde Steuerelemente.",
         &CreateMasksPage},
        {L"Grundlagen", L"Spaltenköpfe", L"columnheaders", L"Kopfband und Sortierpfeile für Listen.",
         &CreateColumnHeadersPage},
        {L"Grundlagen", L"Zeichenfläche", L"paintbox", L"Gepufferte Fläche, verformt und ausgeblendet.",
         &CreatePaintBoxPage},
        {L"Grundlagen", L"Tönung", L"tones", L"Aufhellen und Vergrauen in mehreren Stärken.",
         &CreateTonesPage},
        {L"Grundlagen", L"Regionen", L"regions", L"Fensterformen aus Bitmaps.", &CreateRegionsPage},
        {L"Schaltflächen", L"Skin-Schaltfläche", L"skinbutton",
         L"Ein Bild je Zustand, runde Ecken als Fensterform.", &CreateSkinButtonPage},
        {L"Schaltflächen", L"Glow-Schaltfläche", L"glowbutton",
         L"Die Schaltfläche der Palette: Verlauf und Leuchten.", &CreateGlowButtonPage},
        {L"Schaltflächen", L"Meldungsdialog", L"messagedialog",
         L"Große Schaltflächen mit Beschreibung, und Dialoge daraus.", &CreateMessageDialogPage},
        {L"Explorerleiste", L"Explorerleiste", L"explorerbar",
         L"Klappbare Gruppen mit Verweisen, Werten, Bildern und Auswahlkästen.", &CreateExplorerBarPage},
        {L"Kopf und Reiter", L"Reiter", L"tabs", L"Wie im Browser: schließen, sperren, ziehen, blättern.",
         &CreateTabsPage},
        {L"Kopf und Reiter", L"Weiße Reiter", L"whitetabs", L"Der helle Anstrich mit breiten Rändern.",
         &CreateWhiteTabsPage},
        {L"Kopf und Reiter", L"Werkzeugleiste", L"toolbar",
         L"Bilder und Beschriftungen; der Rest steht im Menü.", &CreateToolbarPage},
        {L"Kopf und Reiter", L"Kopfleiste", L"captionheader", L"Eine Zeile Text auf zwei Bändern.",
         &CreateCaptionHeadersPage},
        {L"Eingaben", L"Bestellung", L"orderform", L"Felder zum Schreiben und Auswählen, frei und gesperrt.",
         &CreateOrderFormPage},
        {L"Eingaben", L"Aufklappfenster", L"popupforms",
         L"Fenster unter Feldern und Verweisen: angedockt, gelöst, an den Kanten zu ziehen.",
         &CreatePopupFormsPage},
        {L"Anzeigen", L"Fortschritt", L"gauges", L"Balken, Torte, Zeiger und Text ohne Flimmern.",
         &CreateGaugesPage},
        {L"Anzeigen", L"Verknüpfungen", L"linklabels", L"Texte, die sich anklicken lassen.",
         &CreateLinkLabelsPage},
        {L"Anzeigen", L"Teiler", L"splitters", L"Flächen mit Mindestmaßen auf beiden Seiten.",
         &CreateSplittersPage},
        {L"Menüs", L"Menüs", L"menus", L"Kontextmenü, Hauptmenü als Leiste, beide Maler.", &CreateMenusPage},
    };
    return pages;
}

}  // namespace gallery
