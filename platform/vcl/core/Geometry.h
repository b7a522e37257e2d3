#pragma once

#include <cstddef>

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// A point in pixels; layout-compatible with the Windows POINT.
struct TPoint {
    int X = 0;
    int Y = 0;
    constexpr TPoint() = default;
    constexpr TPoint(int x, int y) : X(x), Y(y) {}
    TPoint(const POINT& p) : X(p.x), Y(p.y) {}
    operator POINT() const { return {X, Y}; }
    friend constexpr bool operator==(const TPoint&, const TPoint&) = default;
};

/// A size in pixels; layout-compatible with the Windows SIZE.
struct TSize {
    int Width = 0;
    int Height = 0;
    constexpr TSize() = default;
    constexpr TSize(int width, int height) : Width(width), Height(height) {}
    TSize(const SIZE& s) : Width(s.cx), Height(s.cy) {}
    operator SIZE() const { return {Width, Height}; }
    friend constexpr bool operator==(const TSize&, const TSize&) = default;
};

/// A rectangle in pixels, right and bottom edge exclusive; layout-compatible with the Windows RECT.
struct TRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    constexpr TRect() = default;
    constexpr TRect(int left, int top, int right, int bottom)
        : Left(left), Top(top), Right(right), Bottom(bottom) {}
    TRect(const RECT& r) : Left(r.left), Top(r.top), Right(r.right), Bottom(r.bottom) {}
    operator RECT() const { return {Left, Top, Right, Bottom}; }
    /// The same memory as the Windows type, for calls that read or write a RECT.
    [[nodiscard]] RECT* AsRect() { return reinterpret_cast<RECT*>(this); }
    [[nodiscard]] const RECT* AsRect() const { return reinterpret_cast<const RECT*>(this); }

    [[nodiscard]] static constexpr TRect OfSize(int left, int top, int width, int height) {
        return {left, top, left + width, top + height};
    }
    [[nodiscard]] constexpr int Width() const { return Right - Left; }
    [[nodiscard]] constexpr int Height() const { return Bottom - Top; }
    [[nodiscard]] constexpr TPoint TopLeft() const { return {Left, Top}; }
    /// True when there is no pixel in it.
    [[nodiscard]] constexpr bool IsEmpty() const { return Right <= Left || Bottom <= Top; }
    [[nodiscard]] constexpr bool Contains(TPoint p) const {
        return p.X >= Left && p.X < Right && p.Y >= Top && p.Y < Bottom;
    }
    constexpr void Offset(int dx, int dy) {
        Left += dx;
        Right += dx;
        Top += dy;
        Bottom += dy;
    }
    /// Moves every edge outward by dx and dy (inward when negative).
    constexpr void Inflate(int dx, int dy) {
        Left -= dx;
        Right += dx;
        Top -= dy;
        Bottom += dy;
    }
    [[nodiscard]] constexpr TRect Intersect(const TRect& o) const {
        const TRect r{Left > o.Left ? Left : o.Left, Top > o.Top ? Top : o.Top,
                      Right < o.Right ? Right : o.Right, Bottom < o.Bottom ? Bottom : o.Bottom};
        return r.IsEmpty() ? TRect{} : r;
    }
    friend constexpr bool operator==(const TRect&, const TRect&) = default;
};

static_assert(sizeof(TPoint) == sizeof(POINT) && offsetof(TPoint, Y) == offsetof(POINT, y));
static_assert(sizeof(TSize) == sizeof(SIZE) && offsetof(TSize, Height) == offsetof(SIZE, cy));
static_assert(sizeof(TRect) == sizeof(RECT) && offsetof(TRect, Bottom) == offsetof(RECT, bottom));

}  // namespace vcl
