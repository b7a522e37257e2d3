// The code of docs/manual/foundation.md, line by line, and what the chapter says that it does.

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "skin/UnitBaseClasses.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinClasses.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/UnitQV7SkinMasking.h"
#include "tests/manual/ChapterTest.h"
#include "tests/support/PixelProbe.h"
#include "tests/support/SkinTesting.h"

namespace {

using namespace qv7skin;

class TMainForm : public TForm {
public:
    using TForm::TForm;

    void UseColors() {
        Label->GetFont().SetColor(GetQV7SkinColorLinkText());
        Panel->SetColor(GetQV7SkinColorBackground());
        StatusBar->SetCaption(L"Skin: " + GetCurrentSkinSelectionAsName());
    }
    void MaskMemo() {
        Mask = new TMaskingPanelImagesFromResource(this);
        Mask->Control = Memo1;
        Mask->SetWhiteBackground(true);  // the frame for white surroundings
        Mask->SetMasked(true);
    }
    void Memo1Resize(TObject*);
    void FrameTree(TPanel* Tree1) {
        FSkinner = std::make_unique<TSkinner>(Tree1);
        FSkinner->Resize();  // again whenever Tree1 moves or changes its size
    }
    void MakeBox() {
        Box = new TFlickerFreePaintBox(this);
        Box->SetParent(this);
        Box->SetAlign(alClient);
        Box->OnFFPaint = {this, &TMainForm::BoxPaint};
    }
    void BoxPaint(TObject*, TBitmap* buffer);
    void FadeAndShowBox() const {
        Box->ApplyDeform(0.5L, 0.5L, 0.3L);  // half the size, 70 % of the way to the box's colour
        Box->NoDeform();
    }
    void Listen(TObject* document) {
        TNotifyEventList listeners(false);
        listeners.Add({this, &TMainForm::DocumentSaved}, 1);
        listeners.DoNotify(document, 1);
        listeners.Remove({this, &TMainForm::DocumentSaved});
        Left = listeners.GetCount();
    }
    void DocumentSaved(TObject*) { ++Saved; }

