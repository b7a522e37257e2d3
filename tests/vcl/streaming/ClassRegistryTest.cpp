#include "platform/vcl/streaming/ClassRegistry.h"

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"
#include "tests/vcl/core/SampleClasses.h"

namespace vcl {
namespace {

using probes::MessageOf;
using samples::TSample;
using samples::TSpecialSample;

/// Another class with the name of the sample.
const TMetaClass& Impostor() {
    static const TMetaClass meta = DefineClass<TComponent>(L"tsample", TComponent::StaticClass());
    return meta;
}

class ClassRegistryTest : public test::LedgerTest {
protected:
    void TearDown() override {
        for (const TMetaClass* meta : {&TSample::StaticClass(), &TSpecialSample::StaticClass(), &Impostor()})
            UnRegisterClass(*meta);
        LedgerTest::TearDown();
    }
    /// The classes of a page; empty when there is no such page.
    static TClassList Page(StringView name) {
        for (const TRegisteredPage& page : RegisteredPages()) {
            if (page.Name == name) return page.Classes;
        }
        return {};
    }
    const TMetaClass* const FSample = &TSample::StaticClass();
    const TMetaClass* const FSpecial = &TSpecialSample::StaticClass();
};

TEST_F(ClassRegistryTest, ARegisteredClassIsFoundByNameWithoutCase) {
    RegisterClass(*FSample);
    EXPECT_EQ(GetClass(L"TSample"), FSample);
    EXPECT_EQ(GetClass(L"TSAMPLE"), FSample);
    EXPECT_EQ(&FindClass(L"tsample"), FSample);
}

TEST_F(ClassRegistryTest, AnUnknownClassIsNullOrAnError) {
    EXPECT_EQ(GetClass(L"TSample"), nullptr);
    EXPECT_EQ(MessageOf<EClassNotFound>([] { (void)FindClass(L"TSample"); }), L"Class TSample not found");
}

TEST_F(ClassRegistryTest, RegisteringTwiceIsNothing) {
    const std::size_t before = RegisteredClasses().size();
    RegisterClasses({FSample, FSpecial, FSample});
    RegisterClass(*FSample);
    const TClassList classes = RegisteredClasses();
    ASSERT_EQ(classes.size(), before + 2);
    EXPECT_EQ(classes[before], FSample);
    EXPECT_EQ(classes[before + 1], FSpecial);
}

TEST_F(ClassRegistryTest, AnotherClassOfTheSameNameIsAnErrorAndChangesNothing) {
    RegisterClass(*FSample);
    EXPECT_EQ(MessageOf<EFilerError>([&] {
                  RegisterClasses({FSpecial, &Impostor()});
              }),
              L"A class named tsample already exists");
    EXPECT_EQ(GetClass(L"TSpecialSample"), nullptr);
    EXPECT_EQ(GetClass(L"TSample"), FSample);
}

TEST_F(ClassRegistryTest, AClassCanBeTakenOut) {
    RegisterComponents(L"Test", {FSample, FSpecial});
    UnRegisterClass(*FSample);
    UnRegisterClass(*FSample);
    EXPECT_EQ(GetClass(L"TSample"), nullptr);
    EXPECT_EQ(Page(L"Test"), TClassList{FSpecial});
}

TEST_F(ClassRegistryTest, APageListsItsClassesInOrder) {
    RegisterComponents(L"Test", {FSpecial});
    RegisterComponents(L"TEST", {FSample, FSpecial});
    EXPECT_EQ(Page(L"Test"), (TClassList{FSpecial, FSample}));
    EXPECT_EQ(GetClass(L"TSample"), FSample) << "what is on a page can be read from form files";
}

TEST_F(ClassRegistryTest, APageWithoutClassesIsNone) {
    const std::size_t before = RegisteredPages().size();
    RegisterComponents(L"Test", {});
    EXPECT_EQ(RegisteredPages().size(), before);
    RegisterComponents(L"Test", {FSample});
    EXPECT_EQ(RegisteredPages().size(), before + 1);
    UnRegisterClass(*FSample);
    EXPECT_EQ(RegisteredPages().size(), before);
}

TEST_F(ClassRegistryTest, AFailedRegistrationLeavesThePageAlone) {
    RegisterComponents(L"Test", {FSample});
    EXPECT_THROW(RegisterComponents(L"Test", {FSpecial, &Impostor()}), EFilerError);
    EXPECT_EQ(Page(L"Test"), TClassList{FSample});
}

TEST_F(ClassRegistryTest, AClassBelongsToTheModuleOfItsDescription) {
    EXPECT_EQ(ModuleOfClass(*FSample), GetModuleHandleW(nullptr));
    const HMODULE framework = GetModuleHandleW(L"vcl.dll");
    EXPECT_EQ(ModuleOfClass(TComponent::StaticClass()), framework ? framework : GetModuleHandleW(nullptr));
}

TEST_F(ClassRegistryTest, AModuleTakesItsClassesWithIt) {
    RegisterComponents(L"Test", {FSample, FSpecial});
    UnRegisterModuleClasses(GetModuleHandleW(L"user32"));
    EXPECT_EQ(Page(L"Test").size(), 2u);
    UnRegisterModuleClasses(GetModuleHandleW(nullptr));
    EXPECT_TRUE(Page(L"Test").empty());
    EXPECT_EQ(GetClass(L"TSpecialSample"), nullptr);
}

}  // namespace
}  // namespace vcl
