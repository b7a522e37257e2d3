#include "platform/tms/CornerCoverage.h"

namespace tms {

int CoveredPoints(int x, int y, int radius, int grid) {
    // Points stand in the middle of their cells: everything is reckoned in half cells.
    constexpr int Half = 2;
    const int centre = radius * grid * Half;
    int count = 0;
    for (int row = 0; row < grid; ++row) {
        const int dy = centre - (y * grid + row) * Half - 1;
        for (int column = 0; column < grid; ++column) {
            const int dx = centre - (x * grid + column) * Half - 1;
            if (dx * dx + dy * dy <= centre * centre) ++count;
        }
    }
    return count;
}

}  // namespace tms
