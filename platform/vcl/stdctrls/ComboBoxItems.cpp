#include "platform/vcl/stdctrls/ComboBoxItems.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {

std::span<const wchar_t* const> TEnumNames<TComboBoxStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"csDropDown", L"csSimple", L"csDropDownList",
                                               L"csOwnerDrawFixed", L"csOwnerDrawVariable"};
    return names;
}

void TCustomComboBox::TItems::Put(int index, const String& text) {
    const int chosen = FBox.GetItemIndex();
    TStringList::Put(index, text);
    if (!FBox.HandleAllocated()) return;
    FBox.Send(CB_DELETESTRING, static_cast<WPARAM>(index));
    Show(index, text);
    if (chosen == index) FBox.SetItemIndex(chosen);
}

void TCustomComboBox::TItems::InsertObject(int index, const String& text, TObject* object) {
    TStringList::InsertObject(index, text, object);
    Show(index, text);
}

int TCustomComboBox::TItems::AddObject(const String& text, TObject* object) {
    const int count = GetCount();
    const int index = TStringList::AddObject(text, object);
    if (GetCount() > count) Show(index, text);
    return index;
}

void TCustomComboBox::TItems::Delete(int index) {
    TStringList::Delete(index);
    if (FBox.HandleAllocated()) FBox.Send(CB_DELETESTRING, static_cast<WPARAM>(index));
}

void TCustomComboBox::TItems::Clear() {
    TStringList::Clear();
    FBox.FSavedIndex = -1;
    if (!FBox.HandleAllocated()) return;
    // Clearing the list would clear the editor, too.
    const String text = FBox.HasEditor() ? FBox.GetText() : String();
    FBox.Send(CB_RESETCONTENT);
    if (!text.empty()) ::SetWindowTextW(FBox.FEditWindow, text.c_str());
    FBox.Invalidate();
}

void TCustomComboBox::TItems::Move(int currentIndex, int newIndex) {
    TStringList::Move(currentIndex, newIndex);
    FBox.FillWindow();
}

void TCustomComboBox::TItems::Exchange(int a, int b) {
    TStringList::Exchange(a, b);
    FBox.FillWindow();
}

void TCustomComboBox::TItems::SetUpdateState(bool updating) {
    TStringList::SetUpdateState(updating);
    if (!FBox.HandleAllocated()) return;
    ::SendMessageW(FBox.FListWindow, WM_SETREDRAW, !updating, 0);
    if (!updating) FBox.Invalidate();
}

void TCustomComboBox::TItems::Show(int index, const String& text) {
    if (!FBox.HandleAllocated()) return;
    // Straight to the list inside: the combo box would only hand it on.
    if (::SendMessageW(FBox.FListWindow, LB_INSERTSTRING, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(text.c_str())) < 0)
        throw EOutOfResources(L"Insufficient memory for the list");
}

const TMetaClass& TComboBox::StaticClass() {
    using C = TComboBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TComboBox", TCustomComboBox::StaticClass())
            .With(EditorRows)
            .Property(L"Style", &C::GetStyle, &C::SetStyle, csDropDown)
            .Property(L"DropDownCount", &C::GetDropDownCount, &C::SetDropDownCount, 8)
            .Property(L"ItemHeight", &C::GetItemHeight, &C::SetItemHeight, 0)
            .Stored(&C::IsItemHeightStored)
            .Property(L"Items", &C::GetItems, &C::SetItems)
            .Property(L"ItemIndex", &C::GetItemIndex, &C::SetItemIndex, -1)
            .Property(L"MaxLength", &C::GetMaxLength, &C::SetMaxLength, 0)
            .Property(L"Sorted", &C::GetSorted, &C::SetSorted, false)
            .Property(L"Text", &C::GetText, &C::SetText)
            .With(MouseRows)
            .With(KeyRows)
            .Event(L"OnChange", &C::OnChange)
            .Event(L"OnCloseUp", &C::OnCloseUp)
            .Event(L"OnDrawItem", &C::OnDrawItem)
            .Event(L"OnDropDown", &C::OnDropDown)
            .Event(L"OnMeasureItem", &C::OnMeasureItem)
            .Event(L"OnSelect", &C::OnSelect);
    return meta;
}

}  // namespace vcl
