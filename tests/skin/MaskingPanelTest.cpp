#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/graphics/Regions.h"
#include "skin/UnitQV7SkinMasking.h"
#include "skin/surfaces/FlickerFreePanel.h"
#include "skin/utils/BitmapRegion.h"
#include "tests/skin/ControlTest.h"

namespace qv7skin {
namespace {

using probes::BitmapOf;
using probes::Magenta;
using probes::PixelsOf;
using test::Pixels;

/// A masking panel whose mask is a given picture, or an error.
class TTestMaskingPanel : public TCustomMaskingPanel {
public:
    using TCustomMaskingPanel::TCustomMaskingPanel;
    std::unique_ptr<TBitmap> CreateMask(TSize Size) override {
        Asked = Size;
        if (Fails) throw EResNotFound(L"Resource MASKTOPLEFT not found");
        return BitmapOf(Size.Width, Size.Height, Color);
    }
    TColor Color = clBlack;
    TSize Asked;
    bool Fails = false;
};

class MaskingPanelTest : public probes::ControlTest {
protected:
    static constexpr TColor PanelColor = 0x00112233;

    void SetUp() override {
        ControlTest::SetUp();
        FMasked = MakePanel({20, 30, 120, 70}, PanelColor);
    }

    /// The region of a window, or none.
    static TRegionHandle RegionOf(TWinControl& control) {
        TRegionHandle region = RectRegion({});
        if (GetWindowRgn(control.GetHandle(), region.Get()) == ERROR) return {};
        return region;
    }
    static bool SameRegion(const TRegionHandle& a, const TRegionHandle& b) {
        return a && b && EqualRgn(a.Get(), b.Get()) != FALSE;
    }

    TPanel* FMasked = nullptr;  // the form's
};

TEST_F(MaskingPanelTest, MaskingLaysAPanelOverTheControl) {
    TTestMaskingPanel masking(nullptr);
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_EQ(masking.TransparentColor, Magenta);
    masking.Control = FMasked;
    masking.Mask();
    EXPECT_TRUE(masking.GetMasked());
    TFlickerFreePanel* panel = masking.GetMaskPanel();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->GetParent(), FMasked);
    EXPECT_EQ(panel->GetOwner(), nullptr);
    EXPECT_EQ(panel->GetAlign(), alClient);
    EXPECT_EQ(panel->GetBevelOuter(), bvNone);
    EXPECT_TRUE(panel->GetVisible());
    EXPECT_TRUE(panel->GetDoubleBuffered());
    EXPECT_EQ(panel->GetBoundsRect(), TRect(0, 0, 100, 40));
    EXPECT_EQ(masking.Asked, TSize(100, 40));
}

TEST_F(MaskingPanelTest, TheMaskStandsInFrontOfOtherChildren) {
    auto* child = Make<TPanel>({0, 0, 50, 20}, FMasked);
    TTestMaskingPanel masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    EXPECT_EQ(FMasked->GetControl(FMasked->GetControlCount() - 1), masking.GetMaskPanel());
    EXPECT_EQ(GetWindow(child->GetHandle(), GW_HWNDFIRST), masking.GetMaskPanel()->GetHandle());
}

TEST_F(MaskingPanelTest, MaskingTwiceLeavesOnePanel) {
    TTestMaskingPanel masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    TFlickerFreePanel* panel = masking.GetMaskPanel();
    masking.Mask();
    masking.SetMasked(true);
    EXPECT_EQ(masking.GetMaskPanel(), panel);
    EXPECT_EQ(FMasked->GetControlCount(), 1);
}

TEST_F(MaskingPanelTest, WithoutAControlNothingIsMasked) {
    TTestMaskingPanel masking(nullptr);
    masking.Mask();
    masking.SetMasked(true);
    EXPECT_FALSE(masking.GetMasked());
    masking.Unmask();
    masking.ApplyMask(*BitmapOf(3, 3, clRed));
    EXPECT_FALSE(masking.GetMasked());
}

TEST_F(MaskingPanelTest, UnmaskingRemovesThePanel) {
    TTestMaskingPanel masking(nullptr);
    masking.Control = FMasked;
    masking.SetMasked(true);
    masking.SetMasked(false);
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_EQ(FMasked->GetControlCount(), 0);
    EXPECT_EQ(masking.Control, FMasked);
    masking.Mask();
    EXPECT_TRUE(masking.GetMasked());
}

TEST_F(MaskingPanelTest, TheEndOfTheComponentUnmasks) {
    {
        TMaskingPanelImagesFromResource masking(nullptr);
        masking.Control = FMasked;
        masking.Mask();
        EXPECT_EQ(FMasked->GetControlCount(), 1);
    }
    EXPECT_EQ(FMasked->GetControlCount(), 0);
}

TEST_F(MaskingPanelTest, AnErrorOnTheWayLeavesTheControlUnmasked) {
    TTestMaskingPanel masking(nullptr);
    masking.Control = FMasked;
    masking.Fails = true;
    EXPECT_EQ(probes::MessageOf<EResNotFound>([&] { masking.Mask(); }), L"Resource MASKTOPLEFT not found");
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_EQ(FMasked->GetControlCount(), 0);
    EXPECT_EQ(Shown(*FMasked).Count(PanelColor), 4000);
    masking.Fails = false;
    masking.Mask();
    EXPECT_TRUE(masking.GetMasked());
}

TEST_F(MaskingPanelTest, AControlInNoWindowCannotBeMasked) {
    TPanel loose(nullptr);
    TTestMaskingPanel masking(nullptr);
    masking.Control = &loose;
    EXPECT_THROW(masking.Mask(), EInvalidOperation);
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_EQ(loose.GetControlCount(), 0);
}

TEST_F(MaskingPanelTest, FreeingTheMaskedControlTakesTheMaskAlong) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    FMasked->Free();
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_EQ(masking.Control, nullptr);
    masking.Unmask();
    masking.Mask();
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_EQ(Shown(Form()).Count(FormColor), 400 * 300);  // the form paints what was below
}

