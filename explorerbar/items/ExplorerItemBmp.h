#pragma once

#include <memory>

#include "explorerbar/items/ExplorerItem.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace qv7skin {

/// A picture. Without one the item takes no room.
class TQV7SkinExplorerItemBmp : public TQV7SkinExplorerItemCustom {
public:
    TQV7SkinExplorerItemBmp();
    /// Copies the bitmap; null is no picture.
    explicit TQV7SkinExplorerItemBmp(const TBitmap* Image);
    /// Reads a ".BMP" or ".JPG" file; a missing file or one of another kind gives an item without a picture.
    /// A damaged file raises what the picture's loader raises.
    explicit TQV7SkinExplorerItemBmp(const String& FileName);
    ~TQV7SkinExplorerItemBmp() override;

    /// The picture as it was given; null without one.
    [[nodiscard]] const TBitmap* GetImage() const { return FImage.get(); }
    /// Copies the bitmap; null takes the picture away.
    void SetImage(const TBitmap* Value);
    /// The picture as it is shown: that given, or scaled to the group's width.
    [[nodiscard]] const TBitmap& GetDisplayBitmap() const { return *FDisplayBitmap; }
    /// Where the picture stands in the group; taCenter at first.
    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value) { Change(FAlignment, Value); }
    /// Whether a picture that is too wide is scaled down; false at first.
    [[nodiscard]] bool GetAutoSize() const { return FAutoSize; }
    void SetAutoSize(bool Value) { Change(FAutoSize, Value); }
    /// The greatest width that is not scaled down, in pixels; 0, as at first, leaves it to the group's width.
    [[nodiscard]] int GetMaxWidth() const { return FMaxWidth; }
    void SetMaxWidth(int Value) { Change(FMaxWidth, Value); }

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;
    /// The pointing hand when `OnClick` is bound.
    void DoEnter(TCursor& Cursor) override;

private:
    void AdjustImageSize(int Width);

    std::unique_ptr<TBitmap> FImage;
    std::unique_ptr<TBitmap> FDisplayBitmap;
    TAlignment FAlignment = taCenter;
    bool FAutoSize = false;
    int FMaxWidth = 0;
};

}  // namespace qv7skin
