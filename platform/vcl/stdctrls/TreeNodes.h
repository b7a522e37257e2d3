#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include <commctrl.h>

#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/core/Persistent.h"

// Functions of the Windows headers by another name, which would rename members.
#undef GetFirstChild
#undef GetNextSibling
#undef GetPrevSibling

namespace vcl {

class TTreeNodes;

/// An entry of a tree, with the entries below it. It belongs to its `TTreeNodes`; `Delete` frees it.
class TTreeNode final : public TPersistent, public TGuarded {
public:
    ~TTreeNode() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// For the host; not owned.
    void* Data = nullptr;

    [[nodiscard]] const String& GetText() const { return FText; }
    void SetText(const String& value);
    [[nodiscard]] TTreeNodes& GetTreeNodes() const { return FNodes; }
    /// The node above, or null.
    [[nodiscard]] TTreeNode* GetParent() const { return FParent; }
    /// Nodes right below this one.
    [[nodiscard]] int GetCount() const { return FCount; }
    /// One of them. Raises EListError.
    [[nodiscard]] TTreeNode* GetItem(int index) const;
    /// The place among the nodes with the same parent.
    [[nodiscard]] int GetIndex() const;
    /// The place among all nodes of the tree, from the top to the bottom.
    [[nodiscard]] int GetAbsoluteIndex() const;
    /// 0 for a node without a parent.
    [[nodiscard]] int GetLevel() const;
    [[nodiscard]] bool HasAsParent(const TTreeNode* node) const;

    /// Whether the sign for expanding shows: there are nodes below, or the host promised some that it makes
    /// when the node is being expanded.
    [[nodiscard]] bool GetHasChildren() const { return FCount > 0 || FPromised; }
    void SetHasChildren(bool value);
    [[nodiscard]] bool GetExpanded() const { return FExpanded; }
    void SetExpanded(bool value);
    /// Shows the nodes below, with `recurse` also those below them. The tree's owner may refuse.
    void Expand(bool recurse);
    void Collapse(bool recurse);
    [[nodiscard]] bool GetSelected() const;
    void SetSelected(bool value);
    /// True when no node above it is collapsed.
    [[nodiscard]] bool IsShown() const;
    /// Expands the nodes above and scrolls to this one.
    void MakeVisible();

    [[nodiscard]] TTreeNode* GetFirstChild() const { return FFirst; }
    [[nodiscard]] TTreeNode* GetLastChild() const { return FLast; }
    [[nodiscard]] TTreeNode* GetNextSibling() const { return FNext; }
    [[nodiscard]] TTreeNode* GetPrevSibling() const { return FPrev; }
    /// The next node from the top to the bottom of the whole tree, shown or not; null after the last.
    [[nodiscard]] TTreeNode* GetNext() const;
    [[nodiscard]] TTreeNode* GetPrev() const;
    /// The same among the nodes that show.
    [[nodiscard]] TTreeNode* GetNextVisible() const;
    [[nodiscard]] TTreeNode* GetPrevVisible() const;

    /// Frees the node and all below it.
    void Delete();
    void DeleteChildren();

    /// The entry of the window, 0 as long as there is none; for the tree view only.
    HTREEITEM ItemId = nullptr;
    /// For the tree view: the user expanded or collapsed the node.
    void TakeExpanded(bool value) { FExpanded = value; }

private:
    friend class TTreeNodes;
    TTreeNode(TTreeNodes& nodes, TTreeNode* parent, const String& text);

    [[nodiscard]] TTreeNode* AfterSubtree() const;
    [[nodiscard]] bool PutExpanded(bool value);
    void PutExpandedBelow(bool value);

