#pragma once

#include <cstdint>

#include "platform/vcl/controls/ControlScrollBar.h"
#include "platform/vcl/controls/WinControl.h"

namespace vcl {

/// What the user did: one line or page back or on, dragging and its end, to either end, and that it is over.
enum class TScrollCode {
    scLineUp,
    scLineDown,
    scPageUp,
    scPageDown,
    scPosition,
    scTrack,
    scTop,
    scBottom,
    scEndScroll
};
using enum TScrollCode;

/// Sender, what the user did, and the position that follows, which the handler may change.
using TScrollEvent = TEvent<void(TObject*, TScrollCode, int&)>;

/// The scroll bar of the system as a control of its own.
class TScrollBar : public TWinControl {
public:
    explicit TScrollBar(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after the position changed.
    TNotifyEvent OnChange;
    /// Raised before the user's scrolling changes the position.
    TScrollEvent OnScroll;

    [[nodiscard]] TScrollBarKind GetKind() const { return FKind; }
    /// Changing it outside of loading swaps width and height.
    void SetKind(TScrollBarKind value);
    [[nodiscard]] int GetMin() const { return FMin; }
    void SetMin(int value) { SetParams(FPosition, value, FMax); }
    [[nodiscard]] int GetMax() const { return FMax; }
    void SetMax(int value) { SetParams(FPosition, FMin, value); }
    [[nodiscard]] int GetPosition() const { return FPosition; }
    void SetPosition(int value) { SetParams(value, FMin, FMax); }
    /// Sets all three at once; the position is kept within the limits. Raises EInvalidOperation "Scroll bar
    /// property out of range" when the maximum lies below the minimum.
    void SetParams(int position, int min, int max);
    /// Units that the thumb covers; the position then ends that much (less one) before the maximum.
    [[nodiscard]] int GetPageSize() const { return FPageSize; }
    void SetPageSize(int value);
    /// Steps of the arrows and of the area beside the thumb; at least 1.
    [[nodiscard]] int GetSmallChange() const { return FSmallChange; }
    void SetSmallChange(int value) { FSmallChange = value < 1 ? 1 : value; }
    [[nodiscard]] int GetLargeChange() const { return FLargeChange; }
    void SetLargeChange(int value) { FLargeChange = value < 1 ? 1 : value; }

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    virtual void Change();
    virtual void Scroll(TScrollCode code, int& position);

private:
    void UpdateScrollInfo();
    void DoScroll(const TMessage& message);
    [[nodiscard]] std::int64_t PositionAfter(TScrollCode code) const;
    [[nodiscard]] int Limit() const;

    TScrollBarKind FKind = sbHorizontal;
    int FMin = 0;
    int FMax = 100;
    int FPosition = 0;
    int FPageSize = 0;
    int FSmallChange = 1;
    int FLargeChange = 1;
};

}  // namespace vcl
