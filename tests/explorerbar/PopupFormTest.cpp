#include "tests/explorerbar/PopupFormFixture.h"
#include "tests/support/WindowProbe.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;
using test::PumpAll;

using PopupForm = PopupFormTest;

// --- as designed

TEST_F(PopupForm, BeginsWithItsDefaults) {
    TQV7SkinPopupForm& popup = Popup();
    EXPECT_EQ(popup.GetBorderStyle(), bsNone);
    EXPECT_EQ(popup.GetColor(), 0x00FFFFFFu);
    EXPECT_EQ(popup.GetFont().GetColor(), 0x00000000u);
    EXPECT_EQ(popup.GetFont().GetName(), L"Tahoma");
    EXPECT_EQ(popup.GetFont().GetHeight(), -11);
    EXPECT_TRUE(popup.GetDoubleBuffered());
    EXPECT_TRUE(popup.GetKeyPreview());
    EXPECT_TRUE(popup.GetCloseOnEscape());
    EXPECT_EQ(popup.GetResizeDirection(), (TPopupResizeDirections{rdRight, rdBottom}));
    EXPECT_FALSE(popup.GetShowPopupWithMargin());
    EXPECT_EQ(popup.GetPopupMargin(), 3);
    EXPECT_EQ(popup.GetAttachedTo(), &Form());
    EXPECT_EQ(popup.GetClientWidth(), 282);
    EXPECT_EQ(popup.GetClientHeight(), 135);
}

TEST_F(PopupForm, TheBaseHasItsButtonsAsDesigned) {
    TfrmQV7SkinPopupFormBase base(nullptr);
    EXPECT_EQ(base.GetAttachedTo(), nullptr);
    EXPECT_EQ(base.GetColor(), clBtnFace);
    EXPECT_EQ(base.GetPosition(), poDesigned);
    EXPECT_EQ(base.imgCloseWindow->GetBoundsRect(), TRect::OfSize(256, 8, 14, 14));
    EXPECT_EQ(base.imgExcludeWindow->GetBoundsRect(), TRect::OfSize(236, 8, 14, 14));
    EXPECT_EQ(base.imgIncludeWindow->GetBoundsRect(), TRect::OfSize(256, 8, 14, 14));
    EXPECT_TRUE(base.imgCloseWindow->GetVisible());
    EXPECT_TRUE(base.imgExcludeWindow->GetVisible());
    EXPECT_FALSE(base.imgIncludeWindow->GetVisible());
    for (const TImage* image : {base.imgCloseWindow, base.imgExcludeWindow, base.imgIncludeWindow}) {
        EXPECT_EQ(image->GetPicture().GetWidth(), 14);
        EXPECT_EQ(image->GetPicture().GetHeight(), 14);
        EXPECT_TRUE(image->GetTransparent());
        EXPECT_TRUE(image->GetAutoSize());
        EXPECT_EQ(image->GetCursor(), crHandPoint);
        EXPECT_EQ(image->GetAnchors(), (TAnchors{akTop, akRight}));
    }
}

TEST_F(PopupForm, PutsItsButtonsInTheCorner) {
    TQV7SkinPopupForm& popup = Popup();
    EXPECT_EQ(popup.imgCloseWindow->GetBoundsRect().TopLeft(), TPoint(popup.GetWidth() - 20, 4));
    EXPECT_EQ(popup.imgIncludeWindow->GetBoundsRect().TopLeft(), TPoint(popup.GetWidth() - 22, 4));
    EXPECT_EQ(popup.imgExcludeWindow->GetBoundsRect().TopLeft(), TPoint(popup.GetWidth() - 40, 4));
}

TEST_F(PopupForm, EachNewWindowHidesTheButtons) {
    Open();
    EXPECT_FALSE(Popup().GetShowCloseButton());
    EXPECT_FALSE(Popup().imgExcludeWindow->GetVisible());
    Popup().ShowAllButtons();
    EXPECT_TRUE(Popup().GetShowCloseButton());
    Popup().RecreateWnd();
    EXPECT_FALSE(Popup().GetShowCloseButton());
}