TEST_F(MaskingPanelTest, FreeingWhatTheControlStandsOnTakesTheMaskAlong) {
    auto* host = MakePanel({0, 0, 200, 100}, clRed);
    FMasked->SetParent(host);
    TMaskingPanelEllipse masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    host->Free();
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_EQ(masking.Control, nullptr);
}

TEST_F(MaskingPanelTest, TheRegionIsThatOfTheMasksPixels) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    const auto mask = masking.CreateMask({100, 40});
    EXPECT_TRUE(SameRegion(RegionOf(*masking.GetMaskPanel()), BitmapToRegion(mask.get(), false)));
}

TEST_F(MaskingPanelTest, AnotherTransparentColorCutsOtherPixels) {
    TTestMaskingPanel masking(nullptr);
    masking.Control = FMasked;
    masking.TransparentColor = clBlack;
    masking.Mask();
    EXPECT_TRUE(SameRegion(RegionOf(*masking.GetMaskPanel()), RectRegion({})));
    masking.Unmask();
    masking.TransparentColor = clRed;
    masking.Mask();
    EXPECT_TRUE(SameRegion(RegionOf(*masking.GetMaskPanel()), RectRegion({0, 0, 100, 40})));
}

TEST_F(MaskingPanelTest, AControlWithoutAreaShowsNothingOfTheMaskWhenItGrows) {
    FMasked->SetBounds(20, 30, 0, 0);
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    FMasked->SetBounds(20, 30, 50, 20);
    EXPECT_EQ(Shown(*FMasked).Count(PanelColor), 1000);
}

TEST_F(MaskingPanelTest, AWindowMadeAnewKeepsTheShape) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    const Pixels before = Shown(*FMasked);
    const TRegionHandle shape = RegionOf(*masking.GetMaskPanel());
    FMasked->RecreateWnd();
    test::PumpAll();
    EXPECT_TRUE(SameRegion(RegionOf(*masking.GetMaskPanel()), shape));
    EXPECT_TRUE(SamePixels(Shown(*FMasked), before));
}

TEST_F(MaskingPanelTest, TheResourceMaskFramesTheControl) {
    for (const bool white : {false, true}) {
        TMaskingPanelImagesFromResource masking(nullptr);
        masking.Control = FMasked;
        masking.SetWhiteBackground(white);
        masking.Mask();
        TBitmap mask(100, 40, pf24bit);
        ComposeNinePartFrame(mask, TNinePartBitmaps(white ? L"MASKWHITE" : L"MASK").Pieces(), Magenta);
        const Pixels frame = PixelsOf(mask);
        EXPECT_TRUE(SamePixels(Shown(*FMasked), [&](int x, int y) {
            return frame.At(x, y) == Magenta ? COLORREF{PanelColor} : frame.At(x, y);
        }));
    }
}

