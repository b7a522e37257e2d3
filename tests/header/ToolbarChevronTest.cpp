#include "header/chevrons/ToolbarChevron.h"

#include "header/toolbar/ToolbarPieces.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "skin/surfaces/Loaders.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using test::Pixels;
using Chevron = TQV7SkinToolbarChevron;

/// A strip with the chevron of a toolbar.
class TBarStrip : public TQV7SkinHeaderControl {
public:
    using TQV7SkinHeaderControl::TQV7SkinHeaderControl;
    TQV7SkinHeaderChevronBase* CreateChevron() override {
        return new Chevron(this, std::make_shared<const TToolbarPieces>());
    }
};

class ToolbarChevronTest : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        SetUpBar();
    }
    void SetUpBar() {
        FBar = Make<TBarStrip>({20, 30, 320, 64});
        for (int i = 0; i < 10; ++i)
            FBar->GetItems().Add(new probes::TBarItem(50, clRed));
        Input.MoveAway();
        test::PumpAll();
        FChevron = dynamic_cast<Chevron*>(&FBar->GetChevron());
        ASSERT_NE(FChevron, nullptr);
    }
    [[nodiscard]] Pixels Shown() const {
        test::PumpAll();
        return test::ReadClient(FChevron->GetHandle());
    }
    static Pixels Load(const wchar_t* name) { return test::ReadBitmap(CreateBmp(name)->GetHandle()); }
    /// The chevron as the drawing rules make it from the package's pictures, 34 pixels high.
    static Pixels Expected(const wchar_t* left, const wchar_t* center, const wchar_t* right);

    TBarStrip* FBar = nullptr;    // the form's
    Chevron* FChevron = nullptr;  // the bar's
};

Pixels ToolbarChevronTest::Expected(const wchar_t* left, const wchar_t* center, const wchar_t* right) {
    const Pixels first = Load(left), middle = Load(center), last = Load(right);
    const Pixels arrows = Load(L"TOOLBUTTONCHEVRONBUTTON");
    return {15, 34, [&](int x, int y) -> COLORREF {
                const COLORREF arrow = arrows.At(x - 3, y - 12);
                if (arrow != CLR_INVALID && arrow != COLORREF{probes::Magenta}) return arrow;
                if (x < first.Width()) return first.At(x, y);
                return x >= 15 - last.Width() ? last.At(x - 15 + last.Width(), y) : middle.At(0, y);
            }};
}

TEST_F(ToolbarChevronTest, IsAsHighAsTheToolbarAndFifteenPixelsWide) {
    EXPECT_EQ(FChevron->GetBoundsRect(), TRect(285, 0, 300, 34));
    EXPECT_EQ(FChevron->GetButtonRect(), TRect(3, 12, 13, 22));
    EXPECT_TRUE(FBar->GetChevronVisible());
}

TEST_F(ToolbarChevronTest, TakesTheToolbarsHeightWhenItIsShown) {
    FBar->SetBounds(20, 30, 600, 24);
    EXPECT_FALSE(FBar->GetChevronVisible());
    FBar->SetWidth(300);
    EXPECT_EQ(FChevron->GetHeight(), 24);
    EXPECT_EQ(FChevron->GetButtonRect(), TRect(3, 7, 13, 17));
}

TEST_F(ToolbarChevronTest, IsRenderedAnewInAnotherHeight) {
    FBar->SetHeight(50);
    EXPECT_EQ(FChevron->GetHeight(), 34) << "it takes the toolbar's height when it comes to be shown";
    FChevron->SetHeight(50);
    const Pixels shown = Shown(), bar = Load(L"TOOLBARBACKGROUND");
    ASSERT_EQ(shown.Height(), 50);
    EXPECT_EQ(shown.At(10, 0), bar.At(0, 0));
    EXPECT_EQ(shown.At(10, 49), bar.At(0, 33));
}

