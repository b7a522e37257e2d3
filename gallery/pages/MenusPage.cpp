#include <array>
#include <memory>

#include "gallery/Drawing.h"
#include "gallery/MenuPictures.h"
#include "gallery/MenuSamples.h"
#include "gallery/pages/Pages.h"
#include "menus/UnitQV7SkinActnCtrls.h"
#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr int Right = 736;
constexpr GUID Identifier{0x6d1a9f3c, 0x41d2, 0x4b0e, {0x9c, 0x55, 0x10, 0x3e, 0x77, 0x21, 0x8a, 0x04}};

struct TPart {
    const wchar_t* Caption;
    TQV7SkinMenuItemPainterPart Part;
};
constexpr std::array Parts{TPart{L"Überschriften", mipSeparatorText},
                           TPart{L"Beschreibungen", mipDescription}, TPart{L"Tastenkürzel", mipShortCut},
                           TPart{L"Bildspalte", mipGutter}};

/// The menu of a text editor as a classic bar, in the window as long as the page is shown, and as a bar of
/// actions; a popup menu, and both painters with all their switches.
class TMenusPage : public TGalleryPage {
public:
    explicit TMenusPage(TComponent* AOwner) : TGalleryPage(AOwner), FImages(CreateMenuImages()) {
        SetColor(GetQV7SkinColorBackground());
        FEditor = new TMemo(this);
        FEditor->SetBounds(Margin, 74, Right - Margin, 96);
        FEditor->SetText(L"Beide Menüleisten wirken auf diesen Text.");
        FEditor->SetParent(this);
        FMenu = new TQV7SkinMainMenu(this);
        FMenu->SetImages(FImages.get());
        FillEditorMenu(FMenu->GetItems(), *FEditor);
        FMenu->ApplyCustomLayout();
        FManager = new TActionManager(this);
        FManager->SetImages(FImages.get());
        FBar = new TActionMainMenuBar(this);
        FBar->SetAlign(alNone);
        FBar->SetBounds(Margin, 46, Right - Margin, 24);
        FBar->SetParent(this);
        FReplacement = std::make_unique<TMainMenuReplacement>(FMenu, FManager, FBar, Identifier);
        FPopup = new TQV7SkinPopupMenu(this);
        FPopup->SetImages(FImages.get());
        // The heading at the top is a separator, too.
        FPopup->SetAutoLineReduction(maManual);
        FillSampleMenu(FPopup->GetItems(), {this, &TMenusPage::SampleClicked});
        SetPopupMenu(FPopup);
        MakeSwitches();
    }

    [[nodiscard]] int ShotCount() const override { return 5; }
    /// The page, the popup menu by both painters, and the edit menu of both bars.
    void TakeShot(int shot, const std::function<void()>& take) override {
        static constexpr WORD toFourthLevel[] = {VK_END, VK_RIGHT, VK_RIGHT, VK_RIGHT};
        static constexpr WORD toEditMenu[] = {VK_RIGHT, VK_DOWN, VK_DOWN, VK_DOWN};
        FEditor->SelectAll();
        FNice->SetChecked(shot != 2);
        switch (shot) {
            case 0:
                return TGalleryPage::TakeShot(shot, take);
            case 1:
            case 2:
                return WithOpenMenu([this] { OpenPopup(); }, toFourthLevel, take);
            case 3:
                return WithOpenMenu([this] { ::SendMessageW(FormWindow(), WM_SYSCOMMAND, SC_KEYMENU, 0); },
                                    toEditMenu, take);
            default:
                FBar->EnterMenuLoop(1, true);
                TGalleryPage::TakeShot(shot, take);
                FBar->CloseMenu();
        }
    }

protected:
    void Dispatch(TMessage& message) override {
        TGalleryPage::Dispatch(message);
        if (message.Msg == CM_SHOWINGCHANGED && !IsInState(csDestroying)) ShowClassicMenu(GetShowing());
    }

