#pragma once

#include <memory>
#include <vector>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Handles.h"

#include <commctrl.h>

namespace vcl {

class TCustomImageList;

/// How an image is shown: mixed half and half (`dsSelected`) or a quarter (`dsFocus`) with the blend colour,
/// on the background colour (`dsNormal`), or alone.
enum class TDrawingStyle { dsFocus, dsSelected, dsNormal, dsTransparent };
using enum TDrawingStyle;

template <>
struct TEnumNames<TDrawingStyle> {
    static std::span<const wchar_t* const> Names();
};

/// Tells its owner of changes of an image list; ends the registration with its own life or the list's.
class TChangeLink : public TObject {
public:
    TChangeLink() = default;
    ~TChangeLink() override;
    /// Raised after each change, with the image list as sender.
    TNotifyEvent OnChange;
    [[nodiscard]] TCustomImageList* GetSender() const { return FSender; }

private:
    friend class TCustomImageList;
    TCustomImageList* FSender = nullptr;
};

/// Images of one size. The list keeps their pixels and draws them itself: images without a mask exactly and
/// at the cost of a copy, masked ones with two; the system's image list for native controls is made on demand
/// and kept up to date. Index errors raise EListError "List index out of bounds (n)".
class TCustomImageList : public TComponent, private TGuarded {
public:
    explicit TCustomImageList(TComponent* AOwner);
    TCustomImageList(TComponent* AOwner, int width, int height);
    ~TCustomImageList() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after each change.
    TNotifyEvent OnChange;

    /// Copies images and properties of another list; null clears.
    void Assign(const TPersistent* source) override;

    /// The size of each image in pixels, 16 x 16 at first, at least 1; a change removes all images.
    [[nodiscard]] int GetWidth() const { return FWidth; }
    [[nodiscard]] int GetHeight() const { return FHeight; }
    void SetWidth(int value) { SetSize(value, FHeight); }
    void SetHeight(int value) { SetSize(FWidth, value); }
    void SetSize(int width, int height);
    [[nodiscard]] int GetCount() const { return static_cast<int>(FMasked.size()); }
    /// How many images the list makes room for at least when it grows; 4 at first.
    [[nodiscard]] int GetAllocBy() const { return FAllocBy; }
    void SetAllocBy(int value) { FAllocBy = value; }

    // --- Images. A bitmap or mask smaller than the list's images raises EInvalidOperation "Invalid image
    // size"; a wider one of adding holds several images side by side. Masks are black where the image shows
    // and of any other colour where it is transparent; a null mask makes opaque images. A null bitmap changes
    // nothing.
    /// Appends, and returns the index of the first image added, or -1.
    int Add(const TBitmap* image, const TBitmap* mask);
    /// Appends with the pixels of a colour transparent: `clDefault` takes the bitmap's transparent colour,
    /// `clNone` adds without a mask.
    int AddMasked(const TBitmap* image, TColor transparent);
    /// Appends all images of another list of the same size.
    void AddImages(const TCustomImageList& source);
    int AddIcon(HICON icon);
    void Insert(int index, const TBitmap* image, const TBitmap* mask);
    void InsertMasked(int index, const TBitmap* image, TColor transparent);
    void Replace(int index, const TBitmap* image, const TBitmap* mask);
    void ReplaceMasked(int index, const TBitmap* image, TColor transparent);
    void Move(int currentIndex, int newIndex);
    void Delete(int index);
    void Clear();
    /// Makes `bitmap` as large as an image and draws the image on it; false when there is no such image.
    bool GetBitmap(int index, TBitmap& bitmap) const;

    // --- Drawing. An index outside of the list draws nothing.
    /// Draws in the list's drawing style; disabled images are drawn in light greys.
    void Draw(TCanvas& canvas, int x, int y, int index, bool enabled = true) const;
    void Draw(TCanvas& canvas, int x, int y, int index, TDrawingStyle style, bool enabled = true) const;
    /// True when the image leaves pixels out.
    [[nodiscard]] bool IsMasked(int index) const;

    /// What lies under the transparent pixels in style `dsNormal`; `clNone` (at first) leaves them out.
    [[nodiscard]] TColor GetBkColor() const { return FBkColor; }
    void SetBkColor(TColor value);
    /// The colour that `dsSelected` and `dsFocus` mix in: `clNone` (at first) what lies beneath, `clDefault`
    /// the highlight colour.
    [[nodiscard]] TColor GetBlendColor() const { return FBlendColor; }
    void SetBlendColor(TColor value);
    [[nodiscard]] TDrawingStyle GetDrawingStyle() const { return FDrawingStyle; }
    void SetDrawingStyle(TDrawingStyle value);
    /// Whether masks are kept; without it all images added are opaque.
    [[nodiscard]] bool GetMasked() const { return FKeepMasks; }
    void SetMasked(bool value);

    /// The system's image list with the same images, made on first use; stays the list's and remains the same
    /// one until the list is freed.
    [[nodiscard]] HIMAGELIST GetHandle();
    [[nodiscard]] bool HandleAllocated() const { return static_cast<bool>(FHandle); }

    /// Changes between these two are told once, at the end.
    void BeginUpdate() { ++FUpdateCount; }
    void EndUpdate();
    void RegisterChanges(TChangeLink* link);
    void UnRegisterChanges(TChangeLink* link);

protected:
    /// The images and their masks, as `Bitmap`.
    void DefineProperties(TFiler& filer) override;
    /// Tells the links and raises `OnChange`.
    virtual void Change();

private:
    // What form files hold (ImageListData.cpp).
    void ReadData(TStream& stream);
    void WriteData(TStream& stream) const;
    [[nodiscard]] bool HasSameImages(const TCustomImageList& other) const;

    [[nodiscard]] TRect RectOf(int index) const { return TRect::OfSize(0, index * FHeight, FWidth, FHeight); }
    [[nodiscard]] bool Has(int index) const { return index >= 0 && index < GetCount(); }
    void CheckIndex(int index) const;
    [[nodiscard]] int CountImagesIn(const TBitmap& image) const;
    void CheckMask(const TBitmap* mask, const TBitmap& image) const;
    int Append(const TBitmap& image, const TBitmap* mask);
    void MakeRoom(int count);
    void Put(int index, const TBitmap& image, int imageLeft, const TBitmap* mask);
    void PutMask(int index, const TBitmap& mask, int maskLeft);
    void MakeMasks();
    void Rotate(TBitmap& strip, int from, int to) const;
    void Reorder(int from, int to);
    void Compose(TCanvas& canvas, int x, int y, int index, TDrawingStyle style, bool enabled) const;
    void DrawPixels(TCanvas& canvas, const TRect& dest, const TBitmap& source, const TRect& part,
                    int index) const;
    void SyncHandle();
    void TellLinks();

    int FWidth = 16;
    int FHeight = 16;
    int FAllocBy = 4;
    TBitmap FImages;            ///< The images one below the other, 32 bits, black where transparent.
    TBitmap FMasks;             ///< Their masks, white where transparent; empty while no image has one.
    mutable TBitmap FScratch;   ///< Where mixed images are put together.
    std::vector<bool> FMasked;  ///< Whether each image has transparent pixels.
    TColor FBkColor = clNone;
    TColor FBlendColor = clNone;
    TDrawingStyle FDrawingStyle = dsNormal;
    bool FKeepMasks = true;
    bool FChanged = false;
    int FUpdateCount = 0;
    TImageListHandle FHandle;
    std::vector<TChangeLink*> FLinks;
};

/// The image list of the palette.
class TImageList : public TCustomImageList {
public:
    using TCustomImageList::TCustomImageList;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
