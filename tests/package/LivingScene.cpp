#include "tests/package/LivingScene.h"

#include <array>
#include <map>

#include "header/UnitQV7SkinTabControl.h"
#include "platform/vcl/controls/DragTypes.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormDocument.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/package/Furnishing.h"
#include "tests/support/Pump.h"

namespace test {

using namespace vcl;

namespace {

enum Part { FormPart, PlacePart, OtherPart, SubjectPart, PartCount };

constexpr std::array<const wchar_t*, PartCount> Names{L"Scene", L"Place", L"Other", L"Subject"};

template <class Control>
Control* Put(TComponent& root, TWinControl& parent, Part part, const TRect& bounds) {
    auto* control = new Control(&root);
    control->SetName(Names[part]);
    control->SetBoundsRect(bounds);
    control->SetParent(&parent);
    return control;
}

TFormDocument Draft(const TMetaClass& meta) {
    const bool isForm = meta.InheritsFrom(TCustomForm::StaticClass());
    const std::unique_ptr<TComponent> root(isForm ? meta.Create(nullptr) : new TForm(nullptr));
    root->SetName(Names[FormPart]);
    auto& form = dynamic_cast<TCustomForm&>(*root);
    form.SetBounds(60, 60, 440, 320);
    auto* place = Put<TPanel>(form, form, PlacePart, {10, 10, 400, 230});
    Put<TEdit>(form, form, OtherPart, {10, 240, 100, 262});
    if (!isForm) {
        TComponent* subject = meta.Create(&form);
        subject->SetName(Names[SubjectPart]);
        const bool isControl = meta.InheritsFrom(TControl::StaticClass());
        subject->SetParentComponent(isControl ? static_cast<TComponent*>(place) : &form);
        if (auto* control = dynamic_cast<TControl*>(subject)) {
            control->SetLeft(20);
            control->SetTop(20);
        }
    }
    return TWriter().WriteRootComponent(form);
}

std::unique_ptr<TComponent> Read(const TMetaClass& meta) {
    static std::map<const TMetaClass*, TFormDocument> drafts;
    if (!drafts.contains(&meta)) drafts.emplace(&meta, Draft(meta));
    const TFormDocument& draft = drafts.at(&meta);
    std::unique_ptr<TComponent> root(FindClass(draft.Root.ClassName).Create(nullptr));
    TReader(draft).ReadRootComponent(root.get());
    return root;
}

/// An event whose arguments are left alone. Under the calling convention the caller owns the arguments, so a
/// handler may take fewer than it is given.
void BindAny(TEventBase& event, std::function<void()> action) {
    event = static_cast<const TEventBase&>(TEvent<void()>(std::move(action)));
}

void BindTo(TEventBase& event, const std::type_info& type, const std::function<void()>& action) {
    if (type == typeid(TDragOverEvent)) {
        static_cast<TDragOverEvent&>(event) = [action](TObject*, TObject*, int, int, TDragState,
                                                       bool& accept) {
            accept = true;
            action();
        };
    } else if (type == typeid(qv7skin::TQueryTabSwitchEvent)) {
        static_cast<qv7skin::TQueryTabSwitchEvent&>(event) = [action](TObject*, bool& allow) {
            allow = true;
            action();
        };
    } else {
        BindAny(event, action);
    }
}

}  // namespace

SceneEvent EventOf(const TPublishedProperty& row, TObject& object) {
    return {ToUtf8(row.Name()), [&row, &object](const std::function<void()>& action) {
                BindTo(*row.Event(object), row.EventType(), action);
            }};
}

/// Owns the form and learns what is freed.
class LivingScene::Watch final : public TComponent {
public:
    explicit Watch(std::unique_ptr<TComponent> root) : TComponent(nullptr) {
        TComponent* subject = root->FindComponent(Names[SubjectPart]);
        Follow(PlacePart, root->FindComponent(Names[PlacePart]));
        Follow(OtherPart, root->FindComponent(Names[OtherPart]));
        Follow(SubjectPart, subject ? subject : root.get());
        Follow(FormPart, root.release());
    }
    ~Watch() override {
        if (Parts[FormPart]) Parts[FormPart]->Free();
    }
    std::array<TComponent*, PartCount> Parts{};

protected:
    void Notification(TComponent* component, TOperation operation) override {
        TComponent::Notification(component, operation);
        if (operation != opRemove) return;
        for (TComponent*& part : Parts)
            if (part == component) part = nullptr;
    }

private:
    void Follow(Part part, TComponent* component) {
        Parts[part] = component;
        component->FreeNotification(this);
    }
};

LivingScene::LivingScene(const TMetaClass& meta) : FWatch(std::make_unique<Watch>(Read(meta))) {
    Furniture furniture = Furnish(*Subject(), *Form(), *Place());
    FItemEvents = std::move(furniture.Events);
    FSpot = std::move(furniture.Spot);
}

LivingScene::~LivingScene() = default;

void LivingScene::Show() {
    if (Form()) Form()->Show();
    PumpAll();
}

TCustomForm* LivingScene::Form() const {
    return static_cast<TCustomForm*>(FWatch->Parts[FormPart]);
}

TWinControl* LivingScene::Place() const {
    return static_cast<TWinControl*>(FWatch->Parts[PlacePart]);
}

TWinControl* LivingScene::Other() const {
    return static_cast<TWinControl*>(FWatch->Parts[OtherPart]);
}

TComponent* LivingScene::Subject() const {
    return FWatch->Parts[SubjectPart];
}

TControl* LivingScene::Control() const {
    return dynamic_cast<TControl*>(Subject());
}

TControl* LivingScene::Target() const {
    return Control() ? Control() : Place();
}

TPoint LivingScene::Spot() const {
    if (FSpot) return FSpot();
    const TRect client = Target()->GetClientRect();
    return Target()->ClientToScreen({client.Right / 2, client.Bottom / 2});
}

std::vector<SceneEvent> LivingScene::Events() const {
    std::vector<SceneEvent> events;
    for (const TPublishedProperty* row : Subject()->ClassType().AllProperties())
        if (row->Kind() == TPropertyKind::Event) events.push_back(EventOf(*row, *Subject()));
    events.insert(events.end(), FItemEvents.begin(), FItemEvents.end());
    return events;
}

}  // namespace test
