#include "platform/flatstyle/FlatCheckBox.h"
#include "platform/flatstyle/FlatGroupBox.h"
#include "platform/flatstyle/FlatRadioButton.h"
#include "platform/flatstyle/FlatSpinEditInteger.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

// Every pixel of the flat controls, against pictures drawn by the rules.

namespace {

using namespace flatstyle;
using test::PumpAll;

class FlatPixels : public test::FormTest {
protected:
    static test::Pixels Shown(HWND window) {
        PumpAll();
        return test::ReadClient(window);
    }
    template <class Toggle>
    Toggle& Colored() {
        auto* toggle = Make<Toggle>(TRect::OfSize(10, 10, 80, 17));
        for (int index = 0; index < 4; ++index)
            toggle->SetColors(index, 0x00111111 * static_cast<TColor>(index + 1));
        return *toggle;
    }
};

void Fill(HDC dc, const RECT& area, TColor color) {
    ::SetDCBrushColor(dc, ColorToRGB(color));
    ::FillRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

void Frame(HDC dc, const RECT& area, TColor color) {
    ::SetDCBrushColor(dc, ColorToRGB(color));
    ::FrameRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

void Text(HDC dc, const TFont& font, TColor color, RECT area, const wchar_t* text, UINT flags) {
    const HGDIOBJ former = ::SelectObject(dc, font.GetHandle());
    ::SetTextColor(dc, ColorToRGB(color));
    ::SetBkMode(dc, TRANSPARENT);
    ::DrawTextW(dc, text, -1, &area, DT_SINGLELINE | flags);
    ::SelectObject(dc, former);
}

/// A check box of 80 x 17 pixels.
test::Pixels CheckBoxPicture(const TFont& font, TColor ground, bool isChecked, bool isEnabled) {
    return test::Drawn(80, 17, ColorToRGB(clBtnFace), [&](HDC dc) {
        Fill(dc, {0, 2, 13, 15}, ground);
        Frame(dc, {0, 2, 13, 15}, 0x00444444);
        const COLORREF mark = ColorToRGB(isEnabled ? TColor{0x00333333} : clGrayText);
        const POINT tick[] = {{3, 7}, {4, 8}, {5, 9}, {6, 8}, {7, 7}, {8, 6}, {9, 5}};
        for (const POINT& at : tick) {
            for (int line = 0; isChecked && line < 3; ++line)
                ::SetPixelV(dc, at.x, at.y + line, mark);
        }
        Text(dc, font, isEnabled ? font.GetColor() : clGrayText, {18, 0, 80, 17}, L"Wort", DT_VCENTER);
    });
}

TEST_F(FlatPixels, OfACheckBox) {
    TFlatCheckBox& box = Colored<TFlatCheckBox>();
    box.SetCaption(L"Wort");
    Make<TEdit>(TRect::OfSize(10, 100, 80, 21))->SetFocus();
    for (const bool isEnabled : {true, false}) {
        for (const bool isChecked : {true, false}) {
            box.SetEnabled(isEnabled);
            box.SetChecked(isChecked);
            EXPECT_TRUE(test::SamePixels(Shown(box.GetHandle()),
                                         CheckBoxPicture(box.GetFont(), clWindow, isChecked, isEnabled)));
        }
    }
}

TEST_F(FlatPixels, OfACheckBoxThatTheTabKeyReached) {
    Make<TEdit>(TRect::OfSize(10, 100, 80, 21))->SetFocus();
    TFlatCheckBox& box = Colored<TFlatCheckBox>();
    box.SetCaption(L"Wort");
    Input.KeyPress(VK_TAB);
    ASSERT_TRUE(box.Focused());
    const test::Pixels shown = Shown(box.GetHandle());
    const test::Pixels picture = CheckBoxPicture(box.GetFont(), 0x00111111, false, true);
    EXPECT_TRUE(test::SamePixels(shown.Part({0, 0, 15, 17}), picture.Part({0, 0, 15, 17})));
    // Dots around the caption.
    const RECT changed =
        shown.Part({15, 0, 80, 17}).Bounds([](COLORREF color) { return color != ColorToRGB(clBtnFace); });
    EXPECT_EQ(changed.left, 1);
}

TEST_F(FlatPixels, OfARadioButton) {
    TFlatRadioButton& radio = Colored<TFlatRadioButton>();
    for (const bool isChecked : {false, true}) {
        radio.SetChecked(isChecked);
        const test::Pixels picture = test::Drawn(80, 17, ColorToRGB(clBtnFace), [&](HDC dc) {
            ::SelectObject(dc, ::GetStockObject(DC_PEN));
            ::SelectObject(dc, ::GetStockObject(DC_BRUSH));
            ::SetDCPenColor(dc, 0x00444444);
            ::SetDCBrushColor(dc, ColorToRGB(clWindow));
            ::Ellipse(dc, 0, 2, 13, 15);
            ::SetDCPenColor(dc, 0x00333333);
            ::SetDCBrushColor(dc, 0x00333333);
            if (isChecked) ::Ellipse(dc, 4, 6, 9, 11);
        });
        EXPECT_TRUE(test::SamePixels(Shown(radio.GetHandle()), picture)) << isChecked;
    }
}

TEST_F(FlatPixels, OfAGroupBox) {
    auto* group = Make<TFlatGroupBox>(TRect::OfSize(10, 10, 120, 60));
    group->SetColors(0, 0x00111111);
    group->SetCaption(L"Wer");
    for (const bool isEnabled : {true, false}) {
        group->SetEnabled(isEnabled);
        const test::Pixels picture = test::Drawn(120, 60, ColorToRGB(clBtnFace), [&](HDC dc) {
            RECT text{8, 0, 8, 0};
            const HGDIOBJ former = ::SelectObject(dc, group->GetFont().GetHandle());
            ::DrawTextW(dc, L"Wer", -1, &text, DT_SINGLELINE | DT_CALCRECT);
            ::SelectObject(dc, former);
            Frame(dc, {0, text.bottom / 2, 120, 60}, 0x00111111);
            Fill(dc, {text.left - 2, text.top, text.right + 2, text.bottom}, clBtnFace);
            Text(dc, group->GetFont(), isEnabled ? group->GetFont().GetColor() : clGrayText, text, L"Wer", 0);
        });
        EXPECT_TRUE(test::SamePixels(Shown(group->GetHandle()), picture)) << isEnabled;
    }
}

TEST_F(FlatPixels, AlignedControlsOfAGroupBoxStandBelowItsCaption) {
    auto* group = Make<TFlatGroupBox>(TRect::OfSize(10, 10, 120, 60));
    PumpAll();
    auto* inside = Make<TEdit>(TRect::OfSize(0, 0, 20, 20), group);
    inside->SetAutoSize(false);
    inside->SetAlign(alClient);
    TEXTMETRICW metrics{};
    const HDC dc = ::GetDC(group->GetHandle());
    const HGDIOBJ former = ::SelectObject(dc, group->GetFont().GetHandle());
    ::GetTextMetricsW(dc, &metrics);
    ::SelectObject(dc, former);
    ::ReleaseDC(group->GetHandle(), dc);
    EXPECT_EQ(inside->GetBoundsRect(), TRect(1, static_cast<int>(metrics.tmHeight) + 1, 119, 59));
}

TEST_F(FlatPixels, OfSpinButtons) {
    auto* spin = Make<TFlatSpinEditInteger>(TRect::OfSize(10, 10, 80, 21));
    spin->SetColors(2, 0x00DDCCBB);
    Make<TEdit>(TRect::OfSize(10, 100, 80, 21))->SetFocus();
    RECT client{};
    ::GetClientRect(spin->ButtonsHandle(), &client);
    const int width = static_cast<int>(client.right);
    const int height = static_cast<int>(client.bottom);
    ASSERT_EQ(width, 15);
    for (const bool isEnabled : {true, false}) {
        spin->SetEnabled(isEnabled);
        const test::Pixels picture = test::Drawn(width, height, 0x00DDCCBB, [&](HDC dc) {
            const auto triangle = [&](POINT at, bool up, COLORREF color) {
                for (int row = -1; row <= 1; ++row) {
                    const int half = up ? 1 + row : 1 - row;
                    for (int x = -half; x <= half; ++x)
                        ::SetPixelV(dc, at.x + x, at.y + row, color);
                }
            };
            const POINT up{width / 2, height / 2 / 2};
            const POINT down{width / 2, height / 2 + (height - height / 2) / 2};
            for (const bool isUp : {true, false}) {
                const POINT at = isUp ? up : down;
                if (!isEnabled) triangle({at.x + 1, at.y + 1}, isUp, 0x00FFFFFF);
                triangle(at, isUp, isEnabled ? 0 : 0x00808080);
            }
        });
        EXPECT_TRUE(test::SamePixels(Shown(spin->ButtonsHandle()), picture)) << isEnabled;
    }
}

}  // namespace
