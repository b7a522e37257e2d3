#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Label.h"
#include "tests/inputs/InputsTest.h"
#include "tests/support/FreedMemory.h"
#include "tests/support/WindowProbe.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;
using test::PumpAll;

class CustomDropDown : public InputsTest {
protected:
    TQV7SkinComboBoxCustomDropDown& Drop() {
        if (!FDrop) {
            FDrop = Make<TQV7SkinComboBoxCustomDropDown>(TRect::OfSize(10, 10, 120, 25));
            FDrop->CreateParts();
            FDrop->OnDropDown = [this](TObject* sender) {
                EXPECT_EQ(sender, FDrop);
                Told += L"open ";
            };
            FDrop->OnCloseUp = [this](TObject* sender) {
                EXPECT_EQ(sender, FDrop);
                Told += L"close ";
            };
        }
        return *FDrop;
    }
    TQV7SkinPopupForm& Popup() {
        if (!FPopup) {
            FPopup = new TQV7SkinPopupForm(&Form());
            FPopup->SetBounds(0, 0, 60, 80);
            Drop().SetDropDownForm(FPopup);
        }
        return *FPopup;
    }
    void Click() { Input.ClickAt(Form().GetHandle(), 10 + 40, 10 + 12); }
    /// True while the arrow points up.
    bool ArrowIsUp() {
        const test::Pixels shown = Shown(*Drop().GetButton());
        const int x = (17 + 2) / 2 - 5 - 1;
        const int y = shown.Height() / 2;
        const bool up = shown.At(x + 3, y + 1) == 0 && shown.At(x + 5, y - 1) == 0;
        const bool down = shown.At(x + 3, y - 1) == 0 && shown.At(x + 5, y + 1) == 0;
        EXPECT_NE(up, down);
        return up;
    }

    String Told;

private:
    TQV7SkinComboBoxCustomDropDown* FDrop = nullptr;
    TQV7SkinPopupForm* FPopup = nullptr;
};

TEST_F(CustomDropDown, HasItsParts) {
    EXPECT_EQ(Drop().GetRounding(), 4);
    EXPECT_EQ(Drop().GetHeight(), 25);
    EXPECT_EQ(Drop().GetButton()->GetBoundsRect(), TRect::OfSize(120 - 17 - 3, 3, 17, 19));
    EXPECT_EQ(Drop().GetLabel()->GetBoundsRect(), TRect::OfSize(6, 6, 120 - 6 - 17, 13));
    EXPECT_EQ(Drop().GetLabel()->GetEllipsisPosition(), epEndEllipsis);
    EXPECT_EQ(Drop().GetButton()->GetAnchors(), (TAnchors{akTop, akRight, akBottom}));
    EXPECT_EQ(Drop().GetLabel()->GetAnchors(), (TAnchors{akLeft, akTop, akRight}));
    EXPECT_EQ(Drop().GetLabel()->GetColor(), 0x00FFFFFFu);
    EXPECT_EQ(Drop().GetLabel()->GetFont().GetColor(), 0x00000000u);
    EXPECT_EQ(Drop().GetLabel()->GetCursor(), crDefault);
    EXPECT_FALSE(Drop().GetLabel()->GetAutoSize());
    EXPECT_FALSE(Drop().GetDrawButtonLine());
    Drop().SetText(L"Text & mehr");
    EXPECT_EQ(Drop().GetLabel()->GetCaption(), L"Text & mehr");
    EXPECT_EQ(Drop().GetText(), L"Text & mehr");
}

TEST_F(CustomDropDown, HasNoPartsAtDesignTime) {
    TForm designed(nullptr);
    designed.SetDesigning(true);
    auto* drop = new TQV7SkinComboBoxCustomDropDown(&designed);
    drop->SetParent(&designed);
    drop->CreateParts();
    EXPECT_EQ(drop->GetLabel(), nullptr);
    EXPECT_EQ(drop->GetButton(), nullptr);
    drop->SetText(L"x");
    EXPECT_EQ(drop->GetText(), L"x");
    drop->SetDrawButtonLine(true);
    drop->SetDrawButtonLine(false);
    EXPECT_FALSE(drop->GetDrawButtonLine());
}

