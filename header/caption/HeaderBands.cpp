#include "header/caption/HeaderBands.h"

#include "platform/vcl/core/Exceptions.h"
#include "skin/surfaces/Loaders.h"
#include "skin/utils/SharedWhileUsed.h"

namespace qv7skin {
namespace {

std::unique_ptr<TBitmap> BandOrNull(const String& name) {
    try {
        return CreateBmp(name);
    } catch (const EResNotFound&) {
        return nullptr;
    }
}

}  // namespace

THeaderBands::THeaderBands()
    : FGreyTop(BandOrNull(L"EXPLORERBARHEADERTOP")),
      FGreyBottom(BandOrNull(L"EXPLORERBARHEADERBOTTOM")),
      FDarkTop(BandOrNull(L"COLUMNHEADERTOP")),
      FDarkBottom(BandOrNull(L"COLUMNHEADERBOTTOM")) {}

THeaderBands::~THeaderBands() = default;

std::shared_ptr<const THeaderBands> THeaderBands::Shared() {
    return SharedWhileUsed<THeaderBands>();
}

}  // namespace qv7skin
