#include "platform/vcl/graphics/ImageList.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/UpdateBracket.h"
#include "platform/vcl/graphics/GdiErrors.h"

// What an image list holds. ImageListDrawing.cpp draws it.

namespace vcl {
namespace {

/// Copies the area at the left edge and top row into the bitmap of 32 bits, at its left edge: what the system
/// does too, without a device context for either.
void CopyPixels(const TConstBitmapBits& from, int left, const TBitmapBits& to, int top, TSize area) {
    for (int y = 0; y < area.Height; ++y) {
        if (from.BytesPerPixel == 4) {
            std::copy_n(from.Pixel(left, y), 4 * area.Width, to.Row(top + y));
            continue;
        }
        for (int x = 0; x < area.Width; ++x)
            to.SetColor(x, top + y, from.GetColor(left + x, y));
    }
}

}  // namespace

std::span<const wchar_t* const> TEnumNames<TDrawingStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"dsFocus", L"dsSelected", L"dsNormal", L"dsTransparent"};
    return names;
}

const TMetaClass& TCustomImageList::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomImageList>(L"TCustomImageList", TComponent::StaticClass());
    return meta;
}

const TMetaClass& TImageList::StaticClass() {
    using T = TImageList;
    static const TMetaClass meta =
        DefineClass<T>(L"TImageList", TCustomImageList::StaticClass())
            .Property(L"AllocBy", &T::GetAllocBy, &T::SetAllocBy, 4)
            .Property(L"BkColor", &T::GetBkColor, &T::SetBkColor, clNone)
            .Identifiers(ColorIdentifiers())
            .Property(L"BlendColor", &T::GetBlendColor, &T::SetBlendColor, clNone)
            .Identifiers(ColorIdentifiers())
            .Property(L"DrawingStyle", &T::GetDrawingStyle, &T::SetDrawingStyle, dsNormal)
            .Property(L"Height", &T::GetHeight, &T::SetHeight, 16)
            .Property(L"Masked", &T::GetMasked, &T::SetMasked, true)
            .Property(L"Width", &T::GetWidth, &T::SetWidth, 16)
            .Event(L"OnChange", &T::OnChange);
    return meta;
}

TChangeLink::~TChangeLink() {
    if (FSender) FSender->UnRegisterChanges(this);
}

TCustomImageList::TCustomImageList(TComponent* AOwner) : TComponent(AOwner) {
    FImages.SetPixelFormat(pf32bit);
}

TCustomImageList::TCustomImageList(TComponent* AOwner, int width, int height) : TCustomImageList(AOwner) {
    SetSize(width, height);
}

TCustomImageList::~TCustomImageList() {
    for (TChangeLink* link : FLinks)
        link->FSender = nullptr;
}

void TCustomImageList::Assign(const TPersistent* source) {
    if (source == this) return;
    const auto* list = dynamic_cast<const TCustomImageList*>(source);
    if (source && !list) {
        TComponent::Assign(source);
        return;
    }
    WithinUpdate(*this, [&] {
        Clear();
        if (!list) return;
        FWidth = list->FWidth;
        FHeight = list->FHeight;
        FBkColor = list->FBkColor;
        FBlendColor = list->FBlendColor;
        FDrawingStyle = list->FDrawingStyle;
        FKeepMasks = list->FKeepMasks;
        FImages.Assign(&list->FImages);
        FMasks.Assign(&list->FMasks);
        FMasked = list->FMasked;
        Change();
    });
}

// --- Properties

void TCustomImageList::SetSize(int width, int height) {
    width = std::max(width, 1);
    height = std::max(height, 1);
    if (width == FWidth && height == FHeight) return;
    WithinUpdate(*this, [&] {
        Clear();
        FWidth = width;
        FHeight = height;
        Change();
    });
}

void TCustomImageList::SetBkColor(TColor value) {
    if (FBkColor == value) return;
    FBkColor = value;
    Change();
}

