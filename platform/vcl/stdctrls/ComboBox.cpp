#include "platform/vcl/stdctrls/ComboBox.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/ComboBoxItems.h"

namespace vcl {
namespace {

DWORD StyleBits(TComboBoxStyle style) {
    switch (style) {
        case csSimple:
            return CBS_SIMPLE;
        case csDropDownList:
            return CBS_DROPDOWNLIST;
        case csOwnerDrawFixed:
            return CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED;
        case csOwnerDrawVariable:
            return CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE;
        default:
            return CBS_DROPDOWN;
    }
}

}  // namespace

const TMetaClass& TCustomComboBox::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomComboBox>(L"TCustomComboBox", TWinControl::StaticClass());
    return meta;
}

TCustomComboBox::TCustomComboBox(TComponent* AOwner)
    : TWinControl(AOwner), FItems(std::make_unique<TItems>(*this)) {
    // The system's combo box reports clicks itself.
    ControlStyle = {csCaptureMouse, csSetCaption, csDoubleClicks, csFixedHeight};
    SetBounds(0, 0, 145, 21);
    SetColor(clWindow);
    SetTabStop(true);
}

TCustomComboBox::~TCustomComboBox() = default;

TStrings& TCustomComboBox::GetItems() const {
    return *FItems;
}

// --- properties

void TCustomComboBox::SetStyle(TComboBoxStyle value) {
    if (value == FStyle) return;
    // What the window says of text and choice counts as long as it has its former style.
    FSavedIndex = GetItemIndex();
    FStyle = value;
    RecreateWnd();
}

void TCustomComboBox::SetSorted(bool value) {
    if (value == FSorted) return;
    FSorted = value;
    const int index = GetItemIndex();
    const String chosen = index >= 0 ? FItems->Get(index) : String();
    FItems->SetSorted(value);
    FillWindow();
    if (index >= 0) SetItemIndex(FItems->IndexOf(chosen));
}

int TCustomComboBox::GetItemHeight() const {
    return FItemHeight == 0 && HandleAllocated() ? static_cast<int>(Send(CB_GETITEMHEIGHT)) : FItemHeight;
}

void TCustomComboBox::SetItemHeight(int value) {
    if (value == FItemHeight) return;
    FItemHeight = value;
    RecreateWnd();
}

void TCustomComboBox::SetMaxLength(int value) {
    if (value == FMaxLength) return;
    FMaxLength = value;
    if (HandleAllocated()) Send(CB_LIMITTEXT, static_cast<WPARAM>(value));
}

int TCustomComboBox::GetItemIndex() const {
    return HandleAllocated() ? static_cast<int>(Send(CB_GETCURSEL)) : FSavedIndex;
}

void TCustomComboBox::SetItemIndex(int value) {
    if (value < 0 || value >= FItems->GetCount()) value = -1;
    FSavedIndex = value;
    if (HandleAllocated()) {
        Send(CB_SETCURSEL, static_cast<WPARAM>(value));
        if (!HasEditor()) Invalidate();
    } else if (value >= 0) {
        TControl::SetTextBuf(FItems->Get(value));
    }
}

bool TCustomComboBox::GetDroppedDown() const {
    return HandleAllocated() && Send(CB_GETDROPPEDSTATE) != 0;
}

void TCustomComboBox::SetDroppedDown(bool value) {
    if (value || HandleAllocated()) Send(CB_SHOWDROPDOWN, value);
}

int TCustomComboBox::GetSelStart() const {
    return LOWORD(Send(CB_GETEDITSEL));
}

void TCustomComboBox::SetSelStart(int value) {
    Send(CB_SETEDITSEL, 0, MAKELPARAM(value, value));
}

int TCustomComboBox::GetSelLength() const {
    const LRESULT selection = Send(CB_GETEDITSEL);
    return HIWORD(selection) - LOWORD(selection);
}

void TCustomComboBox::SetSelLength(int value) {
    const int start = GetSelStart();
    Send(CB_SETEDITSEL, 0, MAKELPARAM(start, start + value));
}

