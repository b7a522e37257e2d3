#include "inputs/UnitQV7SkinSpinEdit.h"
#include "platform/vcl/graphics/Font.h"
#include "tests/inputs/InputsTest.h"
#include "tests/support/FreedMemory.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;

class SkinSpinEdit : public InputsTest {
protected:
    TQV7SkinSpinEdit& Spin() {
        if (!FSpin) FSpin = Make<TQV7SkinSpinEdit>(TRect::OfSize(10, 10, 80, 20));
        return *FSpin;
    }

private:
    TQV7SkinSpinEdit* FSpin = nullptr;
};

TEST_F(SkinSpinEdit, KeepsItsValueAsCaptionUntilThereIsAnInnerControl) {
    EXPECT_EQ(Spin().GetIncrement(), 1);
    EXPECT_EQ(Spin().GetRounding(), 4);
    Spin().SetValue(42);
    EXPECT_EQ(Spin().GetCaption(), L"42");
    EXPECT_EQ(Spin().GetValue(), 42);
    Spin().SetCaption(L"viel");
    EXPECT_EQ(Spin().GetValue(), 0);
    Spin().SetCaption(L"99999999999");
    EXPECT_EQ(Spin().GetValue(), 0);
}

TEST_F(SkinSpinEdit, ItsNameIsNoValue) {
    Spin().SetName(L"Menge");
    EXPECT_EQ(Spin().GetCaption(), L"");
    Spin().CreateEdit();
    EXPECT_EQ(Spin().GetEdit()->GetText(), L"");
}

TEST_F(SkinSpinEdit, TheInnerControlHasTheSettingsOfTheSkin) {
    Spin().CreateEdit();
    TFlatSpinEditInteger& inner = *Spin().GetEdit();
    EXPECT_EQ(inner.GetParent(), &Spin());
    for (int index = 0; index < 3; ++index)
        EXPECT_EQ(inner.GetColors(index), 0x00FFFFFFu) << index;
    EXPECT_EQ(inner.GetFont().GetColor(), 0x00000000u);
    EXPECT_EQ(inner.GetAnchors(), (TAnchors{akLeft, akTop, akRight}));
    Spin().SetWidth(100);
    EXPECT_EQ(inner.GetWidth(), 94);
    Spin().CreateEdit();
    EXPECT_EQ(Spin().GetEdit(), &inner);
}

TEST_F(SkinSpinEdit, IsNeverLowerThanItsLeastHeight) {
    Spin().GetConstraints().SetMaxHeight(12);
    EXPECT_EQ(Spin().GetHeight(), 12);
    Spin().CreateEdit();
    EXPECT_EQ(Spin().GetHeight(), 25);
    Spin().GetConstraints().SetMaxHeight(0);
    Spin().SetHeight(20);
    EXPECT_EQ(Spin().GetHeight(), 25);
    Spin().SetHeight(30);
    EXPECT_EQ(Spin().GetHeight(), 30);
}

TEST_F(SkinSpinEdit, ANewRangeAndANewStepCountAtOnce) {
    Spin().CreateEdit();
    Spin().SetMinValue(-3);
    Spin().SetMaxValue(10);
    Spin().SetIncrement(4);
    Spin().SetValue(7);
    Spin().SetFocus();
    Input.KeyPress(VK_UP);
    EXPECT_EQ(Spin().GetValue(), 10);
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Spin().GetValue(), 6);
    Spin().SetValue(-8);
    EXPECT_EQ(Spin().GetValue(), -3);
    EXPECT_EQ(Spin().GetMinValue(), -3);
    EXPECT_EQ(Spin().GetMaxValue(), 10);
    EXPECT_EQ(Spin().GetIncrement(), 4);
}

TEST_F(SkinSpinEdit, TheNumberStandsInTheMiddleOfTheFrame) {
    Spin().SetValue(8);
    Spin().CreateEdit();
    const test::Pixels shown = Shown(Spin());
    const RECT ink = shown.Part({2, 2, 50, 23}).Bounds([](COLORREF color) { return color == 0; });
    EXPECT_NEAR(ink.left + 2, 6, 1);
    EXPECT_NEAR((ink.top + ink.bottom - 1) / 2.0 + 2, 12, 1);
    const RECT arrows = shown.Part({55, 2, 77, 23}).Bounds([](COLORREF color) { return color == 0; });
    EXPECT_NEAR((arrows.top + arrows.bottom - 1) / 2.0 + 2, 12, 1);
    EXPECT_EQ(shown.Part({3, 2, 60, 5}).Count(0x00FFFFFF), 57 * 3);
}

