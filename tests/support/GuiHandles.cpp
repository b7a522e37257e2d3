#include "tests/support/GuiHandles.h"

#include <malloc.h>
#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <set>

namespace test {
namespace {

// User handles: the low word is an index times two, starting at 0x20; the system accepts it alone.
constexpr DWORD FirstUserHandle = 0x20;
constexpr DWORD LastUserHandle = 0xFFF0;

template <class Visit>
void WalkUserHandles(Visit visit) {
    for (DWORD handle = FirstUserHandle; handle <= LastUserHandle; handle += 2)
        visit(static_cast<std::uintptr_t>(handle));
}

const char* GdiKind(DWORD type) {
    switch (type) {
        case OBJ_PEN:
        case OBJ_EXTPEN:
            return "gdi:pen";
        case OBJ_BRUSH:
            return "gdi:brush";
        case OBJ_DC:
        case OBJ_MEMDC:
            return "gdi:dc";
        case OBJ_PAL:
            return "gdi:palette";
        case OBJ_FONT:
            return "gdi:font";
        case OBJ_BITMAP:
            return "gdi:bitmap";
        case OBJ_REGION:
            return "gdi:region";
        default:
            return "gdi:other";
    }
}

/// Windows that the system makes for a thread when it first needs them, and keeps.
bool IsOfSystem(const std::wstring& className) {
    static const std::set<std::wstring> names{L"IME", L"MSCTFIME UI", L"OleMainThreadWndClass",
                                              L"CicMarshalWndClass", L"#32774"};
    return names.count(className) > 0;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM counts) {
    wchar_t name[256] = L"";
    GetClassNameW(window, name, 256);
    if (IsOfSystem(name)) return TRUE;
    ++(*reinterpret_cast<HandleCounts*>(counts))["window:" + std::filesystem::path(name).string()];
    return TRUE;
}

HANDLE CrtHeap() {
    return reinterpret_cast<HANDLE>(_get_heap_handle());
}

}  // namespace

HandleCounts CountGdiObjects() {
    HandleCounts counts;
    for (DWORD handle = 0; handle < 0x10000; ++handle) {
        const DWORD type = GetObjectType(reinterpret_cast<HGDIOBJ>(static_cast<std::uintptr_t>(handle)));
        // The system keeps a pool of window device contexts; what counts of them are the memory ones.
        if (type && type != OBJ_DC) ++counts[GdiKind(type)];
    }
    return counts;
}

HandleCounts CountWindows() {
    HandleCounts counts;
    const auto parameter = reinterpret_cast<LPARAM>(&counts);
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, parameter);
    const DWORD thread = GetCurrentThreadId();
    for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
        if (GetWindowThreadProcessId(window, nullptr) == thread) CountWindow(window, parameter);
    return counts;
}

HandleCounts CountMenus() {
    HandleCounts counts;
    WalkUserHandles([&](std::uintptr_t handle) {
        if (IsMenu(reinterpret_cast<HMENU>(handle))) ++counts["menu"];
    });
    return counts;
}

HandleCounts CountIcons() {
    HandleCounts counts;
    WalkUserHandles([&](std::uintptr_t handle) {
        ICONINFO info{};
        if (!GetIconInfo(reinterpret_cast<HICON>(handle), &info)) return;
        DeleteObject(info.hbmMask);
        if (info.hbmColor) DeleteObject(info.hbmColor);
        ++counts["icon"];
    });
    return counts;
}

long CountHeapBlocks() {
    const HANDLE heap = CrtHeap();
    long count = 0;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) ++count;
    HeapUnlock(heap);
    return count;
}

bool IsHeapValid() {
    return HeapValidate(CrtHeap(), 0, nullptr) != FALSE;
}

std::string DescribeChange(const HandleCounts& before, const HandleCounts& after) {
    HandleCounts change = after;
    for (const auto& [kind, count] : before)
        change[kind] -= count;
    std::string text;
    for (const auto& [kind, count] : change)
        if (count) text += "  " + kind + (count > 0 ? " +" : " ") + std::to_string(count) + "\n";
    return text;
}

}  // namespace test
