#include "platform/vcl/stdctrls/Bevel.h"

#include "platform/vcl/graphics/Color.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;

class BevelTest : public FormTest {
protected:
    Pixels Shape(TBevelShape shape) {
        Form().SetColor(clLime);
        auto* bevel = Make<TBevel>({10, 10, 30, 25});
        bevel->SetShape(shape);
        const Pixels pixels = ReadClient(Form().WindowHandle()).Part(bevel->GetBoundsRect());
        delete bevel;
        return pixels;
    }
    const COLORREF Dark = ColorToRGB(clBtnShadow);
    const COLORREF Light = ColorToRGB(clBtnHighlight);
    static constexpr COLORREF Ground = RGB(0, 255, 0);
};

TEST_F(BevelTest, LinesLieAtTheirEdge) {
    EXPECT_TRUE(SamePixels(Shape(bsTopLine), [&](int, int y) {
        return y == 0 ? Dark : y == 1 ? Light : Ground;
    }));
    EXPECT_TRUE(SamePixels(Shape(bsBottomLine), [&](int, int y) {
        return y == 13 ? Dark : y == 14 ? Light : Ground;
    }));
    EXPECT_TRUE(SamePixels(Shape(bsLeftLine), [&](int x, int) {
        return x == 0 ? Dark : x == 1 ? Light : Ground;
    }));
    EXPECT_TRUE(SamePixels(Shape(bsRightLine), [&](int x, int) {
        return x == 18 ? Dark : x == 19 ? Light : Ground;
    }));
}

TEST_F(BevelTest, ABoxIsOnePixelAndAFrameTwo) {
    const auto ring = [](int x, int y) { return std::min({x, y, 19 - x, 14 - y}); };
    const Pixels box = Shape(TBevelShape::bsBox);
    const Pixels frame = Shape(TBevelShape::bsFrame);
    for (int y = 0; y < 15; ++y)
        for (int x = 0; x < 20; ++x) {
            EXPECT_EQ(box.At(x, y) != Ground, ring(x, y) == 0) << x << ", " << y;
            EXPECT_EQ(frame.At(x, y) != Ground, ring(x, y) <= 1) << x << ", " << y;
        }
    EXPECT_EQ(box.At(0, 0), Dark);
    EXPECT_EQ(box.At(19, 14), Light);
    EXPECT_EQ(frame.At(1, 1), Light);
    EXPECT_EQ(frame.At(18, 13), Dark);
}

TEST_F(BevelTest, ASpacerDrawsNothing) {
    EXPECT_EQ(Shape(bsSpacer).Count(Ground), 20 * 15);
}

}  // namespace
}  // namespace test
