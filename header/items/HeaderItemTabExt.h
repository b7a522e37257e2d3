#pragma once

#include "header/items/HeaderItemTab.h"
#include "platform/vcl/core/Sets.h"

namespace qv7skin {

class TTabGlyphs;

/// What an extended tab can do: show a running marker, be closed, be locked.
enum class THeaderItemTabExtStyle { tesAnimation, tesCloseable, tesLockable };
using THeaderItemTabExtStyles = TSet<THeaderItemTabExtStyle>;
/// What an extended tab is: its marker runs, it is selected, under the mouse, locked.
enum class THeaderItemTabExtState { tesAnimated, tesSelected, tesHovered, tesLocked };
using THeaderItemTabExtStates = TSet<THeaderItemTabExtState>;
using enum THeaderItemTabExtStyle;
using enum THeaderItemTabExtState;

/// A tab with a running marker before its caption and, one above the other at its right end, a button that
/// closes and one that locks it.
class TQV7SkinHeaderItemTabExt : public TQV7SkinHeaderItemTab {
public:
    /// As the tab's; all three styles are on.
    explicit TQV7SkinHeaderItemTabExt(TQV7SkinTabBackground ATabBackground, const String& ACaption = {},
                                      TBitmap* AImage = nullptr, TBitmap* AImageSelected = nullptr);
    ~TQV7SkinHeaderItemTabExt() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] THeaderItemTabExtStyles GetStyle() const { return FStyle; }
    void SetStyle(THeaderItemTabExtStyles Value);
    /// The state with what the row knows: selected, under the mouse.
    [[nodiscard]] THeaderItemTabExtStates GetState() const;
    /// Keeps `tesAnimated` and `tesLocked`, selects the tab when `tesSelected` is among them, and leaves
    /// `tesHovered` alone.
    void SetState(THeaderItemTabExtStates Value);
    /// The tab was closed: it is out of its row and is freed after the handler.
    THeaderItemEvent OnClose;

    /// Takes the tab out of its row, raises `OnClose` and frees the tab.
    void Close();
    /// The places of the two buttons on a tab that takes up the rectangle.
    [[nodiscard]] TRect GetCloseRect(const TRect& ItemRect) const;
    [[nodiscard]] TRect GetLockRect(const TRect& ItemRect) const;

    /// Closes, locks or unlocks the tab when the point is on the button for it; else as any tab.
    void Click(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    bool PtInValidRect(const TRect& Rect, const TPoint& Point, TCursor& Cursor) override;
    [[nodiscard]] int GetAdditionalWidth(TCanvas& Canvas) override;
    void DrawImage(TCanvas& Canvas, TRect& Rect) override;

private:
    [[nodiscard]] bool IsOnClose(const TRect& ItemRect, TPoint Point) const;
    [[nodiscard]] bool IsOnLock(const TRect& ItemRect, TPoint Point) const;

    std::shared_ptr<const TTabGlyphs> FGlyphs;
    THeaderItemTabExtStyles FStyle{tesAnimation, tesCloseable, tesLockable};
    THeaderItemTabExtStates FState;
};

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::THeaderItemTabExtStyle> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct vcl::TEnumNames<qv7skin::THeaderItemTabExtState> {
    static std::span<const wchar_t* const> Names();
};