    void Paint() override {
        TCanvas& canvas = GetCanvas();
        DrawPartHeading(18, L"Ein Hauptmenü zweimal: klassisch oben im Fenster, und als Leiste");
        DrawPartHeading(182, L"Was gezeichnet wird");
        DrawNote(canvas, {Margin + 480, 242, Right, 258}, FChosen);
        DrawPartHeading(274, L"Das Kontextmenü, von beiden Malern gezeichnet");
        TQV7SkinMenuItemPainter plain;
        TQV7SkinMenuItemPainterNice nice;
        for (TQV7SkinMenuItemPainter* painter : {&plain, static_cast<TQV7SkinMenuItemPainter*>(&nice)})
            ApplyParts(*painter);
        DrawMenu(plain, Margin, L"TQV7SkinMenuItemPainter");
        DrawMenu(nice, 390, L"TQV7SkinMenuItemPainterNice");
    }

private:
    [[nodiscard]] TForm* OwnForm() {
        TParentForm* form = GetParentForm(this);
        return form ? dynamic_cast<TForm*>(&form->FormControl()) : nullptr;
    }
    [[nodiscard]] HWND FormWindow() {
        TForm* form = OwnForm();
        return form ? form->GetHandle() : nullptr;
    }
    void ShowClassicMenu(bool shown) {
        TForm* form = OwnForm();
        if (!form || form->IsInState(csDestroying)) return;
        if (shown)
            form->SetMenu(FMenu);
        else if (form->GetMenu() == FMenu)
            form->SetMenu(nullptr);
    }

    TCheckBox* AddSwitch(int left, int top, const wchar_t* caption, bool checked,
                         const std::function<void()>& changed) {
        auto* box = new TCheckBox(this);
        box->SetBounds(left, top, 150, 20);
        box->SetCaption(caption);
        box->SetChecked(checked);
        box->SetParent(this);
        box->OnClick = [this, changed](TObject*) {
            changed();
            UpdatePainter();
        };
        return box;
    }
    void MakeSwitches() {
        int left = Margin;
        for (const TPart& part : Parts) {
            AddSwitch(left, 212, part.Caption, true,
                      [this, which = part.Part] { FParts.Put(which, !FParts.Contains(which)); });
            left += 160;
        }
        FNice = AddSwitch(Margin + 160, 238, L"Maler ...Nice", true, [] {});
        FActive = AddSwitch(Margin + 320, 238, L"Maler aktiv", true, [] {});
        auto* open = new TButton(this);
        open->SetBounds(Margin, 236, 140, 25);
        open->SetCaption(L"Kontextmenü &öffnen");
        open->SetParent(this);
        open->OnClick = [this](TObject*) { OpenPopup(); };
    }

    void ApplyParts(TQV7SkinMenuItemPainter& painter) const {
        painter.SetDrawingParts(FParts);
        painter.SetIncludeDescription(FParts.Contains(mipDescription));
    }
    /// Installs the painter that the switches ask for and lets the menus measure their items anew.
    void UpdatePainter() {
        TQV7SkinMenuItemPainter* painter =
            FNice->GetChecked() ? new TQV7SkinMenuItemPainterNice() : new TQV7SkinMenuItemPainter();
        painter->SetActive(FActive->GetChecked());
        ApplyParts(*painter);
        SetQV7SkinMenuItemPainter(painter);
        FMenu->SetOwnerDraw(false);
        if (painter->GetActive()) FMenu->ApplyCustomLayout();
        FBar->RecreateControls();
        Invalidate();
    }

    void OpenPopup() {
        const TPoint place = ClientToScreen({Margin, 264});
        FPopup->Popup(place.X, place.Y);
    }
    void SampleClicked(TObject* sender) {
        FChosen = L"Gewählt: " + StripHotkey(dynamic_cast<TMenuItem&>(*sender).GetCaption());
        Invalidate();
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
        DrawNote(page, TRect::OfSize(left, 302, width, 16), name);
        page.CopyRect(TRect::OfSize(left + 1, 323, width, top), picture, {0, 0, width, top});
        Outline(page, TRect::OfSize(left, 322, width + 2, top + 2), GetQV7SkinColorColumnHeaderBG());
    }

    std::unique_ptr<TImageList> FImages;
    TMemo* FEditor = nullptr;
    TQV7SkinMainMenu* FMenu = nullptr;
    TActionManager* FManager = nullptr;
    TActionMainMenuBar* FBar = nullptr;
    TQV7SkinPopupMenu* FPopup = nullptr;
    TCheckBox* FNice = nullptr;
    TCheckBox* FActive = nullptr;
    std::unique_ptr<TMainMenuReplacement> FReplacement;
    TQV7SkinMenuItemPainterParts FParts{mipSeparatorText, mipDescription, mipShortCut, mipGutter};
    String FChosen;
};

}  // namespace

TGalleryPage* CreateMenusPage(TComponent* owner) {
    return new TMenusPage(owner);
}

}  // namespace gallery
