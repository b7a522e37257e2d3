#include <map>

#include "menus/UnitQV7SkinMenus.h"
#include "tests/menus/PainterFixture.h"
#include "tests/support/PixelProbe.h"

// Popup menus of the skin on the screen, worked by keys and mouse.

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;
using Names = std::vector<std::wstring>;

HWND MenuWindow() {
    const HWND window = FindWindowW(MAKEINTRESOURCEW(32768), nullptr);
    return window && IsWindowVisible(window) ? window : nullptr;
}

/// The menu that was opened last.
HMENU ShownMenu() {
    constexpr UINT getMenuHandle = 0x01E1;
    return MenuWindow() ? reinterpret_cast<HMENU>(SendMessageW(MenuWindow(), getMenuHandle, 0, 0)) : nullptr;
}

RECT PlaceOf(int index) {
    RECT place{};
    GetMenuItemRect(nullptr, ShownMenu(), static_cast<UINT>(index), &place);
    return place;
}

bool IsHighlighted(int index) {
    return ShownMenu() && (GetMenuState(ShownMenu(), static_cast<UINT>(index), MF_BYPOSITION) & MF_HILITE);
}

/// Notes where the painter was asked to draw.
class PlacePainter : public TQV7SkinMenuItemPainterNice {
public:
    void DrawItem(TMenuItem& Sender, TCanvas& ACanvas, const TRect& ARect, bool Selected,
                  bool arrow) override {
        Places[&Sender] = ARect;
        TQV7SkinMenuItemPainterNice::DrawItem(Sender, ACanvas, ARect, Selected, arrow);
    }
    std::map<const TMenuItem*, TRect> Places;
};

class SkinMenusScreenTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        Form();
        Popup = std::make_unique<TQV7SkinPopupMenu>(nullptr);
        Places = new PlacePainter();
        SetQV7SkinMenuItemPainter(Places);
    }
    void TearDown() override {
        Popup.reset();
        SetQV7SkinMenuItemPainter(new TQV7SkinMenuItemPainterNice());
        PainterTest::TearDown();
    }
    TMenuItem* Add(TMenuItem& parent, const std::wstring& caption, const std::wstring& hint = {}) {
        auto* item = new TMenuItem(nullptr);
        item->SetCaption(caption);
        item->SetHint(hint);
        item->OnClick = [this](TObject* sender) {
            Clicked.push_back(StripHotkey(dynamic_cast<TMenuItem&>(*sender).GetCaption()));
        };
        parent.Add(item);
        return item;
    }
    void WhenOpen(std::function<void()> step) {
        When([] { return MenuWindow() != nullptr; }, std::move(step));
    }
    void Open() { Popup->Popup(150, 150); }
    /// What an entry shows, and what the painter draws at its place.
    void ExpectDrawn(TMenuItem& item, int index, bool selected) {
        RECT window{};
        GetWindowRect(MenuWindow(), &window);
        RECT place = PlaceOf(index);
        OffsetRect(&place, -window.left, -window.top);
        const Pixels shown = ReadWindow(MenuWindow()).Part(place);
        const TRect rect = Places->Places[&item];
        ASSERT_EQ(shown.Width(), rect.Width());
        ASSERT_EQ(shown.Height(), rect.Height());
        const Pixels drawn = Drawn(rect.Right, rect.Bottom, 0, [&](HDC dc) {
            TCanvas canvas;
            canvas.SetHandle(dc);
            QV7SkinMenuItemPainter()->TQV7SkinMenuItemPainter::DrawItem(item, canvas, rect, selected, false);
            canvas.SetHandle(nullptr);
        });
        EXPECT_TRUE(SamePixels(shown, drawn.Part(rect)));
        int width = 0;
        int height = 0;
        (void)DrawOn([&](TCanvas& canvas) { Places->MeasureItem(item, canvas, width, height); });
        EXPECT_EQ(shown.Height(), height);
        EXPECT_GE(shown.Width(), width);
    }

    PlacePainter* Places = nullptr;
    std::unique_ptr<TQV7SkinPopupMenu> Popup;
    Names Clicked;
};

