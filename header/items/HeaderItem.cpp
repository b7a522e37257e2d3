#include "header/items/HeaderItem.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {
namespace {

constexpr int EmptyCaptionWidth = 40;

TFontStyles StyleOf(bool selected) {
    return selected ? TFontStyles{fsBold} : TFontStyles{};
}

}  // namespace

const TMetaClass& TQV7SkinHeaderItemCustom::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7SkinHeaderItemCustom>(L"TQV7SkinHeaderItemCustom", TObject::StaticClass());
    return meta;
}

TQV7SkinHeaderItemCustom::~TQV7SkinHeaderItemCustom() {
    if (FOwner) FOwner->ReleaseItem(*this);
}

void TQV7SkinHeaderItemCustom::SetOwner(THeaderItemHost* Value) {
    FOwner = Value;
    FPainter = dynamic_cast<THeaderBackgroundPainter*>(Value);
}

void TQV7SkinHeaderItemCustom::SetVisible(bool Value) {
    if (FVisible == Value) return;
    FVisible = Value;
    Invalidate();
}

void TQV7SkinHeaderItemCustom::SetCaption(const String& Value) {
    FCaption = Value;
    Invalidate();
}

void TQV7SkinHeaderItemCustom::SetSelected(bool Value) {
    if (!FOwner) return;
    const bool isSelected = FOwner->GetSelectedItem() == this;
    if (Value && !isSelected) FOwner->SetSelectedItem(this);
    if (!Value && isSelected) FOwner->SetSelectedItem(nullptr);
}

void TQV7SkinHeaderItemCustom::Click(TMouseButton Button, TShiftState Shift, int X, int Y) {
    const TLifeGuard guard(*this);
    SetSelected(true);
    if (guard.IsAlive()) Refresh();
    if (guard.IsAlive()) OnClick(this, Button, Shift, X, Y);
}

void TQV7SkinHeaderItemCustom::Invalidate() {
    if (FOwner) FOwner->Invalidate();
}

void TQV7SkinHeaderItemCustom::Refresh() {
    if (FOwner) FOwner->Repaint();
}

bool TQV7SkinHeaderItemCustom::PtInValidRect(const TRect& Rect, const TPoint& Point, TCursor&) {
    return Rect.Contains(Point);
}

void TQV7SkinHeaderItemCustom::Draw(TCanvas& Canvas, int& X, int Height) {
    const TLifeGuard guard(*this);
    if (OnDraw) {
        OnDraw(this, Canvas, Height, X);
        if (!guard.IsAlive()) return;
    }
    int width = 0;
    Measure(Canvas, width);
    if (!guard.IsAlive()) return;
    if (!OnDraw) {
        TRect rect(X, 0, X + width, Height);
        Canvas.Rectangle(rect);
        if (!FCaption.empty()) {
            Canvas.GetFont().SetStyle(StyleOf(FSelected));
            Canvas.TextRect(rect, FCaption, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
        }
    }
    X += width;
}

void TQV7SkinHeaderItemCustom::Measure(TCanvas& Canvas, int& Width) {
    if (OnMeasure)
        OnMeasure(this, Canvas, Width);
    else
        Width += FCaption.empty() ? EmptyCaptionWidth : CaptionWidth(Canvas, StyleOf(FSelected));
}

int TQV7SkinHeaderItemCustom::CaptionWidth(TCanvas& Canvas, TFontStyles Style, StringView Suffix) {
    Canvas.GetFont().SetStyle(Style);
    const TSharedFont& font = Canvas.GetFont().GetShared();
    if (font != FMeasuredFont || FCaption != FMeasuredCaption) {
        FMeasuredWidth = Canvas.TextWidth(FCaption + String(Suffix));
        FMeasuredCaption = FCaption;
        FMeasuredFont = font;
    }
    return FMeasuredWidth;
}

}  // namespace qv7skin
