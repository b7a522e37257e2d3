#include "tests/support/FreedMemory.h"

#include <malloc.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace test {
namespace {

using Free = void (*)(void*);

constexpr int Pattern = 0xDD;
constexpr std::size_t Kept = 20000;
/// Of larger blocks only the start is filled; they are not kept.
constexpr std::size_t LargestKept = 16384;

/// The blocks kept back, as a ring. It is plain memory: it must not free anything itself.
struct Ring {
    struct Block {
        unsigned char* Start = nullptr;
        std::size_t Size = 0;
    };
    std::array<Block, Kept> Blocks{};
    std::size_t Next = 0;
    int Written = 0;
    SRWLOCK Lock = SRWLOCK_INIT;
    Free Original = nullptr;
    Free* Place = nullptr;
};

Ring& TheRing() {
    static Ring ring;
    return ring;
}

bool IsUntouched(const Ring::Block& block) {
    return std::all_of(block.Start, block.Start + block.Size, [](unsigned char c) { return c == Pattern; });
}

void GiveBack(Ring::Block& block) {
    if (!block.Start) return;
    if (!IsUntouched(block)) ++TheRing().Written;
    TheRing().Original(block.Start);
    block = {};
}

void Keep(void* memory) {
    Ring& ring = TheRing();
    if (!memory) return;
    const std::size_t size = _msize(memory);
    std::memset(memory, Pattern, std::min(size, LargestKept));
    if (size > LargestKept) return ring.Original(memory);
    AcquireSRWLockExclusive(&ring.Lock);
    GiveBack(ring.Blocks[ring.Next]);
    ring.Blocks[ring.Next] = {static_cast<unsigned char*>(memory), size};
    ring.Next = (ring.Next + 1) % Kept;
    ReleaseSRWLockExclusive(&ring.Lock);
}

/// Where the module with `operator delete` (the compiler's runtime, or the program in a static build) keeps
/// the address of the C runtime's `free`; null when it does not import it.
Free* FindFreeImport() {
    HMODULE runtime = GetModuleHandleW(L"libstdc++-6.dll");
    if (!runtime) runtime = GetModuleHandleW(nullptr);
    auto* const base = reinterpret_cast<std::byte*>(runtime);
    const auto& dos = *reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto& header = *reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos.e_lfanew);
    const auto& directory = header.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto wanted = reinterpret_cast<ULONGLONG>(GetProcAddress(GetModuleHandleW(L"msvcrt.dll"), "free"));
    for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress); from->Name;
         ++from) {
        for (auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->FirstThunk); entry->u1.Function;
             ++entry)
            if (entry->u1.Function == wanted) return reinterpret_cast<Free*>(&entry->u1.Function);
    }
    return nullptr;
}

void Put(Free* place, Free function) {
    DWORD before = 0;
    VirtualProtect(place, sizeof function, PAGE_READWRITE, &before);
    *place = function;
    VirtualProtect(place, sizeof function, before, &before);
}

}  // namespace

FreedMemory::FreedMemory() {
    Ring& ring = TheRing();
    ring.Written = 0;
    ring.Place = FindFreeImport();
    if (!ring.Place) return;
    ring.Original = *ring.Place;
    Put(ring.Place, Keep);
}

FreedMemory::~FreedMemory() {
    Ring& ring = TheRing();
    if (!ring.Place) return;
    Put(ring.Place, ring.Original);
    std::ranges::for_each(ring.Blocks, GiveBack);
}

int FreedMemory::WrittenBlocks() {
    Ring& ring = TheRing();
    AcquireSRWLockExclusive(&ring.Lock);
    const auto written = std::ranges::count_if(
        ring.Blocks, [](const Ring::Block& block) { return block.Start && !IsUntouched(block); });
    ReleaseSRWLockExclusive(&ring.Lock);
    return ring.Written + static_cast<int>(written);
}

}  // namespace test
