#include "explorerbar/items/ExplorerItemBmp.h"

#include <algorithm>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Jpeg.h"

namespace qv7skin {
namespace {

bool FileExists(const String& name) {
    const DWORD attributes = ::GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

/// The part of a file name from its last point on, in upper case; empty when there is none.
String Extension(const String& name) {
    const std::size_t point = name.find_last_of(L".\\/:");
    return point == String::npos || name[point] != L'.' ? String() : UpperCase(name.substr(point));
}

/// The picture of a file; null when there is none of a known kind.
std::unique_ptr<TBitmap> LoadPicture(const String& name) {
    if (!FileExists(name)) return nullptr;
    const String extension = Extension(name);
    if (extension == L".BMP") {
        auto bitmap = std::make_unique<TBitmap>();
        bitmap->LoadFromFile(name);
        return bitmap;
    }
    if (extension == L".JPG") {
        TJPEGImage picture;
        picture.LoadFromFile(name);
        auto bitmap = std::make_unique<TBitmap>();
        bitmap->Assign(&picture);
        return bitmap;
    }
    return nullptr;
}

}  // namespace

TQV7SkinExplorerItemBmp::TQV7SkinExplorerItemBmp() : TQV7SkinExplorerItemBmp(nullptr) {}

TQV7SkinExplorerItemBmp::TQV7SkinExplorerItemBmp(const TBitmap* Image)
    : FDisplayBitmap(std::make_unique<TBitmap>()) {
    SetImage(Image);
}

TQV7SkinExplorerItemBmp::TQV7SkinExplorerItemBmp(const String& FileName)
    : TQV7SkinExplorerItemBmp(LoadPicture(FileName).get()) {}

TQV7SkinExplorerItemBmp::~TQV7SkinExplorerItemBmp() = default;

void TQV7SkinExplorerItemBmp::SetImage(const TBitmap* Value) {
    std::unique_ptr<TBitmap> image;
    if (Value) {
        image = std::make_unique<TBitmap>();
        image->Assign(Value);
        image->SetTransparent(false);
    }
    FImage = std::move(image);
    FDisplayBitmap->Assign(FImage.get());
    Refresh(false);
}

void TQV7SkinExplorerItemBmp::AdjustImageSize(int Width) {
    if (!FAutoSize) return;
    int limit = std::max(GroupWidth(Width) - 10, 0);
    if (FMaxWidth >= 1) limit = std::min(limit, FMaxWidth);
    const int target = std::min(limit, FImage->GetWidth());
    if (FDisplayBitmap->GetWidth() != target) FDisplayBitmap->Assign(FImage.get());
    if (FDisplayBitmap->GetWidth() == target) return;
    const int height =
        static_cast<int>(static_cast<double>(limit) / FImage->GetWidth() * FImage->GetHeight());
    FDisplayBitmap->SetSize(limit, height);
    FDisplayBitmap->GetCanvas().StretchDraw({0, 0, limit, height}, FImage.get());
}

void TQV7SkinExplorerItemBmp::Place(TBitmap&, int Left, int Top, int Width) {
    if (!FImage) return;
    AdjustImageSize(Width);
    const int width = FDisplayBitmap->GetWidth();
    int x = Left + 5;
    if (FAlignment == taRightJustify) x = Left + Width - width - 5;
    if (FAlignment == taCenter) x = Left + (Width - width) / 2;
    FClipRect = TRect::OfSize(x, Top, width, FDisplayBitmap->GetHeight());
}

void TQV7SkinExplorerItemBmp::Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) {
    if (!FImage) return;
    Place(Bitmap, Left, Top, Width);
    Bitmap.GetCanvas().Draw(FClipRect.Left, FClipRect.Top, FDisplayBitmap.get());
    Top += FDisplayBitmap->GetHeight() + 1;
}

void TQV7SkinExplorerItemBmp::Measure(TBitmap&, int&, int& Top, int& Width) {
    if (!FImage) return;
    AdjustImageSize(Width);
    Top += FDisplayBitmap->GetHeight() + 1;
}

void TQV7SkinExplorerItemBmp::DoEnter(TCursor& Cursor) {
    if (OnClick) Cursor = crHandPoint;
    TQV7SkinExplorerItemCustom::DoEnter(Cursor);
}

}  // namespace qv7skin
