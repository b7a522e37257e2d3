#include <array>
#include <memory>

#include "gallery/Drawing.h"
#include "gallery/ToolIcons.h"
#include "gallery/pages/Pages.h"
#include "menus/UnitQV7SkinActnCtrls.h"
#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/MenuMaking.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr int Left = 24;
constexpr int Right = 736;
constexpr GUID Identifier{0x6d1a9f3c, 0x41d2, 0x4b0e, {0x9c, 0x55, 0x10, 0x3e, 0x77, 0x21, 0x8a, 0x04}};

struct TPart {
    const wchar_t* Caption;
    TQV7SkinMenuItemPainterPart Part;
};
constexpr std::array Parts{TPart{L"Überschriften", mipSeparatorText},
                           TPart{L"Beschreibungen", mipDescription}, TPart{L"Tastenkürzel", mipShortCut},
                           TPart{L"Bildspalte", mipGutter}};

/// A text editor whose main menu stands in a bar of actions and in a popup menu, and a menu drawn by both
/// painters.
class TMenusPage : public TGalleryPage {
public:
    explicit TMenusPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        MakeImages();
        FEditor = new TMemo(this);
        FEditor->SetBounds(Left, 74, Right - Left, 110);
        FEditor->SetText(L"Die Menüleiste und das Kontextmenü wirken auf diesen Text.");
        FEditor->SetParent(this);
        FMenu = new TQV7SkinMainMenu(this);
        FMenu->SetImages(FImages.get());
        FillEditorMenu(FMenu->GetItems());
        FManager = new TActionManager(this);
        FManager->SetImages(FImages.get());
        FBar = new TActionMainMenuBar(this);
        FBar->SetAlign(alNone);
        FBar->SetBounds(Left, 46, Right - Left, 24);
        FBar->SetParent(this);
        FReplacement = std::make_unique<TMainMenuReplacement>(FMenu, FManager, FBar, Identifier);
        FPopup = new TQV7SkinPopupMenu(this);
        FPopup->SetImages(FImages.get());
        FillSampleMenu(FPopup->GetItems());
        FEditor->SetPopupMenu(FPopup);
        MakeSwitches();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        Fill(canvas, GetClientRect(), GetColor());
        DrawHeading(canvas, Left, 18, Right, L"Hauptmenü als Aktionsleiste, Kontextmenü im Text");
        DrawHeading(canvas, Left, 196, Right, L"Was gezeichnet wird");
        DrawHeading(canvas, Left, 262, Right, L"Ein Menü, von beiden Malern gezeichnet");
        TQV7SkinMenuItemPainter plain;
        TQV7SkinMenuItemPainterNice nice;
        for (TQV7SkinMenuItemPainter* painter : {&plain, static_cast<TQV7SkinMenuItemPainter*>(&nice)}) {
            painter->SetDrawingParts(FParts);
            painter->SetIncludeDescription(FParts.Contains(mipDescription));
        }
        DrawMenu(plain, Left, L"TQV7SkinMenuItemPainter");
        DrawMenu(nice, 390, L"TQV7SkinMenuItemPainterNice");
    }

