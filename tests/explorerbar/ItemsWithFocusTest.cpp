#include "explorerbar/UnitQV7SkinExplorerBarFocus.h"
#include "tests/explorerbar/ItemsOnBarFixture.h"
#include "tests/support/SkinTesting.h"

// Items that have the keyboard focus: where the dotted frame is, and what keys do.

namespace qv7skin {
namespace {

constexpr COLORREF FocusGrey = 0x00F0EAE7;

class ItemsWithFocusTest : public probes::ItemsOnBarTest {
protected:
    /// Adds an item and moves the focus from the header of the group to it.
    template <class Item>
    Item* AddFocused(Item* item) {
        Add(item);
        Bar->SetFocus();
        Input.KeyPress(VK_TAB);
        EXPECT_TRUE(item->IsFocused());
        return item;
    }
    /// The rectangle that the dots of the frame span.
    TRect Frame() {
        const test::Pixels all = test::ReadBitmap(Bar->GetPaintBox().GetBuffer().GetHandle());
        return all.Bounds([](COLORREF color) { return color == FocusGrey; });
    }
    /// A rectangle as the frame goes round it: 3 pixels wider on both sides and 1 further right.
    static TRect Around(TRect rect) {
        rect.Inflate(3, 0);
        rect.Offset(1, 0);
        return rect;
    }
    int Wide(const wchar_t* text, TFontStyles style = {}) {
        TCanvas& canvas = Bar->GetPaintBox().GetBuffer().GetCanvas();
        canvas.GetFont().SetStyle(style);
        return canvas.TextWidth(text);
    }
};

TEST_F(ItemsWithFocusTest, TheFrameOfALinkGoesRoundItsText) {
    auto* link = AddFocused(new TQV7SkinExplorerItemLink(L"Verweis\r\nund mehr Text", L""));
    const TRect place = link->ClipRect();
    const TRect frame = Frame();
    // Dots leave every second pixel out, so that each edge may end one pixel earlier.
    const TRect expected = Around({5, place.Top, 5 + Wide(L"und mehr Text"), place.Bottom});
    EXPECT_EQ(frame.TopLeft(), expected.TopLeft());
    EXPECT_NEAR(frame.Right, expected.Right, 1);
    EXPECT_NEAR(frame.Bottom, expected.Bottom, 1);
}

TEST_F(ItemsWithFocusTest, TheFrameLeavesOutTheIcon) {
    const auto icon = probes::BitmapOf(20, 30, clRed);
    auto* link = AddFocused(new TQV7SkinExplorerItemLink(L"Verweis", L"", icon.get()));
    const TRect place = link->ClipRect();
    const TRect frame = Frame();
    const TRect expected = Around({5 + 20 + 5, place.Top, 30 + Wide(L"Verweis"), place.Bottom});
    EXPECT_EQ(frame.TopLeft(), expected.TopLeft());
    EXPECT_NEAR(frame.Right, expected.Right, 1);
    EXPECT_NEAR(frame.Bottom, expected.Bottom, 1);
}

TEST_F(ItemsWithFocusTest, TheFrameOfABlockPairReachesFromCaptionToBlock) {
    auto* pair = AddFocused(new TQV7SkinExplorerItemCaptionBlockPair(L"Name", true, L"Block"));
    const TRect place = pair->ClipRect();
    const TRect frame = Frame();
    const TRect expected = Around({5, place.Top, 10 + Wide(L"Name") + Wide(L"Block"), place.Bottom});
    EXPECT_EQ(frame.TopLeft(), expected.TopLeft());
    EXPECT_NEAR(frame.Right, expected.Right, 1);
    EXPECT_NEAR(frame.Bottom, expected.Bottom, 1);
}

TEST_F(ItemsWithFocusTest, TheFrameOfABoxGoesRoundBoxAndText) {
    auto* box = AddFocused(new TQV7SkinExplorerItemCheckBox(L"Wahl", 0, L"", false, true, true));
    const TRect expected = Around(box->ClipRect());
    const TRect frame = Frame();
    EXPECT_EQ(frame.TopLeft(), expected.TopLeft());
    EXPECT_NEAR(frame.Right, expected.Right, 1);
    EXPECT_NEAR(frame.Bottom, expected.Bottom, 1);
}

TEST_F(ItemsWithFocusTest, TheFrameOfAPairReachesFromCaptionToValue) {
    auto* pair = AddFocused(new TQV7SkinExplorerItemCaptionValuePair(L"Name", true, L"Wert", L""));
    const TRect place = pair->ClipRect();
    const TRect expected = Around({5, place.Top, Group->GetWidth() - 5, place.Bottom});
    const TRect frame = Frame();
    EXPECT_EQ(frame.TopLeft(), expected.TopLeft());
    EXPECT_NEAR(frame.Right, expected.Right, 1);
    EXPECT_NEAR(frame.Bottom, expected.Bottom, 1);
}

TEST_F(ItemsWithFocusTest, TheFrameGoesWithTheFocus) {
    AddFocused(new TQV7SkinExplorerItemLink(L"Verweis", L""));
    Bar->GetFocus().SetFocused(false);
    EXPECT_TRUE(Frame().IsEmpty());
}

TEST_F(ItemsWithFocusTest, ReturnClicksALinkAndSpaceDoesNot) {
    auto* link = AddFocused(new TQV7SkinExplorerItemLink(L"Verweis", L""));
    int clicks = 0;
    link->OnClick = [&](TObject*) { ++clicks; };
    Input.KeyPress(VK_SPACE);
    EXPECT_EQ(clicks, 0);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ItemsWithFocusTest, SpaceAndReturnToggleABox) {
    auto* box = AddFocused(new TQV7SkinExplorerItemCheckBox(L"Wahl", 0, L"", false, true, true));
    Input.KeyPress(VK_SPACE);
    EXPECT_TRUE(box->GetChecked());
    Input.KeyPress(VK_RETURN);
    EXPECT_FALSE(box->GetChecked());
}

TEST_F(ItemsWithFocusTest, AnItemMayFreeItselfByAKey) {
    auto* link = AddFocused(new TQV7SkinExplorerItemLink(L"Verweis", L""));
    link->OnClick = [this](TObject*) { Group->GetItems().Delete(0); };
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Group->GetItems().GetCount(), 0);
}

TEST_F(ItemsWithFocusTest, ABarMayBeFreedByAKeyOnItsItem) {
    auto* link = AddFocused(new TQV7SkinExplorerItemLink(L"Verweis", L""));
    link->OnClick = [this](TObject*) {
        delete Bar;
        Bar = nullptr;
    };
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Bar, nullptr);
}

}  // namespace
}  // namespace qv7skin
