#include "tests/header/HeaderFixture.h"

#include "header/tabs/HoveredTabs.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

namespace qv7skin::probes {

void TBarItem::Draw(TCanvas& Canvas, int& X, int Height) {
    ++Draws;
    Canvas.GetBrush().SetColor(Color);
    Canvas.FillRect({X, 0, X + Width, Height});
    X += Width;
}

bool TProbeStrip::InShape(int x, int y, int width, int height, int slant) {
    return x < width && x + y >= slant && (width - 1 - x) + (height - 1 - y) >= slant;
}

void TProbeStrip::DrawBackground(TBitmap& Bitmap, int State) {
    Rendered.push_back(State);
    const int width = Bitmap.GetWidth(), height = Bitmap.GetHeight();
    const int slant = SlantPerState ? Slant + 3 * State : Slant;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const bool inside = InShape(x, y, width, height, slant);
            Bitmap.GetCanvas().SetPixel(x, y, inside ? StateColor(State) + Look : Magenta);
        }
}

void TProbeStrip::SetIndexOfItemMouseOver(int Index) {
    RenderHoveredTabs(*this, Index);
    TQV7SkinHeaderControl::SetIndexOfItemMouseOver(Index);
}

void HeaderTest::SetUp() {
    FormTest::SetUp();
    Form().SetColor(clWhite);
    Header = Make<TProbeStrip>({20, 30, 320, 51});
    Input.MoveAway();
    test::PumpAll();
}

TBarItem* HeaderTest::AddBar(int width, TColor color) {
    auto* const item = new TBarItem(width, color);
    Items().Add(item);
    return item;
}

void HeaderTest::AddBars(const std::vector<int>& widths) {
    for (const int width : widths)
        AddBar(width, BarColor(Items().GetCount()));
}

TQV7SkinHeaderItemTab* HeaderTest::AddTab(const String& caption, TQV7SkinTabBackground look) {
    auto* const tab = new TQV7SkinHeaderItemTab(look, caption);
    Items().Add(tab);
    return tab;
}

TQV7SkinHeaderItemTabExt* HeaderTest::AddTabExt(const String& caption, TQV7SkinTabBackground look) {
    auto* const tab = new TQV7SkinHeaderItemTabExt(look, caption);
    Items().Add(tab);
    return tab;
}

test::Pixels HeaderTest::Shown() const {
    test::PumpAll();
    return test::ReadClient(Header->GetHandle());
}

int HeaderTest::WidthOf(TQV7SkinHeaderItemCustom& item) const {
    int width = 0;
    item.Measure(Header->GetPaintBox().GetBuffer().GetCanvas(), width);
    return width;
}

int HeaderTest::TextWidth(const String& text, TFontStyles style) const {
    TBitmap bitmap(1, 1, pf24bit);
    bitmap.GetCanvas().SetFont(Header->GetFont());
    bitmap.GetCanvas().GetFont().SetStyle(style);
    return bitmap.GetCanvas().TextWidth(text);
}

test::Pixels HeaderTest::DrawnItem(TQV7SkinHeaderItemCustom& item, int x, int width, int height,
                                   TPixelFormat format) const {
    TBitmap bitmap(width, height, format);
    bitmap.GetCanvas().SetFont(Header->GetFont());
    item.Draw(bitmap.GetCanvas(), x, height);
    return test::ReadBitmap(bitmap.GetHandle());
}

void HeaderTest::Watch(TQV7SkinHeaderItemCustom& item, const std::string& name) {
    item.OnEnter = [this, name](TQV7SkinHeaderItemCustom*) { Log.push_back("enter " + name); };
    item.OnLeave = [this, name](TQV7SkinHeaderItemCustom*) { Log.push_back("leave " + name); };
    item.OnClick = [this, name](TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int x, int y) {
        Log.push_back("click " + name + " " + std::to_string(x) + "," + std::to_string(y));
    };
}

}  // namespace qv7skin::probes
