#include "platform/vcl/core/PublishedProperty.h"

#include <limits>

#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"
#include "tests/vcl/core/SampleClasses.h"

namespace vcl {
namespace {

using probes::MessageOf;
using samples::TDetail;
using samples::TSample;
using samples::TSpecialSample;
using enum TFruit;
using Kind = TPropertyKind;

TPropertyValue Number(std::int64_t value) {
    return value;
}

class PublishedPropertyTest : public test::LedgerTest {
protected:
    static const TPublishedProperty& Row(const wchar_t* name) {
        const TPublishedProperty* row = TSample::StaticClass().FindProperty(name);
        if (!row) throw Exception(String(L"no property ") + name);
        return *row;
    }
    TPropertyValue Get(const wchar_t* name) { return Row(name).Get(FSample); }
    void Set(const wchar_t* name, const TPropertyValue& value) { Row(name).Set(FSample, value); }
    /// The text of the error that setting the value raises.
    String SetError(const wchar_t* name, const TPropertyValue& value) {
        return MessageOf<EConvertError>([&] { Set(name, value); });
    }
    TSample FSample{nullptr};
};

TEST_F(PublishedPropertyTest, EveryTypeHasItsKind) {
    const std::pair<const wchar_t*, Kind> expected[] = {
        {L"Name", Kind::String},       {L"Tag", Kind::Integer},   {L"Count", Kind::Integer},
        {L"Small", Kind::Integer},     {L"Color", Kind::Integer}, {L"Active", Kind::Boolean},
        {L"Fruit", Kind::Enumeration}, {L"Fruits", Kind::Set},    {L"Ratio", Kind::Float},
        {L"Caption", Kind::String},    {L"Detail", Kind::Nested}, {L"Partner", Kind::Component},
        {L"Version", Kind::Integer},   {L"Steps", Kind::Integer}, {L"OnWeigh", Kind::Event},
    };
    for (const auto& [name, kind] : expected)
        EXPECT_EQ(Row(name).Kind(), kind) << ToUtf8(name);
}

TEST_F(PublishedPropertyTest, NumbersGoThroughGetterAndSetter) {
    Set(L"Count", Number(-7));
    EXPECT_EQ(FSample.GetCount(), -7);
    EXPECT_EQ(Get(L"Count"), Number(-7));
    Set(L"Active", Number(0));
    EXPECT_FALSE(FSample.GetActive());
    Set(L"Fruit", Number(2));
    EXPECT_EQ(FSample.GetFruit(), frPlum);
    EXPECT_EQ(Get(L"Fruit"), Number(2));
    Set(L"Fruits", Number(5));
    EXPECT_EQ(FSample.GetFruits(), (TFruits{frApple, frPlum}));
    EXPECT_EQ(Get(L"Fruits"), Number(5));
}

TEST_F(PublishedPropertyTest, FloatsTakeIntegersToo) {
    Set(L"Ratio", 0.25);
    EXPECT_EQ(Get(L"Ratio"), TPropertyValue(0.25));
    Set(L"Ratio", Number(3));
    EXPECT_EQ(FSample.GetRatio(), 3.0);
}

TEST_F(PublishedPropertyTest, TextsAndFieldsAreWritten) {
    Set(L"Caption", String(L"Wei\xDF"));
    EXPECT_EQ(FSample.GetCaption(), L"Wei\xDF");
    EXPECT_EQ(Get(L"Caption"), TPropertyValue(String(L"Wei\xDF")));
    Set(L"Steps", Number(11));
    EXPECT_EQ(FSample.Steps, 11);
    EXPECT_EQ(Get(L"Steps"), Number(11));
}

TEST_F(PublishedPropertyTest, NestedObjectsAreAssigned) {
    TDetail detail;
    detail.SetWidth(77);
    Set(L"Detail", static_cast<TPersistent*>(&detail));
    EXPECT_EQ(FSample.GetDetail().GetWidth(), 77);
    EXPECT_EQ(std::get<TPersistent*>(Get(L"Detail")), &FSample.GetDetail());
    EXPECT_EQ(Row(L"Detail").ObjectClass(), &TDetail::StaticClass());
}

TEST_F(PublishedPropertyTest, ReferencesTakeComponentsOfTheirClassAndNull) {
    TSpecialSample partner(nullptr);
    Set(L"Partner", static_cast<TPersistent*>(&partner));
    EXPECT_EQ(FSample.GetPartner(), &partner);
    EXPECT_EQ(std::get<TPersistent*>(Get(L"Partner")), &partner);
    Set(L"Partner", static_cast<TPersistent*>(nullptr));
    EXPECT_EQ(FSample.GetPartner(), nullptr);
    EXPECT_EQ(Row(L"Partner").ObjectClass(), &TSample::StaticClass());
    EXPECT_EQ(Row(L"Count").ObjectClass(), nullptr);
}

TEST_F(PublishedPropertyTest, AValueOfAnotherKindIsRefused) {
    TComponent stranger(nullptr);
    TPersistent* const none = nullptr;
    const std::pair<const wchar_t*, TPropertyValue> wrong[] = {
        {L"Count", String(L"1")},
        {L"Count", 1.0},
        {L"Count", TPropertyValue()},
        {L"Active", String(L"True")},
        {L"Fruit", 1.0},
        {L"Fruits", String()},
        {L"Ratio", String(L"1.0")},
        {L"Caption", Number(1)},
        {L"Detail", Number(1)},
        {L"Detail", none},
        {L"Detail", &stranger},
        {L"Partner", &stranger},
        {L"Partner", String(L"Name")},
        {L"OnWeigh", Number(1)},
    };
    for (const auto& [name, value] : wrong)
        EXPECT_EQ(SetError(name, value), String(L"Invalid value for property ") + name);
    EXPECT_EQ(FSample.GetCount(), 5);
}

TEST_F(PublishedPropertyTest, ANumberThatTheTypeCannotHoldIsRefused) {
    EXPECT_EQ(SetError(L"Active", Number(2)), L"Value 2 of property Active is out of range");
    EXPECT_EQ(SetError(L"Fruit", Number(3)), L"Value 3 of property Fruit is out of range");
    EXPECT_EQ(SetError(L"Fruit", Number(-1)), L"Value -1 of property Fruit is out of range");
    EXPECT_EQ(SetError(L"Fruits", Number(8)), L"Value 8 of property Fruits is out of range");
    EXPECT_EQ(SetError(L"Small", Number(128)), L"Value 128 of property Small is out of range");
    EXPECT_EQ(SetError(L"Count", Number(std::int64_t{1} << 32)),
              L"Value 4294967296 of property Count is out of range");
}

TEST_F(PublishedPropertyTest, ColorsMayComeSignedOrUnsigned) {
    Set(L"Color", Number(-16777201));
    EXPECT_EQ(FSample.GetColor(), 0xFF00000Fu);
    Set(L"Color", Number(0xFF00000F));
    EXPECT_EQ(FSample.GetColor(), 0xFF00000Fu);
    EXPECT_EQ(Get(L"Color"), Number(0xFF00000F));
}

TEST_F(PublishedPropertyTest, AReadOnlyPropertyRefusesEverything) {
    EXPECT_TRUE(Row(L"Version").IsReadOnly());
    EXPECT_FALSE(Row(L"Count").IsReadOnly());
    EXPECT_EQ(Get(L"Version"), Number(3));
    EXPECT_EQ(SetError(L"Version", Number(4)), L"Property Version is read-only");
}

TEST_F(PublishedPropertyTest, DefaultsAreValuesOfTheKind) {
    EXPECT_EQ(Row(L"Count").Default(), Number(5));
    EXPECT_EQ(Row(L"Active").Default(), Number(1));
    EXPECT_EQ(Row(L"Fruit").Default(), Number(1));
    EXPECT_EQ(Row(L"Fruits").Default(), Number(0));
    EXPECT_EQ(Row(L"Steps").Default(), Number(2));
    EXPECT_EQ(Row(L"Tag").Default(), Number(0));
    EXPECT_FALSE(Row(L"Ratio").Default().has_value());
    EXPECT_FALSE(Row(L"Detail").Default().has_value());
}

TEST_F(PublishedPropertyTest, EveryDefaultIsWhatANewObjectHas) {
    for (const TPublishedProperty* property : TSample::StaticClass().AllProperties()) {
        if (!property->Default()) continue;
        EXPECT_EQ(property->Get(FSample), *property->Default()) << ToUtf8(property->Name());
    }
}

TEST_F(PublishedPropertyTest, TheStoredRuleAsksTheObject) {
    EXPECT_TRUE(Row(L"Count").IsStored(FSample));
    EXPECT_FALSE(Row(L"Version").IsStored(FSample));
    EXPECT_FALSE(Row(L"Name").IsStored(FSample)) << "form files write it beside the class";
    EXPECT_FALSE(Row(L"Caption").IsStored(FSample)) << "empty as the name is";
    FSample.SetCaption(L"Own");
    EXPECT_TRUE(Row(L"Caption").IsStored(FSample));
}

TEST_F(PublishedPropertyTest, EnumerationsAndSetsHaveNames) {
    const auto names = Row(L"Fruit").ElementNames();
    ASSERT_EQ(names.size(), 3u);
    EXPECT_STREQ(names[2], L"frPlum");
    EXPECT_EQ(Row(L"Fruits").ElementNames().size(), 3u);
    EXPECT_TRUE(Row(L"Count").ElementNames().empty());
}

TEST_F(PublishedPropertyTest, SingleNumbersCanHaveNames) {
    const auto names = Row(L"Color").Identifiers();
    ASSERT_EQ(names.size(), 2u);
    EXPECT_STREQ(names[1].Name, L"clBtnFace");
    EXPECT_EQ(names[1].Value, 0xFF00000F);
    EXPECT_TRUE(Row(L"Count").Identifiers().empty());
}

TEST_F(PublishedPropertyTest, LimitsFollowFromTheTypeOrTheTable) {
    const auto limits = [](const TPublishedProperty& row) { return std::pair(row.Minimum(), row.Maximum()); };
    using TLimits = std::pair<std::int64_t, std::int64_t>;
    EXPECT_EQ(limits(Row(L"Active")), TLimits(0, 1));
    EXPECT_EQ(limits(Row(L"Fruit")), TLimits(0, 2));
    EXPECT_EQ(limits(Row(L"Fruits")), TLimits(0, 7));
    EXPECT_EQ(limits(Row(L"Small")), TLimits(-128, 127));
    EXPECT_EQ(limits(Row(L"Color")), TLimits(0, 0xFFFFFFFF));
    EXPECT_EQ(limits(Row(L"Tag")),
              TLimits(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ(limits(*TDetail::StaticClass().FindProperty(L"Width")), TLimits(0, 100));
}

TEST_F(PublishedPropertyTest, EventsAreReachedByTheirRow) {
    const TPublishedProperty& row = Row(L"OnWeigh");
    EXPECT_EQ(row.Event(FSample), &FSample.OnWeigh);
    EXPECT_EQ(row.EventType(), typeid(samples::TWeighEvent));
    EXPECT_EQ(Row(L"Count").Event(FSample), nullptr);
    EXPECT_EQ(Row(L"Count").EventType(), typeid(void));
}

TEST_F(PublishedPropertyTest, ErrorsOfTheSetterPassThrough) {
    EXPECT_EQ(MessageOf<EComponentError>([&] { Set(L"Name", String(L"1")); }),
              L"'1' is not a valid component name");
    Set(L"Name", String(L"Sample1"));
    EXPECT_EQ(FSample.GetName(), L"Sample1");
}

}  // namespace
}  // namespace vcl
