#include "tests/support/FormMutations.h"

#include <algorithm>
#include <iterator>

namespace test {
namespace {

using TBytes = std::vector<std::byte>;

auto At(TBytes& file, std::size_t place) {
    return file.begin() + static_cast<std::ptrdiff_t>(place);
}

}  // namespace

std::size_t FormMutations::Below(std::size_t limit) {
    return limit == 0 ? 0 : FRandom() % limit;
}

TBytes FormMutations::Damage(TBytes file) {
    for (std::size_t times = 1 + Below(4); times > 0 && !file.empty(); --times)
        DamageOnce(file);
    return file;
}

void FormMutations::DamageOnce(TBytes& file) {
    switch (Below(7)) {
        case 0:
            return FlipBits(file);
        case 1:
            return PutByte(file);
        case 2:
            return CutPiece(file);
        case 3:
            return DoublePiece(file);
        case 4:
            return GrowLength(file);
        case 5:
            return CutLine(file);
        default:
            return CutEnd(file);
    }
}

void FormMutations::FlipBits(TBytes& file) {
    for (std::size_t times = 1 + Below(3); times > 0; --times)
        file[Below(file.size())] ^= std::byte{1} << Below(8);
}

void FormMutations::PutByte(TBytes& file) {
    constexpr unsigned char strange[] = {0,   1,   0x0A, 0x16, '\'', '{',  '(',  '<',  '[',  '+',  '#',
                                         '.', '$', 0x7F, 0x80, 0xC3, 0xF1, 0xF2, 0xF4, 0xFE, 0xFF, ' '};
    file.insert(At(file, Below(file.size() + 1)), static_cast<std::byte>(strange[Below(std::size(strange))]));
}

void FormMutations::CutPiece(TBytes& file) {
    const std::size_t start = Below(file.size());
    const std::size_t length = 1 + Below(std::min<std::size_t>(file.size() - start, 40));
    file.erase(At(file, start), At(file, std::min(start + length, file.size())));
}

void FormMutations::DoublePiece(TBytes& file) {
    const std::size_t start = Below(file.size());
    const std::size_t length = 1 + Below(std::min<std::size_t>(file.size() - start, 200));
    const TBytes piece(At(file, start), At(file, std::min(start + length, file.size())));
    for (std::size_t times = 1 + Below(4); times > 0; --times)
        file.insert(At(file, start), piece.begin(), piece.end());
}

void FormMutations::GrowLength(TBytes& file) {
    const std::size_t start = Below(file.size());
    const std::size_t length = std::min<std::size_t>(1 + Below(4), file.size() - start);
    std::fill_n(At(file, start), length, Below(2) == 0 ? std::byte{0xFF} : std::byte{0x7F});
}

void FormMutations::CutLine(TBytes& file) {
    const auto from = std::find(At(file, Below(file.size())), file.end(), std::byte{'\n'});
    const auto to = from == file.end() ? from : std::find(from + 1, file.end(), std::byte{'\n'});
    file.erase(from, to);
}

void FormMutations::CutEnd(TBytes& file) {
    file.resize(Below(file.size()));
}

}  // namespace test