    TTreeNodes& FNodes;
    TTreeNode* FParent;
    TTreeNode* FFirst = nullptr;
    TTreeNode* FLast = nullptr;
    TTreeNode* FPrev = nullptr;
    TTreeNode* FNext = nullptr;
    String FText;
    int FCount = 0;
    bool FPromised = false;
    bool FExpanded = false;
    bool FDeleting = false;
};

/// What shows the nodes: told of every change, asked before one is expanded or collapsed.
class TTreeNodesView {
public:
    virtual ~TTreeNodesView() = default;
    virtual void NodeInserted(TTreeNode& node) = 0;
    /// The node goes, with all below it.
    virtual void NodeRemoving(TTreeNode& node) = 0;
    /// Text or sign changed.
    virtual void NodeChanged(TTreeNode& node) = 0;
    /// False keeps the node as it is.
    virtual bool NodeExpanding(TTreeNode& node, bool expand) = 0;
    virtual void NodeExpanded(TTreeNode& node) = 0;
    virtual void SelectionChanged() = 0;
    virtual void NodeShown(TTreeNode& node) = 0;
    virtual void UpdateStateChanged(bool updating) = 0;
};

/// All nodes of a tree, from the top to the bottom; frees them.
class TTreeNodes : public TPersistent {
public:
    explicit TTreeNodes(TTreeNodesView& view) : FView(view) {}
    ~TTreeNodes() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// Takes over texts, data and structure of other nodes.
    void Assign(const TPersistent* source) override;

    [[nodiscard]] int GetCount() const { return FCount; }
    /// Raises EListError.
    [[nodiscard]] TTreeNode* GetItem(int index) const;
    [[nodiscard]] TTreeNode* operator[](int index) const { return GetItem(index); }
    [[nodiscard]] TTreeNode* GetFirstNode() const { return FFirst; }
    [[nodiscard]] TTreeNode* GetLastNode() const;

    /// A new node beside `sibling`, after the last one there; of a sorted tree at its place. Null: without a
    /// parent.
    TTreeNode* Add(TTreeNode* sibling, const String& text) { return AddObject(sibling, text, nullptr); }
    TTreeNode* AddObject(TTreeNode* sibling, const String& text, void* data);
    /// A new node below `parent`, after the last one there; null as above.
    TTreeNode* AddChild(TTreeNode* parent, const String& text) {
        return AddChildObject(parent, text, nullptr);
    }
    TTreeNode* AddChildObject(TTreeNode* parent, const String& text, void* data);
    /// The same before the first one there.
    TTreeNode* AddChildFirst(TTreeNode* parent, const String& text);
    /// A new node right before `next`.
    TTreeNode* Insert(TTreeNode* next, const String& text);
    /// Frees the node and all below it.
    void Delete(TTreeNode* node);
    void Clear();

    [[nodiscard]] TTreeNode* GetSelected() const { return FSelected; }
    /// Null: none.
    void SetSelected(TTreeNode* node);
    /// Whether nodes with one parent stand in the order of their texts.
    [[nodiscard]] bool GetSorted() const { return FSorted; }
    void SetSorted(bool value);

    /// Between them nothing is drawn. They nest.
    void BeginUpdate();
    void EndUpdate();

private:
    friend class TTreeNode;

    TTreeNode* InsertNode(TTreeNode* parent, TTreeNode* next, const String& text, void* data);
    [[nodiscard]] TTreeNode* SortedPlace(TTreeNode* parent, const String& text) const;
    void Link(TTreeNode& node, TTreeNode* next);
    void Unlink(TTreeNode& node);
    void SortChildren(TTreeNode* parent);
    void FreeSubtree(TTreeNode* node);
    void CopyChildren(const TTreeNode* source, TTreeNode* parent);
    [[nodiscard]] TTreeNode*& FirstOf(TTreeNode* parent) { return parent ? parent->FFirst : FFirst; }
    [[nodiscard]] TTreeNode*& LastOf(TTreeNode* parent) { return parent ? parent->FLast : FLast; }
    void ForgetPlace() const { FKnownNode = nullptr; }

    TTreeNodesView& FView;
    TTreeNode* FFirst = nullptr;
    TTreeNode* FLast = nullptr;
    TTreeNode* FSelected = nullptr;
    int FCount = 0;
    int FUpdates = 0;
    bool FSorted = false;
    // Where the last question about a place ended, so that a walk by index is no square of the count.
    mutable TTreeNode* FKnownNode = nullptr;
    mutable int FKnownIndex = 0;
};

}  // namespace vcl
