#pragma once

#include "tests/support/SkinTesting.h"

namespace qv7skin::probes {

/// A picture with holes of magenta, and what it is drawn on.
class PictureOnGroundTest : public test::LedgerTest {
protected:
    void SetUp() override {
        LedgerTest::SetUp();
        FPicture = RandomColors(1).Picture(9, 7, {Magenta, 0x00123456, 0x00FEDCBA, clBlack, clWhite});
        FGround = RandomColors(2).Picture(20, 16);
    }
    /// The ground with the top left `width` x `height` pixels of the picture at (x0, y0), without its holes.
    [[nodiscard]] test::Pixels Expected(int x0, int y0, int width = 9, int height = 7) const {
        test::Pixels result = FGround;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (const COLORREF c = FPicture.At(x, y); c != Magenta && c != CLR_INVALID)
                    SetInside(result, x0 + x, y0 + y, c);
        return result;
    }
    test::Pixels FPicture, FGround;
};

}  // namespace qv7skin::probes