TEST_F(PopupForm, TheSetterOfBothButtonsAlwaysHidesThem) {
    TQV7SkinPopupForm& popup = Popup();
    popup.imgExcludeWindow->SetVisible(true);
    EXPECT_FALSE(popup.GetShowIncludeExcludeButtons());
    popup.imgIncludeWindow->SetVisible(true);
    EXPECT_TRUE(popup.GetShowIncludeExcludeButtons());
    popup.SetShowIncludeExcludeButtons(true);
    EXPECT_FALSE(popup.imgExcludeWindow->GetVisible());
    EXPECT_FALSE(popup.imgIncludeWindow->GetVisible());
    popup.imgIncludeWindow->SetVisible(true);
    popup.ShowAllButtons();
    EXPECT_TRUE(popup.GetShowCloseButton());
    EXPECT_FALSE(popup.imgIncludeWindow->GetVisible());
    popup.HideAllButtons();
    EXPECT_FALSE(popup.GetShowCloseButton());
}

// --- the window

TEST_F(PopupForm, ItsWindowIsAPopupOfTheAttachedForm) {
    Open();
    const HWND window = Popup().GetHandle();
    EXPECT_EQ(::GetWindowLongW(window, GWL_STYLE) & 0x80880000, static_cast<LONG>(0x80880000));
    EXPECT_EQ(::GetWindow(window, GW_OWNER), Form().GetHandle());
    Popup().SetAttachedTo(&Other());
    EXPECT_NE(Popup().GetHandle(), window);
    EXPECT_EQ(::GetWindow(Popup().GetHandle(), GW_OWNER), Other().GetHandle());
    const HWND attached = Popup().GetHandle();
    Popup().SetAttachedTo(&Other());
    EXPECT_NE(Popup().GetHandle(), attached) << "anew each time";
}

TEST_F(PopupForm, InTheDesignerItIsAWindowOfItsOwnWithAllButtons) {
    TfrmQV7SkinPopupFormBase designed(nullptr);
    designed.SetDesigning(true);
    designed.SetAttachedTo(&Form());
    designed.HandleNeeded();
    EXPECT_NE(::GetWindow(designed.GetHandle(), GW_OWNER), Form().GetHandle());
    EXPECT_TRUE(designed.imgCloseWindow->GetVisible());
    EXPECT_TRUE(designed.imgExcludeWindow->GetVisible());
}

TEST_F(PopupForm, LosesItsAttachmentWithTheForm) {
    TQV7SkinPopupForm popup(nullptr);
    auto other = std::make_unique<TForm>(nullptr);
    popup.SetAttachedTo(other.get());
    popup.HandleNeeded();
    other.reset();
    EXPECT_EQ(popup.GetAttachedTo(), nullptr);
    EXPECT_TRUE(popup.HandleAllocated());
}

TEST_F(PopupForm, TheBorderKeepsTheClientHeight) {
    Open();
    EXPECT_FALSE(Popup().GetShowBorder());
    Popup().SetShowBorder(true);
    EXPECT_EQ(Popup().GetBorderStyle(), bsSizeToolWin);
    EXPECT_EQ(Popup().GetClientHeight(), 135);
    EXPECT_TRUE(::GetWindowLongW(Popup().GetHandle(), GWL_STYLE) & WS_THICKFRAME);
    Popup().SetShowBorder(false);
    EXPECT_EQ(Popup().GetBorderStyle(), bsNone);
    EXPECT_EQ(Popup().GetClientHeight(), 135);
}

// --- place

TEST_F(PopupForm, TakesTheWidthOfAWiderControl) {
    Popup().SetWidth(50);
    Open();
    EXPECT_EQ(Popup().GetBoundsRect(),
              TRect::OfSize(AnchorBelow().X, AnchorBelow().Y, 120, Popup().GetHeight()));
}

TEST_F(PopupForm, KeepsItsOwnGreaterWidth) {
    const int width = Popup().GetWidth();
    ASSERT_GT(width, Anchor().GetWidth());
    Open();
    EXPECT_EQ(Popup().GetWidth(), width);
    EXPECT_EQ(Popup().GetLeft(), AnchorBelow().X);
}

