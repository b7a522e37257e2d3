#pragma once

#include "platform/vcl/controls/WinControl.h"

namespace vcl {

enum class TTrackBarOrientation { trHorizontal, trVertical };
using enum TTrackBarOrientation;

template <>
struct TEnumNames<TTrackBarOrientation> {
    static std::span<const wchar_t* const> Names();
};

/// The slider of the system.
class TTrackBar : public TWinControl {
public:
    explicit TTrackBar(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after the user or code changed the position.
    TNotifyEvent OnChange;

    [[nodiscard]] TTrackBarOrientation GetOrientation() const { return FOrientation; }
    /// Changing it outside of loading swaps width and height.
    void SetOrientation(TTrackBarOrientation value);
    [[nodiscard]] int GetMin() const { return FMin; }
    void SetMin(int value) { SetParams(FPosition, value, FMax); }
    [[nodiscard]] int GetMax() const { return FMax; }
    void SetMax(int value) { SetParams(FPosition, FMin, value); }
    [[nodiscard]] int GetPosition() const { return FPosition; }
    void SetPosition(int value) { SetParams(value, FMin, FMax); }
    /// Sets all three at once; the position is kept within the limits. Raises EInvalidOperation "Track bar
    /// property out of range" when the maximum lies below the minimum.
    void SetParams(int position, int min, int max);
    /// Steps of the arrow keys and of the page keys.
    [[nodiscard]] int GetLineSize() const { return FLineSize; }
    void SetLineSize(int value);
    [[nodiscard]] int GetPageSize() const { return FPageSize; }
    void SetPageSize(int value);
    /// Every how many units a tick stands; without ticks when it is not above 0. Ranges of many units have at
    /// most 16,384 ticks.
    [[nodiscard]] int GetFrequency() const { return FFrequency; }
    void SetFrequency(int value);

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    virtual void Changed();

private:
    void SendScale();

    TTrackBarOrientation FOrientation = trHorizontal;
    int FMin = 0;
    int FMax = 10;
    int FPosition = 0;
    int FLineSize = 1;
    int FPageSize = 2;
    int FFrequency = 1;
};

}  // namespace vcl
