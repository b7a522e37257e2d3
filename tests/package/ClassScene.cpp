#include "tests/package/ClassScene.h"

#include <algorithm>

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/forms/StandardClasses.h"

namespace test {
namespace {

using namespace vcl;

constexpr const wchar_t* SubjectName = L"Subject";

bool IsForm(const TMetaClass& meta) {
    return meta.InheritsFrom(TCustomForm::StaticClass());
}

}  // namespace

TClassList CreatableClasses() {
    RegisterStandardClasses();
    qv7skin::Register();
    TClassList classes = RegisteredClasses();
    std::erase_if(classes, [](const TMetaClass* known) { return !known->CanCreate(); });
    return classes;
}

ClassScene::ClassScene(const TMetaClass& meta) {
    if (IsForm(meta)) {
        Root.reset(meta.Create(nullptr));
        Subject = Root.get();
    } else {
        Root = std::make_unique<TForm>(nullptr);
        Subject = &Add(meta, SubjectName);
    }
    AddTargets(meta);
}

TComponent& ClassScene::SubjectOf(TComponent& root) {
    TComponent* subject = root.FindComponent(SubjectName);
    return subject ? *subject : root;
}

TComponent& ClassScene::Add(const TMetaClass& meta, const String& name) {
    TComponent* component = meta.Create(Root.get());
    component->SetName(name);
    component->SetParentComponent(Root.get());
    return *component;
}

/// For each reference a component that it can point to.
void ClassScene::AddTargets(const TMetaClass& meta) {
    if (!FSeen.insert(&meta).second) return;
    const TClassList classes = CreatableClasses();
    for (const TPublishedProperty* row : meta.AllProperties()) {
        if (row->Kind() == TPropertyKind::Nested) AddTargets(*row->ObjectClass());
        if (row->Kind() != TPropertyKind::Component) continue;
        const auto fitting = std::ranges::find_if(classes, [&](const TMetaClass* other) {
            return other->InheritsFrom(*row->ObjectClass()) && !IsForm(*other);
        });
        if (fitting == classes.end()) continue;
        const String name = String(L"Other") + (*fitting)->ClassName();
        if (!Root->FindComponent(name)) Add(**fitting, name);
    }
}

}  // namespace test
