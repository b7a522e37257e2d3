#include "platform/vcl/stdctrls/ListBox.h"

#include <algorithm>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/WindowBorder.h"

namespace vcl {

/// The entries of a list box: they are kept here, and the window shows a copy.
class TCustomListBox::TItems final : public TStringList {
public:
    explicit TItems(TCustomListBox& box) : FBox(box) { Duplicates = dupAccept; }

    void Put(int index, const String& text) override {
        const TPlace place = FBox.PresentPlace();
        TStringList::Put(index, text);
        if (!FBox.HandleAllocated()) return;
        FBox.Send(LB_DELETESTRING, static_cast<WPARAM>(index));
        Show(index, text);
        FBox.Restore(place);
    }
    void InsertObject(int index, const String& text, TObject* object) override {
        TStringList::InsertObject(index, text, object);
        Show(index, text);
    }
    int AddObject(const String& text, TObject* object) override {
        const int count = GetCount();
        const int index = TStringList::AddObject(text, object);
        if (GetCount() > count) Show(index, text);
        return index;
    }
    void Delete(int index) override {
        TStringList::Delete(index);
        if (FBox.HandleAllocated()) FBox.Send(LB_DELETESTRING, static_cast<WPARAM>(index));
    }
    void Clear() override {
        TStringList::Clear();
        if (FBox.HandleAllocated()) FBox.Send(LB_RESETCONTENT);
        FBox.FPlace = {};
    }
    void Move(int currentIndex, int newIndex) override {
        TStringList::Move(currentIndex, newIndex);
        FBox.FillWindow();
    }
    void Exchange(int a, int b) override {
        TStringList::Exchange(a, b);
        FBox.FillWindow();
    }

protected:
    void SetUpdateState(bool updating) override {
        TStringList::SetUpdateState(updating);
        if (!FBox.HandleAllocated()) return;
        FBox.Send(WM_SETREDRAW, !updating);
        if (!updating) FBox.Invalidate();
    }

private:
    void Show(int index, const String& text) {
        if (!FBox.HandleAllocated()) return;
        if (FBox.Send(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.c_str())) <
            0)
            throw EOutOfResources(L"Insufficient memory for the list");
    }

    TCustomListBox& FBox;
};

const TMetaClass& TCustomListBox::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomListBox>(L"TCustomListBox", TWinControl::StaticClass());
    return meta;
}

TCustomListBox::TCustomListBox(TComponent* AOwner)
    : TWinControl(AOwner), FItems(std::make_unique<TItems>(*this)) {
    // The system's list reports clicks itself.
    ControlStyle = {csSetCaption, csDoubleClicks, csOpaque};
    SetBounds(0, 0, 121, 97);
    SetColor(clWindow);
    SetTabStop(true);
}

TCustomListBox::~TCustomListBox() = default;

TStrings& TCustomListBox::GetItems() const {
    return *FItems;
}

// --- properties that decide about the window

void TCustomListBox::SetSorted(bool value) {
    if (value == FSorted) return;
    FSorted = value;
    FItems->SetSorted(value);
    FillWindow();
}

void TCustomListBox::SetMultiSelect(bool value) {
    if (value == FMultiSelect) return;
    FMultiSelect = value;
    RecreateWnd();
}

void TCustomListBox::SetIntegralHeight(bool value) {
    if (value == FIntegralHeight) return;
    FIntegralHeight = value;
    RecreateWnd();
}

void TCustomListBox::SetBorderStyle(TBorderStyle value) {
    if (value == FBorderStyle) return;
    FBorderStyle = value;
    RecreateWnd();
}

// --- the window

void TCustomListBox::CreateParams(TCreateParams& params) {
    TWinControl::CreateParams(params);
    CreateSubClass(params, L"LISTBOX");
    params.Style |= WS_VSCROLL | WS_HSCROLL | LBS_HASSTRINGS | LBS_NOTIFY;
    if (FMultiSelect) params.Style |= LBS_MULTIPLESEL;
    if (!FIntegralHeight) params.Style |= LBS_NOINTEGRALHEIGHT;
    if (FBorderStyle == bsSingle) AddWindowBorder(params, GetCtl3D());
}

TRect TCustomListBox::GetFrameInsets() const {
    return FBorderStyle == bsSingle ? WithWindowBorder({}, GetCtl3D()) : TWinControl::GetFrameInsets();
}

void TCustomListBox::CreateWnd() {
    TWinControl::CreateWnd();
    FillWindow();
}

void TCustomListBox::DestroyWnd() {
    FPlace = PresentPlace();
    TWinControl::DestroyWnd();
}

/// Shows all entries anew, where the list stood.
void TCustomListBox::FillWindow() {
    if (!HandleAllocated()) return;
    const bool isNew = Send(LB_GETCOUNT) == 0;
    const TPlace place = isNew ? FPlace : PresentPlace();
    Send(WM_SETREDRAW, FALSE);
    Send(LB_RESETCONTENT);
    for (int i = 0; i < FItems->GetCount(); ++i)
        Send(LB_INSERTSTRING, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(FItems->Get(i).c_str()));
    Restore(place);
    Send(WM_SETREDRAW, TRUE);
    Invalidate();
}

