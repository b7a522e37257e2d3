#pragma once

#include "platform/tms/CurvyFrame.h"
#include "platform/vcl/controls/CustomControl.h"

namespace tms {

/// A surface with round corners on whatever its parent shows, and a line around it that takes another colour
/// while the focus is on the control or inside it. The base of the curvy controls.
class TCurvyControl : public TCustomControl {
public:
    explicit TCurvyControl(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The radius of the corners in pixels; 8 at first.
    [[nodiscard]] int GetRounding() const { return FRounding; }
    void SetRounding(int value);
    /// The line around the control; clNone for none. 0x00C0C0C0 at first.
    [[nodiscard]] TColor GetBorderColor() const { return FBorderColor; }
    void SetBorderColor(TColor value);
    /// The line while the focus is on the control or inside it; clNone for the ordinary one, as at first.
    [[nodiscard]] TColor GetFocusBorderColor() const { return FFocusBorderColor; }
    void SetFocusBorderColor(TColor value);
    /// The inside while the focus is on the control or inside it; clNone for `Color`, as at first.
    [[nodiscard]] TColor GetFocusColor() const { return FFocusColor; }
    void SetFocusColor(TColor value);

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void DoEnter() override;
    void DoExit() override;
    void Resize() override;
    /// True while the focus is on the control or inside it.
    [[nodiscard]] bool HasFocusInside() const { return FFocusInside; }
    [[nodiscard]] TCurvyLook GetLook() const;
    /// The colours of the inside changed.
    virtual void LookChanged() { Invalidate(); }

private:
    int FRounding = 8;
    TColor FBorderColor = 0x00C0C0C0;
    TColor FFocusBorderColor = clNone;
    TColor FFocusColor = clNone;
    bool FFocusInside = false;
};

}  // namespace tms
