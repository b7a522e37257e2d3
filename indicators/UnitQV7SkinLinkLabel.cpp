#include "indicators/UnitQV7SkinLinkLabel.h"

#include <algorithm>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"

namespace qv7skin {
namespace {

constexpr int Gap = 4;
constexpr int GrayStrength = 50;

/// The bitmap that a picture holds, or null.
TBitmap* BitmapIn(const TPicture& picture) {
    auto* bitmap = dynamic_cast<TBitmap*>(picture.GetGraphic());
    return bitmap && !bitmap->GetEmpty() ? bitmap : nullptr;
}

UINT EllipsFlags(TEllipsType type) {
    switch (type) {
        case etEndEllips:
            return DT_END_ELLIPSIS;
        case etPathEllips:
            return DT_PATH_ELLIPSIS;
        default:
            return 0;
    }
}

}  // namespace

const TMetaClass& TQV7SkinLinkLabel::StaticClass() {
    using T = TQV7SkinLinkLabel;
    static const TMetaClass meta =
        DefineClass<T>(L"TQV7SkinLinkLabel", TCustomLabel::StaticClass())
            .With(PlacementRows)
            .With(ParentColorRows)
            .With(StateRows)
            .Property(L"Alignment", &T::GetAlignment, &T::SetAlignment, taLeftJustify)
            .Property(L"AutoSize", &T::GetAutoSize, &T::SetAutoSize, true)
            .Property(L"Caption", &T::GetCaption, &T::SetCaption)
            .Stored(&T::IsCaptionStored)
            .Property(L"Cursor", &T::GetCursor, &T::SetCursor, crHandPoint)
            .Identifiers(CursorIdentifiers())
            .Property(L"EllipsType", &T::GetEllipsType, &T::SetEllipsType, etNone)
            .Property(L"FocusControl", &T::GetFocusControl, &T::SetFocusControl)
            .Property(L"Font", &T::GetFont, &T::SetFont)
            .Stored(&T::IsFontStored)
            .Property(L"Layout", &T::GetLayout, &T::SetLayout, tlCenter)
            .Property(L"ParentFont", &T::GetParentFont, &T::SetParentFont, false)
            .Property(L"Picture", &T::GetPicture, &T::SetPicture)
            .Property(L"ShowAccelChar", &T::GetShowAccelChar, &T::SetShowAccelChar, true)
            .Property(L"Transparent", &T::GetTransparent, &T::SetTransparent, true)
            .Property(L"TransparentColor", &T::GetTransparentColor, &T::SetTransparentColor, clNone)
            .Identifiers(ColorIdentifiers())
            .Property(L"WordWrap", &T::GetWordWrap, &T::SetWordWrap, false)
            .With(MouseRows);
    return meta;
}

TQV7SkinLinkLabel::TQV7SkinLinkLabel(TComponent* AOwner)
    : TCustomLabel(AOwner),
      FPicture(std::make_unique<TPicture>()),
      FGrayedPicture(std::make_unique<TPicture>()) {
    SetLayout(tlCenter);
    FPicture->OnChange = {this, &TQV7SkinLinkLabel::PictureChanged};
    GetFont().SetColor(GetQV7SkinColorLinkText());
    SetCursor(crHandPoint);
}

TQV7SkinLinkLabel::~TQV7SkinLinkLabel() = default;

void TQV7SkinLinkLabel::SetPicture(const TPicture& Value) {
    FPicture->Assign(&Value);
}

void TQV7SkinLinkLabel::SetTransparentColor(TColor Value) {
    if (Value == FTransparentColor) return;
    FTransparentColor = Value;
    FGrayedIsStale = true;
    Invalidate();
}

void TQV7SkinLinkLabel::SetEllipsType(TEllipsType Value) {
    if (Value == FEllipsType) return;
    FEllipsType = Value;
    Invalidate();
}

void TQV7SkinLinkLabel::PictureChanged(TObject*) {
    FGrayedIsStale = true;
    AdjustBounds();
    Invalidate();
}

// --- the mouse

void TQV7SkinLinkLabel::SetUnderline(bool value) {
    TFontStyles style = GetFont().GetStyle();
    style.Put(fsUnderline, value);
    GetFont().SetStyle(style);
}

void TQV7SkinLinkLabel::Dispatch(TMessage& message) {
    const bool enters = message.Msg == CM_MOUSEENTER;
    if ((enters || message.Msg == CM_MOUSELEAVE) && !IsInState(csDesigning)) {
        const TLifeGuard guard(*this);
        if (!enters || GetEnabled()) SetUnderline(enters);
        if (guard.IsAlive()) Repaint();
        if (!guard.IsAlive()) return;
    }
    TCustomLabel::Dispatch(message);
}

// --- the picture

int TQV7SkinLinkLabel::PictureSpace() const {
    const TBitmap* bitmap = BitmapIn(*FPicture);
    return bitmap ? bitmap->GetWidth() + Gap : 0;
}

TRect TQV7SkinLinkLabel::NeededRect(int width) {
    const int space = PictureSpace();
    TRect needed = TCustomLabel::NeededRect(std::max(width - space, 0));
    needed.Right += space;
    if (const TBitmap* bitmap = BitmapIn(*FPicture))
        needed.Bottom = std::max(needed.Bottom, bitmap->GetHeight());
    return needed;
}

void TQV7SkinLinkLabel::MakeGrayedBitmap() {
    FGrayedPicture->Assign(FPicture.get());
    FGrayedIsStale = false;
    TBitmap* bitmap = BitmapIn(*FGrayedPicture);
    if (!bitmap) return;
    if (FTransparentColor == clNone)
        GrayBitmap(bitmap, GrayStrength);
    else
        GrayBitmap(bitmap, GrayStrength, ColorToRGB(FTransparentColor));
}

void TQV7SkinLinkLabel::PaintPicture(TRect& Rect) {
    if (!GetEnabled() && FGrayedIsStale) MakeGrayedBitmap();
    TBitmap* bitmap = BitmapIn(GetEnabled() ? *FPicture : *FGrayedPicture);
    if (!bitmap) return;
    TCanvas& canvas = GetCanvas();
    if (FTransparentColor == clNone) {
        const TRect area{0, 0, bitmap->GetWidth(), bitmap->GetHeight()};
        canvas.SetCopyMode(cmSrcCopy);
        canvas.CopyRect(area, *bitmap, area);
    } else {
        DrawTransparentBitmap(canvas, bitmap, 0, 0, ColorToRGB(FTransparentColor));
    }
    Rect.Left += PictureSpace();
}

// --- painting

void TQV7SkinLinkLabel::Paint() {
    TCanvas& canvas = GetCanvas();
    TRect rect = GetClientRect();
    if (!GetTransparent()) {
        canvas.GetBrush().SetStyle(bsSolid);
        canvas.GetBrush().SetColor(GetColor());
        canvas.GetPen().SetColor(GetColor());
        canvas.FillRect(rect);
    }
    PaintPicture(rect);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.SetFont(GetFont());
    if (GetEnabled()) return DrawLine(rect, GetFont().GetColor());
    TRect shifted = rect;
    shifted.Offset(1, 1);
    DrawLine(shifted, clBtnHighlight);
    DrawLine(rect, clBtnShadow);
}

void TQV7SkinLinkLabel::DrawLine(TRect rect, TColor color) {
    TCanvas& canvas = GetCanvas();
    const String text = GetLabelText();
    const UINT flags = TextFlags();
    canvas.GetFont().SetColor(color);
    if (GetLayout() != tlTop) {
        TRect needed{0, 0, rect.Width(), 0};
        canvas.TextRect(needed, text, flags | DT_CALCRECT);
        const int free = rect.Height() - needed.Height();
        rect.Top += GetLayout() == tlBottom ? free : free / 2;
    }
    canvas.TextRect(rect, text, flags | EllipsFlags(FEllipsType));
}

}  // namespace qv7skin

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TEllipsType>::Names() {
    static constexpr const wchar_t* names[] = {L"etNone", L"etEndEllips", L"etPathEllips"};
    return names;
}
