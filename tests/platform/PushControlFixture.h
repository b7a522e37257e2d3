#pragma once

#include <string>
#include <vector>

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/PushControl.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {

/// A push control that fills itself with a colour of its own for each state, and notes what happens to it.
class ProbeControl : public vcl::TPushControl {
public:
    using TPushControl::TPushControl;
    using TPushControl::UpdateState;

    static constexpr vcl::TColor Colors[] = {0x101010, 0x202020, 0x303030, 0x404040, 0x505050, 0x606060};
    static constexpr vcl::TColor FocusColor = 0x0000FF;

    bool IsToggle = false;
    bool HasDoubleClicks = false;
    bool HasSpace = true;
    bool IsHotByFocus = false;
    bool FocusShows = true;
    int Paints = 0;
    std::vector<vcl::TPushState> States;
    vcl::TNotifyEvent OnStateChange;

protected:
    void StateChanged() override {
        States.push_back(GetPushState());
        OnStateChange(this);
    }
    [[nodiscard]] bool Toggles() const override { return IsToggle; }
    [[nodiscard]] bool WantsDoubleClicks() const override { return HasDoubleClicks; }
    [[nodiscard]] bool WantsSpace() const override { return HasSpace; }
    [[nodiscard]] bool IsHotWhenFocused() const override { return IsHotByFocus; }
    [[nodiscard]] bool ShowsFocus() const override { return FocusShows; }
    /// The state's colour everywhere, and a pixel at (0, 0) for the focus.
    void Paint() override {
        ++Paints;
        GetCanvas().GetBrush().SetColor(Colors[static_cast<int>(GetPushState())]);
        GetCanvas().FillRect(GetClientRect());
        if (IsFocusShown()) GetCanvas().SetPixel(0, 0, FocusColor);
    }
};

/// A form with one push control on it, shown, without focus and mouse.
class PushControlTest : public FormTest {
protected:
    void SetUp() override;

    /// The colour of a pixel of the control as it stands on the screen.
    [[nodiscard]] vcl::TColor Shown(int x = 20, int y = 10) const;
    [[nodiscard]] vcl::TColor ColorOf(vcl::TPushState state) const {
        return ProbeControl::Colors[static_cast<int>(state)];
    }
    [[nodiscard]] HWND Window() const { return Control->WindowHandle(); }

    ProbeControl* Control = nullptr;
    int Clicks = 0;
};

}  // namespace test
