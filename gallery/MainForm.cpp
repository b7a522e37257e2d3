#include "gallery/MainForm.h"

#include "gallery/Drawing.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {

const TMetaClass& TMainForm::StaticClass() {
    static const TMetaClass meta = DefineClass<TMainForm>(L"TMainForm", TForm::StaticClass())
                                       .Component<&TMainForm::FTitle>(L"Title")
                                       .Component<&TMainForm::FNavigation>(L"Navigation")
                                       .Method<&TMainForm::PaintTitle>(L"PaintTitle")
                                       .Method<&TMainForm::NavigationChanged>(L"NavigationChanged");
    return meta;
}

TMainForm::TMainForm(TComponent* AOwner) : TForm(AOwner), FPages(GalleryPages().size()) {
    RegisterClasses({&TPaintArea::StaticClass(), &TNavigation::StaticClass()});
    InitInheritedComponent(*this, TForm::StaticClass());
    FNavigation->SelectPage(0);
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
