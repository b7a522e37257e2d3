#include <array>
#include <memory>
#include <vector>

#include "gallery/Drawing.h"
#include "gallery/ToolIcons.h"
#include "gallery/pages/Pages.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinToolbar.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace gallery {
namespace {

struct TTool {
    const wchar_t* Caption;
    TToolIcon Icon;
};
constexpr std::array Tools{
    TTool{L"Neu", TToolIcon::New},          TTool{L"Öffnen", TToolIcon::Open},
    TTool{L"Speichern", TToolIcon::Save},   TTool{L"Drucken", TToolIcon::Print},
    TTool{L"Suchen", TToolIcon::Search},    TTool{L"Senden", TToolIcon::Mail},
    TTool{L"Auswertung", TToolIcon::Chart}, TTool{L"Löschen", TToolIcon::Delete},
};

/// Toolbars with pictures and captions, with pictures alone, and one that is too narrow.
class TToolbarPage : public TGalleryPage {
public:
    explicit TToolbarPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        RegisterClasses(
            {&TQV7SkinToolbar::StaticClass(), &TPopupMenu::StaticClass(), &TLabel::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
        FillBar(*FCaptions, true);
        FillBar(*FPictures, false);
        FPictures->GetItems()[2]->SetSelected(true);
        FillBar(*FNarrow, true);
        for (const wchar_t* caption : {L"Ruhend", L"Unter der Maus", L"Gewählt"})
            AddButton(*FPosing, caption, TToolIcon::Save);
        FPosing->GetItems()[2]->SetSelected(true);
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta = DefineClass<TToolbarPage>(L"TToolbarPage", TGalleryPage::StaticClass())
                                           .Component<&TToolbarPage::FCaptions>(L"Captions")
                                           .Component<&TToolbarPage::FPictures>(L"Pictures")
                                           .Component<&TToolbarPage::FNarrow>(L"Narrow")
                                           .Component<&TToolbarPage::FPosing>(L"Posing")
                                           .Component<&TToolbarPage::FMenu>(L"Menu")
                                           .Component<&TToolbarPage::FLast>(L"Last")
                                           .Method<&TToolbarPage::FillMenu>(L"FillMenu");
        return meta;
    }
    ~TToolbarPage() override {
        for (const TQV7SkinToolbar* bar : {FCaptions, FPictures, FNarrow, FPosing})
            bar->GetItems().Clear();
    }

    void PrepareShot(int) override {
        const TRect second = FPosing->GetItemRect(1);
        ::SendMessageW(FPosing->GetPaintBox().GetHandle(), WM_MOUSEMOVE, 0,
                       TMessage::PackPoint({second.Left + 20, 15}));
    }

protected:
    void Paint() override {
        DrawPartHeading(18, L"Bilder und Beschriftungen");
        DrawPartHeading(110, L"Bilder allein, eines gewählt");
        DrawPartHeading(202, L"Was nicht passt, steht im Menü rechts");
        DrawPartHeading(294, L"Zustände");
    }

private:
    void FillBar(TQV7SkinToolbar& bar, bool captions) {
        for (const TTool& tool : Tools)
            AddButton(bar, captions ? tool.Caption : L"", tool.Icon);
    }

    void AddButton(TQV7SkinToolbar& bar, const wchar_t* caption, TToolIcon icon) {
        FIcons.push_back(CreateToolIcon(icon));
        auto* button = new TQV7SkinToolbutton(caption, FIcons.back().get());
        button->OnClick = [this](TQV7SkinHeaderItemCustom* item, TMouseButton, TShiftState, int, int) {
            FLast->SetCaption(L"Zuletzt: " + (item->GetCaption().empty() ? L"ein Bild" : item->GetCaption()));
        };
        bar.GetItems().Add(button);
    }

    /// The menu of the narrow bar names what the bar leaves out.
    void FillMenu(TObject*) {
        FMenu->GetItems().Clear();
        const TQV7SkinHeaderItems& buttons = FNarrow->GetItems();
        for (int i = FNarrow->GetIndexOfLastItemToDraw() + 1; i < buttons.GetCount(); ++i) {
            auto* entry = new TMenuItem(FMenu);
            entry->SetCaption(buttons[i]->GetCaption());
            entry->OnClick = [this, i](TObject*) { FNarrow->GetItems()[i]->Click(mbLeft, {}, 1, 1); };
            FMenu->GetItems().Add(entry);
        }
    }

    std::vector<std::unique_ptr<TBitmap>> FIcons;
    TQV7SkinToolbar* FCaptions = nullptr;
    TQV7SkinToolbar* FPictures = nullptr;
    TQV7SkinToolbar* FNarrow = nullptr;
    TQV7SkinToolbar* FPosing = nullptr;
    TPopupMenu* FMenu = nullptr;
    TLabel* FLast = nullptr;
};

}  // namespace

TGalleryPage* CreateToolbarPage(TComponent* owner) {
    return new TToolbarPage(owner);
}

}  // namespace gallery
