#include "platform/vcl/graphics/PaletteIcon.h"

#include <algorithm>

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/stdctrls/Button.h"
#include "skin/SkinCatalogue.h"
#include "tests/support/LedgerTest.h"

namespace {

using namespace qv7skin;

class PaletteIconTest : public test::LedgerTest {
protected:
    static bool HasOwnIcon(StringView className) {
        return std::ranges::any_of(PaletteIconCatalogue(), [&](const TSkinBitmapInfo& icon) {
            return SameText(icon.Name, className);
        });
    }
    static bool IsSamePicture(TBitmap& a, TBitmap& b) { return a.SaveToBytes() == b.SaveToBytes(); }
};

TEST_F(PaletteIconTest, FifteenOfTheClassesHaveOneAndTheOthersTheDefault) {
    int own = 0;
    for (const TPaletteEntry& entry : PaletteEntries())
        own += HasOwnIcon(entry.ClassName) ? 1 : 0;
    EXPECT_EQ(own, 15);
    for (const wchar_t* without :
         {L"TQV7SkinButtonMsgDlg", L"TQV7SkinPopupMenu", L"TQV7SkinMainMenu", L"TQV7SkinHeader",
          L"TQV7SkinGauge", L"TQV7SkinLinkLabel", L"TQV7SkinSplitter"})
        EXPECT_FALSE(HasOwnIcon(without));
}

TEST_F(PaletteIconTest, IsFoundByTheNameOfTheClassInItsModule) {
    TBitmap standard;
    EXPECT_FALSE(LoadPaletteIcon(TButton::StaticClass(), standard));
    int found = 0;
    for (const TPaletteEntry& entry : PaletteEntries()) {
        TBitmap icon;
        const bool own = LoadPaletteIcon(entry.Class(), icon);
        EXPECT_EQ(own, HasOwnIcon(entry.ClassName)) << ToUtf8(entry.ClassName);
        EXPECT_EQ(IsSamePicture(icon, standard), !own) << ToUtf8(entry.ClassName);
        EXPECT_EQ(icon.GetWidth(), 24);
        EXPECT_EQ(icon.GetHeight(), 24);
        found += own ? 1 : 0;
    }
    EXPECT_GT(found, 0);
}

TEST_F(PaletteIconTest, TheDefaultHasNothingAtItsLowerLeft) {
    TBitmap icon;
    LoadPaletteIcon(TButton::StaticClass(), icon);
    EXPECT_EQ(icon.GetCanvas().GetPixel(0, 23), clFuchsia);
    EXPECT_EQ(icon.GetCanvas().GetPixel(5, 6), clSkyBlue);
    EXPECT_EQ(icon.GetCanvas().GetPixel(16, 16), clWhite);
    EXPECT_EQ(icon.GetCanvas().GetPixel(8, 15), clGray);
}

}  // namespace
