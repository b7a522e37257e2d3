#include "header/items/HeaderItemTab.h"

#include <algorithm>

#include "header/items/TabRendering.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/utils/OneShotDrawing.h"

namespace qv7skin {
namespace {

constexpr int ImageGap = 3;
constexpr StringView CaptionTail = L"  ";

}  // namespace

const TMetaClass& TQV7SkinHeaderItemTab::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TQV7SkinHeaderItemTab>(L"TQV7SkinHeaderItemTab", TQV7SkinHeaderItemCustom::StaticClass());
    return meta;
}

TQV7SkinHeaderItemTab::TQV7SkinHeaderItemTab(TQV7SkinTabBackground ATabBackground, const String& ACaption,
                                             TBitmap* AImage, TBitmap* AImageSelected)
    : TQV7SkinHeaderItemCustom(ACaption),
      FImage(AImage),
      FImageSelected(AImageSelected),
      FTabBackground(ATabBackground) {
    SetKeepsPicture(true);
}

TQV7SkinHeaderItemTab::~TQV7SkinHeaderItemTab() = default;

void TQV7SkinHeaderItemTab::SetImage(TBitmap* Value) {
    FImage = Value;
    Refresh();
}

void TQV7SkinHeaderItemTab::SetImageSelected(TBitmap* Value) {
    FImageSelected = Value;
    Refresh();
}

void TQV7SkinHeaderItemTab::SetTabBackground(TQV7SkinTabBackground Value) {
    if (FTabBackground == Value) return;
    FTabBackground = Value;
    DropRenderings();
    Invalidate();
}

int TQV7SkinHeaderItemTab::GetHorzOffset() const {
    return FTabBackground == bckgrndWhite ? 25 : 5;
}

TFontStyles TQV7SkinHeaderItemTab::GetFontStyle() const {
    return FTabBackground == bckgrndWhite ? TFontStyles{} : TFontStyles{fsBold};
}

TColor TQV7SkinHeaderItemTab::GetTextColorActive() const {
    return FTabBackground == bckgrndWhite ? 0x00000000 : 0x00FFFFFF;
}

TColor TQV7SkinHeaderItemTab::GetTextColorInactive() const {
    return FTabBackground == bckgrndWhite ? 0x00555555 : 0x007E7E7E;
}

const TBitmap* TQV7SkinHeaderItemTab::GetBackground() const {
    return CurrentRendering() ? &CurrentRendering()->Background : nullptr;
}

HRGN TQV7SkinHeaderItemTab::GetRegion() const {
    return CurrentRendering() ? CurrentRendering()->Shape.GetRegion() : nullptr;
}

int TQV7SkinHeaderItemTab::GetBackgroundState() const {
    if (GetSelected()) return hisPressed;
    return GetOwner() && GetOwner()->IsUnderMouse(*this) ? hisHovered : hisDefault;
}

void TQV7SkinHeaderItemTab::SetSelected(bool Value) {
    SetNeedsRender();
    TQV7SkinHeaderItemCustom::SetSelected(Value);
}

// --- measuring and hit testing

void TQV7SkinHeaderItemTab::Measure(TCanvas& Canvas, int& Width) {
    if (OnMeasure) return OnMeasure(this, Canvas, Width);
    Width += GetAdditionalWidth(Canvas) + 2 * GetHorzOffset();
    if (!GetCaption().empty()) Width += CaptionWidth(Canvas, GetFontStyle(), CaptionTail);
}

int TQV7SkinHeaderItemTab::GetAdditionalWidth(TCanvas&) {
    const TBitmap* const image = FImage ? FImage : FImageSelected;
    return image ? image->GetWidth() + ImageGap : 0;
}

bool TQV7SkinHeaderItemTab::PtInValidRect(const TRect& Rect, const TPoint& Point, TCursor&) {
    if (!Rect.Contains(Point)) return false;
    // What the tab shows is not decided here; only a tab that was never painted in this size has no shape
    // yet.
    const TTabRendering* shown = CurrentRendering();
    if (!shown || !shown->HasSize(Rect.Width(), Rect.Height()))
        shown = &NeedBackground(Rect.Width(), Rect.Height());
    return shown->Shape.Contains({Point.X - Rect.Left, Point.Y - Rect.Top});
}

// --- painting

void TQV7SkinHeaderItemTab::Draw(TCanvas& Canvas, int& X, int Height) {
    const TLifeGuard guard(*this);
    int width = 0;
    Measure(Canvas, width);
    if (!guard.IsAlive()) return;
    TTabRendering& rendering = NeedBackground(std::max(width, 0), Height);
    if (OnDraw) {
        if (!DrawByHost(Canvas, rendering, X, Height)) return;
    } else {
        PrepareText(Canvas);
        NeedFace(rendering, Canvas.GetFont());
        rendering.Shape.Copy(Canvas, X, rendering.Face);
    }
    X += width;
}

void TQV7SkinHeaderItemTab::DropRenderings() {
    ForgetPictures();
    FNeedsRender = true;
}

