#include <algorithm>
#include <string>
#include <vector>

#include "platform/vcl/core/Resources.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "platform/vcl/streaming/FormText.h"
#include "tests/support/LedgerTest.h"

namespace {

using namespace vcl;

/// The gallery's program file, opened for its resources.
class GalleryForms : public test::LedgerTest {
protected:
    void SetUp() override {
        LedgerTest::SetUp();
        FModule = LoadLibraryExW(L"gallery.exe", nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(FModule, nullptr);
    }
    void TearDown() override {
        FreeLibrary(FModule);
        LedgerTest::TearDown();
    }
    [[nodiscard]] std::vector<String> Names() const {
        std::vector<String> names;
        const ENUMRESNAMEPROCW add = [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR list) -> BOOL {
            reinterpret_cast<std::vector<String>*>(list)->emplace_back(name);
            return TRUE;
        };
        EnumResourceNamesW(FModule, RT_RCDATA, add, reinterpret_cast<LONG_PTR>(&names));
        return names;
    }

    HMODULE FModule = nullptr;
};

TEST_F(GalleryForms, StandInResourcesNamedAfterTheirClasses) {
    const auto names = Names();
    EXPECT_NE(std::ranges::find(names, L"TMAINFORM"), names.end());
    for (const String& name : names) {
        const TFormDocument document = ParseForm(FindResourceBytes(FModule, name, RT_RCDATA), name);
        EXPECT_EQ(UpperCase(document.Root.ClassName), name);
    }
}

TEST_F(GalleryForms, AreSpelledAsTheWriterSpellsThem) {
    for (const String& name : Names()) {
        const auto bytes = FindResourceBytes(FModule, name, RT_RCDATA);
        std::string written = FormToText(ParseForm(bytes));
        // Line ends are those of the machine that the tree stands on.
        std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        std::erase(written, '\r');
        std::erase(text, '\r');
        EXPECT_EQ(text, written) << ToUtf8(name);
    }
}

}  // namespace
