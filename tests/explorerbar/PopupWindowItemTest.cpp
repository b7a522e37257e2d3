#include "explorerbar/items/ExplorerItemWithPopupWindow.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/explorerbar/ExplorerBarFixture.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;
using test::PumpAll;

class ProbedWindow : public TQV7SkinExplorerItemPopupWindow {
public:
    using TQV7SkinExplorerItemPopupWindow::TQV7SkinExplorerItemPopupWindow;
    [[nodiscard]] bool GetLocked() const override { return FLocked; }
    void SetLocked(bool Value) override { FLocked = Value; }

private:
    bool FLocked = false;
};

class PopupWindowItem : public ExplorerBarTest {
protected:
    void SetUp() override {
        ExplorerBarTest::SetUp();
        Fill(1, 1);
        FWindow = new ProbedWindow(&Form());
        FWindow->SetBounds(0, 0, 80, 60);
        FItem = new TQV7SkinExplorerItemWithPopupWindow(FWindow);
        FItem->SetCaption(L"Mehr");
        AddTo(0, FItem);
        PumpAll();
    }
    ProbedWindow& Window() { return *FWindow; }
    TQV7SkinExplorerItemWithPopupWindow& PopupItem() { return *FItem; }

private:
    ProbedWindow* FWindow = nullptr;
    TQV7SkinExplorerItemWithPopupWindow* FItem = nullptr;
};

TEST_F(PopupWindowItem, TheMouseOpensItsWindowBelowIt) {
    EXPECT_EQ(Window().GetResizeDirection(), (TPopupResizeDirections{rdLeft, rdBottom}));
    MoveTo(PopupItem());
    EXPECT_TRUE(Window().GetVisible());
    const TRect place = Bar().ClipRectToClient(PopupItem());
    EXPECT_EQ(Window().GetBoundsRect().TopLeft(), Bar().ClientToScreen({0, place.Bottom - 2}));
    EXPECT_EQ(Window().GetWidth(), Bar().GetWidth());
    EXPECT_EQ(Window().GetAttachedTo(), &Form());
}

TEST_F(PopupWindowItem, TheWindowStaysWhileTheMouseIsOnIt) {
    MoveTo(PopupItem());
    Input.MoveTo(Window().GetHandle(), 40, 30);
    EXPECT_TRUE(Window().GetVisible());
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return !Window().GetVisible(); }));
}

TEST_F(PopupWindowItem, ALockedWindowStays) {
    PopupItem().SetWindowLocked(true);
    EXPECT_TRUE(PopupItem().GetWindowLocked());
    MoveTo(PopupItem());
    Input.MoveTo(Window().GetHandle(), 40, 30);
    Input.MoveAway();
    PumpAll();
    EXPECT_TRUE(Window().GetVisible());
}

TEST_F(PopupWindowItem, ADetachedWindowIsLeftWhereItIs) {
    Window().SetShowBorder(true);
    Window().SetBounds(500, 400, 150, 100);
    MoveTo(PopupItem());
    EXPECT_TRUE(Window().GetVisible());
    EXPECT_EQ(Window().GetBoundsRect().TopLeft(), TPoint(500, 400));
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return Bar().HotObject == nullptr; }));
    EXPECT_TRUE(Window().GetVisible());
    MoveTo(PopupItem());
    MoveTo(Item(0, 0));
    EXPECT_TRUE(Window().GetVisible());
}

TEST_F(PopupWindowItem, TheMouseMayGoFromTheWindowBackToTheItem) {
    MoveTo(PopupItem());
    const HWND window = Window().GetHandle();
    Input.MoveTo(window, 40, 30);
    MoveTo(PopupItem());
    PumpAll();
    EXPECT_TRUE(Window().GetVisible());
    EXPECT_EQ(Window().GetHandle(), window) << "it is not shown once more";
    EXPECT_EQ(Bar().HotObject, &PopupItem());
}

TEST_F(PopupWindowItem, TheWindowStaysWhileItsItemIsTheHotOne) {
    MoveTo(PopupItem());
    ::SetCursorPos(900, 700);
    // The bar has not heard of it yet.
    ASSERT_EQ(Bar().HotObject, &PopupItem());
    Window().OnLeaveWindow(&Window());
    EXPECT_TRUE(Window().GetVisible());
    EXPECT_TRUE(test::PumpUntil([&] { return !Window().GetVisible(); }));
}

TEST_F(PopupWindowItem, TheMouseOnAWindowAboveTheItemIsNotOnTheItem) {
    MoveTo(PopupItem());
    Input.MoveTo(Window().GetHandle(), 40, 30);
    const POINT place = OnScreen(PopupItem().ClipRect());
    const HWND above =
        ::CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"STATIC", L"", WS_POPUP | WS_VISIBLE | SS_NOTIFY,
                          place.x - 8, place.y - 4, 16, 8, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(Window().GetVisible());
    Input.MoveTo(place);
    EXPECT_TRUE(test::PumpUntil([&] { return !Window().GetVisible(); }));
    ::DestroyWindow(above);
}

TEST_F(PopupWindowItem, LeavingTheItemHidesItsWindowAfterTheEvent) {
    MoveTo(PopupItem());
    bool shownThen = false;
    PopupItem().OnLeave = TNotifyEvent([&](TObject*) { shownThen = Window().GetVisible(); });
    MoveTo(Item(0, 0));
    EXPECT_TRUE(shownThen);
    EXPECT_FALSE(Window().GetVisible());
}