TEST_F(PopupForm, OpensInsetAndOnePixelHigherWithAMargin) {
    Popup().SetWidth(50);
    Popup().SetShowPopupWithMargin(true);
    Popup().SetPopupMargin(7);
    Open();
    EXPECT_EQ(Popup().GetBoundsRect(),
              TRect::OfSize(AnchorBelow().X + 7, AnchorBelow().Y - 1, 120 - 14, Popup().GetHeight()));
}

TEST_F(PopupForm, OpensAtAPointOfTheControl) {
    Popup().ShowAtControl(&Anchor(), TPoint(5, -4));
    const TPoint place = Anchor().ClientToScreen({5, -4});
    EXPECT_EQ(Popup().GetBoundsRect().TopLeft(), place);
    Popup().ShowAtControl(&Anchor(), 9, 11);
    EXPECT_EQ(Popup().GetBoundsRect().TopLeft(), Anchor().ClientToScreen({9, 11}));
}

TEST_F(PopupForm, TheFormOfTheControlKeepsTheActiveCaption) {
    Form();
    test::WindowProbe probe(Form().GetHandle());
    Open();
    EXPECT_TRUE(Popup().GetActive());
    std::vector<WPARAM> states;
    for (const test::SeenMessage& message : probe.Messages())
        if (message.Message == WM_NCACTIVATE) states.push_back(message.WParam);
    ASSERT_FALSE(states.empty());
    EXPECT_EQ(states.back(), 1u);
}

// --- closing

TEST_F(PopupForm, EscapeClosesIt) {
    Open();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Popup().GetVisible());
}

TEST_F(PopupForm, EscapeInAControlOfItClosesIt) {
    auto* edit = Make<TEdit>(TRect::OfSize(10, 40, 80, 21), &Popup());
    Open();
    edit->SetFocus();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Popup().GetVisible());
}

TEST_F(PopupForm, EscapeDoesNothingWithoutCloseOnEscape) {
    Popup().SetCloseOnEscape(false);
    Open();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_TRUE(Popup().GetVisible());
}

TEST_F(PopupForm, AHandlerMayTakeTheEscapeKey) {
    Popup().OnKeyPress = [](TObject*, wchar_t& key) { key = 0; };
    Open();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_TRUE(Popup().GetVisible());
}

TEST_F(PopupForm, TheCloseButtonClosesIt) {
    Open();
    Popup().ShowAllButtons();
    PumpAll();
    const TPoint at = Popup().imgCloseWindow->ClientToParent({7, 7});
    Input.ClickAt(Popup().GetHandle(), at.X, at.Y);
    EXPECT_FALSE(Popup().GetVisible());
}

TEST_F(PopupForm, AClickOnAnotherFormClosesIt) {
    Other();
    Open();
    Input.ClickAt(Other().GetHandle(), 50, 50);
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_TRUE(Other().GetActive());
}

TEST_F(PopupForm, AClickOnItsOwnFormClosesIt) {
    Open();
    Input.ClickAt(Form().GetHandle(), 390, 290);
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_TRUE(Form().GetActive());
}

TEST_F(PopupForm, ADetachedOneStaysOpenWhenAnotherFormBecomesActive) {
    Other();
    Open();
    Popup().SetShowBorder(true);
    PumpAll();
    Input.ClickAt(Other().GetHandle(), 50, 50);
    EXPECT_TRUE(Popup().GetVisible());
    EXPECT_FALSE(Popup().GetActive());
}

TEST_F(PopupForm, AClosedOneGivesTheActivationBack) {
    Open();
    Popup().Close();
    PumpAll();
    EXPECT_EQ(::GetActiveWindow(), Form().GetHandle());
}

TEST_F(PopupForm, ARefusedClosingKeepsItOpen) {
    Popup().OnCloseQuery = [](TObject*, bool& canClose) { canClose = false; };
    Open();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_TRUE(Popup().GetVisible());
    Popup().OnCloseQuery.Clear();
}

TEST_F(PopupForm, MayBeFreedByItsClosing) {
    Open();
    bool freed = false;
    Popup().OnClose = [](TObject*, TCloseAction& action) { action = caFree; };
    Popup().OnDestroy = [&](TObject*) { freed = true; };
    Input.KeyPress(VK_ESCAPE);
    EXPECT_TRUE(test::PumpUntil([&] { return freed; }));
}

