#include "platform/tms/CurvyEdit.h"
#include "platform/tms/CurvyPanel.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace tms;

class Curvy : public test::FormTest {
protected:
    static constexpr TColor Ground = 0x00A0B0C0;

    void SetUp() override {
        FormTest::SetUp();
        Form().SetColor(Ground);
    }
    /// What lies at the control's place on the form.
    test::Pixels Shown(const TControl& control) {
        test::PumpAll();
        return test::ReadClient(Form().GetHandle()).Part(control.GetBoundsRect());
    }
};

TEST_F(Curvy, CornersAreCoveredLikeDiscs) {
    EXPECT_NEAR(CornerCoverage(0, 0, 1), 255 * 3.14159 / 4, 3);
    EXPECT_EQ(CornerCoverage(0, 0, 8), 0);
    EXPECT_EQ(CornerCoverage(7, 7, 8), 255);
    for (int x = 0; x < 8; ++x)
        for (int y = 0; y < 8; ++y)
            EXPECT_EQ(CornerCoverage(x, y, 8), CornerCoverage(y, x, 8));
}

TEST_F(Curvy, APanelIsItsColourInsideALineWithRoundCorners) {
    auto* panel = Make<TCurvyPanel>(TRect::OfSize(10, 10, 60, 30));
    panel->SetRounding(4);
    const test::Pixels shown = Shown(*panel);
    EXPECT_EQ(shown.At(30, 15), 0x00FFFFFFu);
    EXPECT_EQ(shown.At(30, 0), 0x00C0C0C0u);
    EXPECT_EQ(shown.At(30, 29), 0x00C0C0C0u);
    EXPECT_EQ(shown.At(0, 15), 0x00C0C0C0u);
    EXPECT_EQ(shown.At(59, 15), 0x00C0C0C0u);
    // Outside of the disc the form shows, on its edge something in between.
    ASSERT_EQ(CornerCoverage(0, 0, 4), 0);
    for (const POINT corner : {POINT{0, 0}, POINT{59, 0}, POINT{0, 29}, POINT{59, 29}})
        EXPECT_EQ(shown.At(corner.x, corner.y), Ground);
    const int outer = CornerCoverage(1, 0, 4);
    ASSERT_GT(outer, 0);
    EXPECT_EQ(shown.At(1, 0), BlendColors(Ground, 0x00C0C0C0, outer));
    EXPECT_EQ(shown.At(58, 29), shown.At(1, 0));
    EXPECT_EQ(shown.At(0, 1), shown.At(1, 0));
}

TEST_F(Curvy, WithoutRoundingCornersAreSquare) {
    auto* panel = Make<TCurvyPanel>(TRect::OfSize(10, 10, 20, 10));
    panel->SetRounding(0);
    panel->SetBorderColor(clNone);
    panel->SetColor(0x00112233);
    EXPECT_TRUE(test::SamePixels(Shown(*panel), [](int, int) { return 0x00112233; }));
}

TEST_F(Curvy, TheLineTakesTheFocusColourWhileTheFocusIsInside) {
    auto* panel = Make<TCurvyPanel>(TRect::OfSize(10, 10, 100, 30));
    auto* inside = Make<TEdit>(TRect::OfSize(10, 5, 50, 20), panel);
    auto* outside = Make<TEdit>(TRect::OfSize(10, 60, 50, 20));
    panel->SetFocusBorderColor(0x00D78112);
    outside->SetFocus();
    EXPECT_EQ(Shown(*panel).At(50, 0), 0x00C0C0C0u);
    inside->SetFocus();
    EXPECT_EQ(Shown(*panel).At(50, 0), 0x00D78112u);
    outside->SetFocus();
    EXPECT_EQ(Shown(*panel).At(50, 0), 0x00C0C0C0u);
}

TEST_F(Curvy, AlignedChildrenKeepTheIndentation) {
    auto* panel = Make<TCurvyPanel>(TRect::OfSize(10, 10, 100, 30));
    panel->SetIndentation(5);
    auto* child = Make<TEdit>(TRect::OfSize(0, 0, 5, 5), panel);
    child->SetAutoSize(false);
    child->SetAlign(alClient);
    EXPECT_EQ(child->GetBoundsRect(), TRect(5, 5, 95, 25));
}

// --- the editor

TEST_F(Curvy, TheEditorTellsWhatIsTyped) {
    auto* edit = Make<TCurvyEdit>(TRect::OfSize(10, 10, 100, 25));
    String keys;
    int changes = 0;
    edit->OnKeyPress = [&](TObject* sender, wchar_t& key) {
        EXPECT_EQ(sender, edit);
        keys += key;
    };
    edit->OnChange = [&](TObject* sender) {
        EXPECT_EQ(sender, edit);
        ++changes;
    };
    edit->SetFocus();
    EXPECT_TRUE(edit->Focused());
    Input.Type(L"Hallo");
    EXPECT_EQ(edit->GetText(), L"Hallo");
    EXPECT_EQ(keys, L"Hallo");
    EXPECT_EQ(changes, 5);
    edit->Clear();
    EXPECT_EQ(edit->GetText(), L"");
}

TEST_F(Curvy, TabGoesThroughTheEditorBothWays) {
    auto* before = Make<TEdit>(TRect::OfSize(10, 10, 50, 20));
    auto* edit = Make<TCurvyEdit>(TRect::OfSize(10, 40, 100, 25));
    auto* after = Make<TEdit>(TRect::OfSize(10, 80, 50, 20));
    before->SetFocus();
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(edit->Focused());
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(after->Focused());
    Input.Chord({VK_SHIFT}, VK_TAB);
    EXPECT_TRUE(edit->Focused());
    Input.Chord({VK_SHIFT}, VK_TAB);
    EXPECT_TRUE(before->Focused());
}

TEST_F(Curvy, ADisabledEditorTakesNoFocus) {
    auto* edit = Make<TCurvyEdit>(TRect::OfSize(10, 10, 100, 25));
    edit->SetEnabled(false);
    EXPECT_FALSE(edit->GetEdit().GetEnabled());
    Input.ClickAt(Form().GetHandle(), 50, 22);
    EXPECT_FALSE(edit->Focused());
}

TEST_F(Curvy, TheTextStandsSixPixelsFromTheEdgeInEveryFont) {
    auto* edit = Make<TCurvyEdit>(TRect::OfSize(10, 10, 100, 25));
    for (const int size : {-11, -15}) {
        edit->GetFont().SetHeight(size);
        EXPECT_EQ(edit->GetEdit().GetLeft(), 6);
        EXPECT_EQ(edit->GetEdit().GetWidth(), 100 - 2 * 6);
        EXPECT_EQ(::SendMessageW(edit->GetEdit().GetHandle(), EM_GETMARGINS, 0, 0), 0);
    }
}

TEST_F(Curvy, PasswordsStayHidden) {
    auto* edit = Make<TCurvyEdit>(TRect::OfSize(10, 10, 100, 25));
    edit->SetPasswordChar(L'*');
    edit->SetText(L"geheim");
    EXPECT_EQ(edit->GetText(), L"geheim");
    EXPECT_EQ(::SendMessageW(edit->GetEdit().GetHandle(), EM_GETPASSWORDCHAR, 0, 0), L'*');
}

}  // namespace
