#pragma once

#include "explorerbar/groups/ExplorerGroup.h"
#include "platform/vcl/core/ObjectList.h"

namespace qv7skin {

/// The groups of a bar from top to bottom. The list owns them; the bar learns of each change.
class TQV7SkinExplorerGroups : public TObjectList {
public:
    explicit TQV7SkinExplorerGroups(TQV7SkinExplorerBar& Bar);
    ~TQV7SkinExplorerGroups() override;

    /// Makes a group for the bar and appends it.
    TQV7SkinExplorerGroup* Add(const String& Title, bool SpecialGroup);
    /// Appends a group, which is the list's from then on, and returns its index.
    int Add(TQV7SkinExplorerGroup* Group);
    void Insert(int Index, TQV7SkinExplorerGroup* Group);
    /// Index errors raise EListError.
    [[nodiscard]] TQV7SkinExplorerGroup* GetItem(int Index) const {
        return static_cast<TQV7SkinExplorerGroup*>(TObjectList::GetItem(Index));
    }
    [[nodiscard]] TQV7SkinExplorerGroup* operator[](int Index) const { return GetItem(Index); }
    /// Replaces a group and frees the old one.
    void SetItem(int Index, TQV7SkinExplorerGroup* Group);
    void Delete(int Index);
    /// Frees the group and returns its former index; -1 when it is not in the list.
    int Remove(TQV7SkinExplorerGroup* Group);
    /// Takes the group out, the caller's from then on; null when it is not in the list.
    TQV7SkinExplorerGroup* Extract(TQV7SkinExplorerGroup* Group);
    void Move(int CurrentIndex, int NewIndex);
    void Clear();

private:
    TQV7SkinExplorerBar& FBar;
};

}  // namespace qv7skin
