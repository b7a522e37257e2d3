#include "gallery/MainForm.h"

#include "gallery/Drawing.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {

TMainForm::TMainForm(TComponent* AOwner) : TForm(AOwner), FPages(GalleryPages().size()) {
    SetCaption(L"QV7 Skin – Galerie");
    SetColor(clWhite);
    SetPosition(poScreenCenter);
    SetClientWidth(960);
    SetClientHeight(680);

    FTitle = new TPaintArea(this);
    FTitle->SetParent(this);
    FTitle->SetHeight(46);
    FTitle->SetAlign(alTop);
    FTitle->OnPaint = {this, &TMainForm::PaintTitle};

    FNavigation = new TNavigation(this);
    FNavigation->SetParent(this);
    FNavigation->SetAlign(alLeft);
    FNavigation->OnChange = {this, &TMainForm::NavigationChanged};
    FNavigation->SelectPage(0);
    SetActiveControl(FNavigation);
}

void TMainForm::OpenPage(int index) {
    FNavigation->SelectPage(index);
}

void TMainForm::NavigationChanged(TObject*) {
    const int previous = FCurrent;
    FCurrent = FNavigation->GetPageIndex();
    TGalleryPage*& page = FPages[static_cast<std::size_t>(FCurrent)];
    if (!page) {
        page = GalleryPages()[static_cast<std::size_t>(FCurrent)].Create(this);
        page->SetAlign(alClient);
        page->SetParent(this);
    }
    page->Show();
    if (previous >= 0) FPages[static_cast<std::size_t>(previous)]->Hide();
    FTitle->Invalidate();
}

void TMainForm::PaintTitle(TCanvas& canvas, const TRect& rect) {
    FBandPainter.Draw(canvas, rect, false);
    canvas.GetBrush().SetStyle(bsClear);
    UseFont(canvas, 13, true, GetQV7SkinColorCaption());
    canvas.TextOut(14, 11, L"QV7 Skin");
    if (FCurrent < 0) return;
    const TPageInfo& page = GalleryPages()[static_cast<std::size_t>(FCurrent)];
    UseFont(canvas, 11, true, GetQV7SkinColorCaption());
    canvas.TextOut(214, 13, page.Title);
    const int summaryLeft = 214 + canvas.TextWidth(page.Title) + 14;
    UseFont(canvas, 9, false, 0x00D8D8D8);
    TRect summary{summaryLeft, 0, rect.Right - 130, rect.Bottom - 2};
    canvas.TextRect(summary, page.Summary, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    TRect skin{rect.Right - 120, 0, rect.Right - 14, rect.Bottom - 2};
    canvas.TextRect(skin, L"Skin: " + GetCurrentSkinSelectionAsName(), DT_SINGLELINE | DT_VCENTER | DT_RIGHT);
}

}  // namespace gallery
