#include "platform/vcl/graphics/Font.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Pen.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

class FontTest : public test::LedgerTest {
protected:
    /// Counts how often a change is told.
    struct TCounter {
        explicit TCounter(TFont& font) {
            font.OnChange = [this](TObject*) { ++Count; };
        }
        int Count = 0;
    };
};

TEST_F(FontTest, ANewFontIsTahomaOfEightPoints) {
    const TFont font;
    EXPECT_EQ(font.GetName(), L"Tahoma");
    EXPECT_EQ(font.GetSize(), 8);
    EXPECT_EQ(font.GetHeight(), -MulDiv(8, ScreenPixelsPerInch(), 72));
    EXPECT_EQ(font.GetColor(), clWindowText);
    EXPECT_TRUE(font.GetStyle().IsEmpty());
    EXPECT_EQ(font.GetCharset(), DEFAULT_CHARSET);
    EXPECT_EQ(font.GetPitch(), fpDefault);
    EXPECT_EQ(font.GetQuality(), fqDefault);
    EXPECT_EQ(font.GetOrientation(), 0);
}

TEST_F(FontTest, SizeAndHeightFollowEachOther) {
    TFont font;
    font.SetPixelsPerInch(96);
    font.SetSize(9);
    EXPECT_EQ(font.GetHeight(), -12);
    font.SetHeight(-16);
    EXPECT_EQ(font.GetSize(), 12);
    font.SetHeight(16);
    EXPECT_EQ(font.GetSize(), -12);
    font.SetPixelsPerInch(192);
    font.SetSize(9);
    EXPECT_EQ(font.GetHeight(), -24);
    font.SetPixelsPerInch(0);
    EXPECT_EQ(font.GetPixelsPerInch(), 192);
}

TEST_F(FontTest, StyleBitsStandInTheirOrder) {
    EXPECT_EQ(TFontStyles({fsBold}).Bits(), 1U);
    EXPECT_EQ(TFontStyles({fsItalic}).Bits(), 2U);
    EXPECT_EQ(TFontStyles({fsUnderline}).Bits(), 4U);
    EXPECT_EQ(TFontStyles({fsStrikeOut}).Bits(), 8U);
}

TEST_F(FontTest, AChangeIsToldOnceAndOnlyWhenThereIsOne) {
    TFont font;
    const TCounter counter(font);
    font.SetName(L"Tahoma");
    font.SetColor(clWindowText);
    font.SetHeight(font.GetHeight());
    EXPECT_EQ(counter.Count, 0);
    font.SetName(L"MS Sans Serif");
    font.SetHeight(-20);
    font.SetStyle({fsBold, fsItalic});
    font.SetColor(clRed);
    font.SetCharset(ANSI_CHARSET);
    font.SetPitch(fpFixed);
    font.SetQuality(fqAntialiased);
    font.SetOrientation(900);
    EXPECT_EQ(counter.Count, 8);
}

TEST_F(FontTest, AnEmptyNameIsIgnored) {
    TFont font;
    font.SetName(L"");
    EXPECT_EQ(font.GetName(), L"Tahoma");
}

TEST_F(FontTest, TheHandleHasTheLooksOfTheFont) {
    TFont font;
    font.SetHeight(-17);
    font.SetStyle({fsBold, fsItalic, fsUnderline, fsStrikeOut});
    font.SetQuality(fqNonAntialiased);
    font.SetPitch(fpVariable);
    font.SetOrientation(450);
    LOGFONTW looks{};
    ASSERT_EQ(GetObjectW(font.GetHandle(), sizeof looks, &looks), static_cast<int>(sizeof looks));
    EXPECT_EQ(looks.lfHeight, -17);
    EXPECT_EQ(looks.lfWeight, FW_BOLD);
    EXPECT_TRUE(looks.lfItalic && looks.lfUnderline && looks.lfStrikeOut);
    EXPECT_EQ(looks.lfQuality, NONANTIALIASED_QUALITY);
    EXPECT_EQ(looks.lfPitchAndFamily, VARIABLE_PITCH);
    EXPECT_EQ(looks.lfEscapement, 450);
    EXPECT_STREQ(looks.lfFaceName, L"Tahoma");
}

