#include "gallery/pages/ExplorerBarSamples.h"

#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "gallery/SampleIcons.h"
#include "gallery/SamplePicture.h"
#include "platform/vcl/graphics/Bitmap.h"

namespace gallery {
namespace {

using TLink = TQV7SkinExplorerItemLink;
using TText = TQV7SkinExplorerItemStaticText;
using TValue = TQV7SkinExplorerItemCaptionValuePair;
using TBlock = TQV7SkinExplorerItemCaptionBlockPair;
using TCheck = TQV7SkinExplorerItemCheckBox;
using TSeparator = TQV7SkinExplorerItemSeparator;

const String NoHint;

template <class Item>
Item* Add(TQV7SkinExplorerGroup& group, Item* item) {
    group.GetItems().Add(item);
    return item;
}

void AddTasks(TQV7SkinExplorerGroup& group, const TNotifyEvent& clicked) {
    group.SetGroupIconIndex(siPicture);
    const auto add = [&](const wchar_t* caption, const wchar_t* hint, TSampleIcon icon) {
        Add(group, new TLink(caption, hint, icon))->OnClick = clicked;
    };
    add(L"Als Diaschau anzeigen", L"Zeigt alle Bilder des Ordners nacheinander", siPicture);
    add(L"Bild drucken", L"", siPrint);
    add(L"Ausgewählte Bilder als E-Mail versenden", L"Verkleinert die Bilder vorher", siMail);
    Add(group, new TSeparator(6));
    add(L"In den Papierkorb legen", L"", siTrash);
}

TQV7SkinExplorerItemBmp* AddDetails(TQV7SkinExplorerGroup& group, const TNotifyEvent& clicked) {
    group.SetGroupIconIndex(siInfo);
    Add(group, new TText(L"Bergsee.jpg", clBlack, {fsBold}, false));
    Add(group, new TSeparator(4));
    TBitmap picture;
    DrawSamplePicture(picture, 320, 180);
    auto* preview = Add(group, new TQV7SkinExplorerItemBmp(&picture));
    preview->SetAutoSize(true);
    preview->SetMaxWidth(160);
    preview->OnClick = clicked;
    Add(group, new TSeparator(8));
    Add(group, new TValue(L"Größe", L"1.204 KB", NoHint));
    Add(group, new TValue(L"Geändert am", L"12. Mai, 16:40 Uhr", NoHint));
    Add(group, new TValue(L"Ordner", true, L"Sommer", L"Öffnet den Ordner"))->OnClick = clicked;
    Add(group, new TSeparator(8));
    Add(group, new TBlock(L"Typ:", L"JPEG-Bild"));
    Add(group, new TBlock(L"Maße:", L"1600 × 1200"));
    Add(group, new TBlock(L"Schlagwort:", true, L"Urlaub, Berge, Wasser"))->OnClick = clicked;
    return preview;
}

void AddOptions(TQV7SkinExplorerGroup& group, TQV7SkinExplorerItemBmp* preview) {
    group.SetGroupIconIndex(siDocument);
    Add(group, new TCheck(L"Vorschau anzeigen", 0, NoHint, true, true, true))->OnClick =
        [preview](TObject* sender) { preview->SetVisible(static_cast<TCheck*>(sender)->GetChecked()); };
    Add(group, new TCheck(L"Unterordner einschließen, auch verborgene", 0, NoHint, false, true, true));
    Add(group, new TCheck(L"Schreibgeschützt", 0, NoHint, true, false, true));
    Add(group, new TCheck(L"Kasten des Systems", 0, NoHint, true, true, false));
}

}  // namespace

TTaskBarItems FillTaskBar(TQV7SkinExplorerBar& bar, const TNotifyEvent& Clicked) {
    TTaskBarItems items{};
    bar.BeginUpdate();
    AddTasks(*bar.GetGroups().Add(L"Bildaufgaben", true), Clicked);
    items.Preview = AddDetails(*bar.GetGroups().Add(L"Details", false), Clicked);
    AddOptions(*bar.GetGroups().Add(L"Optionen", false), items.Preview);
    TQV7SkinExplorerGroup& copy = *bar.GetGroups().Add(L"Kopiervorgang", false);
    copy.SetGroupIconIndex(siFolder);
    items.CopyText = Add(copy, new TText(L"Noch nichts kopiert", clBlack, {}, true));
    Add(copy, new TSeparator(4));
    items.CopyProgress =
        Add(copy, new TQV7SkinExplorerItemProgressBar(0, 120, 0, 14, 0x00B0A49A, 0x00D78112));
    bar.EndUpdate();
    return items;
}

void FillLongBar(TQV7SkinExplorerBar& bar, int groups) {
    bar.BeginUpdate();
    for (int g = 1; g <= groups; ++g) {
        TQV7SkinExplorerGroup& group = *bar.GetGroups().Add(L"Ordner " + IntToStr(g), false);
        group.SetGroupIconIndex(siFolder);
        for (int i = 1; i <= 40; ++i) {
            const String name = L"Bericht " + IntToStr(g) + L"-" + IntToStr(i);
            Add(group, new TLink(i % 5 ? name : name + L", noch einmal durchgesehen", NoHint, siDocument));
        }
    }
    bar.EndUpdate();
}

void FillTextBar(TQV7SkinExplorerBar& bar, const TNotifyEvent& Clicked) {
    bar.BeginUpdate();
    TQV7SkinExplorerGroup& wrapped = *bar.GetGroups().Add(L"Umbrochen", false);
    Add(wrapped,
        new TLink(L"Ein langer Verweis geht in der nächsten Zeile weiter, so oft es nötig ist", NoHint))
        ->OnClick = Clicked;
    Add(wrapped, new TLink(L"Wörter wie Rindfleischetikettierungsüberwachungsaufgabe passen nicht", NoHint))
        ->OnClick = Clicked;
    Add(wrapped, new TText(L"Eine Zeile,\r\ndann genau eine zweite.", clBlack, {fsItalic}, true));

    TQV7SkinExplorerGroup& cut = *bar.GetGroups().Add(L"Abgeschnitten", false);
    auto* link = Add(cut, new TLink(L"Ein langer Verweis, der mit Punkten endet", NoHint));
    link->SetWordWrap(false);
    link->SetFontStyle({fsBold});
    link->OnClick = Clicked;
    Add(cut, new TText(L"Ein Text, der ebenso mit Punkten endet"));
    Add(cut, new TValue(L"Eine lange Beschriftung", L"weicht dem Wert", NoHint));
    Add(cut, new TBlock(L"Kurz:", L"Der Block beginnt in der Spalte der Gruppe"));
    Add(cut, new TBlock(L"Etwas länger:", L"Der Block daneben"));

    TQV7SkinExplorerGroup& lines = *bar.GetGroups().Add(L"Trenner und Verborgenes", false);
    Add(lines, new TSeparator(30));
    Add(lines, new TText(L"Davor steht ein Trenner,"));
    Add(lines, new TText(L"hier ein verborgener Text"))->SetVisible(false);
    Add(lines, new TText(L"dazwischen zwei."));
    Add(lines, new TSeparator(12));
    Add(lines, new TSeparator(12));
    Add(lines, new TText(L"Nur einer ist zu sehen."));
    Add(lines, new TSeparator(30));

    bar.GetGroups().Add(L"Ohne Einträge", false);
    bar.EndUpdate();
}

}  // namespace gallery
