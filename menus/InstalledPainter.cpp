#include <memory>
#include <utility>

#include "menus/MenuItemPainter.h"

namespace qv7skin {
namespace {

std::unique_ptr<TQV7SkinMenuItemPainter>& Installed() {
    static std::unique_ptr<TQV7SkinMenuItemPainter> painter = std::make_unique<TQV7SkinMenuItemPainterNice>();
    return painter;
}

/// Made when the package is loaded, so that it lives as long as the package.
[[maybe_unused]] const bool InstalledAtLoad = Installed() != nullptr;

}  // namespace

TQV7SkinMenuItemPainter* QV7SkinMenuItemPainter() {
    return Installed().get();
}

void SetQV7SkinMenuItemPainter(TQV7SkinMenuItemPainter* Painter) {
    if (Painter == Installed().get()) return;
    // The former one is gone before its successor can be asked for.
    Installed().reset();
    Installed().reset(Painter);
}

}  // namespace qv7skin
