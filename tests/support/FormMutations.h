#pragma once

#include <cstddef>
#include <random>
#include <vector>

namespace test {

/// Damages files: flips bits, cuts and doubles pieces and lines, grows lengths, puts in strange bytes. The
/// same seed does the same damage.
class FormMutations {
public:
    explicit FormMutations(unsigned seed) : FRandom(seed) {}
    /// A copy with one to four kinds of damage.
    std::vector<std::byte> Damage(std::vector<std::byte> file);

private:
    void DamageOnce(std::vector<std::byte>& file);
    void FlipBits(std::vector<std::byte>& file);
    void PutByte(std::vector<std::byte>& file);
    void CutPiece(std::vector<std::byte>& file);
    void DoublePiece(std::vector<std::byte>& file);
    void GrowLength(std::vector<std::byte>& file);
    void CutEnd(std::vector<std::byte>& file);
    void CutLine(std::vector<std::byte>& file);
    /// A number below `limit`; 0 when that is 0.
    std::size_t Below(std::size_t limit);

    std::mt19937 FRandom;
};

}  // namespace test