TEST_F(FontTest, FontsThatLookAlikeShareOneHandle) {
    TFont first;
    TFont second;
    second.SetName(L"TAHOMA");
    second.SetColor(clRed);
    EXPECT_EQ(first.GetHandle(), second.GetHandle());
    second.SetStyle({fsBold});
    EXPECT_NE(first.GetHandle(), second.GetHandle());
    second.SetStyle({});
    EXPECT_EQ(first.GetHandle(), second.GetHandle());
}

TEST_F(FontTest, TheLastUserFreesTheHandle) {
    HFONT handle = nullptr;
    TSharedFont kept;
    {
        TFont font;
        font.SetHeight(-33);
        handle = font.GetHandle();
        kept = font.GetShared();
    }
    EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_FONT));
    kept.reset();
    EXPECT_EQ(GetObjectType(handle), 0U);
}

TEST_F(FontTest, AssigningTakesEverythingOver) {
    TFont source;
    source.SetName(L"MS Sans Serif");
    source.SetPixelsPerInch(120);
    source.SetSize(14);
    source.SetStyle({fsUnderline});
    source.SetColor(clNavy);
    source.SetCharset(SYMBOL_CHARSET);
    source.SetOrientation(10);
    source.SetPitch(fpFixed);
    source.SetQuality(fqProof);
    TFont target;
    const TCounter counter(target);
    target.Assign(&source);
    EXPECT_TRUE(target.Equals(source));
    EXPECT_EQ(target.GetPixelsPerInch(), 120);
    EXPECT_EQ(target.GetSize(), 14);
    EXPECT_EQ(counter.Count, 1);
    target.Assign(&source);
    EXPECT_EQ(counter.Count, 1);
    EXPECT_EQ(target.GetHandle(), source.GetHandle());
}

TEST_F(FontTest, AssigningNothingSetsTheDefaultFont) {
    TFont font;
    font.SetSize(30);
    font.Assign(nullptr);
    EXPECT_TRUE(font.Equals(TFont()));
}

TEST_F(FontTest, OtherObjectsCannotBeAssigned) {
    TFont font;
    const TPen pen;
    EXPECT_EQ(probes::MessageOf<EConvertError>([&] { font.Assign(&pen); }),
              L"Cannot assign a TPen to a TFont");
}

TEST_F(FontTest, LooksGoToTheSystemAndBack) {
    TFont font;
    font.SetColor(clRed);
    font.SetStyle({fsItalic, fsStrikeOut});
    font.SetHeight(-21);
    TFont back;
    back.SetColor(clGreen);
    back.SetLogFont(font.GetLogFont());
    EXPECT_EQ(back.GetHeight(), -21);
    EXPECT_EQ(back.GetStyle(), TFontStyles({fsItalic, fsStrikeOut}));
    EXPECT_EQ(back.GetColor(), clGreen);
    EXPECT_EQ(back.GetHandle(), font.GetHandle());
}

TEST_F(FontTest, ALongNameIsCutAsTheSystemCutsIt) {
    TFont font;
    font.SetName(String(100, L'x'));
    EXPECT_EQ(String(font.GetLogFont().lfFaceName), String(LF_FACESIZE - 1, L'x'));
    EXPECT_NE(font.GetHandle(), nullptr);
}

TEST_F(FontTest, EveryPropertyIsPublished) {
    TFont font;
    const TMetaClass& meta = font.ClassType();
    EXPECT_EQ(String(meta.ClassName()), L"TFont");
    for (const wchar_t* name :
         {L"Charset", L"Color", L"Height", L"Name", L"Orientation", L"Pitch", L"Quality", L"Size", L"Style"})
        EXPECT_NE(meta.FindProperty(name), nullptr) << ToUtf8(name);
    meta.FindProperty(L"Height")->Set(font, std::int64_t{-40});
    EXPECT_EQ(font.GetHeight(), -40);
    EXPECT_FALSE(meta.FindProperty(L"Size")->IsStored(font));
    EXPECT_TRUE(meta.FindProperty(L"Height")->IsStored(font));
    EXPECT_EQ(String(meta.FindProperty(L"Style")->ElementNames()[0]), L"fsBold");
    EXPECT_EQ(meta.FindProperty(L"Quality")->ElementNames().size(), 7U);
}

}  // namespace
}  // namespace vcl
