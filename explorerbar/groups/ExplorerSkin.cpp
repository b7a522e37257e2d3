#include "explorerbar/groups/ExplorerSkin.h"

#include "skin/surfaces/Loaders.h"
#include "skin/utils/SharedWhileUsed.h"

namespace qv7skin {

std::shared_ptr<const TExplorerSkin> TExplorerSkin::Shared() {
    return SharedWhileUsed<TExplorerSkin>();
}

TExplorerSkin::TExplorerSkin()
    : FHeaderTop(CreateBmp(L"EXPLORERBARHEADERTOP")), FHeaderBottom(CreateBmp(L"EXPLORERBARHEADERBOTTOM")) {
    for (const TSkinState state : {ssDefault, ssHovered, ssDisabled}) {
        const auto index = static_cast<std::size_t>(state);
        FMaximize[index] = CreateTransparentBmp(SkinResourceName(L"EXPLORERBARBUTTONMAXIMIZE", state));
        FMinimize[index] = CreateTransparentBmp(SkinResourceName(L"EXPLORERBARBUTTONMINIMIZE", state));
    }
}

const TTransparentBitmap& TExplorerSkin::Button(bool closed, TSkinState state) const {
    return *(closed ? FMaximize : FMinimize)[static_cast<std::size_t>(state)];
}

TSize TExplorerSkin::ButtonSize() const {
    const TTransparentBitmap& button = Button(true, ssDefault);
    return {button.GetWidth(), button.GetHeight()};
}

}  // namespace qv7skin