    template <class Control>
    Control* Place(const TRect& bounds) {
        auto* control = new Control(this);
        control->SetBoundsRect(bounds);
        control->SetParent(this);
        return control;
    }
    TLabel* Label = Place<TLabel>({0, 0, 50, 20});
    TPanel* Panel = Place<TPanel>({0, 20, 100, 60});
    TPanel* StatusBar = Place<TPanel>({0, 60, 200, 80});
    TMemo* Memo1 = Place<TMemo>({10, 90, 150, 150});
    TMaskingPanelImagesFromResource* Mask = nullptr;
    TFlickerFreePaintBox* Box = nullptr;
    std::unique_ptr<TSkinner> FSkinner;
    int Saved = 0;
    int Left = -1;
};

void TMainForm::Memo1Resize(TObject*) {
    if (!Mask->GetMasked()) return;
    Mask->Unmask();
    Mask->Mask();
}

void TMainForm::BoxPaint(TObject*, TBitmap* buffer) {
    buffer->GetCanvas().TextOut(8, 8, L"Hello");  // filled with the box's colour, in its font
}

using FoundationChapterTest = test::ChapterTest<TMainForm>;

TEST_F(FoundationChapterTest, ColorsAreAskedFor) {
    Main().UseColors();
    EXPECT_EQ(Main().Panel->GetColor(), 0x00F0EAE7U);
    EXPECT_EQ(Main().StatusBar->GetCaption(), L"Skin: Weiß");
}

TEST_F(FoundationChapterTest, BitmapsAreLoadedByName) {
    const String name = FrameResourceName(SkinResourceName(L"SKINBUTTON", ssHovered), fposTopLeft);
    const std::unique_ptr<TBitmap> corner = CreateBmp(name);  // SKINBUTTONHOVEREDTOPLEFT
    EXPECT_EQ(name, L"SKINBUTTONHOVEREDTOPLEFT");
    EXPECT_EQ(corner->GetWidth(), 13);
}

TEST_F(FoundationChapterTest, AColorIsLeftOut) {
    TBitmap picture(4, 4, pf24bit);
    picture.GetCanvas().GetBrush().SetColor(clFuchsia);
    picture.GetCanvas().FillRect({0, 0, 4, 4});
    picture.GetCanvas().GetBrush().SetColor(clRed);
    picture.GetCanvas().FillRect({0, 0, 2, 4});
    TBitmap ground(20, 20, pf24bit);
    TCanvas& Canvas = ground.GetCanvas();
    const TRect row(0, 0, 20, 20);
    const int x = 12, y = 2;

    TTransparentBitmap glyph(0x00FF00FF);  // the colour comes before the picture
    glyph.SetBitmap(&picture);
    glyph.DrawCentered(Canvas, row, 4);  // vertically in the middle, 4 pixels from the left
    Canvas.SetCopyMode(cmSrcCopy);       // drawing leaves the canvas in source-PAINT

    DrawTransparentBitmap(Canvas, &picture, x, y, 0x00FF00FF);

    EXPECT_EQ(qv7skin::probes::PixelsOf(ground).Count(clRed), 16);
    EXPECT_EQ(qv7skin::probes::PixelsOf(ground).Count(clFuchsia), 0);
}

TEST_F(FoundationChapterTest, PicturesAreTonedCutAndFitted) {
    TBitmap picture(60, 20, pf24bit);
    HWND window = Main().Panel->GetHandle();
    auto* Image1 = Main().Place<TImage>({200, 0, 230, 40});

    GrayBitmap(&picture, 50, 0x00FF00FF);  // half grey, magenta stays
    DimBitmap(&picture, 30);               // 30 % of the way to white
    ReplaceColor(&picture, clFuchsia, clBtnFace);

    TRegionHandle shape = BitmapToRegion(&picture, false);               // every pixel that is not magenta
    if (SetWindowRgn(window, shape.Get(), TRUE)) (void)shape.Release();  // now the window's

    const TRect r = ProportionalDestRect(picture.GetWidth(), picture.GetHeight(), 120, 90, true);
    DisplayStretchedBitmapInImage(&picture, Image1);  // shrunk to fit, centred

    EXPECT_FALSE(shape);
    EXPECT_EQ(r, TRect(30, 35, 90, 55));
    EXPECT_EQ(Image1->GetPicture().GetBitmap().GetWidth(), 30);
}

TEST_F(FoundationChapterTest, AFrameIsComposed) {
    const TNinePartBitmaps pieces(L"SKINBUTTONDEFAULT");  // keep it: loading costs more than drawing
    TBitmap face(120, 25, pf24bit);
    ComposeNinePartFrame(face, pieces.Pieces(), clBlack);
    EXPECT_EQ(face.GetCanvas().GetPixel(60, 12), clBlack);
}

TEST_F(FoundationChapterTest, AMaskFollowsItsControl) {
    Main().MaskMemo();
    Main().Memo1->SetWidth(100);
    Main().Memo1Resize(nullptr);
    EXPECT_EQ(Main().Mask->GetMaskPanel()->GetWidth(), Main().Memo1->GetClientWidth());
}

TEST_F(FoundationChapterTest, ASkinnerReachesAroundItsControl) {
    Main().FrameTree(Main().Panel);
    EXPECT_EQ(Main().FSkinner->GetPanel()->GetBoundsRect(), TRect(-3, 18, 100, 60));
}

TEST_F(FoundationChapterTest, ThePaintBoxShowsWhatIsPainted) {
    Main().MakeBox();
    Main().Update();
    EXPECT_GT(qv7skin::probes::PixelsOf(Main().Box->GetBuffer()).Count(clBlack), 10);
    const test::Pixels shown = test::ReadClient(Main().Box->GetHandle());
    Main().FadeAndShowBox();
    EXPECT_TRUE(SamePixels(test::ReadClient(Main().Box->GetHandle()), shown));
}

TEST_F(FoundationChapterTest, AColumnHeaderIsDrawn) {
    TBitmap surface(80, 30, pf24bit);
    TCanvas& Canvas = surface.GetCanvas();
    const TRect column(0, 0, 80, 30);
    TQV7SkinColumnHeaderPainter band;
    TQV7SkinColumnHeaderSortGlyphPainter arrow;
    band.Draw(Canvas, column, true);  // with the line at its right edge
    arrow.Draw(Canvas, TRect(column.Right - 14, column.Top + 6, column.Right, column.Bottom), true);
    EXPECT_EQ(Canvas.GetPixel(40, 15), 0x00515151U);
    EXPECT_EQ(Canvas.GetPixel(79, 15), 0x00F0EAE7U);
}

TEST_F(FoundationChapterTest, AListenerIsToldAndRemoved) {
    Main().Listen(&Main());
    EXPECT_EQ(Main().Saved, 1);
    EXPECT_EQ(Main().Left, 0);
}

}  // namespace
