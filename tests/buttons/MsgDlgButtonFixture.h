#pragma once

#include <memory>
#include <vector>

#include "buttons/UnitQV7SkinButtonMsgDlg.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {

/// A message-dialog button that notes how it draws itself.
class ProbeMsgDlgButton : public qv7skin::TQV7SkinButtonMsgDlg {
public:
    using TQV7SkinButtonMsgDlg::TQV7SkinButtonMsgDlg;
    int Paints = 0;
    vcl::TBrushStyle BrushAfterPaint = vcl::bsClear;
    std::vector<vcl::TRect> CaptionPlaces;
    std::vector<vcl::TRect> DescriptionPlaces;

    void DrawCaption(UINT Flags, vcl::TRect& Rect) override {
        CaptionPlaces.push_back(Rect);
        TQV7SkinButtonMsgDlg::DrawCaption(Flags, Rect);
    }
    void DrawDescription(UINT Flags, vcl::TRect& Rect) override {
        DescriptionPlaces.push_back(Rect);
        TQV7SkinButtonMsgDlg::DrawDescription(Flags, Rect);
    }

protected:
    void Paint() override {
        ++Paints;
        TQV7SkinButtonMsgDlg::Paint();
        BrushAfterPaint = GetCanvas().GetBrush().GetStyle();
    }
};

/// A white form with a message-dialog button of 300 x 60 pixels at (20, 30), with letters without smoothing,
/// without focus and mouse.
class MsgDlgButtonTest : public FormTest {
protected:
    void SetUp() override;
    void TearDown() override;

    static constexpr COLORREF White = 0x00FFFFFF, Silver = 0x00C0C0C0, Text = 0x00535353, Blue = 0x00D78112;
    static constexpr COLORREF Ground = 0x00F0E7EA, Border = 0x00DDDDDD;

    [[nodiscard]] Pixels Shown();
    /// What the system draws of the text: true where a letter is.
    [[nodiscard]] Pixels Letters(const vcl::TFont& font, const std::wstring& text, const vcl::TRect& place,
                                 UINT flags) const;
    /// The picture that the rules give: letters in `text` colour on `ground`, moved by (dx, dy).
    [[nodiscard]] Pixels Expected(COLORREF ground, COLORREF text, int dx, int dy) const;
    void MoveOn() { Input.MoveTo(Button->WindowHandle(), 200, 20); }
    /// Six images of 16 x 16 pixels, each in a colour of its own inside a magenta edge of 2 pixels.
    void MakeImages(int count);
    [[nodiscard]] static COLORREF ImageColor(int index) { return RGB(10 + 40 * index, 200 - 20 * index, 77); }

    ProbeMsgDlgButton* Button = nullptr;
    std::unique_ptr<vcl::TImageList> Images;
};

}  // namespace test
