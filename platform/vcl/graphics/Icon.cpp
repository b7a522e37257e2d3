#include "platform/vcl/graphics/Icon.h"

#include <cstdlib>
#include <cstring>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/GdiErrors.h"

// Icon files: https://learn.microsoft.com/previous-versions/ms997538(v=msdn.10)

namespace vcl {
namespace {

/// The head of an icon file, and one entry of the table that follows it.
struct TIconHead {
    WORD Reserved;
    WORD Type;
    WORD Count;
};
struct TIconEntry {
    BYTE Width;  ///< 0 stands for 256.
    BYTE Height;
    BYTE ColorCount;
    BYTE Reserved;
    WORD Planes;
    WORD BitCount;
    DWORD Size;
    DWORD Offset;
};
static_assert(sizeof(TIconHead) == 6 && sizeof(TIconEntry) == 16);

constexpr WORD IconType = 1;
constexpr DWORD ResourceVersion = 0x00030000;

[[noreturn]] void RaiseInvalid() {
    throw EInvalidGraphic(L"Icon image is not valid");
}

template <class T>
T ReadAt(std::span<const std::byte> bytes, std::size_t offset) {
    if (offset > bytes.size() || sizeof(T) > bytes.size() - offset) RaiseInvalid();
    T value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

int WidthOf(const TIconEntry& entry) {
    return entry.Width ? entry.Width : 256;
}

/// The entry whose width is nearest to the system's, of these the one with most colours.
TIconEntry BestEntry(std::span<const std::byte> bytes) {
    const auto head = ReadAt<TIconHead>(bytes, 0);
    if (head.Reserved != 0 || head.Type != IconType || head.Count == 0) RaiseInvalid();
    const int wanted = ::GetSystemMetrics(SM_CXICON);
    auto best = ReadAt<TIconEntry>(bytes, sizeof head);
    for (std::size_t i = 1; i < head.Count; ++i) {
        const auto entry = ReadAt<TIconEntry>(bytes, sizeof head + i * sizeof(TIconEntry));
        const int gain = std::abs(WidthOf(best) - wanted) - std::abs(WidthOf(entry) - wanted);
        if (gain > 0 || (gain == 0 && entry.BitCount > best.BitCount)) best = entry;
    }
    return best;
}

/// The bitmaps of an icon, which the system hands out as copies.
struct TIconParts {
    TBitmap Color;
    TBitmap Mask;

    explicit TIconParts(HICON icon) {
        ICONINFO info{};
        if (!::GetIconInfo(icon, &info)) RaiseOutOfResources();
        TBitmapHandle color(info.hbmColor);
        TBitmapHandle mask(info.hbmMask);
        if (color) Color.SetHandle(color.Release());
        Mask.SetHandle(mask.Release());
    }
    [[nodiscard]] TSize Size() const {
        // An icon without colours has its two masks one below the other.
        if (Color.GetEmpty()) return {Mask.GetWidth(), Mask.GetHeight() / 2};
        return {Color.GetWidth(), Color.GetHeight()};
    }
};

/// Draws the icon alone on a ground of one colour.
TBitmap& DrawOn(TBitmap& bitmap, HICON icon, TSize size, TColor ground) {
    bitmap.SetPixelFormat(pf32bit);
    bitmap.GetCanvas().GetBrush().SetColor(ground);
    bitmap.SetSize(size.Width, size.Height);
    ::DrawIconEx(bitmap.GetCanvas().GetHandle(), 0, 0, icon, size.Width, size.Height, 0, nullptr, DI_NORMAL);
    return bitmap;
}

template <class T>
void Append(std::vector<std::byte>& bytes, const T& value) {
    const auto* from = reinterpret_cast<const std::byte*>(&value);
    bytes.insert(bytes.end(), from, from + sizeof value);
}

}  // namespace

const TMetaClass& TIcon::StaticClass() {
    static const TMetaClass meta = DefineClass<TIcon>(L"TIcon", TGraphic::StaticClass());
    return meta;
}

TIcon::TIcon() = default;

void TIcon::Assign(const TPersistent* source) {
    const TIcon empty;
    const auto* icon = source ? dynamic_cast<const TIcon*>(source) : &empty;
    if (!icon) {
        TGraphic::Assign(source);
        return;
    }
    if (FHandle == icon->FHandle) return;
    FHandle = icon->FHandle;
    FSize = icon->FSize;
    Changed();
}

void TIcon::AssignTo(TPersistent* dest) const {
    auto* bitmap = dynamic_cast<TBitmap*>(dest);
    if (!bitmap) {
        TGraphic::AssignTo(dest);
        return;
    }
    TBitmap picture;
    if (FHandle) DrawOn(picture, GetHandle(), FSize, clWhite);
    bitmap->Assign(&picture);
}

void TIcon::Draw(TCanvas& canvas, const TRect& rect) const {
    if (FHandle)
        ::DrawIconEx(canvas.GetHandle(), rect.Left, rect.Top, GetHandle(), rect.Width(), rect.Height(), 0,
                     nullptr, DI_NORMAL);
}

void TIcon::SetWidth(int) {
    throw EInvalidGraphicOperation(L"Cannot change the size of an icon");
}

void TIcon::SetHeight(int value) {
    SetWidth(value);
}

std::unique_ptr<TGraphic> TIcon::NewOfKind() const {
    return std::make_unique<TIcon>();
}

void TIcon::SetHandle(HICON value) {
    std::shared_ptr<const TIconHandle> handle;
    TSize size;
    if (value) {
        handle = std::make_shared<const TIconHandle>(value);
        size = TIconParts(value).Size();
    }
    FHandle = std::move(handle);
    FSize = size;
    Changed();
}

void TIcon::LoadFromResourceName(HINSTANCE module, const String& name) {
    const HANDLE icon = ::LoadImageW(module, name.c_str(), IMAGE_ICON, 0, 0, LR_DEFAULTSIZE);
    if (!icon) throw EResNotFound(Format(L"Resource %s not found", name.c_str()));
    SetHandle(static_cast<HICON>(icon));
}

void TIcon::LoadFromBytes(std::span<const std::byte> bytes) {
    const TIconEntry entry = BestEntry(bytes);
    if (entry.Offset > bytes.size() || entry.Size > bytes.size() - entry.Offset) RaiseInvalid();
    auto* data = reinterpret_cast<BYTE*>(const_cast<std::byte*>(bytes.data() + entry.Offset));
    const HICON icon =
        ::CreateIconFromResourceEx(data, entry.Size, TRUE, ResourceVersion, 0, 0, LR_DEFAULTCOLOR);
    if (!icon) RaiseInvalid();
    SetHandle(icon);
}

std::vector<std::byte> TIcon::SaveToBytes() const {
    if (!FHandle) return {};
    TIconParts parts(GetHandle());
    parts.Mask.SetPixelFormat(pf1bit);
    TBitmap color;
    color.Assign(&parts.Color);
    if (color.GetEmpty()) DrawOn(color, GetHandle(), FSize, clBlack);
    color.SetPixelFormat(pf32bit);
    const auto maskRow = static_cast<std::size_t>(std::abs(parts.Mask.GetStride()));
    const auto colorRow = static_cast<std::size_t>(std::abs(color.GetStride()));
    const auto rows = static_cast<std::size_t>(FSize.Height);

    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = FSize.Width;
    header.biHeight = 2 * FSize.Height;
    header.biPlanes = 1;
    header.biBitCount = 32;
    TIconEntry entry{};
    entry.Width = static_cast<BYTE>(FSize.Width);
    entry.Height = static_cast<BYTE>(FSize.Height);
    entry.Planes = 1;
    entry.BitCount = 32;
    entry.Size = static_cast<DWORD>(sizeof header + rows * (colorRow + maskRow));
    entry.Offset = sizeof(TIconHead) + sizeof entry;

    std::vector<std::byte> bytes;
    Append(bytes, TIconHead{0, IconType, 1});
    Append(bytes, entry);
    Append(bytes, header);
    for (const auto& [bitmap, size] : {std::pair(&color, colorRow), std::pair(&parts.Mask, maskRow)})
        for (int y = FSize.Height - 1; y >= 0; --y) {
            const auto* row = static_cast<const std::byte*>(std::as_const(*bitmap).ScanLine(y));
            bytes.insert(bytes.end(), row, row + size);
        }
    return bytes;
}

}  // namespace vcl
