#pragma once

#include <string>
#include <vector>

#include "header/UnitQV7SkinHeaderChevron.h"
#include "header/UnitQV7SkinHeaderControl.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace qv7skin::probes {

inline constexpr TColor RowColor = 0x00F0EAE7;
inline constexpr TColor Magenta = 0x00FF00FF;

/// A plain item of a fixed width and colour that counts its paintings.
class TBarItem : public TQV7SkinHeaderItemCustom {
public:
    TBarItem(int AWidth, TColor AColor) : Width(AWidth), Color(AColor) {}
    void Draw(TCanvas& Canvas, int& X, int Height) override;
    void Measure(TCanvas&, int& W) override { W += Width; }

    int Width;
    TColor Color;
    int Draws = 0;
};

/// A header control that paints item backgrounds: one colour per state, with corners cut off.
class TProbeStrip : public TQV7SkinHeaderControl, public THeaderBackgroundPainter {
public:
    using TQV7SkinHeaderControl::TQV7SkinHeaderControl;
    void DrawBackground(TBitmap& Bitmap, int State) override;
    void SetIndexOfItemMouseOver(int Index) override;
    [[nodiscard]] int GetBackgroundLook() const override { return Look; }

    /// Whether a pixel of an item of that size belongs to its shape: at the left edge a slanted corner of
    /// `Slant` pixels is missing, at the right edge one at the bottom.
    [[nodiscard]] static bool InShape(int x, int y, int width, int height, int slant = Slant);
    [[nodiscard]] static TColor StateColor(int state) { return 0x00203040 + 0x00100000 * state; }
    static constexpr int Slant = 3;

    int Look = 0;
    bool SlantPerState = false;  ///< Whether hovered items lose more of their corners.
    std::vector<int> Rendered;   ///< The states of the backgrounds that were asked for.
};

/// A white form with one header control of 300 x 21 pixels at (20, 30).
class HeaderTest : public test::FormTest {
protected:
    void SetUp() override;

    TBarItem* AddBar(int width, TColor color = 0x00336699);
    /// Items of these widths, each in a colour of its own (`BarColor`).
    void AddBars(const std::vector<int>& widths);
    [[nodiscard]] static TColor BarColor(int index) { return 0x00102030 + 0x00010907 * index; }
    TQV7SkinHeaderItemTab* AddTab(const String& caption, TQV7SkinTabBackground look = bckgrndStandard);
    TQV7SkinHeaderItemTabExt* AddTabExt(const String& caption, TQV7SkinTabBackground look = bckgrndStandard);

    [[nodiscard]] TQV7SkinHeaderItems& Items() const { return Header->GetItems(); }
    [[nodiscard]] HWND Surface() const { return Header->GetPaintBox().GetHandle(); }
    /// What the header control shows, after all waiting messages.
    [[nodiscard]] test::Pixels Shown() const;
    /// The width that an item measures.
    [[nodiscard]] int WidthOf(TQV7SkinHeaderItemCustom& item) const;
    /// The width of a text in the header's font with that style.
    [[nodiscard]] int TextWidth(const String& text, TFontStyles style) const;
    /// What the row shows when the item is the only one painted, on a canvas of that format.
    [[nodiscard]] test::Pixels DrawnItem(TQV7SkinHeaderItemCustom& item, int x, int width, int height,
                                         TPixelFormat format) const;

    /// Handlers that note what happened: "enter A", "click B 3,4" ...
    void Watch(TQV7SkinHeaderItemCustom& item, const std::string& name);
    std::vector<std::string> Log;

    TProbeStrip* Header = nullptr;  // the form's
};

}  // namespace qv7skin::probes