TEST_F(MaskingPanelTest, ALowControlShowsNoSideEdges) {
    FMasked->SetBounds(20, 30, 100, 20);
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    const auto mask = masking.CreateMask({100, 20});
    const TNinePartBitmaps pieces(L"MASK");
    TBitmap corners(100, 20, pf24bit);
    corners.GetCanvas().GetBrush().SetColor(Magenta);
    corners.GetCanvas().FillRect({0, 0, 100, 20});
    for (int x = 15; x < 85; ++x) {
        corners.GetCanvas().Draw(x, 0, &pieces[fposTopCenter]);
        corners.GetCanvas().Draw(x, 18, &pieces[fposBottomCenter]);
    }
    corners.GetCanvas().Draw(0, 0, &pieces[fposTopLeft]);
    corners.GetCanvas().Draw(85, 0, &pieces[fposTopRight]);
    corners.GetCanvas().Draw(0, 8, &pieces[fposBottomLeft]);
    corners.GetCanvas().Draw(85, 8, &pieces[fposBottomRight]);
    EXPECT_TRUE(SamePixels(PixelsOf(*mask), PixelsOf(corners)));
}

TEST_F(MaskingPanelTest, WhiteBackgroundShowsAtOnceWhileMasked) {
    TMaskingPanelImagesFromResource masking(nullptr);
    EXPECT_FALSE(masking.GetWhiteBackground());
    masking.Control = FMasked;
    masking.Mask();
    masking.SetWhiteBackground(true);
    EXPECT_TRUE(masking.GetMasked());
    const Pixels changed = Shown(*FMasked);
    masking.Unmask();
    masking.Mask();
    EXPECT_TRUE(SamePixels(Shown(*FMasked), changed));
}

TEST_F(MaskingPanelTest, WhiteBackgroundIsOnlyStoredWhileUnmasked) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.SetWhiteBackground(true);
    EXPECT_FALSE(masking.GetMasked());
    EXPECT_TRUE(masking.GetWhiteBackground());
    masking.Mask();
    TBitmap mask(100, 40, pf24bit);
    ComposeNinePartFrame(mask, TNinePartBitmaps(L"MASKWHITE").Pieces(), Magenta);
    EXPECT_TRUE(SamePixels(PixelsOf(*masking.CreateMask({100, 40})), PixelsOf(mask)));
}

TEST_F(MaskingPanelTest, TheEllipseCoversTheCornersWithTheControlsColor) {
    TMaskingPanelEllipse masking(nullptr);
    masking.Control = FMasked;
    const auto mask = masking.CreateMask({60, 40});
    const Pixels picture = PixelsOf(*mask);
    TBitmap expected(60, 40, pf24bit);
    TCanvas& canvas = expected.GetCanvas();
    canvas.GetBrush().SetColor(PanelColor);
    canvas.FillRect({0, 0, 60, 40});
    canvas.GetBrush().SetColor(Magenta);
    canvas.GetPen().SetColor(Magenta);
    canvas.Ellipse(0, 0, 60, 40);
    EXPECT_TRUE(SamePixels(picture, PixelsOf(expected)));
    EXPECT_EQ(picture.At(0, 0), PanelColor);
    EXPECT_EQ(picture.At(30, 20), Magenta);

    masking.Mask();
    EXPECT_TRUE(SameRegion(RegionOf(*masking.GetMaskPanel()),
                           BitmapToRegion(masking.CreateMask({100, 40}).get(), false)));
}

TEST_F(MaskingPanelTest, TheEllipseHidesWhatStandsInTheCorners) {
    MakePanel({0, 0, 100, 40}, clRed, FMasked);
    TMaskingPanelEllipse masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    const auto mask = masking.CreateMask({100, 40});
    const Pixels picture = PixelsOf(*mask);
    EXPECT_TRUE(SamePixels(Shown(*FMasked), [&](int x, int y) {
        return picture.At(x, y) == Magenta ? COLORREF{clRed} : COLORREF{PanelColor};
    }));
}

// --- The frame of eight image controls

