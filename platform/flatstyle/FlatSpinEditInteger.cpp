#include "platform/flatstyle/FlatSpinEditInteger.h"

#include <commctrl.h>

#include <algorithm>
#include <limits>

#include "platform/vcl/controls/InnerEditor.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace flatstyle {
namespace {

constexpr int ButtonWidth = 15;
constexpr int Border = 1;

/// Characters that belong to a number, and those with which the system edits.
bool IsForNumbers(wchar_t key) {
    return key < L' ' || key == L'-' || (key >= L'0' && key <= L'9');
}

}  // namespace

const TMetaClass& TFlatSpinEditInteger::StaticClass() {
    using C = TFlatSpinEditInteger;
    static const TMetaClass meta =
        DefineClass<C>(L"TFlatSpinEditInteger", TCustomEdit::StaticClass())
            .With(PlacementRows)
            .With(FontRows)
            .With(StateRows)
            .With(TabRows)
            .Property(L"ColorFocused", &C::GetColorFocused, &C::SetColorFocused, clWhite)
            .Identifiers(ColorIdentifiers())
            .Property(L"ColorBorder", &C::GetColorBorder, &C::SetColorBorder, TColor{0x008396A0})
            .Identifiers(ColorIdentifiers())
            .Property(L"ColorFlat", &C::GetColorFlat, &C::SetColorFlat, TColor{0x00E1EAEB})
            .Identifiers(ColorIdentifiers())
            .Property(L"Increment", &C::GetIncrement, &C::SetIncrement, 1)
            .Property(L"MaxLength", &C::GetMaxLength, &C::SetMaxLength, 0)
            .Property(L"MaxValue", &C::GetMaxValue, &C::SetMaxValue, 0)
            .Property(L"MinValue", &C::GetMinValue, &C::SetMinValue, 0)
            .Property(L"ReadOnly", &C::GetReadOnly, &C::SetReadOnly, false)
            .Property(L"Value", &C::GetValue, &C::SetValue, 0)
            .With(MouseRows)
            .With(KeyRows)
            .Event(L"OnChange", &C::OnChange);
    return meta;
}

TFlatSpinEditInteger::TFlatSpinEditInteger(TComponent* AOwner) : TCustomEdit(AOwner) {
    SetBorderStyle(bsNone);
    SetBounds(0, 0, 121, 19);
    SetText(L"0");
    ShowGround();
}

TFlatSpinEditInteger::~TFlatSpinEditInteger() = default;

void TFlatSpinEditInteger::SetColors(int Index, TColor Value) {
    if (!FColors.Set(Index, Value)) return;
    ShowGround();
    Perform(CM_BORDERCHANGED);
}

/// The colour of the editor follows the focus.
void TFlatSpinEditInteger::ShowGround() {
    const TColor ground = GetColors(FFocusInside ? FocusedColorIndex : FlatColorIndex);
    SetColor(ground);
    FButtons.SetColor(ground);
}

// --- the number

int TFlatSpinEditInteger::InRange(std::int64_t value) const {
    using Limits = std::numeric_limits<int>;
    if (FMinValue != FMaxValue)
        value =
            std::clamp<std::int64_t>(value, std::min(FMinValue, FMaxValue), std::max(FMinValue, FMaxValue));
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

int TFlatSpinEditInteger::ValueIfNone() const {
    return FMinValue != FMaxValue ? FMinValue : 0;
}

int TFlatSpinEditInteger::GetValue() const {
    const std::int64_t number = StrToIntDef(Trim(GetText()), ValueIfNone());
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(number, Limits::min(), Limits::max()));
}

void TFlatSpinEditInteger::SetValue(int Value) {
    SetText(IntToStr(InRange(Value)));
}

void TFlatSpinEditInteger::SetMinValue(int Value) {
    FMinValue = Value;
}

void TFlatSpinEditInteger::SetMaxValue(int Value) {
    FMaxValue = Value;
}

void TFlatSpinEditInteger::Step(int steps) {
    if (GetReadOnly()) return;
    const std::int64_t next = GetValue() + static_cast<std::int64_t>(steps) * FIncrement;
    const TLifeGuard guard(*this);
    SetText(IntToStr(InRange(next)));
    if (guard.IsAlive() && Focused()) SelectAll();
}

// --- the window

void TFlatSpinEditInteger::CreateParams(TCreateParams& params) {
    TCustomEdit::CreateParams(params);
    params.Style |= WS_CLIPCHILDREN;
}

void TFlatSpinEditInteger::CreateWnd() {
    TCustomEdit::CreateWnd();
    FButtons.Create(WindowHandle());
    FButtons.SetEnabled(GetEnabled());
    PlaceButtons();
}

void TFlatSpinEditInteger::DestroyWnd() {
    FButtons.Destroy();
    TCustomEdit::DestroyWnd();
}

/// The system's editor writes at the upper edge of its client area, so that one begins where the text is to
/// stand: the pixels above it.
int TFlatSpinEditInteger::TextTop(int height) const {
    return std::max((height - EditorLineHeight(GetFont())) / 2, 0);
}

TRect TFlatSpinEditInteger::GetFrameInsets() const {
    TRect insets = TCustomEdit::GetFrameInsets();
    insets.Top += TextTop(GetHeight());
    return insets;
}

void TFlatSpinEditInteger::PlaceText(RECT& area) const {
    area.top += TextTop(static_cast<int>(area.bottom - area.top));
}