void TCustomComboBox::SelectAll() {
    Send(CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

void TCustomComboBox::Clear() {
    SetText({});
    FItems->Clear();
}

/// Without an editor the text is that of the chosen entry.
String TCustomComboBox::GetTextBuf() const {
    if (HasEditor()) return TWinControl::GetTextBuf();
    const int index = GetItemIndex();
    return index >= 0 && index < FItems->GetCount() ? FItems->Get(index) : String();
}

// --- the window

LRESULT TCustomComboBox::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(const_cast<TCustomComboBox*>(this)->GetHandle(), message, wParam, lParam);
}

void TCustomComboBox::CreateParams(TCreateParams& params) {
    TWinControl::CreateParams(params);
    CreateSubClass(params, L"COMBOBOX");
    params.Style |= WS_VSCROLL | CBS_HASSTRINGS | CBS_AUTOHSCROLL | StyleBits(FStyle);
}

void TCustomComboBox::CreateWnd() {
    TWinControl::CreateWnd();
    const String text = StoredText();
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(WindowHandle(), &info);
    FListWindow = info.hwndList;
    FEditWindow = HasEditor() ? info.hwndItem : nullptr;
    if (FEditWindow) ::SetWindowSubclass(FEditWindow, &EditProcedure, 1, reinterpret_cast<DWORD_PTR>(this));
    if (FMaxLength) Send(CB_LIMITTEXT, static_cast<WPARAM>(FMaxLength));
    // Each entry asks for its height when it comes in, by the identifier of this window.
    if (FStyle == csOwnerDrawVariable)
        ::SetWindowLongPtrW(WindowHandle(), GWLP_ID, reinterpret_cast<LONG_PTR>(WindowHandle()));
    FillWindow();
    if (FSavedIndex >= 0) Send(CB_SETCURSEL, static_cast<WPARAM>(FSavedIndex));
    if (HasEditor()) {
        // Choosing an entry took over its text; what the user or the host wrote goes before it.
        const bool isOfEntry = FSavedIndex >= 0 && FItems->Get(FSavedIndex) == text;
        if (!isOfEntry) ::SetWindowTextW(FEditWindow, text.c_str());
    }
}

void TCustomComboBox::DestroyWnd() {
    FSavedIndex = GetItemIndex();
    TWinControl::DestroyWnd();
    FListWindow = nullptr;
    FEditWindow = nullptr;
    FEditFocused = false;
}

/// Shows all entries anew.
void TCustomComboBox::FillWindow() {
    if (!HandleAllocated()) return;
    const int index = GetItemIndex();
    Send(WM_SETREDRAW, FALSE);
    while (Send(CB_GETCOUNT) > 0)
        Send(CB_DELETESTRING, static_cast<WPARAM>(Send(CB_GETCOUNT) - 1));
    Send(CB_INITSTORAGE, static_cast<WPARAM>(FItems->GetCount()), 0);
    for (int i = 0; i < FItems->GetCount(); ++i)
        Send(CB_INSERTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(FItems->Get(i).c_str()));
    if (index >= 0) Send(CB_SETCURSEL, static_cast<WPARAM>(index));
    Send(WM_SETREDRAW, TRUE);
    Invalidate();
}

/// Gives the list room for as many entries as it may show.
void TCustomComboBox::SizeList() {
    Send(CB_SETMINVISIBLE, static_cast<WPARAM>(std::max(FDropDownCount, 1)));
}

bool TCustomComboBox::Focused() const {
    return FEditFocused || TWinControl::Focused();
}

// --- messages

LRESULT CALLBACK TCustomComboBox::EditProcedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                                DWORD_PTR self) {
    TMessage message{msg, wParam, lParam, 0};
    try {
        if (reinterpret_cast<TCustomComboBox*>(self)->EditMessage(message)) return message.Result;
    } catch (...) {
        AppServices().HandleException(std::current_exception());
        return 0;
    }
    return ::DefSubclassProc(window, msg, message.WParam, lParam);
}

/// The time while the editor offers us its context menu.
class TCustomComboBox::TAsking : public TLifeGuard {
public:
    explicit TAsking(TCustomComboBox& box) : TLifeGuard(box), FBox(box) { box.FEditorAsks = true; }
    ~TAsking() {
        if (IsAlive()) FBox.FEditorAsks = false;
    }
    TAsking(const TAsking&) = delete;
    TAsking& operator=(const TAsking&) = delete;

private:
    TCustomComboBox& FBox;
};

