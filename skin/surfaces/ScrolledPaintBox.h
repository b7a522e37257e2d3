#pragma once

#include "skin/surfaces/FlickerFreePaintBox.h"
#include "skin/surfaces/RowWindowBitmap.h"

namespace qv7skin {

/// Rows from `Top` up to, without, `Bottom`.
struct TRowSpan {
    int Top = 0;
    int Bottom = 0;

    [[nodiscard]] bool IsEmpty() const { return Bottom <= Top; }
    [[nodiscard]] int Count() const { return IsEmpty() ? 0 : Bottom - Top; }
    [[nodiscard]] TRowSpan Within(const TRowSpan& other) const {
        return {Top > other.Top ? Top : other.Top, Bottom < other.Bottom ? Bottom : other.Bottom};
    }
    friend bool operator==(const TRowSpan&, const TRowSpan&) = default;
};

/// A paint box for content that may be far higher than its parent shows, and than a window can be.
///
/// `Top` and `Height` are those of the whole content, the parent scrolls it as any child, and mouse positions
/// count from the content's first row. Its window and its buffer cover only the rows that are seen. The owner
/// paints as on a bitmap of the whole height; it may leave out what the canvas' clip rectangle does not
/// reach.
class TScrolledPaintBox : public TFlickerFreePaintBox {
public:
    explicit TScrolledPaintBox(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The rows that the parent shows.
    [[nodiscard]] TRowSpan SeenRows() const;
    /// The parent's client area has another size.
    void FollowParent();

    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;
    [[nodiscard]] TRect GetClientRect() const override { return {0, 0, GetWidth(), GetHeight()}; }
    [[nodiscard]] TPoint GetClientOrigin() const override;

protected:
    [[nodiscard]] TRect WindowPlace(const TRect& bounds) const override;
    [[nodiscard]] std::shared_ptr<TBitmap> CreateBuffer() const override;
    void CopyPart(const TRect& part) override;
    void ShowDeformed() override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    void MouseMove(TShiftState shift, int x, int y) override;
    void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;

private:
    [[nodiscard]] TRowWindowBitmap& Window() const { return static_cast<TRowWindowBitmap&>(GetBuffer()); }
    void FollowRows();
    void ShowDeformedSlice(TRowSpan source, TRowSpan dest, int right);
};

}  // namespace qv7skin
