#pragma once

#include <utility>

#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/WindowsApi.h"

#include <commctrl.h>

namespace vcl {

/// Owns one system handle: closes it at the end of its life, counts it in the ledger by its kind, moves and
/// never copies. `Traits` names the handle's type, its kind for the ledger and how it is closed.
template <class Traits>
class [[nodiscard]] THandle {
public:
    using Value = typename Traits::Type;

    THandle() = default;
    /// Takes over a handle; null owns nothing.
    explicit THandle(Value value) noexcept : FValue(value) { Count(+1); }
    THandle(THandle&& other) noexcept : FValue(std::exchange(other.FValue, Value{})) {}
    THandle& operator=(THandle&& other) noexcept {
        if (this != &other) {
            Close();
            FValue = std::exchange(other.FValue, Value{});
        }
        return *this;
    }
    ~THandle() { Close(); }

    [[nodiscard]] Value Get() const { return FValue; }
    explicit operator bool() const { return FValue != Value{}; }
    /// Gives the handle up to the caller, who closes it.
    [[nodiscard]] Value Release() {
        Count(-1);
        return std::exchange(FValue, Value{});
    }
    /// Closes what it owns and takes over `value`.
    void Reset(Value value = Value{}) { *this = THandle(value); }

private:
    void Count(int change) const {
        if (FValue != Value{}) TLedger::Count(Traits::Kind, change);
    }
    void Close() noexcept {
        if (FValue == Value{}) return;
        Count(-1);
        Traits::Close(FValue);
        FValue = Value{};
    }
    Value FValue{};
};

namespace detail {

template <class H>
struct GdiTraits {
    using Type = H;
    static void Close(H handle) { ::DeleteObject(handle); }
};
struct BitmapTraits : GdiTraits<HBITMAP> {
    static constexpr const char* Kind = "bitmap";
};
struct BrushTraits : GdiTraits<HBRUSH> {
    static constexpr const char* Kind = "brush";
};
struct PenTraits : GdiTraits<HPEN> {
    static constexpr const char* Kind = "pen";
};
struct FontTraits : GdiTraits<HFONT> {
    static constexpr const char* Kind = "font";
};
struct RegionTraits : GdiTraits<HRGN> {
    static constexpr const char* Kind = "region";
};
struct MemoryDCTraits {
    using Type = HDC;
    static constexpr const char* Kind = "memory dc";
    static void Close(HDC dc) { ::DeleteDC(dc); }
};
struct MenuTraits {
    using Type = HMENU;
    static constexpr const char* Kind = "menu";
    static void Close(HMENU menu) { ::DestroyMenu(menu); }
};
struct IconTraits {
    using Type = HICON;
    static constexpr const char* Kind = "icon";
    static void Close(HICON icon) { ::DestroyIcon(icon); }
};
struct CursorTraits {
    using Type = HCURSOR;
    static constexpr const char* Kind = "cursor";
    static void Close(HCURSOR cursor) { ::DestroyCursor(cursor); }
};
struct AcceleratorTraits {
    using Type = HACCEL;
    static constexpr const char* Kind = "accelerator table";
    static void Close(HACCEL table) { ::DestroyAcceleratorTable(table); }
};
struct ImageListTraits {
    using Type = HIMAGELIST;
    static constexpr const char* Kind = "image list";
    static void Close(HIMAGELIST list) { ::ImageList_Destroy(list); }
};
struct GlobalMemoryTraits {
    using Type = HGLOBAL;
    static constexpr const char* Kind = "global memory";
    static void Close(HGLOBAL block) { ::GlobalFree(block); }
};

}  // namespace detail

using TBitmapHandle = THandle<detail::BitmapTraits>;
using TBrushHandle = THandle<detail::BrushTraits>;
using TPenHandle = THandle<detail::PenTraits>;
using TFontHandle = THandle<detail::FontTraits>;
using TRegionHandle = THandle<detail::RegionTraits>;
using TMemoryDC = THandle<detail::MemoryDCTraits>;
using TMenuHandle = THandle<detail::MenuTraits>;
using TIconHandle = THandle<detail::IconTraits>;
using TCursorHandle = THandle<detail::CursorTraits>;
using TAcceleratorHandle = THandle<detail::AcceleratorTraits>;
using TImageListHandle = THandle<detail::ImageListTraits>;
using TGlobalMemory = THandle<detail::GlobalMemoryTraits>;

}  // namespace vcl
