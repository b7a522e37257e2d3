#include "inputs/UnitQV7SkinComboBox.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "tests/inputs/InputsTest.h"

// Every pixel of the drop buttons, against the rules by which they are drawn.

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;

struct Rule {
    TRect Place;  ///< One pixel wider than the button at both sides.
    TColor Face = 0x00FFFFFF;
    TColor Border = 0x00FFFFFF;
    TColor Arrow = 0x00000000;
    bool Enabled = true;
    bool Open = false;
    int LineBottom = 0;
};

/// The triangle whose corners are (x+3, y-1), (x+7, y-1), (x+5, y+1), or turned upside down.
bool IsInTriangle(int x, int y, TPoint at, bool open) {
    const int row = open ? y - at.Y : at.Y - y;
    return row >= -1 && row <= 1 && std::abs(x - (at.X + 5)) <= 1 + row;
}

COLORREF PixelOf(const Rule& rule, int x, int y) {
    const TRect& r = rule.Place;
    const TPoint at{r.Left + r.Width() / 2 - 5, r.Top + r.Height() / 2};
    const TPoint shifted{at.X + 1, at.Y + 1};
    if (IsInTriangle(x, y, at, rule.Open)) return rule.Enabled ? rule.Arrow : 0x00808080;
    if (!rule.Enabled && IsInTriangle(x, y, shifted, rule.Open)) return 0x00FFFFFF;
    if (x == r.Left + 1 && y < rule.LineBottom) return 0x00F0EAE7;
    const bool onEdge = x == r.Left || x == r.Right - 1 || y == r.Top || y == r.Bottom - 1;
    return onEdge ? rule.Border : rule.Face;
}

/// The part of the picture where the button stands, from its place on.
testing::AssertionResult ShowsButton(const test::Pixels& shown, const Rule& rule) {
    const int left = std::max(rule.Place.Left + 1, 0);
    const int right = std::min(rule.Place.Right, shown.Width());
    return test::SamePixels(shown.Part({left, 0, right, shown.Height()}),
                            [&](int x, int y) { return PixelOf(rule, left + x, y); });
}

class DropButton : public InputsTest {};

/// The states of the list can be played without one.
class ProbedComboBox : public TFlatComboBoxExt {
public:
    using TFlatComboBoxExt::CloseUp;
    using TFlatComboBoxExt::DropDown;
    using TFlatComboBoxExt::TFlatComboBoxExt;
};

TEST_F(DropButton, OfAComboBoxIsDrawnByItsRules) {
    auto* box = Make<ProbedComboBox>(TRect::OfSize(10, 10, 100, 21));
    for (const bool sameColors : {false, true}) {
        Rule rule;
        rule.Face = 0x00AABBCC;
        rule.Border = sameColors ? rule.Face : 0x00112233;
        rule.Arrow = 0x00445566;
        box->SetColors(0, rule.Arrow);
        box->SetColors(1, rule.Face);
        box->SetColors(2, rule.Border);
        const int width = box->GetClientWidth();
        const int height = box->GetClientHeight();
        rule.Place = {width - 15 - 1, 0, width + 1, height};
        for (const int state : {0, 1, 2, 3, 4, 5, 6, 7}) {
            rule.Enabled = (state & 1) == 0;
            rule.Open = (state & 2) != 0;
            box->SetEnabled(rule.Enabled);
            rule.Open ? box->DropDown() : box->CloseUp();
            box->SetDrawButtonLine((state & 4) != 0);
            rule.LineBottom = (state & 4) != 0 && sameColors ? height - 1 : 0;
            EXPECT_TRUE(ShowsButton(Shown(*box), rule)) << state << (sameColors ? " in one colour" : "");
        }
    }
}