void TCustomImageList::SetBlendColor(TColor value) {
    if (FBlendColor == value) return;
    FBlendColor = value;
    Change();
}

void TCustomImageList::SetDrawingStyle(TDrawingStyle value) {
    if (FDrawingStyle == value) return;
    FDrawingStyle = value;
    Change();
}

void TCustomImageList::SetMasked(bool value) {
    if (FKeepMasks == value) return;
    FKeepMasks = value;
    Change();
}

// --- Images

void TCustomImageList::CheckIndex(int index) const {
    if (!Has(index)) throw EListError(Format(L"List index out of bounds (%d)", index));
}

int TCustomImageList::CountImagesIn(const TBitmap& image) const {
    if (image.GetWidth() < FWidth || image.GetHeight() < FHeight)
        throw EInvalidOperation(L"Invalid image size");
    return image.GetWidth() / FWidth;
}

void TCustomImageList::CheckMask(const TBitmap* mask, const TBitmap& image) const {
    if (mask && CountImagesIn(*mask) < image.GetWidth() / FWidth)
        throw EInvalidOperation(L"Invalid image size");
}

void TCustomImageList::MakeRoom(int count) {
    const int capacity = FImages.GetHeight() / FHeight;
    if (count <= capacity) return;
    const int rows = std::max({count, 2 * capacity, FAllocBy}) * FHeight;
    if (!FMasks.GetEmpty()) FMasks.SetSize(FWidth, rows);
    FImages.SetSize(FWidth, rows);
}

int TCustomImageList::Append(const TBitmap& image, const TBitmap* mask) {
    const int first = GetCount();
    const int count = CountImagesIn(image);
    CheckMask(mask, image);
    MakeRoom(first + count);
    FMasked.resize(static_cast<std::size_t>(first + count));
    for (int i = 0; i < count; ++i)
        Put(first + i, image, i * FWidth, mask);
    return first;
}

void TCustomImageList::Put(int index, const TBitmap& image, int imageLeft, const TBitmap* mask) {
    if (image.HasByteBits())
        CopyPixels(image.ReadBits(), imageLeft, FImages.WriteBits(), index * FHeight, {FWidth, FHeight});
    else
        FImages.GetCanvas().CopyRect(RectOf(index), image, TRect::OfSize(imageLeft, 0, FWidth, FHeight));
    FMasked[static_cast<std::size_t>(index)] = false;
    if (mask && FKeepMasks) PutMask(index, *mask, imageLeft);
}

void TCustomImageList::MakeMasks() {
    if (!FMasks.GetEmpty()) return;
    FMasks.GetCanvas().GetBrush().SetColor(clBlack);
    FMasks.SetPixelFormat(pf1bit);
    FMasks.SetSize(FWidth, FImages.GetHeight());
}

void TCustomImageList::PutMask(int index, const TBitmap& mask, int maskLeft) {
    MakeMasks();
    TBitmap colors;
    colors.Assign(&mask);
    if (!colors.HasByteBits()) colors.SetPixelFormat(pf32bit);
    const TConstBitmapBits from = std::as_const(colors).ReadBits();
    const TBitmapBits pixels = FImages.WriteBits();
    bool any = false;
    for (int y = 0; y < FHeight; ++y) {
        auto* bits = static_cast<std::uint8_t*>(FMasks.ScanLine(index * FHeight + y));
        std::fill_n(bits, (FWidth + 7) / 8, std::uint8_t{0});
        for (int x = 0; x < FWidth; ++x) {
            if (from.GetColor(maskLeft + x, y) == clBlack) continue;
            bits[x / 8] = static_cast<std::uint8_t>(bits[x / 8] | 0x80 >> x % 8);
            pixels.SetColor(x, index * FHeight + y, clBlack);
            any = true;
        }
    }
    FMasked[static_cast<std::size_t>(index)] = any;
}

