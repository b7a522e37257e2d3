#include "explorerbar/UnitQV7SkinExplorerBar.h"

#include "buttons/UnitQV7SkinButton.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "gallery/Drawing.h"
#include "gallery/SampleIcons.h"
#include "gallery/pages/ExplorerBarSamples.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Timer.h"

namespace gallery {
namespace {

constexpr int BarTop = 46;
constexpr int BarHeight = 480;
constexpr int NarrowBar = 150;
constexpr int WideBar = 240;
constexpr int LongGroups = 12;

/// Three bars: one as an application has it, one with hundreds of links, one of long texts. Buttons change
/// the items of the last one while it is seen.
class TExplorerBarPage : public TGalleryPage {
public:
    explicit TExplorerBarPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        FIcons = new TImageList(this);
        AddSampleIcons(*FIcons);
        FTaskBar = AddBar(20, 236);
        FLongBar = AddBar(274, NarrowBar);
        FTextBar = AddBar(532, 208);
        FTextBar->SetGroupIcons(nullptr);
        FLast = new TLabel(this);
        FLast->SetBounds(20, 600, 480, 16);
        FLast->SetParent(this);
        FLast->SetCaption(L"Noch kein Klick");
        const TNotifyEvent clicked{this, &TExplorerBarPage::ItemClicked};
        FTask = FillTaskBar(*FTaskBar, clicked);
        FillLongBar(*FLongBar, LongGroups);
        FillTextBar(*FTextBar, clicked);

        AddButton(20, L"Einblenden", &TExplorerBarPage::UnfoldClick);
        AddButton(274, L"Breiter", &TExplorerBarPage::WidthClick);
        FWidthButton = FLastButton;
        FTogether = new TCheckBox(this);
        FTogether->SetBounds(20, 572, 480, 17);
        FTogether->SetCaption(L"Änderungen zwischen BeginUpdate und EndUpdate");
        FTogether->SetParent(this);
        AddButton(532, L"Verbergen", &TExplorerBarPage::HideClick);
        AddButton(640, L"Hinzufügen", &TExplorerBarPage::AddClick);
        AddButton(532, L"Löschen", &TExplorerBarPage::DeleteClick, 1);
        AddButton(640, L"Umbenennen", &TExplorerBarPage::RenameClick, 1);

        FCopying = new TTimer(this);
        FCopying->SetInterval(200);
        FCopying->OnTimer = {this, &TExplorerBarPage::CopyMore};
    }

    [[nodiscard]] int ShotCount() const override { return 2; }
    void PrepareShot(int shot) override {
        FCopying->SetEnabled(false);
        ShowCopied(shot == 0 ? 34 : 97);
        if (shot == 0) return;
        WidthClick(nullptr);
        FTaskBar->SetAnimate(false);
        FTaskBar->GetGroups()[1]->OpenClose();
        FTaskBar->SetAnimate(true);
        HideClick(nullptr);
        AddClick(nullptr);
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        DrawHeading(canvas, 20, 18, 256, L"Wie in einer Anwendung");
        DrawHeading(canvas, 274, 18, 514, L"Hunderte Verweise");
        DrawHeading(canvas, 532, 18, 740, L"Lange Texte");
        for (const TQV7SkinExplorerBar* bar : {FTaskBar, FLongBar, FTextBar}) {
            TRect frame = bar->GetBoundsRect();
            frame.Inflate(1, 1);
            Outline(canvas, frame, 0x00D8D2CC);
        }
    }

private:
    using TClick = void (TExplorerBarPage::*)(TObject*);

    TQV7SkinExplorerBar* AddBar(int left, int width) {
        auto* bar = new TQV7SkinExplorerBar(this);
        bar->SetBounds(left, BarTop, width, BarHeight);
        bar->SetParent(this);
        bar->SetItemIcons(FIcons);
        bar->SetGroupIcons(FIcons);
        return bar;
    }
    void AddButton(int left, const wchar_t* caption, TClick click, int row = 0) {
        FLastButton = new TQV7SkinButton(this);
        FLastButton->SetBounds(left, 538 + 32 * row, 100, 25);
        FLastButton->SetCaption(caption);
        FLastButton->SetParent(this);
        FLastButton->OnClick = {this, click};
    }

