#include "platform/vcl/stdctrls/TreeNodes.h"

#include <algorithm>
#include <vector>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/UpdateBracket.h"

namespace vcl {
namespace {

[[noreturn]] void RaiseIndexError(int index) {
    throw EListError(Format(L"List index out of bounds (%d)", index));
}

/// The lowest node that stands last below the node, or the node itself.
TTreeNode* LastBelow(TTreeNode* node) {
    while (node && node->GetLastChild())
        node = node->GetLastChild();
    return node;
}

}  // namespace

// --- a node

const TMetaClass& TTreeNode::StaticClass() {
    static const TMetaClass meta = DefineClass<TTreeNode>(L"TTreeNode", TPersistent::StaticClass());
    return meta;
}

TTreeNode::TTreeNode(TTreeNodes& nodes, TTreeNode* parent, const String& text)
    : FNodes(nodes), FParent(parent), FText(text) {}

TTreeNode::~TTreeNode() = default;

void TTreeNode::SetText(const String& value) {
    if (value == FText) return;
    FText = value;
    FNodes.FView.NodeChanged(*this);
    if (FNodes.FSorted) FNodes.SortChildren(FParent);
}

TTreeNode* TTreeNode::GetItem(int index) const {
    if (index < 0 || index >= FCount) RaiseIndexError(index);
    TTreeNode* node = FFirst;
    while (index-- > 0)
        node = node->FNext;
    return node;
}

int TTreeNode::GetIndex() const {
    int index = 0;
    for (const TTreeNode* node = FPrev; node; node = node->FPrev)
        ++index;
    return index;
}

int TTreeNode::GetAbsoluteIndex() const {
    if (FNodes.FKnownNode == this) return FNodes.FKnownIndex;
    int index = 0;
    for (const TTreeNode* node = FNodes.FFirst; node && node != this; node = node->GetNext())
        ++index;
    return index;
}

int TTreeNode::GetLevel() const {
    int level = 0;
    for (const TTreeNode* node = FParent; node; node = node->FParent)
        ++level;
    return level;
}

bool TTreeNode::HasAsParent(const TTreeNode* node) const {
    for (const TTreeNode* above = FParent; above; above = above->FParent)
        if (above == node) return true;
    return false;
}

void TTreeNode::SetHasChildren(bool value) {
    if (value == FPromised) return;
    FPromised = value;
    FNodes.FView.NodeChanged(*this);
}

void TTreeNode::SetExpanded(bool value) {
    if (value)
        Expand(false);
    else
        Collapse(false);
}

/// False when a handler freed the node.
bool TTreeNode::PutExpanded(bool value) {
    if (value == FExpanded || (value && !GetHasChildren())) return true;
    const TLifeGuard guard(*this);
    const bool allowed = FNodes.FView.NodeExpanding(*this, value);
    if (!guard.IsAlive()) return false;
    if (!allowed) return true;
    FExpanded = value;
    FNodes.FView.NodeExpanded(*this);
    return guard.IsAlive();
}

void TTreeNode::PutExpandedBelow(bool value) {
    for (TTreeNode* child = FFirst; child; child = child->FNext) {
        if (!child->PutExpanded(value)) return;
        const TLifeGuard guard(*child);
        child->PutExpandedBelow(value);
        if (!guard.IsAlive()) return;
    }
}

void TTreeNode::Expand(bool recurse) {
    if (PutExpanded(true) && recurse) PutExpandedBelow(true);
}

void TTreeNode::Collapse(bool recurse) {
    if (PutExpanded(false) && recurse) PutExpandedBelow(false);
}

bool TTreeNode::GetSelected() const {
    return FNodes.FSelected == this;
}

void TTreeNode::SetSelected(bool value) {
    if (value)
        FNodes.SetSelected(this);
    else if (GetSelected())
        FNodes.SetSelected(nullptr);
}

bool TTreeNode::IsShown() const {
    for (const TTreeNode* above = FParent; above; above = above->FParent)
        if (!above->FExpanded) return false;
    return true;
}

void TTreeNode::MakeVisible() {
    std::vector<TTreeNode*> path;
    for (TTreeNode* above = FParent; above; above = above->FParent)
        path.push_back(above);
    const TLifeGuard guard(*this);
    for (auto above = path.rbegin(); above != path.rend(); ++above) {
        (*above)->Expand(false);
        if (!guard.IsAlive()) return;
    }
    FNodes.FView.NodeShown(*this);
}

/// The first node below the subtree of this one.
TTreeNode* TTreeNode::AfterSubtree() const {
    const TTreeNode* node = this;
    while (node && !node->FNext)
        node = node->FParent;
    return node ? node->FNext : nullptr;
}

TTreeNode* TTreeNode::GetNext() const {
    return FFirst ? FFirst : AfterSubtree();
}

TTreeNode* TTreeNode::GetPrev() const {
    return FPrev ? LastBelow(FPrev) : FParent;
}

TTreeNode* TTreeNode::GetNextVisible() const {
    return FFirst && FExpanded ? FFirst : AfterSubtree();
}

TTreeNode* TTreeNode::GetPrevVisible() const {
    if (!FPrev) return FParent;
    TTreeNode* node = FPrev;
    while (node->FExpanded && node->FLast)
        node = node->FLast;
    return node;
}

void TTreeNode::Delete() {
    FNodes.Delete(this);
}

void TTreeNode::DeleteChildren() {
    while (FLast)
        FNodes.Delete(FLast);
}

// --- all nodes

const TMetaClass& TTreeNodes::StaticClass() {
    static const TMetaClass meta = DefineClass<TTreeNodes>(L"TTreeNodes", TPersistent::StaticClass());
    return meta;
}

TTreeNodes::~TTreeNodes() {
    // What shows the nodes may be gone by now.
    while (FFirst) {
        TTreeNode* node = FFirst;
        Unlink(*node);
        FreeSubtree(node);
    }
}

void TTreeNodes::Assign(const TPersistent* source) {
    const auto* other = dynamic_cast<const TTreeNodes*>(source);
    if (!other) return TPersistent::Assign(source);
    if (other == this) return;
    WithinUpdate(*this, [&] {
        Clear();
        for (const TTreeNode* node = other->FFirst; node; node = node->FNext)
            CopyChildren(node, AddChildObject(nullptr, node->FText, node->Data));
    });
}

void TTreeNodes::CopyChildren(const TTreeNode* source, TTreeNode* parent) {
    parent->SetHasChildren(source->FPromised);
    for (const TTreeNode* node = source->FFirst; node; node = node->FNext)
        CopyChildren(node, AddChildObject(parent, node->FText, node->Data));
}

TTreeNode* TTreeNodes::GetItem(int index) const {
    if (index < 0 || index >= FCount) RaiseIndexError(index);
    if (!FKnownNode || FKnownIndex > index) {
        FKnownNode = FFirst;
        FKnownIndex = 0;
    }
    for (; FKnownIndex < index; ++FKnownIndex)
        FKnownNode = FKnownNode->GetNext();
    return FKnownNode;
}

TTreeNode* TTreeNodes::GetLastNode() const {
    return LastBelow(FLast);
}

TTreeNode* TTreeNodes::AddObject(TTreeNode* sibling, const String& text, void* data) {
    return AddChildObject(sibling ? sibling->FParent : nullptr, text, data);
}

TTreeNode* TTreeNodes::AddChildObject(TTreeNode* parent, const String& text, void* data) {
    return InsertNode(parent, nullptr, text, data);
}

TTreeNode* TTreeNodes::AddChildFirst(TTreeNode* parent, const String& text) {
    return InsertNode(parent, FirstOf(parent), text, nullptr);
}

TTreeNode* TTreeNodes::Insert(TTreeNode* next, const String& text) {
    return InsertNode(next ? next->FParent : nullptr, next, text, nullptr);
}

TTreeNode* TTreeNodes::InsertNode(TTreeNode* parent, TTreeNode* next, const String& text, void* data) {
    if (FSorted) next = SortedPlace(parent, text);
    auto* node = new TTreeNode(*this, parent, text);
    node->Data = data;
    Link(*node, next);
    FView.NodeInserted(*node);
    return node;
}

/// The node before which a text belongs; null for the end.
TTreeNode* TTreeNodes::SortedPlace(TTreeNode* parent, const String& text) const {
    TTreeNode* node = parent ? parent->FFirst : FFirst;
    while (node && CompareText(node->FText, text) <= 0)
        node = node->FNext;
    return node;
}

void TTreeNodes::Link(TTreeNode& node, TTreeNode* next) {
    TTreeNode* parent = node.FParent;
    TTreeNode* prev = next ? next->FPrev : LastOf(parent);
    node.FPrev = prev;
    node.FNext = next;
    (prev ? prev->FNext : FirstOf(parent)) = &node;
    (next ? next->FPrev : LastOf(parent)) = &node;
    if (parent) ++parent->FCount;
    ++FCount;
    ForgetPlace();
}

void TTreeNodes::Unlink(TTreeNode& node) {
    TTreeNode* parent = node.FParent;
    (node.FPrev ? node.FPrev->FNext : FirstOf(parent)) = node.FNext;
    (node.FNext ? node.FNext->FPrev : LastOf(parent)) = node.FPrev;
    if (parent && --parent->FCount == 0 && !parent->FPromised) parent->FExpanded = false;
    --FCount;
    ForgetPlace();
}

/// Frees a node that is out of the tree, and what is below it.
void TTreeNodes::FreeSubtree(TTreeNode* node) {
    while (TTreeNode* child = node->FLast) {
        Unlink(*child);
        FreeSubtree(child);
    }
    if (FSelected == node) FSelected = nullptr;
    delete node;
}

void TTreeNodes::Delete(TTreeNode* node) {
    if (!node || std::exchange(node->FDeleting, true)) return;
    const bool losesSelection = FSelected && (FSelected == node || FSelected->HasAsParent(node));
    FView.NodeRemoving(*node);
    Unlink(*node);
    TTreeNode* parent = node->FParent;
    FreeSubtree(node);
    if (parent && parent->FCount == 0) FView.NodeChanged(*parent);
    if (losesSelection) FView.SelectionChanged();
}

void TTreeNodes::Clear() {
    WithinUpdate(*this, [this] {
        while (FLast)
            Delete(FLast);
    });
}

void TTreeNodes::SetSelected(TTreeNode* node) {
    if (node == FSelected) return;
    FSelected = node;
    FView.SelectionChanged();
}

// --- order

void TTreeNodes::SetSorted(bool value) {
    if (value == FSorted) return;
    FSorted = value;
    if (!value) return;
    WithinUpdate(*this, [this] {
        SortChildren(nullptr);
        for (TTreeNode* node = FFirst; node; node = node->GetNext())
            SortChildren(node);
    });
}

/// Puts the nodes right below the parent into the order of their texts.
void TTreeNodes::SortChildren(TTreeNode* parent) {
    std::vector<TTreeNode*> children;
    for (TTreeNode* node = FirstOf(parent); node; node = node->FNext)
        children.push_back(node);
    const auto before = [](const TTreeNode* a, const TTreeNode* b) {
        return CompareText(a->FText, b->FText) < 0;
    };
    if (std::ranges::is_sorted(children, before)) return;
    std::ranges::stable_sort(children, before);
    for (TTreeNode* node : children)
        FView.NodeRemoving(*node);
    FirstOf(parent) = LastOf(parent) = nullptr;
    for (TTreeNode* node : children) {
        node->FPrev = LastOf(parent);
        node->FNext = nullptr;
        (node->FPrev ? node->FPrev->FNext : FirstOf(parent)) = node;
        LastOf(parent) = node;
        FView.NodeInserted(*node);
    }
    ForgetPlace();
}

void TTreeNodes::BeginUpdate() {
    if (FUpdates++ == 0) FView.UpdateStateChanged(true);
}

void TTreeNodes::EndUpdate() {
    if (--FUpdates == 0) FView.UpdateStateChanged(false);
}

}  // namespace vcl
