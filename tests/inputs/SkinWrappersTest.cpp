#include "inputs/UnitQV7SkinCheckBox.h"
#include "inputs/UnitQV7SkinEdit.h"
#include "inputs/UnitQV7SkinGroupBox.h"
#include "inputs/UnitQV7SkinPanel.h"
#include "inputs/UnitQV7SkinRadioButton.h"
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
    EXPECT_FALSE(panel->GetParentDoubleBuffered());
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

}  // namespace
