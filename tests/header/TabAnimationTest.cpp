#include "platform/vcl/stdctrls/Timer.h"
#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;
using test::Pixels;

class TabAnimation : public StripTest<TQV7SkinTabControl> {
protected:
    void Tick() {
        TTimer& timer = Strip->GetAnimationTimer();
        timer.OnTimer(&timer);
    }
    /// Whether the frame is shown in the tab whose left edge is at `left`: all pixels that it has.
    [[nodiscard]] bool Shows(int frame, const wchar_t* suffix, int left) {
        const Pixels picture = Piece(L"TABANIMATION" + std::to_wstring(frame) + suffix);
        const Pixels shown = Shown();
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x) {
                const COLORREF color = picture.At(x, y);
                if (color != static_cast<COLORREF>(NoPixel) && shown.At(left + 5 + x, 3 + y) != color)
                    return false;
            }
        return true;
    }
};

TEST_F(TabAnimation, BeginsWithTheLoadingStep) {
    EXPECT_FALSE(Strip->GetAnimationTimer().GetEnabled());
    EXPECT_EQ(Strip->GetAnimationTimer().GetInterval(), 500u);
    Strip->Loaded();
    EXPECT_TRUE(Strip->GetAnimationTimer().GetEnabled());
    EXPECT_EQ(Strip->GetAnimationFrame(), 0);
}

TEST_F(TabAnimation, StandsStillAtDesignTime) {
    Strip->SetDesigning(true);
    Strip->Loaded();
    EXPECT_FALSE(Strip->GetAnimationTimer().GetEnabled());
}

TEST_F(TabAnimation, RunsToAndFroOnTheTimer) {
    Strip->Loaded();
    std::vector<int> frames;
    Strip->OnAnimationStep = [&](TObject*) { frames.push_back(Strip->GetAnimationFrame()); };
    Strip->GetAnimationTimer().SetInterval(10);
    ASSERT_TRUE(test::PumpUntil([&] { return frames.size() >= 7; }));
    frames.resize(7);
    EXPECT_EQ(frames, (std::vector<int>{1, 2, 1, 0, 1, 2, 1}));
}

TEST_F(TabAnimation, TheMarkerShowsOnAnimatedTabs) {
    Strip->Loaded();
    TQV7SkinHeaderItemTabExt* tab = AddExt(L"Laden");
    ASSERT_FALSE(Shows(0, L"DEFAULT", 0)) << "not animated";
    tab->SetState({tesAnimated});
    EXPECT_TRUE(Shows(0, L"DEFAULT", 0));
    Tick();
    EXPECT_TRUE(Shows(1, L"DEFAULT", 0));
    EXPECT_FALSE(Shows(0, L"DEFAULT", 0));
    tab->SetSelected(true);
    EXPECT_TRUE(Shows(1, L"PRESSED", 0));
    Tick();
    EXPECT_TRUE(Shows(2, L"PRESSED", 0));
    tab->SetStyle({tesCloseable});
    EXPECT_FALSE(Shows(2, L"PRESSED", 0)) << "the style lets the marker show";
}

TEST_F(TabAnimation, EveryExtendedTabIsRenderedAnewByATick) {
    Strip->Loaded();
    TQV7SkinHeaderItemTabExt* plain = AddExt(L"A");
    plain->SetStyle({});
    TQV7SkinHeaderItemTab* tab = AddTab(L"B");
    bool marked = false;
    (void)Shown();
    Strip->OnAnimationStep = [&](TObject*) { EXPECT_FALSE(plain->GetNeedsRender()); };
    Strip->BeginUpdate();  // nothing is painted, so the mark stays to be seen
    Tick();
    marked = plain->GetNeedsRender();
    EXPECT_TRUE(marked);
    EXPECT_FALSE(tab->GetNeedsRender());
    Strip->EndUpdate();
}

TEST_F(TabAnimation, ATickPaintsOnlyWhenThereAreExtendedTabs) {
    Strip->Loaded();
    AddTab(L"A");
    (void)Shown();
    int paints = 0;
    Items()[0]->OnDraw = [&](TQV7SkinHeaderItemCustom*, TCanvas&, int, int&) { ++paints; };
    Tick();
    test::PumpAll();
    EXPECT_EQ(paints, 0);
    AddExt(L"B");
    paints = 0;
    Tick();
    EXPECT_EQ(paints, 1);
}

TEST_F(TabAnimation, TheHandlerMayFreeTheControl) {
    Strip->Loaded();
    AddExt(L"A");
    Strip->OnAnimationStep = [&](TObject*) {
        if (Strip) std::exchange(Strip, nullptr)->Free();
    };
    Strip->GetAnimationTimer().SetInterval(10);
    EXPECT_TRUE(test::PumpUntil([&] { return Strip == nullptr; }));
}

/// A tab control that folds itself up.
class TabFolding : public StripTest<TQV7SkinTabControl> {
protected:
    void SetUp() override {
        StripTest::SetUp();
        Strip->SetHeight(27);
        Strip->Loaded();
    }
};

TEST_F(TabFolding, IsOffAtFirst) {
    EXPECT_FALSE(Strip->GetMinimizeIfItemCountZero());
    EXPECT_EQ(Strip->GetHeight(), 27);
}

TEST_F(TabFolding, TheLastTabTakesTheHeightWithIt) {
    AddTab(L"A");
    Strip->SetMinimizeIfItemCountZero(true);
    EXPECT_EQ(Strip->GetHeight(), 27);
    AddTab(L"B");
    Items().Delete(0);
    EXPECT_EQ(Strip->GetHeight(), 27);
    Items().Delete(0);
    EXPECT_EQ(Strip->GetHeight(), 0);
    AddTab(L"C");
    EXPECT_EQ(Strip->GetHeight(), 27);
}

TEST_F(TabFolding, SwitchingItOnFoldsAtOnce) {
    Strip->SetMinimizeIfItemCountZero(true);
    EXPECT_EQ(Strip->GetHeight(), 0);
    Strip->SetMinimizeIfItemCountZero(false);
    EXPECT_EQ(Strip->GetHeight(), 0) << "switching it off changes nothing";
}

TEST_F(TabFolding, ClosingTheLastTabFoldsAndTheFormGetsTheRoom) {
    Strip->SetAlign(alTop);
    Strip->SetMinimizeIfItemCountZero(true);
    TQV7SkinHeaderItemTabExt* tab = AddExt(L"A");
    ASSERT_EQ(Strip->GetHeight(), 27);
    tab->Close();
    EXPECT_EQ(Strip->GetHeight(), 0);
}

TEST_F(TabFolding, ItFoldsWhenLoaded) {
    auto* fresh = new TQV7SkinTabControl(nullptr);
    fresh->SetBounds(20, 100, 200, 30);
    fresh->SetParent(&Form());
    fresh->SetMinimizeIfItemCountZero(true);
    EXPECT_EQ(fresh->GetHeight(), 0);
    fresh->SetHeight(24);
    fresh->Loaded();
    EXPECT_EQ(fresh->GetHeight(), 0);
    fresh->GetItems().Add(new TQV7SkinHeaderItemTab(bckgrndStandard, L"A"));
    EXPECT_EQ(fresh->GetHeight(), 24);
}

}  // namespace
}  // namespace qv7skin
