#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/MainMenu.h"
#include "tests/support/FilledBitmap.h"
#include "tests/support/PixelProbe.h"
#include "tests/vcl/menus/MenuTesting.h"

namespace test {
namespace {

using namespace vcl;

class MenuDrawingTest : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        Form();
        Menu = std::make_unique<TPopupMenu>(nullptr);
        Menu->SetOwnerDraw(true);
        for (const wchar_t* caption : {L"&One", L"&Two", L"&Three"})
            AddItem(Menu->GetItems(), caption);
    }
    void TearDown() override {
        Menu.reset();
        MenuTest::TearDown();
    }
    /// The place of an entry in its menu's window.
    static RECT EntryPlace(int index) {
        RECT entry{};
        RECT window{};
        GetMenuItemRect(nullptr, OpenMenu(), static_cast<UINT>(index), &entry);
        GetWindowRect(OpenMenuWindow(), &window);
        OffsetRect(&entry, -window.left, -window.top);
        return entry;
    }
    /// What an entry shows on the screen.
    static Pixels Entry(int index) { return ReadWindow(OpenMenuWindow()).Part(EntryPlace(index)); }
    void Open() { Menu->Popup(150, 150); }

    std::unique_ptr<TPopupMenu> Menu;
};

TEST_F(MenuDrawingTest, HandlersMeasureAndDrawTheirItem) {
    TMenuItem* item = Menu->GetItems().GetItem(1);
    std::vector<bool> selected;
    item->OnMeasureItem = [](TObject*, TCanvas& canvas, int& width, int& height) {
        EXPECT_GT(canvas.TextHeight(L"Mg"), 0);
        EXPECT_GT(width, 0);
        width = 100;
        height = 31;
    };
    item->OnDrawItem = [&](TObject* sender, TCanvas& canvas, const TRect& rect, bool isSelected) {
        EXPECT_EQ(sender, item);
        selected.push_back(isSelected);
        canvas.GetBrush().SetColor(isSelected ? clLime : clFuchsia);
        canvas.FillRect(rect);
    };
    Pixels resting;
    Pixels highlighted;
    WhenOpen([&] {
        EXPECT_EQ(EntryPlace(1).bottom - EntryPlace(1).top, 31);
        resting = Entry(1);
        Input.KeyPress(VK_DOWN);
    });
    WhenHighlighted(0, [&] { Input.KeyPress(VK_DOWN); });
    WhenHighlighted(1, [&] {
        highlighted = Entry(1);
        Input.KeyPress(VK_ESCAPE);
    });
    Open();
    ASSERT_FALSE(resting.IsEmpty());
    EXPECT_EQ(resting.Count(clFuchsia), resting.Width() * resting.Height());
    EXPECT_EQ(highlighted.Count(clLime), highlighted.Width() * highlighted.Height());
    EXPECT_FALSE(selected.front());
    EXPECT_TRUE(selected.back());
}

TEST_F(MenuDrawingTest, TheAdvancedHandlerKnowsTheWholeState) {
    TMenuItem* item = Menu->GetItems().GetItem(0);
    item->SetChecked(true);
    item->SetEnabled(false);
    item->SetDefault(true);
    TOwnerDrawState state;
    bool plain = false;
    item->OnAdvancedDrawItem = [&](TObject*, TCanvas&, const TRect&, TOwnerDrawState value) {
        state = value;
    };
    item->OnDrawItem = [&](TObject*, TCanvas&, const TRect&, bool) { plain = true; };
    WhenOpen([&] { Input.KeyPress(VK_ESCAPE); });
    Open();
    EXPECT_TRUE(state.ContainsAll({odChecked, odGrayed, odDefault}));
    EXPECT_FALSE(state.Contains(odSelected));
    EXPECT_FALSE(plain);
}

