#pragma once

#include "platform/flatstyle/Namespace.h"
#include "platform/vcl/controls/PublishedRows.h"

namespace flatstyle {

/// What flat check boxes and radio buttons publish.
inline constexpr auto FlatToggleRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .With(PlacementRows)
        .With(ParentColorRows)
        .With(FontRows)
        .With(StateRows)
        .With(TabRows)
        .With(ActionRows)
        .Property(L"Checked", &C::GetChecked, &C::SetChecked, false)
        .Stored(&C::IsCheckedStored)
        .Property(L"ColorFocused", &C::GetColorFocused, &C::SetColorFocused, clWhite)
        .Identifiers(ColorIdentifiers())
        .Property(L"ColorDown", &C::GetColorDown, &C::SetColorDown, TColor{0x00C5D6D9})
        .Identifiers(ColorIdentifiers())
        .Property(L"ColorCheck", &C::GetColorCheck, &C::SetColorCheck, clBlack)
        .Identifiers(ColorIdentifiers())
        .Property(L"ColorBorder", &C::GetColorBorder, &C::SetColorBorder, TColor{0x008396A0})
        .Identifiers(ColorIdentifiers())
        .With(MouseRows)
        .With(KeyRows);
};

}  // namespace flatstyle
