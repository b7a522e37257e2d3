#include <string>

#include "platform/vcl/controls/Mouse.h"
#include "tests/explorerbar/ItemsOnBarFixture.h"
#include "tests/support/SkinTesting.h"

// Items of a bar under a real mouse: how they look, what they raise, and that they may go at any time.

namespace qv7skin {
namespace {

using test::Pixels;
using test::SamePixels;

class ItemsUnderTheMouseTest : public probes::ItemsOnBarTest {
protected:
    TQV7SkinExplorerItemLink* AddLink(const wchar_t* caption) {
        return Add(new TQV7SkinExplorerItemLink(caption, L""));
    }
    /// The place of an item with a text drawn on white, as the rule for the item says.
    Pixels Text(const TQV7SkinExplorerItemCustom* item, int indent, const String& text, TColor color,
                TFontStyles style) {
        const TRect place = item->ClipRect();
        TBitmap expected(place.Width(), place.Height(), pf24bit);
        TCanvas& canvas = expected.GetCanvas();
        canvas.SetFont(Bar->GetPaintBox().GetBuffer().GetCanvas().GetFont());
        canvas.GetFont().SetStyle(style);
        canvas.GetFont().SetColor(color);
        canvas.GetBrush().SetStyle(bsClear);
        canvas.TextOut(indent, 0, text);
        return probes::PixelsOf(expected);
    }
};

TEST_F(ItemsUnderTheMouseTest, ALinkIsUnderlinedWhileTheMouseIsOverIt) {
    auto* link = AddLink(L"Öffnen");
    EXPECT_TRUE(SamePixels(Shown(link), Text(link, 0, L"Öffnen", 0x00D78112, {})));
    MoveOn(link);
    EXPECT_TRUE(link->IsHotArea());
    EXPECT_TRUE(SamePixels(Shown(link), Text(link, 0, L"Öffnen", 0x00D78112, {fsUnderline})));
    EXPECT_EQ(Bar->GetPaintBox().GetCursor(), crHandPoint);
    MoveOnHeader();
    EXPECT_FALSE(link->IsHotArea());
    EXPECT_TRUE(SamePixels(Shown(link), Text(link, 0, L"Öffnen", 0x00D78112, {})));
}

TEST_F(ItemsUnderTheMouseTest, OnlyClickablePairsShowTheHotColor) {
    Bar->ItemTextColor = clNavy;
    Bar->ItemHotTextColor = clRed;
    auto* plain = Add(new TQV7SkinExplorerItemCaptionValuePair(L"Name", L"", L""));
    auto* active = Add(new TQV7SkinExplorerItemCaptionValuePair(L"Name", true, L"", L""));
    const auto shownName = [&](const TQV7SkinExplorerItemCustom* item) {
        return Shown(item).Part({0, 0, 60, item->ClipRect().Height()});
    };
    const auto name = [&](const TQV7SkinExplorerItemCustom* item, TColor color, TFontStyles style) {
        return Text(item, 0, L"Name", color, style).Part({0, 0, 60, item->ClipRect().Height()});
    };
    MoveOn(plain);
    EXPECT_TRUE(SamePixels(shownName(plain), name(plain, clNavy, {})));
    EXPECT_EQ(Bar->GetPaintBox().GetCursor(), crDefault);
    MoveOn(active);
    EXPECT_TRUE(SamePixels(shownName(active), name(active, clRed, {fsUnderline})));
    EXPECT_EQ(Bar->GetPaintBox().GetCursor(), crHandPoint);
}

TEST_F(ItemsUnderTheMouseTest, AClickableBlockPairShowsTheHotColorAndALine) {
    Bar->ItemHotTextColor = clRed;
    auto* plain = Add(new TQV7SkinExplorerItemCaptionBlockPair(L"Name", L""));
    auto* active = Add(new TQV7SkinExplorerItemCaptionBlockPair(L"Name", true, L""));
    const auto looks = [&](const TQV7SkinExplorerItemCustom* item, TColor color, TFontStyles style) {
        const RECT part{0, 0, 60, item->ClipRect().Height()};
        return SamePixels(Shown(item).Part(part), Text(item, 0, L"Name", color, style).Part(part));
    };
    MoveOn(plain);
    EXPECT_TRUE(looks(plain, clBlack, {}));
    MoveOn(active);
    EXPECT_TRUE(looks(active, clRed, {fsUnderline}));
    MoveOnHeader();
    EXPECT_TRUE(looks(active, clBlack, {}));
}

TEST_F(ItemsUnderTheMouseTest, ADisabledBoxShowsNothingOfTheMouse) {
    Bar->ItemHotTextColor = clRed;
    auto* box = Add(new TQV7SkinExplorerItemCheckBox(L"Wahl", 0, L"", true, false, true));
    const Pixels before = Shown(box);
    MoveOn(box);
    EXPECT_TRUE(box->IsHotArea());
    EXPECT_TRUE(SamePixels(Shown(box), before));
    box->SetEnabled(true);
    EXPECT_EQ(Shown(box).Count(clRed) > 0, true) << "enabled it is hot";
}

TEST_F(ItemsUnderTheMouseTest, AClickTogglesABoxAndRaisesItsEvent) {
    auto* box = Add(new TQV7SkinExplorerItemCheckBox(L"Wahl", 0, L"", false, true, true));
    int clicks = 0;
    box->OnClick = [&](TObject* sender) { clicks += sender == box; };
    ClickOn(box);
    EXPECT_TRUE(box->GetChecked());
    ClickOn(box);
    EXPECT_FALSE(box->GetChecked());
    EXPECT_EQ(clicks, 2);
}

TEST_F(ItemsUnderTheMouseTest, TheLastItemIsToldOfTheLeaveBeforeTheNextOfItsEnter) {
    auto* first = AddLink(L"Erster");
    auto* second = AddLink(L"Zweiter");
    std::string log;
    first->OnEnter = [&](TObject*) { log += 'a'; };
    first->OnLeave = [&](TObject*) { log += 'b'; };
    second->OnEnter = [&](TObject*) { log += 'c'; };
    MoveOn(first);
    Input.MoveTo(Surface(), first->ClipRect().Left + 6, first->ClipRect().Top + 3);
    MoveOn(second);
    EXPECT_EQ(log, "abc");
}

TEST_F(ItemsUnderTheMouseTest, StaticTextsAndProgressBarsAreNeverHit) {
    auto* text = Add(new TQV7SkinExplorerItemStaticText(L"Ein Text"));
    auto* progress = Add(new TQV7SkinExplorerItemProgressBar(0, 2, 1, 20, clBlack, clRed));
    text->OnEnter = [](TObject*) { FAIL(); };
    progress->OnEnter = [](TObject*) { FAIL(); };
    for (int y = 20; y < 80; y += 5)
        Input.MoveTo(Surface(), 20, y);
    EXPECT_EQ(Bar->HotObject, nullptr);
}

TEST_F(ItemsUnderTheMouseTest, APictureWithAClickEventShowsTheHand) {
    const auto picture = probes::BitmapOf(40, 30, clRed);
    auto* image = Add(new TQV7SkinExplorerItemBmp(picture.get()));
    MoveOn(image);
    EXPECT_EQ(Bar->GetPaintBox().GetCursor(), crDefault);
    bool clicked = false;
    image->OnClick = [&](TObject*) { clicked = true; };
    MoveOnHeader();
    ClickOn(image);
    EXPECT_EQ(Bar->GetPaintBox().GetCursor(), crHandPoint);
    EXPECT_TRUE(clicked);
}

// --- items that go in their own events

/// What goes, and in which event.
struct TEnd {
    enum TWhat { Item, AllItems, TheGroup, TheBar } What;
    enum TWhen { Click, Enter, Leave } When;
};

class EndInEventTest : public ItemsUnderTheMouseTest, public testing::WithParamInterface<TEnd> {
protected:
    void End() {
        ++Ends;
        if (Ends > 1) return;
        switch (GetParam().What) {
            case TEnd::Item:
                Group->GetItems().Delete(0);
                break;
            case TEnd::AllItems:
                Group->GetItems().Clear();
                break;
            case TEnd::TheGroup:
                Bar->GetGroups().Delete(0);
                break;
            case TEnd::TheBar:
                delete Bar;
                Bar = nullptr;
                break;
        }
    }
    int Ends = 0;
};

TEST_P(EndInEventTest, NothingIsTouchedAfterwards) {
    auto* doomed = AddLink(L"Erster");
    auto* other = AddLink(L"Zweiter");
    const auto end = [this](TObject*) { End(); };
    if (GetParam().When == TEnd::Click) doomed->OnClick = end;
    if (GetParam().When == TEnd::Enter) doomed->OnEnter = end;
    if (GetParam().When == TEnd::Leave) doomed->OnLeave = end;
    const TRect there = other->ClipRect();
    const HWND surface = Surface();
    MoveOn(doomed);
    if (GetParam().When == TEnd::Click) Input.Click();
    if (GetParam().When == TEnd::Leave) Input.MoveTo(surface, there.Left + 2, there.Top + 3);
    EXPECT_EQ(Ends, 1);
    test::PumpAll();
    if (Bar) {
        ShowAll();
        EXPECT_NE(Bar->HotObject, static_cast<TObject*>(doomed));
    }
}
INSTANTIATE_TEST_SUITE_P(WhatAndWhen, EndInEventTest,
                         testing::Values(TEnd{TEnd::Item, TEnd::Click}, TEnd{TEnd::Item, TEnd::Enter},
                                         TEnd{TEnd::Item, TEnd::Leave}, TEnd{TEnd::AllItems, TEnd::Click},
                                         TEnd{TEnd::AllItems, TEnd::Enter}, TEnd{TEnd::AllItems, TEnd::Leave},
                                         TEnd{TEnd::TheGroup, TEnd::Click}, TEnd{TEnd::TheGroup, TEnd::Enter},
                                         TEnd{TEnd::TheGroup, TEnd::Leave}, TEnd{TEnd::TheBar, TEnd::Click},
                                         TEnd{TEnd::TheBar, TEnd::Enter}, TEnd{TEnd::TheBar, TEnd::Leave}));

TEST_F(ItemsUnderTheMouseTest, AnItemThatIsDeletedUnderTheMouseIsForgotten) {
    auto* link = AddLink(L"Erster");
    MoveOn(link);
    ASSERT_EQ(Bar->HotObject, link);
    Group->GetItems().Delete(0);
    EXPECT_EQ(Bar->HotObject, nullptr);
}

TEST_F(ItemsUnderTheMouseTest, AnExtractedItemIsForgottenAndHasNoGroup) {
    auto* link = AddLink(L"Erster");
    MoveOn(link);
    const std::unique_ptr<TQV7SkinExplorerItemCustom> taken(Group->GetItems().Extract(link));
    EXPECT_EQ(taken.get(), link);
    EXPECT_EQ(taken->GetOwner(), nullptr);
    EXPECT_EQ(Bar->HotObject, nullptr);
}

}  // namespace
}  // namespace qv7skin