TEST_F(DropButton, OfAComboBoxIsLeftAloneByTheLineAroundIt) {
    auto* box = Make<TFlatComboBoxExt>(TRect::OfSize(10, 10, 100, 21));
    box->SetColor(0x00556677);
    box->SetColors(1, 0x00AABBCC);
    box->SetColors(2, 0x00112233);
    const test::Pixels shown = Shown(*box);
    const int right = shown.Width() - 1;
    const int middle = 3;
    EXPECT_EQ(shown.At(0, middle), 0x00112233u);
    EXPECT_EQ(shown.At(right, middle), 0x00AABBCCu);
    EXPECT_EQ(shown.At(right - 15, middle), 0x00556677u);
    EXPECT_EQ(shown.At(40, 0), 0x00112233u);
}

TEST_F(DropButton, OfADropDownIsDrawnByItsRules) {
    auto* drop = Make<TQV7SkinComboBoxCustomDropDown>(TRect::OfSize(10, 10, 120, 25));
    drop->CreateParts();
    Rule rule;
    rule.Place = {-1, 0, 18, 19};
    for (const int state : {0, 1, 2, 3, 4, 5, 6, 7}) {
        rule.Open = (state & 2) != 0;
        rule.Enabled = (state & 1) == 0;
        rule.LineBottom = (state & 4) != 0 ? 19 : 0;
        drop->SetEnabled(rule.Enabled);
        drop->SetDroppedDown(rule.Open);
        drop->SetDrawButtonLine((state & 4) != 0);
        EXPECT_TRUE(ShowsButton(Shown(*drop->GetButton()), rule)) << state;
    }
    drop->SetEnabled(true);
    drop->SetDrawButtonLine(false);
    drop->SetHeight(24);
    rule = {};
    rule.Place = {-1, 0, 18, 18};
    rule.Open = true;
    EXPECT_TRUE(ShowsButton(Shown(*drop->GetButton()), rule)) << "of an even height";
}

TEST_F(DropButton, OfATreeComboBoxIsDrawnByItsRules) {
    auto& box = *Make<TOwnAdvTreeComboBoxExCustomButtonPaint>(TRect::OfSize(10, 10, 118, 21));
    for (const bool sameColors : {false, true}) {
        Rule rule;
        rule.Face = 0x00AABBCC;
        rule.Border = sameColors ? rule.Face : 0x00112233;
        rule.Arrow = 0x00445566;
        box.SetColors(0, rule.Arrow);
        box.SetColors(1, rule.Face);
        box.SetColors(3, rule.Border);
        const int width = box.GetClientWidth();
        const int height = box.GetClientHeight();
        rule.Place = {width - 17 - 1, 0, width + 1, height};
        rule.LineBottom = sameColors ? height : 0;
        for (const int state : {0, 1, 2}) {
            rule.Enabled = state != 1;
            rule.Open = state == 2;
            box.SetEnabled(rule.Enabled);
            box.SetDroppedDown(rule.Open);
            EXPECT_TRUE(ShowsButton(Shown(box), rule)) << state << (sameColors ? " in one colour" : "");
            box.SetDroppedDown(false);
        }
        box.SetEnabled(true);
    }
}

TEST_F(DropButton, ANewSettingOfTheLineIsPainted) {
    auto* box = Make<TFlatComboBoxExt>(TRect::OfSize(10, 10, 100, 21));
    const auto isPainted = [&](bool line) {
        test::PumpAll();
        ::UpdateWindow(box->GetHandle());
        ::ValidateRect(box->GetHandle(), nullptr);
        box->SetDrawButtonLine(line);
        return ::GetUpdateRect(box->GetHandle(), nullptr, FALSE) != FALSE;
    };
    EXPECT_FALSE(box->GetDrawButtonLine());
    EXPECT_FALSE(isPainted(false));
    EXPECT_TRUE(isPainted(true));
    EXPECT_TRUE(box->GetDrawButtonLine());
    EXPECT_FALSE(isPainted(true));
    EXPECT_TRUE(isPainted(false));
}

}  // namespace