TEST_F(CustomDropDown, ALineSetBeforeThereIsAButtonStays) {
    auto* drop = Make<TQV7SkinComboBoxCustomDropDown>(TRect::OfSize(10, 60, 120, 25));
    drop->SetDrawButtonLine(true);
    drop->SetDrawButtonLine(false);
    drop->CreateParts();
    EXPECT_TRUE(drop->GetDrawButtonLine());
    const test::Pixels shown = Shown(*drop->GetButton());
    for (int y = 0; y < shown.Height(); ++y)
        EXPECT_EQ(shown.At(0, y), 0x00F0EAE7u) << y;
    drop->SetDrawButtonLine(false);
    EXPECT_EQ(Shown(*drop->GetButton()).Count(0x00F0EAE7), 0);
}

TEST_F(CustomDropDown, AClickOpensTheFormBelowAndAnotherClosesIt) {
    Popup();
    EXPECT_TRUE(Popup().GetShowPopupWithMargin());
    EXPECT_FALSE(ArrowIsUp());
    Click();
    EXPECT_TRUE(Drop().GetDroppedDown());
    EXPECT_TRUE(Popup().GetVisible());
    EXPECT_TRUE(ArrowIsUp());
    const TPoint below = Drop().ClientToScreen({0, 25});
    EXPECT_EQ(Popup().GetBoundsRect(), TRect::OfSize(below.X + 3, below.Y - 1, 114, 80));
    Click();
    EXPECT_FALSE(Drop().GetDroppedDown());
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_FALSE(ArrowIsUp());
    EXPECT_EQ(Told, L"open close ");
    Click();
    EXPECT_TRUE(Popup().GetVisible());
    EXPECT_EQ(Told, L"open close open ");
}

TEST_F(CustomDropDown, EveryPartOpens) {
    Popup();
    for (const TPoint at : {TPoint(20, 22), TPoint(10 + 108, 22), TPoint(12, 12)}) {
        Input.ClickAt(Form().GetHandle(), at.X, at.Y);
        EXPECT_TRUE(Popup().GetVisible());
        Input.KeyPress(VK_ESCAPE);
        EXPECT_FALSE(Popup().GetVisible());
        EXPECT_FALSE(Drop().GetDroppedDown());
        // The pointer was on the control when the form closed: the next click only says so.
        Input.MoveAway();
        Drop().DoButtonMouseUp(nullptr, mbLeft, {}, 0, 0);
        EXPECT_FALSE(Drop().GetDroppedDown());
    }
}

TEST_F(CustomDropDown, EveryButtonOfTheMouseOpens) {
    Popup();
    for (const test::MouseButton button : {test::MouseButton::Right, test::MouseButton::Middle}) {
        Input.ClickAt(Form().GetHandle(), 50, 22, button);
        EXPECT_TRUE(Popup().GetVisible());
        Input.MoveAway();
        Input.KeyPress(VK_ESCAPE);
    }
}

TEST_F(CustomDropDown, AFormThatClosedUnderTheMouseTakesOneClick) {
    Popup();
    Click();
    Input.KeyPress(VK_ESCAPE);
    Click();
    EXPECT_FALSE(Popup().GetVisible());
    Click();
    EXPECT_TRUE(Popup().GetVisible());
    // Just outside: the next click opens.
    Input.MoveTo(Form().GetHandle(), 10 + 120, 10 + 12);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Popup().GetVisible());
    Click();
    EXPECT_TRUE(Popup().GetVisible());
}

TEST_F(CustomDropDown, TellsBeforeTheFormShowsAndBeforeItCloses) {
    Popup();
    std::vector<bool> visible;
    Drop().OnDropDown = Drop().OnCloseUp = [&](TObject*) { visible.push_back(Popup().GetVisible()); };
    Drop().SetDroppedDown(true);
    Drop().SetDroppedDown(false);
    PumpAll();
    EXPECT_EQ(visible, (std::vector<bool>{false, true}));
    // A form that closes while it is no drop-down tells nobody, and keeps its way to close.
    TCloseAction action = caMinimize;
    Drop().DoDropDownFormClose(nullptr, action);
    EXPECT_EQ(visible.size(), 2u);
    EXPECT_EQ(action, caMinimize);
}

TEST_F(CustomDropDown, ATextIsPaintedAtOnce) {
    Shown(Drop());
    const test::WindowProbe messages(Drop().GetHandle());
    Drop().SetText(L"Neu");
    EXPECT_TRUE(messages.Saw(WM_PAINT));
    EXPECT_GT(test::ReadWindow(Drop().GetHandle()).Count(0), 20);
}

