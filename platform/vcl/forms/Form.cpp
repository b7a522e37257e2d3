#include "platform/vcl/forms/Form.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/controls/WindowMenu.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Icon.h"

namespace vcl {
namespace {

constexpr auto FormColorRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return ColorRows(std::move(table), clBtnFace, false);
};

}  // namespace

const TMetaClass& TForm::StaticClass() {
    using C = TForm;
    static const TMetaClass meta =
        DefineClass<C>(L"TForm", TCustomForm::StaticClass())
            .With(PlacementRows)
            .With(FormColorRows)
            .With(WindowRows)
            .Property(L"ActiveControl", &C::GetActiveControl, &C::SetActiveControl)
            .Property(L"AlphaBlend", &C::GetAlphaBlend, &C::SetAlphaBlend, false)
            .Property(L"AlphaBlendValue", &C::GetAlphaBlendValue, &C::SetAlphaBlendValue, 255)
            .Range(0, 255)
            .Property(L"AutoScroll", &C::GetAutoScroll, &C::SetAutoScroll, false)
            .Property(L"AutoSize", &C::GetAutoSize, &C::SetAutoSize, false)
            .Property(L"BorderIcons", &C::GetBorderIcons, &C::SetBorderIcons,
                      TBorderIcons{biSystemMenu, biMinimize, biMaximize})
            .Property(L"BorderStyle", &C::GetBorderStyle, &C::SetBorderStyle, bsSizeable)
            .Property(L"BorderWidth", &C::GetBorderWidth, &C::SetBorderWidth, 0)
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .Stored(&C::IsCaptionStored)
            .Property(L"ClientHeight", &C::GetClientHeight, &C::SetClientHeight)
            .Property(L"ClientWidth", &C::GetClientWidth, &C::SetClientWidth)
            .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
            .Property(L"Font", &C::GetFont, &C::SetFont)
            .Property(L"FormStyle", &C::GetFormStyle, &C::SetFormStyle, fsNormal)
            .Property(L"HorzScrollBar", &C::GetHorzScrollBar, &C::SetHorzScrollBar)
            .Property(L"Icon", &C::GetIcon, &C::SetIcon)
            .Stored(&C::IsIconStored)
            .Property(L"KeyPreview", &C::GetKeyPreview, &C::SetKeyPreview, false)
            .Property(L"Menu", &C::GetMenu, &C::SetMenu)
            .Property(L"PixelsPerInch", &C::GetPixelsPerInch, &C::SetPixelsPerInch)
            .Property(L"PopupMenu", &C::GetPopupMenu, &C::SetPopupMenu)
            .Property(L"PopupMode", &C::GetPopupMode, &C::SetPopupMode, pmNone)
            .Property(L"PopupParent", &C::GetPopupParent, &C::SetPopupParent)
            .Property(L"Position", &C::GetPosition, &C::SetPosition, poDesigned)
            .Property(L"ShowHint", &C::GetShowHint, &C::SetShowHint, false)
            .Property(L"VertScrollBar", &C::GetVertScrollBar, &C::SetVertScrollBar)
            .Property(L"WindowState", &C::GetWindowState, &C::SetWindowState, wsNormal)
            .Property(L"Visible", &C::GetVisible, &C::SetVisible, false)
            .With(MouseRows)
            .With(ResizeRows)
            .Event(L"OnActivate", &C::OnActivate)
            .Event(L"OnClose", &C::OnClose)
            .Event(L"OnCloseQuery", &C::OnCloseQuery)
            .Event(L"OnCreate", &C::OnCreate)
            .Event(L"OnDeactivate", &C::OnDeactivate)
            .Event(L"OnDestroy", &C::OnDestroy)
            .Event(L"OnDragDrop", &C::OnDragDrop)
            .Event(L"OnDragOver", &C::OnDragOver)
            .Event(L"OnHide", &C::OnHide)
            .Event(L"OnKeyDown", &C::OnKeyDown)
            .Event(L"OnKeyPress", &C::OnKeyPress)
            .Event(L"OnKeyUp", &C::OnKeyUp)
            .Event(L"OnMouseWheel", &C::OnMouseWheel)
            .Event(L"OnMouseWheelDown", &C::OnMouseWheelDown)
            .Event(L"OnMouseWheelUp", &C::OnMouseWheelUp)
            .Event(L"OnPaint", &C::OnPaint)
            .Event(L"OnShortCut", &C::OnShortCut)
            .Event(L"OnShow", &C::OnShow);
    return meta;
}

}  // namespace vcl
