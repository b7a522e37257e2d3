#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vcl {

/// A set of pointers in one piece of memory, so that most insertions and all removals allocate nothing.
template <class T>
class TPointerSet {
public:
    /// Null must not be put in; what is in already stays in once.
    void Insert(T* pointer) {
        if (2 * (FCount + 1) > FPlaces.size()) Grow();
        std::size_t place = Home(pointer);
        while (FPlaces[place] && FPlaces[place] != pointer)
            place = Next(place);
        if (!FPlaces[place]) ++FCount;
        FPlaces[place] = pointer;
    }
    /// Nothing when the pointer is not in the set.
    void Erase(T* pointer) {
        if (FPlaces.empty()) return;
        std::size_t hole = Home(pointer);
        while (FPlaces[hole] && FPlaces[hole] != pointer)
            hole = Next(hole);
        if (!FPlaces[hole]) return;
        --FCount;
        FPlaces[hole] = nullptr;
        // What stands behind moves up, so that no search ends at the hole.
        for (std::size_t place = Next(hole); FPlaces[place]; place = Next(place)) {
            const std::size_t home = Home(FPlaces[place]);
            if (((place - home) & Mask()) < ((place - hole) & Mask())) continue;
            FPlaces[hole] = std::exchange(FPlaces[place], nullptr);
            hole = place;
        }
    }
    [[nodiscard]] bool Contains(const T* pointer) const {
        if (FPlaces.empty()) return false;
        std::size_t place = Home(pointer);
        while (FPlaces[place] && FPlaces[place] != pointer)
            place = Next(place);
        return FPlaces[place] != nullptr;
    }
    [[nodiscard]] std::size_t Count() const { return FCount; }
    /// Calls `use` with each pointer, in no order. The set must not change meanwhile.
    template <class Use>
    void ForEach(Use use) const {
        for (T* pointer : FPlaces)
            if (pointer) use(pointer);
    }

private:
    [[nodiscard]] std::size_t Mask() const { return FPlaces.size() - 1; }
    [[nodiscard]] std::size_t Next(std::size_t place) const { return (place + 1) & Mask(); }
    [[nodiscard]] std::size_t Home(const T* pointer) const {
        constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15;
        return static_cast<std::size_t>((reinterpret_cast<std::uintptr_t>(pointer) * Spread) >> 32) & Mask();
    }
    void Grow() {
        std::vector<T*> former(FPlaces.empty() ? 64 : 2 * FPlaces.size());
        former.swap(FPlaces);
        FCount = 0;
        for (T* pointer : former)
            if (pointer) Insert(pointer);
    }

    std::vector<T*> FPlaces;  // a power of two, half of them free
    std::size_t FCount = 0;
};

}  // namespace vcl
