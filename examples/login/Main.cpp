// A form that stands in a form file: the file places the controls, the class holds what they do.

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/FormResources.h"

namespace {

class TLoginForm : public vcl::TForm {
public:
    explicit TLoginForm(vcl::TComponent* AOwner) : TForm(AOwner) {
        vcl::InitInheritedComponent(*this, TForm::StaticClass());
    }
    [[nodiscard]] const vcl::TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const vcl::TMetaClass& StaticClass() {
        static const vcl::TMetaClass meta = vcl::DefineClass<TLoginForm>(L"TLoginForm", TForm::StaticClass())
                                                .Component<&TLoginForm::FNameEdit>(L"NameEdit")
                                                .Component<&TLoginForm::FOkButton>(L"OkButton")
                                                .Method<&TLoginForm::NameChange>(L"NameChange")
                                                .Method<&TLoginForm::OkClick>(L"OkClick");
        return meta;
    }

private:
    void NameChange(vcl::TObject*) { FOkButton->SetEnabled(!FNameEdit->GetText().empty()); }
    void OkClick(vcl::TObject*) { Close(); }

    vcl::TEdit* FNameEdit = nullptr;
    vcl::TControl* FOkButton = nullptr;
};

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    vcl::RegisterStandardClasses();
    qv7skin::Register();
    vcl::Application().CreateForm<TLoginForm>();
    vcl::Application().Run();
    return 0;
}
