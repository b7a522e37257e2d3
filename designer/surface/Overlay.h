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
    void Show(HWND formWindow, const std::vector<TRect>& places);
    void Clear() { FItems.clear(); }
    [[nodiscard]] std::size_t Count() const { return FItems.size(); }

private:
    TColor FColor;
    TColor FBorderColor;
    std::vector<std::unique_ptr<TOverlay>> FItems;
};

}  // namespace designer
