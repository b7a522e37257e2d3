#include <memory>
#include <vector>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "explorerbar/items/ExplorerItemWithPopupWindow.h"
#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "inputs/UnitQV7SkinCheckBox.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Label.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr int FieldLeft = 24;
constexpr int FieldWidth = 220;
constexpr int FieldTop = 60;
constexpr int FieldStep = 44;
constexpr int BarLeft = 470;
constexpr int BarWidth = 236;

struct TSizing {
    const wchar_t* Text;
    TPopupResizeDirections Directions;
};
const TSizing Sizings[] = {
    {L"Rechts und unten", {rdRight, rdBottom}},
    {L"Links und unten", {rdLeft, rdBottom}},
    {L"Nur unten", {rdBottom}},
    {L"Gar nicht", {}},
};

TLabel* AddText(TWinControl& parent, const TRect& place, const wchar_t* text) {
    auto* label = new TLabel(&parent);
    label->SetAutoSize(false);
    label->SetWordWrap(true);
    label->SetCaption(text);
    label->SetBoundsRect(place);
    label->SetAnchors({akLeft, akTop, akRight});
    label->SetParent(&parent);
    return label;
}

/// A popup form whose buttons detach it, dock it again and close it.
class TSizedForm : public TQV7SkinPopupForm {
public:
    TSizedForm(TComponent* AOwner, TPopupResizeDirections directions) : TQV7SkinPopupForm(AOwner) {
        SetCaption(L"Gelöstes Fenster");
        SetClientWidth(FieldWidth);
        SetClientHeight(100);
        SetResizeDirection(directions);
        AddText(*this, TRect(12, 28, FieldWidth - 12, 92),
                L"Angedockt schließt es, wenn ein anderes Fenster aktiv wird. Gelöst bleibt es stehen.");
        OnShow = {this, &TSizedForm::ShowButtons};
    }

protected:
    void DoExcludeWindowClick() override {
        const TLifeGuard guard(*this);
        TQV7SkinPopupForm::DoExcludeWindowClick();
        if (guard.IsAlive()) ShowButtons(nullptr);
    }
    void DoIncludeWindowClick() override {
        const TLifeGuard guard(*this);
        TQV7SkinPopupForm::DoIncludeWindowClick();
        if (guard.IsAlive()) ShowButtons(nullptr);
    }

private:
    /// The form hides them whenever its window is made.
    void ShowButtons(TObject*) {
        const bool isDetached = GetShowBorder();
        imgCloseWindow->SetVisible(!isDetached);
        imgExcludeWindow->SetVisible(!isDetached);
        imgIncludeWindow->SetVisible(isDetached);
    }
};

/// What opens below a link of the bar, with a box that keeps it open.
class TKeptForm : public TQV7SkinExplorerItemPopupWindow {
public:
    TKeptForm(TComponent* AOwner, const wchar_t* text) : TQV7SkinExplorerItemPopupWindow(AOwner) {
        SetWidth(BarWidth);
        SetClientHeight(84);
        AddText(*this, TRect(12, 10, 224, 52), text);
        FKeep = new TQV7SkinCheckBox(this);
        FKeep->SetBounds(12, 58, 200, 17);
        FKeep->SetCaption(L"&Offen halten");
        FKeep->SetParent(this);
    }
    [[nodiscard]] bool GetLocked() const override { return FKeep->GetChecked(); }
    void SetLocked(bool Value) override { FKeep->SetChecked(Value); }

private:
    TQV7SkinCheckBox* FKeep;
};

/// Fields that drop down forms, one for each way of sizing them, and an explorer bar whose links open
/// windows.
class TPopupFormsPage : public TGalleryPage {
public:
    explicit TPopupFormsPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        int top = FieldTop;
        for (const TSizing& sizing : Sizings) {
            auto* field = new TQV7SkinComboBoxCustomDropDown(this);
            field->SetBounds(FieldLeft, top, FieldWidth, 25);
            field->SetText(sizing.Text);
            field->SetTabStop(true);
            field->SetParent(this);
            field->CreateParts();
            FForms.push_back(std::make_unique<TSizedForm>(nullptr, sizing.Directions));
            field->SetDropDownForm(FForms.back().get());
            field->OnDropDown = {this, &TPopupFormsPage::FieldDropDown};
            FFields.push_back(field);
            top += FieldStep;
        }
        AddBar();
    }
    ~TPopupFormsPage() override {
        for (TQV7SkinComboBoxCustomDropDown* field : FFields)
            field->SetDropDownForm(nullptr);
        for (TQV7SkinExplorerItemWithPopupWindow* link : FLinks)
            link->SetPopupWindow(nullptr);
    }

    /// At rest; one form detached and one docked and drawn larger; a link's window.
    [[nodiscard]] int ShotCount() const override { return 3; }
    void TakeShot(int shot, const std::function<void()>& take) override {
        if (shot == 1) OpenTwo();
        if (shot == 2) FLinks[1]->ShowWindow();
        TGalleryPage::TakeShot(shot, take);
        for (const auto& form : FForms)
            form->Close();
        for (const auto& form : FKept)
            form->Close();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        DrawHeading(canvas, FieldLeft, 24, BarLeft - 40, L"Unter einem Feld, zu ziehen an diesen Kanten");
        DrawHeading(canvas, BarLeft, 24, BarLeft + BarWidth, L"Unter einem Verweis");
    }

private:
    void AddBar() {
        FBar = new TQV7SkinExplorerBar(this);
        FBar->SetBounds(BarLeft, FieldTop, BarWidth, 300);
        FBar->SetParent(this);
        FBar->BeginUpdate();
        auto* group = FBar->GetGroups().Add(L"Vorschau", false);
        for (const wchar_t* text : {L"Rechnung 4711", L"Lieferschein 4712", L"Mahnung 4713"}) {
            FKept.push_back(std::make_unique<TKeptForm>(
                nullptr, L"Es bleibt, solange der Zeiger auf dem Verweis oder hier ist."));
            auto* link = new TQV7SkinExplorerItemWithPopupWindow(FKept.back().get());
            link->SetCaption(text);
            group->GetItems().Add(link);
            FLinks.push_back(link);
        }
        FBar->EndUpdate();
    }
    void FieldDropDown(TObject* sender) {
        auto* form = dynamic_cast<TQV7SkinComboBoxCustomDropDown&>(*sender).GetDropDownForm();
        auto* page = dynamic_cast<TCustomForm*>(GetParentForm(this));
        if (form->GetAttachedTo() != page) form->SetAttachedTo(page);
    }
    void OpenTwo() {
        FFields[1]->SetDroppedDown(true);
        FForms[1]->imgExcludeWindowClick(nullptr);
        const TPoint beside = ClientToScreen({FieldLeft + FieldWidth + 50, FieldTop + 150});
        FForms[1]->SetBounds(beside.X, beside.Y, FForms[1]->GetWidth(), FForms[1]->GetHeight());
        FFields[0]->SetDroppedDown(true);
        FForms[0]->SetClientHeight(150);
        FForms[0]->SetWidth(FForms[0]->GetWidth() + 24);
    }

    std::vector<TQV7SkinComboBoxCustomDropDown*> FFields;
    std::vector<std::unique_ptr<TSizedForm>> FForms;
    std::vector<TQV7SkinExplorerItemWithPopupWindow*> FLinks;
    std::vector<std::unique_ptr<TKeptForm>> FKept;
    TQV7SkinExplorerBar* FBar = nullptr;
};

}  // namespace

TGalleryPage* CreatePopupFormsPage(TComponent* owner) {
    return new TPopupFormsPage(owner);
}

}  // namespace gallery
