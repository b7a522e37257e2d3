#include "tests/menus/PainterFixture.h"

#include <cmath>

#include "tests/support/PixelProbe.h"

namespace test {

using namespace vcl;

COLORREF GradientRow(int row, int height, COLORREF from, COLORREF to) {
    constexpr int steps = 256;
    COLORREF color = CLR_INVALID;
    for (int band = 1; band <= steps; ++band) {
        const auto edge = [&](int i) { return std::nearbyint(static_cast<double>(i) * height / steps); };
        if (row < edge(band - 1) || row >= edge(band)) continue;
        const auto channel = [&](int start, int end) {
            return static_cast<int>(start +
                                    std::nearbyint(static_cast<double>(band) * (end - start) / steps)) &
                   255;
        };
        color = RGB(channel(GetRValue(from), GetRValue(to)), channel(GetGValue(from), GetGValue(to)),
                    channel(GetBValue(from), GetBValue(to)));
    }
    return color;
}

void PainterTest::SetUp() {
    FormTest::SetUp();
    Menu = std::make_unique<TPopupMenu>(nullptr);
    Painter = std::make_unique<qv7skin::TQV7SkinMenuItemPainter>();
}

void PainterTest::TearDown() {
    Painter.reset();
    Menu.reset();
    FormTest::TearDown();
}

TMenuItem* PainterTest::AddItem(const std::wstring& caption, const std::wstring& hint) {
    auto* item = new TMenuItem(nullptr);
    item->SetCaption(caption);
    item->SetHint(hint);
    Menu->GetItems().Add(item);
    return item;
}

Pixels PainterTest::DrawOn(const std::function<void(TCanvas&)>& draw) {
    TBitmap bitmap;
    bitmap.SetPixelFormat(pf24bit);
    bitmap.SetSize(Width, Height);
    TCanvas& canvas = bitmap.GetCanvas();
    canvas.GetBrush().SetColor(clWhite);
    canvas.FillRect({0, 0, Width, Height});
    draw(canvas);
    return ReadBitmap(bitmap.GetHandle());
}

TSize PainterTest::Measure(TMenuItem& item) {
    TSize size{-1, -1};
    (void)DrawOn([&](TCanvas& canvas) { Painter->MeasureItem(item, canvas, size.Width, size.Height); });
    return size;
}

Pixels PainterTest::Draw(TMenuItem& item, const TRect& rect, bool selected, bool arrow) {
    return DrawOn([&](TCanvas& canvas) { Painter->DrawItem(item, canvas, rect, selected, arrow); });
}

TSize PainterTest::TextSize(const TFont& font, const std::wstring& text) {
    RECT r{};
    (void)Drawn(1, 1, 0, [&](HDC dc) {
        const HGDIOBJ old = SelectObject(dc, font.GetHandle());
        DrawTextW(dc, text.c_str(), -1, &r, DT_CALCRECT | DT_EXTERNALLEADING);
        SelectObject(dc, old);
    });
    return {r.right, r.bottom};
}

}  // namespace test
