#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Filer.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/core/UpdateBracket.h"
#include "platform/vcl/graphics/ImageList.h"

// Image lists in form files, in the format of the system's ImageList_Write: a head, a bitmap file with the
// images in rows of four, and one with their masks.

namespace vcl {
namespace {

constexpr std::uint16_t Magic = 0x4C49;
constexpr std::uint16_t Version = 0x0101;
constexpr std::uint16_t HasMask = 0x0001;    ///< ILC_MASK
constexpr std::uint16_t TrueColor = 0x0020;  ///< ILC_COLOR32
constexpr int ImagesInRow = 4;

#pragma pack(push, 2)
struct THead {
    std::uint16_t Magic;
    std::uint16_t Version;
    std::uint16_t Count;
    std::uint16_t Capacity;
    std::uint16_t Grow;
    std::uint16_t Width;
    std::uint16_t Height;
    std::uint32_t Background;
    std::uint16_t Flags;
    std::int16_t Overlays[4];
};
#pragma pack(pop)
static_assert(sizeof(THead) == 28);

[[noreturn]] void RaiseDamaged() {
    throw EReadError(L"The images are damaged");
}

TRect CellOf(int index, int width, int height) {
    return TRect::OfSize(index % ImagesInRow * width, index / ImagesInRow * height, width, height);
}

/// Reads a bitmap file whose size follows from its head.
void ReadBitmap(TStream& stream, TBitmap& bitmap) {
    BITMAPFILEHEADER file{};
    BITMAPINFOHEADER info{};
    stream.ReadBuffer(&file, sizeof file);
    stream.ReadBuffer(&info, sizeof info);
    const std::int64_t heads = sizeof file + sizeof info;
    const std::int64_t rowBytes = (std::int64_t{info.biWidth} * info.biBitCount + 31) / 32 * 4;
    const std::int64_t left = stream.GetSize() - stream.GetPosition();
    if (info.biWidth <= 0 || rowBytes > left) RaiseDamaged();
    const std::int64_t size = file.bfOffBits + rowBytes * std::abs(std::int64_t{info.biHeight});
    if (size < heads || size - heads > left) RaiseDamaged();
    std::vector<std::byte> bytes(static_cast<std::size_t>(size));
    std::memcpy(bytes.data(), &file, sizeof file);
    std::memcpy(bytes.data() + sizeof file, &info, sizeof info);
    stream.ReadBuffer(bytes.data() + heads, static_cast<std::size_t>(size - heads));
    bitmap.LoadFromBytes(bytes);
}

}  // namespace

void TCustomImageList::DefineProperties(TFiler& filer) {
    TComponent::DefineProperties(filer);
    const auto* ancestor = dynamic_cast<const TCustomImageList*>(filer.GetAncestor());
    filer.DefineBinaryProperty(
        L"Bitmap", [this](TStream& stream) { ReadData(stream); },
        [this](TStream& stream) { WriteData(stream); },
        ancestor ? !HasSameImages(*ancestor) : GetCount() > 0);
}

bool TCustomImageList::HasSameImages(const TCustomImageList& other) const {
    TMemoryStream mine;
    TMemoryStream others;
    WriteData(mine);
    other.WriteData(others);
    return std::ranges::equal(mine.GetMemory(), others.GetMemory());
}

void TCustomImageList::ReadData(TStream& stream) {
    THead head{};
    stream.ReadBuffer(&head, sizeof head);
    if (head.Magic != Magic || head.Version != Version || head.Width == 0 || head.Height == 0) RaiseDamaged();
    TBitmap images;
    TBitmap masks;
    ReadBitmap(stream, images);
    if ((head.Flags & HasMask) != 0) ReadBitmap(stream, masks);
    const int rows = (head.Count + ImagesInRow - 1) / ImagesInRow;
    const auto holdsAll = [&](const TBitmap& bitmap) {
        return bitmap.GetWidth() >= ImagesInRow * head.Width && bitmap.GetHeight() >= rows * head.Height;
    };
    if (!holdsAll(images) || (!masks.GetEmpty() && !holdsAll(masks))) RaiseDamaged();

    WithinUpdate(*this, [&] {
        Clear();
        SetSize(head.Width, head.Height);
        const TRect all{0, 0, FWidth, FHeight};
        for (int i = 0; i < head.Count; ++i) {
            TBitmap image(FWidth, FHeight, pf32bit);
            TBitmap mask(FWidth, FHeight, pf1bit);
            image.GetCanvas().CopyRect(all, images, CellOf(i, FWidth, FHeight));
            if (!masks.GetEmpty()) mask.GetCanvas().CopyRect(all, masks, CellOf(i, FWidth, FHeight));
            Add(&image, masks.GetEmpty() ? nullptr : &mask);
        }
    });
}

void TCustomImageList::WriteData(TStream& stream) const {
    const int count = GetCount();
    const int rows = std::max((count + ImagesInRow - 1) / ImagesInRow, 1);
    const auto small = [](int value) { return static_cast<std::uint16_t>(value); };
    const THead head{Magic,
                     Version,
                     small(count),
                     small(rows * ImagesInRow),
                     small(ImagesInRow),
                     small(FWidth),
                     small(FHeight),
                     FBkColor == clNone ? CLR_NONE : static_cast<std::uint32_t>(FBkColor),
                     HasMask | TrueColor,
                     {-1, -1, -1, -1}};
    stream.WriteBuffer(&head, sizeof head);

    const auto makeStrip = [&](TBitmap& strip, TPixelFormat format) {
        strip.GetCanvas().GetBrush().SetColor(clBlack);
        strip.SetPixelFormat(format);
        strip.SetSize(ImagesInRow * FWidth, rows * FHeight);
    };
    TBitmap images;
    TBitmap masks;
    makeStrip(images, pf32bit);
    makeStrip(masks, pf1bit);
    for (int i = 0; i < count; ++i) {
        images.GetCanvas().CopyRect(CellOf(i, FWidth, FHeight), FImages, RectOf(i));
        if (IsMasked(i)) masks.GetCanvas().CopyRect(CellOf(i, FWidth, FHeight), FMasks, RectOf(i));
    }
    images.SaveToStream(stream);
    masks.SaveToStream(stream);
}

}  // namespace vcl
