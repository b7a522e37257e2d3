#include "inputs/UnitQV7SkinCheckBox.h"
#include "inputs/UnitQV7SkinEdit.h"
#include "inputs/UnitQV7SkinGroupBox.h"
#include "inputs/UnitQV7SkinPanel.h"
#include "inputs/UnitQV7SkinRadioButton.h"
#include "inputs/UnitQV7SkinSpinEdit.h"
#include "platform/vcl/graphics/Font.h"
#include "tests/inputs/InputsTest.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;

class SkinWrappers : public InputsTest {};

TEST_F(SkinWrappers, HaveTheirSettings) {
    auto* edit = Make<TQV7SkinEdit>(TRect::OfSize(0, 0, 80, 25));
    EXPECT_TRUE(edit->GetTabStop());
    EXPECT_EQ(edit->GetRounding(), 4);
    auto* check = Make<TQV7SkinCheckBox>(TRect::OfSize(0, 30, 80, 17));
    EXPECT_EQ(check->GetColors(3), 0x00F0EAE7u);
    EXPECT_EQ(check->GetColors(0), 0x00F0E7EAu);
    auto* radio = Make<TQV7SkinRadioButton>(TRect::OfSize(0, 50, 80, 17));
    EXPECT_EQ(radio->GetColors(3), 0x00F0EAE7u);
    auto* panel = Make<TQV7SkinPanel>(TRect::OfSize(0, 70, 80, 30));
    EXPECT_EQ(panel->GetColor(), 0x00F0EAE7u);
    EXPECT_EQ(panel->GetColors(0), 0x00F0EAE7u);
    EXPECT_EQ(panel->GetColors(1), 0x00F0EAE7u);
    EXPECT_FALSE(panel->GetParentBackground());
    EXPECT_TRUE(panel->GetDoubleBuffered());
    auto* group = Make<TQV7SkinGroupBox>(TRect::OfSize(100, 0, 80, 60));
    EXPECT_EQ(group->GetColors(0), 0x00F0EAE7u);
}

TEST_F(SkinWrappers, ACheckBoxTakesTheWidthOfItsCaption) {
    auto* check = Make<TQV7SkinCheckBox>(TRect::OfSize(0, 0, 10, 17));
    check->GetFont().SetName(L"Tahoma");
    check->SetCaption(L"Rechnung per &Post");
    RECT text{};
    {
        const HDC dc = ::GetDC(nullptr);
        const HGDIOBJ old = ::SelectObject(dc, check->GetFont().GetHandle());
        ::DrawTextW(dc, L"Rechnung per &Post", -1, &text, DT_CALCRECT | DT_SINGLELINE);
        ::SelectObject(dc, old);
        ::ReleaseDC(nullptr, dc);
    }
    EXPECT_EQ(check->GetTextWidth(), text.right);
    check->AutoSizeNow();
    EXPECT_EQ(check->GetWidth(), text.right + 20);
}

TEST_F(SkinWrappers, APanelIsOfOneColour) {
    auto* panel = Make<TQV7SkinPanel>(TRect::OfSize(10, 10, 40, 20));
    EXPECT_TRUE(test::SamePixels(Shown(*panel), [](int, int) { return 0x00F0EAE7; }));
}

// --- spin edit

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
