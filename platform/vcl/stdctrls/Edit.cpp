#include "platform/vcl/stdctrls/Edit.h"

#include <commctrl.h>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/ScopedValue.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/WindowBorder.h"

namespace vcl {
namespace {

DWORD AlignmentStyle(TAlignment alignment) {
    switch (alignment) {
        case taRightJustify:
            return ES_RIGHT;
        case taCenter:
            return ES_CENTER;
        default:
            return ES_LEFT;
    }
}

DWORD CharCaseStyle(TEditCharCase charCase) {
    switch (charCase) {
        case ecUpperCase:
            return ES_UPPERCASE;
        case ecLowerCase:
            return ES_LOWERCASE;
        default:
            return 0;
    }
}

int FontHeight(const TFont& font) {
    const TWindowDC screen(nullptr);
    const TSelectObject selected(screen.Get(), font.GetHandle());
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(screen.Get(), &metrics);
    return static_cast<int>(metrics.tmHeight);
}

/// Room of the system's editor above and below its line, border included, in border widths.
constexpr int VerticalRoom3D = 8;
constexpr int VerticalRoomFlat = 6;

}  // namespace

const TMetaClass& TCustomEdit::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomEdit>(L"TCustomEdit", TWinControl::StaticClass());
    return meta;
}

TCustomEdit::TCustomEdit(TComponent* AOwner) : TWinControl(AOwner) {
    ControlStyle = {csClickEvents, csSetCaption, csDoubleClicks, csFixedHeight};
    SetBounds(0, 0, 121, 21);
    SetColor(clWindow);
    SetTabStop(true);
    SetAutoSize(true);
}

// --- properties that decide about the window

void TCustomEdit::SetBorderStyle(TBorderStyle value) {
    if (value == FBorderStyle) return;
    FBorderStyle = value;
    UpdateHeight();
    RecreateWnd();
}

void TCustomEdit::SetAlignment(TAlignment value) {
    if (value == FAlignment) return;
    FAlignment = value;
    RecreateWnd();
}

void TCustomEdit::SetCharCase(TEditCharCase value) {
    if (value == FCharCase) return;
    FCharCase = value;
    RecreateWnd();
}

void TCustomEdit::SetHideSelection(bool value) {
    if (value == FHideSelection) return;
    FHideSelection = value;
    RecreateWnd();
}

void TCustomEdit::SetNumbersOnly(bool value) {
    if (value == FNumbersOnly) return;
    FNumbersOnly = value;
    RecreateWnd();
}

void TCustomEdit::SetPasswordChar(wchar_t value) {
    if (value == FPasswordChar) return;
    FPasswordChar = value;
    RecreateWnd();
}

void TCustomEdit::SetMaxLength(int value) {
    if (value == FMaxLength) return;
    FMaxLength = value;
    if (HandleAllocated()) Send(EM_SETLIMITTEXT, static_cast<WPARAM>(value));
}

void TCustomEdit::SetReadOnly(bool value) {
    if (value == FReadOnly) return;
    FReadOnly = value;
    if (HandleAllocated()) Send(EM_SETREADONLY, value);
}

void TCustomEdit::SetTextHint(const String& value) {
    if (value == FTextHint) return;
    FTextHint = value;
    if (HandleAllocated()) Send(EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(FTextHint.c_str()));
}

// --- the window

void TCustomEdit::CreateParams(TCreateParams& params) {
    TWinControl::CreateParams(params);
    CreateSubClass(params, L"EDIT");
    params.Style |= ES_AUTOHSCROLL | ES_AUTOVSCROLL | AlignmentStyle(FAlignment) | CharCaseStyle(FCharCase);
    if (FPasswordChar) params.Style |= ES_PASSWORD;
    if (!FHideSelection) params.Style |= ES_NOHIDESEL;
    if (FReadOnly) params.Style |= ES_READONLY;
    if (FNumbersOnly) params.Style |= ES_NUMBER;
    if (FBorderStyle == bsSingle) AddWindowBorder(params, GetCtl3D());
}

TRect TCustomEdit::GetFrameInsets() const {
    return FBorderStyle == bsSingle ? WithWindowBorder({}, GetCtl3D()) : TWinControl::GetFrameInsets();
}

void TCustomEdit::CreateWnd() {
    {
        const TScopedValue creating(FCreating, true);
        TWinControl::CreateWnd();
    }
    if (FMaxLength) Send(EM_SETLIMITTEXT, static_cast<WPARAM>(FMaxLength));
    if (FPasswordChar) Send(EM_SETPASSWORDCHAR, FPasswordChar);
    if (!FTextHint.empty()) Send(EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(FTextHint.c_str()));
    Send(EM_SETMODIFY, FModified);
    UpdateHeight();
}

void TCustomEdit::DestroyWnd() {
    FModified = GetModified();
    TWinControl::DestroyWnd();
}

void TCustomEdit::UpdateHeight() {
    if (!GetAutoSize() || FBorderStyle != bsSingle || IsMultiLine() || IsInState(csLoading)) return;
    const int room = (GetCtl3D() ? VerticalRoom3D : VerticalRoomFlat) * ::GetSystemMetrics(SM_CYBORDER);
    SetHeight(FontHeight(GetFont()) + room);
}