TEST_F(SkinMenusScreenTest, EveryItemStandsOnTheScreenAsThePainterDrawsIt) {
    TMenuItem& root = Popup->GetItems();
    Popup->SetAutoLineReduction(maManual);
    Add(root, L"-", L"Heading");
    Add(root, L"&Plain");
    Add(root, L"&Described", L"First#13#10second")->SetShortCut(ShortCut('D', {ssCtrl}));
    Add(root, L"-");
    Add(root, L"&Ticked")->SetChecked(true);
    TMenuItem* dotted = Add(root, L"D&otted");
    dotted->SetRadioItem(true);
    dotted->SetChecked(true);
    Add(root, L"&Grey")->SetEnabled(false);
    WhenOpen([&] {
        for (int i = 0; i < root.GetCount(); ++i)
            ExpectDrawn(*root.GetItem(i), i, false);
        Input.KeyPress(VK_DOWN);
    });
    When([] { return IsHighlighted(1); },
         [&] {
             ExpectDrawn(*root.GetItem(1), 1, true);
             Input.KeyPress(VK_DOWN);
         });
    When([] { return IsHighlighted(2); },
         [&] {
             ExpectDrawn(*root.GetItem(2), 2, true);
             ExpectDrawn(*root.GetItem(1), 1, false);
             Input.KeyPress(VK_ESCAPE);
         });
    Open();
}

TEST_F(SkinMenusScreenTest, KeysReachTheFourthLevel) {
    TMenuItem* level = &Popup->GetItems();
    for (const wchar_t* caption : {L"&One", L"&Two", L"T&hree", L"&Four"})
        level = Add(*level, caption);
    WhenOpen([] {});
    for (const WORD key : {VK_DOWN, VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_RETURN})
        Later([this, key] { Input.KeyPress(key); });
    Open();
    EXPECT_EQ(Clicked, (Names{L"One", L"Two", L"Three", L"Four"}));
}

TEST_F(SkinMenusScreenTest, TheMouseChoosesInASubmenu) {
    Add(Popup->GetItems(), L"&First");
    TMenuItem* sub = Add(Popup->GetItems(), L"&Sub");
    Add(*sub, L"&Inner");
    TMenuItem* wanted = Add(*sub, L"&Wanted", L"Below");
    const auto center = [](int index) {
        const RECT place = PlaceOf(index);
        return POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    };
    WhenOpen([&] { Input.MoveTo(center(1)); });
    When([&] { return ShownMenu() == sub->PresentHandle(); }, [&] { Input.MoveTo(center(1)); });
    When([] { return IsHighlighted(1); },
         [&] {
             ExpectDrawn(*wanted, 1, true);
             Input.Click();
         });
    Open();
    EXPECT_EQ(Clicked, (Names{L"Sub", L"Wanted"}));
}

TEST_F(SkinMenusScreenTest, AMenuMayBeRebuiltByTheItemThatWasChosen) {
    TMenuItem& root = Popup->GetItems();
    Add(root, L"&Again")->OnClick = [&](TObject*) {
        Clicked.push_back(L"Again");
        root.Clear();
        Add(root, L"&New", L"Made by the one before");
    };
    WhenOpen([&] { Input.KeyPress('A'); });
    Open();
    WhenOpen([&] {
        ExpectDrawn(*root.GetItem(0), 0, false);
        Input.KeyPress('N');
    });
    Open();
    EXPECT_EQ(Clicked, (Names{L"Again", L"New"}));
}

TEST_F(SkinMenusScreenTest, MenusLargerThanTheScreenStayOnItAndScroll) {
    TMenuItem& root = Popup->GetItems();
    for (int i = 0; i < 100; ++i)
        Add(root, L"Item " + IntToStr(i), L"With a description");
    Add(root, L"Last", std::wstring(1000, L'W'));
    RECT place{};
    WhenOpen([&] {
        GetWindowRect(MenuWindow(), &place);
        Input.KeyPress(VK_UP);
    });
    When([] { return IsHighlighted(100); }, [&] { Input.KeyPress(VK_RETURN); });
    Open();
    EXPECT_EQ(Clicked, Names{L"Last"});
    EXPECT_GE(place.left, 0);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(place.bottom, GetSystemMetrics(SM_CYSCREEN));
}

TEST_F(SkinMenusScreenTest, ColumnsStandBesideEachOther) {
    TMenuItem& root = Popup->GetItems();
    for (const wchar_t* caption : {L"&One", L"&Two", L"T&hree"})
        Add(root, caption)->SetChecked(true);
    root.GetItem(2)->SetBreak(mbBarBreak);
    WhenOpen([&] {
        EXPECT_GT(PlaceOf(2).left, PlaceOf(0).right - 1);
        EXPECT_EQ(PlaceOf(2).top, PlaceOf(0).top);
        for (int i = 0; i < 3; ++i)
            ExpectDrawn(*root.GetItem(i), i, false);
        Input.KeyPress(VK_UP);
    });
    When([] { return IsHighlighted(2); },
         [&] {
             for (int i = 0; i < 3; ++i)
                 ExpectDrawn(*root.GetItem(i), i, i == 2);
             Input.KeyPress(VK_ESCAPE);
         });
    Open();
}

}  // namespace
}  // namespace test
