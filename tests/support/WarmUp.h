#pragma once

namespace test {

/// Makes the system create, once per process, what it keeps after its first use: brushes, cursors, icons,
/// menus, the pictures of the theme. From then on counts of its objects are exact.
void WarmUpSystem();

}  // namespace test
