#pragma once

#include "buttons/Namespace.h"
#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/DefineClass.h"

namespace qv7skin {

/// The rows that the buttons of the palette publish alike, so that forms written for one load into the other.
/// `Cancel`, `Default`, `Down` and `ModalResult` are not among them: they have defaults in one class only.
inline constexpr auto ButtonRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Action", &C::GetAction, &C::SetAction)
        .Property(L"AllowDblClick", &C::GetAllowDblClick, &C::SetAllowDblClick)
        .With(AnchorsRow)
        .Property(L"ButtonStyle", &C::GetButtonStyle, &C::SetButtonStyle)
        .Property(L"Caption", &C::GetCaption, &C::SetCaption)
        .Stored(&C::IsCaptionStored)
        .Property(L"ClickOnSpace", &C::GetClickOnSpace, &C::SetClickOnSpace)
        .Property(L"DrawFocusedRect", &C::GetDrawFocusedRect, &C::SetDrawFocusedRect)
        .Property(L"DrawHoveredIfFocused", &C::GetDrawHoveredIfFocused, &C::SetDrawHoveredIfFocused)
        .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
        .Stored(&C::IsEnabledStored)
        .Property(L"FocusedRectMarginHorizontal", &C::GetFocusedRectMarginHorizontal,
                  &C::SetFocusedRectMarginHorizontal)
        .Property(L"FocusedRectMarginVertical", &C::GetFocusedRectMarginVertical,
                  &C::SetFocusedRectMarginVertical)
        .Property(L"Font", &C::GetFont, &C::SetFont)
        .Stored(&C::IsFontStored)
        .Property(L"Hint", &C::GetHint, &C::SetHint)
        .Stored(&C::IsHintStored)
        .Property(L"ShowHint", &C::GetShowHint, &C::SetShowHint)
        .Stored(&C::IsShowHintStored)
        .Property(L"StretchImage", &C::GetStretchImage, &C::SetStretchImage)
        .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
        .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, true)
        .Property(L"Visible", &C::GetVisible, &C::SetVisible, true)
        .Stored(&C::IsVisibleStored)
        .Event(L"OnClick", &C::OnClick)
        .Stored(&C::IsOnClickStored)
        .Event(L"OnDblClick", &C::OnDblClick)
        .Event(L"OnMouseDown", &C::OnMouseDown)
        .Event(L"OnMouseEnter", &C::OnMouseEnter)
        .Event(L"OnMouseLeave", &C::OnMouseLeave)
        .Event(L"OnStateChange", &C::OnStateChange);
};

}  // namespace qv7skin
