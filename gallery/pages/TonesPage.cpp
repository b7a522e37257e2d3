#include "gallery/Drawing.h"
#include "gallery/SamplePicture.h"
#include "gallery/pages/Pages.h"
#include "skin/UnitGraphicsUtils.h"

namespace gallery {
namespace {

constexpr int Strengths[] = {0, 25, 50, 75, 100};

/// The same picture lightened and greyed at several strengths.
class TTonesPage : public TGalleryPage {
public:
    using TGalleryPage::TGalleryPage;

protected:
    void Paint() override {
        int top = 22;
        top =
            DrawRow(top, L"Aufgehellt (DimBitmap)", [](TBitmap& b, int percent) { DimBitmap(&b, percent); });
        top =
            DrawRow(top, L"Vergraut (GrayBitmap)", [](TBitmap& b, int percent) { GrayBitmap(&b, percent); });
        DrawRow(top, L"Vergraut bis auf eine Farbe (hier: den Baum)",
                [](TBitmap& b, int percent) { GrayBitmap(&b, percent, clBlack); });
    }

private:
    static constexpr int PictureWidth = 130;
    static constexpr int PictureHeight = 110;

    template <class Change>
    int DrawRow(int top, const wchar_t* title, Change change) {
        TCanvas& canvas = GetCanvas();
        top = DrawPartHeading(top, title);
        int left = Margin;
        for (const int percent : Strengths) {
            TBitmap picture;
            DrawSamplePicture(picture, PictureWidth, PictureHeight);
            change(picture, percent);
            canvas.Draw(left, top, &picture);
            DrawNote(canvas, TRect::OfSize(left, top + PictureHeight + 4, PictureWidth, 16),
                     IntToStr(percent) + L" %", DT_CENTER);
            left += PictureWidth + 15;
        }
        return top + PictureHeight + 36;
    }
};

}  // namespace

TGalleryPage* CreateTonesPage(TComponent* owner) {
    return new TTonesPage(owner);
}

}  // namespace gallery
