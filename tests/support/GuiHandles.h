#pragma once

#include <map>
#include <string>

namespace test {

/// Counts of system objects of this process by kind, as "gdi:brush" or "window:Static".
using HandleCounts = std::map<std::string, long>;

/// Pens, brushes, bitmaps, regions, fonts, memory device contexts ... that live now. Takes about 1 ms.
[[nodiscard]] HandleCounts CountGdiObjects();

/// The windows of the calling thread by class, message-only ones included. Cheap.
[[nodiscard]] HandleCounts CountWindows();

/// The menus of the process ("menu"). Takes about 3 ms.
[[nodiscard]] HandleCounts CountMenus();

/// The icons and cursors of the process ("icon"), those of the system included. Takes about 5 ms.
[[nodiscard]] HandleCounts CountIcons();

/// Blocks of the heap that hold objects now; exact between two moments without other allocations.
[[nodiscard]] long CountHeapBlocks();

/// Whether the memory administration of the heap is undamaged.
[[nodiscard]] bool IsHeapValid();

/// What `after` has more or less than `before`, in lines such as "  gdi:brush +2"; empty when nothing.
[[nodiscard]] std::string DescribeChange(const HandleCounts& before, const HandleCounts& after);

}  // namespace test
