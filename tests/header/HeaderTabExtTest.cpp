#include "header/items/HeaderItemTabExt.h"

#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "skin/surfaces/Loaders.h"
#include "tests/header/HeaderFixture.h"

namespace qv7skin {
namespace {

using probes::Magenta;
using probes::TProbeStrip;
using test::Pixels;
using Tab = TQV7SkinHeaderItemTabExt;

class HeaderTabExtTest : public probes::HeaderTest {
protected:
    void SetUp() override {
        HeaderTest::SetUp();
        FTab = AddTabExt(L"Caption");
        Watch(*FTab, "tab");
        FTab->OnClose = [this](TQV7SkinHeaderItemCustom*) { Log.push_back("close"); };
    }
    [[nodiscard]] TRect Rect() const { return Header->GetItemRect(0); }
    void ClickAt(const TRect& button) {
        Input.ClickAt(Surface(), (button.Left + button.Right) / 2, (button.Top + button.Bottom) / 2);
    }
    /// The picture of that name lies, but for its magenta pixels, on what the strip shows.
    static void ExpectPicture(const Pixels& shown, const TRect& place, const wchar_t* name) {
        const std::unique_ptr<TBitmap> bitmap = CreateBmp(name);
        const Pixels picture = test::ReadBitmap(bitmap->GetHandle());
        ASSERT_EQ(picture.Width(), place.Width());
        ASSERT_EQ(picture.Height(), place.Height());
        int opaque = 0;
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x) {
                if (picture.At(x, y) == Magenta) continue;
                ++opaque;
                EXPECT_EQ(shown.At(place.Left + x, place.Top + y), picture.At(x, y)) << name;
            }
        EXPECT_GT(opaque, 0);
    }

