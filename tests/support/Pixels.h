#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace test {

/// A picture in memory as tests compare it: rows from top to bottom, colours 0x00BBGGRR.
class Pixels {
public:
    Pixels() = default;
    Pixels(int width, int height, COLORREF fill = 0);
    /// The picture whose pixel at (x, y) is `color(x, y)`.
    Pixels(int width, int height, const std::function<COLORREF(int x, int y)>& color);

    [[nodiscard]] int Width() const { return FWidth; }
    [[nodiscard]] int Height() const { return FHeight; }
    [[nodiscard]] bool IsEmpty() const { return FData.empty(); }
    /// The colour at (x, y), or CLR_INVALID outside.
    [[nodiscard]] COLORREF At(int x, int y) const;
    void Set(int x, int y, COLORREF color);
    /// The part inside the rectangle, which is cut to the picture.
    [[nodiscard]] Pixels Part(const RECT& rect) const;
    /// How many pixels have the colour.
    [[nodiscard]] int Count(COLORREF color) const;
    /// The smallest rectangle around all pixels that fulfil the condition; empty when there are none.
    [[nodiscard]] RECT Bounds(const std::function<bool(COLORREF)>& condition) const;
    /// Writes the picture as a portable pixmap (.ppm) file.
    void SavePpm(const std::wstring& path) const;

    friend bool operator==(const Pixels&, const Pixels&) = default;

private:
    int FWidth = 0;
    int FHeight = 0;
    std::vector<COLORREF> FData;
};

/// Whether both pictures are the same. The message counts the differing pixels, lists the first ones, draws a
/// map of them and names picture files (actual, expected, difference), written to the folder that
/// TEST_PICTURES names, or the system's temporary folder.
[[nodiscard]] testing::AssertionResult SamePixels(const Pixels& actual, const Pixels& expected);
/// The same against a rule for each pixel.
[[nodiscard]] testing::AssertionResult SamePixels(const Pixels& actual,
                                                  const std::function<COLORREF(int x, int y)>& expected);

/// A colour as "0x00BBGGRR" for messages.
[[nodiscard]] std::string ColorText(COLORREF color);

}  // namespace test
