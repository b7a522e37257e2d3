#include "header/chevrons/HeaderChevron.h"

#include "platform/vcl/menus/PopupMenu.h"
#include "skin/surfaces/Loaders.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using test::Pixels;
using Chevron = TQV7SkinHeaderChevron;

/// A menu that notes where it is opened.
class TNotingMenu : public TPopupMenu {
public:
    using TPopupMenu::TPopupMenu;
    void Popup(int x, int y) override { Places.emplace_back(x, y); }
    std::vector<TPoint> Places;
};

/// Ten items of 50 pixels in a strip of 300, so that its chevron shows.
class HeaderChevronTest : public probes::HeaderTest {
protected:
    void SetUp() override {
        HeaderTest::SetUp();
        AddBars(std::vector<int>(10, 50));
        test::PumpAll();
        FChevron = dynamic_cast<Chevron*>(&Header->GetChevron());
        ASSERT_NE(FChevron, nullptr);
    }
    [[nodiscard]] TPoint CenterOf(int button) const {
        const TRect r = FChevron->GetButtonRect(button);
        return {(r.Left + r.Right) / 2, (r.Top + r.Bottom) / 2};
    }
    void Point(int button) { Input.MoveTo(FChevron->GetHandle(), CenterOf(button).X, CenterOf(button).Y); }
    void Click(int button) {
        Point(button);
        Input.Click();
    }
    void CtrlClick(int button) {
        Point(button);
        Input.KeyDown(VK_CONTROL);
        Input.Click();
        Input.KeyUp(VK_CONTROL);
    }
    [[nodiscard]] int First() const { return Header->GetFirstVisibleIndex(); }
    /// The chevron as the drawing rules make it from the package's pictures.
    [[nodiscard]] static Pixels Expected(const wchar_t* down, const wchar_t* left, const wchar_t* right);

    Chevron* FChevron = nullptr;  // the strip's
};

Pixels Load(const std::wstring& name) {
    return test::ReadBitmap(CreateBmp(name)->GetHandle());
}

Pixels HeaderChevronTest::Expected(const wchar_t* down, const wchar_t* left, const wchar_t* right) {
    const Pixels top = Load(L"EXPLORERBARHEADERTOP"), bottom = Load(L"EXPLORERBARHEADERBOTTOM");
    Pixels chevron(52, 21, [&](int x, int y) -> COLORREF {
        if (x == 0 || x == 51 || y == 0 || y == 20) return 0x00555555;
        return y < 10 ? top.At(0, y - 1) : bottom.At(0, y - 10);
    });
    const std::wstring names[] = {std::wstring(L"CHEVRONBUTTONDOWN") + down,
                                  std::wstring(L"CHEVRONBUTTONLEFT") + left,
                                  std::wstring(L"CHEVRONBUTTONRIGHT") + right};
    for (int i = 0; i < 3; ++i) {
        const Pixels picture = Load(names[i]);
        for (int y = 0; y < 14; ++y)
            for (int x = 0; x < 14; ++x)
                if (picture.At(x, y) != COLORREF{probes::Magenta})
                    chevron.Set(2 + i * 16 + x, 3 + y, picture.At(x, y));
    }
    return chevron;
}

TEST_F(HeaderChevronTest, HasThreeButtonsSideBySide) {
    EXPECT_EQ(FChevron->GetWidth(), 52);
    EXPECT_EQ(FChevron->GetHeight(), 21);
    EXPECT_TRUE(FChevron->GetDoubleBuffered());
    EXPECT_EQ(FChevron->GetHeaderControl(), Header);
    EXPECT_EQ(FChevron->GetButtonRect(Chevron::cbDropDown), TRect(2, 3, 16, 17));
    EXPECT_EQ(FChevron->GetButtonRect(Chevron::cbLeft), TRect(18, 3, 32, 17));
    EXPECT_EQ(FChevron->GetButtonRect(Chevron::cbRight), TRect(34, 3, 48, 17));
}

TEST_F(HeaderChevronTest, ShowsWhichButtonsWork) {
    const auto shown = [&] {
        test::PumpAll();
        return test::ReadClient(FChevron->GetHandle());
    };
    EXPECT_TRUE(SamePixels(shown(), Expected(L"DEFAULT", L"DISABLED", L"DEFAULT")));
    Header->ScrollBy(1);
    EXPECT_TRUE(SamePixels(shown(), Expected(L"DEFAULT", L"DEFAULT", L"DEFAULT")));
    Header->ScrollBy(8);
    EXPECT_TRUE(SamePixels(shown(), Expected(L"DEFAULT", L"DEFAULT", L"DISABLED")));
}

