#include "skin/SkinCatalogue.h"

#include <windows.h>

#include <set>
#include <vector>

#include "platform/vcl/core/Resources.h"
#include "skin/UnitQV7SkinConsts.h"
#include "skin/surfaces/Loaders.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

constexpr WORD Neutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);
constexpr WORD German = 1031;

class CatalogueTest : public test::LedgerTest {};

/// The header of a bitmap of the module; none when it has no such bitmap.
const BITMAPINFOHEADER* HeaderOf(const String& name, WORD language) {
    const HRSRC found = FindResourceExW(QV7SkinModule(), RT_BITMAP, name.c_str(), language);
    const HGLOBAL loaded = found ? LoadResource(QV7SkinModule(), found) : nullptr;
    return loaded ? static_cast<const BITMAPINFOHEADER*>(LockResource(loaded)) : nullptr;
}

BOOL CALLBACK AddLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR languages) {
    reinterpret_cast<std::vector<WORD>*>(languages)->push_back(language);
    return TRUE;
}

/// All languages in which the module has the resource.
std::vector<WORD> LanguagesOf(const wchar_t* type, const wchar_t* name) {
    std::vector<WORD> languages;
    EnumResourceLanguagesW(QV7SkinModule(), type, name, AddLanguage, reinterpret_cast<LONG_PTR>(&languages));
    return languages;
}

TSize SizeInCatalogue(const String& name) {
    for (const TSkinBitmapInfo& info : SkinBitmapCatalogue())
        if (info.Name == name) return info.Size;
    return {};
}

BOOL CALLBACK AddName(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR names) {
    if (!IS_INTRESOURCE(name)) reinterpret_cast<std::set<String>*>(names)->insert(name);
    return TRUE;
}

TEST_F(CatalogueTest, EverySkinBitmapHasItsSizeAndDepthInNeutralLanguage) {
    EXPECT_EQ(SkinBitmapCatalogue().size(), 134U);
    for (const auto& [name, size] : SkinBitmapCatalogue()) {
        const BITMAPINFOHEADER* header = HeaderOf(name, Neutral);
        ASSERT_NE(header, nullptr) << ToUtf8(name);
        EXPECT_EQ(TSize(header->biWidth, header->biHeight), size) << ToUtf8(name);
        EXPECT_EQ(header->biBitCount, 24) << ToUtf8(name);
        EXPECT_EQ(header->biCompression, DWORD{BI_RGB}) << ToUtf8(name);
        EXPECT_EQ(LanguagesOf(RT_BITMAP, name.c_str()), std::vector{Neutral}) << ToUtf8(name);
    }
}

TEST_F(CatalogueTest, EveryPaletteIconIsGermanWithSixteenColors) {
    EXPECT_EQ(PaletteIconCatalogue().size(), 16U);
    for (const auto& [name, size] : PaletteIconCatalogue()) {
        const BITMAPINFOHEADER* header = HeaderOf(name, German);
        ASSERT_NE(header, nullptr) << ToUtf8(name);
        EXPECT_EQ(TSize(header->biWidth, header->biHeight), TSize(24, 24)) << ToUtf8(name);
        EXPECT_EQ(size, TSize(24, 24));
        EXPECT_EQ(header->biBitCount, 4) << ToUtf8(name);
        EXPECT_EQ(LanguagesOf(RT_BITMAP, name.c_str()), std::vector{German}) << ToUtf8(name);
    }
}

TEST_F(CatalogueTest, TheModuleHasNoOtherBitmaps) {
    std::set<String> inModule, inCatalogue;
    EnumResourceNamesW(QV7SkinModule(), RT_BITMAP, AddName, reinterpret_cast<LONG_PTR>(&inModule));
    for (const auto& info : SkinBitmapCatalogue())
        inCatalogue.insert(info.Name);
    for (const auto& info : PaletteIconCatalogue())
        inCatalogue.insert(info.Name);
    EXPECT_EQ(inModule, inCatalogue);
}

TEST_F(CatalogueTest, EverySkinBitmapLoadsByItsName) {
    for (const auto& [name, size] : SkinBitmapCatalogue()) {
        const auto bitmap = CreateBmp(name);
        EXPECT_EQ(TSize(bitmap->GetWidth(), bitmap->GetHeight()), size) << ToUtf8(name);
        EXPECT_EQ(bitmap->GetPixelFormat(), pf24bit) << ToUtf8(name);
    }
}

TEST_F(CatalogueTest, AnUnknownNameRaisesAnErrorThatNamesIt) {
    const String text = probes::MessageOf<EResNotFound>([] { (void)CreateBmp(L"MASKTOPMIDDLE"); });
    EXPECT_NE(text.find(L"MASKTOPMIDDLE"), String::npos) << ToUtf8(text);
    const String other = probes::MessageOf<EResNotFound>([] { (void)CreateTransparentBmp(L"NOSUCHGLYPH"); });
    EXPECT_NE(other.find(L"NOSUCHGLYPH"), String::npos) << ToUtf8(other);
}

TEST_F(CatalogueTest, OnlyARestingTabHasANarrowCorner) {
    EXPECT_EQ(CreateBmp(L"TABDEFAULTTOPLEFT")->GetWidth(), 7);
    EXPECT_EQ(CreateBmp(L"TABHOVEREDTOPLEFT")->GetWidth(), 10);
    EXPECT_EQ(CreateBmp(L"TABPRESSEDTOPLEFT")->GetWidth(), 10);
    EXPECT_EQ(CreateBmp(L"WHITETABDEFAULTTOPLEFT")->GetWidth(), 10);
    EXPECT_EQ(CreateBmp(L"WHITETABPRESSEDTOPLEFT")->GetWidth(), 10);
}

TEST_F(CatalogueTest, TheMaskHasUnequalEdges) {
    for (const wchar_t* mask : {L"MASK", L"MASKWHITE"}) {
        EXPECT_EQ(SizeInCatalogue(FrameResourceName(mask, fposLeftCenter)), TSize(4, 1));
        EXPECT_EQ(SizeInCatalogue(FrameResourceName(mask, fposRightCenter)), TSize(2, 1));
        EXPECT_EQ(SizeInCatalogue(FrameResourceName(mask, fposTopCenter)), TSize(1, 3));
        EXPECT_EQ(SizeInCatalogue(FrameResourceName(mask, fposBottomCenter)), TSize(1, 2));
    }
}

TEST_F(CatalogueTest, TheStringTableIsNeutral) {
    // Entries stand in blocks of sixteen; 65520 to 65535 are the last one.
    const wchar_t* block = MAKEINTRESOURCEW(65520 / 16 + 1);
    EXPECT_EQ(LanguagesOf(RT_STRING, block), std::vector{Neutral});
}

}  // namespace
}  // namespace qv7skin