/// A message to the editor inside: true when it was used, or the combo box is gone.
bool TCustomComboBox::EditMessage(TMessage& message) {
    switch (message.Msg) {
        case WM_SETFOCUS: {
            FEditFocused = true;
            TParentForm* form = GetParentForm(this);
            return form && !form->SetFocusedControl(this);
        }
        case WM_KILLFOCUS:
            FEditFocused = false;
            return false;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return DoKeyDown(message);
        case WM_KEYUP:
        case WM_SYSKEYUP:
            return DoKeyUp(message);
        case WM_CHAR: {
            const TLifeGuard guard(*this);
            if (DoKeyPress(message) || !guard.IsAlive()) return true;
            // The editor would beep at them.
            const bool closes = message.CharCode() == VK_RETURN || message.CharCode() == VK_ESCAPE;
            if (closes && GetDroppedDown()) SetDroppedDown(false);
            return closes;
        }
        case WM_CONTEXTMENU: {
            const TAsking asking(*this);
            message.Result = Perform(WM_CONTEXTMENU, message.WParam, message.LParam);
            return !asking.IsAlive() || message.Result != 0;
        }
        default:
            return false;
    }
}

void TCustomComboBox::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_COMMAND:
            return CnCommand(message);
        case CN_DRAWITEM:
            message.Result = 1;
            return DrawItem(*message.As<DRAWITEMSTRUCT>());
        case CN_MEASUREITEM:
            message.Result = 1;
            return CnMeasureItem(*message.As<MEASUREITEMSTRUCT>());
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
            // Editor and list have the colours of the combo box.
            message.Result = Perform(CN_BASE + message.Msg, message.WParam, message.LParam);
            return;
        case CM_WANTSPECIALKEY:
            if ((message.WParam == VK_RETURN || message.WParam == VK_ESCAPE) && GetDroppedDown())
                message.Result = 1;
            else
                TWinControl::Dispatch(message);
            return;
        default:
            TWinControl::Dispatch(message);
    }
}

void TCustomComboBox::DefaultHandler(TMessage& message) {
    // The editor has a menu of its own.
    if (message.Msg != WM_CONTEXTMENU || !FEditorAsks) TWinControl::DefaultHandler(message);
}

void TCustomComboBox::CnCommand(const TMessage& message) {
    const TLifeGuard guard(*this);
    switch (message.WParamHi()) {
        case CBN_EDITCHANGE:
            return Change();
        case CBN_SELCHANGE:
            if (const int index = GetItemIndex(); index >= 0 && HasEditor() && !GetDroppedDown())
                ::SetWindowTextW(FEditWindow, FItems->Get(index).c_str());
            Click();
            if (guard.IsAlive()) Select();
            return;
        case CBN_DROPDOWN:
            DropDown();
            if (guard.IsAlive()) SizeList();
            return;
        case CBN_CLOSEUP:
            return CloseUp();
        case CBN_DBLCLK:
            return DblClick();
        default:
            return;
    }
}

void TCustomComboBox::Change() {
    OnChange(this);
}

void TCustomComboBox::Select() {
    const TLifeGuard guard(*this);
    OnSelect(this);
    if (guard.IsAlive()) Change();
}

void TCustomComboBox::DropDown() {
    OnDropDown(this);
}

void TCustomComboBox::CloseUp() {
    OnCloseUp(this);
}

// --- entries that the host draws

void TCustomComboBox::CnMeasureItem(MEASUREITEMSTRUCT& item) {
    int height = FItemHeight > 0 ? FItemHeight : static_cast<int>(item.itemHeight);
    if (FStyle == csOwnerDrawVariable && item.itemID != static_cast<UINT>(-1))
        OnMeasureItem(this, static_cast<int>(item.itemID), height);
    item.itemHeight = static_cast<UINT>(std::max(height, 1));
}

void TCustomComboBox::DrawItem(const DRAWITEMSTRUCT& item) {
    const int index = item.itemID == static_cast<UINT>(-1) ? -1 : static_cast<int>(item.itemID);
    if (OnDrawItem) return OnDrawItem(this, index, item.rcItem, item.itemState, item.hDC);
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    ::SetTextColor(item.hDC, ColorToRGB(selected ? clHighlightText : GetFont().GetColor()));
    ::SetBkColor(item.hDC, ColorToRGB(selected ? clHighlight : GetColor()));
    const String text = index >= 0 && index < FItems->GetCount() ? FItems->Get(index) : String();
    ::ExtTextOutW(item.hDC, 0, 0, ETO_OPAQUE | ETO_CLIPPED, &item.rcItem, L"", 0, nullptr);
    RECT place = item.rcItem;
    place.left += 1;
    ::DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

}  // namespace vcl
