#include "buttons/UnitQV7SkinButton.h"

#include <optional>

#include "buttons/SkinButtonPieces.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/ScopedValue.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/utils/BitmapRegion.h"

namespace qv7skin {
namespace {

constexpr int DefaultWidth = 100;
constexpr int DefaultHeight = 25;

}  // namespace

const TMetaClass& TCustomQV7SkinButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomQV7SkinButton>(L"TCustomQV7SkinButton", TCustomButtonExWithCaption::StaticClass());
    return meta;
}

TCustomQV7SkinButton::TCustomQV7SkinButton(TComponent* AOwner)
    : TCustomButtonExWithCaption(AOwner), FImages(std::make_unique<TImageList>(nullptr)) {
    GetFont().SetColor(GetQV7SkinColorButtonCaption());
    GetFont().SetStyle(GetQV7SkinStyleButtonCaption());
    SetBounds(GetLeft(), GetTop(), DefaultWidth, DefaultHeight);
    SetFocusedRectMarginHorizontal(10);
    SetFocusedRectMarginVertical(4);
    GetFontHovered().Assign(&GetFont());
    GetFontDisabled().SetColor(GetQV7SkinColorButtonCaptionDisabled());
    GetFontDisabled().SetStyle(GetQV7SkinStyleButtonCaptionDisabled());
    SetDrawFocusedRect(true);
    SetDrawHoveredIfFocused(false);
    FImages->SetAllocBy(ButtonExStateCount);
}

TCustomQV7SkinButton::~TCustomQV7SkinButton() = default;

void TCustomQV7SkinButton::SetUseSkinFonts(bool Value) {
    if (FUseSkinFonts == Value) return;
    FUseSkinFonts = Value;
    RebuildImages(true);
}

// --- pictures

bool TCustomQV7SkinButton::HasImages() const {
    return FImages->GetCount() > 0 && FImages->GetWidth() == GetWidth() &&
           FImages->GetHeight() == GetHeight();
}

void TCustomQV7SkinButton::BuildImage(TButtonExState State) {
    std::optional<TBitmap> own;
    TBitmap& bitmap = FSheet ? *FSheet : own.emplace(FImages->GetWidth(), FImages->GetHeight());
    BuildImage(State, bitmap);
    FImages->Add(&bitmap, nullptr);
}

void TCustomQV7SkinButton::BuildImage(TButtonExState State, TBitmap& Bitmap) {
    if (!FPieces) FPieces = TSkinButtonPieces::Shared();
    const TSkinButtonLook& look = SkinButtonLook(State);
    ComposeNinePartFrame(Bitmap, FPieces->OfState(look.Frame), look.Interior);
}

void TCustomQV7SkinButton::BuildAll() {
    // Making a bitmap costs many times what drawing a picture on it does.
    TBitmap sheet(FImages->GetWidth(), FImages->GetHeight());
    const TScopedValue drawing(FSheet, &sheet);
    for (const TButtonExState state :
         {bexNormal, bexDisabled, bexPressed, bexHovered, bexDown, bexDownHovered})
        BuildImage(state);
    RebuildRegion();
}

void TCustomQV7SkinButton::RebuildImages(bool Force) {
    if (!Force && HasImages()) return;
    FImages->Clear();
    FPaintFromImageList = GetWidth() > 0 && GetHeight() > 0;
    if (FPaintFromImageList) {
        FImages->SetSize(GetWidth(), GetHeight());
        BuildAll();
    }
    Refresh();
}

void TCustomQV7SkinButton::RebuildRegion() {
    if (!HandleAllocated() || FImages->GetCount() == 0) return;
    std::optional<TBitmap> own;
    TBitmap& outline = FSheet ? *FSheet : own.emplace();
    FImages->GetBitmap(0, outline);
    TRegionHandle region = BitmapToRegion(&outline, false);
    // The window owns the region from here on.
    if (::SetWindowRgn(WindowHandle(), region.Get(), TRUE)) static_cast<void>(region.Release());
}

void TCustomQV7SkinButton::Resize() {
    TCustomButtonExWithCaption::Resize();
    if (HandleAllocated() || FImages->GetCount() > 0) RebuildImages(false);
}

void TCustomQV7SkinButton::Loaded() {
    TCustomButtonExWithCaption::Loaded();
    RebuildImages(false);
}

void TCustomQV7SkinButton::CreateWnd() {
    TCustomButtonExWithCaption::CreateWnd();
    if (HasImages())
        RebuildRegion();
    else
        RebuildImages(false);
}

// --- painting

void TCustomQV7SkinButton::ApplySkinFonts() {
    for (TFont* font : {&GetFont(), &GetFontHovered()}) {
        font->SetColor(GetQV7SkinColorButtonCaption());
        font->SetStyle(GetQV7SkinStyleButtonCaption());
    }
    GetFontDisabled().SetColor(GetQV7SkinColorButtonCaptionDisabled());
    GetFontDisabled().SetStyle(GetQV7SkinStyleButtonCaptionDisabled());
}

void TCustomQV7SkinButton::Paint() {
    if (FUseSkinFonts) ApplySkinFonts();
    TCustomButtonExWithCaption::Paint();
}

void TCustomQV7SkinButton::DrawFocusRect() {
    TCanvas& canvas = GetCanvas();
    const TColor penColor = canvas.GetPen().GetColor();
    canvas.GetPen().SetColor(clWhite);
    canvas.GetPen().SetStyle(psDot);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.Rectangle(GetFocusRect());
    canvas.GetPen().SetColor(penColor);
}

}  // namespace qv7skin