TEST_F(ToolbarChevronTest, ShowsBarAndSeparatorAtRest) {
    EXPECT_EQ(FChevron->GetImageState(), Chevron::isNormal);
    EXPECT_TRUE(
        SamePixels(Shown(), Expected(L"TOOLBUTTONCHEVRONLEFT", L"TOOLBARBACKGROUND", L"TOOLBARBACKGROUND")));
}

TEST_F(ToolbarChevronTest, ShowsAButtonUnderTheMouse) {
    Input.MoveTo(FChevron->GetHandle(), 5, 5);
    EXPECT_EQ(FChevron->GetImageState(), Chevron::isHovered);
    EXPECT_TRUE(SamePixels(
        Shown(), Expected(L"TOOLBUTTONHOVEREDLEFT", L"TOOLBUTTONHOVEREDCENTER", L"TOOLBUTTONHOVEREDRIGHT")));
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return FChevron->GetImageState() == Chevron::isNormal; }));
}

TEST_F(ToolbarChevronTest, StaysPressedWithoutAMenuUntilTheMouseMoves) {
    Input.MoveTo(FChevron->GetHandle(), 5, 5);
    Input.Press();
    EXPECT_EQ(FChevron->GetImageState(), Chevron::isPressed);
    EXPECT_TRUE(SamePixels(
        Shown(), Expected(L"TOOLBUTTONPRESSEDLEFT", L"TOOLBUTTONPRESSEDCENTER", L"TOOLBUTTONPRESSEDCENTER")));
    Input.MoveTo(FChevron->GetHandle(), 6, 5);
    EXPECT_EQ(FChevron->GetImageState(), Chevron::isHovered);
    Input.Release();
}

/// A menu that looks at the chevron while it is open.
class TLookingMenu : public TPopupMenu {
public:
    using TPopupMenu::TPopupMenu;
    void Popup(int x, int y) override {
        Place = {x, y};
        if (WhileOpen) WhileOpen();
    }
    TPoint Place;
    std::function<void()> WhileOpen;
};

TEST_F(ToolbarChevronTest, OpensTheMenuAtItsCornerToTheRight) {
    TLookingMenu menu(nullptr);
    FBar->SetChevronDropDown(&menu);
    Chevron::TImageState whileOpen = Chevron::isNone;
    menu.WhileOpen = [&] { whileOpen = FChevron->GetImageState(); };
    Input.MoveTo(FChevron->GetHandle(), 5, 5);
    Input.Click();
    EXPECT_EQ(menu.Place, FChevron->ClientToScreen({15, 34}));
    EXPECT_EQ(menu.GetAlignment(), paRight);
    EXPECT_EQ(whileOpen, Chevron::isPressed);
    EXPECT_EQ(FChevron->GetImageState(), Chevron::isHovered);
}

TEST_F(ToolbarChevronTest, IsAtRestWhenTheMenuClosesWithTheMouseElsewhere) {
    TLookingMenu menu(nullptr);
    FBar->SetChevronDropDown(&menu);
    menu.WhileOpen = [] {
        ReleaseCapture();  // as a menu does
        SetCursorPos(5, 5);
    };
    Input.MoveTo(FChevron->GetHandle(), 5, 5);
    Input.Press();
    EXPECT_EQ(FChevron->GetImageState(), Chevron::isNormal);
    Input.Release();
}

TEST_F(ToolbarChevronTest, MayGoWithItsBarWhileTheMenuIsOpen) {
    TLookingMenu menu(nullptr);
    FBar->SetChevronDropDown(&menu);
    menu.WhileOpen = [&] {
        delete FBar;
        FBar = nullptr;
    };
    Input.MoveTo(FChevron->GetHandle(), 5, 5);
    Input.Click();
    EXPECT_EQ(FBar, nullptr);
    // A window that goes in the middle of painting takes a region of the system's with it; the next one that
    // paints gets it back.
    SetUpBar();
}

}  // namespace
}  // namespace qv7skin
