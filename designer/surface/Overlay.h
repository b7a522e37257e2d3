#pragma once

#include <memory>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/controls/CustomControl.h"

namespace designer {

/// A small window of the designer over the form under design. It stands in the form's window without being
/// one of its controls, so that the form's own list of children stays as it is.
class TOverlay : public TCustomControl {
public:
    TOverlay(HWND formWindow, TColor color, TColor borderColor);

    /// Shows it there, in client pixels of the form, over all controls.
    void ShowAt(const TRect& place);

protected:
    void Paint() override;
    void Dispatch(TMessage& message) override;

private:
    TColor FBorderColor;
};

/// Overlays of one kind, as many as are needed.
class TOverlays {
public:
    TOverlays(TColor color, TColor borderColor) : FColor(color), FBorderColor(borderColor) {}

    /// Shows one at each of the places and hides the rest.
    void Show(HWND formWindow, std::vector<TRect> places);
    /// Hides all; the windows stay for the next time.
    void Hide();
    /// Frees all windows.
    void Clear();
    /// Where one is shown, in client pixels of the form.
    [[nodiscard]] const std::vector<TRect>& Places() const { return FPlaces; }

private:
    TColor FColor;
    TColor FBorderColor;
    std::vector<std::unique_ptr<TOverlay>> FItems;  ///< Those behind the last of the places are hidden.
    std::vector<TRect> FPlaces;
};

}  // namespace designer
