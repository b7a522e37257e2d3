#include <array>

#include "buttons/UnitQV7SkinButton.h"
#include "gallery/DocumentTabs.h"
#include "gallery/Drawing.h"
#include "gallery/TabPictures.h"
#include "gallery/pages/Pages.h"
#include "header/UnitQV7SkinHeader.h"
#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/ListBox.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace gallery {
namespace {

struct TPose {
    const wchar_t* Name;
    THeaderItemTabExtStates State;
};
const std::array Poses{
    TPose{L"Ruhend", {}},
    TPose{L"Unter der Maus", {tesHovered}},
    TPose{L"Gewählt", {tesSelected}},
    TPose{L"Gesperrt", {tesLocked}},
    TPose{L"Beschäftigt", {tesAnimated, tesSelected}},
};

/// What the first tab shows: a list with a caption bar.
TControl* MakeOverview() {
    auto* panel = new TPanel(nullptr);
    panel->SetBevelOuter(bvNone);
    panel->SetColor(clWhite);
    auto* title = new TQV7SkinHeader(panel);
    title->SetCaption(L"Offene Vorgänge");
    title->SetAlign(alTop);
    title->SetParent(panel);
    auto* list = new TListBox(nullptr);
    list->SetBorderStyle(bsNone);
    TControl* framed = WithMargin(list);
    framed->SetAlign(alClient);
    framed->SetParent(panel);
    for (const wchar_t* row : {L"Angebot 2041 – Nachfrage beim Kunden", L"Rechnung 1187 – fällig am 30.",
                               L"Lieferung 553 – unterwegs", L"Rückruf Frau Lindner, 14:30"})
        list->GetItems().Add(row);
    return panel;
}

/// Tabs like those of a browser, tabs that do not fit, and every state at several heights.
class TTabsPage : public TGalleryPage {
public:
    explicit TTabsPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        RegisterClasses({&TDocumentTabs::StaticClass(), &TQV7SkinButton::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
        FillDocuments();
        FillNarrowStrip();
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TTabsPage>(L"TTabsPage", TGalleryPage::StaticClass())
                                           .Component<&TTabsPage::FDocuments>(L"Documents")
                                           .Component<&TTabsPage::FNarrow>(L"Narrow")
                                           .Method<&TTabsPage::NewClick>(L"NewClick")
                                           .Method<&TTabsPage::BusyClick>(L"BusyClick");
        return meta;
    }

    /// As it comes up, a tab on its way to another place, and scrolled to the end.
    [[nodiscard]] int ShotCount() const override { return 3; }
    void PrepareShot(int shot) override {
        CancelDrag();
        if (shot == 1) DragSomewhere();
        if (shot == 2) FNarrow->Tabs().ScrollLast();
    }

protected:
    void Paint() override {
        DrawPartHeading(18, L"Öffnen, schließen, sperren, ziehen – Strg+Tab wechselt");
        DrawPartHeading(300, L"Was nicht passt, wird geblättert; das Menü nennt alle");
        DrawPartHeading(392, L"Alle Zustände in drei Höhen");
        DrawPoses();
    }

private:
    void FillDocuments() {
        FDocuments->Add(L"Übersicht", TToolIcon::Chart, MakeOverview())->SetState({tesLocked});
        FBusy = FDocuments->Add(
            L"Posteingang", TToolIcon::Mail,
            MakeMemo({L"Von: versand@beispiel.de", L"Betreff: Ihre Lieferung", L"", L"Heute gegen 15 Uhr."}));
        FBusy->OnClose = [this, close = FBusy->OnClose](TQV7SkinHeaderItemCustom* tab) {
            FBusy = nullptr;
            close(tab);
        };
        FBusy->SetState({tesAnimated});
        FDocuments->Add(L"Kalender", TToolIcon::Calendar, MakeMemo({L"Montag", L"09:00  Besprechung"}));
        FDocuments->Add(L"Suche", TToolIcon::Search, MakeMemo({L"Keine Treffer."}));
        FDocuments->Open(0);
    }

    void FillNarrowStrip() {
        for (const wchar_t* month : {L"Januar", L"Februar", L"März", L"April", L"Mai", L"Juni", L"Juli"})
            FNarrow->Add(month, TToolIcon::Calendar, MakeMemo({month}))->SetStyle({tesCloseable});
        FNarrow->Open(1);
    }

    void NewClick(TObject*) { FDocuments->AddNote(); }

    void BusyClick(TObject*) {
        if (!FBusy) return;
        THeaderItemTabExtStates state = FBusy->GetState();
        state.Put(tesAnimated, !state.Contains(tesAnimated));
        FBusy->SetState(state);
    }

    void DrawPoses() {
        int top = 424;
        for (const int height : {21, 27, 34}) {
            int left = Margin;
            for (const TPose& pose : Poses) {
                TBitmap tab;
                DrawTabPicture(tab, {bckgrndStandard, pose.State, height, L"Reiter"});
                GetCanvas().Draw(left, top, &tab);
                left += 142;
            }
            top += height + 8;
        }
        int left = Margin;
        for (const TPose& pose : Poses) {
            TBitmap tab;
            DrawTabPicture(tab, {bckgrndStandard, pose.State, 21, L"R"});
            DrawMagnified(GetCanvas(), left, top + 4, tab, 3, clNone);
            DrawNote(GetCanvas(), TRect::OfSize(left, top + 72, 130, 16), pose.Name);
            left += 142;
        }
    }

    /// Takes the last tab in front of the second, as the mouse does, and stops before the drop.
    void DragSomewhere() {
        TQV7SkinTabControl& tabs = FDocuments->Tabs();
        const HWND surface = tabs.GetPaintBox().GetHandle();
        const TRect from = tabs.GetItemRect(3);
        const TRect to = tabs.GetItemRect(1);
        const TPoint press(from.Left + 30, 10);
        const auto pointTo = [&](TPoint place) { Mouse().SetCursorPos(tabs.ClientToScreen(place)); };
        pointTo(press);
        ::SendMessageW(surface, WM_MOUSEMOVE, 0, TMessage::PackPoint(press));
        ::SendMessageW(surface, WM_LBUTTONDOWN, MK_LBUTTON, TMessage::PackPoint(press));
        pointTo({press.X - 20, 10});
        ::SendMessageW(surface, WM_MOUSEMOVE, MK_LBUTTON, TMessage::PackPoint({press.X - 20, 10}));
        pointTo({to.Left + 20, 10});
        if (const HWND holder = ::GetCapture()) ::SendMessageW(holder, WM_MOUSEMOVE, MK_LBUTTON, 0);
    }

    TDocumentTabs* FDocuments = nullptr;
    TDocumentTabs* FNarrow = nullptr;
    TQV7SkinHeaderItemTabExt* FBusy = nullptr;
};

}  // namespace

TGalleryPage* CreateTabsPage(TComponent* owner) {
    return new TTabsPage(owner);
}

}  // namespace gallery
