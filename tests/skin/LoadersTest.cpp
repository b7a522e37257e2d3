#include "skin/surfaces/Loaders.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"
#include "skin/UnitQV7SkinConsts.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::PixelsOf;

class LoadersTest : public test::LedgerTest {};

TEST_F(LoadersTest, TheSkinFontIsTahomaAndNothingElse) {
    TFont font;
    font.SetName(L"Courier New");
    font.SetSize(17);
    font.SetColor(clRed);
    font.SetStyle({fsItalic});
    SetSkinFont(font);
    EXPECT_EQ(font.GetName(), L"Tahoma");
    EXPECT_EQ(font.GetSize(), 17);
    EXPECT_EQ(font.GetColor(), TColor{clRed});
    EXPECT_EQ(font.GetStyle(), TFontStyles{fsItalic});
}

TEST_F(LoadersTest, BitmapsComeFromThePackageOrTheModule) {
    const auto own = CreateBmp(L"TABDRAGLEFT");
    const auto named = CreateBmp(QV7SkinModule(), L"TABDRAGLEFT");
    EXPECT_EQ(own->GetWidth(), 16);
    EXPECT_TRUE(SamePixels(PixelsOf(*own), PixelsOf(*named)));
    EXPECT_THROW((void)CreateBmp(GetModuleHandleW(L"kernel32.dll"), L"TABDRAGLEFT"), EResNotFound);
}

TEST_F(LoadersTest, TransparentBitmapsLeaveOutMagenta) {
    const auto plain = CreateBmp(L"TABCLOSEDEFAULT");
    const test::Pixels picture = PixelsOf(*plain);
    for (const bool named : {false, true}) {
        const auto transparent = named ? CreateTransparentBmp(QV7SkinModule(), L"TABCLOSEDEFAULT")
                                       : CreateTransparentBmp(L"TABCLOSEDEFAULT");
        EXPECT_EQ(transparent->GetTransparentColor(), Magenta);
        const auto ground = BitmapOf(6, 6, 0x00123456);
        transparent->Draw(ground->GetCanvas(), 0, 0);
        EXPECT_TRUE(SamePixels(PixelsOf(*ground), [&](int x, int y) {
            return picture.At(x, y) == Magenta ? COLORREF{0x00123456} : picture.At(x, y);
        }));
    }
}

}  // namespace
}  // namespace qv7skin