TEST_F(CustomDropDown, ANewSettingOfTheLineIsPainted) {
    Shown(Drop());
    Drop().SetDrawButtonLine(false);
    EXPECT_FALSE(::GetUpdateRect(Drop().GetHandle(), nullptr, FALSE));
    Drop().SetDrawButtonLine(true);
    EXPECT_TRUE(::GetUpdateRect(Drop().GetHandle(), nullptr, FALSE));
}

TEST_F(CustomDropDown, AnErrorBeforeOpeningLeavesItClosed) {
    Popup();
    Drop().OnDropDown = [](TObject*) { throw Exception(L"nicht jetzt"); };
    Click();
    EXPECT_EQ(std::exchange(Errors, {}).size(), 1u);
    EXPECT_FALSE(Drop().GetDroppedDown());
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_FALSE(ArrowIsUp());
    Drop().OnDropDown.Clear();
    Click();
    EXPECT_TRUE(Popup().GetVisible());
}

TEST_F(CustomDropDown, AnErrorAtClosingClosesAllTheSame) {
    Popup();
    Drop().OnCloseUp = [](TObject*) { throw Exception(L"nicht jetzt"); };
    Click();
    EXPECT_TRUE(ArrowIsUp());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(std::exchange(Errors, {}).size(), 1u);
    EXPECT_FALSE(Drop().GetDroppedDown());
    EXPECT_FALSE(ArrowIsUp());
    Input.MoveAway();
    Drop().DoButtonMouseUp(nullptr, mbLeft, {}, 0, 0);
    Popup().Close();
    Errors.clear();
    Drop().SetDroppedDown(true);
    EXPECT_THROW(Drop().SetDroppedDown(false), Exception);
    EXPECT_TRUE(test::PumpUntil([&] { return !Popup().GetVisible(); }));
}

TEST_F(CustomDropDown, ClosesWhenAnotherFormBecomesActive) {
    Other();
    Popup();
    Click();
    Input.ClickAt(Other().GetHandle(), 50, 50);
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_FALSE(Drop().GetDroppedDown());
    EXPECT_EQ(Told, L"open close ");
    Form().SetFocus();
    Click();
    EXPECT_TRUE(Popup().GetVisible());
}

TEST_F(CustomDropDown, ClosingByCodeTellsOnce) {
    Popup();
    Drop().SetDroppedDown(true);
    Drop().SetDroppedDown(true);
    Drop().SetDroppedDown(false);
    EXPECT_EQ(Told, L"open close ");
    EXPECT_TRUE(Popup().GetVisible());
    PumpAll();
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_EQ(Told, L"open close ");
}

TEST_F(CustomDropDown, WithoutAFormClicksToggleAllTheSame) {
    Drop();
    Click();
    EXPECT_TRUE(Drop().GetDroppedDown());
    EXPECT_TRUE(ArrowIsUp());
    Click();
    EXPECT_FALSE(Drop().GetDroppedDown());
    EXPECT_FALSE(ArrowIsUp());
    EXPECT_EQ(Told, L"open close ");
}

TEST_F(CustomDropDown, ADetachedFormIsNoDropDown) {
    Popup();
    Click();
    Popup().imgExcludeWindowClick(nullptr);
    PumpAll();
    EXPECT_FALSE(Drop().GetDroppedDown());
    EXPECT_FALSE(ArrowIsUp());
    EXPECT_TRUE(Popup().GetVisible());
    EXPECT_EQ(Told, L"open ");
    Popup().imgIncludeWindowClick(nullptr);
    PumpAll();
    EXPECT_TRUE(Drop().GetDroppedDown());
    EXPECT_TRUE(ArrowIsUp());
    EXPECT_EQ(Popup().GetBoundsRect().TopLeft(), TPoint(113, 134));
    EXPECT_EQ(Told, L"open ");
}

TEST_F(CustomDropDown, AReleaseOverADetachedFormLeavesItAWindow) {
    Popup().SetShowBorder(true);
    Click();
    EXPECT_FALSE(Drop().GetDroppedDown());
    EXPECT_TRUE(Popup().GetVisible());
    EXPECT_FALSE(ArrowIsUp());
}

TEST_F(CustomDropDown, KeysOpenAndCloseWithTheFocusOnIt) {
    Popup();
    Drop().SetTabStop(true);
    Drop().SetFocus();
    Input.KeyPress(VK_DOWN);
    Input.KeyPress(VK_UP);
    EXPECT_FALSE(Drop().GetDroppedDown());
    Input.KeyPress(VK_F4);
    EXPECT_TRUE(Popup().GetVisible());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Popup().GetVisible());
    Input.Chord({VK_MENU}, VK_DOWN);
    EXPECT_TRUE(Popup().GetVisible());
    Input.KeyPress(VK_ESCAPE);
    Input.Chord({VK_MENU}, VK_UP);
    EXPECT_TRUE(Popup().GetVisible());
}