/// Beside the text, inside the line.
void TFlatSpinEditInteger::PlaceButtons() {
    TRect area = GetClientRect();
    area.Right -= Border;
    area.Left = std::max(area.Right - ButtonWidth, Border);
    area.Top = std::max(Border - TextTop(GetHeight()), 0);
    area.Bottom -= 2 * Border;
    FButtons.Place(area);
}

/// The line around the text, over what the system painted, and the ground above the text.
void TFlatSpinEditInteger::PaintBorder() {
    if (!HandleAllocated()) return;
    const TWindowDC dc = TWindowDC::OfWholeWindow(WindowHandle());
    const TBrushHandle ground(::CreateSolidBrush(ColorToRGB(GetColor())));
    const TBrushHandle line(::CreateSolidBrush(ColorToRGB(GetColors(BorderColorIndex))));
    const RECT above{0, 0, GetWidth(), TextTop(GetHeight())};
    ::FillRect(dc.Get(), &above, ground.Get());
    const RECT window{0, 0, GetWidth(), GetHeight()};
    ::FrameRect(dc.Get(), &window, line.Get());
}

bool TFlatSpinEditInteger::IsButtonMessage(const TMessage& message) const {
    const auto* header = message.As<NMHDR>();
    return header->hwndFrom == FButtons.Handle() && header->code == static_cast<UINT>(UDN_DELTAPOS);
}

/// What the mouse does above the text counts as done at its upper edge.
void TFlatSpinEditInteger::KeepInText(TMessage& message) const {
    const bool isMouse = message.Msg >= WM_MOUSEFIRST && message.Msg <= WM_MBUTTONDBLCLK;
    const auto y = static_cast<short>(HIWORD(message.LParam));
    if (isMouse && y < 0 && y >= -TextTop(GetHeight()))
        message.LParam = MAKELPARAM(LOWORD(message.LParam), 0);
}

void TFlatSpinEditInteger::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    KeepInText(message);
    switch (message.Msg) {
        case WM_NOTIFY:
            if (!IsButtonMessage(message)) break;
            if (!Focused() && CanFocus()) SetFocus();
            // The buttons' own position stays in the middle.
            if (guard.IsAlive()) Step(message.As<NMUPDOWN>()->iDelta > 0 ? 1 : -1);
            message.Result = 1;
            return;
        case WM_VSCROLL:
            return;
        case WM_PAINT:
        case WM_NCPAINT:
            TCustomEdit::Dispatch(message);
            if (guard.IsAlive()) PaintBorder();
            return;
        case WM_NCCALCSIZE:
            TCustomEdit::Dispatch(message);
            return PlaceText(*message.As<RECT>());
        case WM_NCHITTEST:
            TCustomEdit::Dispatch(message);
            if (message.Result == HTNOWHERE) message.Result = HTCLIENT;
            return;
        case WM_SETFONT:
            TCustomEdit::Dispatch(message);
            // The system's margins are those of the font now.
            ::SendMessageW(WindowHandle(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
                           MAKELPARAM(Border + 1, ButtonWidth + Border + 1));
            return;
        case CM_FONTCHANGED:
            TCustomEdit::Dispatch(message);
            if (guard.IsAlive()) Perform(CM_BORDERCHANGED);
            return;
        case WM_SIZE:
            TCustomEdit::Dispatch(message);
            if (guard.IsAlive()) PlaceButtons();
            return;
        case CM_ENABLEDCHANGED:
            TCustomEdit::Dispatch(message);
            if (guard.IsAlive()) FButtons.SetEnabled(GetEnabled());
            return;
        default:
            break;
    }
    TCustomEdit::Dispatch(message);
}

// --- keys, wheel, focus

void TFlatSpinEditInteger::KeyDown(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TCustomEdit::KeyDown(key, shift);
    if (!guard.IsAlive() || (key != VK_UP && key != VK_DOWN)) return;
    Step(key == VK_UP ? 1 : -1);
    if (guard.IsAlive()) key = 0;
}

void TFlatSpinEditInteger::KeyPress(wchar_t& key) {
    const TLifeGuard guard(*this);
    TCustomEdit::KeyPress(key);
    // Enter and Escape are for the form; the editor would beep at them.
    if (guard.IsAlive() && (!IsForNumbers(key) || key == VK_RETURN || key == VK_ESCAPE)) key = 0;
}

bool TFlatSpinEditInteger::DoMouseWheelUp(TShiftState shift, TPoint mousePos) {
    const TLifeGuard guard(*this);
    if (!TCustomEdit::DoMouseWheelUp(shift, mousePos) && guard.IsAlive()) Step(1);
    return true;
}

bool TFlatSpinEditInteger::DoMouseWheelDown(TShiftState shift, TPoint mousePos) {
    const TLifeGuard guard(*this);
    if (!TCustomEdit::DoMouseWheelDown(shift, mousePos) && guard.IsAlive()) Step(-1);
    return true;
}

void TFlatSpinEditInteger::DoEnter() {
    FFocusInside = true;
    ShowGround();
    TCustomEdit::DoEnter();
}

void TFlatSpinEditInteger::DoExit() {
    FFocusInside = false;
    ShowGround();
    const TLifeGuard guard(*this);
    const String settled = IntToStr(InRange(GetValue()));
    if (settled != GetText()) SetText(settled);
    if (guard.IsAlive()) TCustomEdit::DoExit();
}

}  // namespace flatstyle
