#pragma once

#include <span>

namespace vcl {
class TMetaClass;
}

namespace qv7skin {

/// A place on the palette page of the package.
struct TPaletteEntry {
    const wchar_t* ClassName;
    const vcl::TMetaClass& (*Class)();
};

/// The 22 places of the page, in their order.
[[nodiscard]] std::span<const TPaletteEntry> PaletteEntries();

/// Shows the classes of the package on the palette page "QV7". A design environment calls it when it loads
/// the package, where it finds it by the name "Register". A second call changes nothing.
extern "C" void Register();

}  // namespace qv7skin