TEST_F(CustomDropDown, DisablingEngravesTheArrow) {
    Drop().SetEnabled(false);
    const test::Pixels shown = Shown(*Drop().GetButton());
    EXPECT_EQ(shown.Count(0), 0);
    EXPECT_GT(shown.Count(0x00808080), 3);
    Drop().SetEnabled(true);
    EXPECT_GT(Shown(*Drop().GetButton()).Count(0), 3);
}

TEST_F(CustomDropDown, DisablingTurnsTheTextGrey) {
    Drop().SetText(L"Text");
    Drop().SetEnabled(false);
    EXPECT_EQ(Shown(Drop()).Count(0), 0);
    EXPECT_GT(Shown(Drop()).Count(ColorToRGB(clGrayText)), 5);
    Drop().SetEnabled(true);
    EXPECT_GT(Shown(Drop()).Count(0), 5);
}

TEST_F(CustomDropDown, ALongTextEndsInDotsBeforeTheButton) {
    Drop().SetText(L"Ein Text, der viel laenger ist als das Feld breit");
    const test::Pixels dotted = Shown(Drop());
    Drop().SetText(L"Ein Text, der viel laenger ist als das Feld breit ist");
    EXPECT_TRUE(test::SamePixels(Shown(Drop()), dotted));
    Drop().GetLabel()->SetEllipsisPosition(epNone);
    EXPECT_FALSE(test::SamePixels(Shown(Drop()), dotted));
    // The button lies above the text.
    EXPECT_EQ(::GetParent(Drop().GetButton()->GetHandle()), Drop().GetHandle());
    const int left = Drop().GetButton()->GetLeft();
    for (int y = 3; y < 22; ++y)
        EXPECT_EQ(dotted.At(left, y), 0x00FFFFFFu) << y;
}

TEST_F(CustomDropDown, AnotherFormTakesThePlaceOfTheFirst) {
    TQV7SkinPopupForm& first = Popup();
    TQV7SkinPopupForm second(nullptr);
    Drop().SetDropDownForm(&second);
    EXPECT_FALSE(first.OnClose);
    EXPECT_FALSE(first.OnIncludeWindowClick);
    EXPECT_FALSE(first.OnExcludeWindowClick);
    EXPECT_TRUE(second.OnClose);
    Drop().SetDropDownForm(nullptr);
    EXPECT_FALSE(second.OnClose);
}

TEST_F(CustomDropDown, MayGoWithItsFormOpen) {
    Popup();
    Click();
    EXPECT_TRUE(Popup().GetVisible());
    Drop().Free();
    PumpAll();
    EXPECT_TRUE(Popup().GetVisible());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Popup().GetVisible());
}

TEST_F(CustomDropDown, TheFormMayGoWhileItIsOpen) {
    Popup();
    Click();
    Popup().Free();
    EXPECT_EQ(Drop().GetDropDownForm(), nullptr);
    EXPECT_FALSE(Drop().GetDroppedDown());
}

TEST_F(CustomDropDown, MayBeFreedByOpening) {
    const test::FreedMemory freed;
    Popup();
    Drop().OnDropDown = [](TObject* sender) { delete static_cast<TQV7SkinComboBoxCustomDropDown*>(sender); };
    Click();
    EXPECT_EQ(Form().GetControlCount(), 0);
    EXPECT_FALSE(Popup().GetVisible());
    EXPECT_EQ(test::FreedMemory::WrittenBlocks(), 0);
}

TEST_F(CustomDropDown, MayBeFreedByItsEvents) {
    const test::FreedMemory freed;
    Popup();
    Drop().OnCloseUp = [](TObject* sender) { delete static_cast<TQV7SkinComboBoxCustomDropDown*>(sender); };
    Click();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

/// In four tests, since each takes its time.
class CustomDropDownRounds : public CustomDropDown, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(OfAThousand, CustomDropDownRounds, testing::Range(0, 4));

TEST_P(CustomDropDownRounds, LeaveNothingBehind) {
    Popup();
    for (int round = 0; round < 250; ++round) {
        Drop().SetDroppedDown(true);
        Popup().Close();
    }
    EXPECT_FALSE(Drop().GetDroppedDown());
}

}  // namespace