class MaskingPanelImagesTest : public MaskingPanelTest {
protected:
    void SetUp() override {
        MaskingPanelTest::SetUp();
        FMasking = std::make_unique<TMaskingPanelImages>(nullptr);
        FPieces = std::make_unique<TNinePartBitmaps>(L"TABPRESSED");
        const auto fields = FieldsInOrderOfPositions();
        for (std::size_t i = 0; i < fields.size(); ++i) {
            FImages[i] = std::make_unique<TImage>(nullptr);
            (*FMasking).*fields[i] = FImages[i].get();
        }
        ShowPieces(*FPieces);
        FMasking->Control = FMasked;
    }
    void TearDown() override {
        FMasking.reset();
        FPieces.reset();
        for (auto& image : FImages)
            image.reset();
        MaskingPanelTest::TearDown();
    }
    void ShowPieces(const TNinePartBitmaps& pieces) {
        for (std::size_t i = 0; i < FImages.size(); ++i)
            FImages[i]->GetPicture().SetGraphic(&pieces[AllFramePositions[i]]);
    }
    using TField = TImage* TMaskingPanelImages::*;
    static std::array<TField, 8> FieldsInOrderOfPositions() {
        using M = TMaskingPanelImages;
        return {&M::ImageTopLeft,      &M::ImageTopMiddle,   &M::ImageTopRight,   &M::ImageBottomLeft,
                &M::ImageBottomMiddle, &M::ImageBottomRight, &M::ImageLeftMiddle, &M::ImageRightMiddle};
    }
    [[nodiscard]] Pixels Frame(int width, int height) const {
        TBitmap mask(width, height, pf24bit);
        ComposeNinePartFrame(mask, FPieces->Pieces(), Magenta);
        return PixelsOf(mask);
    }

    std::unique_ptr<TNinePartBitmaps> FPieces;
    std::array<std::unique_ptr<TImage>, 8> FImages;
    std::unique_ptr<TMaskingPanelImages> FMasking;
};

TEST_F(MaskingPanelImagesTest, TheirPicturesMakeTheFrame) {
    EXPECT_TRUE(SamePixels(PixelsOf(*FMasking->CreateMask({50, 30})), Frame(50, 30)));
    FMasking->Mask();
    const Pixels frame = Frame(100, 40);
    EXPECT_TRUE(SamePixels(Shown(*FMasked), [&](int x, int y) {
        return frame.At(x, y) == Magenta ? COLORREF{PanelColor} : frame.At(x, y);
    }));
}

TEST_F(MaskingPanelImagesTest, AMissingImageOrPictureMasksNothing) {
    const auto fields = FieldsInOrderOfPositions();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        (*FMasking).*fields[i] = nullptr;
        FMasking->Mask();
        EXPECT_FALSE(FMasking->GetMasked()) << i;
        (*FMasking).*fields[i] = FImages[i].get();
        FImages[i]->GetPicture().SetGraphic(nullptr);
        FMasking->Mask();
        EXPECT_FALSE(FMasking->GetMasked()) << i;
        FImages[i]->GetPicture().SetGraphic(&(*FPieces)[AllFramePositions[i]]);
    }
    FMasking->Mask();
    EXPECT_TRUE(FMasking->GetMasked());
}

TEST_F(MaskingPanelImagesTest, WithoutAControlNothingIsMasked) {
    FMasking->Control = nullptr;
    FMasking->Mask();
    EXPECT_FALSE(FMasking->GetMasked());
}

TEST_F(MaskingPanelImagesTest, MaskingAgainTakesNewPicturesAndLeavesOnePanel) {
    FMasking->Mask();
    const TNinePartBitmaps other(L"TABHOVERED");
    ShowPieces(other);
    FMasking->Mask();
    EXPECT_EQ(FMasked->GetControlCount(), 1);
    EXPECT_EQ(FMasking->GetMaskPanel()->GetControlCount(), 1);
    TBitmap mask(100, 40, pf24bit);
    ComposeNinePartFrame(mask, other.Pieces(), Magenta);
    const auto* image = dynamic_cast<TImage*>(FMasking->GetMaskPanel()->GetControl(0));
    ASSERT_NE(image, nullptr);
    const auto* shown = dynamic_cast<const TBitmap*>(image->GetPicture().GetGraphic());
    ASSERT_NE(shown, nullptr);
    EXPECT_TRUE(SamePixels(test::ReadDC(shown->GetSourceDC(), {0, 0, 100, 40}), PixelsOf(mask)));
}

