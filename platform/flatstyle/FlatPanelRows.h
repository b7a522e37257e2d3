#pragma once

#include "platform/flatstyle/Namespace.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace flatstyle {

/// What a flat panel publishes whose colours are these at first.
template <class C>
TClassDefinition<C>&& FlatPanelRows(TClassDefinition<C>&& table, TColor color, TColor line,
                                    bool parentBackground, bool doubleBuffered) {
    return ColorRows(std::move(table).With(PlacementRows).With(FontRows).With(StateRows), color, false)
        .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, taCenter)
        .Property(L"AutoSize", &C::GetAutoSize, &C::SetAutoSize, false)
        .Property(L"Caption", &C::GetCaption, &C::SetCaption)
        .Stored(&C::IsCaptionStored)
        .Property(L"ColorHighLight", &C::GetColorHighLight, &C::SetColorHighLight, line)
        .Identifiers(ColorIdentifiers())
        .Property(L"ColorShadow", &C::GetColorShadow, &C::SetColorShadow, line)
        .Identifiers(ColorIdentifiers())
        .Property(L"DoubleBuffered", &C::GetDoubleBuffered, &C::SetDoubleBuffered, doubleBuffered)
        .Property(L"ParentBackground", &C::GetParentBackground, &C::SetParentBackground, parentBackground)
        .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
        .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
        .With(MouseRows)
        .With(ResizeRows)
        .Event(L"OnEnter", &C::OnEnter)
        .Event(L"OnExit", &C::OnExit);
}

}  // namespace flatstyle
