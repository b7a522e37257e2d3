#include "tests/designer/DesignFixture.h"

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {

DesignTest::DesignTest() {
    Register();
    RegisterClasses({&TButton::StaticClass(), &TEdit::StaticClass(), &TLabel::StaticClass(),
                     &TPanel::StaticClass(), &TTimer::StaticClass()});
}

void DesignTest::SetUp() {
    LedgerTest::SetUp();
    FDocument = std::make_unique<TDesignDocument>();
}

void DesignTest::TearDown() {
    FDocument.reset();
    LedgerTest::TearDown();
}

void DesignTest::Begin(const String& contents) {
    Document().Begin(ParseFormText(L"object Form1: TForm1\n" + contents + L"\nend"));
}

TComponent& DesignTest::Find(const String& name) {
    TComponent* component = Document().Root().FindComponent(name);
    if (!component) throw EComponentError(L"The form has no component " + name);
    return *component;
}

void DesignTest::Choose(std::initializer_list<const wchar_t*> names) {
    std::vector<TComponent*> items;
    for (const wchar_t* name : names)
        items.push_back(&Find(name));
    Document().Selection().Set(items);
}

}  // namespace designer
