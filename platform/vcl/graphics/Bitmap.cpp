#include "platform/vcl/graphics/Bitmap.h"

#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/graphics/BitmapCanvas.h"
#include "platform/vcl/graphics/BitmapFile.h"
#include "platform/vcl/graphics/BitmapImage.h"
#include "platform/vcl/graphics/GdiErrors.h"
#include "platform/vcl/graphics/KeyedCopy.h"

namespace vcl {
namespace {

/// How pixels of a format are stored.
TPixelFormat StoredFormat(TPixelFormat format) {
    return format == pfDevice ? pf32bit : format;
}

}  // namespace

const TMetaClass& TBitmap::StaticClass() {
    static const TMetaClass meta = DefineClass<TBitmap>(L"TBitmap", TGraphic::StaticClass());
    return meta;
}

TBitmap::TBitmap() = default;

TBitmap::TBitmap(int width, int height, TPixelFormat format) {
    SetPixelFormat(format);
    SetSize(width, height);
}

TBitmap::~TBitmap() = default;

void TBitmap::Assign(const TPersistent* source) {
    if (source == this) return;
    if (!source) {
        if (GetEmpty() && FWidth == 0 && FHeight == 0) return;
        TakeImage(nullptr, pfDevice);
        FWidth = FHeight = 0;
        Changed();
        return;
    }
    const auto* bitmap = dynamic_cast<const TBitmap*>(source);
    if (!bitmap) {
        TPersistent::Assign(source);
        return;
    }
    if (bitmap->FCanvas) bitmap->FCanvas->Detach();
    const bool isPart = bitmap->GetFirstRow() != 0;
    TakeImage(
        isPart ? bitmap->FImage->Converted(bitmap->FWidth, bitmap->FHeight, bitmap->FImage->Format(), clWhite)
               : bitmap->FImage,
        bitmap->FFormat);
    FWidth = bitmap->FWidth;
    FHeight = bitmap->FHeight;
    FTransparentMode = bitmap->FTransparentMode;
    FTransparentColor = bitmap->FTransparentColor;
    TakeTransparent(*bitmap);
    Changed();
}

void TBitmap::TakeImage(std::shared_ptr<TBitmapImage> image, TPixelFormat format) {
    if (FCanvas) FCanvas->Detach();
    FImage = std::move(image);
    FFormat = format;
    if (!FImage) return;
    FWidth = FImage->Width();
    FHeight = FImage->Height();
}

void TBitmap::Unshare() {
    if (FImage.use_count() > 1)
        TakeImage(FImage->Converted(FWidth, FHeight, FImage->Format(), clWhite), FFormat);
    else
        FImage->ForgetMask();
}

// --- Size and format

void TBitmap::SetSize(int width, int height) {
    if (width < 0 || height < 0) throw EInvalidGraphicOperation(L"Bitmap size must not be negative");
    if (width == FWidth && height == FHeight) return;
    const TColor fill = FCanvas ? FCanvas->GetBrush().GetColor() : clWhite;
    if (width == 0 || height == 0) {
        const TPixelFormat format = GetPixelFormat();
        TakeImage(nullptr, format);
    } else if (FImage) {
        TakeImage(FImage->Converted(width, height, FImage->Format(), fill), FFormat);
    } else {
        auto image = TBitmapImage::Create(width, height, StoredFormat(FFormat));
        image->Fill(fill);
        TakeImage(std::move(image), FFormat);
    }
    FWidth = width;
    FHeight = height;
    Changed();
}

TPixelFormat TBitmap::GetPixelFormat() const {
    return FImage && FFormat != pfDevice ? FImage->Format() : FFormat;
}

void TBitmap::SetPixelFormat(TPixelFormat value) {
    if (value == pfCustom) throw EInvalidGraphicOperation(L"Invalid pixel format");
    if (value == GetPixelFormat()) return;
    if (FImage && FImage->Format() != StoredFormat(value))
        TakeImage(FImage->Converted(FWidth, FHeight, StoredFormat(value), clWhite), value);
    FFormat = value;
    Changed();
}

void TBitmap::SetMonochrome(bool value) {
    if (value != GetMonochrome()) SetPixelFormat(value ? pf1bit : pfDevice);
}

// --- Memory

int TBitmap::GetFirstRow() const {
    return FImage ? FImage->FirstRow() : 0;
}

void TBitmap::SetFirstRow(int value) {
    if (!FImage || value == FImage->FirstRow()) return;
    Unshare();
    FImage->SetFirstRow(value);
}

const void* TBitmap::ScanLine(int row) const {
    row -= GetFirstRow();
    if (!FImage || row < 0 || row >= FHeight) throw EInvalidGraphicOperation(L"Scan line index out of range");
    return FImage->Row(row);
}

void* TBitmap::ScanLine(int row) {
    if (FImage && !FImage->Surface()) Unshare();
    return const_cast<void*>(std::as_const(*this).ScanLine(row));
}

int TBitmap::GetStride() const {
    return FImage ? static_cast<int>(FImage->Stride()) : 0;
}

bool TBitmap::HasByteBits() const {
    return FImage && (FImage->Format() == pf24bit || FImage->Format() == pf32bit);
}

TConstBitmapBits TBitmap::ReadBits() const {
    if (!FImage) return {};
    if (!HasByteBits()) throw EInvalidGraphicOperation(L"Pixels of this format can't be reached as bytes");
    return {FImage->Row(0), FImage->Stride(), FWidth, FHeight, FImage->BitCount() / 8};
}

TBitmapBits TBitmap::WriteBits() {
    if (FImage && !FImage->Surface()) Unshare();
    const TConstBitmapBits bits = ReadBits();
    return {const_cast<std::uint8_t*>(bits.Data), bits.Stride, bits.Width, bits.Height, bits.BytesPerPixel};
}

// --- Drawing

TCanvas& TBitmap::GetCanvas() {
    if (!FCanvas) FCanvas = std::make_unique<TBitmapCanvas>(*this);
    return *FCanvas;
}

HDC TBitmap::GetSourceDC() const {
    return FImage ? FImage->OpenDC() : nullptr;
}

void TBitmap::Draw(TCanvas& canvas, const TRect& rect) const {
    if (!FImage) return;
    if (GetTransparent())
        DrawTransparent(canvas, rect);
    else
        canvas.CopyFrom(rect, FImage->OpenDC(), {0, 0, FWidth, FHeight}, canvas.GetCopyMode());
}

// --- Transparency

void TBitmap::DrawTransparent(TCanvas& canvas, const TRect& rect) const {
    const bool scaled = rect.Width() != FWidth || rect.Height() != FHeight;
    if (!scaled && HasByteBits() && CopyKeyed(canvas, rect, ReadBits(), ColorToRGB(GetTransparentColor())))
        return;
    // A copy: drawing on this very bitmap drops the pair.
    const TBitmapImage::TMaskPair pair = FImage->MaskFor(GetTransparentColor());
    const TRect all{0, 0, FWidth, FHeight};
    const HDC mask = pair.Mask->OpenDC();
    const HDC picture = pair.Picture->OpenDC();
    canvas.CopyFrom(rect, mask, all, cmSrcAnd);
    canvas.CopyFrom(rect, picture, all, cmSrcPaint);
}

TColor TBitmap::GetTransparentColor() const {
    if (FTransparentMode == tmFixed) return FTransparentColor;
    return FImage ? FImage->Pixel(0, FHeight - 1) : clNone;
}

void TBitmap::SetTransparentColor(TColor value) {
    const TTransparentMode mode = value == clDefault ? tmAuto : tmFixed;
    if (mode == FTransparentMode && (mode == tmAuto || value == FTransparentColor)) return;
    FTransparentMode = mode;
    FTransparentColor = value;
    Changed();
}

void TBitmap::SetTransparentMode(TTransparentMode value) {
    if (value == FTransparentMode) return;
    SetTransparentColor(value == tmAuto ? clDefault : GetTransparentColor());
}

void TBitmap::Mask(TColor transparent) {
    if (!FImage) return;
    TakeImage(FImage->MakeMask(transparent), pf1bit);
    Changed();
}

HBITMAP TBitmap::GetMaskHandle() const {
    if (!FImage) return nullptr;
    const TBitmapImage::TMaskPair& pair = FImage->MaskFor(GetTransparentColor());
    pair.Mask->CloseDC();
    return pair.Mask->Handle();
}

// --- The system's handle

HBITMAP TBitmap::GetHandle() {
    if (!FImage) return nullptr;
    Unshare();
    FImage->CloseDC();
    return FImage->Handle();
}

void TBitmap::SetHandle(HBITMAP value) {
    const TBitmapHandle owned(value);
    if (value) {
        bool isSection = false;
        auto image = TBitmapImage::CopyOf(value, isSection);
        const TPixelFormat format = isSection || image->Format() == pf1bit ? image->Format() : pfDevice;
        TakeImage(std::move(image), format);
    } else {
        TakeImage(nullptr, pfDevice);
        FWidth = FHeight = 0;
    }
    Changed();
}

TBitmapHandle TBitmap::ReleaseHandle() {
    if (!FImage) return {};
    Unshare();
    TBitmapHandle handle = FImage->ReleaseHandle();
    Assign(nullptr);
    return handle;
}

// --- Files and resources

void TBitmap::LoadFromResourceName(HINSTANCE module, const String& name) {
    auto image = DecodeDib(FindResourceBytes(module, name, RT_BITMAP));
    const TPixelFormat format = image->Format();
    TakeImage(std::move(image), format);
    Changed();
}

void TBitmap::LoadFromResourceID(HINSTANCE module, int id) {
    LoadFromResourceName(module, L"#" + IntToStr(id));
}

void TBitmap::LoadFromBytes(std::span<const std::byte> bytes) {
    auto image = DecodeBitmapFile(bytes);
    const TPixelFormat format = image->Format();
    TakeImage(std::move(image), format);
    Changed();
}

std::vector<std::byte> TBitmap::SaveToBytes() const {
    return FImage ? EncodeBitmapFile(*FImage) : std::vector<std::byte>();
}

std::unique_ptr<TGraphic> TBitmap::NewOfKind() const {
    return std::make_unique<TBitmap>();
}

}  // namespace vcl
