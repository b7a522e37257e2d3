#include "buttons/SkinButtonPieces.h"

#include "skin/utils/SharedWhileUsed.h"

namespace qv7skin {
namespace {

constexpr const wchar_t* Family = L"SKINBUTTON";

}  // namespace

const TSkinButtonLook& SkinButtonLook(velmora::TButtonExState State) {
    static constexpr TSkinButtonLook looks[velmora::ButtonExStateCount] = {
        {ssDefault, 0x00000000}, {ssDisabled, 0x00939393}, {ssPressed, 0x00C66021},
        {ssHovered, 0x00000000}, {ssPressed, 0x00C66021},  {ssPressed, 0x00C66021},
    };
    return looks[static_cast<std::size_t>(State)];
}

TSkinButtonPieces::TSkinButtonPieces()
    : FFrames{TNinePartBitmaps(SkinResourceName(Family, ssDefault)),
              TNinePartBitmaps(SkinResourceName(Family, ssHovered)),
              TNinePartBitmaps(SkinResourceName(Family, ssPressed)),
              TNinePartBitmaps(SkinResourceName(Family, ssDisabled))} {}

std::shared_ptr<const TSkinButtonPieces> TSkinButtonPieces::Shared() {
    return SharedWhileUsed<TSkinButtonPieces>();
}

}  // namespace qv7skin