private:
    void MakeImages() {
        FImages = std::make_unique<TImageList>(nullptr);
        for (const TToolIcon icon : {TToolIcon::New, TToolIcon::Open, TToolIcon::Save, TToolIcon::Print})
            FImages->AddMasked(CreateToolIcon(icon).get(), clFuchsia);
    }

    TMenuItem* Add(TMenuItem& parent, const wchar_t* caption, const wchar_t* hint = L"",
                   TShortCut shortCut = 0, int image = -1) {
        auto* item = new TMenuItem(nullptr);
        item->SetCaption(caption);
        item->SetHint(hint);
        item->SetShortCut(shortCut);
        item->SetImageIndex(image);
        parent.Add(item);
        return item;
    }

    void FillEditorMenu(TMenuItem& menu) {
        TMenuItem* file = Add(menu, L"&Datei");
        Add(*file, L"&Neu", L"Leert den Text", ShortCut('N', {ssCtrl}), 0)->OnClick = [this](TObject*) {
            FEditor->GetLines().Clear();
        };
        Add(*file, L"-");
        Add(*file, L"&Drucken", L"Steht nicht zur Verfügung", 0, 3)->SetEnabled(false);
        TMenuItem* edit = Add(menu, L"&Bearbeiten");
        Add(*edit, L"&Alles markieren", L"", ShortCut('A', {ssCtrl}))->OnClick = [this](TObject*) {
            FEditor->SelectAll();
        };
        TMenuItem* readOnly = Add(*edit, L"&Schreibgeschützt", L"Der Text kann nur gelesen werden");
        readOnly->SetAutoCheck(true);
        readOnly->OnClick = [this](TObject* sender) {
            FEditor->SetReadOnly(dynamic_cast<TMenuItem&>(*sender).GetChecked());
        };
        TMenuItem* align = Add(menu, L"&Ausrichtung");
        for (const wchar_t* caption : {L"&Links", L"&Rechts"}) {
            TMenuItem* item = Add(*align, caption);
            item->SetRadioItem(true);
            item->SetAutoCheck(true);
            item->SetChecked(align->GetCount() == 1);
        }
    }

    void FillSampleMenu(TMenuItem& menu) {
        Add(menu, L"-", L"Dokument");
        Add(menu, L"&Neu", L"Ein leeres Dokument", ShortCut('N', {ssCtrl}), 0);
        Add(menu, L"&Öffnen", L"Ein Dokument aus der Ablage#13#10oder von der Festplatte", 0, 1)
            ->SetDefault(true);
        Add(menu, L"&Speichern", L"", ShortCut('S', {ssCtrl}), 2)->SetEnabled(false);
        Add(menu, L"-", L"Ansicht");
        Add(menu, L"&Lineal")->SetChecked(true);
        TMenuItem* whole = Add(menu, L"&Ganze Seite");
        whole->SetRadioItem(true);
        whole->SetChecked(true);
        TMenuItem* level = &menu;
        for (const wchar_t* caption : {L"&Erste Ebene", L"&Zweite Ebene", L"&Dritte Ebene", L"&Vierte Ebene"})
            level = Add(*level, caption);
    }

    void MakeSwitches() {
        int left = Left;
        for (const TPart& part : Parts) {
            auto* box = new TCheckBox(this);
            box->SetBounds(left, 228, 150, 20);
            box->SetCaption(part.Caption);
            box->SetChecked(true);
            box->SetParent(this);
            box->OnClick = [this, box, which = part.Part](TObject*) {
                FParts.Put(which, box->GetChecked());
                if (TQV7SkinMenuItemPainter* painter = QV7SkinMenuItemPainter()) {
                    painter->SetDrawingParts(FParts);
                    painter->SetIncludeDescription(FParts.Contains(mipDescription));
                }
                Invalidate();
            };
            left += 160;
        }
    }

    /// Every item of the popup menu as a menu shows it, the third one highlighted.
    void DrawMenu(TQV7SkinMenuItemPainter& painter, int left, const wchar_t* name) {
        // The gutter is measured from the canvas' edge, so the menu is drawn on a canvas of its own.
        constexpr int width = 320;
        TBitmap picture(width, 300, pf24bit);
        TCanvas& canvas = picture.GetCanvas();
        TMenuItem& menu = FPopup->GetItems();
        int top = 0;
        for (int i = 0; i < menu.GetCount(); ++i) {
            TMenuItem& item = *menu.GetItem(i);
            int itemWidth = 0;
            int height = 0;
            painter.MeasureItem(item, canvas, itemWidth, height);
            painter.DrawItem(item, canvas, {0, top, width, top + height}, i == 2, true);
            top += height;
        }
        TCanvas& page = GetCanvas();
        DrawNote(page, TRect::OfSize(left, 292, width, 16), name);
        page.CopyRect(TRect::OfSize(left + 1, 313, width, top), picture, {0, 0, width, top});
        Outline(page, TRect::OfSize(left, 312, width + 2, top + 2), GetQV7SkinColorColumnHeaderBG());
    }

    std::unique_ptr<TImageList> FImages;
    TMemo* FEditor = nullptr;
    TQV7SkinMainMenu* FMenu = nullptr;
    TActionManager* FManager = nullptr;
    TActionMainMenuBar* FBar = nullptr;
    TQV7SkinPopupMenu* FPopup = nullptr;
    std::unique_ptr<TMainMenuReplacement> FReplacement;
    TQV7SkinMenuItemPainterParts FParts{mipSeparatorText, mipDescription, mipShortCut, mipGutter};
};

}  // namespace

TGalleryPage* CreateMenusPage(TComponent* owner) {
    return new TMenusPage(owner);
}

}  // namespace gallery
