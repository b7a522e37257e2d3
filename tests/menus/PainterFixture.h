#pragma once

#include <memory>

#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "tests/support/FormTest.h"
#include "tests/support/Pixels.h"

namespace test {

/// The colours that items are drawn in, 0x00BBGGRR.
inline constexpr COLORREF ItemGround = 0x00FAFAFA;
inline constexpr COLORREF Gutter = 0x00F0EAE7;
inline constexpr COLORREF GutterLine = 0x00C5C5C5;
inline constexpr COLORREF SeparatorGround = 0x00EEE7DD;
inline constexpr COLORREF DisabledText = 0x00DEC5D8;

/// What row `row` of a gradient over `height` rows in 256 bands shows: the last band that covers it.
[[nodiscard]] COLORREF GradientRow(int row, int height, COLORREF from, COLORREF to);

/// Tests of a painter on a bitmap, outside of any menu on the screen.
class PainterTest : public FormTest {
protected:
    void SetUp() override;
    void TearDown() override;

    vcl::TMenuItem* AddItem(const std::wstring& caption, const std::wstring& hint = {});
    /// What the painter measures.
    [[nodiscard]] vcl::TSize Measure(vcl::TMenuItem& item);
    /// What the painter draws into the rectangle of a white picture of 160 x 60 pixels.
    [[nodiscard]] Pixels Draw(vcl::TMenuItem& item, const vcl::TRect& rect, bool selected = false,
                              bool arrow = false);
    [[nodiscard]] Pixels DrawOn(const std::function<void(vcl::TCanvas&)>& draw);
    /// The space that text needs in a font, with line breaks.
    [[nodiscard]] vcl::TSize TextSize(const vcl::TFont& font, const std::wstring& text);

    static constexpr int Width = 160;
    static constexpr int Height = 60;
    std::unique_ptr<vcl::TPopupMenu> Menu;
    std::unique_ptr<qv7skin::TQV7SkinMenuItemPainter> Painter;
};

}  // namespace test