void TCustomEdit::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    switch (message.Msg) {
        case CN_COMMAND:
            if (message.WParamHi() == EN_CHANGE && !FCreating) Change();
            break;
        case CM_ENTER: {
            const bool byMouse = IsControlState(csLButtonDown);
            if (FAutoSelect && !byMouse && !IsMultiLine()) SelectAll();
            TWinControl::Dispatch(message);
            break;
        }
        case CM_FONTCHANGED:
            TWinControl::Dispatch(message);
            if (guard.IsAlive()) UpdateHeight();
            break;
        case CM_CTL3DCHANGED:
            TWinControl::Dispatch(message);
            if (guard.IsAlive()) UpdateHeight();
            if (guard.IsAlive() && FBorderStyle == bsSingle) RecreateWnd();
            break;
        case CM_TEXTCHANGED:
            TWinControl::Dispatch(message);
            // A single line with a window has told by EN_CHANGE.
            if (guard.IsAlive() && (!HandleAllocated() || IsMultiLine())) Change();
            break;
        default:
            TWinControl::Dispatch(message);
    }
}

void TCustomEdit::Change() {
    const TLifeGuard guard(*this);
    Perform(CM_CHANGED, 0, this);
    if (guard.IsAlive()) OnChange(this);
}

// --- selection and clipboard

LRESULT TCustomEdit::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(const_cast<TCustomEdit*>(this)->GetHandle(), message, wParam, lParam);
}

/// Start (X) and end (Y) of the selection, in characters.
TPoint TCustomEdit::Selection() const {
    DWORD start = 0;
    DWORD end = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end)};
}

bool TCustomEdit::GetModified() const {
    return HandleAllocated() ? Send(EM_GETMODIFY) != 0 : FModified;
}

void TCustomEdit::SetModified(bool value) {
    FModified = value;
    if (HandleAllocated()) Send(EM_SETMODIFY, value);
}

int TCustomEdit::GetSelStart() const {
    return Selection().X;
}

void TCustomEdit::SetSelStart(int value) {
    Send(EM_SETSEL, static_cast<WPARAM>(value), value);
}

int TCustomEdit::GetSelLength() const {
    const TPoint selection = Selection();
    return selection.Y - selection.X;
}

void TCustomEdit::SetSelLength(int value) {
    const int start = Selection().X;
    Send(EM_SETSEL, static_cast<WPARAM>(start), start + value);
    Send(EM_SCROLLCARET);
}

String TCustomEdit::GetSelText() const {
    const TPoint selection = Selection();
    return GetText().substr(static_cast<std::size_t>(selection.X),
                            static_cast<std::size_t>(selection.Y - selection.X));
}

void TCustomEdit::SetSelText(const String& value) {
    Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(value.c_str()));
}

void TCustomEdit::SelectAll() {
    Send(EM_SETSEL, 0, -1);
}

void TCustomEdit::ClearSelection() {
    Send(WM_CLEAR);
}

void TCustomEdit::CopyToClipboard() {
    Send(WM_COPY);
}

void TCustomEdit::CutToClipboard() {
    Send(WM_CUT);
}

void TCustomEdit::PasteFromClipboard() {
    Send(WM_PASTE);
}

void TCustomEdit::Undo() {
    Send(WM_UNDO);
}

void TCustomEdit::ClearUndo() {
    Send(EM_EMPTYUNDOBUFFER);
}

bool TCustomEdit::GetCanUndo() const {
    return HandleAllocated() && Send(EM_CANUNDO) != 0;
}

const TMetaClass& TEdit::StaticClass() {
    using C = TEdit;
    static const TMetaClass meta =
        DefineClass<C>(L"TEdit", TCustomEdit::StaticClass())
            .With(EditorRows)
            .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, taLeftJustify)
            .Property(L"AutoSelect", &C::GetAutoSelect, &C::SetAutoSelect, true)
            .Property(L"AutoSize", &C::GetAutoSize, &C::SetAutoSize, true)
            .Property(L"BorderStyle", &C::GetBorderStyle, &C::SetBorderStyle, bsSingle)
            .Property(L"CharCase", &C::GetCharCase, &C::SetCharCase, ecNormal)
            .Property(L"HideSelection", &C::GetHideSelection, &C::SetHideSelection, true)
            .Property(L"MaxLength", &C::GetMaxLength, &C::SetMaxLength, 0)
            .Property(L"NumbersOnly", &C::GetNumbersOnly, &C::SetNumbersOnly, false)
            .Property(L"PasswordChar", &C::GetPasswordChar, &C::SetPasswordChar, 0)
            .Property(L"ReadOnly", &C::GetReadOnly, &C::SetReadOnly, false)
            .Property(L"Text", &C::GetText, &C::SetText)
            .Property(L"TextHint", &C::GetTextHint, &C::SetTextHint, String())
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows)
            .With(KeyRows)
            .Event(L"OnChange", &C::OnChange);
    return meta;
}

}  // namespace vcl
