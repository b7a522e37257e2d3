// Documents on tabs: they open, close, lock and change places, and a menu lists those that do not fit.

#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinTabControl.h"
#include "header/UnitQV7SkinToolbar.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "platform/vcl/stdctrls/Label.h"

namespace {

using namespace qv7skin;

class TMainForm : public vcl::TForm {
public:
    explicit TMainForm(vcl::TComponent* AOwner)
        : TForm(AOwner),
          FTabs(new TQV7SkinTabControl(this)),
          FToolbar(new TQV7SkinToolbar(this)),
          FLabel(new TLabel(this)),
          FMenu(new TPopupMenu(this)) {
        SetCaption(L"Documents");
        SetBounds(100, 100, 480, 200);
        FTabs->SetAlign(alTop);
        FTabs->SetParent(this);
        FTabs->SetChevronDropDown(FMenu);
        FTabs->OnQueryTabSwitch = [](TObject*, bool& allow) { allow = true; };  // Ctrl+Tab
        FTabs->Loaded();  // a control that is made in code is told that its properties are set
        FToolbar->SetTop(FTabs->GetHeight());
        FToolbar->SetAlign(alTop);
        FToolbar->SetParent(this);
        FLabel->SetBounds(12, 70, 300, 20);
        FLabel->SetParent(this);
        FMenu->OnPopup = {this, &TMainForm::ListTabs};
        AddButton(L"New", &TMainForm::NewClick);
        AddButton(L"Busy", &TMainForm::BusyClick);
        Open();
    }
    ~TMainForm() override { FTabs->GetItems().Clear(); }

private:
    using Handler = void (TMainForm::*)(TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int);

    void AddButton(const String& caption, Handler handler) {
        auto* button = new TQV7SkinToolbutton(caption);
        button->OnClick = {this, handler};
        FToolbar->GetItems().Add(button);  // the toolbar owns it
    }
    void Open() {
        const String caption = L"Document " + std::to_wstring(++FCount);
        auto* tab = new TQV7SkinHeaderItemTabExt(bckgrndStandard, caption);
        tab->OnClick = {this, &TMainForm::TabClick};
        tab->OnClose = {this, &TMainForm::TabClose};
        FTabs->GetItems().Add(tab);
        Show(tab);
    }
    void Show(TQV7SkinHeaderItemCustom* tab) {
        FTabs->SetSelectedItem(tab);
        FTabs->ScrollInView(tab);
        FLabel->SetCaption(tab ? L"Here is " + tab->GetCaption() : String(L"Nothing is open"));
    }

    void NewClick(TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int) { Open(); }
    void BusyClick(TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int) {
        auto* tab = static_cast<TQV7SkinHeaderItemTabExt*>(FTabs->GetSelectedItem());
        if (!tab) return;
        THeaderItemTabExtStates state = tab->GetState();
        state.Put(tesAnimated, !state.Contains(tesAnimated));
        tab->SetState(state);
    }
    void TabClick(TQV7SkinHeaderItemCustom* tab, TMouseButton, TShiftState, int, int) { Show(tab); }
    void TabClose(TQV7SkinHeaderItemCustom* tab) {
        const TQV7SkinHeaderItems& tabs = FTabs->GetItems();  // the closed one is not among them any more
        if (tab->GetSelected()) Show(tabs.GetCount() > 0 ? tabs[tabs.GetCount() - 1] : nullptr);
    }
    void ListTabs(TObject*) {
        FMenu->GetItems().Clear();
        const TQV7SkinHeaderItems& tabs = FTabs->GetItems();
        for (int i = 0; i < tabs.GetCount(); ++i) {
            auto* entry = new TMenuItem(FMenu);
            entry->SetCaption(tabs[i]->GetCaption());
            entry->OnClick = [this, i](TObject*) { Show(FTabs->GetItems()[i]); };
            FMenu->GetItems().Add(entry);
        }
    }

    // All owned by the form.
    TQV7SkinTabControl* FTabs;
    TQV7SkinToolbar* FToolbar;
    TLabel* FLabel;
    TPopupMenu* FMenu;
    int FCount = 0;
};

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    vcl::Application().CreateForm<TMainForm>();
    vcl::Application().Run();
    return 0;
}
