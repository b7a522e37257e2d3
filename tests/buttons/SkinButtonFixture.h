#pragma once

#include <vector>

#include "buttons/UnitQV7SkinButton.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {

/// A skin button that counts what it makes and shows its parts.
class ProbeSkinButton : public qv7skin::TCustomQV7SkinButton {
public:
    using TCustomQV7SkinButton::BuildImage;
    using TCustomQV7SkinButton::DrawFocusRect;
    using TCustomQV7SkinButton::GetStateImages;
    using TCustomQV7SkinButton::Loaded;
    using TCustomQV7SkinButton::RebuildImages;
    using TCustomQV7SkinButton::RebuildRegion;
    using TCustomQV7SkinButton::TCustomQV7SkinButton;

    std::vector<velmora::TButtonExState> Built;
    int Regions = 0;
    int Paints = 0;

protected:
    void Paint() override {
        ++Paints;
        TCustomQV7SkinButton::Paint();
    }
    void BuildImage(velmora::TButtonExState State) override {
        Built.push_back(State);
        TCustomQV7SkinButton::BuildImage(State);
    }
    void RebuildRegion() override {
        ++Regions;
        TCustomQV7SkinButton::RebuildRegion();
    }
};

/// The face that the drawing rule gives a state in that size, put together from the package's bitmaps pixel
/// by pixel. Both sides must have room for the corners.
[[nodiscard]] Pixels ExpectedFace(velmora::TButtonExState state, int width, int height);

/// A white form with one skin button of 100 x 25 pixels on it, without a caption, the focus and the mouse.
class SkinButtonTest : public FormTest {
protected:
    void SetUp() override;

    [[nodiscard]] HWND Window() const { return Button->WindowHandle(); }
    /// The place of the button as it stands on the screen, with the form in the corners.
    [[nodiscard]] Pixels Shown();
    /// A face with the form where it is magenta.
    [[nodiscard]] static Pixels OnForm(Pixels face, const Pixels& outline);
    [[nodiscard]] static Pixels OnForm(const Pixels& face);

    static constexpr COLORREF FormColor = 0x00FFFFFF;
    ProbeSkinButton* Button = nullptr;
};

}  // namespace test
