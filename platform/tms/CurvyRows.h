#pragma once

#include "platform/tms/Namespace.h"
#include "platform/vcl/controls/PublishedRows.h"

namespace tms {

/// What curvy controls publish of their frame, for a class whose corners have that radius at first.
template <class C>
TClassDefinition<C>&& CurvyRows(TClassDefinition<C>&& table, int rounding) {
    return ColorRows(std::move(table), clWhite, false)
        .Property(L"BorderColor", &C::GetBorderColor, &C::SetBorderColor, TColor{0x00C0C0C0})
        .Identifiers(ColorIdentifiers())
        .Property(L"FocusBorderColor", &C::GetFocusBorderColor, &C::SetFocusBorderColor, clNone)
        .Identifiers(ColorIdentifiers())
        .Property(L"FocusColor", &C::GetFocusColor, &C::SetFocusColor, clNone)
        .Identifiers(ColorIdentifiers())
        .Property(L"Rounding", &C::GetRounding, &C::SetRounding, rounding);
}

/// The rows of a curvy panel with corners of that radius.
template <class C>
TClassDefinition<C>&& CurvyPanelRows(TClassDefinition<C>&& table, int rounding) {
    return CurvyRows(std::move(table)
                         .With(PlacementRows)
                         .With(FontRows)
                         .With(StateRows)
                         .Property(L"Caption", &C::GetCaption, &C::SetCaption)
                         .Stored(&C::IsCaptionStored)
                         .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
                         .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
                         .With(MouseRows)
                         .With(ResizeRows)
                         .Event(L"OnEnter", &C::OnEnter)
                         .Event(L"OnExit", &C::OnExit),
                     rounding);
}

}  // namespace tms
