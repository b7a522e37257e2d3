#include "platform/vcl/controls/DragTypes.h"

#include <array>

namespace vcl {
namespace {

constexpr std::array ModeNames{L"dmManual", L"dmAutomatic"};
constexpr std::array KindNames{L"dkDrag", L"dkDock"};

}  // namespace

std::span<const wchar_t* const> TEnumNames<TDragMode>::Names() {
    return ModeNames;
}
std::span<const wchar_t* const> TEnumNames<TDragKind>::Names() {
    return KindNames;
}

}  // namespace vcl
