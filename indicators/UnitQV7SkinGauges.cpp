#include "indicators/UnitQV7SkinGauges.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/RangeErrors.h"
#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {

const TMetaClass& TQV7SkinGauge::StaticClass() {
    using T = TQV7SkinGauge;
    static const TMetaClass meta =
        ColorRows(DefineClass<T>(L"TQV7SkinGauge", TGraphicControl::StaticClass()), clWindow, true)
            .With(PlacementRows)
            .With(FontRows)
            .With(StateRows)
            .Property(L"BackColor", &T::GetBackColor, &T::SetBackColor, clWhite)
            .Identifiers(ColorIdentifiers())
            .Property(L"BorderStyle", &T::GetBorderStyle, &T::SetBorderStyle, bsSingle)
            .Property(L"ForeColor", &T::GetForeColor, &T::SetForeColor, clBlack)
            .Identifiers(ColorIdentifiers())
            .Property(L"Kind", &T::GetKind, &T::SetKind, gkHorizontalBar)
            .Property(L"MaxValue", &T::GetMaxValue, &T::SetMaxValue, 100)
            .Property(L"MinValue", &T::GetMinValue, &T::SetMinValue, 0)
            .Property(L"Progress", &T::GetProgress, &T::SetProgress, 0)
            .Property(L"ShowText", &T::GetShowText, &T::SetShowText, true)
            .Property(L"Text", &T::GetText, &T::SetText, String())
            .Property(L"TextKind", &T::GetTextKind, &T::SetTextKind, gtkPercentage);
    return meta;
}

TQV7SkinGauge::TQV7SkinGauge(TComponent* AOwner) : TGraphicControl(AOwner) {
    ControlStyle.Include(csOpaque);
    // The text is the host's own, not the component's name.
    ControlStyle.Exclude(csSetCaption);
    SetBounds(0, 0, 100, 100);
    SetColor(clWindow);
    SetParentColor(true);
}

void TQV7SkinGauge::SetMinValue(int Value) {
    if (Value == FMinValue) return;
    if (Value > FMaxValue && !IsInState(csLoading))
        RaiseOutOfRange(-std::numeric_limits<int>::max(), std::int64_t{FMaxValue} - 1);
    FMinValue = Value;
    FProgress = std::max(FProgress, Value);
    Refresh();
}

void TQV7SkinGauge::SetMaxValue(int Value) {
    if (Value == FMaxValue) return;
    if (Value < FMinValue && !IsInState(csLoading))
        RaiseOutOfRange(std::int64_t{FMinValue} + 1, std::numeric_limits<int>::max());
    FMaxValue = Value;
    FProgress = std::min(FProgress, Value);
    Refresh();
}

void TQV7SkinGauge::SetProgress(int Value) {
    const int clamped = Value < FMinValue ? FMinValue : std::min(Value, FMaxValue);
    if (clamped == FProgress) return;
    const int percentBefore = GetPercentDone();
    FProgress = clamped;
    if (GetPercentDone() != percentBefore) Refresh();
}

void TQV7SkinGauge::AddProgress(int Value) {
    using TLimits = std::numeric_limits<int>;
    const std::int64_t sum = std::int64_t{FProgress} + Value;
    SetProgress(static_cast<int>(std::clamp<std::int64_t>(sum, TLimits::min(), TLimits::max())));
    Refresh();
}

int TQV7SkinGauge::GetPercentDone() const {
    const std::int64_t length = std::int64_t{FMaxValue} - FMinValue;
    return length == 0 ? 0 : static_cast<int>((std::int64_t{FProgress} - FMinValue) * 100 / length);
}

String TQV7SkinGauge::GetTextToPaint() const {
    switch (FTextKind) {
        case gtkPercentage:
            return Format(L"%d%%", GetPercentDone());
        case gtkProgress:
            return Format(L"%d / %d", FProgress, FMaxValue);
        default:
            return GetText();
    }
}

void TQV7SkinGauge::Dispatch(TMessage& message) {
    if (message.Msg != CM_TEXTCHANGED) return TGraphicControl::Dispatch(message);
    if (FTextKind == gtkText) Refresh();
}

}  // namespace qv7skin

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TQV7SkinGaugeKind>::Names() {
    static constexpr const wchar_t* names[] = {L"gkText", L"gkHorizontalBar", L"gkVerticalBar", L"gkPie",
                                               L"gkNeedle"};
    return names;
}

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TQV7SkinGaugeTextKind>::Names() {
    static constexpr const wchar_t* names[] = {L"gtkPercentage", L"gtkProgress", L"gtkText"};
    return names;
}
