#include "platform/velmora/TreeComboItems.h"

namespace velmora {

TObject* TTreeComboItems::GetObject(int index) const {
    return static_cast<TObject*>(FNodes.GetItem(index)->Data);
}

void TTreeComboItems::InsertObject(int index, const String& text, TObject* object) {
    if (index == GetCount()) {
        AddObject(text, object);
        return;
    }
    FNodes.Insert(FNodes.GetItem(index), text)->Data = object;
}

int TTreeComboItems::AddObject(const String& text, TObject* object) {
    const std::size_t tabs = std::min(text.find_first_not_of(L'\t'), text.size());
    TTreeNode* parent = FNodes.GetLastNode();
    while (parent && parent->GetLevel() >= static_cast<int>(tabs))
        parent = parent->GetParent();
    return FNodes.AddChildObject(parent, text.substr(tabs), object)->GetAbsoluteIndex();
}

void TTreeComboItems::SetUpdateState(bool updating) {
    if (updating)
        FNodes.BeginUpdate();
    else
        FNodes.EndUpdate();
}

}  // namespace velmora