namespace {

/// The mask of a colour of the image; null when the image is to be opaque.
const TBitmap* MaskOf(const TBitmap& image, TColor transparent, TBitmap& mask) {
    if (transparent == clNone) return nullptr;
    mask.Assign(&image);
    mask.Mask(transparent == clDefault ? image.GetTransparentColor() : transparent);
    return &mask;
}

}  // namespace

int TCustomImageList::Add(const TBitmap* image, const TBitmap* mask) {
    if (!image) return -1;
    const int first = Append(*image, mask);
    Change();
    return first;
}

int TCustomImageList::AddMasked(const TBitmap* image, TColor transparent) {
    if (!image) return -1;
    TBitmap mask;
    return Add(image, MaskOf(*image, transparent, mask));
}

void TCustomImageList::AddImages(const TCustomImageList& source) {
    if (source.FWidth != FWidth || source.FHeight != FHeight) throw EInvalidOperation(L"Invalid image size");
    WithinUpdate(*this, [&] {
        const int count = source.GetCount();
        MakeRoom(GetCount() + count);
        for (int i = 0; i < count; ++i) {
            TBitmap image(FWidth, FHeight, pf32bit);
            image.GetCanvas().CopyRect({0, 0, FWidth, FHeight}, source.FImages, source.RectOf(i));
            TBitmap mask(FWidth, FHeight, pf1bit);
            if (source.IsMasked(i))
                mask.GetCanvas().CopyRect({0, 0, FWidth, FHeight}, source.FMasks, source.RectOf(i));
            Append(image, source.IsMasked(i) ? &mask : nullptr);
        }
        Change();
    });
}

int TCustomImageList::AddIcon(HICON icon) {
    // What differs between a black and a white ground shows the ground.
    const auto drawn = [this, icon](TBitmap& bitmap, TColor ground) {
        bitmap.GetCanvas().GetBrush().SetColor(ground);
        bitmap.SetPixelFormat(pf32bit);
        bitmap.SetSize(FWidth, FHeight);
        ::DrawIconEx(bitmap.GetCanvas().GetHandle(), 0, 0, icon, FWidth, FHeight, 0, nullptr, DI_NORMAL);
    };
    TBitmap onBlack;
    TBitmap onWhite;
    drawn(onBlack, clBlack);
    drawn(onWhite, clWhite);
    TBitmap mask(FWidth, FHeight, pf32bit);
    const TBitmapBits bits = mask.WriteBits();
    for (int y = 0; y < FHeight; ++y)
        for (int x = 0; x < FWidth; ++x) {
            const int ground =
                GreenOf(onWhite.WriteBits().GetColor(x, y)) - GreenOf(onBlack.WriteBits().GetColor(x, y));
            bits.SetColor(x, y, ground >= 128 ? clWhite : clBlack);
        }
    return Add(&onBlack, &mask);
}

void TCustomImageList::Insert(int index, const TBitmap* image, const TBitmap* mask) {
    if (!image) return;
    if (index != GetCount()) CheckIndex(index);
    const int first = Append(*image, mask);
    for (int i = first; i < GetCount(); ++i)
        Reorder(i, index + i - first);
    Change();
}

void TCustomImageList::InsertMasked(int index, const TBitmap* image, TColor transparent) {
    TBitmap mask;
    if (image) Insert(index, image, MaskOf(*image, transparent, mask));
}

void TCustomImageList::Replace(int index, const TBitmap* image, const TBitmap* mask) {
    CheckIndex(index);
    if (!image) return;
    (void)CountImagesIn(*image);
    CheckMask(mask, *image);
    Put(index, *image, 0, mask);
    Change();
}

void TCustomImageList::ReplaceMasked(int index, const TBitmap* image, TColor transparent) {
    TBitmap mask;
    Replace(index, image, image ? MaskOf(*image, transparent, mask) : nullptr);
}

void TCustomImageList::Move(int currentIndex, int newIndex) {
    CheckIndex(currentIndex);
    CheckIndex(newIndex);
    if (currentIndex == newIndex) return;
    Reorder(currentIndex, newIndex);
    Change();
}