TTabRendering* TQV7SkinHeaderItemTab::CurrentRendering() const {
    const auto* const renderings = static_cast<TTabRenderings*>(GetPictures());
    return renderings ? renderings->ShownRendering() : nullptr;
}

TTabRendering& TQV7SkinHeaderItemTab::NeedBackground(int Width, int Height) {
    if (!GetPictures()) SetPictures(std::make_unique<TTabRenderings>());
    auto& renderings = static_cast<TTabRenderings&>(*GetPictures());
    const TTabRendering* const former = renderings.ShownRendering();
    const bool selectionChanged = (renderings.Shown == hisPressed) != GetSelected();
    if (FNeedsRender || !former || selectionChanged) renderings.Shown = GetBackgroundState();
    FNeedsRender = false;

    auto& rendering = renderings.States[static_cast<std::size_t>(renderings.Shown)];
    if (!rendering) rendering = std::make_unique<TTabRendering>();
    const int look = GetBackgroundPainter() ? GetBackgroundPainter()->GetBackgroundLook() : 0;
    const bool isGood = rendering->HasSize(Width, Height) && rendering->Look == look;
    if (!isGood) {
        rendering->Look = look;
        rendering->Background.SetPixelFormat(pf24bit);
        rendering->Background.SetSize(Width, Height);
        RefreshBackground(*rendering, renderings.Shown);
        rendering->DropFace();
    }
    const bool sameRendering = rendering.get() == former;
    SetKeptShape(former && (sameRendering ? isGood : former->Shape == rendering->Shape));
    return *rendering;
}

/// Lets the control paint the background, and takes the shape from it.
void TQV7SkinHeaderItemTab::RefreshBackground(TTabRendering& Rendering, int State) const {
    TBitmap& background = Rendering.Background;
    if (GetBackgroundPainter()) {
        GetBackgroundPainter()->DrawBackground(background, State);
    } else {
        TCanvas& canvas = background.GetCanvas();
        canvas.GetBrush().SetColor(GetQV7SkinColorBackground());
        canvas.FillRect({0, 0, background.GetWidth(), background.GetHeight()});
    }
    Rendering.Shape.TakeFrom(background);
}

void TQV7SkinHeaderItemTab::NeedFace(TTabRendering& Rendering, const TFont& Font) {
    const TBitmap* const image = ShownImage();
    if (Rendering.Font == Font.GetShared() && Rendering.Caption == GetCaption() && Rendering.Image.Saw(image))
        return;
    Rendering.Face.Assign(&Rendering.Background);
    TCanvas& canvas = Rendering.Face.GetCanvas();
    canvas.SetFont(Font);
    {
        const TCanvasStateScope state(canvas);
        Rendering.Shape.ClipTo(canvas, 0);
        PrepareText(canvas);
        DrawContent(canvas, {0, 0, Rendering.Face.GetWidth(), Rendering.Face.GetHeight()});
    }
    Rendering.Font = Font.GetShared();
    Rendering.Caption = GetCaption();
    Rendering.Image.Take(image);
}

void TQV7SkinHeaderItemTab::PrepareText(TCanvas& Canvas) const {
    Canvas.GetFont().SetColor(GetSelected() ? GetTextColorActive() : GetTextColorInactive());
    Canvas.GetFont().SetStyle(GetFontStyle());
    Canvas.GetBrush().SetStyle(bsClear);
}

void TQV7SkinHeaderItemTab::DrawContent(TCanvas& Canvas, TRect Rect) {
    DrawImage(Canvas, Rect);
    if (!GetCaption().empty())
        Canvas.TextRect(Rect, GetCaption(), DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

bool TQV7SkinHeaderItemTab::DrawByHost(TCanvas& Canvas, const TTabRendering& Rendering, int& X, int Height) {
    const TLifeGuard guard(*this);
    const TCanvasStateScope state(Canvas);
    Rendering.Shape.Copy(Canvas, X, Rendering.Background);
    Rendering.Shape.ClipTo(Canvas, X);
    PrepareText(Canvas);
    OnDraw(this, Canvas, Height, X);
    return guard.IsAlive();
}

TBitmap* TQV7SkinHeaderItemTab::ShownImage() const {
    return GetSelected() && FImageSelected ? FImageSelected : FImage;
}

void TQV7SkinHeaderItemTab::DrawImage(TCanvas& Canvas, TRect& Rect) {
    if (TBitmap* const image = ShownImage()) {
        const int y = std::max(1, (Rect.Height() - image->GetHeight()) / 2);
        DrawTransparentBitmap(Canvas, image, Rect.Left + GetHorzOffset(), y, clFuchsia);
    }
    if (FImage) Rect.Left += GetHorzOffset() + FImage->GetWidth() + ImageGap;
}

}  // namespace qv7skin

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TQV7SkinTabBackground>::Names() {
    static constexpr const wchar_t* names[] = {L"bckgrndStandard", L"bckgrndWhite"};
    return names;
}
