#include "gallery/MenuPictures.h"

#include "platform/vcl/forms/Application.h"
#include "platform/vcl/stdctrls/Timer.h"

namespace gallery {

void WithOpenMenu(const std::function<void()>& open, std::span<const WORD> keys,
                  const std::function<void()>& take) {
    // A timer's turn comes when the loop of the menu has nothing else to do: all has been painted by then.
    TTimer step(nullptr);
    step.SetInterval(20);
    std::size_t next = 0;
    step.OnTimer = [&](TObject*) {
        if (next < keys.size()) {
            ::PostMessageW(Application().GetHandle(), WM_KEYDOWN, keys[next++], 1);
            return;
        }
        step.SetEnabled(false);
        take();
        ::EndMenu();
    };
    open();
}

}  // namespace gallery
