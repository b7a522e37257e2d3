// A form with one skinned button that counts its clicks: the smallest host.

#include "buttons/UnitQV7SkinButton.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"

namespace {

using qv7skin::TQV7SkinButton;

class TMainForm : public vcl::TForm {
public:
    explicit TMainForm(vcl::TComponent* AOwner) : TForm(AOwner), FButton(new TQV7SkinButton(this)) {
        SetCaption(L"Hello");
        FButton->SetParent(this);
        FButton->SetBounds(24, 24, 160, 25);
        FButton->SetCaption(L"Click me");
        FButton->OnClick = {this, &TMainForm::ButtonClick};
    }

private:
    void ButtonClick(vcl::TObject*) { FButton->SetCaption(L"Clicks: " + std::to_wstring(++FClicks)); }

    TQV7SkinButton* FButton;  // owned by the form
    int FClicks = 0;
};

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    vcl::Application().CreateForm<TMainForm>();
    vcl::Application().Run();
    return 0;
}
