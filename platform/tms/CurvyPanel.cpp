#include "platform/tms/CurvyPanel.h"

#include <algorithm>

#include "platform/tms/CurvyRows.h"

namespace tms {

const TMetaClass& TCurvyPanel::StaticClass() {
    using C = TCurvyPanel;
    static const TMetaClass meta =
        CurvyPanelRows(DefineClass<C>(L"TCurvyPanel", TCurvyControl::StaticClass()), 8)
            .Property(L"Indentation", &C::GetIndentation, &C::SetIndentation, 0);
    return meta;
}

TCurvyPanel::TCurvyPanel(TComponent* AOwner) : TCurvyControl(AOwner) {
    ControlStyle =
        ControlStyle + TControlStyle{csAcceptsControls, csCaptureMouse, csClickEvents, csDoubleClicks};
    SetBounds(0, 0, 145, 25);
}

void TCurvyPanel::SetIndentation(int value) {
    value = std::max(value, 0);
    if (value == FIndentation) return;
    FIndentation = value;
    Realign();
}

void TCurvyPanel::AdjustClientRect(TRect& rect) {
    TCurvyControl::AdjustClientRect(rect);
    rect.Inflate(-FIndentation, -FIndentation);
}

}  // namespace tms