TEST_F(MaskingPanelImagesTest, AFreedImageLeavesItsPlaceEmpty) {
    FMasking->Mask();
    FMasking->Unmask();
    FImages[0]->FreeNotification(FMasking.get());
    FImages[0].reset();
    EXPECT_EQ(FMasking->ImageTopLeft, nullptr);
    FMasking->Mask();
    EXPECT_FALSE(FMasking->GetMasked());
}

TEST_F(MaskingPanelImagesTest, CreatingAMaskWithoutPicturesIsAnError) {
    FMasking->ImageTopLeft = nullptr;
    EXPECT_THROW((void)FMasking->CreateMask({10, 10}), EInvalidOperation);
}

// --- Published properties

TEST(MaskingPanelPropertiesTest, ArePublishedInTheirOrder) {
    const auto namesOf = [](const TMetaClass& meta) {
        String names;
        for (const TPublishedProperty* property : meta.AllProperties())
            if (String name = property->Name(); name != L"Name" && name != L"Tag") names += name + L" ";
        return names;
    };
    EXPECT_EQ(namesOf(TMaskingPanelEllipse::StaticClass()), L"Masked Control TransparentColor ");
    EXPECT_EQ(namesOf(TMaskingPanelImages::StaticClass()),
              L"Masked Control TransparentColor ImageTopLeft ImageTopMiddle ImageTopRight ImageLeftMiddle "
              L"ImageRightMiddle ImageBottomLeft ImageBottomMiddle ImageBottomRight ");
    EXPECT_EQ(namesOf(TMaskingPanelImagesFromResource::StaticClass()),
              L"Masked Control TransparentColor WhiteBackground ");
}

TEST_F(MaskingPanelTest, AFormFileMayMaskBeforeItNamesTheControl) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.BeginLoading();
    masking.SetMasked(true);
    EXPECT_FALSE(masking.GetMasked());
    masking.Control = FMasked;
    masking.EndLoading();
    EXPECT_TRUE(masking.GetMasked());
}

TEST_F(MaskingPanelTest, AControlOfAFormFileThatIsFreedIsForgottenUnmaskedToo) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.BeginLoading();
    masking.Control = FMasked;
    masking.EndLoading();
    delete FMasked;
    EXPECT_EQ(masking.Control, nullptr);
}

TEST_F(MaskingPanelTest, ThePictureCoversTheWholeMask) {
    FMasked->SetBounds(20, 30, 250, 160);
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    EXPECT_EQ(masking.GetMaskPanel()->GetControl(0)->GetBoundsRect(), TRect(0, 0, 250, 160));
}

/// Tells whether the panel showed while its picture was made.
class TWatchingEllipse : public TMaskingPanelEllipse {
public:
    using TMaskingPanelEllipse::TMaskingPanelEllipse;
    std::unique_ptr<TBitmap> CreateMask(TSize Size) override {
        Showed = GetMaskPanel()->GetVisible();
        return TMaskingPanelEllipse::CreateMask(Size);
    }
    bool Showed = true;
};

TEST_F(MaskingPanelTest, ThePanelShowsOnlyWhenItHasItsShape) {
    TWatchingEllipse masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    EXPECT_FALSE(masking.Showed);
    EXPECT_TRUE(masking.GetMaskPanel()->GetVisible());
}

TEST_F(MaskingPanelTest, BeingLoadedAgainMasksOnlyWhenTheFileSaysSo) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.BeginLoading();
    masking.SetMasked(true);
    masking.Control = FMasked;
    masking.EndLoading();
    masking.Unmask();
    masking.BeginLoading();
    masking.EndLoading();
    EXPECT_FALSE(masking.GetMasked());
}

// --- Many times

TEST_F(MaskingPanelTest, MaskingManyTimesLeavesNothingBehind) {
    TMaskingPanelImagesFromResource masking(nullptr);
    masking.Control = FMasked;
    masking.Mask();
    masking.Unmask();
    const auto before = test::ResourceSnapshot::Take();
    for (int i = 0; i < 200; ++i) {
        masking.Mask();
        masking.Unmask();
    }
    EXPECT_EQ(before.ChangeSince(), "");
}

}  // namespace
}  // namespace qv7skin
