#pragma once

#include <functional>
#include <memory>

#include "platform/vcl/graphics/Bitmap.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/PixelProbe.h"
#include "tests/support/Pixels.h"
#include "tests/vcl/core/Probes.h"

namespace vcl::probes {

using Rule = std::function<TColor(int x, int y)>;

/// A colour that no other pixel near it has.
[[nodiscard]] TColor Numbered(int x, int y);

/// Sets each pixel by a rule, one by one through the canvas.
void Paint(TBitmap& bitmap, const Rule& rule);

/// What a bitmap shows, read by the system and not by the bitmap itself.
[[nodiscard]] test::Pixels PixelsOf(const TBitmap& bitmap);

/// Whether the bitmap shows what the rule says.
[[nodiscard]] testing::AssertionResult Shows(const TBitmap& bitmap, const Rule& rule);

/// Draws on a white bitmap of 24 bits, which ends before leaks are looked for.
class PaintingTest : public test::LedgerTest {
protected:
    PaintingTest(int width, int height) : FSize(width, height) {}
    void SetUp() override;
    void TearDown() override;

    [[nodiscard]] TBitmap& Bitmap() const { return *FBitmap; }
    [[nodiscard]] TCanvas& Canvas() const { return FBitmap->GetCanvas(); }
    [[nodiscard]] TColor At(int x, int y) const { return Canvas().GetPixel(x, y); }
    [[nodiscard]] int CountOf(TColor color) const { return PixelsOf(*FBitmap).Count(color); }
    /// The smallest rectangle around all pixels of a colour.
    [[nodiscard]] TRect BoundsOf(TColor color) const;

private:
    TSize FSize;
    std::unique_ptr<TBitmap> FBitmap;
};

}  // namespace vcl::probes
