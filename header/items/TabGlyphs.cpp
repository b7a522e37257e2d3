#include "header/items/TabGlyphs.h"

#include "skin/surfaces/Loaders.h"

namespace qv7skin {

TTabGlyphs::TTabGlyphs()
    : FCloseDefault(CreateBmp(L"TABCLOSEDEFAULT")),
      FClosePressed(CreateBmp(L"TABCLOSEPRESSED")),
      FUnlockDefault(CreateBmp(L"TABUNLOCKDEFAULT")),
      FUnlockPressed(CreateBmp(L"TABUNLOCKPRESSED")),
      FLockDefault(CreateBmp(L"TABLOCKDEFAULT")),
      FLockPressed(CreateBmp(L"TABLOCKPRESSED")) {}

TTabGlyphs::~TTabGlyphs() = default;

std::shared_ptr<const TTabGlyphs> TTabGlyphs::Shared() {
    static std::weak_ptr<const TTabGlyphs> alive;
    std::shared_ptr<const TTabGlyphs> glyphs = alive.lock();
    if (!glyphs) alive = glyphs = std::make_shared<const TTabGlyphs>();
    return glyphs;
}

TBitmap& TTabGlyphs::Lock(bool selected, bool locked) const {
    if (locked) return *(selected ? FLockPressed : FLockDefault);
    return *(selected ? FUnlockPressed : FUnlockDefault);
}

}  // namespace qv7skin
