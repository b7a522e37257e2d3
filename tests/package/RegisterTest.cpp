#include "package/UnitQV7SkinRegister.h"

#include <gtest/gtest.h>

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "skin/UnitQV7SkinConsts.h"

namespace {

using namespace qv7skin;

const wchar_t* const Order[] = {
    L"TQV7SkinButton",
    L"TQV7SkinButtonMsgDlg",
    L"TQV7SkinEdit",
    L"TQV7SkinComboBox",
    L"TQV7SkinComboBoxCustomDropDown",
    L"TQV7SkinTreeComboBox",
    L"TQV7SkinExplorerBar",
    L"TQV7SkinSimpleTabControl",
    L"TQV7SkinTabControl",
    L"TQV7SkinToolbar",
    L"TQV7SkinCheckBox",
    L"TQV7SkinRadioButton",
    L"TQV7SkinPanel",
    L"TQV7SkinGroupBox",
    L"TQV7SkinPopupMenu",
    L"TQV7SkinMainMenu",
    L"TQV7SkinHeader",
    L"TQV7SkinSpinEdit",
    L"TQV7SkinDateTimePicker",
    L"TQV7SkinGauge",
    L"TQV7SkinLinkLabel",
    L"TQV7SkinSplitter",
};

TEST(Register, ThePageHas22PlacesInTheirOrder) {
    const auto entries = PaletteEntries();
    ASSERT_EQ(entries.size(), 22u);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_STREQ(entries[i].ClassName, Order[i]);
        ASSERT_NE(entries[i].Class, nullptr);
        EXPECT_STREQ(entries[i].Class().ClassName(), Order[i]);
    }
}

TEST(Register, ShowsEveryClassThereIsOnThePageInThatOrder) {
    Register();
    Register();
    const TClassList* page = nullptr;
    const std::vector<TRegisteredPage> pages = RegisteredPages();
    for (const TRegisteredPage& candidate : pages)
        if (candidate.Name == L"QV7") page = &candidate.Classes;
    ASSERT_NE(page, nullptr);
    TClassList expected;
    for (const TPaletteEntry& entry : PaletteEntries())
        expected.push_back(&entry.Class());
    EXPECT_EQ(*page, expected);
    for (const TMetaClass* found : expected) {
        EXPECT_EQ(GetClass(found->ClassName()), found);
        EXPECT_TRUE(found->CanCreate());
    }
}

TEST(Register, ThePackageExportsItByName) {
    // A static build has no package module.
    const bool isLibrary = QV7SkinModule() != GetModuleHandleW(nullptr);
    EXPECT_EQ(GetProcAddress(QV7SkinModule(), "Register") != nullptr, isLibrary);
}

TEST(Register, TheLoadedPackageCanBeToldTo) {
    // As a design environment does it, which knows the module only.
    const HMODULE module = LoadLibraryW(L"QV7Skin.dll");
    if (module) {
        reinterpret_cast<void (*)()>(reinterpret_cast<void*>(GetProcAddress(module, "Register")))();
        FreeLibrary(module);
    } else {
        ASSERT_EQ(QV7SkinModule(), GetModuleHandleW(nullptr)) << "only a static build has none";
        Register();
    }
    std::size_t shown = 0;
    for (const TRegisteredPage& page : RegisteredPages())
        if (page.Name == L"QV7") shown = page.Classes.size();
    EXPECT_EQ(shown, PaletteEntries().size());
}

}  // namespace
