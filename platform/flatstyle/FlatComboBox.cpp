#include "platform/flatstyle/FlatComboBox.h"

#include "platform/flatstyle/FlatArrow.h"
#include "platform/vcl/controls/ControlCanvas.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Font.h"

namespace flatstyle {
namespace {

/// Pixels between the edge and the text.
constexpr int TextMargin = 3;

/// True for messages at which the system draws the face of a combo box without a paint message.
bool DrawsFace(UINT message) {
    switch (message) {
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_SETTEXT:
        case WM_ENABLE:
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
        case WM_CHAR:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_MOUSEWHEEL:
        case WM_COMMAND:
        case CB_SETCURSEL:
        case CB_SHOWDROPDOWN:
            return true;
        default:
            return false;
    }
}

}  // namespace

const TMetaClass& TFlatComboBox::StaticClass() {
    using C = TFlatComboBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TFlatComboBox", TCustomComboBox::StaticClass())
            .With(PlacementRows)
            .With(WindowColorRows)
            .With(FontRows)
            .With(StateRows)
            .With(TabRows)
            .Property(L"ColorArrow", &C::GetColorArrow, &C::SetColorArrow, clBlack)
            .Identifiers(ColorIdentifiers())
            .Property(L"ColorArrowBackground", &C::GetColorArrowBackground, &C::SetColorArrowBackground,
                      TColor{0x00C5D6D9})
            .Identifiers(ColorIdentifiers())
            .Property(L"ColorBorder", &C::GetColorBorder, &C::SetColorBorder, TColor{0x008396A0})
            .Identifiers(ColorIdentifiers())
            .Property(L"Style", &C::GetStyle, &C::SetStyle, csDropDown)
            .Property(L"DropDownCount", &C::GetDropDownCount, &C::SetDropDownCount, 8)
            .Property(L"Items", &C::GetItems, &C::SetItems)
            .Property(L"ItemIndex", &C::GetItemIndex, &C::SetItemIndex, -1)
            .Property(L"MaxLength", &C::GetMaxLength, &C::SetMaxLength, 0)
            .Property(L"Sorted", &C::GetSorted, &C::SetSorted, false)
            .Property(L"Text", &C::GetText, &C::SetText)
            .With(MouseRows)
            .With(KeyRows)
            .Event(L"OnChange", &C::OnChange)
            .Event(L"OnCloseUp", &C::OnCloseUp)
            .Event(L"OnDropDown", &C::OnDropDown)
            .Event(L"OnSelect", &C::OnSelect);
    return meta;
}

TFlatComboBox::TFlatComboBox(TComponent* AOwner)
    : TCustomComboBox(AOwner), FCanvas(std::make_unique<TControlCanvas>(this)) {
    // The face is ours; text being edited and the list are the system's.
    SetControlState(csCustomPaint, true);
}

TFlatComboBox::~TFlatComboBox() = default;

TCanvas& TFlatComboBox::GetCanvas() const {
    return *FCanvas;
}

void TFlatComboBox::SetColors(int Index, TColor Value) {
    if (FColors.Set(Index, Value)) Invalidate();
}

void TFlatComboBox::SetButtonWidth(int Value) {
    if (Value == FButtonWidth) return;
    FButtonWidth = Value;
    PlaceEditor();
    Invalidate();
}

// --- the window

void TFlatComboBox::CreateParams(TCreateParams& params) {
    TCustomComboBox::CreateParams(params);
    params.Style |= WS_CLIPCHILDREN;
}

void TFlatComboBox::CreateWnd() {
    TCustomComboBox::CreateWnd();
    PlaceEditor();
}

void TFlatComboBox::DestroyWnd() {
    // The list goes without telling.
    FShownOpen = false;
    TCustomComboBox::DestroyWnd();
}

/// Gives the editor the room up to our button.
void TFlatComboBox::PlaceEditor() {
    if (!EditHandle() || GetStyle() != csDropDown) return;
    ::SendMessageW(EditHandle(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    const int height = GetClientHeight() - 2 * TextMargin;
    ::SetWindowPos(EditHandle(), nullptr, TextMargin, TextMargin,
                   GetClientWidth() - TextMargin - FButtonWidth - 1, height > 0 ? height : 0,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void TFlatComboBox::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    TCustomComboBox::Dispatch(message);
    if (!guard.IsAlive()) return;
    if (message.Msg == WM_SIZE || message.Msg == WM_SETFONT) PlaceEditor();
    if (message.Msg == CM_ENABLEDCHANGED || message.Msg == CM_TEXTCHANGED || DrawsFace(message.Msg))
        Invalidate();
}

void TFlatComboBox::DropDown() {
    FShownOpen = true;
    Invalidate();
    TCustomComboBox::DropDown();
}

void TFlatComboBox::CloseUp() {
    FShownOpen = false;
    Invalidate();
    TCustomComboBox::CloseUp();
}

// --- painting

TRect TFlatComboBox::GetButtonRect() const {
    return {GetClientWidth() - FButtonWidth, 0, GetClientWidth(), GetClientHeight()};
}

void TFlatComboBox::PaintButton() {
    TCanvas& canvas = GetCanvas();
    const TRect rect = GetButtonRect();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetColors(FaceColorIndex));
    canvas.FillRect(rect);
    canvas.GetBrush().SetColor(GetColors(BorderColorIndex));
    canvas.FrameRect(rect);
    if (GetEnabled())
        DrawFlatArrow(canvas, rect, FShownOpen, GetColors(ArrowColorIndex));
    else
        DrawFlatArrowEngraved(canvas, rect, FShownOpen, clBtnShadow, clBtnHighlight);
}

void TFlatComboBox::PaintWindow(HDC dc) {
    const TLifeGuard guard(*this);
    // The canvas may go with the control, when that is freed by the handler that draws the entry.
    const TSaveDC state(dc);
    const TCanvasBinding binding(*FCanvas, *this, dc);
    PaintButton();
    TRect area = GetClientRect();
    area.Right = GetButtonRect().Left;
    PaintEntry(dc, area);
    if (!guard.IsAlive()) return;
    FCanvas->GetBrush().SetStyle(bsSolid);
    FCanvas->GetBrush().SetColor(GetColors(BorderColorIndex));
    FCanvas->FrameRect(GetClientRect());
}

/// The ground left of the button and, in the styles without an editor, the chosen entry.
void TFlatComboBox::PaintEntry(HDC dc, const TRect& area) {
    FCanvas->GetBrush().SetStyle(bsSolid);
    FCanvas->GetBrush().SetColor(GetColor());
    FCanvas->FillRect(area);
    if (HasEditor()) return;
    TRect entry = area;
    entry.Inflate(-TextMargin + 1, -TextMargin + 1);
    const bool chosen = Focused() && !FShownOpen;
    if (GetStyle() != csDropDownList) {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_COMBOBOX;
        item.itemID = static_cast<UINT>(GetItemIndex());
        item.itemAction = ODA_DRAWENTIRE;
        item.itemState = ODS_COMBOBOXEDIT | (chosen ? ODS_SELECTED : 0U) | (GetEnabled() ? 0U : ODS_DISABLED);
        item.hwndItem = WindowHandle();
        item.hDC = dc;
        item.rcItem = entry;
        FCanvas->Refresh();
        // The handler gets the context as that of the list, and may leave it as it likes. The font stays
        // until it is selected no more, even if the handler frees the combo box.
        const TSharedFont font = GetFont().GetShared();
        const TSaveDC state(dc);
        ::SelectObject(dc, GetFont().GetHandle());
        return DrawItem(item);
    }
    if (chosen) {
        FCanvas->GetBrush().SetColor(clHighlight);
        FCanvas->FillRect(entry);
    }
    FCanvas->SetFont(GetFont());
    if (chosen) FCanvas->GetFont().SetColor(clHighlightText);
    FCanvas->GetBrush().SetStyle(bsClear);
    entry.Inflate(-1, 0);
    FCanvas->TextRect(entry, GetText(), DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

}  // namespace flatstyle
