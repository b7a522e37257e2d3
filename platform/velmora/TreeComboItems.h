#pragma once

#include "platform/vcl/core/StringList.h"
#include "platform/vcl/stdctrls/TreeNodes.h"
#include "platform/velmora/Namespace.h"

namespace velmora {

/// The nodes of a tree as a list of texts, from the top to the bottom. A text that is added goes below the
/// last node as many levels deep as it has tab characters in front; the objects are the nodes' `Data`.
class TTreeComboItems final : public TStrings {
public:
    explicit TTreeComboItems(TTreeNodes& nodes) : FNodes(nodes) {}

    [[nodiscard]] int GetCount() const override { return FNodes.GetCount(); }
    [[nodiscard]] String Get(int index) const override { return FNodes.GetItem(index)->GetText(); }
    void Put(int index, const String& text) override { FNodes.GetItem(index)->SetText(text); }
    [[nodiscard]] TObject* GetObject(int index) const override;
    void PutObject(int index, TObject* object) override { FNodes.GetItem(index)->Data = object; }
    /// Right before the node at the index, on its level.
    void InsertObject(int index, const String& text, TObject* object) override;
    int AddObject(const String& text, TObject* object) override;
    /// With all nodes below.
    void Delete(int index) override { FNodes.GetItem(index)->Delete(); }
    void Clear() override { FNodes.Clear(); }

protected:
    void SetUpdateState(bool updating) override;

private:
    TTreeNodes& FNodes;
};

}  // namespace velmora
