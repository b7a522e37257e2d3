#include <memory>

#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/graphics/ImageList.h"
#include "tests/menus/PainterFixture.h"
#include "tests/support/FilledBitmap.h"
#include "tests/support/PixelProbe.h"

// Menus of the skin without a painter, and the bar of a form with one.

namespace test {
namespace {

using namespace vcl;
using namespace qv7skin;

HWND MenuWindow() {
    const HWND window = FindWindowW(MAKEINTRESOURCEW(32768), nullptr);
    return window && IsWindowVisible(window) ? window : nullptr;
}

class SystemLookTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        Form();
        const FilledBitmap picture(16, 16, clRed);
        Images = std::make_unique<TImageList>(nullptr);
        Images->Add(&picture, nullptr);
        Skin = std::make_unique<TQV7SkinPopupMenu>(nullptr);
        Plain = std::make_unique<TPopupMenu>(nullptr);
        Fill(*Skin);
        Fill(*Plain);
    }
    void TearDown() override {
        Plain.reset();
        Skin.reset();
        Images.reset();
        SetQV7SkinMenuItemPainter(new TQV7SkinMenuItemPainterNice());
        PainterTest::TearDown();
    }
    static TMenuItem* Add(TMenuItem& parent, const std::wstring& caption, int imageIndex = -1) {
        auto* item = new TMenuItem(nullptr);
        item->SetCaption(caption);
        item->SetImageIndex(imageIndex);
        item->SetHint(L"Says more");
        parent.Add(item);
        return item;
    }
    static void Fill(TPopupMenu& menu) {
        Add(menu.GetItems(), L"&First", 0);
        Add(menu.GetItems(), L"&Second")->SetChecked(true);
        Add(menu.GetItems(), L"-");
        TMenuItem* sub = Add(menu.GetItems(), L"&Third");
        Add(*sub, L"&Inside");
    }
    /// What stands on the screen while the menu is open.
    static Pixels Look(TPopupMenu& menu) {
        Pixels shown;
        When([] { return MenuWindow() != nullptr; },
             [&shown] {
                 shown = ReadWindow(MenuWindow());
                 EndMenu();
             });
        menu.Popup(150, 150);
        return shown;
    }

    std::unique_ptr<TImageList> Images;
    std::unique_ptr<TQV7SkinPopupMenu> Skin;
    std::unique_ptr<TPopupMenu> Plain;
};

TEST_F(SystemLookTest, WithoutAnActivePainterAPopupLooksAsTheSystems) {
    for (const bool hasImages : {false, true}) {
        Skin->SetImages(hasImages ? Images.get() : nullptr);
        Plain->SetImages(hasImages ? Images.get() : nullptr);
        SetQV7SkinMenuItemPainter(new TQV7SkinMenuItemPainterNice());
        const Pixels inSkin = Look(*Skin);
        EXPECT_GT(inSkin.Count(ItemGround), 100);
        const Pixels plain = Look(*Plain);
        QV7SkinMenuItemPainter()->SetActive(false);
        EXPECT_TRUE(SamePixels(Look(*Skin), plain));
        QV7SkinMenuItemPainter()->SetActive(true);
        EXPECT_TRUE(SamePixels(Look(*Skin), inSkin));
        SetQV7SkinMenuItemPainter(nullptr);
        EXPECT_TRUE(SamePixels(Look(*Skin), plain));
    }
}

TEST_F(SystemLookTest, HandlersOfTheHostStayWhenThePainterGoes) {
    (void)Look(*Skin);
    Skin->SetImages(Images.get());
    int drawn = 0;
    TMenuItem* first = Skin->GetItems().GetItem(0);
    first->OnDrawItem = [&](TObject*, TCanvas&, const TRect&, bool) { ++drawn; };
    SetQV7SkinMenuItemPainter(nullptr);
    (void)Look(*Skin);
    EXPECT_GT(drawn, 0);
    EXPECT_FALSE(Skin->GetItems().GetItem(1)->OnDrawItem);
    EXPECT_FALSE(Skin->GetItems().GetItem(1)->OnMeasureItem);
    const TMenuItem* inside = Skin->GetItems().GetItem(3)->GetItem(0);
    EXPECT_FALSE(inside->OnDrawItem);
    EXPECT_FALSE(inside->OnMeasureItem);
    // Items that come now are the system's.
    EXPECT_FALSE(Add(Skin->GetItems(), L"&Late")->OnDrawItem);
}

TEST_F(SystemLookTest, TheBarOfAFormIsDrawnByThePainter) {
    TQV7SkinMainMenu main(nullptr);
    for (const wchar_t* caption : {L"&File", L"&Edit"})
        Add(*Add(main.GetItems(), caption), L"&Inside");
    main.ApplyCustomLayout();
    Form().SetMenu(&main);
    PumpAll();
    RECT window{};
    GetWindowRect(Form().GetHandle(), &window);
    const Pixels shown = ReadWindow(Form().GetHandle());
    for (int i = 0; i < 2; ++i) {
        RECT place{};
        ASSERT_TRUE(
            GetMenuItemRect(Form().GetHandle(), GetMenu(Form().GetHandle()), static_cast<UINT>(i), &place));
        OffsetRect(&place, -window.left, -window.top);
        TMenuItem& item = *main.GetItems().GetItem(i);
        const Pixels drawn = Drawn(place.right, place.bottom, 0, [&](HDC dc) {
            TCanvas canvas;
            canvas.SetHandle(dc);
            QV7SkinMenuItemPainter()->DrawItem(item, canvas, place, false, false);
            canvas.SetHandle(nullptr);
        });
        EXPECT_TRUE(SamePixels(shown.Part(place), drawn.Part(place))) << i;
        // The gutter ends at one place of the whole bar.
        EXPECT_EQ(drawn.Part(place).Count(Gutter) > 0, place.left < 26) << i;
    }
    Form().SetMenu(nullptr);
}

}  // namespace
}  // namespace test
