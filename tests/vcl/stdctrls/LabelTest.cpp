#include "platform/vcl/stdctrls/Label.h"

#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;

class LabelTest : public FormTest {
protected:
    static bool IsInk(COLORREF color) { return color == RGB(0, 0, 0); }

    /// A label with crisp black text on white, so that its letters can be found by colour.
    TLabel* MakeLabel(const TRect& bounds, const wchar_t* caption, bool autoSize = false) {
        Form().SetColor(clWhite);
        auto* label = new TLabel(nullptr);
        label->SetAutoSize(autoSize);
        label->SetBoundsRect(bounds);
        label->GetFont().SetQuality(fqNonAntialiased);
        label->GetFont().SetColor(clBlack);
        label->SetCaption(caption);
        label->SetParent(&Form());
        return label;
    }
    /// The smallest rectangle around the label's letters, in its client pixels.
    TRect Ink(const TLabel& label) {
        return ReadClient(Form().WindowHandle()).Part(label.GetBoundsRect()).Bounds(IsInk);
    }
};

TEST_F(LabelTest, TheSizeFollowsTheText) {
    TLabel* label = MakeLabel({10, 20, 30, 30}, L"wide wide wide", true);
    const int wide = label->GetWidth();
    const int high = label->GetHeight();
    label->SetCaption(L"i");
    EXPECT_LT(label->GetWidth(), wide);
    EXPECT_EQ(label->GetHeight(), high);
    label->GetFont().SetHeight(label->GetFont().GetHeight() * 2);
    EXPECT_GT(label->GetHeight(), high);
    EXPECT_EQ(label->GetLeft(), 10);
    EXPECT_EQ(label->GetTop(), 20);
}

TEST_F(LabelTest, AnEmptyLabelKeepsTheHeightOfALine) {
    TLabel* label = MakeLabel({0, 0, 50, 50}, L"x", true);
    const int line = label->GetHeight();
    label->SetCaption(L"");
    EXPECT_EQ(label->GetHeight(), line);
    label->SetCaption(L"&");
    EXPECT_EQ(label->GetHeight(), line);
}

TEST_F(LabelTest, RightAlignedTextGrowsToTheLeft) {
    TLabel* label = MakeLabel({100, 0, 150, 20}, L"x", true);
    label->SetAlignment(taRightJustify);
    const int right = label->GetLeft() + label->GetWidth();
    label->SetCaption(L"a longer text");
    EXPECT_EQ(label->GetLeft() + label->GetWidth(), right);
}

TEST_F(LabelTest, WordWrapKeepsTheWidthAndGrowsDown) {
    TLabel* label = MakeLabel({0, 0, 60, 20}, L"one", true);
    const int line = label->GetHeight();
    label->SetWordWrap(true);
    label->SetWidth(60);
    label->SetCaption(L"one two three four five six");
    EXPECT_LE(label->GetWidth(), 60);
    EXPECT_GE(label->GetHeight(), 2 * line);
    EXPECT_EQ(label->GetHeight() % line, 0);
}

TEST_F(LabelTest, AmpersandsCountOnlyWithoutAccessKey) {
    TLabel* label = MakeLabel({0, 0, 60, 20}, L"&&&&&&", true);
    const int asMarks = label->GetWidth();
    label->SetShowAccelChar(false);
    EXPECT_GE(label->GetWidth(), 2 * asMarks - 2);
}

TEST_F(LabelTest, AlignmentPlacesTheText) {
    TLabel* label = MakeLabel({10, 10, 210, 40}, L"HHH");
    const int width = Ink(*label).Width();
    ASSERT_GT(width, 5);
    EXPECT_LT(Ink(*label).Left, 3);
    label->SetAlignment(taRightJustify);
    EXPECT_GT(Ink(*label).Right, 194);
    label->SetAlignment(taCenter);
    EXPECT_NEAR(Ink(*label).Left + width / 2, 100, 2);
}

