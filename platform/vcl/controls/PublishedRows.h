#pragma once

#include "platform/vcl/controls/BasicAction.h"
#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Font.h"

namespace vcl {

// Groups of rows that most controls publish alike, for tables of published properties:
// `DefineClass<TButton>(...).With(PlacementRows).With(MouseRows)`.

/// `Anchors`.
inline constexpr auto AnchorsRow = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Anchors", &C::GetAnchors, &C::SetAnchors, TAnchors{akLeft, akTop})
        .DefaultFrom(&C::GetAlignAnchors);
};

/// `Align`, `Anchors`, `Constraints`.
inline constexpr auto PlacementRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Align", &C::GetAlign, &C::SetAlign, alNone)
        .With(AnchorsRow)
        .Property(L"Constraints", &C::GetConstraints, &C::SetConstraints);
};

/// `Color` and `ParentColor`. `color` is the colour of a new control; only controls that do not take over
/// that of their parent from the start have one.
template <class C>
TClassDefinition<C>&& ColorRows(TClassDefinition<C>&& table, TColor color, bool parentColor) {
    return std::move(table)
        .Property(L"Color", &C::GetColor, &C::SetColor, color)
        .Stored(&C::IsColorStored)
        .Identifiers(ColorIdentifiers())
        .Property(L"ParentColor", &C::GetParentColor, &C::SetParentColor, parentColor);
}
/// For controls that have their parent's colour unless the host says otherwise.
inline constexpr auto ParentColorRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return ColorRows(std::move(table), clBtnFace, true);
};
/// For editors and lists.
inline constexpr auto WindowColorRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return ColorRows(std::move(table), clWindow, false);
};

/// `Font` and `ParentFont`.
inline constexpr auto FontRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Font", &C::GetFont, &C::SetFont)
        .Stored(&C::IsFontStored)
        .Property(L"ParentFont", &C::GetParentFont, &C::SetParentFont, true);
};

/// `Enabled`, `PopupMenu`, `ParentShowHint`, `ShowHint`, `Visible`.
inline constexpr auto StateRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
        .Stored(&C::IsEnabledStored)
        .Property(L"ParentShowHint", &C::GetParentShowHint, &C::SetParentShowHint, true)
        .Property(L"PopupMenu", &C::GetPopupMenu, &C::SetPopupMenu)
        .Property(L"ShowHint", &C::GetShowHint, &C::SetShowHint)
        .Stored(&C::IsShowHintStored)
        .Property(L"Visible", &C::GetVisible, &C::SetVisible, true)
        .Stored(&C::IsVisibleStored);
};

/// `DragCursor`, `DragKind`, `DragMode`.
inline constexpr auto DragRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"DragCursor", &C::GetDragCursor, &C::SetDragCursor, crDrag)
        .Identifiers(CursorIdentifiers())
        .Property(L"DragKind", &C::GetDragKind, &C::SetDragKind, dkDrag)
        .Property(L"DragMode", &C::GetDragMode, &C::SetDragMode, dmManual);
};

/// `Action`, `Caption`.
inline constexpr auto ActionRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Action", &C::GetAction, &C::SetAction)
        .Property(L"Caption", &C::GetCaption, &C::SetCaption)
        .Stored(&C::IsCaptionStored);
};

/// `TabOrder` and `TabStop` of controls that are tab stops by themselves.
inline constexpr auto TabRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
        .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, true);
};

/// `Ctl3D`, `DoubleBuffered` and their parents' switches.
inline constexpr auto WindowRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Ctl3D", &C::GetCtl3D, &C::SetCtl3D, true)
        .Stored(&C::IsCtl3DStored)
        .Property(L"DoubleBuffered", &C::GetDoubleBuffered, &C::SetDoubleBuffered, false)
        .Stored(&C::IsDoubleBufferedStored)
        .Property(L"ParentCtl3D", &C::GetParentCtl3D, &C::SetParentCtl3D, true)
        .Property(L"ParentDoubleBuffered", &C::GetParentDoubleBuffered, &C::SetParentDoubleBuffered, true);
};

/// What editors and lists have in common, from `PlacementRows` to `WindowRows`.
inline constexpr auto EditorRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .With(PlacementRows)
        .With(WindowColorRows)
        .With(FontRows)
        .With(StateRows)
        .With(TabRows)
        .With(WindowRows);
};

/// The events of the mouse.
inline constexpr auto MouseRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Event(L"OnClick", &C::OnClick)
        .Stored(&C::IsOnClickStored)
        .Event(L"OnContextPopup", &C::OnContextPopup)
        .Event(L"OnDblClick", &C::OnDblClick)
        .Event(L"OnMouseDown", &C::OnMouseDown)
        .Event(L"OnMouseEnter", &C::OnMouseEnter)
        .Event(L"OnMouseLeave", &C::OnMouseLeave)
        .Event(L"OnMouseMove", &C::OnMouseMove)
        .Event(L"OnMouseUp", &C::OnMouseUp);
};

/// The events of drag and drop.
inline constexpr auto DragEventRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Event(L"OnDragDrop", &C::OnDragDrop)
        .Event(L"OnDragOver", &C::OnDragOver)
        .Event(L"OnEndDrag", &C::OnEndDrag)
        .Event(L"OnStartDrag", &C::OnStartDrag);
};

/// The events of focus and keyboard.
inline constexpr auto KeyRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Event(L"OnEnter", &C::OnEnter)
        .Event(L"OnExit", &C::OnExit)
        .Event(L"OnKeyDown", &C::OnKeyDown)
        .Event(L"OnKeyPress", &C::OnKeyPress)
        .Event(L"OnKeyUp", &C::OnKeyUp);
};

/// The events of changes of size.
inline constexpr auto ResizeRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Event(L"OnCanResize", &C::OnCanResize)
        .Event(L"OnConstrainedResize", &C::OnConstrainedResize)
        .Event(L"OnResize", &C::OnResize);
};

}  // namespace vcl
