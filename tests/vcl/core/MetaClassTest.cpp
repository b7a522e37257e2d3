#include "platform/vcl/core/MetaClass.h"

#include <memory>

#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/SampleClasses.h"

namespace vcl {
namespace {

using samples::TAbstractSample;
using samples::TDetail;
using samples::TSample;
using samples::TSpecialSample;

class MetaClassTest : public test::LedgerTest {};

TEST_F(MetaClassTest, NamesTheClassOfAnObjectThroughItsBase) {
    const TSpecialSample sample(nullptr);
    const TObject& object = sample;
    EXPECT_EQ(object.ClassName(), L"TSpecialSample");
    EXPECT_EQ(TObject().ClassName(), L"TObject");
    EXPECT_EQ(&object.ClassType(), &TSpecialSample::StaticClass());
}

TEST_F(MetaClassTest, KnowsTheLineOfAncestors) {
    std::vector<String> line;
    for (const TMetaClass* meta = &TSpecialSample::StaticClass(); meta; meta = meta->ClassParent())
        line.emplace_back(meta->ClassName());
    EXPECT_EQ(line, (std::vector<String>{L"TSpecialSample", L"TSample", L"TComponent", L"TPersistent",
                                         L"TObject"}));
}

TEST_F(MetaClassTest, InheritsFromItselfAndItsAncestors) {
    const TSample sample(nullptr);
    EXPECT_TRUE(sample.InheritsFrom(TSample::StaticClass()));
    EXPECT_TRUE(sample.InheritsFrom(TObject::StaticClass()));
    EXPECT_FALSE(sample.InheritsFrom(TSpecialSample::StaticClass()));
    EXPECT_FALSE(TDetail::StaticClass().InheritsFrom(TComponent::StaticClass()));
}

TEST_F(MetaClassTest, MakesComponentsOfTheClass) {
    TComponent owner(nullptr);
    TComponent* made = TSpecialSample::StaticClass().Create(&owner);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetOwner(), &owner);
    EXPECT_NE(dynamic_cast<TSpecialSample*>(made), nullptr);
}

TEST_F(MetaClassTest, MakesNoneOfAbstractClassesAndPlainObjects) {
    EXPECT_TRUE(TSample::StaticClass().CanCreate());
    for (const TMetaClass* meta :
         {&TAbstractSample::StaticClass(), &TDetail::StaticClass(), &TObject::StaticClass()}) {
        EXPECT_FALSE(meta->CanCreate());
        EXPECT_EQ(meta->Create(nullptr), nullptr);
        EXPECT_EQ(meta->CreateItem(nullptr), nullptr);
    }
}

TEST_F(MetaClassTest, ListsAllPropertiesAncestorsFirstAndReplacedRowsInPlace) {
    std::vector<String> names;
    for (const TPublishedProperty* property : TSpecialSample::StaticClass().AllProperties())
        names.emplace_back(property->Name());
    EXPECT_EQ(names, (std::vector<String>{L"Name", L"Tag", L"Count", L"Small", L"Color", L"Active", L"Fruit",
                                          L"Fruits", L"Ratio", L"Caption", L"Detail", L"Partner", L"Version",
                                          L"Steps", L"OnWeigh", L"Extra"}));
    EXPECT_EQ(TSpecialSample::StaticClass().AllProperties()[2],
              TSpecialSample::StaticClass().FindProperty(L"Count"));
    EXPECT_EQ(TSpecialSample::StaticClass().OwnProperties().size(), 2u);
}

TEST_F(MetaClassTest, FindsTheRowOfTheMostSpecialClassWithoutCase) {
    const TPublishedProperty* own = TSpecialSample::StaticClass().FindProperty(L"COUNT");
    const TPublishedProperty* inherited = TSample::StaticClass().FindProperty(L"count");
    ASSERT_NE(own, nullptr);
    ASSERT_NE(inherited, nullptr);
    EXPECT_EQ(own->Default(), TPropertyValue(std::int64_t{9}));
    EXPECT_EQ(inherited->Default(), TPropertyValue(std::int64_t{5}));
    EXPECT_EQ(TSpecialSample::StaticClass().FindProperty(L"tag"),
              TComponent::StaticClass().FindProperty(L"Tag"));
    EXPECT_EQ(TSample::StaticClass().FindProperty(L"Extra"), nullptr);
    EXPECT_EQ(TSample::StaticClass().FindProperty(L""), nullptr);
}

TEST_F(MetaClassTest, BindsPublishedMethodsToEvents) {
    TSpecialSample handler(nullptr);
    TSample raising(nullptr);
    const TPublishedMethod* method = handler.ClassType().FindMethod(L"handleweigh");
    ASSERT_NE(method, nullptr);
    EXPECT_EQ(method->Name, L"HandleWeigh");
    EXPECT_EQ(*method->Signature, typeid(samples::TWeighEvent));
    method->Bind(raising.OnWeigh, &handler);
    EXPECT_EQ(raising.OnWeigh.ObjectPart(), &handler);
    raising.OnWeigh(&raising, 12);
    EXPECT_EQ(handler.LastWeight, 12);
    EXPECT_EQ(handler.ClassType().FindMethod(L"Unknown"), nullptr);
}

}  // namespace
}  // namespace vcl
