#pragma once

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Persistent.h"

namespace vcl {

/// The least and greatest size of a control, in pixels; 0 leaves a limit free.
class TSizeConstraints : public TPersistent {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] int GetMinWidth() const { return FMinWidth; }
    [[nodiscard]] int GetMinHeight() const { return FMinHeight; }
    [[nodiscard]] int GetMaxWidth() const { return FMaxWidth; }
    [[nodiscard]] int GetMaxHeight() const { return FMaxHeight; }
    /// Raising a minimum above the maximum raises the maximum with it, and the other way round; negative
    /// values count as 0.
    void SetMinWidth(int value);
    void SetMinHeight(int value);
    void SetMaxWidth(int value);
    void SetMaxHeight(int value);
    void Assign(const TPersistent* source) override;

    /// Raised after a limit changed.
    TNotifyEvent OnChange;

private:
    void SetLimits(int& minimum, int& maximum, int newMinimum, int newMaximum);
    int FMinWidth = 0;
    int FMinHeight = 0;
    int FMaxWidth = 0;
    int FMaxHeight = 0;
};

}  // namespace vcl
