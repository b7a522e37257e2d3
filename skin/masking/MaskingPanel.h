#pragma once

#include <memory>

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/Namespace.h"

namespace qv7skin {

class TFlickerFreePanel;
class TMaskPanel;

/// Rounds the corners of a control with a window from outside: lays a panel over it that is cut to the pixels
/// of a mask picture. Everything else stays the control's own.
///
/// A mask is made for one size: whoever changes the control's size calls `Unmask`, then `Mask`. When the
/// control is freed while it is masked, the mask goes with it and `Control` becomes null.
class TCustomMaskingPanel : public TComponent {
public:
    explicit TCustomMaskingPanel(TComponent* AOwner);
    ~TCustomMaskingPanel() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The control to be masked, not owned. Unmask before changing it.
    TWinControl* Control = nullptr;
    /// The colour of a mask's pixels where there is no frame.
    TColor TransparentColor = 0x00FF00FF;

    /// True while the mask is there.
    [[nodiscard]] bool GetMasked() const { return FMaskPanel != nullptr; }
    /// Masks or unmasks. While the component is being read from a form file and `Control` is not known yet,
    /// the control is masked when reading ends.
    void SetMasked(bool Value);

    /// A new mask picture of the size in pixels.
    [[nodiscard]] virtual std::unique_ptr<TBitmap> CreateMask(TSize Size) = 0;
    /// Cuts the mask panel to the picture's pixels that do not have the transparent colour; nothing while not
    /// masked.
    virtual void ApplyMask(const TBitmap& Bitmap);
    /// Lays the mask over the control; nothing when it is there already or `Control` is not set. An error on
    /// the way (EResNotFound, EInvalidOperation for a control without a window to stand in) leaves the
    /// control unmasked.
    virtual void Mask();
    virtual void Unmask();

    /// The panel over the control, which is its parent; null while not masked.
    [[nodiscard]] TFlickerFreePanel* GetMaskPanel() const;

protected:
    void Notification(TComponent* component, TOperation operation) override;
    void Loaded() override;

    /// The size that a mask of the control has now.
    [[nodiscard]] TSize GetMaskSize() const;

private:
    TMaskPanel* FMaskPanel = nullptr;
    bool FMaskWhenLoaded = false;
};

}  // namespace qv7skin