TEST_F(MenuDrawingTest, WithoutHandlersTheSystemsColoursAreUsed) {
    Pixels resting;
    Pixels highlighted;
    WhenOpen([&] {
        resting = Entry(0);
        Input.KeyPress(VK_DOWN);
    });
    WhenHighlighted(0, [&] {
        highlighted = Entry(0);
        Input.KeyPress(VK_ESCAPE);
    });
    Open();
    EXPECT_EQ(resting.At(0, 0), ColorToRGB(clMenu));
    EXPECT_GT(resting.Count(ColorToRGB(clMenuText)), 5);
    EXPECT_EQ(highlighted.At(0, 0), ColorToRGB(clHighlight));
    EXPECT_GT(highlighted.Count(ColorToRGB(clHighlightText)), 5);
}

TEST_F(MenuDrawingTest, ImagesStandLeftOfTheCaption) {
    Menu->SetOwnerDraw(false);
    TImageList images(nullptr);
    FilledBitmap picture(16, 16, clRed);
    images.Add(&picture, nullptr);
    Menu->SetImages(&images);
    Menu->GetItems().GetItem(1)->SetImageIndex(0);
    Pixels without;
    Pixels with;
    WhenOpen([&] {
        without = Entry(0);
        with = Entry(1);
        Input.KeyPress(VK_ESCAPE);
    });
    Open();
    EXPECT_EQ(without.Count(clRed), 0);
    EXPECT_EQ(with.Count(clRed), 16 * 16);
    EXPECT_LT(with.Bounds([](COLORREF c) { return c == clRed; }).right, 26);
}

TEST_F(MenuDrawingTest, AnImageListOfASubmenuServesItsItems) {
    TImageList outer(nullptr);
    TImageList inner(nullptr);
    TMenuItem* sub = AddItem(Menu->GetItems(), L"&Sub");
    TMenuItem* item = AddItem(*sub, L"&Inner");
    TMenuItem* deeper = AddItem(*item, L"&Deeper");
    Menu->SetImages(&outer);
    sub->SetSubMenuImages(&inner);
    EXPECT_EQ(sub->GetImageList(), &outer);
    EXPECT_EQ(item->GetImageList(), &inner);
    EXPECT_EQ(deeper->GetImageList(), &inner);
    sub->SetSubMenuImages(nullptr);
    EXPECT_EQ(deeper->GetImageList(), &outer);
    Menu->SetImages(nullptr);
}

TEST_F(MenuDrawingTest, AFreedImageListIsForgotten) {
    {
        TImageList images(nullptr);
        Menu->SetImages(&images);
        Menu->GetItems().GetItem(0)->SetSubMenuImages(&images);
    }
    EXPECT_EQ(Menu->GetImages(), nullptr);
    EXPECT_EQ(Menu->GetItems().GetItem(0)->GetSubMenuImages(), nullptr);
}

TEST_F(MenuDrawingTest, AnItemShowsAPictureOfItsOwn) {
    Menu->SetOwnerDraw(false);
    TMenuItem* item = Menu->GetItems().GetItem(0);
    EXPECT_FALSE(item->IsOwnerDrawn());
    FilledBitmap picture(10, 10, clRed);
    picture.GetCanvas().SetPixel(0, 9, clFuchsia);
    item->SetBitmap(picture);
    EXPECT_TRUE(item->IsOwnerDrawn());
    EXPECT_FALSE(Menu->GetItems().GetItem(1)->IsOwnerDrawn());
    Pixels shown;
    WhenOpen([&] {
        shown = Entry(0);
        Input.KeyPress(VK_ESCAPE);
    });
    Open();
    EXPECT_EQ(shown.Count(clRed), 99);
    EXPECT_EQ(shown.Count(clFuchsia), 0);
}

TEST_F(MenuDrawingTest, MnemonicsOfOwnerDrawnItemsWork) {
    Keys({'T'});
    Menu->GetItems().GetItem(2)->SetCaption(L"T&hree");
    Menu->SetAutoHotkeys(maManual);
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked.front(), L"Two");
}

