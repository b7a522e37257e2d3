#include "buttons/UnitQV7SkinButtonMsgDlg.h"

#include <algorithm>

#include "buttons/ButtonRows.h"
#include "platform/vcl/graphics/ScreenCanvas.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"

namespace qv7skin {
namespace {

constexpr TColor Magenta = 0x00FF00FF;
constexpr TColor TextColor = 0x00535353;
constexpr int DescriptionIsSmallerBy = 3;
constexpr int GrayStrength = 50;

/// What an image list of states holds at which place.
int ImageIndexOf(TButtonExState state) {
    switch (state) {
        case bexDisabled:
            return 3;
        case bexPressed:
            return 2;
        case bexHovered:
            return 1;
        case bexDown:
            return 4;
        case bexDownHovered:
            return 5;
        default:
            return 0;
    }
}

int LineHeight(const TFont& font) {
    TScreenCanvas canvas;
    canvas.SetFont(font);
    return canvas.TextHeight(L"Aq");
}

}  // namespace

const TMetaClass& TCustomQV7SkinButtonMsgDlg::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomQV7SkinButtonMsgDlg>(
        L"TCustomQV7SkinButtonMsgDlg", TCustomButtonExWithCaption::StaticClass());
    return meta;
}

TCustomQV7SkinButtonMsgDlg::TCustomQV7SkinButtonMsgDlg(TComponent* AOwner)
    : TCustomButtonExWithCaption(AOwner),
      FDescription(std::make_unique<TStringList>()),
      FFontDescription(std::make_unique<TFont>()) {
    FDescription->OnChange = {this, &TCustomQV7SkinButtonMsgDlg::DoDescriptionChange};
    FFontDescription->OnChange = {this, &TCustomQV7SkinButtonMsgDlg::DescriptionFontChanged};
    FImagesLink.OnChange = [this](TObject*) { FImageIsStale = true; };
    SetBounds(0, 0, 300, 60);
    TCustomQV7SkinButtonMsgDlg::SetDefaultValues();
}

TCustomQV7SkinButtonMsgDlg::~TCustomQV7SkinButtonMsgDlg() = default;

void TCustomQV7SkinButtonMsgDlg::SetDefaultValues() {
    FAlignment = taLeftJustify;
    FMarginHorizontal = FMarginVertical = 3;
    FSpacing = 20;
    FOffsetVertical = FOffsetHorizontal = 1;
    GetFont().SetName(L"Tahoma");
    GetFont().SetSize(10);
    GetFont().SetStyle({fsBold});
    GetFont().SetColor(TextColor);
    FFontDescription->SetName(L"Tahoma");
    FFontDescription->SetSize(7);
    FFontDescription->SetStyle({});
    if (!FKeepColors) {
        FFontDescription->SetColor(TextColor);
        FColorHovered = 0x00F0E7EA;
        FColorBorder = 0x00DDDDDD;
    }
    Invalidate();
}

void TCustomQV7SkinButtonMsgDlg::SetDescription(const TStrings& Value) {
    FDescription->Assign(&Value);
}

void TCustomQV7SkinButtonMsgDlg::SetFontDescription(const TFont& Value) {
    FFontDescription->Assign(&Value);
}

void TCustomQV7SkinButtonMsgDlg::DescriptionFontChanged(TObject*) {
    if (!FFollowingSize) Invalidate();
}

void TCustomQV7SkinButtonMsgDlg::FollowCaptionSize() {
    FFollowingSize = true;
    FFontDescription->SetSize(std::max(GetFont().GetSize() - DescriptionIsSmallerBy, 1));
    FFollowingSize = false;
}

void TCustomQV7SkinButtonMsgDlg::SetImageList(TCustomImageList* List) {
    if (List == GetImageList()) return;
    if (GetImageList()) GetImageList()->UnRegisterChanges(&FImagesLink);
    TCustomButtonExWithCaption::SetImageList(List);
    if (List) List->RegisterChanges(&FImagesLink);
    FImageIsStale = true;
}

// --- places

int TCustomQV7SkinButtonMsgDlg::GetTextHeight() {
    FollowCaptionSize();
    return LineHeight(GetFont()) + FDescription->GetCount() * LineHeight(*FFontDescription);
}

TRect TCustomQV7SkinButtonMsgDlg::GetTextArea() const {
    TRect area = GetClientRect();
    area.Inflate(-FMarginHorizontal, -FMarginVertical);
    if (GetImageList()) area.Left += GetImageList()->GetWidth() + FMarginHorizontal;
    area.Left += FSpacing;
    return area;
}

/// The text area, cut to the height of the text in the middle of the button.
TRect TCustomQV7SkinButtonMsgDlg::TextBlock() {
    TRect block = GetTextArea();
    const int height = GetTextHeight();
    const int top = (GetClientHeight() - height) / 2;
    block.Top = std::max(top, FMarginVertical);
    block.Bottom = std::min(top + height, GetClientHeight() - FMarginVertical);
    return block;
}

// --- painting

