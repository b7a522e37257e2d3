#pragma once

#include <memory>

#include "platform/vcl/controls/Control.h"
#include "platform/vcl/core/Object.h"
#include "skin/Namespace.h"

namespace qv7skin {

class TMaskingPanelImagesFromResource;

/// Lays the skin's frame around a control from outside, on a panel that reaches 3 pixels further left and 2
/// pixels further up. The panel is cut to the frame, so that the control shows and works inside of it. The
/// frame appears with the first `Resize`; the owner calls it again whenever the control was moved or changed
/// its size.
class TSkinner : public TObject {
public:
    /// `Control` is not owned. The panel goes to the front of its parent.
    explicit TSkinner(TControl* Control);
    ~TSkinner() override;

    /// Brings the frame to the control's place and size; nothing once the control or the panel was freed.
    /// Raises EInvalidOperation while the control stands in no window.
    void Resize();

    /// The panel around the control; null once its parent was freed.
    [[nodiscard]] TWinControl* GetPanel() const;
    /// What makes the frame of the panel.
    [[nodiscard]] TMaskingPanelImagesFromResource& GetMaskingPanel() const;

private:
    class TFrame;
    std::unique_ptr<TFrame> FFrame;
};

}  // namespace qv7skin