TEST_F(SkinSpinEdit, TellsClicksInItsOwnName) {
    Spin().CreateEdit();
    int clicks = 0;
    Spin().OnClick = [&](TObject* sender) {
        EXPECT_EQ(sender, &Spin());
        ++clicks;
    };
    Input.ClickAt(Spin().GetEdit()->GetHandle(), 10, 5);
    EXPECT_EQ(clicks, 1);
    // Above the text stands the same editor.
    Input.ClickAt(Spin().GetHandle(), 20, 4);
    EXPECT_EQ(clicks, 2);
}

TEST_F(SkinSpinEdit, DisabledBeforeItHasItsInnerControl) {
    Spin().SetEnabled(false);
    Spin().CreateEdit();
    EXPECT_FALSE(Spin().GetEdit()->GetEnabled());
    EXPECT_EQ(Spin().GetEdit()->GetFont().GetColor(), 0x00000000u);
}

TEST_F(SkinSpinEdit, MayBeFreedByAChange) {
    const test::FreedMemory freed;
    Spin().CreateEdit();
    Spin().SetFocus();
    Spin().OnChange = [](TObject* sender) { delete static_cast<TQV7SkinSpinEdit*>(sender); };
    Input.KeyPress(VK_UP);
    EXPECT_EQ(Form().GetControlCount(), 0);
    EXPECT_EQ(test::FreedMemory::WrittenBlocks(), 0);
}

TEST_F(SkinSpinEdit, HasNoInnerControlAtDesignTime) {
    TForm designed(nullptr);
    designed.SetDesigning(true);
    auto* spin = new TQV7SkinSpinEdit(&designed);
    spin->SetParent(&designed);
    spin->CreateEdit();
    EXPECT_EQ(spin->GetEdit(), nullptr);
    spin->SetValue(-7);
    EXPECT_EQ(spin->GetValue(), -7);
}

TEST_F(SkinSpinEdit, GivesTheInnerControlWhatItKept) {
    Spin().SetMinValue(-5);
    Spin().SetMaxValue(50);
    Spin().SetIncrement(10);
    Spin().SetValue(7);
    Spin().CreateEdit();
    ASSERT_NE(Spin().GetEdit(), nullptr);
    EXPECT_EQ(Spin().GetValue(), 7);
    EXPECT_EQ(Spin().GetHeight(), 25);
    EXPECT_EQ(Spin().GetEdit()->GetBoundsRect().TopLeft(), TPoint(4, 3));
    EXPECT_EQ(Spin().GetEdit()->GetWidth(), 74);
    std::vector<int> values;
    Spin().OnChange = [&](TObject* sender) {
        EXPECT_EQ(sender, &Spin());
        values.push_back(Spin().GetValue());
    };
    Spin().SetFocus();
    Input.KeyPress(VK_UP);
    Input.KeyPress(VK_DOWN);
    Input.KeyPress(VK_DOWN);
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(values, (std::vector<int>{17, 7, -3, -5}));
}

TEST_F(SkinSpinEdit, DisablingTurnsTheTextLight) {
    Spin().CreateEdit();
    Spin().SetEnabled(false);
    EXPECT_FALSE(Spin().GetEdit()->GetEnabled());
    EXPECT_EQ(Spin().GetEdit()->GetFont().GetColor(), 0x00F0EAE7u);
    Spin().SetEnabled(true);
    EXPECT_EQ(Spin().GetEdit()->GetFont().GetColor(), 0x00000000u);
}

TEST_F(SkinSpinEdit, HandsKeysToTheHost) {
    Spin().CreateEdit();
    Spin().OnKeyPress = [&](TObject* sender, wchar_t& key) {
        EXPECT_EQ(sender, &Spin());
        if (key == L'1') key = L'2';
    };
    Spin().SetFocus();
    Spin().SelectAll();
    Input.Type(L"13");
    EXPECT_EQ(Spin().GetValue(), 23);
    Spin().Clear();
    EXPECT_EQ(Spin().GetValue(), 0);
}

}  // namespace
