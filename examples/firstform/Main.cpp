// Loads a form file at run time: the designer made the form, the class holds what it does.
#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/FormResources.h"

class TFirstForm : public vcl::TForm {
public:
    explicit TFirstForm(vcl::TComponent* AOwner) : TForm(AOwner) {
        vcl::ReadComponentFile(L"FirstForm.dfm", this);
    }
    const vcl::TMetaClass& ClassType() const override { return StaticClass(); }
    static const vcl::TMetaClass& StaticClass() {
        static const vcl::TMetaClass meta = vcl::DefineClass<TFirstForm>(L"TFirstForm", TForm::StaticClass())
                                                .Component<&TFirstForm::FNameEdit>(L"NameEdit")
                                                .Method<&TFirstForm::GreetClick>(L"GreetClick");
        return meta;
    }

private:
    void GreetClick(vcl::TObject*) { SetCaption(L"Guten Tag, " + FNameEdit->GetText() + L"!"); }
    vcl::TEdit* FNameEdit = nullptr;
};

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    vcl::RegisterStandardClasses();
    qv7skin::Register();
    vcl::Application().CreateForm<TFirstForm>();
    vcl::Application().Run();
    return 0;
}