    // --- the application's bar
    void ItemClicked(TObject* sender) {
        String what = L"dem Bild";
        if (const auto* link = dynamic_cast<TQV7SkinExplorerItemLink*>(sender)) what = link->GetCaption();
        if (const auto* pair = dynamic_cast<TQV7SkinExplorerItemCaptionValuePair*>(sender))
            what = pair->GetCaption();
        if (const auto* pair = dynamic_cast<TQV7SkinExplorerItemCaptionBlockPair*>(sender))
            what = pair->GetCaption();
        FLast->SetCaption(L"Zuletzt geklickt: " + what);
    }
    void ShowCopied(int files) {
        FTask.CopyText->SetCaption(L"Datei " + IntToStr(files) + L" von " +
                                   IntToStr(FTask.CopyProgress->GetMax()) + L" wird kopiert");
        FTask.CopyProgress->SetPosition(files);
    }
    void CopyMore(TObject*) {
        ShowCopied(FTask.CopyProgress->GetPosition() % FTask.CopyProgress->GetMax() + 1);
    }
    void UnfoldClick(TObject*) { FTaskBar->ShowAnimate(); }

    // --- the long bar
    void WidthClick(TObject*) {
        const bool wide = FLongBar->GetWidth() == NarrowBar;
        FLongBar->SetWidth(wide ? WideBar : NarrowBar);
        FWidthButton->SetCaption(wide ? L"Schmaler" : L"Breiter");
        Invalidate();
    }

    // --- the bar of texts
    /// Changes the items of the first group, each for itself or all at once.
    template <class Change>
    void ChangeItems(Change change) {
        const bool together = FTogether->GetChecked();
        if (together) FTextBar->BeginUpdate();
        change(FTextBar->GetGroups()[0]->GetItems());
        if (together) FTextBar->EndUpdate();
    }
    void HideClick(TObject*) {
        ChangeItems([](TQV7SkinExplorerItems& items) {
            for (int i = 0; i < items.GetCount(); i += 2)
                items[i]->SetVisible(!items[i]->GetVisible());
        });
    }
    void AddClick(TObject*) {
        ChangeItems([this](TQV7SkinExplorerItems& items) {
            for (int i = 0; i < 3; ++i) {
                auto* link =
                    new TQV7SkinExplorerItemLink(L"Neu: Nummer " + IntToStr(++FAdded), String(), siInfo);
                link->OnClick = {this, &TExplorerBarPage::ItemClicked};
                items.Add(link);
            }
        });
    }
    void DeleteClick(TObject*) {
        ChangeItems([](TQV7SkinExplorerItems& items) {
            for (int i = 0; i < 3 && items.GetCount() > 0; ++i)
                items.Delete(items.GetCount() - 1);
        });
    }
    void RenameClick(TObject*) {
        ChangeItems([](TQV7SkinExplorerItems& items) {
            for (int i = 0; i < items.GetCount(); ++i)
                if (auto* link = dynamic_cast<TQV7SkinExplorerItemLink*>(items[i]))
                    link->SetCaption(link->GetCaption() + L" (umbenannt)");
        });
    }

    TImageList* FIcons;
    TQV7SkinExplorerBar* FTaskBar;
    TQV7SkinExplorerBar* FLongBar;
    TQV7SkinExplorerBar* FTextBar;
    TTaskBarItems FTask{};
    TQV7SkinButton* FLastButton = nullptr;
    TQV7SkinButton* FWidthButton = nullptr;
    TCheckBox* FTogether = nullptr;
    TLabel* FLast;
    TTimer* FCopying;
    int FAdded = 0;
};

}  // namespace

TGalleryPage* CreateExplorerBarPage(TComponent* owner) {
    return new TExplorerBarPage(owner);
}

}  // namespace gallery
