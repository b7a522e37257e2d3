#include "header/caption/CaptionHeader.h"

#include "header/caption/HeaderBands.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"

namespace qv7skin {

const TMetaClass& TQV7SkinHeader::StaticClass() {
    using C = TQV7SkinHeader;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinHeader", TGraphicControl::StaticClass())
            .Property(L"Grey", &C::GetGrey, &C::SetGrey)
            .Property(L"LeftTextOffset", &C::GetLeftTextOffset, &C::SetLeftTextOffset)
            .Property(L"Font", &C::GetFont, &C::SetFont)
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .Stored(&C::IsCaptionStored)
            .Property(L"Align", &C::GetAlign, &C::SetAlign, alNone)
            .With(AnchorsRow)
            .Property(L"UseSkinFont", &C::GetUseSkinFont, &C::SetUseSkinFont);
    return meta;
}

TQV7SkinHeader::TQV7SkinHeader(TComponent* AOwner) : TGraphicControl(AOwner) {
    ControlStyle.Include(csOpaque);
    GetFont().SetColor(GetQV7SkinColorExplorerBarHeaderCaption());
    GetFont().SetStyle(GetQV7SkinStyleExplorerBarHeaderCaption());
    GetFont().SetSize(8);
    SetBounds(0, 0, 50, 20);
}

TQV7SkinHeader::~TQV7SkinHeader() = default;

void TQV7SkinHeader::SetGrey(bool Value) {
    if (FGrey == Value) return;
    FGrey = Value;
    Invalidate();
}

void TQV7SkinHeader::SetLeftTextOffset(int Value) {
    if (FLeftTextOffset == Value) return;
    FLeftTextOffset = Value;
    Invalidate();
}

void TQV7SkinHeader::SetUseSkinFont(bool Value) {
    if (FUseSkinFont == Value) return;
    FUseSkinFont = Value;
    Invalidate();
}

void TQV7SkinHeader::Paint() {
    PaintBands();
    PaintCaption();
}

void TQV7SkinHeader::PaintBands() {
    const auto paint = [this](const TRect& area, const TBitmap* band) {
        TCanvas& canvas = GetCanvas();
        if (band) return canvas.StretchDraw(area, band);
        canvas.GetBrush().SetColor(clWhite);
        canvas.FillRect(area);
    };
    if (!FBands) FBands = THeaderBands::Shared();
    const int middle = GetHeight() / 2;
    paint(TRect(0, 0, GetWidth(), middle), FBands->Top(FGrey));
    paint(TRect(0, middle, GetWidth(), GetHeight()), FBands->Bottom(FGrey));
}

void TQV7SkinHeader::PaintCaption() {
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    if (FUseSkinFont) {
        canvas.GetFont().SetColor(GetQV7SkinColorExplorerBarHeaderCaption2());
        canvas.GetFont().SetStyle(GetQV7SkinStyleExplorerBarHeaderCaption2());
    }
    canvas.GetBrush().SetStyle(bsClear);
    TRect text = GetClientRect();
    text.Left += FLeftTextOffset;
    canvas.TextRect(text, GetCaption(), DT_LEFT | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace qv7skin
