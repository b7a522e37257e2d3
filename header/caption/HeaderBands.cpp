#include "header/caption/HeaderBands.h"

#include "platform/vcl/core/Exceptions.h"
#include "skin/surfaces/Loaders.h"

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
    static std::weak_ptr<const THeaderBands> shared;
    std::shared_ptr<const THeaderBands> bands = shared.lock();
    if (!bands) {
        bands = std::make_shared<const THeaderBands>();
        shared = bands;
    }
    return bands;
}

}  // namespace qv7skin