    Tab* FTab = nullptr;  // the strip's
};

TEST_F(HeaderTabExtTest, StartsWithAllStylesAndNoState) {
    EXPECT_EQ(FTab->GetStyle(), (THeaderItemTabExtStyles{tesAnimation, tesCloseable, tesLockable}));
    EXPECT_EQ(FTab->GetState(), THeaderItemTabExtStates{});
}

TEST_F(HeaderTabExtTest, MeasuresOneColumnOfButtonsAndTheMarker) {
    const int plain = TextWidth(L"Caption  ", {fsBold}) + 10;
    EXPECT_EQ(WidthOf(*FTab), plain + 10 + 5);
    FTab->SetStyle({tesCloseable, tesAnimation});
    EXPECT_EQ(WidthOf(*FTab), plain + 10 + 5);
    FTab->SetStyle({tesLockable});
    EXPECT_EQ(WidthOf(*FTab), plain + 10);
    FTab->SetStyle({tesAnimation});
    EXPECT_EQ(WidthOf(*FTab), plain + 5);
    FTab->SetStyle({});
    EXPECT_EQ(WidthOf(*FTab), plain);
}

TEST_F(HeaderTabExtTest, PlacesItsButtonsOneAboveTheOther) {
    const TRect item(100, 0, 200, 21);
    EXPECT_EQ(FTab->GetCloseRect(item), TRect(189, 4, 195, 10));
    EXPECT_EQ(FTab->GetLockRect(item), TRect(189, 11, 199, 19));
    FTab->SetTabBackground(bckgrndWhite);
    EXPECT_EQ(FTab->GetCloseRect(item), TRect(169, 4, 175, 10));
    EXPECT_EQ(FTab->GetLockRect(item), TRect(169, 11, 179, 19));
}

TEST_F(HeaderTabExtTest, AClickOnTheCloseButtonClosesAndNothingElse) {
    TQV7SkinHeaderItemTab* const other = AddTab(L"Other");
    other->SetSelected(true);
    ClickAt(FTab->GetCloseRect(Rect()));
    EXPECT_EQ(Items().GetCount(), 1);
    EXPECT_EQ(Items()[0], other);
    EXPECT_EQ(Log, (std::vector<std::string>{"enter tab", "close"}));
    EXPECT_TRUE(other->GetSelected());
}

TEST_F(HeaderTabExtTest, IsOutOfItsRowButAliveWhileItCloses) {
    FTab->OnClose = [&](TQV7SkinHeaderItemCustom* item) {
        EXPECT_EQ(item, FTab);
        EXPECT_EQ(item->GetCaption(), L"Caption");
        EXPECT_EQ(Items().GetCount(), 0);
    };
    FTab->Close();
    EXPECT_TRUE(SamePixels(Shown(), Pixels(300, 21, probes::RowColor)));
}

TEST_F(HeaderTabExtTest, TheRowIsPaintedAtOnceWhenItIsClosed) {
    const probes::TBarItem* const beside = AddBar(20);
    const int before = beside->Draws;
    FTab->Close();
    EXPECT_EQ(beside->Draws, before + 1);
}

TEST_F(HeaderTabExtTest, MayBeFreedWithItsControlWhileItCloses) {
    FTab->OnClose = [&](TQV7SkinHeaderItemCustom* item) {
        delete item;
        delete Header;
        Header = nullptr;
    };
    ClickAt(FTab->GetCloseRect(Rect()));
    EXPECT_EQ(Header, nullptr);
}

TEST_F(HeaderTabExtTest, ClosesWithoutAControl) {
    auto* const tab = new Tab(bckgrndStandard, L"A");
    int closes = 0;
    tab->OnClose = [&](TQV7SkinHeaderItemCustom*) { ++closes; };
    tab->Close();
    EXPECT_EQ(closes, 1);
}

TEST_F(HeaderTabExtTest, AClickOnTheLockLocksAndUnlocksAndNothingElse) {
    ClickAt(FTab->GetLockRect(Rect()));
    EXPECT_EQ(FTab->GetState(), (THeaderItemTabExtStates{tesLocked, tesHovered}));
    ExpectPicture(Shown(), FTab->GetLockRect(Rect()), L"TABLOCKDEFAULT");
    ClickAt(FTab->GetLockRect(Rect()));
    EXPECT_EQ(FTab->GetState(), THeaderItemTabExtStates{tesHovered});
    EXPECT_EQ(Log, std::vector<std::string>{"enter tab"});
    EXPECT_EQ(Items().GetCount(), 1);
}

TEST_F(HeaderTabExtTest, WithoutTheStylesTheButtonsAreTab) {
    FTab->SetStyle({});
    Header->Refresh();
    ClickAt(FTab->GetCloseRect(Rect()));
    ClickAt(FTab->GetLockRect(Rect()));
    EXPECT_TRUE(FTab->GetSelected());
    EXPECT_EQ(Items().GetCount(), 1);
    EXPECT_FALSE(FTab->GetState().Contains(tesLocked));
    EXPECT_EQ(Log.size(), 3u);
}

TEST_F(HeaderTabExtTest, AClickElsewhereIsAClickOnTheTab) {
    Input.ClickAt(Surface(), 30, 10);
    EXPECT_TRUE(FTab->GetSelected());
    EXPECT_EQ(Log.back(), "click tab 30,10");
    EXPECT_EQ(FTab->GetState(), (THeaderItemTabExtStates{tesSelected, tesHovered}));
}

TEST_F(HeaderTabExtTest, KeepsOfAStateWhatIsItsOwn) {
    FTab->SetState({tesHovered, tesLocked, tesAnimated});
    EXPECT_EQ(FTab->GetState(), (THeaderItemTabExtStates{tesLocked, tesAnimated}));
    FTab->SetState({tesHovered});
    EXPECT_EQ(FTab->GetState(), THeaderItemTabExtStates{});
    FTab->SetState({tesSelected});
    EXPECT_EQ(Header->GetSelectedItem(), FTab);
    FTab->SetState({});
    EXPECT_TRUE(FTab->GetSelected());
}

TEST_F(HeaderTabExtTest, AStateThatChangesNothingPaintsTheRowToo) {
    const probes::TBarItem* const beside = AddBar(20);
    test::PumpAll();
    const int before = beside->Draws;
    FTab->SetState({});
    EXPECT_EQ(beside->Draws, before);
    test::PumpAll();
    EXPECT_EQ(beside->Draws, before + 1);
}

TEST_F(HeaderTabExtTest, WantsTheHandOverItsButtons) {
    const TRect item(20, 0, 120, 21);
    const TRect close = FTab->GetCloseRect(item), lock = FTab->GetLockRect(item);
    for (int y = 0; y < 21; ++y)
        for (int x = 20; x < 120; ++x) {
            TCursor cursor = crDefault;
            const bool hit = FTab->PtInValidRect(item, {x, y}, cursor);
            const bool onButton = close.Contains({x, y}) || lock.Contains({x, y});
            ASSERT_EQ(cursor, hit && onButton ? crHandPoint : crDefault) << x << "," << y;
        }
    FTab->SetStyle({tesLockable});
    TCursor cursor = crDefault;
    EXPECT_TRUE(FTab->PtInValidRect(item, {close.Left + 1, close.Top + 1}, cursor));
    EXPECT_EQ(cursor, crDefault);
}

TEST_F(HeaderTabExtTest, TheStripDoesNotShowTheHand) {
    const TRect close = FTab->GetCloseRect(Rect());
    Input.MoveTo(Surface(), close.Left + 2, close.Top + 2);
    EXPECT_EQ(Header->GetPaintBox().GetCursor(), crDefault);
}

TEST_F(HeaderTabExtTest, ShowsThePicturesOfItsState) {
    const TRect close = FTab->GetCloseRect(Rect()), lock = FTab->GetLockRect(Rect());
    Pixels shown = Shown();
    ExpectPicture(shown, close, L"TABCLOSEDEFAULT");
    ExpectPicture(shown, lock, L"TABUNLOCKDEFAULT");
    FTab->SetState({tesSelected});
    shown = Shown();
    ExpectPicture(shown, close, L"TABCLOSEPRESSED");
    ExpectPicture(shown, lock, L"TABUNLOCKPRESSED");
    FTab->SetState({tesLocked});
    ExpectPicture(Shown(), lock, L"TABLOCKPRESSED");
    Header->SetSelectedItem(nullptr);
    ExpectPicture(Shown(), lock, L"TABLOCKDEFAULT");
}

TEST_F(HeaderTabExtTest, TheCaptionBeginsAfterMarkerAndPicture) {
    const auto textLeft = [&](const wchar_t* caption) {
        FTab->SetCaption(caption);
        const Pixels shown = DrawnItem(*FTab, 0, 120, 21, pf24bit);
        return shown.Bounds([](COLORREF c) { return c == 0x007E7E7E; }).left;
    };
    TBitmap picture(12, 12, pf24bit);
    FTab->SetStyle({});
    const auto without = textLeft(L"|");  // 7 pixels and the bearing of the letter
    EXPECT_GE(without, 7);
    EXPECT_LT(without, 7 + 4);
    FTab->SetStyle({tesAnimation});
    EXPECT_EQ(textLeft(L"|"), without + 5);
    FTab->SetImage(&picture);
    EXPECT_EQ(textLeft(L"|"), without - 7 + 5 + 5 + 12 + 3);
}

/// A strip whose marker is a bar of five pixels.
class TMarkedStrip : public probes::TProbeStrip, public THeaderAnimationPainter {
public:
    using TProbeStrip::TProbeStrip;
    void DrawAnimation(TCanvas& Canvas, int State, int X) override {
        States.push_back(State);
        Canvas.GetBrush().SetColor(clLime);
        Canvas.FillRect({X, 3, X + 5, 18});
    }
    std::vector<int> States;
};

TEST_F(HeaderTabExtTest, ShowsTheMarkerWhileItIsAnimated) {
    auto* const strip = Make<TMarkedStrip>({20, 80, 320, 101});
    auto* const tab = new Tab(bckgrndStandard, L"");
    strip->GetItems().Add(tab);
    EXPECT_TRUE(strip->States.empty());
    tab->SetState({tesAnimated});
    test::PumpAll();
    const Pixels shown = test::ReadClient(strip->GetHandle());
    EXPECT_EQ(shown.Count(clLime), 5 * 15);
    EXPECT_EQ(shown.At(5, 3), COLORREF{clLime});
    tab->SetSelected(true);
    strip->Refresh();
    EXPECT_EQ(strip->States, (std::vector<int>{0, 2}));
    tab->SetStyle({tesCloseable});
    strip->Refresh();
    EXPECT_EQ(strip->States.size(), 2u);
}

}  // namespace
}  // namespace qv7skin
