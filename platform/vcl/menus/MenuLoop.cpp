#include "platform/vcl/menus/MenuLoop.h"

#include <vector>

namespace vcl {
namespace {

struct TLoopState {
    unsigned Number = 1;
    std::vector<TMenuHandle> Buried;
};

TLoopState& State() {
    static TLoopState state;
    return state;
}

}  // namespace

unsigned PresentMenuLoop() {
    return State().Number;
}

void BuryMenuHandle(TMenuHandle handle) {
    State().Buried.push_back(std::move(handle));
}

void EndMenuLoop() {
    ++State().Number;
    std::vector<TMenuHandle> handles;
    handles.swap(State().Buried);
    // Submenus belong to others and must not go with it.
    for (const TMenuHandle& handle : handles) {
        while (::RemoveMenu(handle.Get(), 0, MF_BYPOSITION)) {
        }
    }
}

}  // namespace vcl
