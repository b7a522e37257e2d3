#include <memory>

#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Bevel.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/ListBox.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/stdctrls/ScrollBar.h"
#include "platform/vcl/stdctrls/Splitter.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "platform/vcl/stdctrls/TrackBar.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

std::vector<const TMetaClass*> PublishedClasses() {
    return {&TBevel::StaticClass(),     &TButton::StaticClass(),  &TCheckBox::StaticClass(),
            &TEdit::StaticClass(),      &TForm::StaticClass(),    &TImage::StaticClass(),
            &TLabel::StaticClass(),     &TListBox::StaticClass(), &TMemo::StaticClass(),
            &TPanel::StaticClass(),     &TTimer::StaticClass(),   &TTrackBar::StaticClass(),
            &TScrollBar::StaticClass(), &TSplitter::StaticClass()};
}

/// Tests that hold for whatever a class publishes.
class PublishedTest : public FormTest, public testing::WithParamInterface<const TMetaClass*> {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Object.reset(GetParam()->Create(nullptr));
        ASSERT_NE(Object, nullptr);
        auto* control = dynamic_cast<TControl*>(Object.get());
        if (control && !dynamic_cast<TCustomForm*>(control)) control->SetParent(&Form());
    }
    void TearDown() override {
        Object.reset();
        FormTest::TearDown();
    }
    static bool IsValue(const TPublishedProperty& property) {
        return property.Kind() != TPropertyKind::Event && property.Kind() != TPropertyKind::Nested &&
               property.Kind() != TPropertyKind::Component;
    }
    std::unique_ptr<TComponent> Object;
};

TEST_P(PublishedTest, ANewObjectHasTheDefaultsOfItsTable) {
    // Their place depends on the parent, not on the class.
    const std::vector<std::wstring> placed{L"TabOrder"};
    for (const TPublishedProperty* property : GetParam()->AllProperties()) {
        if (!property->Default() || std::count(placed.begin(), placed.end(), property->Name())) continue;
        EXPECT_EQ(property->Get(*Object), *property->Default()) << ToUtf8(property->Name());
    }
}

TEST_P(PublishedTest, EveryValueCanBeReadAndWrittenBack) {
    for (const TPublishedProperty* property : GetParam()->AllProperties()) {
        if (property->Kind() == TPropertyKind::Event || property->IsReadOnly()) continue;
        const TPropertyValue value = property->Get(*Object);
        EXPECT_NO_THROW(property->Set(*Object, value)) << ToUtf8(property->Name());
        EXPECT_EQ(property->Get(*Object), value) << ToUtf8(property->Name());
    }
}

TEST_P(PublishedTest, BooleansAndEnumerationsKeepEachOfTheirValues) {
    for (const TPublishedProperty* property : GetParam()->AllProperties()) {
        if (property->Kind() != TPropertyKind::Boolean && property->Kind() != TPropertyKind::Enumeration)
            continue;
        // The form's window must stay as it is for the test.
        if (std::wstring(property->Name()) == L"Align") continue;
        const TPropertyValue before = property->Get(*Object);
        for (std::int64_t value = property->Minimum(); value <= property->Maximum(); ++value) {
            property->Set(*Object, value);
            EXPECT_EQ(property->Get(*Object), TPropertyValue(value)) << ToUtf8(property->Name());
        }
        property->Set(*Object, before);
    }
    PumpAll();
}

TEST_P(PublishedTest, EventsAreEmptyAtFirst) {
    for (const TPublishedProperty* property : GetParam()->AllProperties()) {
        if (property->Kind() != TPropertyKind::Event) continue;
        EXPECT_FALSE(property->Event(*Object)->IsAssigned()) << ToUtf8(property->Name());
    }
}

INSTANTIATE_TEST_SUITE_P(StandardControls, PublishedTest, testing::ValuesIn(PublishedClasses()),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });

}  // namespace
}  // namespace test
