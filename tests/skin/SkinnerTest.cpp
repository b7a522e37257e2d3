#include "skin/masking/Skinner.h"

#include "skin/UnitQV7SkinMasking.h"
#include "tests/skin/ControlTest.h"

namespace qv7skin {
namespace {

using probes::Magenta;
using probes::PixelsOf;

class SkinnerTest : public probes::ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        FHost = MakePanel({0, 0, 200, 150}, FormColor);
        FControl = MakePanel({10, 10, 110, 40}, clRed, FHost);
    }
    TPanel* FHost = nullptr;     // the form's
    TPanel* FControl = nullptr;  // the host's
};

TEST_F(SkinnerTest, ItsPanelStandsInTheControlsParentInFront) {
    TSkinner skinner(FControl);
    ASSERT_NE(skinner.GetPanel(), nullptr);
    EXPECT_EQ(skinner.GetPanel()->GetParent(), FHost);
    EXPECT_EQ(FHost->GetControl(FHost->GetControlCount() - 1), skinner.GetPanel());
    EXPECT_EQ(skinner.GetMaskingPanel().Control, skinner.GetPanel());
    EXPECT_FALSE(skinner.GetMaskingPanel().GetMasked());
}

TEST_F(SkinnerTest, ThePanelReachesFurtherLeftAndUp) {
    TSkinner skinner(FControl);
    skinner.Resize();
    EXPECT_EQ(skinner.GetPanel()->GetBoundsRect(), TRect::OfSize(7, 8, 103, 32));
    EXPECT_TRUE(skinner.GetMaskingPanel().GetMasked());
    FControl->SetBounds(50, 60, 40, 50);
    skinner.Resize();
    EXPECT_EQ(skinner.GetPanel()->GetBoundsRect(), TRect::OfSize(47, 58, 43, 52));
    EXPECT_EQ(skinner.GetPanel()->GetControlCount(), 1);
}

TEST_F(SkinnerTest, TheControlShowsInsideTheFrameAlsoAfterItChangedItsSize) {
    TSkinner skinner(FControl);
    FControl->SetBounds(30, 40, 60, 50);
    skinner.Resize();
    FControl->SetBounds(10, 10, 100, 30);
    skinner.Resize();
    TBitmap mask(103, 32, pf24bit);
    ComposeNinePartFrame(mask, TNinePartBitmaps(L"MASK").Pieces(), Magenta);
    const test::Pixels frame = PixelsOf(mask);
    EXPECT_TRUE(SamePixels(Shown(*FHost).Part({0, 0, 130, 60}), [&](int x, int y) {
        const COLORREF piece = frame.At(x - 7, y - 8);
        if (piece != CLR_INVALID && piece != Magenta) return piece;
        const bool onControl = x >= 10 && x < 110 && y >= 10 && y < 40;
        return COLORREF{onControl ? clRed : FormColor};
    }));
}

TEST_F(SkinnerTest, ItsEndFreesThePanel) {
    const int children = FHost->GetControlCount();
    {
        TSkinner skinner(FControl);
        skinner.Resize();
        EXPECT_EQ(FHost->GetControlCount(), children + 1);
    }
    EXPECT_EQ(FHost->GetControlCount(), children);
}

TEST_F(SkinnerTest, OutlivesTheControl) {
    TSkinner skinner(FControl);
    skinner.Resize();
    FControl->Free();
    skinner.Resize();
    EXPECT_EQ(skinner.GetPanel()->GetBoundsRect(), TRect::OfSize(7, 8, 103, 32));
}

TEST_F(SkinnerTest, OutlivesTheParent) {
    TSkinner skinner(FControl);
    skinner.Resize();
    FHost->Free();
    EXPECT_EQ(skinner.GetPanel(), nullptr);
    EXPECT_FALSE(skinner.GetMaskingPanel().GetMasked());
    skinner.Resize();
}

TEST_F(SkinnerTest, WithoutAControlNothingIsFramed) {
    TSkinner skinner(nullptr);
    skinner.Resize();
    EXPECT_FALSE(skinner.GetMaskingPanel().GetMasked());
}

TEST_F(SkinnerTest, AControlInNoWindowCannotBeFramed) {
    TPanel loose(nullptr);
    TSkinner skinner(&loose);
    EXPECT_THROW(skinner.Resize(), EInvalidOperation);
    EXPECT_FALSE(skinner.GetMaskingPanel().GetMasked());
}

}  // namespace
}  // namespace qv7skin
