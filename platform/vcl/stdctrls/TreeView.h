#pragma once

#include <memory>

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/stdctrls/TreeNodes.h"

namespace vcl {

/// Sender, node, and whether it may be expanded or collapsed.
using TTVExpandingEvent = TEvent<void(TObject*, TTreeNode*, bool&)>;
/// Sender and node.
using TTVNodeEvent = TEvent<void(TObject*, TTreeNode*)>;

/// The tree view of the system. The nodes are kept by the control, with or without a window.
class TCustomTreeView : public TWinControl, private TTreeNodesView {
public:
    explicit TCustomTreeView(TComponent* AOwner);
    ~TCustomTreeView() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised before a node is expanded or collapsed, by the user or by code; a handler may add the nodes
    /// below it, or forbid it.
    TTVExpandingEvent OnExpanding;
    TTVExpandingEvent OnCollapsing;
    TTVNodeEvent OnExpanded;
    TTVNodeEvent OnCollapsed;
    /// Raised when another node is selected, by the user or by code; the node is null for none.
    TTVNodeEvent OnChange;
    /// Raised when a node has another text, or its sign for expanding came or went.
    TTVNodeEvent OnNodeChanged;

    /// The nodes; owned by the control.
    [[nodiscard]] TTreeNodes& GetItems() const { return *FItems; }
    void SetItems(const TTreeNodes& value) { FItems->Assign(&value); }
    [[nodiscard]] TTreeNode* GetSelected() const { return FItems->GetSelected(); }
    void SetSelected(TTreeNode* value) { FItems->SetSelected(value); }
    /// The node whose picture or text is at the point in client pixels, or null.
    [[nodiscard]] TTreeNode* GetNodeAt(int x, int y) const;
    /// The place of a node's text in client pixels; empty while the node does not show.
    [[nodiscard]] TRect GetTextRect(const TTreeNode& node) const;
    /// Height of a node in pixels.
    [[nodiscard]] int GetItemHeight() const;
    [[nodiscard]] TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle value);
    /// True while a message to the window is under way: the control must not be freed then, since the
    /// system's tree goes on afterwards.
    [[nodiscard]] bool IsInMessage() const { return FMessages > 0; }

protected:
    void WndProc(TMessage& message) override;
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    void DestroyWnd() override;

private:
    void NodeInserted(TTreeNode& node) override;
    void NodeRemoving(TTreeNode& node) override;
    void NodeChanged(TTreeNode& node) override;
    bool NodeExpanding(TTreeNode& node, bool expand) override;
    void NodeExpanded(TTreeNode& node) override;
    void SelectionChanged() override;
    void NodeShown(TTreeNode& node) override;
    void UpdateStateChanged(bool updating) override;

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void ShowSubtree(TTreeNode& node);
    static void ForgetItems(TTreeNode& node);
    void ShowExpanded(const TTreeNode& node);
    void ShowSelection();
    void TakeSelectionOfWindow();
    void ApplyColors();
    void NodeTurned(TTreeNode& node);
    void CnNotify(TMessage& message);

    std::unique_ptr<TTreeNodes> FItems;
    TBorderStyle FBorderStyle = bsSingle;
    int FMessages = 0;
    int FMirroring = 0;  ///< The window is being told what the nodes know already.
};

}  // namespace vcl
