// A side bar with tasks and details, in forty lines.

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"

using namespace qv7skin;

class TMainForm : public TForm {
public:
    explicit TMainForm(TComponent* AOwner) : TForm(AOwner) {
        auto* bar = new TQV7SkinExplorerBar(this);
        bar->SetParent(this);
        bar->SetAlign(alLeft);
        bar->BeginUpdate();
        TQV7SkinExplorerItems& tasks = bar->GetGroups().Add(L"Tasks", true)->GetItems();
        auto* print = new TQV7SkinExplorerItemLink(L"Print this picture", L"On the default printer");
        print->OnClick = {this, &TMainForm::PrintClick};
        tasks.Add(print);
        tasks.Add(new TQV7SkinExplorerItemSeparator(6));
        FConfirm = new TQV7SkinExplorerItemCheckBox(L"Ask before printing", 0, L"", true, true, true);
        tasks.Add(FConfirm);
        TQV7SkinExplorerItems& details = bar->GetGroups().Add(L"Details", false)->GetItems();
        details.Add(new TQV7SkinExplorerItemBmp(L"lake.jpg"));
        details.Add(new TQV7SkinExplorerItemCaptionValuePair(L"Size", L"1,204 KB", L""));
        bar->EndUpdate();
    }

private:
    void PrintClick(TObject*) { SetCaption(FConfirm->GetChecked() ? L"Really print?" : L"Printing"); }
    TQV7SkinExplorerItemCheckBox* FConfirm = nullptr;  // owned by its group
};

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    Application().CreateForm<TMainForm>();
    Application().Run();
    return 0;
}