TEST_F(PopupForm, TheApplicationClosesItOnlyWhereThatIsBound) {
    Open();
    EXPECT_FALSE(Popup().GetApplicationEvents().OnDeactivate);
    Popup().GetApplicationEvents().OnDeactivate = {&Popup(), &TQV7SkinPopupForm::ApplicationEventsDeactivate};
    ::SendMessageW(Popup().GetHandle(), WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_FALSE(Popup().GetVisible());
    ::SendMessageW(Form().GetHandle(), WM_ACTIVATEAPP, TRUE, 0);
}

TEST_F(PopupForm, CloseFormsAttachedToClosesThoseOfOneForm) {
    Open();
    auto* foreign = new TQV7SkinPopupForm(&Other());
    foreign->SetShowBorder(true);
    foreign->ShowAtControl(&Anchor());
    Popup().SetShowBorder(true);
    Popup().Show();
    PumpAll();
    CloseFormsAttachedTo(&Form());
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_TRUE(foreign->GetVisible());
    CloseFormsAttachedTo(&Other());
    EXPECT_FALSE(foreign->GetVisible());
}

TEST_F(PopupForm, CloseFormsAttachedToLeavesThoseThatDoNotShow) {
    int closings = 0;
    Popup().OnClose = [&](TObject*, TCloseAction&) { ++closings; };
    CloseFormsAttachedTo(&Form());
    EXPECT_EQ(closings, 0);
    Open();
    CloseFormsAttachedTo(&Form());
    EXPECT_EQ(closings, 1);
    Popup().OnClose.Clear();
}

TEST_F(PopupForm, APressGivesTheMouseBackAfterItsEvent) {
    Open();
    HWND during = nullptr;
    Popup().OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) { during = ::GetCapture(); };
    Input.MoveTo(Popup().GetHandle(), 50, 50);
    Input.Press();
    EXPECT_EQ(during, Popup().GetHandle());
    EXPECT_EQ(::GetCapture(), nullptr);
    Input.Release();
}

// --- in and out

TEST_F(PopupForm, TheExcludeAndIncludeButtonsTellAfterTheBorderChanged) {
    Open();
    std::vector<bool> excluded;
    std::vector<bool> included;
    Popup().OnExcludeWindowClick = [&](TObject*) { excluded.push_back(Popup().GetShowBorder()); };
    Popup().OnIncludeWindowClick = [&](TObject*) { included.push_back(Popup().GetShowBorder()); };
    Popup().imgExcludeWindow->SetVisible(true);
    PumpAll();
    const TPoint at = Popup().imgExcludeWindow->ClientToParent({7, 7});
    Input.ClickAt(Popup().GetHandle(), at.X, at.Y);
    EXPECT_EQ(excluded, std::vector<bool>{true});
    EXPECT_TRUE(Popup().GetVisible());
    Popup().imgIncludeWindow->SetVisible(true);
    PumpAll();
    const TPoint in = Popup().imgIncludeWindow->ClientToParent({7, 7});
    Input.ClickAt(Popup().GetHandle(), in.X, in.Y);
    EXPECT_EQ(included, std::vector<bool>{false});
    EXPECT_TRUE(Popup().GetVisible());
}

TEST_F(PopupForm, AThousandRoundsLeaveNothingBehind) {
    for (int round = 0; round < 1000; ++round) {
        Popup().ShowAtControl(&Anchor());
        Popup().Close();
    }
    PumpAll();
    EXPECT_FALSE(Popup().GetVisible());
}

TEST_F(PopupForm, ItsFormMayGoWhileItIsOpen) {
    auto owner = std::make_unique<TForm>(nullptr);
    owner->SetBounds(300, 300, 100, 100);
    owner->Show();
    auto* popup = new TQV7SkinPopupForm(owner.get());
    popup->ShowAtControl(owner.get());
    PumpAll();
    EXPECT_TRUE(popup->GetVisible());
    owner.reset();
    PumpAll();
    CloseFormsAttachedTo(nullptr);
}

}  // namespace