TEST_F(MenuDrawingTest, TheSystemIsToldWhichItemHasTheMnemonic) {
    TMainMenu main(&Form());
    main.SetAutoHotkeys(maManual);
    main.SetOwnerDraw(true);
    TMenuItem* top = AddItem(main.GetItems(), L"&Top");
    for (const wchar_t* caption : {L"&Alpha", L"&Beta", L"Al&so", L"&And"})
        AddItem(*top, caption);
    Form().SetMenu(&main);
    const auto ask = [&](wchar_t key) {
        return SendMessageW(Form().GetHandle(), WM_MENUCHAR, MAKEWPARAM(key, MF_POPUP),
                            reinterpret_cast<LPARAM>(top->GetHandle()));
    };
    EXPECT_EQ(ask(L'b'), MAKELRESULT(1, MNC_EXECUTE));
    EXPECT_EQ(ask(L'a'), MAKELRESULT(0, MNC_SELECT));
    EXPECT_EQ(HIWORD(ask(L'q')), MNC_IGNORE);
    const auto highlight = [&](UINT entry, UINT state) {
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STATE;
        info.fState = state;
        SetMenuItemInfoW(top->PresentHandle(), entry, TRUE, &info);
    };
    highlight(0, MFS_HILITE);
    EXPECT_EQ(ask(L'a'), MAKELRESULT(3, MNC_SELECT));
    highlight(0, MFS_ENABLED);
    highlight(3, MFS_HILITE);
    EXPECT_EQ(ask(L'a'), MAKELRESULT(0, MNC_SELECT));
}

TEST_F(MenuDrawingTest, AMenuWiderThanTheScreenStaysOnIt) {
    Menu->GetItems().GetItem(0)->SetCaption(std::wstring(2000, L'W'));
    RECT place{};
    WhenOpen([&] {
        GetWindowRect(OpenMenuWindow(), &place);
        Input.KeyPress(VK_ESCAPE);
    });
    Open();
    EXPECT_GE(place.left, 0);
    EXPECT_LE(place.right, GetSystemMetrics(SM_CXSCREEN));
}

TEST_F(MenuDrawingTest, TheLastItemOfAMenuLongerThanTheScreenCanBeReached) {
    for (int i = 0; i < 200; ++i)
        AddItem(Menu->GetItems(), L"Item " + std::to_wstring(i));
    RECT place{};
    WhenOpen([&] {
        GetWindowRect(OpenMenuWindow(), &place);
        Input.KeyPress(VK_UP);
    });
    WhenHighlighted(202, [&] { Input.KeyPress(VK_RETURN); });
    Open();
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Clicked.front(), L"Item 199");
    EXPECT_LE(place.bottom, GetSystemMetrics(SM_CYSCREEN));
}

TEST_F(MenuDrawingTest, OfALongMenuOnlyWhatIsSeenIsDrawn) {
    int drawn = 0;
    bool lastWasDrawn = false;
    for (int i = 0; i < 400; ++i)
        AddItem(Menu->GetItems(), L"Item")->OnDrawItem = [&](TObject*, TCanvas&, const TRect&, bool) {
            ++drawn;
        };
    AddItem(Menu->GetItems(), L"Last")->OnDrawItem = [&](TObject*, TCanvas&, const TRect&, bool) {
        lastWasDrawn = true;
    };
    int drawnAtFirst = 0;
    bool lastWasDrawnAtFirst = false;
    WhenOpen([&] {
        drawnAtFirst = drawn;
        lastWasDrawnAtFirst = lastWasDrawn;
        Input.KeyPress(VK_UP);
    });
    WhenHighlighted(403, [&] { Input.KeyPress(VK_ESCAPE); });
    Open();
    EXPECT_GT(drawnAtFirst, 10);
    EXPECT_LT(drawnAtFirst, 200);
    EXPECT_FALSE(lastWasDrawnAtFirst);
    EXPECT_TRUE(lastWasDrawn);
}

TEST_F(MenuDrawingTest, AnItemMayBeFreedWhileItIsMeasured) {
    TMenuItem* item = Menu->GetItems().GetItem(1);
    item->OnMeasureItem = [&](TObject*, TCanvas&, int&, int&) {
        if (item) delete std::exchange(item, nullptr);
    };
    WhenOpen([&] { Input.KeyPress(VK_ESCAPE); });
    Open();
    EXPECT_EQ(item, nullptr);
    EXPECT_EQ(Menu->GetItems().GetCount(), 2);
}

}  // namespace
}  // namespace test