TEST_F(HeaderChevronTest, ShowsTheButtonUnderTheMouse) {
    const auto shown = [&] {
        test::PumpAll();
        return test::ReadClient(FChevron->GetHandle());
    };
    Point(Chevron::cbDropDown);
    EXPECT_EQ(FChevron->MouseInButton(), Chevron::cbDropDown);
    EXPECT_EQ(FChevron->GetCursor(), crHandPoint);
    EXPECT_TRUE(SamePixels(shown(), Expected(L"HOVERED", L"DISABLED", L"DEFAULT")));
    Point(Chevron::cbRight);
    EXPECT_TRUE(SamePixels(shown(), Expected(L"DEFAULT", L"DISABLED", L"HOVERED")));
    Point(Chevron::cbLeft);
    EXPECT_TRUE(SamePixels(shown(), Expected(L"DEFAULT", L"DISABLED", L"DEFAULT")));
    Input.MoveTo(FChevron->GetHandle(), 17, 10);
    EXPECT_EQ(FChevron->MouseInButton(), -1);
    EXPECT_EQ(FChevron->GetCursor(), crDefault);
    Point(Chevron::cbRight);
    Input.MoveAway();
    ASSERT_TRUE(test::PumpUntil([&] { return FChevron->GetCursor() == crDefault; }));
    EXPECT_TRUE(SamePixels(shown(), Expected(L"DEFAULT", L"DISABLED", L"DEFAULT")));
}

TEST_F(HeaderChevronTest, InAnotherHeightItsBandsKeepToItsEdges) {
    Header->SetHeight(27);
    FChevron->SetHeight(27);
    const Pixels shown = test::ReadClient(FChevron->GetHandle());
    const Pixels top = Load(L"EXPLORERBARHEADERTOP"), bottom = Load(L"EXPLORERBARHEADERBOTTOM");
    for (int y = 1; y < 26; ++y) {
        const COLORREF expected = y < 10    ? top.At(0, y - 1)
                                  : y >= 16 ? bottom.At(0, y - 16)
                                            : static_cast<COLORREF>(probes::RowColor);
        EXPECT_EQ(shown.At(50, y), expected) << y;
    }
}

TEST_F(HeaderChevronTest, ScrollsByOneItem) {
    Click(Chevron::cbRight);
    Click(Chevron::cbRight);
    EXPECT_EQ(First(), 2);
    Click(Chevron::cbLeft);
    EXPECT_EQ(First(), 1);
}

TEST_F(HeaderChevronTest, APressOnADisabledButtonDoesNothing) {
    Click(Chevron::cbLeft);
    EXPECT_EQ(First(), 0);
    Header->ScrollBy(9);
    Click(Chevron::cbRight);
    EXPECT_EQ(First(), 9);
}

TEST_F(HeaderChevronTest, WithCtrlScrollsToTheEndsInOneStep) {
    CtrlClick(Chevron::cbRight);
    EXPECT_EQ(First(), 4);
    CtrlClick(Chevron::cbLeft);
    EXPECT_EQ(First(), 0);
}

TEST_F(HeaderChevronTest, APressOutsideTheButtonsDoesNothing) {
    TNotingMenu menu(nullptr);
    Header->SetChevronDropDown(&menu);
    Input.ClickAt(FChevron->GetHandle(), 17, 10);
    Input.ClickAt(FChevron->GetHandle(), 40, 18);
    Input.ClickAt(FChevron->GetHandle(), 50, 10);
    EXPECT_EQ(First(), 0);
    EXPECT_TRUE(menu.Places.empty());
}

TEST_F(HeaderChevronTest, OpensTheMenuAtThePointer) {
    TNotingMenu menu(nullptr);
    Header->SetChevronDropDown(&menu);
    Click(Chevron::cbDropDown);
    const POINT pointer = Input.Position();
    ASSERT_EQ(menu.Places.size(), 1u);
    EXPECT_EQ(menu.Places[0], TPoint(pointer.x, pointer.y));
}

TEST_F(HeaderChevronTest, WithoutAMenuTheDropDownButtonDoesNothing) {
    Click(Chevron::cbDropDown);
    EXPECT_EQ(First(), 0);
    EXPECT_TRUE(Header->GetChevronVisible());
}

TEST_F(HeaderChevronTest, RaisesTheMouseEventsAfterItsOwnWork) {
    int firstAtEvent = -1;
    FChevron->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) { firstAtEvent = First(); };
    Click(Chevron::cbRight);
    EXPECT_EQ(firstAtEvent, 1);
}

TEST_F(HeaderChevronTest, LetsItsOwnerPaintOverIt) {
    FChevron->OnFFPaint = [](TObject*, TBitmap* buffer) { buffer->GetCanvas().SetPixel(25, 10, clRed); };
    FChevron->Refresh();
    EXPECT_EQ(test::ReadClient(FChevron->GetHandle()).At(25, 10), COLORREF{clRed});
}

TEST_F(HeaderChevronTest, MayGoWithItsControlInTheMenusEvent) {
    class TFreeingMenu : public TPopupMenu {
    public:
        using TPopupMenu::TPopupMenu;
        void Popup(int, int) override { Action(); }
        std::function<void()> Action;
    } menu(nullptr);
    menu.Action = [&] {
        delete Header;
        Header = nullptr;
    };
    Header->SetChevronDropDown(&menu);
    Click(Chevron::cbDropDown);
    EXPECT_EQ(Header, nullptr);
}

}  // namespace
}  // namespace qv7skin
