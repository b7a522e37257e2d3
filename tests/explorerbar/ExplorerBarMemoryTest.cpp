#include <malloc.h>

#include "tests/explorerbar/ExplorerBarFixture.h"

namespace qv7skin {
namespace {

using namespace probes;

class ExplorerBarMemoryTest : public ExplorerBarTest {};

std::size_t BytesInUse() {
    std::size_t bytes = 0;
    const auto heap = reinterpret_cast<HANDLE>(_get_heap_handle());
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData + entry.cbOverhead;
    HeapUnlock(heap);
    return bytes;
}

TEST_F(ExplorerBarMemoryTest, ALinkTakesAtMost300BytesBesideItsTexts) {
    constexpr int Links = 1000;
    Fill(1, 10);
    const std::size_t before = BytesInUse();
    Bar().BeginUpdate();
    for (int i = 0; i < Links; ++i)
        AddTo(0, new TLink(L"Link", L""));  // short enough to stand in the string itself
    Bar().EndUpdate();
    const std::size_t taken = BytesInUse() - before;
    EXPECT_GT(taken / Links, sizeof(void*));
    EXPECT_LE(taken / Links, 300u);
}

}  // namespace
}  // namespace qv7skin
