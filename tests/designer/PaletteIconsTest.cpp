#include "designer/palette/PaletteIcons.h"

#include <algorithm>
#include <vector>

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/PixelProbe.h"

namespace designer {
namespace {

class PaletteIconsTest : public test::LedgerTest {
protected:
    void SetUp() override {
        RegisterStandardClasses();
        Register();
        LedgerTest::SetUp();
    }
    void TearDown() override {
        ForgetPaletteIcons();
        LedgerTest::TearDown();
    }
    static test::Pixels IconOf(const TMetaClass& classType) {
        TBitmap bitmap(PaletteIconSize, PaletteIconSize, pf32bit);
        DrawPaletteIcon(bitmap.GetCanvas(), 0, 0, classType);
        return test::ReadBitmap(bitmap.GetHandle());
    }
    static TRegisteredPage Page(const wchar_t* name) {
        for (const TRegisteredPage& page : RegisteredPages())
            if (page.Name == name) return page;
        throw EInvalidOperation(L"no such page");
    }
};

TEST_F(PaletteIconsTest, TheStandardControlsCanBeToldFromEachOther) {
    for (const wchar_t* name : {L"Standard", L"Additional"}) {
        std::vector<test::Pixels> icons;
        const TRegisteredPage page = Page(name);
        for (const TMetaClass* classType : page.Classes) {
            const test::Pixels icon = IconOf(*classType);
            EXPECT_EQ(std::ranges::count(icons, icon), 0) << ToUtf8(classType->ClassName());
            icons.push_back(icon);
        }
    }
}

TEST_F(PaletteIconsTest, ThePackagesClassesHaveTheirOwnOrTheDefaultIcon) {
    const TClassList classes = Page(L"QV7").Classes;
    const auto iconOf = [&](StringView name) {
        for (const TMetaClass* classType : classes)
            if (classType->ClassName() == name) return IconOf(*classType);
        throw EInvalidOperation(L"no such class");
    };
    EXPECT_EQ(iconOf(L"TQV7SkinMainMenu"), iconOf(L"TQV7SkinGauge")) << "neither has one";
    EXPECT_NE(iconOf(L"TQV7SkinButton"), iconOf(L"TQV7SkinGauge"));
}

}  // namespace
}  // namespace designer
