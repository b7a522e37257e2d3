#include "skin/masking/SkinContainer.h"

#include "skin/UnitQV7SkinMasking.h"
#include "tests/skin/ControlTest.h"
#include "tests/support/FreedMemory.h"

namespace qv7skin {
namespace {

using probes::Magenta;
using probes::PixelsOf;
using test::Pixels;

class SkinContainerTest : public probes::ControlTest {
protected:
    static Pixels Frame(int width, int height, bool white) {
        TBitmap mask(width, height, pf24bit);
        ComposeNinePartFrame(mask, TNinePartBitmaps(white ? L"MASKWHITE" : L"MASK").Pieces(), Magenta);
        return PixelsOf(mask);
    }
    /// A white area in the frame.
    static ::testing::AssertionResult IsFramed(TWinControl& control, bool white) {
        const Pixels frame = Frame(control.GetWidth(), control.GetHeight(), white);
        return SamePixels(Shown(control), [&](int x, int y) {
            return frame.At(x, y) == Magenta ? COLORREF{clWhite} : frame.At(x, y);
        });
    }
};

TEST_F(SkinContainerTest, IsAWhitePanelOf100By25) {
    TCustomQV7SkinContainer container(nullptr);
    EXPECT_EQ(container.GetWidth(), 100);
    EXPECT_EQ(container.GetHeight(), 25);
    EXPECT_EQ(container.GetBevelOuter(), bvNone);
    EXPECT_EQ(container.GetColor(), TColor{0x00FFFFFF});
    EXPECT_FALSE(container.GetDoubleBuffered());
    EXPECT_FALSE(container.GetWhiteBackground());
}

TEST_F(SkinContainerTest, RoundsItsOwnCorners) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    EXPECT_TRUE(IsFramed(*container, false));
}

TEST_F(SkinContainerTest, TheFrameFollowsItsSize) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    test::PumpAll();
    for (const TSize size : {TSize(60, 50), TSize(200, 24), TSize(31, 25), TSize(120, 20)}) {
        container->SetBounds(10, 10, size.Width, size.Height);
        EXPECT_TRUE(IsFramed(*container, false)) << size.Width << " x " << size.Height;
    }
}

TEST_F(SkinContainerTest, AWhiteBackgroundTakesTheOtherFrame) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    container->SetWhiteBackground(true);
    EXPECT_TRUE(container->GetWhiteBackground());
    EXPECT_TRUE(IsFramed(*container, true));
    container->SetWhiteBackground(false);
    EXPECT_FALSE(container->GetWhiteBackground());
    EXPECT_TRUE(IsFramed(*container, false));
}

TEST_F(SkinContainerTest, ErasingIsAnsweredAndDoesNothing) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    test::PumpAll();
    const HDC dc = GetDC(container->GetHandle());
    RECT corner{20, 10, 30, 20};
    FillRect(dc, &corner, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(SendMessageW(container->GetHandle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), 1);
    ReleaseDC(container->GetHandle(), dc);
    EXPECT_EQ(test::ReadWindow(container->GetHandle()).At(25, 15), COLORREF{clBlack});
}

TEST_F(SkinContainerTest, AWindowMadeAnewIsFramedAgain) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    test::PumpAll();
    for (int i = 0; i < 20; ++i)
        container->RecreateWnd();
    EXPECT_TRUE(IsFramed(*container, false));
    EXPECT_EQ(container->GetControlCount(), 1);
}

TEST_F(SkinContainerTest, ASizeWithoutAWindowIsFramedOnce) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    test::PumpAll();
    container->Hide();
    container->RecreateWnd();
    ASSERT_FALSE(container->HandleAllocated());
    {
        const test::FreedMemory freed;
        // The frame needs the window, which takes its size, and with it another frame.
        container->SetBounds(10, 10, 90, 50);
        EXPECT_EQ(test::FreedMemory::WrittenBlocks(), 0);
    }
    container->Show();
    EXPECT_EQ(container->GetControlCount(), 1);
    EXPECT_TRUE(IsFramed(*container, false));
}

TEST_F(SkinContainerTest, ItsEndTakesTheMaskAlong) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    test::PumpAll();
    EXPECT_EQ(container->GetControlCount(), 1);
    container->Free();
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(SkinContainerTest, ANothingOfASizeIsBearable) {
    auto* container = Make<TCustomQV7SkinContainer>({10, 10, 110, 40});
    test::PumpAll();
    container->SetBounds(10, 10, 0, 0);
    test::PumpAll();
    container->SetBounds(10, 10, 100, 30);
    EXPECT_TRUE(IsFramed(*container, false));
}

}  // namespace
}  // namespace qv7skin
