#include "platform/vcl/menus/ShortCuts.h"

#include <gtest/gtest.h>

#include "platform/vcl/controls/Messages.h"

namespace test {
namespace {

using namespace vcl;

TEST(ShortCutsTest, AShortCutIsAKeyAndTheKeysBesideIt) {
    EXPECT_EQ(ShortCut('S', {ssCtrl}), scCtrl | 'S');
    EXPECT_EQ(ShortCut(VK_F5, {ssShift, ssAlt}), scShift | scAlt | VK_F5);
    EXPECT_EQ(ShortCut(0, {ssCtrl}), scNone);
    EXPECT_EQ(ShortCut('S', {ssCtrl, ssLeft}), scCtrl | 'S');
}

TEST(ShortCutsTest, TakenApartItIsTheSame) {
    WORD key = 0;
    TShiftState shift;
    ShortCutToKey(scCtrl | scShift | VK_DELETE, key, shift);
    EXPECT_EQ(key, VK_DELETE);
    EXPECT_EQ(shift, (TShiftState{ssCtrl, ssShift}));
}

TEST(ShortCutsTest, TextsNameTheKeysInOneOrder) {
    EXPECT_EQ(ShortCutToText(scCtrl | scShift | scAlt | 'S'), L"Shift+Ctrl+Alt+S");
    EXPECT_EQ(ShortCutToText(VK_DELETE), L"Del");
    EXPECT_EQ(ShortCutToText(VK_F12), L"F12");
    EXPECT_EQ(ShortCutToText(scCtrl | '0'), L"Ctrl+0");
    EXPECT_EQ(ShortCutToText(scNone), L"");
    EXPECT_EQ(ShortCutToText(scCtrl), L"");
}

TEST(ShortCutsTest, EveryTextIsReadBack) {
    for (WORD key = 1; key < 0xFF; ++key) {
        for (const TShortCut held : {0, 0x2000, 0x4000, 0x8000, 0x6000, 0xE000}) {
            const auto shortCut = static_cast<TShortCut>(key | held);
            const String text = ShortCutToText(shortCut);
            if (!text.empty()) {
                EXPECT_EQ(TextToShortCut(text), shortCut) << ToUtf8(text);
            }
        }
    }
}

TEST(ShortCutsTest, TextsAreReadWithoutRegardToCaseAndOrder) {
    EXPECT_EQ(TextToShortCut(L"ctrl+SHIFT+s"), scCtrl | scShift | 'S');
    EXPECT_EQ(TextToShortCut(L"^s"), scCtrl | 'S');
    EXPECT_EQ(TextToShortCut(L"pgdn"), VK_NEXT);
}

TEST(ShortCutsTest, OtherTextsAreNoShortCut) {
    for (const wchar_t* text : {L"", L"Ctrl+", L"Ctrl+Hugo", L"S+Ctrl", L"F25", L"Ctrl+Ctrl"})
        EXPECT_EQ(TextToShortCut(text), scNone) << ToUtf8(text);
}

TEST(ShortCutsTest, TheKeyAfterTheMarkIsTheHotKey) {
    EXPECT_EQ(GetHotkey(L"Sa&ve"), L'V');
    EXPECT_EQ(GetHotkey(L"Fish && &chips"), L'C');
    EXPECT_EQ(GetHotkey(L"Plain"), 0);
    EXPECT_EQ(GetHotkey(L"End&"), 0);
}

TEST(ShortCutsTest, CaptionsAreTheSameWithoutTheirMarks) {
    EXPECT_TRUE(SameCaption(L"&File", L"file"));
    EXPECT_FALSE(SameCaption(L"&File", L"Files"));
}

}  // namespace
}  // namespace test
