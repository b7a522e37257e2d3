#include "platform/vcl/stdctrls/Image.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/ScopedValue.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Picture.h"

namespace vcl {

const TMetaClass& TImage::StaticClass() {
    using C = TImage;
    static const TMetaClass meta =
        DefineClass<C>(L"TImage", TGraphicControl::StaticClass())
            .With(PlacementRows)
            .With(StateRows)
            .Property(L"AutoSize", &C::GetAutoSize, &C::SetAutoSize, false)
            .Property(L"Center", &C::GetCenter, &C::SetCenter, false)
            .Property(L"IncrementalDisplay", &C::GetIncrementalDisplay, &C::SetIncrementalDisplay, false)
            .Property(L"Picture", &C::GetPicture, &C::SetPicture)
            .Property(L"Proportional", &C::GetProportional, &C::SetProportional, false)
            .Property(L"Stretch", &C::GetStretch, &C::SetStretch, false)
            .Property(L"Transparent", &C::GetTransparent, &C::SetTransparent, false)
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows);
    return meta;
}

TImage::TImage(TComponent* AOwner) : TGraphicControl(AOwner), FPicture(std::make_unique<TPicture>()) {
    ControlStyle = ControlStyle + TControlStyle{csReplicatable};
    FPicture->OnChange = {this, &TImage::PictureChanged};
    SetBounds(0, 0, 105, 105);
}

TImage::~TImage() = default;

void TImage::SetPicture(const TPicture& value) {
    FPicture->Assign(&value);
}

TCanvas& TImage::GetCanvas() {
    if (!FPicture->GetGraphic()) {
        const TBitmap blank(GetWidth(), GetHeight());
        FPicture->SetGraphic(&blank);
    }
    auto* bitmap = dynamic_cast<TBitmap*>(FPicture->GetGraphic());
    if (!bitmap) throw EInvalidOperation(L"Can only modify an image if it contains a bitmap");
    return bitmap->GetCanvas();
}

void TImage::SetStretch(bool value) {
    if (value == FStretch) return;
    FStretch = value;
    PictureChanged(this);
}

void TImage::SetCenter(bool value) {
    if (value == FCenter) return;
    FCenter = value;
    PictureChanged(this);
}

void TImage::SetProportional(bool value) {
    if (value == FProportional) return;
    FProportional = value;
    PictureChanged(this);
}

void TImage::SetTransparent(bool value) {
    if (value == FTransparent) return;
    FTransparent = value;
    PictureChanged(this);
}

TRect TImage::DestRect() const {
    const int clientWidth = GetWidth();
    const int clientHeight = GetHeight();
    int width = FPicture->GetWidth();
    int height = FPicture->GetHeight();
    const bool tooLarge = width > clientWidth || height > clientHeight;
    if (FStretch || (FProportional && tooLarge)) {
        if (FProportional && width > 0 && height > 0) {
            // The side that fills the control first decides.
            const auto byWidth = std::int64_t{clientWidth} * height;
            const auto byHeight = std::int64_t{clientHeight} * width;
            const bool fillsWidth = byWidth <= byHeight;
            const int fittedWidth = fillsWidth ? clientWidth : static_cast<int>(byHeight / height);
            height = fillsWidth ? static_cast<int>(byWidth / width) : clientHeight;
            width = fittedWidth;
        } else {
            width = clientWidth;
            height = clientHeight;
        }
    }
    TRect rect{0, 0, width, height};
    if (FCenter) rect.Offset((clientWidth - width) / 2, (clientHeight - height) / 2);
    return rect;
}

bool TImage::CanAutoSize(int& newWidth, int& newHeight) {
    const int width = FPicture->GetWidth();
    const int height = FPicture->GetHeight();
    if (IsInState(csDesigning) && (width == 0 || height == 0)) return true;
    if (GetAlign() == alNone || GetAlign() == alLeft || GetAlign() == alRight) newWidth = width;
    if (GetAlign() == alNone || GetAlign() == alTop || GetAlign() == alBottom) newHeight = height;
    return true;
}

void TImage::Paint() {
    TCanvas& canvas = TGraphicControl::GetCanvas();
    if (IsInState(csDesigning)) {
        canvas.GetPen().SetStyle(psDash);
        canvas.GetBrush().SetStyle(bsClear);
        canvas.Rectangle(GetClientRect());
    }
    // Drawing may complete the picture (decode it, say), which is no change of its contents.
    const TScopedValue drawing(FDrawing, true);
    canvas.StretchDraw(DestRect(), FPicture->GetGraphic());
}

void TImage::Resize() {
    UpdateOpacity();
    TGraphicControl::Resize();
}

void TImage::Loaded() {
    TGraphicControl::Loaded();
    UpdateOpacity();
}

void TImage::PictureChanged(TObject*) {
    if (FDrawing) return;
    if (TGraphic* graphic = FPicture->GetGraphic()) {
        const TScopedValue drawing(FDrawing, true);
        graphic->SetTransparent(FTransparent);
    }
    AdjustSize();
    UpdateOpacity();
    Invalidate();
    if (FIncrementalDisplay) Update();
}

/// An image that covers all of its area hides what lies below and needs no background.
void TImage::UpdateOpacity() {
    const TGraphic* graphic = FPicture->GetGraphic();
    const TRect dest = DestRect();
    const bool covers =
        dest.Left <= 0 && dest.Top <= 0 && dest.Right >= GetWidth() && dest.Bottom >= GetHeight();
    ControlStyle.Put(csOpaque, graphic && !graphic->GetEmpty() && !graphic->GetTransparent() && covers);
}

}  // namespace vcl
