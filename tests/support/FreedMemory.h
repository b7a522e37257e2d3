#pragma once

namespace test {

/// While it exists, what `delete` frees is filled with a pattern and kept back for a while: use of an object
/// that is gone crashes or shows, instead of finding what was there before.
class FreedMemory {
public:
    FreedMemory();
    /// Gives back everything.
    ~FreedMemory();
    FreedMemory(const FreedMemory&) = delete;
    FreedMemory& operator=(const FreedMemory&) = delete;

    /// How many blocks have been written to after they were freed. Looks at all that are kept back.
    [[nodiscard]] static int WrittenBlocks();
};

}  // namespace test
