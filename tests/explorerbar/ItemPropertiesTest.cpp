#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/explorerbar/ItemFixture.h"

// What items are made with, what their setters announce, and what they raise.

namespace qv7skin {
namespace {

class ItemPropertiesTest : public probes::ItemTest {};

/// An item of some kind that notes its refreshes: 'm' with measuring, 'p' without.
template <class Item>
class TNoting : public Item {
public:
    using Item::Item;
    void Refresh(bool Remeasure) override { Log += Remeasure ? 'm' : 'p'; }
    std::string Log;
    /// The refreshes of an action.
    std::string By(const std::function<void()>& action) {
        Log.clear();
        action();
        return Log;
    }
};

TEST_F(ItemPropertiesTest, ItemsStartWithTheirDefaults) {
    TQV7SkinExplorerItemCustom item;
    EXPECT_TRUE(item.GetVisible());
    EXPECT_EQ(item.GetOwner(), nullptr);
    EXPECT_EQ(item.GetHint(), L"");
    EXPECT_FALSE(item.GetCanFocus());
    EXPECT_FALSE(item.IsHotArea());
    EXPECT_FALSE(item.IsFocused());
    EXPECT_FALSE(item.IsLastVisibleItem());

    EXPECT_EQ(TQV7SkinExplorerItemSeparator().GetHeight(), 10);

    TQV7SkinExplorerItemCaptionValuePair pair;
    EXPECT_EQ(pair.GetCaption() + pair.GetValue(), L"");
    EXPECT_FALSE(pair.GetClickable());

    TQV7SkinExplorerItemCaptionBlockPair block;
    EXPECT_EQ(block.GetCaption(), L"Caption");
    EXPECT_EQ(block.GetBlocktext(), L"Blocktext");
    EXPECT_FALSE(block.GetClickable());

    TQV7SkinExplorerItemLink link;
    EXPECT_EQ(link.GetCaption(), L"");
    EXPECT_EQ(link.GetIcon(), nullptr);
    EXPECT_EQ(link.GetIconIndex(), -1);
    EXPECT_TRUE(link.GetWordWrap());
    EXPECT_TRUE(link.GetFontStyle().IsEmpty());
    EXPECT_EQ(link.GetTransparentColor(), 0x1FFFFFFFU);

    TQV7SkinExplorerItemCheckBox box;
    EXPECT_FALSE(box.GetChecked());
    EXPECT_TRUE(box.GetEnabled());
    EXPECT_TRUE(box.GetFlat());

    TQV7SkinExplorerItemBmp image;
    EXPECT_EQ(image.GetImage(), nullptr);
    EXPECT_TRUE(image.GetDisplayBitmap().GetEmpty());
    EXPECT_EQ(image.GetAlignment(), taCenter);
    EXPECT_FALSE(image.GetAutoSize());
    EXPECT_EQ(image.GetMaxWidth(), 0);

    TQV7SkinExplorerItemStaticText text;
    EXPECT_EQ(text.GetCaption(), L"a line");
    EXPECT_EQ(text.GetFontColor(), 0U);
    EXPECT_TRUE(text.GetFontStyle().IsEmpty());
    EXPECT_FALSE(text.GetWordWrap());

    TQV7SkinExplorerItemProgressBar progress;
    EXPECT_EQ(progress.GetMin() | progress.GetMax() | progress.GetPosition(), 0);
    EXPECT_EQ(progress.GetHeight(), 20);
    EXPECT_EQ(progress.GetBorderColor(), 0xFF000015U);
    EXPECT_EQ(progress.GetFillColor(), 0xFF000010U);
}

TEST_F(ItemPropertiesTest, ConstructorsKeepWhatTheyAreGiven) {
    const TQV7SkinExplorerItemCaptionValuePair plain(L"c", L"v", L"h");
    EXPECT_EQ(plain.GetCaption() + plain.GetValue() + plain.GetHint(), L"cvh");
    EXPECT_FALSE(plain.GetClickable());
    const TQV7SkinExplorerItemCaptionValuePair pair(L"c", true, L"v", L"h");
    EXPECT_EQ(pair.GetCaption() + pair.GetValue() + pair.GetHint(), L"cvh");
    EXPECT_TRUE(pair.GetClickable());

    const TQV7SkinExplorerItemCaptionBlockPair two(L"c", L"b");
    EXPECT_EQ(two.GetCaption() + two.GetBlocktext() + two.GetHint(), L"cb");
    const TQV7SkinExplorerItemCaptionBlockPair three(L"c", L"b", L"h");
    EXPECT_EQ(three.GetCaption() + three.GetBlocktext() + three.GetHint(), L"cbh");
    EXPECT_FALSE(three.GetClickable()) << "a literal text is no bool";
    const TQV7SkinExplorerItemCaptionBlockPair click(L"c", true, L"b");
    EXPECT_EQ(click.GetCaption() + click.GetBlocktext() + click.GetHint(), L"cb");
    EXPECT_TRUE(click.GetClickable());
    const TQV7SkinExplorerItemCaptionBlockPair four(L"c", true, L"b", L"h");
    EXPECT_EQ(four.GetCaption() + four.GetBlocktext() + four.GetHint(), L"cbh");
    EXPECT_TRUE(four.GetClickable());

    const TQV7SkinExplorerItemLink link(L"c", L"h");
    EXPECT_EQ(link.GetCaption() + link.GetHint(), L"ch");
    EXPECT_EQ(link.GetIcon(), nullptr);
    EXPECT_EQ(TQV7SkinExplorerItemLink(L"c", L"h", 4).GetIconIndex(), 4);
    EXPECT_EQ(TQV7SkinExplorerItemLink(L"c", L"h", nullptr).GetIcon(), nullptr);

    const TQV7SkinExplorerItemCheckBox box(L"c", 7, L"h", true, false, false);
    EXPECT_EQ(box.GetCaption() + box.GetHint(), L"ch");
    EXPECT_EQ(box.GetIconIndex(), -1) << "the number is ignored";
    EXPECT_TRUE(box.GetChecked());
    EXPECT_FALSE(box.GetEnabled());
    EXPECT_FALSE(box.GetFlat());

    const TQV7SkinExplorerItemStaticText text(L"c", clRed, {fsBold}, true);
    EXPECT_EQ(text.GetCaption(), L"c");
    EXPECT_EQ(text.GetFontColor(), static_cast<TColor>(clRed));
    EXPECT_EQ(text.GetFontStyle(), TFontStyles{fsBold});
    EXPECT_TRUE(text.GetWordWrap());

    const TQV7SkinExplorerItemProgressBar progress(1, 9, 3, 12, clRed, clBlue);
    EXPECT_EQ(progress.GetMin(), 1);
    EXPECT_EQ(progress.GetMax(), 9);
    EXPECT_EQ(progress.GetPosition(), 3);
    EXPECT_EQ(progress.GetHeight(), 12);
    EXPECT_EQ(progress.GetBorderColor(), static_cast<TColor>(clRed));
    EXPECT_EQ(progress.GetFillColor(), static_cast<TColor>(clBlue));
}

TEST_F(ItemPropertiesTest, IconsAndPicturesAreCopied) {
    auto picture = probes::BitmapOf(9, 7, clRed);
    TQV7SkinExplorerItemLink link(L"", L"", picture.get());
    TQV7SkinExplorerItemBmp image(picture.get());
    picture->SetSize(20, 20);
    picture.reset();
    EXPECT_EQ(link.GetIcon()->GetWidth(), 9);
    EXPECT_EQ(image.GetImage()->GetHeight(), 7);
    EXPECT_EQ(image.GetDisplayBitmap().GetHeight(), 7);
    link.SetIcon(nullptr);
    image.SetImage(nullptr);
    EXPECT_EQ(link.GetIcon(), nullptr);
    EXPECT_EQ(image.GetImage(), nullptr);
    EXPECT_TRUE(image.GetDisplayBitmap().GetEmpty());
    const auto other = probes::BitmapOf(3, 4, clBlue);
    link.SetIcon(other.get());
    EXPECT_EQ(link.GetIcon()->GetHeight(), 4);
}

TEST_F(ItemPropertiesTest, WhatChangesHeightsMeasuresAndAllElseRepaints) {
    TNoting<TQV7SkinExplorerItemCustom> item;
    EXPECT_EQ(item.By([&] { item.SetVisible(false); }), "m");
    EXPECT_EQ(item.By([&] { item.SetVisible(false); }), "") << "the value that it has already";

    TNoting<TQV7SkinExplorerItemSeparator> separator;
    EXPECT_EQ(separator.By([&] { separator.SetHeight(4); }), "p");

    TNoting<TQV7SkinExplorerItemCaptionValuePair> pair;
    EXPECT_EQ(pair.By([&] {
        pair.SetCaption(L"c");
        pair.SetValue(L"v");
        pair.SetClickable(true);
    }),
              "ppp");
    TNoting<TQV7SkinExplorerItemCaptionBlockPair> block;
    EXPECT_EQ(block.By([&] {
        block.SetCaption(L"c");
        block.SetBlocktext(L"v");
        block.SetClickable(true);
    }),
              "ppp");

    TNoting<TQV7SkinExplorerItemLink> link;
    EXPECT_EQ(link.By([&] {
        link.SetCaption(L"c");
        link.SetHint(L"h");
        link.SetTransparentColor(clRed);
        link.SetWordWrap(false);
    }),
              "mmmm");
    EXPECT_EQ(link.By([&] { link.SetFontStyle({fsBold}); }), "p");
    EXPECT_EQ(link.By([&] { link.SetFontStyle({fsBold}); }), "");
    const auto icon = probes::BitmapOf(2, 2, clRed);
    EXPECT_EQ(link.By([&] {
        link.SetIcon(icon.get());
        link.SetIcon(nullptr);
    }),
              "pp");
    EXPECT_EQ(link.By([&] { link.SetOwner(nullptr); }), "m");

    TNoting<TQV7SkinExplorerItemCheckBox> box;
    EXPECT_EQ(box.By([&] {
        box.SetChecked(true);
        box.SetEnabled(false);
        box.SetFlat(false);
    }),
              "ppp");

    TNoting<TQV7SkinExplorerItemBmp> image;
    EXPECT_EQ(image.By([&] {
        image.SetImage(icon.get());
        image.SetAlignment(taLeftJustify);
        image.SetAutoSize(true);
        image.SetMaxWidth(9);
    }),
              "pppp");
    EXPECT_EQ(image.By([&] {
        image.SetAlignment(taLeftJustify);
        image.SetAutoSize(true);
        image.SetMaxWidth(9);
    }),
              "");

    TNoting<TQV7SkinExplorerItemStaticText> text;
    EXPECT_EQ(text.By([&] {
        text.SetCaption(L"c");
        text.SetFontColor(clRed);
        text.SetFontStyle({fsBold});
        text.SetWordWrap(true);
    }),
              "pppp");

    TNoting<TQV7SkinExplorerItemProgressBar> progress;
    EXPECT_EQ(progress.By([&] {
        progress.SetMin(1);
        progress.SetMax(9);
        progress.SetPosition(3);
    }),
              "ppp");
}

TEST_F(ItemPropertiesTest, OnlySomeKindsTakeTheFocus) {
    TQV7SkinExplorerItemCaptionValuePair pair(L"", true, L"", L"");
    TQV7SkinExplorerItemCaptionBlockPair block(L"", true, L"");
    TQV7SkinExplorerItemLink link;
    TQV7SkinExplorerItemCheckBox box;
    const std::vector<TQV7SkinExplorerItemCustom*> kinds{&pair, &block, &link, &box};
    for (auto* item : kinds) {
        EXPECT_TRUE(item->GetCanFocus());
        item->SetVisible(false);
        EXPECT_FALSE(item->GetCanFocus());
        item->SetVisible(true);
    }
    pair.SetClickable(false);
    block.SetClickable(false);
    box.SetEnabled(false);
    EXPECT_FALSE(pair.GetCanFocus());
    EXPECT_FALSE(block.GetCanFocus());
    EXPECT_FALSE(box.GetCanFocus());
    EXPECT_FALSE(TQV7SkinExplorerItemSeparator().GetCanFocus());
    EXPECT_FALSE(TQV7SkinExplorerItemBmp().GetCanFocus());
    EXPECT_FALSE(TQV7SkinExplorerItemStaticText().GetCanFocus());
    EXPECT_FALSE(TQV7SkinExplorerItemProgressBar().GetCanFocus());
}

TEST_F(ItemPropertiesTest, EventsCarryTheItemAsSender) {
    TQV7SkinExplorerItemLink item;
    std::vector<TObject*> senders;
    const auto note = [&](TObject* sender) { senders.push_back(sender); };
    item.OnClick = note;
    item.OnEnter = note;
    item.OnLeave = note;
    TCursor cursor = crDefault;
    item.Click();
    item.DoEnter(cursor);
    item.DoLeave(cursor);
    EXPECT_EQ(senders, (std::vector<TObject*>{&item, &item, &item}));
    item.OnEnter = nullptr;
    EXPECT_FALSE(item.OnEnter);
    item.DoEnter(cursor);
    EXPECT_EQ(senders.size(), 3U);
}

TEST_F(ItemPropertiesTest, AClickTogglesABoxBeforeItIsTold) {
    TQV7SkinExplorerItemCheckBox box;
    bool told = false;
    box.OnClick = [&](TObject*) { told = box.GetChecked(); };
    box.Click();
    EXPECT_TRUE(told);
    box.Click();
    EXPECT_FALSE(box.GetChecked());
    box.SetEnabled(false);
    box.Click();
    EXPECT_TRUE(box.GetChecked()) << "also a disabled one";
}

TEST_F(ItemPropertiesTest, AnItemMayFreeItselfInAnyOfItsEvents) {
    for (int event = 0; event < 3; ++event) {
        auto* item = new TQV7SkinExplorerItemCheckBox(L"", 0, L"", false, true, true);
        bool freed = false;
        const auto suicide = [&](TObject* sender) {
            delete sender;
            freed = true;
        };
        TCursor cursor = crDefault;
        if (event == 0) {
            item->OnClick = suicide;
            item->Click();
        } else if (event == 1) {
            item->OnEnter = suicide;
            item->DoEnter(cursor);
        } else {
            item->OnLeave = suicide;
            item->DoLeave(cursor);
        }
        EXPECT_TRUE(freed);
    }
}

TEST_F(ItemPropertiesTest, ALinkIsSmall) {
    // With its click event, its place in the list and what the heap adds to a block.
    EXPECT_LE(sizeof(TQV7SkinExplorerItemLink) + sizeof(void*) + 16, 300U);
}

// --- the list of a group, here without one

TEST_F(ItemPropertiesTest, TheListOwnsItsItems) {
    TQV7SkinExplorerItems items(nullptr);
    auto* first = new TQV7SkinExplorerItemCustom;
    auto* second = new TQV7SkinExplorerItemLink(L"b", L"");
    EXPECT_EQ(items.Add(second), 0);
    items.Insert(0, first);
    EXPECT_EQ(items.GetItems(0), first);
    EXPECT_EQ(items[1], second);
    EXPECT_EQ(items.GetOwner(), nullptr);
    EXPECT_TRUE(items.GetOwnsObjects());
    const std::unique_ptr<TQV7SkinExplorerItemCustom> taken(items.Extract(first));
    EXPECT_EQ(taken.get(), first);
    EXPECT_EQ(items.Extract(first), nullptr);
    const std::unique_ptr<TQV7SkinExplorerItemCustom> byIndex(items.Extract(0));
    EXPECT_EQ(byIndex.get(), second);
    EXPECT_THROW(items.Delete(0), EListError);
    EXPECT_EQ(items.ClassName(), L"TQV7SkinExplorerItems");
}

}  // namespace
}  // namespace qv7skin