void TCustomQV7SkinButtonMsgDlg::Paint() {
    TCanvas& canvas = GetCanvas();
    DrawBackground();
    DrawImageFromList(GetState());
    TRect block = TextBlock();
    const UINT flags = DT_SINGLELINE | AlignmentToDrawText(FAlignment);
    const TBrushStyle former = canvas.GetBrush().GetStyle();
    canvas.GetBrush().SetStyle(bsClear);
    DrawCaption(flags, block);
    DrawDescription(flags, block);
    DrawBorder();
    canvas.GetBrush().SetStyle(former);
    if (IsFocusShown()) DrawFocusRect();
}

void TCustomQV7SkinButtonMsgDlg::DrawBackground() {
    if (!IsLit()) return;
    TCanvas& canvas = GetCanvas();
    canvas.GetPen().SetColor(FColorHovered);
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(FColorHovered);
    canvas.FillRect(GetClientRect());
}

void TCustomQV7SkinButtonMsgDlg::DrawBorder() {
    if (!IsLit()) return;
    GetCanvas().GetPen().SetColor(FColorBorder);
    GetCanvas().Rectangle(GetClientRect());
}

void TCustomQV7SkinButtonMsgDlg::FetchImage(TButtonExState state) {
    const TCustomImageList& images = *GetImageList();
    const int wanted = ImageIndexOf(state);
    const bool has = wanted < images.GetCount();
    const bool hasPressed = images.GetCount() > ImageIndexOf(bexPressed);
    const int index = has ? wanted : state >= bexDown && hasPressed ? ImageIndexOf(bexPressed) : 0;
    if (!FImage) FImage = std::make_unique<TBitmap>();
    FImage->SetSize(images.GetWidth(), images.GetHeight());
    TCanvas& canvas = FImage->GetCanvas();
    canvas.GetBrush().SetColor(Magenta);
    canvas.FillRect({0, 0, FImage->GetWidth(), FImage->GetHeight()});
    images.Draw(canvas, 0, 0, index, dsTransparent);
    if (!has && state == bexDisabled) GrayBitmap(FImage.get(), GrayStrength, Magenta);
    FImageState = state;
    FImageIsStale = false;
}

void TCustomQV7SkinButtonMsgDlg::DrawImageFromList(TButtonExState State) {
    const TCustomImageList* images = GetImageList();
    if (!images) return;
    if (FImageIsStale || State != FImageState) FetchImage(State);
    DrawBitmap({0, 0, images->GetWidth(), GetClientHeight()}, GetCanvas(), *FImage);
}

void TCustomQV7SkinButtonMsgDlg::DrawBitmap(const TRect& Rect, TCanvas& Canvas, TBitmap& Bitmap) {
    const int left = Rect.Left + (Rect.Width() - Bitmap.GetWidth()) / 2 + FMarginHorizontal;
    const int top = Rect.Top + (Rect.Height() - Bitmap.GetHeight()) / 2;
    DrawTransparentBitmap(Canvas, &Bitmap, left, top, Magenta);
}

void TCustomQV7SkinButtonMsgDlg::DrawCaption(UINT Flags, TRect& Rect) {
    GetCanvas().SetFont(GetFont());
    DrawLine(GetCaption(), Rect, Flags, GetFont().GetColor());
    Rect.Top += LineHeight(GetFont());
}

void TCustomQV7SkinButtonMsgDlg::DrawDescription(UINT Flags, TRect& Rect) {
    FollowCaptionSize();
    GetCanvas().SetFont(*FFontDescription);
    const int height = LineHeight(*FFontDescription);
    for (int i = 0; i < FDescription->GetCount(); ++i) {
        // Only the caption has an access key.
        DrawLine(FDescription->Get(i), Rect, Flags | DT_NOPREFIX, FFontDescription->GetColor());
        Rect.Top += height;
    }
}

/// Draws a line in the colours and at the offset of the present state.
void TCustomQV7SkinButtonMsgDlg::DrawLine(StringView text, const TRect& rect, UINT flags, TColor color) {
    TCanvas& canvas = GetCanvas();
    TRect place = rect;
    const auto draw = [&](TColor inColor) {
        canvas.GetFont().SetColor(inColor);
        canvas.TextRect(place, text, flags);
    };
    if (!GetEnabled()) {
        place.Offset(1, 1);
        draw(clWhite);
        place = rect;
        return draw(clSilver);
    }
    if (GetState() == bexPressed) {
        place.Offset(0, 2 * FOffsetVertical);
        (FAlignment == taRightJustify ? place.Right : place.Left) += 2 * FOffsetHorizontal;
    }
    draw(IsLit() ? GetQV7SkinColorLinkText() : color);
}

const TMetaClass& TQV7SkinButtonMsgDlg::StaticClass() {
    using T = TQV7SkinButtonMsgDlg;
    static const TMetaClass meta =
        DefineClass<T>(L"TQV7SkinButtonMsgDlg", TCustomQV7SkinButtonMsgDlg::StaticClass())
            .With(ButtonRows)
            .Property(L"Cancel", &T::GetCancel, &T::SetCancel)
            .Property(L"Default", &T::GetDefault, &T::SetDefault)
            .Property(L"Description", &T::GetDescription, &T::SetDescription)
            .Property(L"Down", &T::GetDown, &T::SetDown)
            .Property(L"ImageList", &T::GetImageList, &T::SetImageList)
            .Property(L"ModalResult", &T::GetModalResult, &T::SetModalResult)
            .Identifiers(ModalResultIdentifiers());
    return meta;
}

}  // namespace qv7skin
