#include "platform/velmora/ButtonExWithCaption.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/TextLayout.h"

namespace velmora {
namespace {

/// Changes the attributes of `font` that are as they are in `before` into those of `now`.
void Follow(TFont& font, const TFont& before, const TFont& now) {
    if (font.GetCharset() == before.GetCharset()) font.SetCharset(now.GetCharset());
    if (font.GetName() == before.GetName()) font.SetName(now.GetName());
    if (font.GetPixelsPerInch() == before.GetPixelsPerInch()) font.SetPixelsPerInch(now.GetPixelsPerInch());
    if (font.GetHeight() == before.GetHeight()) font.SetHeight(now.GetHeight());
    if (font.GetStyle() == before.GetStyle()) font.SetStyle(now.GetStyle());
    if (font.GetColor() == before.GetColor()) font.SetColor(now.GetColor());
    if (font.GetQuality() == before.GetQuality()) font.SetQuality(now.GetQuality());
}

}  // namespace

const TMetaClass& TCustomButtonExWithCaption::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomButtonExWithCaption>(L"TCustomButtonExWithCaption",
                                                                           TCustomButtonEx::StaticClass());
    return meta;
}

TCustomButtonExWithCaption::TCustomButtonExWithCaption(TComponent* AOwner) : TCustomButtonEx(AOwner) {
    FFormerFont.Assign(&GetFont());
    FFontHovered.Assign(&GetFont());
    FFontDisabled.Assign(&GetFont());
    FFontDisabled.SetColor(clGrayText);
    FFontHovered.OnChange = FFontDisabled.OnChange = [this](TObject*) { Invalidate(); };
}

TCustomButtonExWithCaption::~TCustomButtonExWithCaption() = default;

void TCustomButtonExWithCaption::FollowFont() {
    Follow(FFontHovered, FFormerFont, GetFont());
    Follow(FFontDisabled, FFormerFont, GetFont());
    FFormerFont.Assign(&GetFont());
}

void TCustomButtonExWithCaption::Dispatch(TMessage& message) {
    if (message.Msg == CM_FONTCHANGED) FollowFont();
    TCustomButtonEx::Dispatch(message);
}

const TFont& TCustomButtonExWithCaption::GetStateFont() const {
    switch (GetState()) {
        case bexNormal:
            return GetFont();
        case bexDisabled:
            return FFontDisabled;
        default:
            return FFontHovered;
    }
}

TRect TCustomButtonExWithCaption::GetCaptionRect() const {
    TRect rect = GetClientRect();
    rect.Inflate(-FTextMargin.Width, -FTextMargin.Height);
    rect.Left += FTextMarginLeft;
    if (IsSunken()) rect.Offset(FTextOffsetDown.X, FTextOffsetDown.Y);
    return rect;
}

void TCustomButtonExWithCaption::DrawCaption(UINT Flags, TRect& Rect) {
    TCanvas& canvas = GetCanvas();
    const String caption = GetCaption();
    canvas.SetFont(GetStateFont());
    canvas.GetBrush().SetStyle(bsClear);
    DrawTextCentered(canvas, Rect, caption, Flags);
    Rect.Top += MeasureText(canvas, caption, Flags & ~static_cast<UINT>(DT_END_ELLIPSIS)).Height;
}

void TCustomButtonExWithCaption::Paint() {
    DrawBackground();
    TRect rect = GetCaptionRect();
    const bool oneLine = GetCaption().find(L'\n') == String::npos;
    DrawCaption(AlignmentToDrawText(FAlignment) | (oneLine ? DT_SINGLELINE | DT_END_ELLIPSIS : 0U), rect);
    if (IsFocusShown()) DrawFocusRect();
}

}  // namespace velmora