void TCustomImageList::Delete(int index) {
    CheckIndex(index);
    Reorder(index, GetCount() - 1);
    FMasked.pop_back();
    Change();
}

void TCustomImageList::Clear() {
    if (FMasked.empty()) return;
    FMasked.clear();
    FImages.Assign(nullptr);
    FImages.SetPixelFormat(pf32bit);
    FMasks.Assign(nullptr);
    Change();
}

void TCustomImageList::Reorder(int from, int to) {
    if (from == to) return;
    Rotate(FImages, from, to);
    if (!FMasks.GetEmpty()) Rotate(FMasks, from, to);
    const bool masked = FMasked[static_cast<std::size_t>(from)];
    FMasked.erase(FMasked.begin() + from);
    FMasked.insert(FMasked.begin() + to, masked);
}

/// Moves an image of a strip; those between move up or down. In memory the last image comes first.
void TCustomImageList::Rotate(TBitmap& strip, int from, int to) const {
    const int last = std::max(from, to);
    const int count = last - std::min(from, to) + 1;
    const std::ptrdiff_t imageBytes = static_cast<std::ptrdiff_t>(std::abs(strip.GetStride())) * FHeight;
    auto* begin = static_cast<std::uint8_t*>(strip.ScanLine((last + 1) * FHeight - 1));
    auto* end = begin + count * imageBytes;
    std::rotate(begin, from < to ? end - imageBytes : begin + imageBytes, end);
}

// --- Telling of changes

void TCustomImageList::EndUpdate() {
    if (--FUpdateCount == 0 && FChanged) Change();
}

void TCustomImageList::RegisterChanges(TChangeLink* link) {
    link->FSender = this;
    FLinks.push_back(link);
}

void TCustomImageList::UnRegisterChanges(TChangeLink* link) {
    std::erase(FLinks, link);
    link->FSender = nullptr;
}

void TCustomImageList::Change() {
    FChanged = FUpdateCount > 0;
    if (FChanged) return;
    if (FHandle) SyncHandle();
    TellLinks();
}

void TCustomImageList::TellLinks() {
    const TLifeGuard guard(*this);
    const std::vector<TChangeLink*> links = FLinks;
    for (TChangeLink* link : links) {
        // A handler may have ended the registration of another one.
        if (std::find(FLinks.begin(), FLinks.end(), link) != FLinks.end()) link->OnChange(this);
        if (!guard.IsAlive()) return;
    }
    OnChange(this);
}

// --- The system's image list

HIMAGELIST TCustomImageList::GetHandle() {
    if (!FHandle) {
        FHandle = TImageListHandle(CheckHandle(
            ::ImageList_Create(FWidth, FHeight, ILC_COLOR24 | ILC_MASK, std::max(GetCount(), 1), 4)));
        SyncHandle();
    }
    return FHandle.Get();
}

void TCustomImageList::SyncHandle() {
    // Setting the size removes all images, also when it stays the same.
    ::ImageList_SetIconSize(FHandle.Get(), FWidth, FHeight);
    ::ImageList_SetBkColor(FHandle.Get(), FBkColor == clNone ? CLR_NONE : ColorToRGB(FBkColor));
    for (int i = 0; i < GetCount(); ++i) {
        const TRect all{0, 0, FWidth, FHeight};
        TBitmap image(FWidth, FHeight, pf24bit);
        TBitmap mask;
        mask.GetCanvas().GetBrush().SetColor(clBlack);
        mask.SetPixelFormat(pf1bit);
        mask.SetSize(FWidth, FHeight);
        image.GetCanvas().CopyRect(all, FImages, RectOf(i));
        if (IsMasked(i)) mask.GetCanvas().CopyRect(all, FMasks, RectOf(i));
        if (::ImageList_Add(FHandle.Get(), image.GetHandle(), mask.GetHandle()) < 0) RaiseOutOfResources();
    }
}

}  // namespace vcl
