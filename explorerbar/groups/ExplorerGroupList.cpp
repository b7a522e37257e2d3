#include "explorerbar/groups/ExplorerGroupList.h"

#include <memory>

#include "explorerbar/UnitQV7SkinExplorerBar.h"

namespace qv7skin {

TQV7SkinExplorerGroups::TQV7SkinExplorerGroups(TQV7SkinExplorerBar& Bar) : TObjectList(true), FBar(Bar) {}

TQV7SkinExplorerGroups::~TQV7SkinExplorerGroups() = default;

TQV7SkinExplorerGroup* TQV7SkinExplorerGroups::Add(const String& Title, bool SpecialGroup) {
    auto group = std::make_unique<TQV7SkinExplorerGroup>(nullptr);
    group->SetTitle(Title);
    group->SetSpecialGroup(SpecialGroup);
    Add(group.get());
    return group.release();
}

int TQV7SkinExplorerGroups::Add(TQV7SkinExplorerGroup* Group) {
    Insert(GetCount(), Group);
    return GetCount() - 1;
}

void TQV7SkinExplorerGroups::Insert(int Index, TQV7SkinExplorerGroup* Group) {
    TObjectList::Insert(Index, Group);
    Group->SetExBar(&FBar);
    FBar.GroupsChanged();
}

void TQV7SkinExplorerGroups::SetItem(int Index, TQV7SkinExplorerGroup* Group) {
    if (Group == GetItem(Index)) return;
    TObjectList::SetItem(Index, Group);
    Group->SetExBar(&FBar);
    FBar.GroupsChanged();
}

void TQV7SkinExplorerGroups::Delete(int Index) {
    TObjectList::Delete(Index);
    FBar.GroupsChanged();
}

int TQV7SkinExplorerGroups::Remove(TQV7SkinExplorerGroup* Group) {
    const int index = IndexOf(Group);
    if (index >= 0) Delete(index);
    return index;
}

TQV7SkinExplorerGroup* TQV7SkinExplorerGroups::Extract(TQV7SkinExplorerGroup* Group) {
    if (!TObjectList::Extract(Group)) return nullptr;
    FBar.ForgetGroup(*Group);
    Group->SetExBar(nullptr);
    FBar.GroupsChanged();
    return Group;
}

void TQV7SkinExplorerGroups::Move(int CurrentIndex, int NewIndex) {
    TObjectList::Move(CurrentIndex, NewIndex);
    FBar.GroupsChanged();
}

void TQV7SkinExplorerGroups::Clear() {
    TObjectList::Clear();
    FBar.GroupsChanged();
}

}  // namespace qv7skin
