#pragma once

#include "platform/tms/CurvyControl.h"

namespace tms {

/// A panel with round corners for other controls. It shows no caption.
class TCurvyPanel : public TCurvyControl {
public:
    explicit TCurvyPanel(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Pixels that aligned children keep from the edges; 0 at first.
    [[nodiscard]] int GetIndentation() const { return FIndentation; }
    void SetIndentation(int value);

protected:
    void AdjustClientRect(TRect& rect) override;

private:
    int FIndentation = 0;
};

}  // namespace tms
