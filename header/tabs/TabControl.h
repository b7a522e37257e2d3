#pragma once

#include <memory>

#include "header/tabs/SimpleTabControl.h"
#include "header/tabs/TabAnimation.h"

namespace vcl {
class TTimer;
}

namespace qv7skin {

/// A tab control with a running marker on extended tabs that are in state `tesAnimated`, and one that can
/// fold itself up to no height while it has no tabs. Animation and pieces need `Loaded`, see the ancestor.
class TQV7SkinTabControl : public TQV7SkinSimpleTabControl, public THeaderAnimationPainter {
public:
    /// Milliseconds between two frames of the marker.
    static constexpr unsigned AnimationInterval = 500;

    explicit TQV7SkinTabControl(TComponent* AOwner);
    ~TQV7SkinTabControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Whether the control has no height while it has no items; false at first.
    [[nodiscard]] bool GetMinimizeIfItemCountZero() const { return FMinimizeIfItemCountZero; }
    void SetMinimizeIfItemCountZero(bool Value);
    /// The marker went on to its next frame; raised before the tabs are painted.
    TNotifyEvent OnAnimationStep;

    /// The frame of the marker that is shown: 0 to 2.
    [[nodiscard]] int GetAnimationFrame() const { return FAnimation.GetFrame(); }
    /// Runs while the control is loaded.
    [[nodiscard]] TTimer& GetAnimationTimer() const { return *FAnimationTimer; }

    /// Also loads the marker's frames and starts the animation.
    void Loaded() override;
    void DrawAnimation(TCanvas& Canvas, int State, int X) override;

private:
    void DoAnimationTimer(TObject* Sender);
    void DoOnItemCountChanged(TObject* Sender);
    void CheckShouldBeMinimized();

    TTabAnimation FAnimation;
    std::unique_ptr<TTimer> FAnimationTimer;
    bool FMinimizeIfItemCountZero = false;
    int FRestoreHeight = 0;
};

}  // namespace qv7skin
