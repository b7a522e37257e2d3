#include "header/items/TabGlyphs.h"

#include "skin/surfaces/Loaders.h"
#include "skin/utils/SharedWhileUsed.h"

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
    return SharedWhileUsed<TTabGlyphs>();
}

TBitmap& TTabGlyphs::Lock(bool selected, bool locked) const {
    if (locked) return *(selected ? FLockPressed : FLockDefault);
    return *(selected ? FUnlockPressed : FUnlockDefault);
}

}  // namespace qv7skin