TEST_F(PopupWindowItem, AHandlerMayLockTheWindowAsTheMouseLeaves) {
    MoveTo(PopupItem());
    PopupItem().OnLeave = TNotifyEvent([&](TObject*) { PopupItem().SetWindowLocked(true); });
    MoveTo(Item(0, 0));
    EXPECT_TRUE(Window().GetVisible());
}

TEST_F(PopupWindowItem, MayBeFreedAsTheMouseComesAndGoes) {
    PopupItem().OnEnter = TNotifyEvent([&](TObject*) { Group(0).GetItems().Delete(1); });
    MoveTo(PopupItem());
    EXPECT_EQ(Group(0).GetItems().GetCount(), 1);
    EXPECT_FALSE(Window().GetVisible());
    EXPECT_FALSE(Window().OnLeaveWindow);
    auto& second = AddTo(0, new TQV7SkinExplorerItemWithPopupWindow(&Window()));
    second.SetCaption(L"Mehr");
    MoveTo(Item(0, 0));
    MoveTo(second);
    EXPECT_TRUE(Window().GetVisible());
    second.OnLeave = TNotifyEvent([&](TObject*) { Group(0).GetItems().Delete(1); });
    MoveTo(Item(0, 0));
    EXPECT_EQ(Group(0).GetItems().GetCount(), 1);
    EXPECT_FALSE(Window().OnLeaveWindow) << "nobody is told any more";
}

TEST_F(PopupWindowItem, ReturnOpensItsWindowInsteadOfClicking) {
    int clicks = 0;
    PopupItem().OnClick = [&](TObject*) { ++clicks; };
    PopupItem().ReturnPressed();
    EXPECT_TRUE(Window().GetVisible());
    EXPECT_EQ(clicks, 0);
}

TEST_F(PopupWindowItem, TheReturnKeyOpensTheFocusedOnesWindow) {
    int clicks = 0;
    PopupItem().OnClick = [&](TObject*) { ++clicks; };
    Bar().SetFocus();
    // Past the header and the link.
    Input.KeyPress(VK_TAB);
    Input.KeyPress(VK_TAB);
    ASSERT_TRUE(PopupItem().IsFocused());
    Input.KeyPress(VK_RETURN);
    EXPECT_TRUE(Window().GetVisible());
    EXPECT_EQ(clicks, 0);
}

TEST_F(PopupWindowItem, InAScrolledBarItsWindowStandsLowerByTheScrollPosition) {
    Bar().BeginUpdate();
    for (int i = 0; i < 40; ++i)
        AddTo(0, new TLink(L"Link", L""));
    Bar().EndUpdate();
    Bar().GetVertScrollBar().SetPosition(15);
    MoveTo(PopupItem());
    const int bottom = PopupItem().ClipRect().Bottom;
    EXPECT_EQ(Window().GetBoundsRect().TopLeft(), Bar().ClientToScreen({0, bottom + 15 - 2}));
}

TEST_F(PopupWindowItem, TheWindowIsAttachedToTheFormOfTheBar) {
    ProbedWindow loose(nullptr);
    ASSERT_EQ(loose.GetAttachedTo(), nullptr);
    PopupItem().SetPopupWindow(&loose);
    MoveTo(PopupItem());
    EXPECT_TRUE(loose.GetVisible());
    EXPECT_EQ(loose.GetAttachedTo(), &Form());
    EXPECT_EQ(::GetWindow(loose.GetHandle(), GW_OWNER), Form().GetHandle());
    PopupItem().SetPopupWindow(nullptr);
}

TEST_F(PopupWindowItem, AWindowTellsThatItWasLeftOnlyWhileItIsAttached) {
    std::vector<TObject*> senders;
    Window().SetBounds(400, 300, 150, 100);
    Window().Show();
    Window().OnLeaveWindow = [&](TObject* sender) { senders.push_back(sender); };
    Input.MoveTo(Window().GetHandle(), 40, 30);
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return !Window().GetMouseInClient(); }));
    EXPECT_EQ(senders, std::vector<TObject*>{&Window()});
    Window().SetShowBorder(true);
    PumpAll();
    Input.MoveTo(Window().GetHandle(), 40, 30);
    EXPECT_TRUE(Window().GetMouseInClient());
    Input.MoveAway();
    EXPECT_TRUE(test::PumpUntil([&] { return !Window().GetMouseInClient(); }));
    EXPECT_EQ(senders.size(), 1U);
    Window().OnLeaveWindow.Clear();
}

TEST_F(PopupWindowItem, TakesOnlyWindowsOfItsClass) {
    try {
        PopupItem().SetPopupWindow(&Form());
        FAIL() << "a form of another class was taken";
    } catch (const EInvalidOperation& error) {
        EXPECT_STREQ(error.what(), "TForm found but TQV7SkinExplorerItemPopupWindow expected");
    }
    EXPECT_EQ(PopupItem().GetPopupWindow(), &Window());
    PopupItem().SetPopupWindow(nullptr);
    EXPECT_EQ(PopupItem().GetPopupWindow(), nullptr);
    EXPECT_FALSE(PopupItem().GetWindowLocked());
    MoveTo(PopupItem());
    EXPECT_FALSE(Window().GetVisible());
}

}  // namespace