TEST_F(LabelTest, LayoutPlacesTheTextUpAndDown) {
    TLabel* label = MakeLabel({10, 10, 100, 110}, L"HHH");
    const TRect top = Ink(*label);
    EXPECT_LT(top.Bottom, 20);
    label->SetLayout(tlBottom);
    EXPECT_GT(Ink(*label).Bottom, 90);
    label->SetLayout(tlCenter);
    EXPECT_NEAR((Ink(*label).Top + Ink(*label).Bottom) / 2, 50, 4);
}

TEST_F(LabelTest, DotsReplaceWhatDoesNotFit) {
    TLabel* label = MakeLabel({10, 10, 70, 30}, L"HHHHHHHHHHHHHHHHHHHHHHHHH");
    const Pixels cut = ReadClient(Form().WindowHandle()).Part(label->GetBoundsRect());
    label->SetEllipsisPosition(epEndEllipsis);
    const Pixels dotted = ReadClient(Form().WindowHandle()).Part(label->GetBoundsRect());
    EXPECT_NE(cut, dotted);
    // Dots stand on the base line only: the last columns hold no pixel above it.
    EXPECT_GT(cut.Part({50, 0, 58, 8}).Count(0), 0);
    EXPECT_EQ(dotted.Part({52, 0, 60, 8}).Count(0), 0);
    EXPECT_FALSE(label->GetAutoSize());
}

TEST_F(LabelTest, AnOpaqueLabelFillsItsAreaATransparentOneDoesNot) {
    TLabel* label = MakeLabel({10, 10, 60, 40}, L"");
    label->SetColor(clRed);
    const auto white = [](int, int) { return RGB(255, 255, 255); };
    const auto red = [](int, int) { return RGB(255, 0, 0); };
    EXPECT_TRUE(SamePixels(ReadClient(Form().WindowHandle()).Part(label->GetBoundsRect()), white));
    label->SetTransparent(false);
    EXPECT_TRUE(SamePixels(ReadClient(Form().WindowHandle()).Part(label->GetBoundsRect()), red));
    label->SetTransparent(true);
    EXPECT_TRUE(SamePixels(ReadClient(Form().WindowHandle()).Part(label->GetBoundsRect()), white));
}

TEST_F(LabelTest, ADisabledLabelIsGrey) {
    TLabel* label = MakeLabel({10, 10, 60, 40}, L"HHH");
    label->SetEnabled(false);
    const Pixels pixels = ReadClient(Form().WindowHandle()).Part(label->GetBoundsRect());
    EXPECT_EQ(pixels.Count(0), 0);
    EXPECT_GT(pixels.Count(GetSysColor(COLOR_GRAYTEXT)), 10);
}

TEST_F(LabelTest, TheAccessKeyMovesTheFocus) {
    TLabel* label = MakeLabel({10, 10, 60, 30}, L"&Name");
    auto* first = Make<TEdit>({10, 40, 100, 60});
    auto* second = Make<TEdit>({10, 70, 100, 90});
    label->SetFocusControl(second);
    first->SetFocus();
    Input.Chord({VK_MENU}, 'N');
    EXPECT_TRUE(second->Focused());
    first->SetFocus();
    label->SetEnabled(false);
    Input.Chord({VK_MENU}, 'N');
    EXPECT_TRUE(first->Focused());
    label->SetEnabled(true);
    label->SetShowAccelChar(false);
    Input.Chord({VK_MENU}, 'N');
    EXPECT_TRUE(first->Focused());
}

TEST_F(LabelTest, AFreedFocusControlIsForgotten) {
    TLabel* label = MakeLabel({10, 10, 60, 30}, L"&Name");
    auto* edit = Make<TEdit>({10, 40, 100, 60});
    label->SetFocusControl(edit);
    delete edit;
    EXPECT_EQ(label->GetFocusControl(), nullptr);
}

TEST_F(LabelTest, ALabelFreedInItsOwnClickDoesNoHarm) {
    TLabel* label = MakeLabel({10, 10, 60, 30}, L"Bye");
    bool clicked = false;
    label->OnClick = [&](TObject* sender) {
        clicked = true;
        delete sender;
    };
    Input.ClickAt(Form().WindowHandle(), 20, 20);
    EXPECT_TRUE(clicked);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

}  // namespace
}  // namespace test
