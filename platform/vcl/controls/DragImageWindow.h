#pragma once

#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TCustomImageList;

/// The window in which an image follows the pointer: half transparent, above all others, never active and
/// not there for the mouse. Hidden at first.
class TDragImageWindow {
public:
    /// Raises EOSError.
    TDragImageWindow(const TCustomImageList& images, int index);
    ~TDragImageWindow();
    TDragImageWindow(const TDragImageWindow&) = delete;
    TDragImageWindow& operator=(const TDragImageWindow&) = delete;

    /// The top left corner in screen pixels.
    void MoveTo(TPoint pos) const;
    void Show(bool value) const;
    [[nodiscard]] HWND Handle() const { return FHandle; }

private:
    void SetPixels(const TCustomImageList& images, int index) const;

    HWND FHandle = nullptr;
};

}  // namespace vcl