LRESULT TCustomListBox::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(const_cast<TCustomListBox*>(this)->GetHandle(), message, wParam, lParam);
}

TCustomListBox::TPlace TCustomListBox::PresentPlace() const {
    if (!HandleAllocated()) return FPlace;
    TPlace place;
    place.Current = GetItemIndex();
    place.Top = GetTopIndex();
    if (!SelectsSeveral()) {
        if (place.Current >= 0) place.Selected = {place.Current};
    } else {
        place.Selected.resize(static_cast<std::size_t>(GetSelCount()));
        Send(LB_GETSELITEMS, place.Selected.size(), reinterpret_cast<LPARAM>(place.Selected.data()));
    }
    return place;
}

void TCustomListBox::Restore(const TPlace& place) {
    if (SelectsSeveral()) {
        for (const int index : place.Selected)
            Send(LB_SETSEL, TRUE, index);
    }
    SetItemIndex(place.Current);
    SetTopIndex(place.Top);
}

void TCustomListBox::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_COMMAND:
            if (message.WParamHi() == LBN_SELCHANGE) Click();
            if (message.WParamHi() == LBN_DBLCLK) DblClick();
            break;
        case CM_CTL3DCHANGED: {
            const TLifeGuard guard(*this);
            TWinControl::Dispatch(message);
            if (guard.IsAlive() && FBorderStyle == bsSingle) RecreateWnd();
            break;
        }
        default:
            TWinControl::Dispatch(message);
    }
}

// --- selection and places

void TCustomListBox::CheckIndex(int index) const {
    if (index < 0 || index >= GetCount()) throw EListError(Format(L"List index out of bounds (%d)", index));
}

/// As the window was made, which lags behind the property while the window is made anew.
bool TCustomListBox::SelectsSeveral() const {
    return HandleAllocated() ? (::GetWindowLongW(WindowHandle(), GWL_STYLE) & LBS_MULTIPLESEL) != 0
                             : FMultiSelect;
}

int TCustomListBox::GetItemIndex() const {
    if (!HandleAllocated()) return FPlace.Current;
    return static_cast<int>(Send(SelectsSeveral() ? LB_GETCARETINDEX : LB_GETCURSEL));
}

void TCustomListBox::SetItemIndex(int value) {
    FPlace.Current = value;
    if (!HandleAllocated()) return;
    if (SelectsSeveral())
        Send(LB_SETCARETINDEX, static_cast<WPARAM>(value));
    else
        Send(LB_SETCURSEL, static_cast<WPARAM>(value));
}

bool TCustomListBox::GetSelected(int index) const {
    CheckIndex(index);
    if (HandleAllocated()) return Send(LB_GETSEL, static_cast<WPARAM>(index)) > 0;
    return SelectsSeveral() ? std::ranges::count(FPlace.Selected, index) > 0 : FPlace.Current == index;
}

void TCustomListBox::SetSelected(int index, bool value) {
    CheckIndex(index);
    if (!SelectsSeveral())
        SetItemIndex(value ? index : -1);
    else if (HandleAllocated())
        Send(LB_SETSEL, value, index);
    else if (std::erase(FPlace.Selected, index); value)
        FPlace.Selected.push_back(index);
}

int TCustomListBox::GetSelCount() const {
    if (!SelectsSeveral()) return GetItemIndex() >= 0 ? 1 : 0;
    return HandleAllocated() ? static_cast<int>(Send(LB_GETSELCOUNT))
                             : static_cast<int>(FPlace.Selected.size());
}

int TCustomListBox::GetTopIndex() const {
    return HandleAllocated() ? static_cast<int>(Send(LB_GETTOPINDEX)) : FPlace.Top;
}

void TCustomListBox::SetTopIndex(int value) {
    FPlace.Top = value;
    if (HandleAllocated()) Send(LB_SETTOPINDEX, static_cast<WPARAM>(value));
}

int TCustomListBox::GetItemHeight() const {
    return static_cast<int>(Send(LB_GETITEMHEIGHT));
}

int TCustomListBox::ItemAtPos(TPoint pos) const {
    if (!GetClientRect().Contains(pos)) return -1;
    for (int i = GetTopIndex(); i < GetCount(); ++i) {
        if (ItemRect(i).Contains(pos)) return i;
    }
    return -1;
}

TRect TCustomListBox::ItemRect(int index) const {
    CheckIndex(index);
    TRect rect;
    Send(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect.AsRect()));
    return rect;
}

const TMetaClass& TListBox::StaticClass() {
    using C = TListBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TListBox", TCustomListBox::StaticClass())
            .With(EditorRows)
            .Property(L"BorderStyle", &C::GetBorderStyle, &C::SetBorderStyle, bsSingle)
            .Property(L"IntegralHeight", &C::GetIntegralHeight, &C::SetIntegralHeight, false)
            .Property(L"Items", &C::GetItems, &C::SetItems)
            .Property(L"MultiSelect", &C::GetMultiSelect, &C::SetMultiSelect, false)
            .Property(L"Sorted", &C::GetSorted, &C::SetSorted, false)
            .Property(L"ItemIndex", &C::GetItemIndex, &C::SetItemIndex, -1)
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows)
            .With(KeyRows);
    return meta;
}

}  // namespace vcl
