#pragma once

#include <functional>
#include <memory>

#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin::probes {

/// Fixture for items without a bar: a white bitmap in Tahoma, 8 points, and what the rules say about texts
/// in that font.
class ItemTest : public test::LedgerTest {
protected:
    static constexpr int BitmapWidth = 240;
    static constexpr int BitmapHeight = 120;
    static constexpr TColor LinkBlue = 0x00D78112;

    void SetUp() override;
    void TearDown() override;

    /// Where an item was started and where it left the running position.
    struct TRun {
        int Left = 0;
        int Top = 0;
        int Width = BitmapWidth;
    };
    /// How far the item moves the running position, by `Draw` or `Measure`. Neither touches the other two.
    int Drawn(TQV7SkinExplorerItemCustom& item, TRun at) {
        return Moved(at, [&](TRun& run) { item.Draw(Bitmap(), run.Left, run.Top, run.Width); });
    }
    int Drawn(TQV7SkinExplorerItemCustom& item) { return Drawn(item, TRun()); }
    int Measured(TQV7SkinExplorerItemCustom& item, TRun at) {
        return Moved(at, [&](TRun& run) { item.Measure(Bitmap(), run.Left, run.Top, run.Width); });
    }
    int Measured(TQV7SkinExplorerItemCustom& item) { return Measured(item, TRun()); }

    [[nodiscard]] TBitmap& Bitmap() { return *FBitmap; }
    [[nodiscard]] TCanvas& Canvas() { return FBitmap->GetCanvas(); }
    /// The width of a text in a style, and the height of a row.
    [[nodiscard]] int Wide(const String& text, TFontStyles style = {});
    [[nodiscard]] int Line();
    /// What is on the bitmap now.
    [[nodiscard]] test::Pixels Shown() { return PixelsOf(*FBitmap); }
    void Wipe();
    /// What the drawing leaves on a white bitmap of the same size and font.
    [[nodiscard]] test::Pixels Expected(const std::function<void(TCanvas&)>& draw);
    /// Text without a ground, as items write it.
    static void Write(TCanvas& canvas, int x, int y, const String& text, TColor color,
                      TFontStyles style = {});
    /// Text in one row of a rectangle, cut with dots at its right edge.
    static void WriteRow(TCanvas& canvas, TRect rect, const String& text, TColor color,
                         TFontStyles style = {});

private:
    std::unique_ptr<TBitmap> FBitmap;

    static int Moved(TRun at, const std::function<void(TRun&)>& pass);
};

}  // namespace qv7skin::probes
