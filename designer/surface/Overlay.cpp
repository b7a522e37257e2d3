#include "designer/surface/Overlay.h"

#include <utility>

#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Pen.h"

namespace designer {

TOverlay::TOverlay(HWND formWindow, TColor color, TColor borderColor)
    : TCustomControl(nullptr), FBorderColor(borderColor) {
    ControlStyle = ControlStyle + TControlStyle{csOpaque};
    SetVisible(false);
    SetColor(color);
    SetParentWindow(formWindow);
}

void TOverlay::ShowAt(const TRect& place) {
    // Among a thousand windows each change of one is dear.
    if (GetVisible()) return SetBoundsRect(place);
    SetBoundsRect(place);
    SetVisible(true);
    ::SetWindowPos(WindowHandle(), HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE);
}

void TOverlay::Paint() {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(GetColor());
    canvas.GetPen().SetColor(FBorderColor);
    canvas.Rectangle(GetClientRect());
}

/// What the mouse does here it does to the form below.
void TOverlay::Dispatch(TMessage& message) {
    if (message.Msg == WM_NCHITTEST)
        message.Result = HTTRANSPARENT;
    else
        TCustomControl::Dispatch(message);
}

void TOverlays::Show(HWND formWindow, std::vector<TRect> places) {
    while (FItems.size() < places.size())
        FItems.push_back(std::make_unique<TOverlay>(formWindow, FColor, FBorderColor));
    for (std::size_t i = places.size(); i < FPlaces.size(); ++i)
        FItems[i]->Hide();
    FPlaces = std::move(places);
    for (std::size_t i = 0; i < FPlaces.size(); ++i)
        FItems[i]->ShowAt(FPlaces[i]);
}

void TOverlays::Hide() {
    for (std::size_t i = 0; i < FPlaces.size(); ++i)
        FItems[i]->Hide();
    FPlaces.clear();
}

void TOverlays::Clear() {
    FItems.clear();
    FPlaces.clear();
}

}  // namespace designer
