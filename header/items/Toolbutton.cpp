#include "header/items/Toolbutton.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/utils/OneShotDrawing.h"

namespace qv7skin {
namespace {

constexpr int Margin = 7;
constexpr int ImageGap = 3;

}  // namespace

const TMetaClass& TQV7SkinToolbutton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7SkinToolbutton>(L"TQV7SkinToolbutton", TQV7SkinHeaderItemCustom::StaticClass());
    return meta;
}

TQV7SkinToolbutton::TQV7SkinToolbutton(const String& ACaption, TBitmap* AImage, TBitmap* AImageSelected)
    : TQV7SkinHeaderItemCustom(ACaption),
      FImage(AImage),
      FImageSelected(AImageSelected),
      FBackground(std::make_unique<TBitmap>()) {
    FBackground->SetPixelFormat(pf24bit);
}

TQV7SkinToolbutton::~TQV7SkinToolbutton() = default;

void TQV7SkinToolbutton::SetImage(TBitmap* Value) {
    FImage = Value;
    Refresh();
}

void TQV7SkinToolbutton::SetImageSelected(TBitmap* Value) {
    FImageSelected = Value;
    Refresh();
}

int TQV7SkinToolbutton::GetBackgroundState() const {
    if (GetSelected()) return hisPressed;
    return GetOwner() && GetOwner()->IsUnderMouse(*this) ? hisHovered : hisDefault;
}

void TQV7SkinToolbutton::SetSelected(bool Value) {
    SetNeedsRender();
    TQV7SkinHeaderItemCustom::SetSelected(Value);
}

void TQV7SkinToolbutton::Click(TMouseButton Button, TShiftState Shift, int X, int Y) {
    OnClick(this, Button, Shift, X, Y);
}

void TQV7SkinToolbutton::Measure(TCanvas& Canvas, int& Width) {
    if (OnMeasure) return OnMeasure(this, Canvas, Width);
    if (FImage) Width += FImage->GetWidth() + ImageGap;
    Width += 2 * Margin;
    if (!GetCaption().empty()) Width += CaptionWidth(Canvas, {});
}

void TQV7SkinToolbutton::Draw(TCanvas& Canvas, int& X, int Height) {
    const TLifeGuard guard(*this);
    int width = 0;
    Measure(Canvas, width);
    if (!guard.IsAlive()) return;
    NeedBackground(std::max(width, 0), Height);
    Canvas.Draw(X, 0, FBackground.get());
    Canvas.GetFont().SetStyle({});
    Canvas.GetFont().SetColor(clBlack);
    Canvas.GetBrush().SetStyle(bsClear);
    if (OnDraw) {
        OnDraw(this, Canvas, Height, X);
        if (!guard.IsAlive()) return;
    } else {
        DrawContent(Canvas, X, width, Height);
    }
    X += width;
}

/// Renders the background when it is asked for, or when state, size or the toolbar's look changed.
void TQV7SkinToolbutton::NeedBackground(int Width, int Height) {
    const int state = GetBackgroundState();
    const int look = GetBackgroundPainter() ? GetBackgroundPainter()->GetBackgroundLook() : 0;
    const bool hasSize = FBackground->GetWidth() == Width && FBackground->GetHeight() == Height;
    if (!FNeedsRender && hasSize && FRenderedState == state && FRenderedLook == look) return;
    FBackground->SetSize(Width, Height);
    RefreshBackground(state);
    FRenderedState = state;
    FRenderedLook = look;
    FNeedsRender = false;
}

void TQV7SkinToolbutton::RefreshBackground(int State) {
    if (GetBackgroundPainter()) return GetBackgroundPainter()->DrawBackground(*FBackground, State);
    TCanvas& canvas = FBackground->GetCanvas();
    canvas.GetBrush().SetColor(GetQV7SkinColorBackground());
    canvas.FillRect({0, 0, FBackground->GetWidth(), FBackground->GetHeight()});
}

void TQV7SkinToolbutton::DrawContent(TCanvas& Canvas, int X, int Width, int Height) {
    TRect text(X + Margin, 0, X + Width - Margin, Height);
    TBitmap* const image = GetSelected() && FImageSelected ? FImageSelected : FImage;
    if (image) {
        const TBitmap& measure = FImage ? *FImage : *image;  // both stand where the first would
        DrawTransparentBitmap(Canvas, image, X + Margin, (Height - measure.GetHeight()) / 2, clFuchsia);
    }
    if (FImage) text.Left += FImage->GetWidth() + ImageGap;
    if (!GetCaption().empty())
        Canvas.TextRect(text, GetCaption(), DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

}  // namespace qv7skin
